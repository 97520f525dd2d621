#pragma once

#include <QStringList>

/// Every text that a notice, a question, a list of faults or an error dialog can show in the language of
/// `offset` (0 or 1000), taken from the sources and from the catalogues, so that a new one is in it by
/// itself. What comes in at run time stands as "%1". Failures of the platform are in Castellano in both.
QStringList TextosDeMensajes(int offset);
