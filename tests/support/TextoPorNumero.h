#pragma once

#include "core/run/Entorno.h"
#include "core/run/Textos.h"

/// The text of that row in the language in force: tests tell texts by their number, not by the name that the
/// program gives it.
inline QString Texto(int id) { return TextoDeFila(id + Entorno().OffsetIdioma); }
