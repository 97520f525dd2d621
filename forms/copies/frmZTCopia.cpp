#include "forms/copies/frmZTCopia.h"

#include <QDir>

#include "core/run/Textos.h"
#include "forms/copies/TextosDeCopia.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTCopia.h"

using namespace Qt::StringLiterals;

namespace {}  // namespace

frmZTCopia::frmZTCopia() : FormularioDeCopia(kNombre), m_ui(std::make_unique<Ui::frmZTCopia>()) {
    m_ui->setupUi(this);
    PrepararBarra(*m_ui->barAvance);
    Conectar(*this, m_ui->cmdExaminar, &QAbstractButton::clicked, [this] { cmdExaminar_Click(); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTCopia::~frmZTCopia() = default;

void frmZTCopia::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::CrearCopia));
        m_ui->lblCarpeta->setText(TextoPropio(u"copia_carpeta"));
        m_ui->lblNombre->setText(TextoPropio(u"copia_nombre"));
        m_ui->cmdExaminar->setText(TextoPropio(u"copia_examinar"));
        m_ui->lblTituloUltima->setText(TextoPropio(u"copia_ultima"));
        m_ui->cmdAceptar->setText(TextoPropio(u"copia_crear"));
        m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
        m_ui->barAvance->setAccessibleName(TextoPropio(u"copia_avance"));
    });
}

void frmZTCopia::Form_Load() { AnadirCaptions(); }

void frmZTCopia::Pedir(TareaDeCopia& tarea) {
    m_tarea = &tarea;
    m_ui->txtCarpeta->setText(tarea.Carpeta());
    m_ui->txtNombre->setText(tarea.Nombre());
    m_ui->lblUltima->setText(TextoDeDia(tarea.UltimaCopia()));
    m_ui->cmdAceptar->setFocus();
    Formularios::MostrarModal(Nombre());
}

QAbstractButton* frmZTCopia::BotonDeEscape() { return m_ui->cmdCancelar; }

void frmZTCopia::cmdExaminar_Click() {
    ConTrampa(u"cmdExaminar_Click", [this] {
        ElegirFichero(*m_ui->txtCarpeta, *m_ui->txtNombre, m_tarea->Filtro(), QFileDialog::AcceptSave);
    });
}

void frmZTCopia::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        const auto destino = m_tarea->Elegir(m_ui->txtCarpeta->text(), m_ui->txtNombre->text());
        if (destino.fallo) {
            Avisar(TextoDeFallo(u"copia_no_hecha", *destino.fallo));
            return;
        }
        const QString visible = QDir::toNativeSeparators(destino.ruta);
        if (!destino.existe || Preguntar(TextoPropio(u"copia_existe").arg(visible))) {
            Crear(destino.ruta);
        }
    });
}

void frmZTCopia::Crear(const QString& ruta) {
    const auto fallo = Trabajar(*m_ui->barAvance,
                                [&](const AvanceDeCopia& avance) { return m_tarea->Copiar(ruta, avance); });
    const bool hecha = !fallo || fallo->motivo == MotivoDeCopia::FechaSinAnotar;
    if (!fallo) {
        Avisar(TextoPropio(u"copia_hecha") + u"\n\n"_s + QDir::toNativeSeparators(ruta));
    } else {
        Avisar(TextoDeFallo(hecha ? u"copia_hecha" : u"copia_no_hecha", *fallo));
    }
    if (hecha) {
        Formularios::Descargar(Nombre());
    }
}
