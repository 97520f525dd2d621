#include "app/MDIZT.h"

#include <QCloseEvent>
#include <algorithm>
#include <array>

#include "app/RecuperacionDeDatos.h"
#include "core/base/ErrorZT.h"
#include "core/base/Pantalla.h"
#include "core/online/AsistenciaOnline.h"
#include "core/online/cZTActOnline.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclarantes.h"
#include "core/run/CopiasDeSeguridad.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "core/start/Arranque.h"
#include "forms/help/EjecutarAyuda.h"
#include "forms/online/Manejador.h"
#include "forms/printing/ImagenesDeImpreso.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/Imagenes.h"
#include "forms/widgets/TeclaDeMenu.h"
#include "ui_MDIZT.h"

using namespace Qt::StringLiterals;

namespace {

struct Entrada {
    QStringView nombre;
    Id texto{};
};

/// Menus and entries with their text ids.
constexpr std::array kEntradas{Entrada{u"mnuDeclarante", Id::MenuDeclarante},
                               Entrada{u"mnuNuedec", Id::NuevoDeclarante},
                               Entrada{u"mnuAbrDec", Id::AbrirDeclarante},
                               Entrada{u"mnuEliDec", Id::BorrarDeclarante},
                               Entrada{u"mnuSalir", Id::Salir},
                               Entrada{u"mnuUtil", Id::MenuUtilidades},
                               Entrada{u"mnuExport", Id::ExportarDeclarantes},
                               Entrada{u"mnuImportDec", Id::ImportacionDeDeclarantes},
                               Entrada{u"mnuBackup", Id::CrearCopia},
                               Entrada{u"mnuRestore", Id::RestaurarCopia},
                               Entrada{u"mnuPreferencias", Id::Preferencias},
                               Entrada{u"mnuAsistenciaOnline", Id::AsistenciaOnline},
                               Entrada{u"mnuDescripAsisOnline", Id::DescripcionDeAsistencia},
                               Entrada{u"mnuAsisOnline", Id::AsistenciaOnline},
                               Entrada{u"mnuayu", Id::Ayuda},
                               Entrada{u"mnucontind", Id::ContenidoDeLaAyuda},
                               Entrada{u"mnuacerca", Id::AcercaDelPrograma}};

/// Buttons of the tool bar in order, by key, with the text ids of their tool tips.
constexpr std::array kBotones{Entrada{u"Nueva", Id::NuevoDeclarante}, Entrada{u"Abrir", Id::AbrirDeclarante},
                              Entrada{u"Eliminar", Id::BorrarDeclarante}, Entrada{u"Ayuda", Id::Ayuda},
                              Entrada{u"Salir", Id::Salir}};

/// Property of a recent entry: the NIF of the declarant that it names. Its data are the key.
constexpr auto kNifDeEntrada = "NIF";

/// Data shown in a menu is plain: an ampersand in a name is no access key.
QString DoblarSignoDeTecla(QString texto) { return texto.replace(u'&', u"&&"_s); }

/// Runs a command under the hourglass, turns the event loop once and sets the default pointer back.
template <class F>
void ConEspera(F&& cuerpo) {
    Pantalla().PonerPuntero(Puntero::Espera);
    std::forward<F>(cuerpo)();
    Pantalla().CederUnaVez();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void AbrirDeclarante(qint32 csde) {
    oDeclarante().CSDE = csde;
    oDeclarante().Modo = cZTDeclarante::kModoExistente;
    oDeclarante().InicializaDatos();
    Formularios::Mostrar(Forma::ListaDeclaraciones);
}

}  // namespace

MDIZT::MDIZT() : Formulario(kNombre), m_ui(std::make_unique<Ui::MDIZT>()) {
    m_ui->setupUi(this);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_recientes = {m_ui->d1, m_ui->d2, m_ui->d3, m_ui->d4};
    CrearImagenesDeImpreso(*this);
    PrepararBarra();
    ConectarMenus();
    for (QMenu* menu : findChildren<QMenu*>()) {
        new TeclaDeMenu(*menu);
    }
    Formularios::FijarMarco(m_ui->areaDeTrabajo);
    FijarMenus(this);
}

MDIZT::~MDIZT() {
    FijarMenus(nullptr);
    Formularios::FijarMarco(nullptr);
}

void MDIZT::PrepararBarra() {
    for (const Entrada& boton : kBotones) {
        const QString clave = boton.nombre.toString();
        QAction* accion = m_ui->tlbMdi->addAction(ilsMDI16_(clave), QString());
        accion->setObjectName(clave);
        QWidget* control = m_ui->tlbMdi->widgetForAction(accion);
        control->setObjectName(clave);
        control->setFocusPolicy(Qt::TabFocus);
        Conectar(*this, accion, &QAction::triggered, [this, clave] { BotonDeBarra(clave); });
    }
}

void MDIZT::ConectarMenus() {
    const auto conectar = [this](QAction* entrada, auto cuerpo) {
        Conectar(*this, entrada, &QAction::triggered, std::move(cuerpo));
    };
    conectar(m_ui->mnuNuedec, [this] { mnuNuedec_Click(); });
    conectar(m_ui->mnuAbrDec, [this] { mnuAbrDec_Click(); });
    conectar(m_ui->mnuEliDec, [this] { mnuEliDec_Click(); });
    for (QAction* entrada : m_recientes) {
        conectar(entrada, [this, entrada] { AbrirReciente(*entrada); });
    }
    conectar(m_ui->mnuSalir, [] { Formularios::Descargar(kNombre); });
    conectar(m_ui->mnuExport, [] { Formularios::Mostrar(Forma::ExpDeclarantes); });
    conectar(m_ui->mnuImportDec, [] { ConEspera([] { Formularios::Mostrar(Forma::ImpDeclarantes); }); });
    conectar(m_ui->mnuBackup, [this] { CrearCopiaDeSeguridad(ManejadorDe(*this)); });
    conectar(m_ui->mnuRestore, [this] { mnuRestore_Click(); });
    conectar(m_ui->mnuPreferencias, [] { Formularios::MostrarModal(Forma::Preferencias); });
    conectar(m_ui->mnuDescripAsisOnline, [this] { mnuDescripAsisOnline_Click(); });
    conectar(m_ui->mnuAsisOnline, [this] { mnuAsisOnline_Click(); });
    conectar(m_ui->mnucontind, [this] { mnucontind_Click(); });
    conectar(m_ui->mnuacerca, [] { Formularios::MostrarModal(Forma::About); });
}

void MDIZT::AnadirCaptions() {
    ConTrampa(u"AñadirCaptions", [this] {
        PonerTextos();
        PonerAyudaEnIdioma();
    });
}

void MDIZT::PonerTextos() {
    setWindowTitle(Texto(Id::NombreDelImpuesto));
    for (const Entrada& entrada : kEntradas) {
        const QString nombre = entrada.nombre.toString();
        if (auto* menu = findChild<QMenu*>(nombre)) {
            menu->findChild<TeclaDeMenu*>(QString(), Qt::FindDirectChildrenOnly)
                ->PonerTitulo(Texto(entrada.texto));
        } else {
            findChild<QAction*>(nombre)->setText(Texto(entrada.texto));
        }
    }
    for (const Entrada& boton : kBotones) {
        auto* accion = findChild<QAction*>(boton.nombre.toString());
        accion->setText(Texto(boton.texto));
        accion->setToolTip(Texto(boton.texto));
    }
}

void MDIZT::Form_Load() {
    AnadirCaptions();
    m_primeraActivacion = true;
    Habilitar_menu();
}

void MDIZT::Form_Activate() {
    if (!m_primeraActivacion) {
        return;
    }
    m_primeraActivacion = false;
    if (oActOnline().ActOnline < 0) {
        Formularios::MostrarModal(Forma::Idioma);
    }
    Habilitar_menu();
    ConTrampa(u"OfrecerRecuperacion", OfrecerRecuperacion);
}

void MDIZT::Form_Unload() {
    Formularios::DescargarTodos(kNombre);
    CopiarPrimerosDatos();
    Entorno().Terminar(0);
}

void MDIZT::closeEvent(QCloseEvent* evento) {
    evento->accept();
    Evento([] { Formularios::Descargar(kNombre); });
}

void MDIZT::HabilitarMenu() {
    m_ui->mnuDeclarante->setEnabled(true);
    m_ui->mnuUtil->setEnabled(true);
    Boton(u"Salir"_s).setEnabled(true);
    MostrarRecientes(ExisteDec());
    Boton(u"Nueva"_s).setEnabled(true);
}

void MDIZT::MostrarRecientes(const Tabla& declarantes) {
    const bool hay = !declarantes.EsNula();
    for (QAction* accion :
         {m_ui->mnuExport, m_ui->mnuAbrDec, m_ui->mnuEliDec, &Boton(u"Abrir"_s), &Boton(u"Eliminar"_s)}) {
        accion->setEnabled(hay);
    }
    if (!hay) {
        return;
    }
    const int ultima = std::min(declarantes.UltimaFila(), kRecientes);
    for (int fila = 1; fila <= ultima; ++fila) {
        QAction& entrada = *m_recientes.at(static_cast<std::size_t>(fila - 1));
        const QString nif = declarantes(ColumnaDeRecientes::kNIF, fila).aTexto();
        const QString texto = nif + u" - "_s + declarantes(ColumnaDeRecientes::kNombre, fila).aTexto();
        entrada.setText(DoblarSignoDeTecla(texto));
        entrada.setData(declarantes(ColumnaDeRecientes::kCSDE, fila).aEntero32());
        entrada.setProperty(kNifDeEntrada, nif);
        entrada.setVisible(true);
    }
}

void MDIZT::DeshabilitarMenu() {
    m_ui->mnuDeclarante->setEnabled(false);
    m_ui->mnuUtil->setEnabled(false);
    for (const QString& clave : {u"Nueva"_s, u"Abrir"_s, u"Eliminar"_s, u"Salir"_s}) {
        Boton(clave).setEnabled(false);
    }
    for (QAction* entrada : m_recientes) {
        entrada->setVisible(false);
    }
}

QAction& MDIZT::Boton(const QString& clave) { return *m_ui->tlbMdi->findChild<QAction*>(clave); }

void MDIZT::mnuNuedec_Click() {
    ConEspera([] {
        oDeclarante().Modo = cZTDeclarante::kModoNuevo;
        oDeclarante().InicializaDatos();
        oDeclarante().Procedencia = cZTDeclarante::kDesdeMenu;
        Formularios::Mostrar(Forma::Declarante);
    });
}

void MDIZT::mnuAbrDec_Click() {
    ConTrampa(u"mnuAbrDec_Click", [] {
        Pantalla().PonerPuntero(Puntero::Espera);
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        const Tabla& declarantes = oListaDeclarantes().vBufferDeclarantes;
        const int ultima = declarantes.UltimaFila();
        if (ultima > 0) {
            oListaDeclarantes().Modo = cZTListaDeclarantes::kModoAbrir;
            Formularios::Mostrar(Forma::ListaDeclarantes);
        } else {
            AbrirDeclarante(declarantes(0, 0).aEntero32());
        }
        Pantalla().PonerPuntero(Puntero::Normal);
    });
}

void MDIZT::mnuEliDec_Click() {
    ConTrampa(u"mnuEliminarD_Click", [] {
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        if (oListaDeclarantes().vBufferDeclarantes.UltimaFila() > 0) {
            oListaDeclarantes().Modo = cZTListaDeclarantes::kModoBorrar;
            Formularios::Mostrar(Forma::ListaDeclarantes);
        }
    });
}

/// The entries stay as they are after a restore, whose store may have somebody else under a key.
void MDIZT::AbrirReciente(const QAction& entrada) {
    const qint32 csde = entrada.data().toInt();
    if (!cZTDeclarante::EsElDe(csde, entrada.property(kNifDeEntrada).toString())) {
        Mensaje(TextoPropio(u"reciente_es_otro"), Texto(Id::AbrirDeclarante), true);
        return;
    }
    AbrirDeclarante(csde);
    Pantalla().CederUnaVez();
}

/// The restored store can be older than the program, of another language and of other declarants.
void MDIZT::mnuRestore_Click() {
    if (!RestaurarCopiaDeSeguridad(ManejadorDe(*this)) || Traspaso()) {
        return;
    }
    InicializarEntorno();
    AnadirCaptions();
    Habilitar_menu();
}

void MDIZT::mnuDescripAsisOnline_Click() {
    ConTrampa(u"mnuDescripAsisOnline_Click", [this] { DescribirAsistencia(ManejadorDe(*this)); });
}

void MDIZT::mnuAsisOnline_Click() { ConTrampa(u"mnuAsisOnline_Click", AbrirAsistencia); }

void MDIZT::mnucontind_Click() { EjecutarAyuda(IDI(u"cap.htm"_s, u"kap.htm"_s), *this); }

void MDIZT::BotonDeBarra(const QString& clave) {
    const std::array<std::pair<QStringView, QAction*>, 5> ordenes{{{u"Nueva", m_ui->mnuNuedec},
                                                                   {u"Abrir", m_ui->mnuAbrDec},
                                                                   {u"Eliminar", m_ui->mnuEliDec},
                                                                   {u"Ayuda", m_ui->mnucontind},
                                                                   {u"Salir", m_ui->mnuSalir}}};
    for (const auto& [esta, orden] : ordenes) {
        if (esta == clave) {
            orden->trigger();
        }
    }
}
