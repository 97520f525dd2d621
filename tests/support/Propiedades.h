#pragma once

#include <gtest/gtest.h>

// Stands behind GoogleTest, which it needs and does not include.
#include <rapidcheck/gtest.h>
