#include "forms/declarants/frmZTDeclarante.h"

#include <QClipboard>

#include "core/run/Textos.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/widgets/CajaTexto.h"
#include "tests/support/PruebaDeDeclarante.h"

using namespace Qt::StringLiterals;

namespace {

using frmZTDeclaranteTest = PruebaDeDeclarante;

struct CajaEsperada {
    QString nombre, tag;
    int maximo;
    CajaTexto::FiltroDeCaja filtro;
    QString etiqueta;
};

const std::vector<CajaEsperada>& Cajas() {
    static const std::vector<CajaEsperada> cajas{
        {u"txtNIF"_s, u"NIF"_s, 9, CajaTexto::Caracteres, u"lblNIF"_s},
        {u"txtNombre"_s, u"Nombre"_s, 40, CajaTexto::Caracteres, u"lblNombre"_s},
        {u"txtSiglas"_s, u"Siglas"_s, 2, CajaTexto::Caracteres, u"lblSiglas"_s},
        {u"txtViaPub"_s, u"Domicilio"_s, 20, CajaTexto::Caracteres, u"lblViaPub"_s},
        {u"txtNumero"_s, u"Numero"_s, 5, CajaTexto::Naturales, u"lblNumero"_s},
        {u"txtLetra"_s, u"LETRA"_s, 5, CajaTexto::Caracteres, u"lblLetra"_s},
        {u"txtEscalera"_s, u"Escal"_s, 2, CajaTexto::Caracteres, u"lblEscalera"_s},
        {u"txtPiso"_s, u"Piso"_s, 2, CajaTexto::Caracteres, u"lblPiso"_s},
        {u"txtMano"_s, u"Mano"_s, 3, CajaTexto::Caracteres, u"lblMano"_s},
        {u"txtProvin"_s, u"Provin"_s, 2, CajaTexto::Naturales, u"lblProvin"_s},
        {u"txtCPost"_s, u"CPost"_s, 5, CajaTexto::Naturales, u"lblCPost"_s},
        {u"txtMuni"_s, u"CODMUN"_s, 2, CajaTexto::Naturales, u"lblMuni"_s},
        {u"txtNombreMunicipio"_s, u"Munici"_s, 12, CajaTexto::Caracteres, u"lblMunici"_s},
        {u"txtTelPre"_s, u"TELPRE"_s, 3, CajaTexto::Naturales, u"lblTelNum"_s},
        {u"txtTelNum"_s, u"TELNUM"_s, 7, CajaTexto::Naturales, QString()}};
    return cajas;
}

}  // namespace

TEST_F(frmZTDeclaranteTest, EveryBoxHasItsFieldLengthFilterAndLabel) {
    AbrirNuevo();
    for (const CajaEsperada& esperada : Cajas()) {
        const auto& caja = Control<CajaTexto>(esperada.nombre);
        EXPECT_EQ(caja.Tag(), esperada.tag);
        EXPECT_EQ(caja.maxLength(), esperada.maximo) << esperada.nombre.toStdString();
        EXPECT_EQ(caja.Filtro(), esperada.filtro) << esperada.nombre.toStdString();
        if (!esperada.etiqueta.isEmpty()) {
            EXPECT_EQ(Control<QLabel>(esperada.etiqueta).buddy(), &caja);
        }
    }
    EXPECT_EQ(Control<CajaTexto>(u"txtNombreProv"_s).maxLength(), 16);
    for (const QString& nombre : {u"txtNomVia"_s, u"txtNombreProv"_s}) {
        EXPECT_TRUE(Caja(nombre).isReadOnly());
        EXPECT_EQ(Control<CajaTexto>(nombre).Tag(), QString());
        EXPECT_EQ(Fondo(nombre), kFondoAmarillo);
    }
}

TEST_F(frmZTDeclaranteTest, CaptionsAreInTheLanguageInForce) {
    const std::vector<std::pair<QString, int>> textos{
        {u"lblDatosDte"_s, 74}, {u"lblNIF"_s, 59},    {u"lblNombre"_s, 60},   {u"lblSiglas"_s, 61},
        {u"lblViaPub"_s, 62},   {u"lblNumero"_s, 63}, {u"lblEscalera"_s, 65}, {u"lblPiso"_s, 66},
        {u"lblMano"_s, 67},     {u"lblCPost"_s, 68},  {u"lblProvin"_s, 69},   {u"lblNombreProvincia"_s, 70},
        {u"lblMuni"_s, 71},     {u"lblMunici"_s, 72}, {u"lblTelNum"_s, 73},   {u"cmdAceptar"_s, 28},
        {u"cmdCancelar"_s, 29}};
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirNuevo();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(74 + idioma));
        for (const auto& [control, texto] : textos) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        EXPECT_EQ(TextoDe(u"lblLetra"_s), u"Letra"_s);
        EXPECT_EQ(TextoDe(u"txtNomVia"_s), idioma == 0 ? u"CALLE"_s : u"KALEA"_s);
        Formularios::Descargar(frmZTDeclarante::kNombre.toString());
    }
}

TEST_F(frmZTDeclaranteTest, TabStopsAtTheBoxesInOrderWithThePicturesBehindTheirs) {
    AbrirExistente(Guardar());
    IrA(u"txtNIF"_s);
    QStringList paradas;
    for (int i = 0; i < 19; ++i) {
        paradas += Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(paradas,
              QStringList({u"txtNIF"_s, u"txtNombre"_s, u"txtSiglas"_s, u"picSiglas"_s, u"txtViaPub"_s,
                           u"txtNumero"_s, u"txtLetra"_s, u"txtEscalera"_s, u"txtPiso"_s, u"txtMano"_s,
                           u"txtProvin"_s, u"picProvin"_s, u"txtCPost"_s, u"txtMuni"_s, u"picMuni"_s,
                           u"txtTelPre"_s, u"txtTelNum"_s, u"cmdAceptar"_s, u"cmdCancelar"_s}));
    EXPECT_EQ(Foco(), u"txtNIF"_s);
    EXPECT_EQ(pantalla.punteros.size(), 0U);
}

TEST_F(frmZTDeclaranteTest, OutsideProvince20TabStopsAtTheNameOfTheMunicipalityInsteadOfItsCode) {
    AbrirExistente(Guardar(48, 0));
    IrA(u"txtCPost"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), u"txtNombreMunicipio"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(Foco(), u"txtTelPre"_s);
}

TEST_F(frmZTDeclaranteTest, TheFocusStartsInTheFirstBoxWithItsTextSelected) {
    AbrirExistente(Guardar());
    EXPECT_EQ(Foco(), u"txtNIF"_s);
    EXPECT_EQ(Caja(u"txtNIF"_s).selectedText(), u"12345678Z"_s);
}

TEST_F(frmZTDeclaranteTest, EveryBoxSelectsItsWholeTextWhenItGetsTheFocus) {
    AbrirExistente(Guardar());
    IrA(u"cmdAceptar"_s);
    for (const CajaEsperada& esperada : Cajas()) {
        if (Caja(esperada.nombre).isEnabled()) {
            Pulsar(esperada.nombre);
            EXPECT_EQ(Foco(), esperada.nombre);
            EXPECT_EQ(Caja(esperada.nombre).selectedText(), TextoDe(esperada.nombre));
        }
    }
}

TEST_F(frmZTDeclaranteTest, TheLoadDisablesTheMenusAndTheUnloadEnablesThemForANewDeclarant) {
    ASSERT_TRUE(MenusHabilitados());
    AbrirNuevo();
    EXPECT_FALSE(MenusHabilitados());
    Pulsar(u"cmdCancelar"_s);
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTDeclaranteTest, ANewDeclarantShowsTheUsualWayAndTheOwnProvince) {
    AbrirNuevo();
    EXPECT_EQ(TextoDe(u"txtSiglas"_s), u"CL"_s);
    EXPECT_EQ(TextoDe(u"txtNomVia"_s), u"CALLE"_s);
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"20"_s);
    EXPECT_EQ(TextoDe(u"txtNombreProv"_s), u"ONDARZIA"_s);
    for (const QString& vacia : {u"txtNIF"_s, u"txtNombre"_s, u"txtViaPub"_s, u"txtNumero"_s, u"txtLetra"_s,
                                 u"txtEscalera"_s, u"txtPiso"_s, u"txtMano"_s, u"txtCPost"_s, u"txtMuni"_s,
                                 u"txtNombreMunicipio"_s, u"txtTelPre"_s, u"txtTelNum"_s}) {
        EXPECT_EQ(TextoDe(vacia), QString()) << vacia.toStdString();
    }
    EXPECT_TRUE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_FALSE(Caja(u"txtNombreMunicipio"_s).isEnabled());
}

TEST_F(frmZTDeclaranteTest, AnExistingDeclarantFillsTheBoxes) {
    AbrirExistente(Guardar());
    const std::vector<std::pair<QString, QString>> esperados{{u"txtNIF"_s, u"12345678Z"_s},
                                                             {u"txtNombre"_s, u"GASOLINERA UNO"_s},
                                                             {u"txtSiglas"_s, u"CL"_s},
                                                             {u"txtNomVia"_s, u"CALLE"_s},
                                                             {u"txtViaPub"_s, u"MAYOR"_s},
                                                             {u"txtNumero"_s, u"12"_s},
                                                             {u"txtLetra"_s, u"A"_s},
                                                             {u"txtEscalera"_s, u"IZ"_s},
                                                             {u"txtPiso"_s, u"3"_s},
                                                             {u"txtMano"_s, u"DCH"_s},
                                                             {u"txtProvin"_s, u"20"_s},
                                                             {u"txtNombreProv"_s, u"ONDARZIA"_s},
                                                             {u"txtCPost"_s, u"20001"_s},
                                                             {u"txtMuni"_s, u"01"_s},
                                                             {u"txtNombreMunicipio"_s, u"ABARZELAI"_s},
                                                             {u"txtTelPre"_s, u"943"_s},
                                                             {u"txtTelNum"_s, u"123456"_s}};
    for (const auto& [caja, texto] : esperados) {
        EXPECT_EQ(TextoDe(caja), texto) << caja.toStdString();
    }
}

TEST_F(frmZTDeclaranteTest, CodesShowTheirZerosAndTheNameOfAForeignMunicipalityComesFromTheRecord) {
    AbrirExistente(Guardar(1, 0));
    EXPECT_EQ(TextoDe(u"txtProvin"_s), u"01"_s);
    EXPECT_EQ(TextoDe(u"txtCPost"_s), u"01001"_s);
    EXPECT_EQ(TextoDe(u"txtMuni"_s), QString());
    EXPECT_EQ(TextoDe(u"txtNombreMunicipio"_s), u"ABARZELAI"_s);
    EXPECT_TRUE(Caja(u"txtNombreMunicipio"_s).isEnabled());
    EXPECT_FALSE(Caja(u"txtMuni"_s).isEnabled());
    EXPECT_FALSE(Control(u"picMuni"_s).isEnabled());
}

TEST_F(frmZTDeclaranteTest, KeysReachTheRecordInCapitalsAndRefusedOnesAreDropped) {
    AbrirNuevo();
    Escribir(u"txtNombre"_s, u"añe\"#é1"_s);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"AÑE1"_s);
    EXPECT_EQ(oDeclarante().Nombre, u"AÑE1"_s);
    Escribir(u"txtNumero"_s, u"1a2-3456"_s);
    EXPECT_EQ(TextoDe(u"txtNumero"_s), u"12345"_s);
    EXPECT_EQ(oDeclarante().Numero, 12345);
    EXPECT_TRUE(oDeclarante().Modificado);
}

TEST_F(frmZTDeclaranteTest, PastedTextReachesTheRecordLikeKeys) {
    AbrirNuevo();
    QGuiApplication::clipboard()->setText(u"estación \"norte\""_s);
    IrA(u"txtNombre"_s);
    Caja(u"txtNombre"_s).clear();
    QTest::keyPress(marco->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(oDeclarante().Nombre, u"ESTACIN NORTE"_s);
    EXPECT_TRUE(oDeclarante().Modificado);
}

TEST_F(frmZTDeclaranteTest, AnyKeyReleaseComparesTheBoxesWithTheRecord) {
    AbrirExistente(Guardar());
    oDeclarante().Nombre = u"OTRO"_s;
    QTest::keyPress(marco->windowHandle(), Qt::Key_Shift);
    EXPECT_FALSE(oDeclarante().Modificado);
    QTest::keyRelease(marco->windowHandle(), Qt::Key_Shift);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().Nombre, u"GASOLINERA UNO"_s);
}

TEST_F(frmZTDeclaranteTest, TheMenusAreDisabledBeforeTheListsAreFilled) {
    ASSERT_TRUE(MenusHabilitados());
    Entorno().mdblec = Entorno().mdbPath + u"NoExiste.mdb"_s;
    AbrirNuevo();
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTDeclarante.Form_Load"_s);
    EXPECT_FALSE(MenusHabilitados());
}

TEST_F(frmZTDeclaranteTest, AFailureOfTheCaptionsIsShownUnderTheirNameAndTheBoxesAreFilled) {
    const qint32 csde = Guardar();
    Entorno().OffsetIdioma = kIdiomaSinTextos;
    AbrirExistente(csde);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmZTDeclarante"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmZTDeclarante.AnadirCaptions"_s);
    EXPECT_EQ(TextoDe(u"txtNIF"_s), u"12345678Z"_s);
}
