#include "app/TextosDeQt.h"

#include <QLibraryInfo>

#include "core/run/Entorno.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// The text of the catalogue for one of the toolkit's; empty when it has none. Ends of lines are written
/// there as two characters.
QString DelCatalogo(const char* texto, qint16 offset) {
    const QString original = QString::fromUtf8(texto).replace(u'\n', u"\\n"_s);
    return TextoPropioSiHay(u"qt:"_s + original, offset).value_or(QString()).replace(u"\\n"_s, u"\n"_s);
}

}  // namespace

TextosDeQt::TextosDeQt(QObject* padre) : QTranslator(padre) {
    // Without the file the catalogue speaks, and of what that lacks the toolkit's English is seen.
    (void)load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString TextosDeQt::translate(const char* contexto, const char* texto, const char* aclaracion, int n) const {
    if (Entorno().OffsetIdioma == kOffsetEuskera) {
        if (QString euskera = DelCatalogo(texto, kOffsetEuskera); !euskera.isEmpty()) {
            return euskera;
        }
    }
    const QString traducido = QTranslator::translate(contexto, texto, aclaracion, n);
    return traducido.isEmpty() ? DelCatalogo(texto, kOffsetCastellano) : traducido;
}
