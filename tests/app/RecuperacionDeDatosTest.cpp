#include "app/RecuperacionDeDatos.h"

#include <QFile>
#include <QLineEdit>

#include "core/records/Productos.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/Recuperacion.h"
#include "core/run/Textos.h"
#include "forms/declarants/frmZTDeclarante.h"
#include "forms/establishments/frmZTEstablecimiento.h"
#include "forms/runtime/Eventos.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/PruebaDeAnexos.h"

using namespace Qt::StringLiterals;

namespace {

class RecuperacionDeDatosTest : public PruebaDeAnexos {
  protected:
    void AbrirDeclaranteExistente() {
        oDeclarante().Modo = cZTDeclarante::kModoExistente;
        oDeclarante().InicializaDatos();
        oDeclarante().Procedencia = cZTDeclarante::kDesdeListaDeclaraciones;
        Abrir(frmZTDeclarante::kNombre);
    }
    /// A failure that nobody traps; the program that comes after it knows nothing of this one.
    void Fallar() {
        ErrorSinTrampa(ErrorZT(NumError::Subindice));
        ASSERT_EQ(terminado, 1);
        ASSERT_EQ(pantalla.plataforma.size(), 1U);
        EXPECT_EQ(pantalla.plataforma.front(), MensajeDePlataforma(ErrorZT(NumError::Subindice)));
        Formularios::Reiniciar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ReiniciarInstancias();
        oActOnline().ActOnline = 0;
        pantalla.mensajes.clear();
    }
    /// Starts the program again, up to the offer.
    void Empezar() {
        Formularios::Mostrar(MDIZT::kNombre);
        marco = &ElFormulario<MDIZT>();
        marco->resize(1100, 850);
        ASSERT_TRUE(QTest::qWaitForWindowActive(marco));
    }
    /// One question has come up, and the file is gone, whatever the answer was.
    void EsperarUnaPregunta() const {
        EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
        ASSERT_EQ(pantalla.mensajes.size(), 1U);
        EXPECT_FALSE(pantalla.mensajes.front().unBoton);
        EXPECT_TRUE(pantalla.mensajes.front().texto.startsWith(TextoPropio(u"recuperar_pregunta")));
    }
};

}  // namespace

TEST_F(RecuperacionDeDatosTest, NothingIsKeptWhenNothingWasTyped) {
    AbrirDeclaranteExistente();
    Fallar();
    EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
    Empezar();
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(RecuperacionDeDatosTest, WhatWasTypedOfADeclarantComesBackMarkedAsChangedAndNotStored) {
    const qint32 csde = oDeclarante().CSDE;
    AbrirDeclaranteExistente();
    Escribir(u"txtNombre"_s, u"OTRO NOMBRE"_s);
    Fallar();
    Empezar();
    EsperarUnaPregunta();
    Pasar(frmZTDeclarante::kNombre);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"OTRO NOMBRE"_s);
    EXPECT_EQ(TextoDe(u"txtNIF"_s), u"12345678Z"_s);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().CSDE, csde);
    cZTDeclarante almacenado;
    almacenado.CargarDeclarante(csde);
    EXPECT_EQ(almacenado.Nombre, u"GASOLINERA & HIJOS"_s);
}

TEST_F(RecuperacionDeDatosTest, ANewDeclarantComesBackAsANewOne) {
    oDeclarante().Modo = cZTDeclarante::kModoNuevo;
    oDeclarante().InicializaDatos();
    oDeclarante().Procedencia = cZTDeclarante::kDesdeMenu;
    Abrir(frmZTDeclarante::kNombre);
    Escribir(u"txtNombre"_s, u"NUEVO"_s);
    Fallar();
    Empezar();
    Pasar(frmZTDeclarante::kNombre);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"NUEVO"_s);
    EXPECT_EQ(oDeclarante().Modo, cZTDeclarante::kModoNuevo);
}

TEST_F(RecuperacionDeDatosTest, DeclinedItIsGone) {
    AbrirDeclaranteExistente();
    Escribir(u"txtNombre"_s, u"OTRO"_s);
    Fallar();
    pantalla.respuesta = kRespuestaCancelar;
    Empezar();
    EsperarUnaPregunta();
    EXPECT_FALSE(Abierto(frmZTDeclarante::kNombre));
}

TEST_F(RecuperacionDeDatosTest, WhatBelongsToNoRecordOfTheStoreIsShownAsText) {
    GuardarRecuperacion({{.formulario = u"frmZTDeclarante"_s,
                          .CSDE = 999,
                          .NIF = u"12345678Z"_s,
                          .valores = {{u"txtNombre"_s, u"<b>OTRO"_s}, {u"txtLetra"_s, QString()}}}});
    OfrecerRecuperacion();
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    EXPECT_TRUE(pantalla.mensajes[1].unBoton);
    EXPECT_EQ(pantalla.mensajes[1].texto, TextoPropio(u"recuperar_falta") + u"\n\n<b>OTRO"_s);
    EXPECT_FALSE(Abierto(frmZTDeclarante::kNombre));
    EXPECT_EQ(oDeclarante().CSDE, 0);
    EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
}

TEST_F(RecuperacionDeDatosTest, AFileThatIsNoneOfTheProgramsAsksNothingAndGoes) {
    GuardarRecuperacion({{.formulario = u"frmZTImp"_s}});
    OfrecerRecuperacion();
    EscribirFichero(RutaDeRecuperacion(), "[{}]");
    OfrecerRecuperacion();
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
    EXPECT_EQ(LeerFichero(RegistroDeRecuperacion()).count('\n'), 2);
}

TEST_F(RecuperacionDeDatosTest, ABoxOfDigitsTakesNothingElse) {
    GuardarRecuperacion({{.formulario = u"frmZTDeclarante"_s,
                          .valores = {{u"txtNumero"_s, u"x"_s}, {u"txtPiso"_s, QString(50, u'P')}}}});
    OfrecerRecuperacion();
    Pasar(frmZTDeclarante::kNombre);
    EXPECT_EQ(TextoDe(u"txtNumero"_s), QString());
    EXPECT_EQ(TextoDe(u"txtPiso"_s).size(), Control<QLineEdit>(u"txtPiso"_s).maxLength());
}

TEST_F(RecuperacionDeDatosTest, AFailureThatIsSeenToKeepsNothing) {
    AbrirDeclaranteExistente();
    Escribir(u"txtNombre"_s, u"OTRO"_s);
    Entorno().Atender = [](const ErrorZT& /*error*/) { return true; };
    ErrorSinTrampa(ErrorZT(NumError::AlmacenDanado));
    EXPECT_EQ(terminado, -1);
    EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
}

TEST_F(RecuperacionDeDatosTest, WhatFollowsTheFirstFormThatIsOpenedWaits) {
    const auto nuevo = [](const QString& nombre) {
        return DatosSinGuardar{.formulario = u"frmZTDeclarante"_s, .valores = {{u"txtNombre"_s, nombre}}};
    };
    GuardarRecuperacion({nuevo(u"UNO"_s), nuevo(u"DOS"_s)});
    OfrecerRecuperacion();
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(LeerRecuperacion(), std::vector{nuevo(u"DOS"_s)});
}

TEST_F(RecuperacionDeDatosTest, AnEstablishmentComesBack) {
    HacerDeclaracion(2007);
    oEstablecimientos().CSES = cses[0];
    oEstablecimientos().Modo = cZTEstablecimientos::kModoExistente;
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeLista;
    Abrir(frmZTEstablecimiento::kNombre);
    Escribir(u"txtDomicilio"_s, u"OTRA CALLE"_s);
    Fallar();
    Empezar();
    EsperarUnaPregunta();
    Pasar(frmZTEstablecimiento::kNombre);
    EXPECT_EQ(TextoDe(u"txtDomicilio"_s), u"OTRA CALLE"_s);
    EXPECT_EQ(oEstablecimientos().CSES, cses[0]);
    EXPECT_TRUE(oEstablecimientos().Modificado);
}

TEST_F(RecuperacionDeDatosTest, TheFiguresOfAllEstablishmentsComeBackAndTheOneInItsBoxToo) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 2}});
    AbrirAnexos();
    Escribir(BaseImp(1), u"12,34"_s);
    Tecla(Qt::Key_Tab);
    PulsarElemento(u"lsvEstablecimientos"_s, 2);
    Escribir(BaseImp(2), u"0"_s);
    Tecla(Qt::Key_Tab);
    Escribir(Exento(3), u"5,5"_s);
    Fallar();
    Empezar();
    EsperarUnaPregunta();
    Pasar(frmZTDetDeclaracion::kNombre);
    EXPECT_TRUE(oAnexos().Modificado);
    EXPECT_EQ(LineasAlmacenadas(), 2) << "nothing is stored by itself";
    EXPECT_EQ(TextoDe(Exento(3)), u"5,50"_s);
    PulsarElemento(u"lsvEstablecimientos"_s, 1);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"12,34"_s);
    Pulsar(u"cmdGuardarDeclaracion"_s);
    EXPECT_EQ(Almacenadas(), (std::vector<Linea>{{cses[0], 1, 1234.0}, {cses[1], 3, 0.0}}));
}

TEST_F(RecuperacionDeDatosTest, AnnexesOfADeclarationThatIsGoneAreShownAsText) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"12,34"_s);
    Fallar();
    std::vector<DatosSinGuardar> datos = LeerRecuperacion();
    ASSERT_EQ(datos.size(), 1U);
    datos.front().rasgo = u"2006/2"_s;
    QuitarRecuperacion();
    GuardarRecuperacion(datos);
    Empezar();
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    const QString linea = u"\n20ES  1Y. "_s + Texto(TextoDeProducto(1)).trimmed() + u": 0,00; 12,34"_s;
    EXPECT_TRUE(pantalla.mensajes[1].texto.endsWith(linea)) << pantalla.mensajes[1].texto.toStdString();
    EXPECT_FALSE(Abierto(frmZTDetDeclaracion::kNombre));
}

TEST_F(RecuperacionDeDatosTest, ChangedAnnexesThatWaitBehindAnEstablishmentAreKeptToo) {
    HacerDeclaracion(2007);
    AbrirAnexos();
    Escribir(BaseImp(1), u"12,34"_s);
    Tecla(Qt::Key_Tab);
    Pulsar(u"cmdDatos"_s);
    Pasar(frmZTEstablecimiento::kNombre);
    Escribir(u"txtDomicilio"_s, u"OTRA CALLE"_s);
    Fallar();
    Empezar();
    Pasar(frmZTEstablecimiento::kNombre);
    EXPECT_EQ(TextoDe(u"txtDomicilio"_s), u"OTRA CALLE"_s);
    const std::vector<DatosSinGuardar> quedan = LeerRecuperacion();
    ASSERT_EQ(quedan.size(), 1U);
    EXPECT_EQ(quedan.front().lineas,
              (std::vector<LineaSinGuardar>{{.CSES = cses[0], .producto = 1, .exento = 0, .base = 1234}}));
}

TEST_F(RecuperacionDeDatosTest, FiguresThatTheFormRefusesAreShownAsText) {
    HacerDeclaracion(2002);
    AbrirAnexos();
    for (int k = 1; k <= kProductos; ++k) {
        Escribir(BaseImp(k), u"1"_s);
        Tecla(Qt::Key_Tab);
    }
    Fallar();
    Empezar();
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    EXPECT_EQ(pantalla.mensajes[1].texto.count(u": 0,00; 1,00"), kProductos);
    EXPECT_FALSE(Abierto(frmZTDetDeclaracion::kNombre));
    EXPECT_EQ(LineasAlmacenadas(), 0);
}
