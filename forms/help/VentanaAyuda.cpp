#include "forms/help/VentanaAyuda.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWindow>
#include <algorithm>
#include <array>

#include "core/run/Textos.h"
#include "forms/help/BusquedaEnAyuda.h"
#include "forms/help/TextoAyuda.h"
#include "forms/runtime/Eventos.h"
#include "forms/widgets/Imagenes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDuracionDelAvisoMs = 5000;

/// Sizes at the start, in characters.
constexpr int kAnchoDelContenido = 44;
constexpr int kAnchoDelTema = 92;
constexpr int kAlto = 42;

struct OrdenDeAyuda {
    QStringView nombre;
    QStringView texto;
};

/// The commands with the keys of their texts.
constexpr std::array kOrdenes{
    OrdenDeAyuda{u"mnuAtras", u"ayuda_atras"},       OrdenDeAyuda{u"mnuAdelante", u"ayuda_adelante"},
    OrdenDeAyuda{u"mnuInicio", u"ayuda_inicio"},     OrdenDeAyuda{u"mnuImprimir", u"ayuda_imprimir"},
    OrdenDeAyuda{u"mnuAumentar", u"ayuda_aumentar"}, OrdenDeAyuda{u"mnuReducir", u"ayuda_reducir"},
    OrdenDeAyuda{u"mnuAnterior", u"ayuda_anterior"}, OrdenDeAyuda{u"mnuSiguiente", u"ayuda_siguiente"}};

QString ConTecla(const QAction& orden) {
    const QString tecla = orden.shortcut().toString(QKeySequence::NativeText);
    return tecla.isEmpty() ? orden.text() : orden.text() + u" ("_s + tecla + u')';
}

QPointer<VentanaAyuda>& LaVentana() {
    static QPointer<VentanaAyuda> ventana;
    return ventana;
}

}  // namespace

VentanaAyuda& VentanaAyuda::Unica(QWidget& duena) {
    QPointer<VentanaAyuda>& ventana = LaVentana();
    if (!ventana) {
        ventana = new VentanaAyuda(&duena);
    }
    return *ventana;
}

void VentanaAyuda::CambiarJuego(const QString& carpeta, const QString& primero) {
    VentanaAyuda* ventana = LaVentana();
    if (ventana == nullptr || !ventana->isVisible() || carpeta == ventana->m_temas.Carpeta()) {
        return;
    }
    const qsizetype lugar = ventana->Lugar();
    ventana->m_primero = primero;
    ventana->Empezar(carpeta);
    ventana->m_texto->IrA(ventana->m_temas.Temas().value(lugar, {primero, {}, 0, {}}).fichero);
    ventana->m_texto->clearHistory();
}

VentanaAyuda::VentanaAyuda(QWidget* duena)
    : QMainWindow(duena),
      m_fichas(new QTabWidget),
      m_contenido(new QTreeWidget),
      m_enTodos(new BusquedaEnAyuda),
      m_texto(new TextoAyuda),
      m_busqueda(new QLineEdit) {
    setObjectName(u"VentanaAyuda"_s);
    CrearPaneles();
    CrearBarra();
    connect(m_texto, &TextoAyuda::TemaMostrado, this,
            [this](const QString& tema) { Evento([&] { Seguir(tema); }); });
    connect(m_enTodos, &BusquedaEnAyuda::Elegido, this, &VentanaAyuda::AbrirHallazgo);
    const auto abrir = [this](const QTreeWidgetItem* tema) {
        Evento([&] { m_texto->IrA(tema->data(0, Qt::UserRole).toString()); });
    };
    connect(m_contenido, &QTreeWidget::itemActivated, this, abrir);
    connect(m_contenido, &QTreeWidget::itemClicked, this, abrir);
}

void VentanaAyuda::CrearPaneles() {
    m_texto->setObjectName(u"txtAyuda"_s);
    m_contenido->setObjectName(u"tvwContenido"_s);
    m_contenido->setHeaderHidden(true);
    m_fichas->setObjectName(u"tabAyuda"_s);
    m_fichas->setDocumentMode(true);
    m_fichas->addTab(m_contenido, QString());
    m_fichas->addTab(m_enTodos, QString());
    auto* division = new QSplitter;
    division->addWidget(m_fichas);
    division->addWidget(m_texto);
    division->setStretchFactor(1, 1);
    division->setChildrenCollapsible(false);
    const int letra = fontMetrics().averageCharWidth();
    const int contenido = letra * kAnchoDelContenido;
    const int tema = std::max(letra * kAnchoDelTema, m_texto->AnchoNecesario());
    division->setSizes({contenido, tema});
    resize(contenido + division->handleWidth() + tema, fontMetrics().height() * kAlto);
    setCentralWidget(division);
}

QAction* VentanaAyuda::CrearOrden(const QString& nombre, const QIcon& imagen,
                                  const QList<QKeySequence>& teclas, void (VentanaAyuda::*orden)()) {
    auto* accion = new QAction(imagen, QString(), this);
    accion->setObjectName(nombre);
    accion->setShortcuts(teclas);
    connect(accion, &QAction::triggered, this, [this, orden] { Evento([&] { (this->*orden)(); }); });
    addAction(accion);
    return accion;
}

void VentanaAyuda::CrearBarra() {
    const auto imagen = [this](QStyle::StandardPixmap cual) { return style()->standardIcon(cual); };
    auto* atras = new QAction(imagen(QStyle::SP_ArrowBack), QString(), this);
    auto* adelante = new QAction(imagen(QStyle::SP_ArrowForward), QString(), this);
    atras->setObjectName(u"mnuAtras"_s);
    atras->setShortcut(Qt::ALT | Qt::Key_Left);
    adelante->setObjectName(u"mnuAdelante"_s);
    adelante->setShortcut(Qt::ALT | Qt::Key_Right);
    connect(atras, &QAction::triggered, m_texto, &QTextBrowser::backward);
    connect(adelante, &QAction::triggered, m_texto, &QTextBrowser::forward);
    connect(m_texto, &QTextBrowser::backwardAvailable, atras, &QAction::setEnabled);
    connect(m_texto, &QTextBrowser::forwardAvailable, adelante, &QAction::setEnabled);

    QToolBar* barra = addToolBar(QString());
    barra->setObjectName(u"tlbAyuda"_s);
    barra->setMovable(false);
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    barra->addActions({atras, adelante,
                       CrearOrden(u"mnuInicio"_s, ilsMDI16_(u"Ayuda"_s), {Qt::ALT | Qt::Key_Home},
                                  &VentanaAyuda::mnuInicio_Click),
                       CrearOrden(u"mnuImprimir"_s, ilsMDI16(Imagen16::Imprimir), {QKeySequence::Print},
                                  &VentanaAyuda::mnuImprimir_Click),
                       CrearOrden(u"mnuAumentar"_s, {}, QKeySequence::keyBindings(QKeySequence::ZoomIn),
                                  &VentanaAyuda::mnuAumentar_Click),
                       CrearOrden(u"mnuReducir"_s, {}, QKeySequence::keyBindings(QKeySequence::ZoomOut),
                                  &VentanaAyuda::mnuReducir_Click)});
    barra->addSeparator();
    m_busqueda->setObjectName(u"txtBuscar"_s);
    m_busqueda->setClearButtonEnabled(true);
    barra->addWidget(m_busqueda);
    barra->addActions({CrearOrden(u"mnuAnterior"_s, imagen(QStyle::SP_ArrowUp), {Qt::SHIFT | Qt::Key_F3},
                                  &VentanaAyuda::mnuAnterior_Click),
                       CrearOrden(u"mnuSiguiente"_s, imagen(QStyle::SP_ArrowDown), {Qt::Key_F3},
                                  &VentanaAyuda::mnuSiguiente_Click)});
    for (QAction* accion : barra->actions()) {
        barra->widgetForAction(accion)->setFocusPolicy(Qt::TabFocus);
    }
    m_busqueda->setFocusPolicy(Qt::StrongFocus);
    connect(m_busqueda, &QLineEdit::returnPressed, this, [this] { Evento([this] { BuscarEnTema(false); }); });

    CrearOrden(u"mnuBuscar"_s, {}, {QKeySequence::Find}, &VentanaAyuda::mnuBuscar_Click);
    CrearOrden(u"mnuBuscarEnTodos"_s, {}, {Qt::CTRL | Qt::SHIFT | Qt::Key_F},
               &VentanaAyuda::mnuBuscarEnTodos_Click);
    CrearOrden(u"mnuTamano"_s, {}, {Qt::CTRL | Qt::Key_0}, &VentanaAyuda::mnuTamano_Click);
    CrearOrden(u"mnuCerrar"_s, {}, {Qt::Key_Escape}, &VentanaAyuda::mnuCerrar_Click);
}

void VentanaAyuda::Mostrar(const QString& carpeta, const QString& tema, const QString& primero) {
    m_primero = primero;
    const bool deNuevo = !isVisible() || carpeta != m_temas.Carpeta();
    if (deNuevo) {
        Empezar(carpeta);
    }
    m_texto->IrA(tema);
    if (deNuevo) {
        m_texto->clearHistory();
    }
    PonerEncima();
    show();
    raise();
    activateWindow();
    m_texto->setFocus();
}

void VentanaAyuda::Empezar(const QString& carpeta) {
    m_temas = TemasDeAyuda(carpeta);
    PonerTextos();
    PonerContenido();
    m_enTodos->PonerTemas(m_temas);
    m_fichas->setCurrentIndex(0);
    m_busqueda->clear();
    m_texto->PonerCarpeta(carpeta);
    m_texto->Ampliar(0);
}

void VentanaAyuda::PonerTextos() {
    for (const OrdenDeAyuda& orden : kOrdenes) {
        auto* accion = findChild<QAction*>(orden.nombre.toString());
        accion->setText(TextoPropio(orden.texto));
        accion->setToolTip(ConTecla(*accion));
    }
    // Signs on the tool bar; their full texts are what screen readers and tool tips say.
    findChild<QAction*>(u"mnuAumentar"_s)->setIconText(u"A+"_s);
    findChild<QAction*>(u"mnuReducir"_s)->setIconText(u"A\u2212"_s);
    for (const QString& nombre : {u"mnuAnterior"_s, u"mnuSiguiente"_s}) {
        findChild<QAction*>(nombre)->setPriority(QAction::LowPriority);
    }
    m_fichas->setTabText(0, TextoPropio(u"ayuda_contenido"));
    m_fichas->setTabText(1, TextoPropio(u"ayuda_busqueda"));
    m_busqueda->setPlaceholderText(TextoPropio(u"ayuda_buscar"));
    m_busqueda->setAccessibleName(TextoPropio(u"ayuda_buscar"));
    m_contenido->setAccessibleName(TextoPropio(u"ayuda_contenido"));
    m_texto->setAccessibleName(TextoPropio(u"ayuda_tema"));
}

void VentanaAyuda::PonerContenido() {
    m_contenido->clear();
    QList<QTreeWidgetItem*> rama;
    for (const TemaDeAyuda& tema : m_temas.Temas()) {
        rama.resize(std::min<qsizetype>(tema.nivel, rama.size()));
        auto* entrada = rama.isEmpty() ? new QTreeWidgetItem(m_contenido) : new QTreeWidgetItem(rama.back());
        entrada->setText(0, tema.titulo);
        entrada->setData(0, Qt::UserRole, tema.fichero);
        rama += entrada;
    }
    m_contenido->expandAll();
}

/// Where the contents have the topic that is being read; -1 for one that they do not have.
qsizetype VentanaAyuda::Lugar() const {
    const QList<TemaDeAyuda>& temas = m_temas.Temas();
    const QString leido = m_texto->source().fileName();
    const auto tema = std::ranges::find(temas, leido, &TemaDeAyuda::fichero);
    return tema == temas.end() ? -1 : tema - temas.begin();
}

/// A dialog that takes all input would lock the help out; what stands above it is free.
void VentanaAyuda::PonerEncima() {
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* debajo = modal == nullptr ? parentWidget()->window() : modal;
    // Asking for its id would turn all controls of the frame into windows of their own.
    create();
    windowHandle()->setTransientParent(debajo->windowHandle());
}

void VentanaAyuda::Seguir(const QString& tema) {
    const QString titulo = m_texto->documentTitle();
    setWindowTitle(titulo.isEmpty() ? Texto(Id::Ayuda) : titulo + u" - "_s + Texto(Id::Ayuda));
    for (QTreeWidgetItemIterator i(m_contenido); *i != nullptr; ++i) {
        if ((*i)->data(0, Qt::UserRole).toString() == tema) {
            m_contenido->setCurrentItem(*i);
        }
    }
}

void VentanaAyuda::AbrirHallazgo(const QString& tema, const QString& texto) {
    m_busqueda->setText(texto);
    m_texto->IrA(tema);
    m_texto->moveCursor(QTextCursor::Start);
    m_texto->Encontrar(texto);
    m_texto->setFocus();
}

void VentanaAyuda::BuscarEnTema(bool haciaAtras) {
    statusBar()->clearMessage();
    if (!m_texto->Encontrar(m_busqueda->text(), haciaAtras) && !m_busqueda->text().isEmpty()) {
        statusBar()->showMessage(TextoPropio(u"ayuda_no_hallado"), kDuracionDelAvisoMs);
    }
}

void VentanaAyuda::mnuInicio_Click() { m_texto->IrA(m_primero); }

void VentanaAyuda::mnuImprimir_Click() {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(m_texto->documentTitle());
    QPrintDialog dialogo(&impresora, this);
    dialogo.setWindowTitle(TextoPropio(u"ayuda_imprimir"));
    if (dialogo.exec() == QDialog::Accepted) {
        m_texto->document()->print(&impresora);
    }
}

void VentanaAyuda::mnuBuscar_Click() {
    m_busqueda->setFocus(Qt::ShortcutFocusReason);
    m_busqueda->selectAll();
}

void VentanaAyuda::mnuSiguiente_Click() { BuscarEnTema(false); }

void VentanaAyuda::mnuAnterior_Click() { BuscarEnTema(true); }

void VentanaAyuda::mnuBuscarEnTodos_Click() {
    m_fichas->setCurrentWidget(m_enTodos);
    m_enTodos->Empezar();
}

void VentanaAyuda::mnuAumentar_Click() { m_texto->Ampliar(1); }

void VentanaAyuda::mnuReducir_Click() { m_texto->Ampliar(-1); }

void VentanaAyuda::mnuTamano_Click() { m_texto->Ampliar(0); }

void VentanaAyuda::mnuCerrar_Click() { close(); }
