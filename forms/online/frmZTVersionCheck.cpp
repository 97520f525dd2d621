#include "forms/online/frmZTVersionCheck.h"

#include "core/online/PaginaDeEnvio.h"
#include "core/online/cZTActOnline.h"
#include "core/online/plataforma/Navegador.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTVersionCheck.h"

using namespace Qt::StringLiterals;

namespace {

QString Unidas(const QString& uno, const QString& dos, const QString& tres) {
    return uno + u'.' + dos + u'.' + tres;
}

/// Screen readers say what version it is before they say the version.
void PonerVersion(const QLabel& rotulo, QLabel& etiqueta, const QString& version) {
    etiqueta.setText(version);
    etiqueta.setAccessibleName(rotulo.text() + u": "_s + version);
}

/// Boxes show the beginning of what they hold.
void Poner(QLineEdit& caja, const QString& texto) {
    caja.setText(texto);
    caja.setCursorPosition(0);
}

}  // namespace

frmZTVersionCheck::frmZTVersionCheck()
    : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTVersionCheck>()) {
    m_ui->setupUi(this);
    Conectar(*this, m_ui->CmdActualizar, &QAbstractButton::clicked, [this] { CmdActualizar_Click(); });
    Conectar(*this, m_ui->TxtUrl, &CajaEnlace::pulsada, [this] { TxtUrl_Click(); });
    Conectar(*this, m_ui->CmdContinuar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTVersionCheck::~frmZTVersionCheck() = default;

void frmZTVersionCheck::Form_Load() {
    const cZTActOnline& act = oActOnline();
    m_ui->CmdActualizar->setEnabled(act.ComVer != 0);
    Poner(*m_ui->TxtUrl, act.ActDownloadURL);
    Poner(*m_ui->TxtPath, act.ActFile);
    PonerVersion(*m_ui->LblAct, *m_ui->LblActual, Unidas(act.ProgVer1, act.ProgVer2, act.ProgVer3));
    PonerVersion(*m_ui->LblDisp, *m_ui->LblDisponible, Unidas(act.ActVer1, act.ActVer2, act.ActVer3));
    m_ui->TxtInfo->setPlainText(act.ActDescripcion);
    m_ui->CmdContinuar->setFocus();
}

void frmZTVersionCheck::LanzarExplorador(const QWidget& Padre, const QString& URL) {
    const QString pagina = EscribirPaginaDeEnvio(URL);
    const QString navegador = BuscarNavegador();
    if (navegador.isEmpty()) {
        const QString texto = Texto(Id::SinNavegador);
        const QString titulo = Texto(Id::TituloSinNavegador);
        Mensaje(texto, titulo, true);
        return;
    }
    AbrirConNavegador(navegador, pagina, Padre.effectiveWinId());
}

void frmZTVersionCheck::CmdActualizar_Click() {
    ConTrampa(u"CmdActualizar_Click", [this] {
        LanzarExplorador(*this, oActOnline().ActDownloadURL);
        Formularios::Descargar(Nombre());
    });
}

void frmZTVersionCheck::TxtUrl_Click() {
    ConTrampa(u"TxtUrl_Click", [this] { LanzarExplorador(*this, oActOnline().ActDownloadURL); });
}

QAbstractButton* frmZTVersionCheck::BotonDeEscape() { return m_ui->CmdContinuar; }
