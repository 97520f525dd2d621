#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// The catalogue of the texts that are this program's own (backup, help window, notices, causes of failures),
// in both languages, and the language in force.

/// The text of that key in the language of `offset` (0 or 1000), or nothing for a key that is not there.
std::optional<QString> TextoPropioSiHay(const QString& clave, qint16 offset);

/// The offset of the language in force, 0 or 1000.
[[nodiscard]] qint16 IdiomaEnVigor();

/// Tells where the language in force is asked for: its offset, 0 or 1000. Castellano until it is told.
void FijarIdiomaEnVigor(qint16 (*offset)());

/// The lines of a text file among the resources, but for those that are empty or start with "#".
QStringList LineasDeRecurso(const QString& recurso);
