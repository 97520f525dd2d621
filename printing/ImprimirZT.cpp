#include "printing/ImprimirZT.h"

#include <array>

#include "base/Pantalla.h"
#include "declarants/cZTDeclarante.h"
#include "declarations/cZTDeclaraciones.h"
#include "printing/Anexo.h"
#include "printing/DatosDeAnexo.h"
#include "printing/DispositivoImpresion.h"
#include "printing/Pagina1.h"
#include "printing/cZTImprimir.h"

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

void ImprimirEjemplares() {
    oDeclaraciones().CargarDeclaracion();
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
        impreso::ImprimirEjemplares();
        impresora.TerminarLote();
    } catch (...) {
        impresora.AbandonarLote();
        throw;
    }
}
