#include "forms/copies/frmZTVuelta.h"

#include <QHeaderView>
#include <QScrollBar>

#include "core/run/Textos.h"
#include "forms/copies/TextosDeCopia.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTVuelta.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLadoImagen = 32;
/// Widths of the columns in twips.
constexpr int kAnchoDeMomento = 2900;
constexpr int kAnchoDeCuenta = 2050;

}  // namespace

frmZTVuelta::frmZTVuelta() : FormularioDeCopia(kNombre), m_ui(std::make_unique<Ui::frmZTVuelta>()) {
    m_ui->setupUi(this);
    PrepararBarra(*m_ui->barAvance);
    PonerDibujo(*m_ui->imgAviso, ilsMDI32(Imagen32::Aviso), kLadoImagen);
    m_ui->lsvCopias->header()->show();
    Conectar(*this, m_ui->lsvCopias, &ListaZT::DblClick, [this] { cmdVolver_Click(); });
    Conectar(*this, m_ui->cmdVolver, &QAbstractButton::clicked, [this] { cmdVolver_Click(); });
    Conectar(*this, m_ui->cmdTerminar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTVuelta::~frmZTVuelta() = default;

void frmZTVuelta::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(TextoPropio(u"volver_titulo"));
        m_ui->lblCopias->setText(TextoPropio(u"volver_copias"));
        m_ui->cmdVolver->setText(TextoPropio(u"volver_volver"));
        m_ui->cmdTerminar->setText(TextoPropio(u"volver_terminar"));
        m_ui->barAvance->setAccessibleName(TextoPropio(u"copia_avance"));
        ListaZT& lista = *m_ui->lsvCopias;
        lista.LimpiarColumnas();
        lista.AnadirColumna(u"fecha"_s, TextoPropio(u"volver_fecha"), kAnchoDeMomento);
        lista.AnadirColumna(u"declarantes"_s, TextoPropio(u"volver_declarantes"), kAnchoDeCuenta, false,
                            Qt::AlignTrailing);
        lista.AnadirColumna(u"declaraciones"_s, TextoPropio(u"volver_declaraciones"), kAnchoDeCuenta, false,
                            Qt::AlignTrailing);
        const int bordes = 2 * lista.frameWidth() + lista.verticalScrollBar()->sizeHint().width();
        lista.setMinimumWidth(lista.AnchoColumnas() + bordes);
    });
}

void frmZTVuelta::Form_Load() { AnadirCaptions(); }

bool frmZTVuelta::Pedir(TareaDeVuelta& tarea) {
    const auto hecho = std::make_shared<bool>(false);
    m_tarea = &tarea;
    m_hecho = hecho;
    MostrarRechazo();
    LlenarLista();
    Formularios::MostrarModal(Nombre());
    return *hecho;
}

QAbstractButton* frmZTVuelta::BotonDeEscape() { return m_ui->cmdTerminar; }

bool frmZTVuelta::SoloFalta() const {
    return m_tarea->Rechazo().motivo == MotivoDeCopia::NoExiste && !m_tarea->Copias().empty();
}

void frmZTVuelta::MostrarRechazo() {
    const FalloDeCopia& rechazo = m_tarea->Rechazo();
    QString explicacion =
        TextoPropio(m_tarea->Copias().empty() ? u"volver_sin_copias" : u"volver_explicacion");
    if (SoloFalta()) {
        setWindowTitle(TextoPropio(u"volver_falta_titulo"));
        m_ui->cmdTerminar->setText(TextoPropio(u"volver_falta_empezar"));
        explicacion = TextoPropio(u"volver_falta_explicacion");
    }
    m_ui->lblFichero->setText(rechazo.fichero);
    m_ui->lblMotivo->setText(TextoDeMotivo(rechazo));
    m_ui->lblExplicacion->setText(explicacion);
    setAccessibleDescription(rechazo.fichero + u"\n"_s + m_ui->lblMotivo->text() + u"\n"_s + explicacion);
}

void frmZTVuelta::LlenarLista() {
    ListaZT& lista = *m_ui->lsvCopias;
    for (const ResumenDeCopia& copia : m_tarea->Copias()) {
        lista.Anadir(copia.ruta, TextoDeMomento(copia),
                     {QString::number(copia.declarantes), QString::number(copia.declaraciones)});
    }
    const bool hay = lista.Cuenta() > 0;
    for (QWidget* control : {static_cast<QWidget*>(m_ui->lblCopias), static_cast<QWidget*>(&lista),
                             static_cast<QWidget*>(m_ui->cmdVolver)}) {
        control->setVisible(hay);
    }
    if (hay) {
        lista.Seleccionar(1);
        lista.setFocus();
    } else {
        m_ui->cmdTerminar->setFocus();
    }
}

void frmZTVuelta::cmdVolver_Click() {
    ConTrampa(u"cmdVolver_Click", [this] {
        const ListaZT& lista = *m_ui->lsvCopias;
        const QString ruta = lista.Clave(lista.Seleccionado());
        const auto fallo = Trabajar(
            *m_ui->barAvance, [&](const AvanceDeCopia& avance) { return m_tarea->Volver(ruta, avance); });
        if (fallo) {
            Avisar(TextoDeFallo(u"restaurar_no_hecha", *fallo));
            return;
        }
        *m_hecho = true;
        Avisar(TextoPropio(SoloFalta() ? u"volver_falta_hecho" : u"volver_hecho"));
        Formularios::Descargar(Nombre());
    });
}
