#include "forms/copies/frmZTRestaurar.h"

#include <QDir>

#include "core/run/Textos.h"
#include "forms/copies/TextosDeCopia.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTRestaurar.h"

using namespace Qt::StringLiterals;

namespace {

/// Lines that the reason of a refusal may take.
constexpr int kLineasDeEstado = 2;

}  // namespace

frmZTRestaurar::frmZTRestaurar() : FormularioDeCopia(kNombre), m_ui(std::make_unique<Ui::frmZTRestaurar>()) {
    m_ui->setupUi(this);
    PrepararBarra(*m_ui->barAvance);
    m_ui->lblEstado->setMinimumHeight(kLineasDeEstado * fontMetrics().lineSpacing());
    for (QLineEdit* caja : {m_ui->txtCarpeta, m_ui->txtNombre}) {
        const auto examinar = [this] {
            ConTrampa(u"Examinar", [this] {
                if (m_tarea != nullptr) {
                    Examinar();
                }
            });
        };
        AlPerderFoco(*this, caja, examinar);
        Conectar(*this, caja, &QLineEdit::returnPressed, examinar);
    }
    Conectar(*this, m_ui->cmdExaminar, &QAbstractButton::clicked, [this] { cmdExaminar_Click(); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTRestaurar::~frmZTRestaurar() = default;

void frmZTRestaurar::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::RestaurarCopia));
        m_ui->lblCarpeta->setText(TextoPropio(u"copia_carpeta"));
        m_ui->lblNombre->setText(TextoPropio(u"copia_nombre"));
        m_ui->cmdExaminar->setText(TextoPropio(u"copia_examinar"));
        m_ui->fraContenido->setTitle(TextoPropio(u"restaurar_contenido"));
        m_ui->lblTituloFecha->setText(TextoPropio(u"restaurar_fecha"));
        m_ui->lblTituloDeclarantes->setText(TextoPropio(u"restaurar_declarantes"));
        m_ui->lblTituloDeclaraciones->setText(TextoPropio(u"restaurar_declaraciones"));
        m_ui->cmdAceptar->setText(TextoPropio(u"restaurar_restaurar"));
        m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
        m_ui->barAvance->setAccessibleName(TextoPropio(u"copia_avance"));
    });
}

void frmZTRestaurar::Form_Load() { AnadirCaptions(); }

void frmZTRestaurar::Pedir(TareaDeRestauracion& tarea) {
    m_tarea = &tarea;
    m_ui->txtCarpeta->setText(tarea.Carpeta());
    m_ui->txtNombre->setText(tarea.Nombre());
    Examinar();
    m_ui->cmdExaminar->setFocus();
    Formularios::MostrarModal(Nombre());
}

QAbstractButton* frmZTRestaurar::BotonDeEscape() { return m_ui->cmdCancelar; }

TareaDeRestauracion::Examen frmZTRestaurar::Examinar() {
    auto examen = m_tarea->Examinar(m_ui->txtCarpeta->text(), m_ui->txtNombre->text());
    const bool valida = !examen.fallo;
    const ResumenDeCopia& resumen = examen.resumen;
    m_ui->lblFecha->setText(valida ? TextoDeMomento(resumen) : QString());
    m_ui->lblDeclarantes->setText(valida ? QString::number(resumen.declarantes) : QString());
    m_ui->lblDeclaraciones->setText(valida ? QString::number(resumen.declaraciones) : QString());
    m_ui->lblEstado->setText(valida ? QString() : TextoDeMotivo(*examen.fallo));
    return examen;
}

void frmZTRestaurar::cmdExaminar_Click() {
    ConTrampa(u"cmdExaminar_Click", [this] {
        if (ElegirFichero(*m_ui->txtCarpeta, *m_ui->txtNombre, m_tarea->Filtro(), QFileDialog::AcceptOpen)) {
            Examinar();
        }
    });
}

void frmZTRestaurar::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        const auto examen = Examinar();
        if (examen.fallo) {
            Avisar(TextoDeFallo(u"restaurar_no_hecha", *examen.fallo));
            return;
        }
        const ResumenDeCopia& copia = examen.resumen;
        const QString contenido = TextoPropio(u"restaurar_pregunta")
                                      .arg(QString::number(copia.declarantes),
                                           QString::number(copia.declaraciones), TextoDeMomento(copia));
        if (Preguntar(QDir::toNativeSeparators(copia.ruta) + u"\n\n"_s + contenido)) {
            Restaurar(copia);
        }
    });
}

void frmZTRestaurar::Restaurar(const ResumenDeCopia& copia) {
    const auto fallo = Trabajar(*m_ui->barAvance, [&](const AvanceDeCopia& avance) {
        return m_tarea->Restaurar(copia.ruta, avance);
    });
    if (fallo) {
        Avisar(TextoDeFallo(u"restaurar_no_hecha", *fallo));
        return;
    }
    Avisar(TextoPropio(u"restaurar_hecha") + u"\n\n"_s + QDir::toNativeSeparators(copia.ruta));
    Formularios::Descargar(Nombre());
}
