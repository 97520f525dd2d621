#pragma once

#include "declarations/cZTDeclaraciones.h"
#include "tests/declarations/EntornoDeDeclaraciones.h"
#include "tests/support/PruebaEnMarco.h"

/// Base of the tests of the screens of declarations: a declarant with a name and NIF is open.
class PruebaDeDeclaraciones : public ConDeclaraciones<PruebaEnMarco> {
  protected:
    void SetUp() override {
        ConDeclaraciones::SetUp();
        oDeclarante().Nombre = QStringLiteral("GASOLINERA & HIJOS");
        oDeclarante().NIF = QStringLiteral("12345678Z");
        oDeclarante().CSDE = oDeclarante().GuardarDeclarante();
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

    /// The line of an item of a list: text and sub-items, up to the first empty one.
    [[nodiscard]] QStringList Fila(const QString& lista, int i, int subitems) const {
        QStringList celdas{Lista(lista).Texto(i)};
        for (int k = 1; k <= subitems; ++k) {
            celdas += Lista(lista).Subitem(i, k);
        }
        return celdas;
    }
};
