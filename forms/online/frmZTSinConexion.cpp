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

namespace {}  // namespace

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
    const Id titulo = sinConexion ? Id::TituloSinConexion : Id::TituloLecturaFallida;
    const Id texto = sinConexion ? Id::SinConexion : Id::LecturaFallida;
    setWindowTitle(TextoEn(titulo, kOffsetCastellano) + u" / "_s + TextoEn(titulo, kOffsetEuskera));
    m_ui->lblTituloC->setText(TextoEn(texto, kOffsetCastellano));
    m_ui->lblTituloE->setText(TextoEn(texto, kOffsetEuskera));
}

QAbstractButton* frmZTSinConexion::BotonDeEscape() { return m_ui->CmdContinuar; }
