#include "app/frmZTIdioma.h"

#include <QKeyEvent>

#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/cZTFecha.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "ui_frmZTIdioma.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 kSinDecidir = -1;

bool EsIntro(const QEvent& evento) {
    if (evento.type() != QEvent::KeyPress) {
        return false;
    }
    const int tecla = static_cast<const QKeyEvent&>(evento).key();
    return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

}  // namespace

frmZTIdioma::frmZTIdioma() : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTIdioma>()) {
    m_ui->setupUi(this);
    for (QAbstractButton* boton : findChildren<QAbstractButton*>()) {
        boton->installEventFilter(this);
    }
    Conectar(*this, m_ui->chkActOnline, &QAbstractButton::toggled, [this] { GuardarAviso(); });
    Conectar(*this, m_ui->cmdCastellano, &QAbstractButton::clicked, [this] { ElegirIdioma(u"C"_s); });
    Conectar(*this, m_ui->cmdEuskera, &QAbstractButton::clicked, [this] { ElegirIdioma(u"E"_s); });
}

frmZTIdioma::~frmZTIdioma() = default;

void frmZTIdioma::Form_Load() {
    Deshabilitar_menu();
    // The box starts unchecked, so checking it here is a click too and stores the setting at once.
    const qint16 aviso = oActOnline().ActOnline;
    m_ui->chkActOnline->setChecked(aviso == 1 || aviso == kSinDecidir);
}

void frmZTIdioma::Form_Activate() {
    QWidget* boton = oFecha().IDI() == u"C" ? m_ui->cmdCastellano : m_ui->cmdEuskera;
    boton->setFocus();
}

bool frmZTIdioma::eventFilter(QObject* objeto, QEvent* evento) {
    if (EsIntro(*evento)) {
        focusNextChild();
        return true;
    }
    return FormularioModal::eventFilter(objeto, evento);
}

void frmZTIdioma::ElegirIdioma(const QString& codigo) {
    oFecha().IDI(codigo);
    if (Formularios::Cargado(Forma::MDIZT)) {
        Formularios::Obtener(Forma::MDIZT).AnadirCaptions();
    }
    if (oActOnline().ActOnline == kSinDecidir) {
        m_ui->chkActOnline->hide();
        Entorno().ComprobarActualizacion();
    }
    Formularios::Descargar(Nombre());
}

void frmZTIdioma::GuardarAviso() {
    oActOnline().ActOnline = m_ui->chkActOnline->isChecked() ? 1 : 0;
    oActOnline().GuardarActOnline();
}
