#pragma once

#include <QWidget>

#include "app/Main.h"
#include "core/online/cZTActOnline.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "tests/support/EntornoDeDeclaraciones.h"
#include "tests/support/FormularioDePrueba.h"
#include "tests/support/RevisionDePantalla.h"

/// Base of the walks over every registered form. No form asks for the language, looks for updates or waits,
/// and there is something to show: a declarant, an establishment and a declaration are open.
class RecorridoDePantallas : public ConDeclaraciones<PruebaDeFormularios> {
  protected:
    void SetUp() override {
        ConDeclaraciones::SetUp();
        AbrirDeclarante();
        AbrirEstablecimiento();
        AbrirDeclaracion();
        RegistrarFormularios();
        qint64 ahora = 0;
        Entorno().Milisegundos = [ahora]() mutable { return ahora += 1000; };
        oActOnline().ActOnline = 0;
    }

    static void AbrirDeclarante() {
        cZTDeclarante& d = oDeclarante();
        d.NIF = QStringLiteral("12345678Z");
        d.Nombre = QStringLiteral("GASOLINERA & HIJOS");
        d.Domicilio = QStringLiteral("MAYOR");
        d.CPost = 20001;
        d.CMuni = 1;
        d.CSDE = d.GuardarDeclarante();
        d.Modo = cZTDeclarante::kModoExistente;
        d.InicializaDatos();
    }
    static void AbrirEstablecimiento() {
        cZTEstablecimientos& e = oEstablecimientos();
        e.Modo = cZTEstablecimientos::kModoNuevo;
        e.InicializarDatos();
        e.CIM = QStringLiteral("20ES123Y");
        e.Domicilio = QStringLiteral("CARRETERA 1");
        e.Provin = cZTDeclarante::kProvinciaPropia;
        e.CMuni = 1;
        e.GuardaEstablecimiento();
        e.Modo = cZTEstablecimientos::kModoExistente;
    }
    static void AbrirDeclaracion() {
        cZTDeclaraciones& d = oDeclaraciones();
        d.Ejercicio = 2007;
        d.Periodo = 2;
        d.CSDC = NuevaDeclaracion(d.Ejercicio, d.Periodo, kTasasEnVigor);
        d.Modo = cZTDeclaraciones::kModoExistente;
        d.InicializarDatos();
        oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
    }

    /// Shows a form and gives its window.
    static QWidget& Abrir(const QString& formulario) {
        Formularios::Mostrar(formulario);
        QCoreApplication::processEvents();
        return Formularios::Obtener(formulario).Ventana();
    }
};

/// Names of all forms of the program.
inline QStringList TodosLosFormularios() {
    RegistrarFormularios();
    return Formularios::Registrados();
}
