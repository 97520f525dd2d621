#include "app/TextosDeQt.h"

#include <QLibraryInfo>
#include <algorithm>
#include <array>

#include "core/run/Entorno.h"
#include "forms/printing/TextosDelDialogo.h"

using namespace Qt::StringLiterals;

namespace {

struct Par {
    QLatin1StringView original;
    QStringView euskera;
};

constexpr std::array kEuskera{
    Par{"&Undo"_L1, u"&Desegin"},
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
    Par{"&No"_L1, u"&Ez"},
    Par{"Look in:"_L1, u"Non:"},
    Par{"Back"_L1, u"Atzera"},
    Par{"Go back"_L1, u"Joan atzera"},
    Par{"Forward"_L1, u"Aurrera"},
    Par{"Go forward"_L1, u"Joan aurrera"},
    Par{"Parent Directory"_L1, u"Goiko karpeta"},
    Par{"Go to the parent directory"_L1, u"Joan goiko karpetara"},
    Par{"Create New Folder"_L1, u"Sortu karpeta berria"},
    Par{"Create a New Folder"_L1, u"Sortu karpeta berria"},
    Par{"List View"_L1, u"Zerrenda"},
    Par{"Change to list view mode"_L1, u"Erakutsi zerrenda gisa"},
    Par{"Detail View"_L1, u"Xehetasunak"},
    Par{"Change to detail view mode"_L1, u"Erakutsi xehetasunekin"},
    Par{"Sidebar"_L1, u"Alboko barra"},
    Par{"List of places and bookmarks"_L1, u"Lekuen eta laster-marken zerrenda"},
    Par{"Files"_L1, u"Fitxategiak"},
    Par{"Files of type:"_L1, u"Fitxategi-mota:"},
    Par{"File &name:"_L1, u"Fitxategiaren &izena:"},
    Par{"Directory:"_L1, u"Karpeta:"},
    Par{"&Open"_L1, u"&Ireki"},
    Par{"Open"_L1, u"Ireki"},
    Par{"&Save"_L1, u"&Gorde"},
    Par{"Save"_L1, u"Gorde"},
    Par{"&Choose"_L1, u"&Hautatu"},
    Par{"&Rename"_L1, u"&Aldatu izena"},
    Par{"&Delete"_L1, u"&Ezabatu"},
    Par{"Show &hidden files"_L1, u"Erakutsi &ezkutuko fitxategiak"},
    Par{"&New Folder"_L1, u"&Karpeta berria"},
    Par{"New Folder"_L1, u"Karpeta berria"},
    Par{"Show "_L1, u"Erakutsi "},
    Par{"Recent Places"_L1, u"Azken lekuak"},
    Par{"Remove"_L1, u"Kendu"},
    Par{"Computer"_L1, u"Ordenagailua"},
    Par{"Drive"_L1, u"Unitatea"},
    Par{"Folder"_L1, u"Karpeta"},
    Par{"Name"_L1, u"Izena"},
    Par{"Size"_L1, u"Tamaina"},
    Par{"Type"_L1, u"Mota"},
    Par{"Date Modified"_L1, u"Aldatze-data"},
    Par{"%1\nFile not found.\nPlease verify the correct file name was given."_L1,
        u"%1\nEz da fitxategia aurkitu.\nEgiaztatu fitxategiaren izena zuzena dela."},
    Par{"%1\nDirectory not found.\nPlease verify the correct directory name was given."_L1,
        u"%1\nEz da karpeta aurkitu.\nEgiaztatu karpetaren izena zuzena dela."},
    Par{"'%1' is write protected.\nDo you want to delete it anyway?"_L1,
        u"'%1' idazketatik babestuta dago.\nHala ere ezabatu nahi duzu?"},
    Par{"Are you sure you want to delete '%1'?"_L1, u"Ziur zaude '%1' ezabatu nahi duzula?"},
    Par{"Could not delete directory."_L1, u"Ezin izan da karpeta ezabatu."}};

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
