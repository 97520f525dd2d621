#include "shell/VentanaAyuda.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>

#include "shell/Eventos.h"
#include "shell/Textos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoContenido = 21;

}  // namespace

VentanaAyuda& VentanaAyuda::Unica(QWidget& duena) {
    static QPointer<VentanaAyuda> ventana;
    if (!ventana) {
        ventana = new VentanaAyuda(&duena);
    }
    return *ventana;
}

VentanaAyuda::VentanaAyuda(QWidget* duena)
    : QMainWindow(duena), m_contenido(new QListWidget), m_texto(new QTextBrowser), m_busqueda(new QLineEdit) {
    setObjectName(u"VentanaAyuda"_s);
    m_contenido->setObjectName(u"lstContenido"_s);
    m_texto->setObjectName(u"txtAyuda"_s);
    m_texto->setOpenExternalLinks(false);
    m_busqueda->setObjectName(u"txtBuscar"_s);
    m_busqueda->setClearButtonEnabled(true);
    auto* division = new QSplitter;
    division->addWidget(m_contenido);
    division->addWidget(m_texto);
    division->setStretchFactor(1, 1);
    division->setSizes({fontMetrics().averageCharWidth() * 30, fontMetrics().averageCharWidth() * 80});
    setCentralWidget(division);
    resize(fontMetrics().averageCharWidth() * 115, fontMetrics().height() * 36);

    QToolBar* barra = addToolBar(QString());
    barra->setMovable(false);
    m_atras = barra->addAction(style()->standardIcon(QStyle::SP_ArrowBack), QString(), m_texto,
                               &QTextBrowser::backward);
    m_adelante = barra->addAction(style()->standardIcon(QStyle::SP_ArrowForward), QString(), m_texto,
                                  &QTextBrowser::forward);
    m_inicio = barra->addAction(style()->standardIcon(QStyle::SP_DirHomeIcon), QString(), this,
                                [this] { Evento([this] { IrA(m_primero); }); });
    m_atras->setObjectName(u"mnuAtras"_s);
    m_atras->setShortcut(QKeySequence::Back);
    m_adelante->setObjectName(u"mnuAdelante"_s);
    m_adelante->setShortcut(QKeySequence::Forward);
    m_inicio->setObjectName(u"mnuInicio"_s);
    barra->addWidget(m_busqueda);
    connect(m_texto, &QTextBrowser::backwardAvailable, m_atras, &QAction::setEnabled);
    connect(m_texto, &QTextBrowser::forwardAvailable, m_adelante, &QAction::setEnabled);
    connect(m_busqueda, &QLineEdit::returnPressed, this, &VentanaAyuda::Buscar);
    const auto abrir = [this](const QListWidgetItem* tema) {
        Evento([&] { IrA(tema->data(Qt::UserRole).toUrl()); });
    };
    connect(m_contenido, &QListWidget::itemActivated, this, abrir);
    connect(m_contenido, &QListWidget::itemClicked, this, abrir);
}

void VentanaAyuda::Mostrar(const QUrl& tema) {
    setWindowTitle(Texto(kTextoContenido));
    m_atras->setText(TextoPropio(u"ayuda_atras"));
    m_adelante->setText(TextoPropio(u"ayuda_adelante"));
    m_inicio->setText(TextoPropio(u"ayuda_inicio"));
    m_busqueda->setPlaceholderText(TextoPropio(u"ayuda_buscar"));
    m_busqueda->setAccessibleName(TextoPropio(u"ayuda_buscar"));
    m_contenido->setAccessibleName(Texto(kTextoContenido));
    m_primero = tema;
    LeerContenido(tema);
    IrA(tema);
    show();
    raise();
    activateWindow();
}

/// The contents stand beside the topics in "contenido.txt": file name, tab, title.
void VentanaAyuda::LeerContenido(const QUrl& tema) {
    m_contenido->clear();
    QFile fichero(QFileInfo(tema.toLocalFile()).path() + u"/contenido.txt"_s);
    if (!fichero.open(QIODevice::ReadOnly)) {
        return;
    }
    for (const QString& linea : QString::fromUtf8(fichero.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        auto* entrada = new QListWidgetItem(linea.section(u'\t', 1), m_contenido);
        entrada->setData(Qt::UserRole, tema.resolved(QUrl(linea.section(u'\t', 0, 0))));
    }
}

void VentanaAyuda::IrA(const QUrl& tema) {
    if (QFileInfo::exists(tema.toLocalFile())) {
        m_texto->setSource(tema);
    } else {
        m_texto->setPlainText(TextoPropio(u"ayuda_falta") + u' ' + tema.toLocalFile());
    }
}

void VentanaAyuda::Buscar() {
    if (!m_texto->find(m_busqueda->text())) {
        m_texto->moveCursor(QTextCursor::Start);
        m_texto->find(m_busqueda->text());
    }
}
