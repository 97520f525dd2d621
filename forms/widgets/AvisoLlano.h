#pragma once

#include <QString>

/// A text for a tool tip, which takes for markup what looks like it: data that do are shown as they are.
[[nodiscard]] QString AvisoLlano(const QString& texto);
