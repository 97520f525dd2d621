#include "app/Letras.h"

#include <QFont>

using namespace Qt::StringLiterals;

void SustituirLetras() {
    for (const QString& familia : {u"Arial"_s, u"MS Sans Serif"_s}) {
        QFont::insertSubstitution(familia, u"Liberation Sans"_s);
    }
}
