#include "core/printing/Anexo.h"

#include <cmath>

#include "core/printing/DispositivoImpresion.h"

namespace impreso {

namespace {

constexpr int kLineasPorSalto = 23;
constexpr double kAlturaDeEtiqueta = 246;

}  // namespace

int PaginasDeAnexo(int lineas) { return 1 + lineas / kLineasPorSalto; }

int TotalDePaginasMostrado(int lineas) {
    return static_cast<int>(std::lround(static_cast<double>(lineas) / kLineasPorSalto)) + 1;
}

void ImprimirAnexo(TipoDeEjemplar Tipo, const Tabla& vBufferAnexo) {
    const int paginas = PaginasDeAnexo(vBufferAnexo.UltimaFila());
    for (int pagina = 1; pagina <= paginas; ++pagina) {
        Impresora().NuevaPagina();
        ImprimirEtiqueta(Tipo, kAlturaDeEtiqueta);
        ImprimirCabeceraAnexo(vBufferAnexo);
        ImprimirIdentificacionAnexo();
        ImprimirDesgloseAnexo(vBufferAnexo);
        ImprimirFirmaAnexo();
    }
}

}  // namespace impreso
