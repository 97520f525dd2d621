#include "forms/printing/TextosDelDialogo.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

struct Par {
    QLatin1StringView original;
    QStringView texto;
};

constexpr std::array kEuskera{
    // The dialog and its printer.
    Par{"Print"_L1, u"Inprimatu"}, Par{"&Print"_L1, u"&Inprimatu"}, Par{"&Options >>"_L1, u"&Aukerak >>"},
    Par{"&Options <<"_L1, u"&Aukerak <<"}, Par{"Printer"_L1, u"Inprimagailua"}, Par{"&Name:"_L1, u"&Izena:"},
    Par{"P&roperties"_L1, u"P&ropietateak"}, Par{"Location:"_L1, u"Kokapena:"}, Par{"Type:"_L1, u"Mota:"},
    Par{"Preview"_L1, u"Aurrebista"}, Par{"Output &file:"_L1, u"Irteerako &fitxategia:"},
    Par{"Print to File (PDF)"_L1, u"Inprimatu fitxategian (PDF)"},
    Par{"Print To File ..."_L1, u"Inprimatu fitxategian..."}, Par{"Local file"_L1, u"Fitxategi lokala"},
    Par{"Write PDF file"_L1, u"Idatzi PDF fitxategia"},
    Par{"%1 is a directory.\nPlease choose a different file name."_L1,
        u"%1 karpeta bat da.\nAukeratu beste fitxategi-izen bat."},
    Par{"File %1 is not writable.\nPlease choose a different file name."_L1,
        u"%1 fitxategia ezin da idatzi.\nAukeratu beste fitxategi-izen bat."},
    Par{"%1 already exists.\nDo you want to overwrite it?"_L1,
        u"%1 badago lehendik.\nGainean idatzi nahi duzu?"},
    // Copies, colour and sides.
    Par{"Copies"_L1, u"Kopiak"}, Par{"Copies:"_L1, u"Kopiak:"}, Par{"Options"_L1, u"Aukerak"},
    Par{"Output Settings"_L1, u"Irteeraren ezarpenak"}, Par{"Print range"_L1, u"Inprimatzeko tartea"},
    Par{"Print all"_L1, u"Inprimatu dena"}, Par{"Pages from"_L1, u"Orriak, hemendik:"},
    Par{"to"_L1, u"hona:"}, Par{"Current Page"_L1, u"Uneko orria"}, Par{"Selection"_L1, u"Hautapena"},
    Par{"Collate"_L1, u"Tartekatu"}, Par{"Reverse"_L1, u"Alderantziz"}, Par{"Color Mode"_L1, u"Kolore modua"},
    Par{"Color"_L1, u"Kolorea"}, Par{"Grayscale"_L1, u"Gris-eskala"},
    Par{"Duplex Printing"_L1, u"Bi aldeetan inprimatzea"}, Par{"None"_L1, u"Bat ere ez"},
    Par{"Long side"_L1, u"Alde luzea"}, Par{"Short side"_L1, u"Alde laburra"},
    Par{"Page Set:"_L1, u"Orri multzoa:"}, Par{"All Pages"_L1, u"Orri guztiak"},
    Par{"Odd Pages"_L1, u"Orri bakoitiak"}, Par{"Even Pages"_L1, u"Orri bikoitiak"},
    Par{"Options 'Pages Per Sheet' and 'Page Set' cannot be used together.\nPlease turn one of those options "
        "off."_L1,
        u"«Orriak orriko» eta «Orri multzoa» ezin dira batera erabili.\nKendu bietako bat."},
    // Paper.
    Par{"Printer Properties"_L1, u"Inprimagailuaren propietateak"}, Par{"Page"_L1, u"Orria"},
    Par{"Advanced"_L1, u"Aurreratua"}, Par{"Pages"_L1, u"Orriak"}, Par{"Paper"_L1, u"Papera"},
    Par{"Page size:"_L1, u"Orriaren tamaina:"}, Par{"Width:"_L1, u"Zabalera:"},
    Par{"Height:"_L1, u"Altuera:"}, Par{"Paper source:"_L1, u"Paperaren jatorria:"},
    Par{"Orientation"_L1, u"Orientazioa"}, Par{"Portrait"_L1, u"Bertikala"},
    Par{"Landscape"_L1, u"Horizontala"}, Par{"Reverse portrait"_L1, u"Bertikala, alderantziz"},
    Par{"Reverse landscape"_L1, u"Horizontala, alderantziz"}, Par{"Margins"_L1, u"Marjinak"},
    Par{"top margin"_L1, u"goiko marjina"}, Par{"bottom margin"_L1, u"beheko marjina"},
    Par{"left margin"_L1, u"ezkerreko marjina"}, Par{"right margin"_L1, u"eskuineko marjina"},
    Par{"Page Layout"_L1, u"Orriaren diseinua"}, Par{"Page order:"_L1, u"Orrien ordena:"},
    Par{"Pages per sheet:"_L1, u"Orriak orriko:"}, Par{"Custom"_L1, u"Pertsonalizatua"},
    Par{"Millimeters (mm)"_L1, u"Milimetroak (mm)"}, Par{"Inches (in)"_L1, u"Hazbeteak (in)"},
    Par{"Points (pt)"_L1, u"Puntuak (pt)"}, Par{"Automatic"_L1, u"Automatikoa"},
    Par{"Left to Right, Top to Bottom"_L1, u"Ezkerretik eskuinera, goitik behera"},
    Par{"Left to Right, Bottom to Top"_L1, u"Ezkerretik eskuinera, behetik gora"},
    Par{"Right to Left, Top to Bottom"_L1, u"Eskuinetik ezkerrera, goitik behera"},
    Par{"Right to Left, Bottom to Top"_L1, u"Eskuinetik ezkerrera, behetik gora"},
    Par{"Top to Bottom, Left to Right"_L1, u"Goitik behera, ezkerretik eskuinera"},
    Par{"Top to Bottom, Right to Left"_L1, u"Goitik behera, eskuinetik ezkerrera"},
    Par{"Bottom to Top, Left to Right"_L1, u"Behetik gora, ezkerretik eskuinera"},
    Par{"Bottom to Top, Right to Left"_L1, u"Behetik gora, eskuinetik ezkerrera"},
    // The job.
    Par{"Job Options"_L1, u"Lanaren aukerak"}, Par{"Job Control"_L1, u"Lanaren kontrola"},
    Par{"Scheduled printing:"_L1, u"Inprimatzeko unea:"}, Par{"Print Immediately"_L1, u"Inprimatu berehala"},
    Par{"Hold Indefinitely"_L1, u"Eduki zain mugarik gabe"}, Par{"Specific Time"_L1, u"Ordu zehatza"},
    Par{"Day (06:00 to 17:59)"_L1, u"Egunez (06:00-17:59)"},
    Par{"Night (18:00 to 05:59)"_L1, u"Gauez (18:00-05:59)"},
    Par{"Second Shift (16:00 to 23:59)"_L1, u"Bigarren txanda (16:00-23:59)"},
    Par{"Third Shift (00:00 to 07:59)"_L1, u"Hirugarren txanda (00:00-07:59)"},
    Par{"Weekend (Saturday to Sunday)"_L1, u"Asteburua (larunbata eta igandea)"},
    Par{"Billing information:"_L1, u"Fakturazio-datuak:"}, Par{"Job priority:"_L1, u"Lanaren lehentasuna:"},
    Par{"Banner Pages"_L1, u"Azal-orriak"}, Par{"Start:"_L1, u"Hasiera:"}, Par{"End:"_L1, u"Amaiera:"},
    Par{"Standard"_L1, u"Estandarra"}, Par{"Unclassified"_L1, u"Sailkatu gabea"},
    Par{"Classified"_L1, u"Sailkatua"}, Par{"Confidential"_L1, u"Isilpekoa"}, Par{"Secret"_L1, u"Sekretua"},
    Par{"Top Secret"_L1, u"Guztiz sekretua"}};

constexpr std::array kCastellano{Par{"Advanced"_L1, u"Avanzado"}, Par{"Pages"_L1, u"Páginas"}};

QStringView Buscar(std::span<const Par> textos, QLatin1StringView original) {
    const auto par = std::ranges::find(textos, original, &Par::original);
    return par == textos.end() ? QStringView() : par->texto;
}

}  // namespace

QStringView TextoDelDialogoEnEuskera(QLatin1StringView original) { return Buscar(kEuskera, original); }

QStringView TextoDelDialogoEnCastellano(QLatin1StringView original) { return Buscar(kCastellano, original); }
