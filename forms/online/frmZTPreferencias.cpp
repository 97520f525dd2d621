#include "forms/online/frmZTPreferencias.h"

#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "ui_frmZTPreferencias.h"

using namespace Qt::StringLiterals;

namespace {}  // namespace

frmZTPreferencias::frmZTPreferencias()
    : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTPreferencias>()) {
    m_ui->setupUi(this);
    Conectar(*this, m_ui->optCast, &QAbstractButton::toggled,
             [this] { OpcionCambiada(*m_ui->optCast, u"C"_s, u"E"_s); });
    Conectar(*this, m_ui->optEusk, &QAbstractButton::toggled,
             [this] { OpcionCambiada(*m_ui->optEusk, u"E"_s, u"C"_s); });
    Conectar(*this, m_ui->lblActAhora, &QAbstractButton::clicked,
             [this] { ConTrampa(u"lblActAhora_Click", [] { Entorno().ComprobarActualizacion(); }); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { Aceptar(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTPreferencias::~frmZTPreferencias() = default;

void frmZTPreferencias::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::Preferencias));
        m_ui->lblActualizaciones->setText(Texto(Id::Actualizaciones));
        m_ui->chkActOnline->setText(Texto(Id::ActualizarAlIniciar));
        m_ui->lblActAhora->setText(Texto(Id::ActualizarAhora));
        m_ui->lblIdioma->setText(Texto(Id::Idioma));
        for (QWidget* opcion : {m_ui->optCast, m_ui->optEusk}) {
            opcion->setAccessibleDescription(Texto(Id::Idioma));
        }
        m_ui->cmdAceptar->setText(Texto(Id::Aceptar));
        m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
    });
}

void frmZTPreferencias::Form_Load() {
    MostrarOpciones();
    // The window takes its size and its place with its texts on.
    AnadirCaptions();
}

void frmZTPreferencias::Form_Activate() {
    MostrarOpciones();
    AnadirCaptions();
}

void frmZTPreferencias::MostrarOpciones() {
    m_ui->chkActOnline->setChecked(oActOnline().ActOnline == 1);
    QAbstractButton* opcion = m_ui->optEusk;
    if (oFecha().IDI() == u"C") {
        opcion = m_ui->optCast;
    }
    opcion->setChecked(true);
}

void frmZTPreferencias::OpcionCambiada(QAbstractButton& opcion, const QString& puesta,
                                       const QString& quitada) {
    m_sIdioma = opcion.isChecked() ? puesta : quitada;
    // The Tab key stops once for both; the arrows go from one to the other.
    opcion.setFocusPolicy(opcion.isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void frmZTPreferencias::Aceptar() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        oActOnline().ActOnline = m_ui->chkActOnline->isChecked() ? 1 : 0;
        oActOnline().GuardarActOnline();
        oFecha().IDI(m_sIdioma);
        if (Formularios::Cargado(Forma::MDIZT)) {
            Formularios::Obtener(Forma::MDIZT).AnadirCaptions();
        }
        Formularios::Descargar(Nombre());
    });
}

QAbstractButton* frmZTPreferencias::BotonDeEscape() { return m_ui->cmdCancelar; }
