#include "core/printing/ImprimirZT.h"

#include <functional>
#include <utility>

#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "tests/support/EntornoDeImpresion.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Pagina1Esperada.h"

namespace {

/// A recorder that does something each time a document ends.
class ImpresoraConSeguido : public ImpresoraGrabadora {
  public:
    explicit ImpresoraConSeguido(std::function<void()> seguido) : m_seguido(std::move(seguido)) {}
    void TerminarDocumento() override {
        ImpresoraGrabadora::TerminarDocumento();
        m_seguido();
    }

  private:
    std::function<void()> m_seguido;
};

class ImprimirZTTest : public EntornoDeImpresion {
  protected:
    static void Pedir(bool administracion, bool interesado, bool borrador, bool banco) {
        oImprimir().Administracion = administracion;
        oImprimir().Interesado = interesado;
        oImprimir().Borrador = borrador;
        oImprimir().EntBank = banco;
    }

    [[nodiscard]] QStringList Nombres() const {
        QStringList nombres;
        for (const DocumentoGrabado& documento : impresora.documentos) {
            nombres += documento.nombre;
        }
        return nombres;
    }

    /// Whether the first thing on a document is that label, written in a font of that name.
    static bool Etiquetado(const DocumentoGrabado& documento, const QString& letra, const QString& etiqueta) {
        HojaEsperada h;
        EtiquetaEsperada(h, letra, etiqueta);
        return documento.paginas.at(0).first() == h.marcas.first();
    }
};

}  // namespace

TEST_F(ImprimirZTTest, CopiesAreDocumentsInTheOrderAdministrationTaxpayerDraftBank) {
    Pedir(true, true, true, true);
    ImprimirDeclaracion();
    EXPECT_EQ(
        Nombres(),
        (QStringList{u"569_B48000012_2007_2T_administracion"_s, u"569_B48000012_2007_2T_interesado"_s,
                     u"569_B48000012_2007_2T_borrador"_s, u"569_B48000012_2007_2T_entidad-bancaria"_s}));
    for (const DocumentoGrabado& documento : impresora.documentos) {
        EXPECT_TRUE(documento.terminado);
        EXPECT_EQ(documento.paginas.size(), 1U);
    }
}

TEST_F(ImprimirZTTest, EachCopyHasItsLabel) {
    Pedir(true, true, true, true);
    ImprimirDeclaracion();
    const std::vector<DocumentoGrabado>& d = impresora.documentos;
    ASSERT_EQ(d.size(), 4U);
    EXPECT_TRUE(Etiquetado(d.at(0), u"Courier"_s,
                           u"ADMINISTRAZIOARENTZAKO ALEA / EJEMPLAR PARA LA ADMINISTRACION"_s));
    EXPECT_TRUE(Etiquetado(d.at(1), u"Arial"_s, u"AITORTZAILEAREN ALEA / EJEMPLAR PARA EL INTERESADO"_s));
    EXPECT_TRUE(Etiquetado(d.at(2), u"Arial"_s, u"ZIRRIBORROA / BORRADOR"_s));
    EXPECT_TRUE(
        Etiquetado(d.at(3), u"Arial"_s, u"BANKUARENTZAKO ALEA / EJEMPLAR PARA LA ENTIDAD BANCARIA"_s));
}

TEST_F(ImprimirZTTest, AnyCombinationOfCopiesIsPrinted) {
    for (int caso = 0; caso < 16; ++caso) {
        impresora.documentos.clear();
        Pedir((caso & 1) != 0, (caso & 2) != 0, (caso & 4) != 0, (caso & 8) != 0);
        ImprimirDeclaracion();
        QStringList copias;
        for (const auto& [bit, copia] : {std::pair(1, u"administracion"_s), std::pair(2, u"interesado"_s),
                                         std::pair(4, u"borrador"_s), std::pair(8, u"entidad-bancaria"_s)}) {
            if ((caso & bit) != 0) {
                copias += u"569_B48000012_2007_2T_"_s + copia;
            }
        }
        EXPECT_EQ(Nombres(), copias) << caso;
    }
}

TEST_F(ImprimirZTTest, TheDraftDiffersFromTheTaxpayersCopyInItsLabelAlone) {
    GuardarFiguras(1, {100, 200, 24'000'000, 4800});
    Pedir(true, true, true, false);
    ImprimirDeclaracion();
    ASSERT_EQ(impresora.documentos.size(), 3U);
    const QStringList administracion = impresora.documentos.at(0).paginas.at(0).mid(1);
    EXPECT_EQ(impresora.documentos.at(1).paginas.at(0).mid(1), administracion);
    EXPECT_EQ(impresora.documentos.at(2).paginas.at(0).mid(1), administracion);
}

TEST_F(ImprimirZTTest, TheCopiesAreOneBatch) {
    Pedir(true, false, true, true);
    ImprimirDeclaracion();
    EXPECT_EQ(impresora.lotesEmpezados, 1);
    EXPECT_EQ(impresora.lotesTerminados, 1);
    EXPECT_EQ(impresora.lotesAbandonados, 0);
}

TEST_F(ImprimirZTTest, TheDeclarationIsLoadedAnew) {
    oDeclaraciones().TOTCUO(99);
    GuardarTotal(123456);
    const std::vector<QStringList> paginas = Imprimir();
    EXPECT_TRUE(paginas.at(0).contains(HojaEsperada().Datos(8).R(187, 122, u"1.234,56"_s).marcas.at(0)));
}

TEST_F(ImprimirZTTest, ItIsLoadedOnceABatch) {
    GuardarTotal(123456);
    Pedir(true, true, false, false);
    ImpresoraConSeguido otra([this] { GuardarTotal(100); });
    FijarImpresora(&otra);
    ImprimirDeclaracion();
    ASSERT_EQ(otra.documentos.size(), 2U);
    for (const DocumentoGrabado& documento : otra.documentos) {
        EXPECT_TRUE(documento.paginas.at(0).contains(
            HojaEsperada().Datos(8).R(187, 122, u"1.234,56"_s).marcas.at(0)));
    }
}

TEST_F(ImprimirZTTest, TheEstablishmentsAreLoadedAnewForEachCopy) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 100, 0);
    Pedir(true, true, false, false);
    ImpresoraConSeguido otra([this] { GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 1, 100, 0); });
    FijarImpresora(&otra);
    ImprimirDeclaracion();
    ASSERT_EQ(otra.documentos.size(), 2U);
    EXPECT_EQ(otra.documentos.at(0).paginas.size(), 1U);
    EXPECT_EQ(otra.documentos.at(1).paginas.size(), 2U);
}

TEST_F(ImprimirZTTest, TheDeclarantIsTheAuthorOfEachDocument) {
    Pedir(true, true, false, false);
    ImprimirDeclaracion();
    for (const DocumentoGrabado& documento : impresora.documentos) {
        EXPECT_EQ(documento.autor, u"GASOLINERAS DE PRUEBA SL"_s);
    }
}

TEST_F(ImprimirZTTest, AnEmptyNifIsLeftOutOfTheNameOfTheDocument) {
    oDeclarante().NIF.clear();
    oImprimir().Ejercicio = 2012;
    oImprimir().Periodo = 4;
    EXPECT_EQ(impreso::NombreDeEjemplar(impreso::TipoDeEjemplar::Borrador), u"569_2012_4T_borrador"_s);
}

TEST_F(ImprimirZTTest, NothingIsWrittenToTheStore) {
    GuardarLineas(30);
    GuardarFiguras(1, {100, 200, 24'000'000, 4800});
    Pedir(true, true, true, true);
    const QByteArray antes = LeerFichero(Entorno().mdbmod);
    ASSERT_FALSE(antes.isEmpty());
    ImprimirDeclaracion();
    EXPECT_EQ(LeerFichero(Entorno().mdbmod), antes);
    CerrarAlmacenes();
    EXPECT_EQ(LeerFichero(Entorno().mdbmod), antes);
}

TEST_F(ImprimirZTTest, AFailureOfTheDevicePassesAsItIsWhereverItComes) {
    GuardarLineas(7);
    GuardarFiguras(1, {100, 200, 24'000'000, 4800});
    Pedir(true, false, false, false);
    ImprimirDeclaracion();
    const int operaciones = impresora.operaciones;
    ASSERT_EQ(impresora.documentos.at(0).paginas.size(), 2U);
    // The first one begins the batch: where that fails there is none to give up.
    for (int n = 1; n < operaciones; ++n) {
        impresora.documentos.clear();
        impresora.lotesAbandonados = 0;
        impresora.operaciones = 0;
        impresora.fallaTras = n;
        EXPECT_EQ(DescripcionDelError([] { ImprimirDeclaracion(); }), u"No hay papel"_s) << n;
        EXPECT_EQ(impresora.lotesAbandonados, 1) << n;
    }
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(ImprimirZTTest, ABatchThatDoesNotBeginPrintsNothing) {
    Pedir(true, false, false, false);
    impresora.fallaTras = 0;
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 482);
    EXPECT_TRUE(impresora.documentos.empty());
}

TEST_F(ImprimirZTTest, WithoutADeviceThereIsAPrinterError) {
    FijarImpresora(nullptr);
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 482);
}

TEST_F(ImprimirZTTest, AFailureInALaterCopyLeavesTheEarlierOnesPrinted) {
    Pedir(true, false, false, false);
    ImprimirDeclaracion();
    const int deUnEjemplar = impresora.operaciones;
    Pedir(true, true, false, false);
    impresora.documentos.clear();
    impresora.operaciones = 0;
    impresora.fallaTras = deUnEjemplar + 10;
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 482);
    ASSERT_EQ(impresora.documentos.size(), 2U);
    EXPECT_TRUE(impresora.documentos.at(0).terminado);
    EXPECT_FALSE(impresora.documentos.at(1).terminado);
    EXPECT_EQ(impresora.lotesTerminados, 1);
    EXPECT_EQ(impresora.lotesAbandonados, 1);
}

TEST_F(ImprimirZTTest, AFailureOfTheUsersStorePassesAsTheServerRaisesIt) {
    Pedir(true, false, false, false);
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    svrZELT::cZTDeclaraciones servidor;
    servidor.mdbmod = Entorno().mdbmod;
    const QString causa = DescripcionDelError([&] { (void)servidor.CargarDeclaracion(1); });
    ASSERT_FALSE(causa.isEmpty());
    // The record is a procedure with a name of its own; drawing adds none.
    EXPECT_EQ(DescripcionDelError([] { ImprimirDeclaracion(); }),
              u"cZTDeclaraciones.CargarDeclaracion\r\n"_s + causa);
    EXPECT_TRUE(impresora.documentos.empty());
    EXPECT_EQ(impresora.lotesAbandonados, 1);
}

TEST_F(ImprimirZTTest, AFailureOfTheReferenceStoreLeavesTheDocumentUnfinished) {
    Pedir(true, false, false, false);
    const QString ruta = Entorno().mdbPath + u"NoExiste.mdb"_s;
    Entorno().mdblec = ruta;
    EXPECT_EQ(NumeroDelError([] { ImprimirDeclaracion(); }), 3024);
    ASSERT_EQ(impresora.documentos.size(), 1U);
    EXPECT_FALSE(impresora.documentos.at(0).terminado);
    EXPECT_EQ(impresora.lotesAbandonados, 1);
}

TEST_F(ImprimirZTTest, ADeclarationThatAnotherProgramHasDeletedIsNotPrintedAndTheUserIsTold) {
    Pedir(true, false, false, false);
    ServidorDeUsuario<svrZELT::cZTDeclaraciones>().EliminarDeclaraciones(oDeclaraciones().CSDC);
    ImprimirDeclaracion();
    EXPECT_TRUE(impresora.documentos.empty());
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoPropio(u"cambio_sin_declaracion"));
}

TEST_F(ImprimirZTTest, ADeclarationWhoseKeyAnotherOneNowBearsIsNotPrinted) {
    Pedir(true, false, false, false);
    Usuario()->Base().exec("UPDATE T07_DECLARACIONES SET T07_PERIODO = 3");
    ImprimirDeclaracion();
    EXPECT_TRUE(impresora.documentos.empty());
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
}
