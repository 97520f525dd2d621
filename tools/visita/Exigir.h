#pragma once

#include <QString>

/// Ends the tour where something is not as it has to be.
inline void Exigir(bool bien, const QString& que) {
    if (!bien) {
        qFatal("%s", qPrintable(que));
    }
}
