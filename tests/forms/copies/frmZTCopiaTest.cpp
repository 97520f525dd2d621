#include "forms/copies/frmZTCopia.h"

#include "core/run/CopiasDeSeguridad.h"
#include "tests/support/PruebaDeDialogosDeCopia.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTCopiaTest : public PruebaDeDialogosDeCopia {
  protected:
    template <class F>
    void Pedir(F accion) {
        AlAbrirse(frmZTCopia::kNombre, accion);
        CrearCopiaDeSeguridad(0);
    }
};

/// A backup that needs no store: it says what happens to the form in the middle of it.
class TareaFalsa : public TareaDeCopia {
  public:
    [[nodiscard]] QString Carpeta() const override { return u"/copias"_s; }
    [[nodiscard]] QString Nombre() const override { return u"copia.mdb"_s; }
    [[nodiscard]] QString Filtro() const override { return {}; }
    [[nodiscard]] QDate UltimaCopia() const override { return {}; }
    [[nodiscard]] Destino Elegir(const QString& carpeta, const QString& nombre) const override {
        return {carpeta + u'/' + nombre, false, {}};
    }
    [[nodiscard]] std::optional<FalloDeCopia> Copiar(const QString& ruta,
                                                     const AvanceDeCopia& avance) override {
        copiadas += ruta;
        return alCopiar(avance);
    }

    std::function<std::optional<FalloDeCopia>(const AvanceDeCopia&)> alCopiar;
    QStringList copiadas;
};

}  // namespace

TEST_F(frmZTCopiaTest, ItOpensWithFolderNameAndTheDayOfTheLastCopy) {
    Pedir([this](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Crear copia de seguridad"_s);
        EXPECT_EQ(TextoDe(v, "txtCarpeta"), QDir::toNativeSeparators(copias()));
        EXPECT_EQ(TextoDe(v, "txtNombre"), u"ZELTMod_bak.mdb"_s);
        EXPECT_EQ(TextoDe(v, "lblUltima"), u"no consta"_s);
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
        EXPECT_FALSE(Control(v, "barAvance").isVisible());
        QTest::keyClick(&v, Qt::Key_Escape);
    });
    EXPECT_FALSE(QDir(copias()).exists());
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(frmZTCopiaTest, EnterMakesTheCopyAndTellsWhere) {
    Pedir([](QWidget& v) { QTest::keyClick(v.focusWidget(), Qt::Key_Return); });
    EXPECT_TRUE(QFile::exists(copia()));
    EXPECT_TRUE(QFile::exists(copia() + u".sha256"_s));
    EXPECT_EQ(UnicoMensaje(),
              u"La copia de seguridad se ha creado y comprobado.\n\n"_s + QDir::toNativeSeparators(copia()));
    Entorno().OffsetIdioma = 1000;
    pantalla.respuesta = kRespuestaCancelar;
    Pedir([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Segurtasun kopia sortu"_s);
        EXPECT_EQ(TextoDe(v, "lblUltima"), u"2007/07/04"_s);
        QTest::keyClick(v.focusWidget(), Qt::Key_Escape);
    });
}

TEST_F(frmZTCopiaTest, AnExistingFileIsAskedForAndKeptUnlessTheAnswerIsYes) {
    QDir().mkpath(copias());
    EscribirFichero(copia(), "lo de antes");
    pantalla.respuesta = kRespuestaCancelar;
    Pedir([this](QWidget& v) {
        Pulsar(v, "cmdAceptar");
        EXPECT_FALSE(pantalla.mensajes.front().unBoton);
        EXPECT_TRUE(UnicoMensaje().contains(QDir::toNativeSeparators(copia())));
        EXPECT_EQ(LeerFichero(copia()), "lo de antes");
        pantalla.respuesta = kRespuestaAceptar;
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_NE(LeerFichero(copia()), "lo de antes");
    EXPECT_EQ(pantalla.mensajes.size(), 2U);
}

TEST_F(frmZTCopiaTest, AFailureNamesFileAndReasonAndTheFormStays) {
    Pedir([this](QWidget& v) {
        Escribir(v, "txtNombre", u"a:b"_s);
        Pulsar(v, "cmdAceptar");
        EXPECT_TRUE(UnicoMensaje().startsWith(u"No se ha podido crear la copia de seguridad.\n\n"_s));
        Escribir(v, "txtCarpeta", carpeta.filePath(u"falta"_s));
        Escribir(v, "txtNombre", u"otra"_s);
        Pulsar(v, "cmdAceptar");
        EXPECT_EQ(UnicoMensaje(), u"No se ha podido crear la copia de seguridad.\n\n"_s +
                                      QDir::toNativeSeparators(carpeta.filePath(u"falta"_s)) +
                                      u"\n\nLa carpeta no existe o no se puede abrir."_s);
        Escribir(v, "txtCarpeta", copias());
        Pulsar(v, "cmdAceptar");
        EXPECT_TRUE(UnicoMensaje().startsWith(u"La copia de seguridad se ha creado"_s));
    });
    EXPECT_TRUE(QFile::exists(copias() + u"/otra.mdb"_s));
}

TEST_F(frmZTCopiaTest, TheFileDialogFillsTheBoxes) {
    QDir().mkpath(carpeta.filePath(u"otra"_s));
    Pedir([this](QWidget& v) {
        ElegirEnElDialogo(v, carpeta.filePath(u"otra/una.mdb"_s),
                          [](const QFileDialog& dialogo, const QString& nombre) {
                              EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
                              EXPECT_EQ(dialogo.nameFilters(), QStringList(u"archivos mdb (*.mdb mdb)"_s));
                              EXPECT_EQ(nombre, u"ZELTMod_bak.mdb"_s);
                          });
        EXPECT_EQ(TextoDe(v, "txtCarpeta"), QDir::toNativeSeparators(carpeta.filePath(u"otra"_s)));
        EXPECT_EQ(TextoDe(v, "txtNombre"), u"una.mdb"_s);
        Pulsar(v, "cmdCancelar");
    });
}

TEST_F(frmZTCopiaTest, WhileItWorksItShowsHowFarItIsAndTakesNoInput) {
    TareaFalsa tarea;
    AlAbrirse(frmZTCopia::kNombre, [&](QWidget& v) {
        const auto& barra = Control<QProgressBar>(v, "barAvance");
        tarea.alCopiar = [&](const AvanceDeCopia& avance) -> std::optional<FalloDeCopia> {
            for (const int porcentaje : {10, 10, 60, 100}) {
                avance(porcentaje);
                EXPECT_TRUE(barra.isVisible());
                EXPECT_EQ(barra.value(), porcentaje);
                EXPECT_FALSE(Control(v, "cmdAceptar").isEnabled());
            }
            v.close();
            EXPECT_TRUE(v.isVisible()) << "the form cannot be closed in the middle";
            // What is pressed now would come when the form listens again.
            QCoreApplication::postEvent(&Control(v, "cmdAceptar"),
                                        new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
            return FalloDeCopia{MotivoDeCopia::DiscoLleno, u"x.mdb"_s, {}};
        };
        const int antes = pantalla.cesiones;
        Pulsar(v, "cmdAceptar");
        EXPECT_EQ(pantalla.cesiones - antes, 4) << "at the start and at each new value";
        QCoreApplication::processEvents();
        EXPECT_EQ(tarea.copiadas.size(), 1);
        EXPECT_FALSE(barra.isVisible());
        EXPECT_TRUE(Control(v, "cmdAceptar").isEnabled());
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
        EXPECT_EQ(UnicoMensaje(),
                  u"No se ha podido crear la copia de seguridad.\n\nx.mdb\n\n"
                  "No hay espacio suficiente en el disco."_s);
        Pulsar(v, "cmdCancelar");
    });
    canal.PedirCopia(tarea);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTCopiaTest, ACopyWhoseDayCouldNotBeNotedIsToldAsMade) {
    TareaFalsa tarea;
    tarea.alCopiar = [](const AvanceDeCopia&) {
        return std::optional(FalloDeCopia{MotivoDeCopia::FechaSinAnotar, u"x.mdb"_s, {}});
    };
    AlAbrirse(frmZTCopia::kNombre, [](QWidget& v) { Pulsar(v, "cmdAceptar"); });
    canal.PedirCopia(tarea);
    EXPECT_TRUE(UnicoMensaje().startsWith(u"La copia de seguridad se ha creado"_s));
}

TEST_F(frmZTCopiaTest, AccessKeysReachEveryControl) {
    Pedir([](QWidget& v) {
        const std::vector<std::pair<Qt::Key, const char*>> teclas{{Qt::Key_P, "txtCarpeta"},
                                                                  {Qt::Key_N, "txtNombre"}};
        for (const auto& [tecla, control] : teclas) {
            QTest::keyClick(&v, tecla, Qt::AltModifier);
            EXPECT_EQ(v.focusWidget(), &Control(v, control)) << control;
        }
        QTest::keyClick(&v, Qt::Key_C, Qt::AltModifier);
    });
}
