#include "forms/printing/frmZTImp.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QWindow>

#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/DialogoDePrueba.h"
#include "tests/support/EntornoDeDeclaraciones.h"
#include "tests/support/ImpresoraGrabadora.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kFecha = "txtFechaPresentacion";
constexpr std::array kEjemplares{"chkBor", "chkint", "chkadm", "chkEntBan"};

/// What the program looked like when the printing began.
struct ComienzoDeImpresion {
    bool cargado = true;
    int cesiones = 0;
    Puntero puntero = Puntero::Normal;
};

/// Writes that down, and then prints as the recorder does.
class ImpresoraVigilante : public ImpresoraGrabadora {
  public:
    explicit ImpresoraVigilante(const PantallaGrabadora& pantalla) : m_pantalla(pantalla) {}

    void EmpezarLote() override {
        comienzo = {Formularios::Cargado(frmZTImp::kNombre.toString()), m_pantalla.cesiones,
                    m_pantalla.punteros.back()};
        ImpresoraGrabadora::EmpezarLote();
    }

    ComienzoDeImpresion comienzo;

  private:
    const PantallaGrabadora& m_pantalla;
};

/// The real dialog over a stored declaration of the second quarter of 2007. Today is 4 July 2007.
class frmZTImpTest : public ConDeclaraciones<DialogoDePrueba> {
  protected:
    void SetUp() override {
        ConDeclaraciones::SetUp();
        FijarImpresora(&impresora);
        oFecha().IDI(u"C"_s);
        oImprimir().Ejercicio = 2007;
        oImprimir().Periodo = 2;
        oDeclaraciones().CSDC = NuevaDeclaracion(2007, 2, kTasasEnVigor);
    }
    void TearDown() override {
        FijarImpresora(nullptr);
        ConDeclaraciones::TearDown();
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTImp::kNombre, accion);
        Formularios::MostrarModal(frmZTImp::kNombre.toString());
    }

    static QCheckBox& Ejemplar(const QWidget& v, const char* nombre) { return Control<QCheckBox>(v, nombre); }
    static QLineEdit& Fecha(const QWidget& v) { return Control<QLineEdit>(v, kFecha); }
    static QString FechaVista(const QWidget& v) { return Fecha(v).displayText(); }
    static QString Foco(const QWidget& v) { return v.focusWidget()->objectName(); }

    static void Tecla(QWidget& v, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier) {
        QTest::keyClick(v.windowHandle(), tecla, con);
    }
    static void Teclear(QWidget& v, const QString& texto) {
        for (const QChar c : texto) {
            QTest::sendKeyEvent(QTest::Click, v.windowHandle(), Qt::Key(c.unicode()), QString(c),
                                Qt::NoModifier);
        }
    }
    static void Marcar(QWidget& v, const char* ejemplar) {
        QCheckBox& caja = Ejemplar(v, ejemplar);
        QTest::mouseClick(v.windowHandle(), Qt::LeftButton, {}, caja.mapTo(&v, QPoint(8, caja.height() / 2)));
    }
    /// Goes to the field with the Tab key, from the last box, and types.
    static void EscribirFecha(QWidget& v, const QString& texto) {
        Ejemplar(v, "chkEntBan").setFocus();
        Tecla(v, Qt::Key_Tab);
        EXPECT_EQ(Foco(v), QLatin1StringView(kFecha));
        Teclear(v, texto);
    }

    static bool MuestraImagen(const QWidget& v, const char* imagen, int numero) {
        const QSize lado(20, 20);
        return Control<QLabel>(v, imagen).pixmap(Qt::ReturnByValue).toImage() ==
               ilsMDI16(numero).pixmap(lado).toImage();
    }

    /// Presses Accept, and gives the text that refuses the date.
    QString Rechazo(QWidget& v) {
        QString texto;
        const AlDialogo<QMessageBox> espera([&texto](QMessageBox& caja) {
            texto = caja.text();
            EXPECT_EQ(caja.icon(), QMessageBox::Warning);
            EXPECT_EQ(caja.windowTitle(), Texto(169));
            Tecla(caja, Qt::Key_Escape);
        });
        Pulsar(v, "cmdAceptar");
        return texto;
    }
    /// That of a date, with the dialog left as a refusal leaves it.
    QString RechazoDe(const QString& fecha) {
        QString texto;
        Mostrar([&](QWidget& v) {
            Marcar(v, "chkadm");
            EscribirFecha(v, fecha);
            const QString escrita = FechaVista(v);
            texto = Rechazo(v);
            EXPECT_TRUE(Formularios::Visible(u"frmZTImp"_s));
            EXPECT_EQ(FechaVista(v), escrita);
            EXPECT_EQ(Foco(v), QLatin1StringView(kFecha));
            EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
            Tecla(v, Qt::Key_Escape);
        });
        EXPECT_TRUE(impresora.documentos.empty());
        EXPECT_FALSE(oImprimir().Administracion);
        return texto;
    }
    /// Prints the administration's copy with that date.
    void Aceptar(const QString& fecha) {
        Mostrar([&](QWidget& v) {
            Marcar(v, "chkadm");
            EscribirFecha(v, fecha);
            Pulsar(v, "cmdAceptar");
        });
        EXPECT_EQ(impresora.documentos.size(), 1U);
    }

    ImpresoraVigilante impresora{pantalla};
};

void ComprobarSinEjemplares(const QWidget& v, const QString& mascara) {
    EXPECT_EQ(v.findChild<QLineEdit*>(QLatin1StringView(kFecha))->text(), mascara);
    for (const char* control : {kFecha, "lblFechaPresentacion", "cmdAceptar"}) {
        EXPECT_FALSE(v.findChild<QWidget*>(QLatin1StringView(control))->isEnabled()) << control;
    }
}

void ComprobarConEjemplares(const QWidget& v, const QString& fecha) {
    EXPECT_EQ(v.findChild<QLineEdit*>(QLatin1StringView(kFecha))->displayText(), fecha);
    for (const char* control : {kFecha, "lblFechaPresentacion", "cmdAceptar"}) {
        EXPECT_TRUE(v.findChild<QWidget*>(QLatin1StringView(control))->isEnabled()) << control;
    }
}

}  // namespace

TEST_F(frmZTImpTest, ItsTextsAreThoseOfTheTableInBothLanguages) {
    for (const QString& idioma : {u"C"_s, u"E"_s}) {
        oFecha().IDI(idioma);
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), Texto(140));
            EXPECT_EQ(Ejemplar(v, "chkBor").text(), Texto(147));
            EXPECT_EQ(Ejemplar(v, "chkint").text(), Texto(146));
            EXPECT_EQ(Ejemplar(v, "chkadm").text(), Texto(145));
            EXPECT_EQ(Ejemplar(v, "chkEntBan").text(), Texto(224));
            EXPECT_EQ(Control<QLabel>(v, "lblFechaPresentacion").text(), Texto(78));
            EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), Texto(28));
            EXPECT_EQ(Control<QPushButton>(v, "cmdCancelar").text(), Texto(29));
            EXPECT_EQ(Control<QPushButton>(v, "cmdOpcImp").text(), Texto(140));
            v.close();
        });
    }
}

TEST_F(frmZTImpTest, ItOpensWithNothingTickedAndTheMaskInGrey) {
    for (const auto& [idioma, mascara] :
         {std::pair{u"C"_s, u"__/__/____"_s}, std::pair{u"E"_s, u"____/__/__"_s}}) {
        oFecha().IDI(idioma);
        Mostrar([mascara = mascara](QWidget& v) {
            for (const char* ejemplar : kEjemplares) {
                EXPECT_FALSE(Ejemplar(v, ejemplar).isChecked()) << ejemplar;
            }
            ComprobarSinEjemplares(v, mascara);
            EXPECT_TRUE(MuestraImagen(v, "picAceptar", 14));
            v.close();
        });
    }
}

TEST_F(frmZTImpTest, TickingAnyBoxOffersTodayAndUntickingItTakesItAway) {
    for (const auto& [idioma, hoy, mascara] : {std::tuple{u"C"_s, u"04/07/2007"_s, u"__/__/____"_s},
                                               std::tuple{u"E"_s, u"2007/07/04"_s, u"____/__/__"_s}}) {
        oFecha().IDI(idioma);
        Mostrar([hoy = hoy, mascara = mascara](QWidget& v) {
            for (const char* ejemplar : kEjemplares) {
                Marcar(v, ejemplar);
                ComprobarConEjemplares(v, hoy);
                EXPECT_TRUE(MuestraImagen(v, "picAceptar", 6));
                Marcar(v, ejemplar);
                ComprobarSinEjemplares(v, mascara);
                EXPECT_TRUE(MuestraImagen(v, "picAceptar", 14));
            }
            v.close();
        });
    }
}

TEST_F(frmZTImpTest, SpaceTicksTheBoxInFocus) {
    Mostrar([](QWidget& v) {
        EXPECT_EQ(Foco(v), u"chkBor");
        Tecla(v, Qt::Key_Space);
        ComprobarConEjemplares(v, u"04/07/2007"_s);
        v.close();
    });
}

TEST_F(frmZTImpTest, EachTickThatLeavesSomethingTickedOverwritesTheDateTyped) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        EscribirFecha(v, u"01/02/2008"_s);
        EXPECT_EQ(FechaVista(v), u"01/02/2008"_s);
        Marcar(v, "chkint");
        EXPECT_EQ(FechaVista(v), u"04/07/2007"_s);
        EscribirFecha(v, u"01/02/2008"_s);
        Marcar(v, "chkBor");
        EXPECT_EQ(FechaVista(v), u"04/07/2007"_s);
        v.close();
    });
}

TEST_F(frmZTImpTest, DigitsGoOverTheDateAndSlashesNeedNotBeTyped) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        EscribirFecha(v, u"31122009"_s);
        EXPECT_EQ(FechaVista(v), u"31/12/2009"_s);
        EscribirFecha(v, u"05/06/2008"_s);
        EXPECT_EQ(FechaVista(v), u"05/06/2008"_s);
        EscribirFecha(v, u"0x7-"_s);
        EXPECT_EQ(FechaVista(v), u"07/__/____"_s);
        Tecla(v, Qt::Key_Backspace);
        EXPECT_EQ(FechaVista(v), u"0_/__/____"_s);
        v.close();
    });
}

TEST_F(frmZTImpTest, AClickIntoTheFieldSelectsTheDateToBeTypedOver) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        const QLineEdit& caja = Fecha(v);
        QTest::mouseClick(v.windowHandle(), Qt::LeftButton, {}, caja.mapTo(&v, caja.rect().center()));
        Teclear(v, u"09082010"_s);
        EXPECT_EQ(FechaVista(v), u"09/08/2010"_s);
        v.close();
    });
}

TEST_F(frmZTImpTest, ADateThatIsNoneIsRefused) {
    for (const QString& fecha : {u"31/02/2007"_s, u"29/02/2007"_s, u"00/01/2007"_s, u"01/13/2007"_s,
                                 u"1/1/2007"_s, u"01/01/07"_s, u"01/01/0999"_s}) {
        EXPECT_EQ(RechazoDe(fecha), u"La Fecha de presentación introducida no es correcta"_s)
            << fecha.toStdString();
    }
    oFecha().IDI(u"E"_s);
    EXPECT_EQ(RechazoDe(u"2007/02/31"_s), u"Aurkezpen data okerra da"_s);
}

TEST_F(frmZTImpTest, ADateBeforeTheLimitIsRefusedAndEuskeraNamesAnEarlierOne) {
    const QString castellano = u"La Fecha de presentación no puede ser anterior al 01/01/2003"_s;
    EXPECT_EQ(RechazoDe(u"31/12/2002"_s), castellano);
    EXPECT_EQ(RechazoDe(u"01/01/2002"_s), castellano);
    oFecha().IDI(u"E"_s);
    const QString euskera = u"Aurkezpen data ezin da 2002/01/01\n baino lehenagokoa izan"_s;
    EXPECT_EQ(RechazoDe(u"2002/12/31"_s), euskera);
    EXPECT_EQ(RechazoDe(u"2001/12/31"_s), euskera);
}

TEST_F(frmZTImpTest, ClearingTheFieldLeavesTheMaskWhichIsRefusedAsTooEarly) {
    for (const auto& [idioma, mascara, rechazo] :
         {std::tuple{u"C"_s, u"__/__/____"_s,
                     u"La Fecha de presentación no puede ser anterior al 01/01/2003"_s},
          std::tuple{u"E"_s, u"____/__/__"_s,
                     u"Aurkezpen data ezin da 2002/01/01\n baino lehenagokoa izan"_s}}) {
        oFecha().IDI(idioma);
        Mostrar([&, mascara = mascara, rechazo = rechazo](QWidget& v) {
            Marcar(v, "chkadm");
            for (const Qt::Key tecla : {Qt::Key_Delete, Qt::Key_Backspace}) {
                EscribirFecha(v, {});
                Tecla(v, Qt::Key_A, Qt::ControlModifier);
                Tecla(v, tecla);
                EXPECT_EQ(FechaVista(v), mascara);
                EXPECT_EQ(Rechazo(v), rechazo);
            }
            v.close();
        });
    }
    EXPECT_TRUE(impresora.documentos.empty());
}

TEST_F(frmZTImpTest, TheLimitItselfAndAnyLaterDateAreAccepted) {
    for (const QString& fecha : {u"01/01/2003"_s, u"29/02/2004"_s, u"31/12/2099"_s}) {
        impresora.documentos.clear();
        Aceptar(fecha);
        EXPECT_EQ(oImprimir().FechaPresentacion, fecha);
    }
    oFecha().IDI(u"E"_s);
    impresora.documentos.clear();
    Aceptar(u"2003/01/01"_s);
    EXPECT_EQ(oImprimir().FechaPresentacion, u"2003/01/01"_s);
}

TEST_F(frmZTImpTest, TheFourBoxesGoIntoTheChoicesAndTheirOrderOnPaperIsFixed) {
    Mostrar([](QWidget& v) {
        for (const char* ejemplar : kEjemplares) {
            Marcar(v, ejemplar);
        }
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_TRUE(oImprimir().Administracion && oImprimir().Interesado);
    EXPECT_TRUE(oImprimir().Borrador && oImprimir().EntBank);
    ASSERT_EQ(impresora.documentos.size(), 4U);
    EXPECT_TRUE(impresora.documentos.at(0).nombre.endsWith(u"administracion"));
    EXPECT_TRUE(impresora.documentos.at(1).nombre.endsWith(u"interesado"));
    EXPECT_TRUE(impresora.documentos.at(2).nombre.endsWith(u"borrador"));
    EXPECT_TRUE(impresora.documentos.at(3).nombre.endsWith(u"entidad-bancaria"));
    EXPECT_EQ(impresora.lotesTerminados, 1);
}

TEST_F(frmZTImpTest, EachBoxIsItsCopy) {
    for (const auto& [caja, ejemplar] :
         {std::pair{"chkBor", &cZTImprimir::Borrador}, std::pair{"chkint", &cZTImprimir::Interesado},
          std::pair{"chkadm", &cZTImprimir::Administracion}, std::pair{"chkEntBan", &cZTImprimir::EntBank}}) {
        Mostrar([caja = caja](QWidget& v) {
            Marcar(v, caja);
            Pulsar(v, "cmdAceptar");
        });
        const cZTImprimir& o = oImprimir();
        EXPECT_TRUE(o.*ejemplar) << caja;
        EXPECT_EQ(o.Borrador + o.Interesado + o.Administracion + o.EntBank, 1) << caja;
    }
}

TEST_F(frmZTImpTest, TheDialogIsGoneAndHasYieldedOnceWhenThePrintingBegins) {
    Mostrar([this](QWidget& v) {
        Marcar(v, "chkadm");
        pantalla.cesiones = 0;
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_FALSE(impresora.comienzo.cargado);
    EXPECT_EQ(impresora.comienzo.cesiones, 1);
    EXPECT_EQ(impresora.comienzo.puntero, Puntero::Espera);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTImpTest, CancelKeepsNothing) {
    for (const Qt::Key tecla : {Qt::Key_Escape, Qt::Key_C}) {
        pantalla.punteros.clear();
        Mostrar([tecla](QWidget& v) {
            Marcar(v, "chkBor");
            Tecla(v, tecla, tecla == Qt::Key_C ? Qt::AltModifier : Qt::NoModifier);
            EXPECT_FALSE(Formularios::Cargado(u"frmZTImp"_s));
        });
        EXPECT_EQ(pantalla.punteros, std::vector({Puntero::Espera, Puntero::Normal}));
    }
    EXPECT_FALSE(oImprimir().Borrador);
    EXPECT_EQ(oImprimir().FechaPresentacion, QString());
    EXPECT_TRUE(impresora.documentos.empty());
}

TEST_F(frmZTImpTest, TheAccessKeyOfAcceptPrints) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        Tecla(v, Qt::Key_A, Qt::AltModifier);
    });
    EXPECT_EQ(impresora.documentos.size(), 1U);
}

TEST_F(frmZTImpTest, ThePicturesAreDecoration) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        for (const char* imagen : {"picAceptar", "picCerrar", "picImprimir"}) {
            Pulsar(v, imagen);
            EXPECT_EQ(Control(v, imagen).focusPolicy(), Qt::NoFocus);
            EXPECT_TRUE(Formularios::Visible(u"frmZTImp"_s)) << imagen;
        }
        v.close();
    });
}

TEST_F(frmZTImpTest, TheTabKeyGoesDownTheDialog) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        for (const char* siguiente :
             {"chkint", "chkadm", "chkEntBan", kFecha, "cmdAceptar", "cmdCancelar", "cmdOpcImp", "chkBor"}) {
            Tecla(v, Qt::Key_Tab);
            EXPECT_EQ(Foco(v), QLatin1StringView(siguiente));
        }
        v.close();
    });
}

TEST_F(frmZTImpTest, ItIsMadeAnewForEachUse) {
    Mostrar([](QWidget& v) {
        Marcar(v, "chkint");
        EscribirFecha(v, u"01/02/2008"_s);
        v.close();
    });
    Mostrar([](QWidget& v) {
        ComprobarSinEjemplares(v, u"__/__/____"_s);
        EXPECT_FALSE(Ejemplar(v, "chkint").isChecked());
        v.close();
    });
}

TEST_F(frmZTImpTest, ThePrinterDialogOpensAndClosesByKeyboardAndTheDateTypedStays) {
    Mostrar([this](QWidget& v) {
        Marcar(v, "chkBor");
        EscribirFecha(v, u"01/02/2008"_s);
        pantalla.punteros.clear();
        QString dialogo;
        const AlDialogo<QPrintDialog> espera([&dialogo](QPrintDialog& d) {
            dialogo = d.objectName();
            Tecla(d, Qt::Key_Escape);
        });
        Control(v, "cmdOpcImp").setFocus();
        Tecla(v, Qt::Key_Space);
        EXPECT_EQ(dialogo, u"cdbImprimir"_s);
        EXPECT_EQ(pantalla.punteros, std::vector({Puntero::Espera, Puntero::Normal}));
        EXPECT_TRUE(Formularios::Visible(u"frmZTImp"_s));
        EXPECT_EQ(FechaVista(v), u"01/02/2008"_s);
        v.close();
    });
}

TEST_F(frmZTImpTest, TheWaitPointerDoesNotLieOverThePrinterDialog) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    Mostrar([this](QWidget& v) {
        const AlDialogo<QPrintDialog> espera([](QPrintDialog& d) {
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
            d.reject();
        });
        Pulsar(v, "cmdOpcImp");
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        v.close();
    });
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(frmZTImpTest, AFailureOfThePrinterIsShownByTheRunTimeAndEndsTheProgram) {
    impresora.fallaTras = 5;
    Mostrar([](QWidget& v) {
        Marcar(v, "chkBor");
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_EQ(pantalla.plataforma,
              std::vector<QString>{u"Error '482' en tiempo de ejecución:\r\n\r\nNo hay papel"_s});
    EXPECT_EQ(impresora.lotesAbandonados, 1);
    EXPECT_EQ(terminado, 1);
}
