// The real return on real paper: what `ImprimirDeclaracion` draws, read back out of the PDFs.

#include <QRegularExpression>

#include "tests/support/ImpresoraDeMedidas.h"
#include "tests/support/LectorDePdf.h"
#include "tests/support/PruebaDePdf.h"

using namespace Qt::StringLiterals;

namespace {

/// What a position may be off, in millimetres.
constexpr double kHolguraDeTexto = 0.3;
constexpr double kHolguraDeTrazo = 0.1;

/// A pixel of the pictures, in millimetres.
constexpr double kPixel = 25.4 / 96;

const QString kAdministracion = QStringLiteral("569_B48000012_2007_2T_administracion.pdf");

double Distancia(QPointF a, QPointF b) { return std::max(std::abs(a.x() - b.x()), std::abs(a.y() - b.y())); }

bool Coinciden(const QLineF& a, const QLineF& b) {
    return Distancia(a.p1(), b.p1()) <= kHolguraDeTrazo && Distancia(a.p2(), b.p2()) <= kHolguraDeTrazo;
}

bool TieneTrazo(const PaginaDePdf& pagina, const QLineF& trazo) {
    return std::ranges::any_of(pagina.trazos, [&](const QLineF& otro) {
        return Coinciden(otro, trazo) || Coinciden(QLineF(otro.p2(), otro.p1()), trazo);
    });
}

bool TieneMarco(const PaginaDePdf& pagina, const QRectF& marco) {
    return TieneTrazo(pagina, {marco.topLeft(), marco.topRight()}) &&
           TieneTrazo(pagina, {marco.topRight(), marco.bottomRight()}) &&
           TieneTrazo(pagina, {marco.bottomRight(), marco.bottomLeft()}) &&
           TieneTrazo(pagina, {marco.bottomLeft(), marco.topLeft()});
}

/// The word of that text whose box begins there, or nullptr.
const PalabraDePdf* Palabra(const PaginaDePdf& pagina, const QString& texto, QPointF lugar) {
    const auto palabra = std::ranges::find_if(pagina.palabras, [&](const PalabraDePdf& p) {
        return p.texto == texto && Distancia(p.caja.topLeft(), lugar) <= kHolguraDeTexto;
    });
    return palabra == pagina.palabras.end() ? nullptr : &*palabra;
}

/// Every word of a text stands in its place, the last one ends with it, and it is as high as its font.
void ComprobarLugar(const PaginaDePdf& pagina, const TextoMedido& texto, ImpresoraDeMedidas& medidas) {
    medidas.FijarTamanoDeLetra(texto.puntos);
    medidas.FijarNegrita(texto.negrita);
    qsizetype desde = 0;
    const PalabraDePdf* ultima = nullptr;
    for (const QString& palabra : texto.texto.split(u' ', Qt::SkipEmptyParts)) {
        desde = texto.texto.indexOf(palabra, desde);
        const double antes = medidas.AnchoDeTexto(texto.texto.left(desde));
        ultima = Palabra(pagina, palabra, texto.caja.topLeft() + QPointF(antes, 0));
        ASSERT_NE(ultima, nullptr) << palabra.toStdString() << " of \"" << texto.texto.toStdString()
                                   << "\" at " << texto.caja.x() << ", " << texto.caja.y();
        EXPECT_NEAR(ultima->caja.height(), texto.caja.height(), 0.05) << palabra.toStdString();
        desde += palabra.size();
    }
    if (ultima != nullptr && !texto.texto.endsWith(u' ')) {
        EXPECT_NEAR(ultima->caja.right(), texto.caja.right(), kHolguraDeTexto) << texto.texto.toStdString();
    }
}

/// It is in the font of its size and weight.
void ComprobarLetra(const PaginaDePdf& pagina, const TextoMedido& texto) {
    EXPECT_TRUE(std::ranges::any_of(pagina.tramos,
                                    [&](const TramoDePdf& tramo) {
                                        return tramo.texto.contains(texto.texto.trimmed()) &&
                                               tramo.negrita == texto.negrita &&
                                               std::abs(tramo.puntos - texto.puntos) < 0.01 &&
                                               tramo.fuente.contains(u"LiberationSans") &&
                                               tramo.linea.adjusted(-1, -1, 1, 1).contains(texto.caja);
                                    }))
        << texto.texto.toStdString() << " in " << texto.puntos << (texto.negrita ? " bold" : " regular");
}

void ComprobarPagina(const PaginaDePdf& pagina, const PaginaMedida& medida) {
    ImpresoraDeMedidas medidas;
    for (const TextoMedido& texto : medida.textos) {
        ComprobarLugar(pagina, texto, medidas);
        if (!texto.texto.trimmed().isEmpty()) {
            ComprobarLetra(pagina, texto);
        }
    }
    for (const QLineF& raya : medida.rayas) {
        EXPECT_TRUE(TieneTrazo(pagina, raya)) << raya.x1() << ", " << raya.y1();
    }
    for (const QRectF& marco : medida.marcos) {
        EXPECT_TRUE(TieneMarco(pagina, marco)) << marco.x() << ", " << marco.y();
    }
}

/// A declaration with figures of three products.
class ImpresoEnPdfTest : public PruebaDePdf {
  protected:
    void SetUp() override {
        PruebaDePdf::SetUp();
        GuardarFiguras(1, {.SUMEX = 1'250'00, .BASIM = 10'000'50, .TIPIM = 24e6, .CUOTA = 240'012'00});
        GuardarFiguras(3, {.SUMEX = 0, .BASIM = 99'999'999'99, .TIPIM = 6e6, .CUOTA = 599'999'999'94});
        GuardarFiguras(6, {.SUMEX = 33, .BASIM = 0, .TIPIM = 6e6, .CUOTA = 0});
        GuardarTotal(840'011'99);
    }

    /// What the drawing puts on paper now.
    static std::vector<DocumentoMedido> Medir() {
        DispositivoImpresion& puesta = Impresora();
        ImpresoraDeMedidas medidas;
        FijarImpresora(&medidas);
        ImprimirDeclaracion();
        FijarImpresora(&puesta);
        return medidas.documentos;
    }

    void ComprobarDocumento(const DocumentoMedido& documento) const {
        const std::vector<PaginaDePdf> paginas = LeerPdf(Ruta(documento.nombre + u".pdf"_s));
        ASSERT_EQ(paginas.size(), documento.paginas.size());
        for (std::size_t i = 0; i < paginas.size(); ++i) {
            SCOPED_TRACE("page " + std::to_string(i + 1));
            ComprobarPagina(paginas[i], documento.paginas[i]);
        }
    }

    /// All texts of a file with their places, as poppler reads them.
    [[nodiscard]] QStringList Palabras(const QString& fichero) const {
        QStringList palabras;
        for (const PaginaDePdf& pagina : LeerPdf(Ruta(fichero))) {
            for (const PalabraDePdf& p : pagina.palabras) {
                palabras += u"%1 %2 %3"_s.arg(p.texto).arg(p.caja.x(), 0, 'f', 2).arg(p.caja.y(), 0, 'f', 2);
            }
        }
        return palabras;
    }
};

/// Length of a text in the letters of the forms, whose size is 1.
double AnchoDeEm(const QString& texto) {
    constexpr double kPuntos = 100;
    ImpresoraDeMedidas medidas;
    medidas.FijarTamanoDeLetra(kPuntos);
    return medidas.AnchoDeTexto(texto) / (kPuntos * kPixel * 96 / 72);
}

/// What surrounds the words of a text within a box, each of them reading upward and there once.
QRectF PalabrasHaciaArriba(const PaginaDePdf& pagina, const QString& texto, const QRectF& caja) {
    QRectF todas;
    for (const QString& palabra : texto.split(u' ')) {
        int veces = 0;
        for (const PalabraDePdf& p : pagina.palabras) {
            // Two letters set upward need not be higher than they are wide.
            const bool haciaArriba = palabra.size() < 3 || p.caja.height() > p.caja.width();
            if (p.texto == palabra && haciaArriba && caja.contains(p.caja)) {
                todas |= p.caja;
                ++veces;
            }
        }
        EXPECT_EQ(veces, 1) << palabra.toStdString();
    }
    return todas;
}

/// The words of `de` that `en` lacks, each as often as it does.
QStringList Faltan(QStringList de, const QStringList& en) {
    for (const QString& palabra : en) {
        de.removeOne(palabra);
    }
    return de;
}

/// Words without their places, in alphabetical order.
QStringList SinLugares(QStringList palabras) {
    for (QString& palabra : palabras) {
        palabra = palabra.section(u' ', 0, 0);
    }
    palabras.sort();
    return palabras;
}

class ImpresoPorResolucionTest : public ImpresoEnPdfTest, public testing::WithParamInterface<int> {};

}  // namespace

TEST_P(ImpresoPorResolucionTest, EveryTextLineAndBoxStandsInItsPlace) {
    GuardarLineas(8);
    PedirEjemplares(true, false, false, true);
    oDeclaraciones().CargarDeclaracion();
    dispositivo.EmpezarLote();
    oDestinoDeImpresion().Impresora().setResolution(GetParam());
    impreso::ImprimirEjemplar(impreso::TipoDeEjemplar::Administracion);
    impreso::ImprimirEjemplar(impreso::TipoDeEjemplar::Banco);
    dispositivo.TerminarLote();
    const std::vector<DocumentoMedido> documentos = Medir();
    ASSERT_EQ(documentos.size(), 2U);
    EXPECT_EQ(documentos[0].paginas.size(), 2U);
    for (const DocumentoMedido& documento : documentos) {
        SCOPED_TRACE(documento.nombre.toStdString());
        ComprobarDocumento(documento);
    }
}

INSTANTIATE_TEST_SUITE_P(Resoluciones, ImpresoPorResolucionTest, testing::Values(300, 600, 1200),
                         testing::PrintToStringParamName());

TEST_F(ImpresoEnPdfTest, ThereAreAsManyFilesAsCopiesEachOfItsName) {
    PedirEjemplares(true, true, true, true);
    ImprimirDeclaracion();
    EXPECT_EQ(Ficheros(), (QStringList{kAdministracion, u"569_B48000012_2007_2T_borrador.pdf"_s,
                                       u"569_B48000012_2007_2T_entidad-bancaria.pdf"_s,
                                       u"569_B48000012_2007_2T_interesado.pdf"_s}));
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    ImprimirDeclaracion();
    EXPECT_EQ(Ficheros().size(), 8);
    EXPECT_TRUE(Ficheros().contains(u"569_B48000012_2007_2T_borrador (2).pdf"));
}

TEST_F(ImpresoEnPdfTest, TheFileTellsItsTitleItsAuthorItsCreatorAndItsPaper) {
    oDeclarante().Nombre = u"GASOLINERAS \"DE (PRUEBA)\\ ÑANDÚ SL"_s;
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    const QString ruta = Ruta(kAdministracion);
    EXPECT_EQ(DatoDePdf(ruta, u"Title"_s), u"569_B48000012_2007_2T_administracion"_s);
    EXPECT_EQ(DatoDePdf(ruta, u"Author"_s), u"GASOLINERAS \"DE (PRUEBA)\\ ÑANDÚ SL"_s);
    EXPECT_EQ(DatoDePdf(ruta, u"Creator"_s), u"ZELT"_s);
    EXPECT_FALSE(DatoDePdf(ruta, u"Producer"_s).isEmpty());
    EXPECT_FALSE(DatoDePdf(ruta, u"CreationDate"_s).isEmpty());
    EXPECT_EQ(DatoDePdf(ruta, u"Page size"_s), u"595 x 842 pts (A4)"_s);
    EXPECT_EQ(DatoDePdf(ruta, u"Pages"_s), u"1"_s);
}

TEST_F(ImpresoEnPdfTest, ItsFontsAreEmbeddedAndItsTextCanBeSelected) {
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    const QStringList fuentes = FuentesDePdf(Ruta(kAdministracion));
    EXPECT_EQ(fuentes.size(), 2);
    for (const QString& fuente : fuentes) {
        EXPECT_TRUE(fuente.startsWith(u"LiberationSans") || fuente.contains(u"+LiberationSans"));
        // Embedded, and with the characters of its glyphs.
        static const QRegularExpression si(u"Identity-H +yes +(yes|no) +yes"_s);
        EXPECT_TRUE(si.match(fuente).hasMatch()) << fuente.toStdString();
    }
    EXPECT_TRUE(Palabras(kAdministracion).join(u' ').contains(u"Identificación"));
}

TEST_F(ImpresoEnPdfTest, ThePicturesAreDrawnWithLinesAndLetters) {
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    EXPECT_TRUE(ImagenesDePdf(Ruta(kAdministracion)).isEmpty());
}

TEST_F(ImpresoEnPdfTest, TheEmblemHasItsNaturalSizeAtItsPlace) {
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    const QRectF casilla(10.5, 14.5, 50 * kPixel, 63 * kPixel);
    const PaginaDePdf pagina = LeerPdf(Ruta(kAdministracion)).front();
    QRectF trazado;
    for (const QLineF& trazo : pagina.trazos) {
        if (casilla.contains(trazo.p1()) && casilla.contains(trazo.p2())) {
            trazado |= QRectF(trazo.p1(), trazo.p2()).normalized();
        }
    }
    // The drawing is 100 by 126, two to a pixel. Its straight lines reach from the left edge of the shield
    // and the tip of the crown to the right edge of the shield and the water's line.
    const QPointF comienzo = casilla.topLeft() + QPointF(17, 5.5) * kPixel / 2;
    const QPointF fin = casilla.topLeft() + QPointF(83, 84) * kPixel / 2;
    EXPECT_LE(Distancia(trazado.topLeft(), comienzo), kHolguraDeTrazo);
    EXPECT_LE(Distancia(trazado.bottomRight(), fin), kHolguraDeTrazo);
}

TEST_F(ImpresoEnPdfTest, TheVerticalTextsReadUpwardInTheirNaturalSizeAtTheirPlaces) {
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    const PaginaDePdf pagina = LeerPdf(Ruta(kAdministracion)).front();
    const QRectF declarante(10.5, 52, 30 * kPixel, 82 * kPixel);
    const QRectF justificante(12, 196, 49 * kPixel, 142 * kPixel);
    // A third of the width of the picture is the size of the letters, unless the longer line would then take
    // more than 97 parts of a hundred of its length.
    const double letra = 10 * kPixel;
    const double justa = 0.97 * justificante.height() / AnchoDeEm(u"Justificante de ingreso"_s);
    for (const auto& [texto, caja, tamano] :
         {std::tuple{u"Identifikazioa"_s, declarante, letra},
          std::tuple{u"Identificación"_s, declarante, letra},
          std::tuple{u"Ordainagiria"_s, justificante, justa},
          std::tuple{u"Justificante de ingreso"_s, justificante, justa}}) {
        const QRectF palabras = PalabrasHaciaArriba(pagina, texto, caja);
        EXPECT_NEAR(palabras.height(), AnchoDeEm(texto) * tamano, 0.3) << texto.toStdString();
        EXPECT_NEAR(palabras.center().y(), caja.center().y(), 0.3) << texto.toStdString();
        const bool primera = texto.startsWith(u"Identifik") || texto.startsWith(u"Orda");
        EXPECT_EQ(palabras.center().x() < caja.center().x(), primera) << texto.toStdString();
    }
}

TEST_F(ImpresoEnPdfTest, TheLanguageOfTheScreenChangesThePeriodsNameAndNothingElse) {
    GuardarLineas(8);
    // A province whose names differ.
    oDeclarante().Provin = 1;
    PedirEjemplares(true, false, false, false);
    ImprimirDeclaracion();
    const QStringList castellano = Palabras(kAdministracion);
    QFile::remove(Ruta(kAdministracion));
    // The date is typed in the form of the language.
    oFecha().IDI(u"E"_s);
    oImprimir().FechaPresentacion = u"2007/01/15"_s;
    ImprimirDeclaracion();
    const QStringList euskera = Palabras(kAdministracion);
    // What is struck twice is read as once.
    EXPECT_EQ(SinLugares(Faltan(castellano, euskera)), (QStringList{u"2º"_s, u"Trimestre"_s}));
    EXPECT_EQ(SinLugares(Faltan(euskera, castellano)), (QStringList{u"2."_s, u"hiruhilekoa"_s}));
}

TEST_F(ImpresoEnPdfTest, AFaultLeavesNoHalfDocumentAndTheStoreAsItWas) {
    PedirEjemplares(true, true, false, false);
    const QByteArray almacen = LeerFichero(Entorno().mdbmod);
    EscribirFichero(Documentos(), "no folder");
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 76);
    QFile::remove(Documentos());
    EXPECT_TRUE(Ficheros().isEmpty());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(LeerFichero(Entorno().mdbmod), almacen);
}

TEST_F(ImpresoEnPdfTest, AReturnThatCannotBeReadToItsEndIsNotPrinted) {
    PedirEjemplares(true, false, false, false);
    // The reference store, which names the province, is lost on the way.
    Entorno().mdblec = carpeta.filePath(u"NoExiste.mdb"_s);
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 3024);
    EXPECT_TRUE(Ficheros().isEmpty());
}
