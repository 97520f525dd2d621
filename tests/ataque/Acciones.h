#pragma once

#include <QString>
#include <QStringList>
#include <span>

#include "core/base/Tabla.h"
#include "tests/ataque/Escenario.h"

/// How an action has ended, as its user sees it.
struct Final {
    /// He has been told that it did not work, and why.
    QStringList fallos;
    /// It has worked, but he has been told of something that did not, such as the copy of the day.
    QStringList avisos;
};

/// Something that a user does, through the program's own classes, from the reading of what he changes to its
/// end.
struct Accion {
    QStringView nombre;
    void (*hacer)(const Escenario& escenario, EjecucionDeAtaque& ejecucion, Final& final);
};

[[nodiscard]] std::span<const Accion> Acciones();

/// Does it in a run of its own. What climbs out of it has been told, too.
[[nodiscard]] Final Hacer(const Accion& accion, const Escenario& escenario);

/// Exports declarants into the file of the folder.
void Exportar(const Escenario& escenario, const Registro& declarantes);
