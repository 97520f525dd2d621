#pragma once

#include <QLatin1StringView>
#include <QStringView>

// Texts of the toolkit's printer dialog by their original; empty for any other.

QStringView TextoDelDialogoEnEuskera(QLatin1StringView original);
/// Only those that the toolkit's own translation lacks.
QStringView TextoDelDialogoEnCastellano(QLatin1StringView original);
