#include "forms/declarations/frmZTDetDeclaracion.h"

#include <algorithm>

#include "core/base/EntradaNumerica.h"
#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/records/ListaDeEstablecimientos.h"
#include "core/records/Productos.h"
#include "core/records/ProductosDeLineas.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/declarations/TextosDeDeclaracion.h"
#include "forms/establishments/BloqueDeEstablecimientos.h"
#include "forms/runtime/AnexosPorGuardar.h"
#include "forms/runtime/CajasDeFormulario.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/CajaNumerica.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTDetDeclaracion.h"

using namespace Qt::StringLiterals;

namespace {

/// The line of an establishment and a product; one of zeros where there is none.
LineaSinGuardar LineaDe(const DatosSinGuardar& datos, qint32 cses, qint16 k) {
    const auto linea = std::ranges::find_if(
        datos.lineas, [&](const LineaSinGuardar& una) { return una.CSES == cses && una.producto == k; });
    return linea != datos.lineas.end() ? *linea : LineaSinGuardar{.CSES = cses, .producto = k};
}

/// What the record writes the products into.
class EstablecimientosEnLista : public ListaDeEstablecimientos {
  public:
    explicit EstablecimientosEnLista(ListaZT& lista) : m_lista(lista) {}

    [[nodiscard]] int Cuenta() const override { return m_lista.Cuenta(); }
    [[nodiscard]] QString Texto(int i) const override { return m_lista.Texto(i); }
    void PonerSubitem(int i, int k, const QString& texto) override { m_lista.PonerSubitem(i, k, texto); }

  private:
    ListaZT& m_lista;
};

}  // namespace

frmZTDetDeclaracion::frmZTDetDeclaracion()
    : FormularioTrabajo(kNombre),
      m_ui([this] {
          auto ui = std::make_unique<Ui::frmZTDetDeclaracion>();
          ui->setupUi(this);
          return ui;
      }()),
      m_cnuExento(*this, u"cnuExento"),
      m_cnuBaseImp(*this, u"cnuBaseImp"),
      m_lblTipo(*this, u"lblTipo"),
      m_lblCuota(*this, u"lblCuota") {
    ConectarBotones();
    ConectarLista();
    ConectarCajas();
    m_ui->lblTotalCuota->setMinimumWidth(AnchoDeImporte(*m_ui->lblTotalCuota));
}

frmZTDetDeclaracion::~frmZTDetDeclaracion() = default;

void frmZTDetDeclaracion::ConectarBotones() {
    m_bloque = new BloqueDeEstablecimientos(*this, {.nuevo = [this] { cmdNuevo_Click(); },
                                                    .datos = [this] { cmdDatos_Click(); },
                                                    .eliminar = [this] { cmdEliminar_Click(); }});
    m_guardar =
        new ParDeBotones(*this, *m_ui->cmdGuardarDeclaracion, *m_ui->picGuardarDeclaracion,
                         {Imagen16::Guardar, Id::GuardarCambios}, [this] { cmdGuardarDeclaracion_Click(); });
    m_cerrar = new ParDeBotones(*this, *m_ui->cmdCerrarAnexo, *m_ui->picCerrarAnexo,
                                {Imagen16::Cerrar, Id::Salir}, [this] { cmdCerrarAnexo_Click(); });
}

void frmZTDetDeclaracion::ConectarLista() {
    Conectar(*this, m_ui->lsvEstablecimientos, &ListaZT::Click, [this] { lsvEstablecimientos_Click(); });
    Conectar(*this, m_ui->lsvEstablecimientos, &ListaZT::KeyUp, [this] { lsvEstablecimientos_Click(); });
    Conectar(*this, m_ui->lsvEstablecimientos, &ListaZT::DblClick,
             [this] { lsvEstablecimientos_DblClick(); });
}

void frmZTDetDeclaracion::ConectarCajas() {
    // A figure is taken when its box is left; the keys by themselves change nothing.
    PrepararCajas(*this, [] {});
    for (int k = 1; k <= kProductos; ++k) {
        AlPerderFoco(*this, &m_cnuExento(k), [this, k] {
            oAnexos().TomarExento(k, m_cnuExento(k).text());
            MostrarAnexo();
        });
        AlPerderFoco(*this, &m_cnuBaseImp(k), [this, k] {
            oAnexos().TomarBaseImp(k, m_cnuBaseImp(k).text());
            MostrarAnexo();
        });
    }
}

void frmZTDetDeclaracion::AnadirCaptions() {
    setWindowTitle(Texto(Id::DatosDelAnexo));
    PonerTextosDeDeclaracion(*this);
    m_ui->lblDatosAnexo->setText(Texto(Id::DatosDelAnexo));
    m_ui->lblEstAnexos->setText(Texto(Id::Anexos).remove(u'&'));
    m_bloque->PonerTextos();
    m_guardar->PonerTexto();
    m_cerrar->PonerTexto();
    for (int k = 1; k <= kProductos; ++k) {
        const QString producto = Texto(TextoDeProducto(k)).trimmed() + u' ';
        m_cnuExento(k).setAccessibleName(producto + m_ui->lblExento->text());
        m_cnuBaseImp(k).setAccessibleName(producto + m_ui->lblBaseImp->text());
    }
}

void frmZTDetDeclaracion::Form_Load() {
    AnadirCaptions();
    oAnexos().DiferenciasDeTipo = false;
    oAnexos().InicializarDatos();
    if (oAnexos().Procedencia == cZTAnexos::kDesdeDeclaracion) {
        oAnexos().CargarAnexos();
    }
    oAnexos().ComprobarDiferenciasDeTipo();
    InicializarLista();
    for (CajaNumerica* caja : findChildren<CajaNumerica*>()) {
        caja->setAppearance(0);
        caja->setMascara(QStringView(kMascaraImporte).toString());
        caja->setMinimumWidth(AnchoDeImporte(*caja));
    }
    RellenarEstDecl();
    MostrarAnexo();
    PosicionaFormulario(*this, 0, 0);
}

void frmZTDetDeclaracion::Form_Activate() { PresentaBotonesLista(); }

void frmZTDetDeclaracion::Form_Unload() { oEstablecimientos().SelCSES = 0; }

void frmZTDetDeclaracion::InicializarLista() {
    // The name of the list of establishments: docs/reglas.md, traza-de-otro-formulario.
    EventoConTrampa(Nombre(), u"frmZTListaEstablecimientos.InicializarLista"_s,
                    [this] { m_bloque->PonerColumnas(*m_ui->shpColumn, m_ui->lblEstAnexos); });
}

void frmZTDetDeclaracion::RellenarEstDecl() {
    ConTrampa(u"RellenarEstDecl", [this] {
        m_ui->lsvEstablecimientos->Limpiar();
        oAnexos().RellenarEstDecl();
        if (!oAnexos().BufferEstDecl.EsNula()) {
            // Should the list fail, none is selected, and no figure goes to the one that was.
            oAnexos().CSES = 0;
            AnadirEstablecimientos();
            SeleccionarEstablecimiento();
        }
    });
}

void frmZTDetDeclaracion::AnadirEstablecimientos() {
    const Tabla& establecimientos = oAnexos().BufferEstDecl;
    const ProductosDeLineas productos(oAnexos().BufferAnexos);
    for (int fila = 1; fila <= establecimientos.UltimaFila(); ++fila) {
        const int i = m_bloque->Anadir(establecimientos, fila);
        m_ui->lsvEstablecimientos->PonerSubitem(
            i, kSubitemDeProductos, productos.De(BloqueDeEstablecimientos::Clave(establecimientos, fila)));
    }
}

void frmZTDetDeclaracion::SeleccionarEstablecimiento() {
    if (!VolverAlEstablecimiento()) {
        oAnexos().InicializarDatos();
        SeleccionarPrimero(*m_ui->lsvEstablecimientos);
        oAnexos().CSES = m_ui->lsvEstablecimientos->ClaveElegida();
        CargarAnexos();
    }
}

/// False when there is none to come back to: one that was deleted, or another declarant's, is not listed.
bool frmZTDetDeclaracion::VolverAlEstablecimiento() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    // The 0 of none is the key of no establishment.
    const int elegido = lista.BuscarTexto(QString::number(oEstablecimientos().SelCSES));
    if (elegido == 0) {
        return false;
    }
    lista.Seleccionar(elegido);
    // The establishment changes before its figures are brought in: those in force, cleared at the opening,
    // are taken for its own, and its lines leave the buffer. See docs/reglas.md, anexo-en-blanco-al-volver.
    oAnexos().CSES = lista.ClaveElegida();
    CargarAnexos(oAnexos().CSES);
    return true;
}

void frmZTDetDeclaracion::CargarAnexos(qint32 lngCSES) {
    if (lngCSES != 0) {
        GuardarAnexo();
        oAnexos().CSES = lngCSES;
        oAnexos().InicializarDatos();
    }
    oAnexos().ObtenerAnexoEstab();
    MostrarAnexo();
}

void frmZTDetDeclaracion::PresentaBotonesLista() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const bool hay = lista.Cuenta() > 0;
    if (hay) {
        lista.AsegurarVisible(lista.Seleccionado());
        lista.setFocus(Qt::OtherFocusReason);
        lista.Marcar(lista.Seleccionado());
    }
    m_bloque->HabilitarOrdenes(hay);
}

void frmZTDetDeclaracion::PresentaBotonesAnexo() { m_guardar->Habilitar(oAnexos().Modificado); }

void frmZTDetDeclaracion::MostrarAnexo() {
    HabilitarCajas();
    const cZTAnexos& anexos = oAnexos();
    const qint16 ejercicio = oDeclaraciones().Ejercicio;
    for (int k = 1; k <= kProductos; ++k) {
        m_cnuExento(k).setText(Formatear(CB(anexos.SUMEX(k)), m_cnuExento(k).Mascara()));
        m_cnuBaseImp(k).setText(Formatear(CB(anexos.BASIM(k)), m_cnuBaseImp(k).Mascara()));
        m_lblTipo(k).setText(ProductoEnUso(k, ejercicio) ? Formatear(anexos.TIPIM(k), kMascaraTipo)
                                                         : QString());
        m_lblCuota(k).setText(Formatear(anexos.CUOTA(k), kMascaraImporte));
    }
    m_ui->lblTotalCuota->setText(Formatear(anexos.SumaCuotas(), kMascaraImporte));
    PresentaBotonesAnexo();
}

void frmZTDetDeclaracion::HabilitarCajas() {
    const bool hay = m_ui->lsvEstablecimientos->Cuenta() > 0;
    for (int k = 1; k <= kProductos; ++k) {
        const bool enUso = ProductoEnUso(k, oDeclaraciones().Ejercicio);
        m_cnuExento(k).setEnabled(hay && enUso);
        m_cnuBaseImp(k).setEnabled(hay && enUso);
        m_cnuExento(k).setReadOnly(!hay || !enUso);
        // The base of a product out of use is disabled, but not locked: docs/reglas.md, producto-seis.
        m_cnuBaseImp(k).setReadOnly(!hay);
    }
}

void frmZTDetDeclaracion::GuardarAnexo() {
    EstablecimientosEnLista lista(*m_ui->lsvEstablecimientos);
    oAnexos().GuardarAnexo(lista);
}

void frmZTDetDeclaracion::lsvEstablecimientos_Click() {
    if (m_ui->lsvEstablecimientos->Cuenta() > 0) {
        CargarAnexos(m_ui->lsvEstablecimientos->ClaveElegida());
        m_ui->lsvEstablecimientos->setFocus(Qt::OtherFocusReason);
    }
}

void frmZTDetDeclaracion::lsvEstablecimientos_DblClick() {
    Pantalla().PonerPuntero(Puntero::Espera);
    m_bloque->AbrirElegido();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTDetDeclaracion::cmdNuevo_Click() {
    oEstablecimientos().Modo = cZTEstablecimientos::kModoNuevo;
    if (oAnexos().Modificado) {
        GuardarAnexo();
    }
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeDetalle;
    Formularios::Descargar(Nombre());
    Formularios::Mostrar(Forma::Establecimiento);
}

void frmZTDetDeclaracion::cmdDatos_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    if (oAnexos().Modificado) {
        GuardarAnexo();
    }
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeDetalle;
    lsvEstablecimientos_DblClick();
}

void frmZTDetDeclaracion::cmdEliminar_Click() {
    if (oAnexos().Modificado) {
        Mensaje(Texto(Id::GuardarAntesDeEliminar), Texto(Id::BorradoDeEstablecimiento), true);
        return;
    }
    const qint32 clave = m_ui->lsvEstablecimientos->ClaveElegida();
    if (cZTEstablecimientos::EstablecimientosSinAnexos(clave)) {
        oEstablecimientos().EliminarEstablecimiento(clave);
        // What is in force is taken for the figures of the establishment that the selection goes to: they
        // are to be its own, not those of the deleted one.
        oAnexos().CSES = oEstablecimientos().SelCSES;
        oAnexos().InicializarDatos();
        oAnexos().ObtenerAnexoEstab();
        RellenarEstDecl();
        MostrarAnexo();
        PresentaBotonesLista();
    } else {
        Mensaje(Texto(Id::EstablecimientoConAnexos), Texto(Id::BorradoDeEstablecimiento), true);
    }
    m_ui->lsvEstablecimientos->setFocus(Qt::OtherFocusReason);
}

void frmZTDetDeclaracion::cmdGuardarDeclaracion_Click() {
    GuardarAnexo();
    if (!oAnexos().Modificado) {
        return;
    }
    if (oAnexos().GuardarDeclaracion()) {
        oAnexos().Modificado = false;
        PresentaBotonesAnexo();
    } else {
        Pantalla().MensajePlataformaConCausa(Texto(Id::DeclaracionNoGuardada), oAnexos().CausaDelFallo);
    }
}

void frmZTDetDeclaracion::cmdCerrarAnexo_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    if (oAnexos().Modificado &&
        Mensaje(Texto(Id::PreguntaCerrarConCambios), Texto(Id::GuardarCambios), false) != kRespuestaAceptar) {
        return;
    }
    Formularios::Descargar(Nombre());
    oDeclaraciones().Modo = cZTDeclaraciones::kModoExistente;
    oDeclaraciones().InicializarDatos();
    Formularios::Mostrar(Forma::Declaracion);
    Pantalla().PonerPuntero(Puntero::Normal);
}

qint64 frmZTDetDeclaracion::CentesimasDe(const CajaNumerica& caja, double tomada) {
    if (caja.text() == Formatear(CB(tomada), caja.Mascara())) {
        return EnCentesimas(tomada);
    }
    return EnCentesimas(LeerEntrada(caja.text(), EnterosDeMascara(caja.Mascara())).value_or(tomada));
}

/// The lines of all establishments, and in the place of those of the establishment on the screen its boxes: a
/// figure is taken only when its box is left.
std::vector<DatosSinGuardar> frmZTDetDeclaracion::PorGuardar() const {
    const cZTAnexos& anexos = oAnexos();
    DatosSinGuardar datos = AnexosPorGuardar();
    std::erase_if(datos.lineas, [&](const LineaSinGuardar& linea) { return linea.CSES == anexos.CSES; });
    bool cambiado = anexos.Modificado;
    for (qint16 k = 1; k <= kProductos; ++k) {
        const LineaSinGuardar linea{.CSES = anexos.CSES,
                                    .producto = k,
                                    .exento = CentesimasDe(m_cnuExento(k), anexos.SUMEX(k)),
                                    .base = CentesimasDe(m_cnuBaseImp(k), anexos.BASIM(k))};
        cambiado = cambiado || linea.exento != EnCentesimas(anexos.SUMEX(k)) ||
                   linea.base != EnCentesimas(anexos.BASIM(k));
        if (linea.exento != 0 || linea.base != 0) {
            datos.lineas.push_back(linea);
        }
    }
    return cambiado ? std::vector{datos} : std::vector<DatosSinGuardar>();
}

void frmZTDetDeclaracion::Reponer(const DatosSinGuardar& datos) {
    const Tabla& establecimientos = oAnexos().BufferEstDecl;
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const auto texto = [](qint64 centesimas) {
        return Formatear(static_cast<double>(centesimas) / kCentesimas, kMascaraImporte);
    };
    for (int fila = 1; !establecimientos.EsNula() && fila <= establecimientos.UltimaFila(); ++fila) {
        const qint32 cses = BloqueDeEstablecimientos::Clave(establecimientos, fila);
        lista.Seleccionar(lista.BuscarTexto(QString::number(cses)));
        CargarAnexos(cses);
        for (qint16 k = 1; k <= kProductos; ++k) {
            const LineaSinGuardar linea = LineaDe(datos, cses, k);
            oAnexos().TomarExento(k, texto(linea.exento));
            oAnexos().TomarBaseImp(k, texto(linea.base));
        }
        GuardarAnexo();
    }
    oAnexos().Modificado = true;
    MostrarAnexo();
}
