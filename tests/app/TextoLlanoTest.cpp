// Data that look like markup are shown as they are, on every form.

#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QTextDocumentFragment>

#include "app/MDIZT.h"
#include "core/records/cZTListaDeclarantes.h"
#include "forms/messages/PantallaQt.h"
#include "forms/runtime/DialogosDePlataforma.h"
#include "forms/widgets/AvisoLlano.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/RecorridoDePantallas.h"

using namespace Qt::StringLiterals;

namespace {

const QString kHostil = u"<b>A</b> <img src=x> &amp; &B"_s;

/// What a tool tip shows of its text.
QString Visible(const QString& aviso) {
    return Qt::mightBeRichText(aviso) ? QTextDocumentFragment::fromHtml(aviso).toPlainText() : aviso;
}

/// What a menu shows of its text.
QString SinMarcaDeTecla(QString texto) { return texto.replace(u"&&"_s, u"&"_s); }

class TextoLlanoTest : public RecorridoDePantallas, public testing::WithParamInterface<QString> {
  protected:
    void SetUp() override {
        RecorridoDePantallas::SetUp();
        cZTDeclarante& d = oDeclarante();
        d.NIF = u"<b>1</b>"_s;
        d.Nombre = kHostil;
        d.Munici = kHostil;
        d.Domicilio = kHostil;
        d.Provin = 1;
        d.CSDE = d.GuardarDeclarante();
        cZTEstablecimientos& e = oEstablecimientos();
        e.Domicilio = kHostil;
        e.Munici = kHostil;
        e.GuardaEstablecimiento();
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        CambiarCarpeta();
    }

  private:
    /// The paths of files too are data.
    void CambiarCarpeta() {
        const QString hostil = carpeta.filePath(u"<b>carpeta</b>&amp;"_s);
        ASSERT_TRUE(QDir().mkpath(hostil));
        Entorno().CarpetaPrograma = QDir::toNativeSeparators(hostil);
    }
};

std::string NombreDelCaso(const testing::TestParamInfo<QString>& caso) { return caso.param.toStdString(); }

}  // namespace

TEST_P(TextoLlanoTest, NoLabelTakesItsTextForMarkup) {
    for (const QLabel* etiqueta : Abrir(GetParam()).findChildren<QLabel*>()) {
        if (etiqueta->pixmap().isNull() && !EsDeQt(*etiqueta) && !etiqueta->text().isEmpty()) {
            EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText) << Nombre(*etiqueta);
        }
    }
}

TEST_P(TextoLlanoTest, EveryTipSaysItsTextAsItIs) {
    for (const QWidget* control : Abrir(GetParam()).findChildren<QWidget*>()) {
        const QString aviso = control->toolTip();
        if (Qt::mightBeRichText(aviso)) {
            EXPECT_TRUE(Visible(aviso).contains(u"<b>"_s)) << Nombre(*control) << aviso.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formularios, TextoLlanoTest, testing::ValuesIn(TodosLosFormularios()),
                         NombreDelCaso);

class DatosEnPantallaTest : public TextoLlanoTest {};

TEST_P(DatosEnPantallaTest, TheTipOfThePathShowsThePath) {
    const auto& etiqueta = *Abrir(GetParam()).findChild<QLabel*>(u"lblFichero"_s);
    ASSERT_TRUE(etiqueta.text().contains(u"<b>carpeta</b>&amp;"_s)) << etiqueta.text().toStdString();
    EXPECT_EQ(Visible(etiqueta.toolTip()), etiqueta.text());
}

INSTANTIATE_TEST_SUITE_P(Intercambio, DatosEnPantallaTest,
                         testing::Values(u"frmZTFicheroAExportar"_s, u"frmZTImpDeclarantes"_s),
                         NombreDelCaso);

class MenusYCajasTest : public RecorridoDePantallas {};

TEST_F(MenusYCajasTest, TheMenuOfRecentDeclarantsShowsTheNameAsItIs) {
    oDeclarante().NIF = u"<b>1</b>"_s;
    oDeclarante().Nombre = kHostil;
    ASSERT_GT(oDeclarante().GuardarDeclarante(), 0);
    const QWidget& marco = Abrir(MDIZT::kNombre.toString());
    EXPECT_EQ(SinMarcaDeTecla(marco.findChild<QAction*>(u"d1"_s)->text()), u"<b>1</b> - "_s + kHostil);
}

TEST_F(MenusYCajasTest, BoxesOfThePlatformShowTheTextAsItIs) {
    const auto mirar = [](QMessageBox& caja) {
        EXPECT_TRUE(caja.text().startsWith(kHostil));
        EXPECT_EQ(caja.textFormat(), Qt::PlainText);
        caja.accept();
    };
    PantallaQt real;
    {
        const AlDialogo<QMessageBox> espera(mirar);
        real.MensajePlataforma(kHostil, true);
    }
    {
        const AlDialogo<QMessageBox> espera(mirar);
        real.MensajePlataformaConCausa(kHostil, kHostil);
    }
    QWidget ventana;
    const AlDialogo<QMessageBox> espera(mirar);
    MensajeDeExclamacion(ventana, kHostil, kHostil);
}

TEST(AvisoLlanoTest, WhatDoesNotLookLikeMarkupStaysAsItIs) {
    for (const QString& texto : {u"/home/ana/Declaran.txt"_s, u"A & B"_s, u"a < b"_s}) {
        EXPECT_EQ(AvisoLlano(texto), texto);
    }
    for (const QString& texto : {u"/home/<b>ana</b>/x"_s, u"<img src=x>"_s, u"&amp;&lt;"_s, kHostil}) {
        EXPECT_EQ(Visible(AvisoLlano(texto)), texto);
    }
}
