#include "forms/help/BusquedaEnAyuda.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"

using namespace Qt::StringLiterals;

BusquedaEnAyuda::BusquedaEnAyuda(QWidget* padre)
    : QWidget(padre), m_texto(new QLineEdit), m_cuenta(new QLabel), m_resultados(new QListWidget) {
    m_texto->setObjectName(u"txtBuscarEnTodos"_s);
    m_texto->setClearButtonEnabled(true);
    m_cuenta->setObjectName(u"lblCuenta"_s);
    m_cuenta->setTextFormat(Qt::PlainText);
    m_resultados->setObjectName(u"lstResultados"_s);
    m_resultados->setWordWrap(true);
    m_resultados->setAlternatingRowColors(true);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(m_texto);
    columna->addWidget(m_cuenta);
    columna->addWidget(m_resultados);
    connect(m_texto, &QLineEdit::textChanged, this, [this] { Evento([this] { Buscar(); }); });
    connect(m_texto, &QLineEdit::returnPressed, m_resultados, [this] { m_resultados->setFocus(); });
    const auto elegir = [this] { Evento([this] { Elegir(); }); };
    connect(m_resultados, &QListWidget::itemActivated, this, elegir);
    connect(m_resultados, &QListWidget::itemClicked, this, elegir);
}

void BusquedaEnAyuda::PonerTemas(const TemasDeAyuda& temas) {
    m_temas = temas;
    m_texto->setPlaceholderText(TextoPropio(u"ayuda_buscar_todos"));
    m_texto->setAccessibleName(TextoPropio(u"ayuda_buscar_todos"));
    m_resultados->setAccessibleName(TextoPropio(u"ayuda_resultados"));
    m_texto->clear();
    Buscar();
}

void BusquedaEnAyuda::Empezar() {
    m_texto->setFocus(Qt::ShortcutFocusReason);
    m_texto->selectAll();
}

void BusquedaEnAyuda::Buscar() {
    m_resultados->clear();
    for (const HallazgoDeAyuda& hallazgo : m_temas.Buscar(m_texto->text())) {
        auto* fila = new QListWidgetItem(
            u"%1 (%2)\n%3"_s.arg(hallazgo.tema.titulo, QString::number(hallazgo.veces), hallazgo.fragmento),
            m_resultados);
        fila->setData(Qt::UserRole, hallazgo.tema.fichero);
    }
    m_resultados->setCurrentRow(0);
    m_cuenta->setText(m_texto->text().isEmpty() ? QString()
                                                : TextoPropio(u"ayuda_temas_hallados") + u' ' +
                                                      QString::number(m_resultados->count()));
}

void BusquedaEnAyuda::Elegir() {
    if (const QListWidgetItem* fila = m_resultados->currentItem()) {
        Q_EMIT Elegido(fila->data(Qt::UserRole).toString(), m_texto->text());
    }
}
