#include "forms/widgets/AvisoLlano.h"

#include <QTextDocument>

QString AvisoLlano(const QString& texto) {
    return Qt::mightBeRichText(texto) ? Qt::convertFromPlainText(texto, Qt::WhiteSpaceNormal) : texto;
}
