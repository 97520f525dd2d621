#include "forms/online/frmZTSinConexion.h"

#include <QEvent>
#include <QScreen>

#include "core/online/ActualizacionOnlineZT.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTSinConexion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoSinConexion = 211;
constexpr int kTextoLecturaFallida = 213;
constexpr int kTituloSinConexion = 214;
constexpr int kTituloLecturaFallida = 215;

}  // namespace

frmZTSinConexion::frmZTSinConexion()
    : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTSinConexion>()) {
    m_ui->setupUi(this);
    Conectar(*this, m_ui->ChkNoPreg, &QAbstractButton::toggled,
             [this] { oActOnline().ActOnline = m_ui->ChkNoPreg->isChecked() ? 0 : 1; });
    Conectar(*this, m_ui->CmdContinuar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTSinConexion::~frmZTSinConexion() = default;

void frmZTSinConexion::Form_Load() {
    PonerTextos();
    m_ui->ChkNoPreg->setChecked(oActOnline().ActOnline == 0);
    m_ui->CmdContinuar->setFocus();
    adjustSize();
    Centrar();
}

void frmZTSinConexion::changeEvent(QEvent* evento) {
    FormularioModal::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && !m_enSuSitio) {
        m_enSuSitio = true;
        Centrar();
    }
}

void frmZTSinConexion::Centrar() {
    QRect marco = frameGeometry();
    marco.moveCenter(screen()->availableGeometry().center());
    move(marco.topLeft());
}

void frmZTSinConexion::PonerTextos() {
    const bool sinConexion = oActOnline().SitAct == kDescargaFallida;
    const int titulo = sinConexion ? kTituloSinConexion : kTituloLecturaFallida;
    const int texto = sinConexion ? kTextoSinConexion : kTextoLecturaFallida;
    setWindowTitle(TextoDeFila(titulo) + u" / "_s + TextoDeFila(titulo + kOffsetEuskera));
    m_ui->lblTituloC->setText(TextoDeFila(texto));
    m_ui->lblTituloE->setText(TextoDeFila(texto + kOffsetEuskera));
}

QAbstractButton* frmZTSinConexion::BotonDeEscape() { return m_ui->CmdContinuar; }
