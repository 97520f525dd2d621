#include "core/records/Descuadres.h"

#include <QSet>
#include <array>
#include <cmath>
#include <limits>

#include "core/base/Instancias.h"
#include "core/base/RegistroPropio.h"
#include "core/records/Figuras.h"
#include "core/run/Entorno.h"
#include "core/services/Cuota.h"
#include "core/services/svrZELT/CamposDeDeclaracion.h"

using namespace Qt::StringLiterals;

namespace {

using Linea = svrZELT::CamposDeAnexo;
using Cabeza = svrZELT::CamposDeDeclaracion;

/// Below this many hundredths two sums of the same figures in another order can differ.
constexpr double kTolerancia = 0.01;
/// Decimals of a value in the log.
constexpr int kDecimales = 4;

struct Anotados {
    QSet<QString> lineas;
};

class Cuadre {
  public:
    void Comparar(const QString& donde, Centesimas guardado, Centesimas calculado) {
        if (!(std::abs(guardado.Guardado() - calculado.Guardado()) <= kTolerancia)) {
            m_descuadres.push_back({donde, guardado.Publico(), calculado.Publico()});
        }
    }
    [[nodiscard]] std::vector<Descuadre> Descuadres() const { return m_descuadres; }

  private:
    std::vector<Descuadre> m_descuadres;
};

/// A damaged figure can be too big for the arithmetic of the tax: then no quota is the right one.
Centesimas CuotaQueToca(const Figuras& figuras) {
    try {
        return CuotaDe(figuras.BASIM, figuras.TIPIM);
    } catch (const ErrorZT&) {
        return Centesimas(std::numeric_limits<double>::quiet_NaN());
    }
}

void CompararProducto(Cuadre& cuadre, int k, const Figuras& guardadas, const Figuras& sumas) {
    const QString producto = u"producto %1, "_s.arg(k);
    cuadre.Comparar(producto + u"cantidad exenta"_s, guardadas.SUMEX, sumas.SUMEX);
    cuadre.Comparar(producto + u"base imponible"_s, guardadas.BASIM, sumas.BASIM);
    cuadre.Comparar(producto + u"cuota"_s, guardadas.CUOTA, sumas.CUOTA);
}

/// Compares the quotas of the lines and gives the sums by product.
FigurasPorProducto SumarLineas(Cuadre& cuadre, const Tabla& lineas) {
    FigurasPorProducto sumas;
    for (int fila = 1; !lineas.EsNula() && fila <= lineas.UltimaFila(); ++fila) {
        const Figuras figuras =
            LeerFiguras([&](int figura) -> const Valor& { return lineas(Linea::Lugar(figura), fila); });
        const int k = lineas(Linea::kProducto, fila).aEntero16();
        cuadre.Comparar(
            u"línea del establecimiento %1, producto %2, cuota"_s.arg(lineas(Linea::kCSES, fila).aEntero32())
                .arg(k),
            figuras.CUOTA, CuotaQueToca(figuras));
        if (k >= 1 && k <= kProductos) {
            sumas(k).SUMEX += figuras.SUMEX;
            sumas(k).BASIM += figuras.BASIM;
            sumas(k).CUOTA += figuras.CUOTA;
        }
    }
    return sumas;
}

}  // namespace

std::vector<Descuadre> DescuadresDe(const Registro& declaracion, const Tabla& lineas) {
    Cuadre cuadre;
    const FigurasPorProducto sumas = SumarLineas(cuadre, lineas);
    Centesimas total;
    for (int k = 1; k <= kProductos; ++k) {
        const Figuras guardadas = LeerFiguras(
            [&](int figura) -> const Valor& { return Elemento(declaracion, Cabeza::Lugar(k, figura)); });
        CompararProducto(cuadre, k, guardadas, sumas(k));
        total += guardadas.CUOTA;
    }
    cuadre.Comparar(u"cuota total"_s, Centesimas(Elemento(declaracion, Cabeza::kTOTCUO).aDoble()), total);
    return cuadre.Descuadres();
}

QString RutaDeDescuadres() { return Entorno().mdbPath + u"Descuadres.log"_s; }

void AnotarDescuadres(const QString& nombre, const std::vector<Descuadre>& descuadres) {
    QByteArray nuevas;
    for (const Descuadre& descuadre : descuadres) {
        const QString linea = u"%1: %2: guardado %3, calculado %4"_s.arg(
            nombre, descuadre.donde, QString::number(descuadre.guardado, 'f', kDecimales),
            QString::number(descuadre.calculado, 'f', kDecimales));
        QSet<QString>& anotadas = InstanciaUnica<Anotados>().lineas;
        if (!anotadas.contains(linea)) {
            anotadas.insert(linea);
            nuevas += (Entorno().Reloj().toString(u"yyyy-MM-dd hh:mm:ss ") + linea + u'\n').toUtf8();
        }
    }
    AnadirARegistro(RutaDeDescuadres(), nuevas);
}
