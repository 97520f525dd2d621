#include "app/frmZTAbout.h"

#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Gemelos.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTAbout.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kImagenPrograma = 1;
constexpr int kImagenAceptar = 6;
constexpr int kLadoImagen = 48;

}  // namespace

frmZTAbout::frmZTAbout() : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTAbout>()) {
    m_ui->setupUi(this);
    m_ui->picIcon->setPixmap(
        ilsMDI32(kImagenPrograma).pixmap(QSize(kLadoImagen, kLadoImagen), devicePixelRatioF()));
    m_ui->picAceptar->setIcon(ilsMDI16(kImagenAceptar));
    const auto cerrar = [this] { Formularios::Descargar(Nombre()); };
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, cerrar);
    Conectar(*this, m_ui->picAceptar, &QAbstractButton::clicked, cerrar);
}

frmZTAbout::~frmZTAbout() = default;

void frmZTAbout::AnadirCaptions() {
    EventoConTrampa(Nombre(), u"frmZTAbout.AnadirCaptions"_s, [this] {
        setWindowTitle(Texto(Id::AcercaDelPrograma));
        const QString& version = Entorno().VersionPrograma;
        if (Entorno().OffsetIdioma != kOffsetEuskera) {
            m_ui->lblVersion->setText(u"Versión "_s + version);
            NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
            return;
        }
        m_ui->lblTitle->setText(u"569 Ereduak. Batasun barruko eragiketen aitorpenak."_s);
        m_ui->lblVersion->setText(version + u" bertsioa"_s);
        m_ui->lblDescription->setText(
            u"569 Ereduak laguntza programaren bidez, ondasunen batasun barruko emateei edo eskurapenei "
            "dagozkien aitorpenak egin daitezke ordenadore pertsonal batetik."_s);
        m_ui->cmdAceptar->setText(u"&Ados"_s);
        NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
    });
}

void frmZTAbout::Form_Load() { AnadirCaptions(); }

QAbstractButton* frmZTAbout::BotonDeEscape() { return m_ui->cmdAceptar; }
