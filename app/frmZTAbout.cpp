#include "app/frmZTAbout.h"

#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/ParDeBotones.h"
#include "ui_frmZTAbout.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLadoImagen = 48;

}  // namespace

frmZTAbout::frmZTAbout() : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTAbout>()) {
    m_ui->setupUi(this);
    PonerDibujo(*m_ui->picIcon, ilsMDI32(Imagen32::Programa), kLadoImagen);
    m_aceptar =
        new ParDeBotones(*this, *m_ui->cmdAceptar, *m_ui->picAceptar, {Imagen16::Aceptar, Id::Aceptar},
                         [this] { Formularios::Descargar(Nombre()); });
}

frmZTAbout::~frmZTAbout() = default;

void frmZTAbout::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::AcercaDelPrograma));
        const QString& version = Entorno().VersionPrograma;
        if (Entorno().OffsetIdioma != kOffsetEuskera) {
            m_ui->lblVersion->setText(u"Versión "_s + version);
            m_aceptar->PonerTexto(m_ui->cmdAceptar->text());
            return;
        }
        m_ui->lblTitle->setText(u"569 Ereduak. Batasun barruko eragiketen aitorpenak."_s);
        m_ui->lblVersion->setText(version + u" bertsioa"_s);
        m_ui->lblDescription->setText(
            u"569 Ereduak laguntza programaren bidez, ondasunen batasun barruko emateei edo eskurapenei "
            "dagozkien aitorpenak egin daitezke ordenadore pertsonal batetik."_s);
        m_aceptar->PonerTexto(u"&Ados"_s);
    });
}

void frmZTAbout::Form_Load() { AnadirCaptions(); }

QAbstractButton* frmZTAbout::BotonDeEscape() { return m_ui->cmdAceptar; }
