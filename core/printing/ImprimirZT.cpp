#include "core/printing/ImprimirZT.h"

#include <array>

#include "core/base/Pantalla.h"
#include "core/printing/Anexo.h"
#include "core/printing/DatosDeAnexo.h"
#include "core/printing/DispositivoImpresion.h"
#include "core/printing/Pagina1.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/CambioDeOtro.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"

namespace impreso {

namespace {

constexpr double kTamanoDeEtiqueta = 9;
constexpr double kAlturaDeEtiqueta = 243;
constexpr int kMinimoParaAnexo = 2;

struct EjemplarPedido {
    bool cZTImprimir::*pedido;
    TipoDeEjemplar Tipo;
};

constexpr std::array kOrdenDeEjemplares{
    EjemplarPedido{&cZTImprimir::Administracion, TipoDeEjemplar::Administracion},
    EjemplarPedido{&cZTImprimir::Interesado, TipoDeEjemplar::Interesado},
    EjemplarPedido{&cZTImprimir::Borrador, TipoDeEjemplar::Borrador},
    EjemplarPedido{&cZTImprimir::EntBank, TipoDeEjemplar::Banco},
};

void ImprimirPagina1(TipoDeEjemplar Tipo, const DatosDeAnexo& anexo) {
    // The window repaints between blocks.
    ImprimirCabecera();
    Pantalla().CederUnaVez();
    ImprimirIdentificacion(anexo);
    Pantalla().CederUnaVez();
    ImprimirLiquidacion(Tipo);
    ImprimirSinIngreso();
    Pantalla().CederUnaVez();
    ImprimirFirma();
    ImprimirCartaDePago();
}

/// False for a declaration that is no longer there: zeros would be printed, and the mark that nothing is due.
bool CargarLaPedida() {
    oDeclaraciones().CargarDeclaracion();
    return oDeclaraciones().EsLaDe(oDeclarante().CSDE, oImprimir().Ejercicio, oImprimir().Periodo);
}

void ImprimirEjemplares() {
    for (const EjemplarPedido& ejemplar : kOrdenDeEjemplares) {
        if (oImprimir().*ejemplar.pedido) {
            ImprimirEjemplar(ejemplar.Tipo);
        }
    }
}

}  // namespace

void ImprimirEjemplar(TipoDeEjemplar Tipo) {
    Impresora().NombrarDocumento(NombreDeEjemplar(Tipo));
    Impresora().FirmarDocumento(oDeclarante().Nombre);
    Impresora().UsarMilimetros();
    // Name and weight of the label's font are those that the device has.
    Impresora().FijarTamanoDeLetra(kTamanoDeEtiqueta);
    ImprimirEtiqueta(Tipo, kAlturaDeEtiqueta);
    const DatosDeAnexo anexo = CargarDatosDeAnexo();
    ImprimirPagina1(Tipo, anexo);
    if (Tipo != TipoDeEjemplar::Banco && anexo.NumEstablecimientos >= kMinimoParaAnexo) {
        ImprimirAnexo(Tipo, anexo.vBufferAnexo);
    }
    Impresora().TerminarDocumento();
}

}  // namespace impreso

void ImprimirDeclaracion() {
    DispositivoImpresion& impresora = Impresora();
    impresora.EmpezarLote();
    try {
        if (impreso::CargarLaPedida()) {
            impreso::ImprimirEjemplares();
            impresora.TerminarLote();
            return;
        }
    } catch (...) {
        impresora.AbandonarLote();
        throw;
    }
    impresora.AbandonarLote();
    AvisarDeCambioDeOtro(u"cambio_sin_declaracion", u"cambio_titulo");
}
