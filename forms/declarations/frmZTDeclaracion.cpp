#include "forms/declarations/frmZTDeclaracion.h"

#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/records/Productos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/declarations/TextosDeDeclaracion.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/FamiliaDeControles.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTDeclaracion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLadoDeImagen = 20;

/// A figure of the grid: a zero shows as nothing.
QString Cifra(double valor, QStringView mascara) { return Formatear(CB(valor), mascara); }

/// The rate of a product. That of product 6 is the one that the work on annexes has left: docs/reglas.md,
/// producto-seis.
QString Tipo(int k) {
    if (k <= kProductosEnUso) {
        return Cifra(oDeclaraciones().TIPIM(k), kMascaraTipo);
    }
    return ProductoEnUso(k, oDeclaraciones().Ejercicio)
               ? CB(Formatear(oAnexos().TIPIM(k), kMascaraTipo)).aTexto()
               : QString();
}

}  // namespace

frmZTDeclaracion::frmZTDeclaracion()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTDeclaracion>()) {
    m_ui->setupUi(this);
    PonerDibujo(*m_ui->picDatos, ilsMDI16(Imagen16::Anexos), kLadoDeImagen);
    for (QLabel* columna : {m_ui->lblExento, m_ui->lblBaseImp, m_ui->lblCuotaTotal}) {
        columna->setMinimumWidth(AnchoDeImporte(*columna));
    }
    m_ui->lblTipo->setMinimumWidth(AnchoDeTipo(*m_ui->lblTipo));
    Conectar(*this, m_ui->cmdDetalles, &QAbstractButton::clicked, [this] { cmdDetalles_Click(); });
    m_cerrar = new ParDeBotones(*this, *m_ui->cmdCerrarDec, *m_ui->picCerrar, {Imagen16::Cerrar, Id::Salir},
                                [this] { cmdCerrarDec_Click(); });
}

frmZTDeclaracion::~frmZTDeclaracion() = default;

void frmZTDeclaracion::AnadirCaptions() {
    setWindowTitle(Texto(Id::DatosDeLaDeclaracion));
    PonerTextosDeDeclaracion(*this);
    m_ui->lblTotal->setText(Texto(Id::Total));
    m_ui->cmdDetalles->setText(Texto(Id::Anexos));
    m_ui->lblDescuadre->setText(TextoPropio(u"declaracion_descuadre"));
    m_ui->lblDescuadre->setAccessibleName(m_ui->lblDescuadre->text());
    m_cerrar->PonerTexto();
}

void frmZTDeclaracion::Form_Load() {
    AnadirCaptions();
    MostrarDeclaracion();
    PosicionaFormulario(*this, 0, 0);
    Pantalla().CederUnaVez();
}

void frmZTDeclaracion::Form_Unload() { Pantalla().PonerPuntero(Puntero::Normal); }

void frmZTDeclaracion::MostrarDeclaracion() {
    const cZTDeclaraciones& declaracion = oDeclaraciones();
    // A new declaration has its rates already, but shows an empty grid.
    if (declaracion.Modo == cZTDeclaraciones::kModoNuevo) {
        return;
    }
    const FamiliaDeControles<QLabel> exento(*this, u"lblExento");
    const FamiliaDeControles<QLabel> baseImp(*this, u"lblBaseImp");
    const FamiliaDeControles<QLabel> tipo(*this, u"lblTipo");
    const FamiliaDeControles<QLabel> cuota(*this, u"lblCuota");
    double total = 0.0;
    for (int k = 1; k <= kProductos; ++k) {
        exento(k).setText(Cifra(declaracion.SUMEX(k), kMascaraImporte));
        baseImp(k).setText(Cifra(declaracion.BASIM(k), kMascaraImporte));
        tipo(k).setText(Tipo(k));
        cuota(k).setText(Cifra(declaracion.CUOTA(k), kMascaraImporte));
        total += declaracion.CUOTA(k);
    }
    m_ui->lblCuotaTotal->setText(Cifra(total, kMascaraImporte));
    m_ui->lblDescuadre->setVisible(declaracion.Descuadrada());
}

void frmZTDeclaracion::cmdDetalles_Click() {
    oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
    oAnexos().Modificado = false;
    Formularios::Mostrar(Forma::DetDeclaracion);
    Formularios::Descargar(Nombre());
}

void frmZTDeclaracion::cmdCerrarDec_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    Formularios::Descargar(Nombre());
    Formularios::Mostrar(Forma::ListaDeclaraciones);
    Pantalla().PonerPuntero(Puntero::Normal);
}
