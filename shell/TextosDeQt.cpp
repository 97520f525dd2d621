#include "shell/TextosDeQt.h"

#include <QLibraryInfo>
#include <algorithm>
#include <array>

#include "printing/TextosDelDialogo.h"
#include "shell/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

struct Par {
    QLatin1StringView original;
    QStringView euskera;
};

constexpr std::array kEuskera{Par{"&Undo"_L1, u"&Desegin"},
                              Par{"&Redo"_L1, u"&Berregin"},
                              Par{"Cu&t"_L1, u"&Ebaki"},
                              Par{"&Copy"_L1, u"&Kopiatu"},
                              Par{"Copy"_L1, u"Kopiatu"},
                              Par{"&Paste"_L1, u"&Itsatsi"},
                              Par{"Delete"_L1, u"Ezabatu"},
                              Par{"Select All"_L1, u"Hautatu dena"},
                              Par{"Copy &Link Location"_L1, u"Kopiatu &estekaren helbidea"},
                              Par{"OK"_L1, u"Ados"},
                              Par{"&OK"_L1, u"&Ados"},
                              Par{"Cancel"_L1, u"Utzi"},
                              Par{"&Cancel"_L1, u"&Utzi"},
                              Par{"Close"_L1, u"Itxi"},
                              Par{"&Yes"_L1, u"&Bai"},
                              Par{"&No"_L1, u"&Ez"}};

}  // namespace

TextosDeQt::TextosDeQt(QObject* padre) : QTranslator(padre) {
    // Without the file the toolkit speaks English; nothing of the program depends on it.
    (void)load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString TextosDeQt::translate(const char* contexto, const char* texto, const char* aclaracion, int n) const {
    if (Entorno().OffsetIdioma == kOffsetEuskera) {
        const auto par = std::ranges::find(kEuskera, QLatin1StringView(texto), &Par::original);
        if (par != kEuskera.end()) {
            return par->euskera.toString();
        }
        if (const QStringView euskera = TextoDelDialogoEnEuskera(QLatin1StringView(texto));
            !euskera.isEmpty()) {
            return euskera.toString();
        }
    }
    const QString traducido = QTranslator::translate(contexto, texto, aclaracion, n);
    return traducido.isEmpty() ? TextoDelDialogoEnCastellano(QLatin1StringView(texto)).toString() : traducido;
}
