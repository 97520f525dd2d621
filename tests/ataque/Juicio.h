#pragma once

#include <QJsonObject>

#include "tests/ataque/Escenario.h"

/// Looks the folder over after an attack, starts the program in it once more, and tells:
///   problemas    what must never be, in words: rights too wide, rests after the start, a copy that is none,
///   a
///                store that is not sound or whose figures do not add up
///   arranque     whether the program goes on with the store; if not, `rechazos` has the reasons told
///   ofrecidas    automatic copies that it offered then
///   descuadres   figures of which it tells that they do not add up
///   estado       digest of all that the user's store holds; `figuras` of what is declared
///   copias       digest of each copy by its name; empty for one that the program refuses
///   apartados    stores that a restore has set aside as they were
///   exportado, incompleto   digest of the export and of what a failed one left; empty where there is none
///   documentos   number of whole PDFs
[[nodiscard]] QJsonObject Juzgar(const Escenario& escenario);
