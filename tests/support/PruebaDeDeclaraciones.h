#pragma once

#include "core/records/cZTDeclaraciones.h"
#include "core/run/Textos.h"
#include "tests/support/EntornoDeDeclaraciones.h"
#include "tests/support/PruebaEnMarco.h"

/// Base of the tests of the screens of declarations: a declarant with a name and NIF is open.
class PruebaDeDeclaraciones : public ConDeclaraciones<PruebaEnMarco> {
  protected:
    void SetUp() override {
        ConDeclaraciones::SetUp();
        oDeclarante().Nombre = QStringLiteral("GASOLINERA & HIJOS");
        oDeclarante().NIF = QStringLiteral("12345678Z");
        oDeclarante().Modo = cZTDeclarante::kModoExistente;
        ASSERT_EQ(oDeclarante().GuardarDeclarante(), oDeclarante().CSDE);
    }

    /// Texts of the table in the language in force, by name of their control.
    void EsperarTextos(const std::vector<std::pair<QString, QString>>& textos) const {
        for (const auto& [control, texto] : textos) {
            EXPECT_EQ(TextoDe(control), texto) << control.toStdString();
        }
    }
    /// Tab goes through those controls, in that order, from the first back to it.
    void EsperarOrdenDeTab(const QStringList& controles) const {
        IrA(controles.front());
        for (qsizetype i = 1; i <= controles.size(); ++i) {
            Tecla(Qt::Key_Tab);
            EXPECT_EQ(Foco(), controles.at(i % controles.size()));
        }
    }
    /// Whether a picture shows that image.
    [[nodiscard]] bool Muestra(const QString& imagen, const QIcon& icono) const {
        const QSize lado(16, 16);
        return Control<QAbstractButton>(imagen).icon().pixmap(lado).toImage() == icono.pixmap(lado).toImage();
    }

    /// Makes a declaration the open one, as the list does.
    static void AbrirDeclaracion(qint32 csdc, qint16 ejercicio, qint16 periodo) {
        cZTDeclaraciones& d = oDeclaraciones();
        d.Modo = cZTDeclaraciones::kModoExistente;
        d.CSDC = csdc;
        d.Ejercicio = ejercicio;
        d.Periodo = periodo;
        d.InicializarDatos();
    }

    /// The form of that name is on the screen; it is the one under test from here on.
    void Pasar(QStringView nombre) {
        ASSERT_TRUE(Formularios::Visible(nombre.toString())) << nombre.toUtf8().constData();
        formulario = &Formularios::Obtener(nombre.toString()).Ventana();
        QCoreApplication::processEvents();
    }

    static bool Abierto(QStringView nombre) { return Formularios::Cargado(nombre.toString()); }
    [[nodiscard]] bool Habilitado(const QString& nombre) const { return Control(nombre).isEnabled(); }
    [[nodiscard]] bool ALaVista(const QString& nombre) const { return Control(nombre).isVisible(); }

    /// Sub-items of an item of a list, the first so many.
    [[nodiscard]] QStringList Subitems(const QString& lista, int i, int subitems) const {
        QStringList celdas;
        for (int k = 1; k <= subitems; ++k) {
            celdas += Lista(lista).Subitem(i, k);
        }
        return celdas;
    }
};
