#include "forms/printing/frmZTImp.h"

#include "core/base/Pantalla.h"
#include "core/printing/FechaDePresentacion.h"
#include "core/printing/ImprimirZT.h"
#include "core/printing/cZTImprimir.h"
#include "core/run/Textos.h"
#include "forms/printing/DestinoDeImpresion.h"
#include "forms/runtime/DialogosDePlataforma.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTImp.h"

using namespace Qt::StringLiterals;

namespace {

/// Size in twips.
constexpr int kAncho = 6735;
constexpr int kAlto = 3135;

constexpr int kLadoImagen = 20;

}  // namespace

frmZTImp::frmZTImp() : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTImp>()) {
    m_ui->setupUi(this);
    PonerDibujo(*m_ui->picCerrar, ilsMDI16(Imagen16::Cancelar), kLadoImagen);
    PonerDibujo(*m_ui->picImprimir, ilsMDI16(Imagen16::Imprimir), kLadoImagen);
    for (QCheckBox* ejemplar : {m_ui->chkBor, m_ui->chkint, m_ui->chkadm, m_ui->chkEntBan}) {
        Conectar(*this, ejemplar, &QAbstractButton::toggled, [this] { ActualizarOpciones(); });
    }
    AlRecibirFoco(*this, m_ui->txtFechaPresentacion,
                  [this] { SeleccionarTexto(*m_ui->txtFechaPresentacion); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked, [this] { cmdCancelar_Click(); });
    Conectar(*this, m_ui->cmdOpcImp, &QAbstractButton::clicked, [this] { cmdOpcImp_Click(); });
}

frmZTImp::~frmZTImp() = default;

void frmZTImp::AnadirCaptions() {
    setWindowTitle(Texto(Id::OpcionesDeImpresion));
    m_ui->chkBor->setText(Texto(Id::Borrador));
    m_ui->chkint->setText(Texto(Id::CopiaParaElInteresado));
    m_ui->chkadm->setText(Texto(Id::CopiaParaLaAdministracion));
    m_ui->chkEntBan->setText(Texto(Id::CopiaParaElBanco));
    m_ui->lblFechaPresentacion->setText(Texto(Id::FechaDePresentacion));
    m_ui->cmdAceptar->setText(Texto(Id::Aceptar));
    m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
    m_ui->cmdOpcImp->setText(Texto(Id::OpcionesDeImpresion));
}

void frmZTImp::Form_Load() {
    PosicionaFormulario(*this, kAncho, kAlto);
    AnadirCaptions();
}

void frmZTImp::Form_Activate() { ActualizarOpciones(); }

QAbstractButton* frmZTImp::BotonDeEscape() { return m_ui->cmdCancelar; }

bool frmZTImp::HayEjemplares() const {
    return m_ui->chkBor->isChecked() || m_ui->chkint->isChecked() || m_ui->chkadm->isChecked() ||
           m_ui->chkEntBan->isChecked();
}

void frmZTImp::ActualizarOpciones() {
    const bool hay = HayEjemplares();
    if (hay) {
        OfrecerFecha();
    } else {
        QuitarFecha();
    }
    m_ui->txtFechaPresentacion->setEnabled(hay);
    m_ui->lblFechaPresentacion->setEnabled(hay);
    m_ui->cmdAceptar->setEnabled(hay);
    constexpr auto kAceptar = Imagen16::Aceptar;
    PonerDibujo(*m_ui->picAceptar, ilsMDI16(hay ? kAceptar : Gris(kAceptar)), kLadoImagen);
}

/// The slashes stand; digits go over the blanks of the mask, which stay where a digit is deleted.
void frmZTImp::OfrecerFecha() {
    m_ui->txtFechaPresentacion->setInputMask(MascaraDeFecha().replace(u'_', u'0') + u";_"_s);
    m_ui->txtFechaPresentacion->setText(FechaDeHoy());
}

void frmZTImp::QuitarFecha() {
    m_fechaVacia = MascaraDeFecha();
    m_ui->txtFechaPresentacion->setInputMask(QString());
    m_ui->txtFechaPresentacion->setText(m_fechaVacia);
}

bool frmZTImp::ValidarFecha() {
    const QLineEdit& caja = *m_ui->txtFechaPresentacion;
    const auto falta = FaltaDeFecha(caja.displayText(), m_fechaVacia, caja.isEnabled());
    if (falta) {
        MensajeDeExclamacion(*this, *falta, Texto(Id::ErrorEnLosDatos));
    }
    return falta.has_value();
}

void frmZTImp::RecogerOpciones() const {
    cZTImprimir& opciones = oImprimir();
    opciones.Administracion = m_ui->chkadm->isChecked();
    opciones.Interesado = m_ui->chkint->isChecked();
    opciones.Borrador = m_ui->chkBor->isChecked();
    opciones.EntBank = m_ui->chkEntBan->isChecked();
}

void frmZTImp::cmdAceptar_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    if (ValidarFecha()) {
        Pantalla().PonerPuntero(Puntero::Normal);
        m_ui->txtFechaPresentacion->setFocus(Qt::OtherFocusReason);
        return;
    }
    RecogerOpciones();
    oImprimir().FechaPresentacion = m_ui->txtFechaPresentacion->displayText();
    Formularios::Descargar(Nombre());
    Pantalla().CederUnaVez();
    ImprimirDeclaracion();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTImp::cmdCancelar_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    Formularios::Descargar(Nombre());
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTImp::cmdOpcImp_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    oDestinoDeImpresion().Elegir(*this);
    Pantalla().PonerPuntero(Puntero::Normal);
}
