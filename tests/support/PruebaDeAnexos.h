#pragma once

#include <tuple>

#include "core/records/cZTAnexos.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "forms/declarations/frmZTDetDeclaracion.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/PruebaDeDeclaraciones.h"

/// Base of the tests of the entry of annexes: a declaration of the second quarter and two establishments.
class PruebaDeAnexos : public PruebaDeDeclaraciones {
  protected:
    static constexpr std::array<double, 6> kTasas{24e6, 24e6, 6e6, 1e6, 24e6, 6e6};

    /// Stores the declaration, with those rates in millionths, and so many establishments, and opens it.
    void HacerDeclaracion(qint16 ejercicio, const std::array<double, 6>& tasas = kTasas,
                          int establecimientos = 2) {
        csdc = NuevaDeclaracion(ejercicio, 2, tasas);
        for (int i = 1; i <= establecimientos; ++i) {
            svrZELT::cZTEstablecimientos servidor;
            servidor.mdbmod = Entorno().mdbmod;
            cses.push_back(servidor.GuardaEstablecimiento(RegistroDeEstablecimiento(
                oDeclarante().CSDE, QStringLiteral("20ES%1Y").arg(i, 3), QStringLiteral("CARRETERA"))));
        }
        AbrirDeclaracion(csdc, ejercicio, 2);
    }
    /// Stores a line of the declaration for each product, with a base of 1 and no exempt quantity.
    void HacerLineas(const std::vector<std::pair<qint32, qint16>>& establecimientoYProducto) const {
        Tabla lineas(7, static_cast<int>(establecimientoYProducto.size()));
        int fila = 0;
        for (const auto& [establecimiento, producto] : establecimientoYProducto) {
            ++fila;
            lineas(2, fila) = establecimiento;
            lineas(3, fila) = producto;
            lineas(4, fila) = 0.0;
            lineas(5, fila) = 100.0;
            lineas(6, fila) = 24e6;
        }
        svrZELT::cZTAnexos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        ASSERT_TRUE(servidor.GuardarAnexos(lineas, Registro(kTasas.begin(), kTasas.end()), csdc));
    }
    /// Opens the form as the summary does.
    void AbrirAnexos() {
        Formularios::Descargar(frmZTDetDeclaracion::kNombre.toString());
        oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
        oAnexos().Modificado = false;
        Abrir(frmZTDetDeclaracion::kNombre);
    }

    static QString Exento(int k) { return QStringLiteral("cnuExento%1").arg(k); }
    static QString BaseImp(int k) { return QStringLiteral("cnuBaseImp%1").arg(k); }
    [[nodiscard]] ListaZT& Establecimientos() const { return Lista(QStringLiteral("lsvEstablecimientos")); }
    /// What the list says of the products of its item.
    [[nodiscard]] QString Productos(int i) const { return Establecimientos().Subitem(i, 5); }

    /// A stored line: establishment, product and base on the stored scale.
    using Linea = std::tuple<qint32, qint16, double>;
    [[nodiscard]] std::vector<Linea> Almacenadas() const {
        svrZELT::cZTAnexos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        const Tabla t = servidor.CargarAnexos(csdc);
        std::vector<Linea> lineas;
        for (int fila = 1; !t.EsNula() && fila <= t.UltimaFila(); ++fila) {
            lineas.emplace_back(t(2, fila).aEntero32(), t(3, fila).aEntero16(), t(5, fila).aDoble());
        }
        return lineas;
    }
    [[nodiscard]] int LineasAlmacenadas() const { return static_cast<int>(Almacenadas().size()); }

    qint32 csdc = 0;
    std::vector<qint32> cses;
};
