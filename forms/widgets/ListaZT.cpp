#include "forms/widgets/ListaZT.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "core/base/ErrorZT.h"
#include "core/base/Valor.h"
#include "core/run/Textos.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/ModeloLista.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFilasDesplegada = 8;

/// Code of the character of a key, 0 for a key without one.
int CodigoDe(const QKeyEvent& evento) {
    switch (evento.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return ListaZT::kIntro;
        case Qt::Key_Escape:
            return ListaZT::kEscape;
        case Qt::Key_Backspace:
            return ListaZT::kRetroceso;
        default:
            break;
    }
    const bool orden =
        evento.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString texto = evento.text();
    return !orden && texto.size() == 1 && texto.front().isPrint() ? texto.front().unicode() : 0;
}

}  // namespace

ListaZT::ListaZT(QWidget* padre) : QTreeView(padre), m_modelo(new ModeloLista(this)) {
    setModel(m_modelo);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAllColumnsShowFocus(true);
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollMode(ScrollPerPixel);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
}

void ListaZT::Limpiar() { m_modelo->Vaciar(); }

void ListaZT::LimpiarColumnas() {
    m_modelo->VaciarColumnas();
    header()->setSectionHidden(0, false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
}

void ListaZT::AnadirColumna(const QString& clave, const QString& texto, int anchoTwips, bool oculta,
                            Qt::Alignment alineacion) {
    m_modelo->AnadirColumna(clave, texto, alineacion);
    const int nueva = m_modelo->columnCount() - 1;
    header()->setSectionResizeMode(QHeaderView::Interactive);
    header()->resizeSection(nueva, TwipsAPixeles(anchoTwips, *this));
    header()->setSectionHidden(nueva, oculta);
}

void ListaZT::PonerColumnas(std::span<const Columna> columnas) {
    AnadirColumna(u"Clave"_s, QString(), kAnchoDeColumna, true);
    for (const Columna& columna : columnas) {
        const QString texto = ::Texto(columna.texto);
        AnadirColumna(texto, texto.trimmed(), columna.anchoTwips, false, columna.alineacion);
    }
}

int ListaZT::CuentaColumnas() const { return m_modelo->HayColumnas() ? m_modelo->columnCount() : 0; }

QString ListaZT::ClaveColumna(int columna) const { return m_modelo->ClaveColumna(columna - 1); }

int ListaZT::AnchoColumna(int columna) const {
    if (columna < 1 || columna > header()->count()) {
        throw ErrorZT(NumError::Subindice);
    }
    return header()->sectionSize(columna - 1);
}

int ListaZT::AnchoColumnas() const { return header()->length(); }

int ListaZT::Anadir(const QString& clave, const QString& texto, const QStringList& subitems) {
    QStringList celdas;
    celdas.reserve(1 + subitems.size());
    celdas += texto;
    celdas += subitems;
    return m_modelo->Anadir(clave, celdas) + 1;
}

void ListaZT::Quitar(int i) { m_modelo->Quitar(i - 1); }

int ListaZT::Cuenta() const { return m_modelo->rowCount(); }

QString ListaZT::Clave(int i) const { return m_modelo->Clave(i - 1); }

QString ListaZT::Texto(int i) const { return m_modelo->Celda(i - 1, 0); }

QString ListaZT::Subitem(int i, int k) const { return m_modelo->Celda(i - 1, k); }

void ListaZT::PonerSubitem(int i, int k, const QString& texto) { m_modelo->PonerCelda(i - 1, k, texto); }

int ListaZT::Buscar(const QString& clave) const { return m_modelo->Buscar(clave) + 1; }

int ListaZT::BuscarTexto(const QString& texto) const {
    for (int i = 1; i <= Cuenta(); ++i) {
        if (Texto(i) == texto) {
            return i;
        }
    }
    return 0;
}

int ListaZT::Seleccionado() const {
    if (Cuenta() == 0) {
        throw ErrorZT(NumError::ObjetoNoEstablecido);
    }
    const QModelIndex actual = currentIndex();
    return actual.isValid() ? actual.row() + 1 : 1;
}

qint32 ListaZT::ClaveElegida() const { return Valor(Texto(Seleccionado())).aEntero32(); }

void ListaZT::Seleccionar(int i) {
    selectionModel()->setCurrentIndex(IndiceDe(i),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool ListaZT::Marcado(int i) const { return selectionModel()->isRowSelected(IndiceDe(i).row()); }

void ListaZT::Marcar(int i) {
    const bool solo = selectionMode() == SingleSelection;
    selectionModel()->select(IndiceDe(i),
                             (solo ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select) |
                                 QItemSelectionModel::Rows);
}

void ListaZT::AsegurarVisible(int i) { scrollTo(IndiceDe(i), EnsureVisible); }

void ListaZT::Ordenado(bool ordenado) { m_modelo->Ordenado(ordenado); }

bool ListaZT::Ordenado() const { return m_modelo->Ordenado(); }

void ListaZT::ClaveOrden(int k) { m_modelo->ClaveOrden(k); }

int ListaZT::ClaveOrden() const { return m_modelo->ClaveOrden(); }

QSize ListaZT::TamanoDesplegada() const {
    const int contenido = m_modelo->HayColumnas() ? AnchoColumnas() : std::max(0, sizeHintForColumn(0));
    const int cabecera = isHeaderHidden() ? 0 : header()->sizeHint().height();
    const int filas = std::clamp(Cuenta(), 1, kFilasDesplegada);
    const int marco = 2 * frameWidth();
    return {contenido + verticalScrollBar()->sizeHint().width() + marco,
            cabecera + filas * std::max(fontMetrics().height(), sizeHintForRow(0)) + marco};
}

void ListaZT::keyboardSearch(const QString& texto) {
    // The search looks at the column of the current index: that by which the items are ordered, if seen.
    const bool porOrden =
        Ordenado() && ClaveOrden() < m_modelo->columnCount() && !isColumnHidden(ClaveOrden());
    const int columna = porOrden ? ClaveOrden() : PrimeraColumnaVisible();
    if (Cuenta() > 0) {
        selectionModel()->setCurrentIndex(m_modelo->index(Seleccionado() - 1, columna),
                                          QItemSelectionModel::NoUpdate);
    }
    QTreeView::keyboardSearch(texto);
}

void ListaZT::keyPressEvent(QKeyEvent* evento) {
    const int codigo = CodigoDe(*evento);
    if (codigo == 0) {
        QTreeView::keyPressEvent(evento);
        return;
    }
    int keyAscii = codigo;
    Q_EMIT KeyPress(keyAscii);
    if (keyAscii == 0) {
        evento->accept();
    } else if (keyAscii == codigo) {
        QTreeView::keyPressEvent(evento);
    } else {
        QKeyEvent cambiado(evento->type(), evento->key(), evento->modifiers(),
                           QString(QChar(static_cast<char16_t>(keyAscii))), evento->isAutoRepeat(),
                           static_cast<quint16>(evento->count()));
        QTreeView::keyPressEvent(&cambiado);
        evento->setAccepted(cambiado.isAccepted());
    }
}

void ListaZT::keyReleaseEvent(QKeyEvent* evento) {
    QTreeView::keyReleaseEvent(evento);
    if (!evento->isAutoRepeat()) {
        Q_EMIT KeyUp(evento->key());
    }
}

void ListaZT::mousePressEvent(QMouseEvent* evento) {
    m_pulsada = evento->button() == Qt::LeftButton;
    QTreeView::mousePressEvent(evento);
}

void ListaZT::mouseDoubleClickEvent(QMouseEvent* evento) {
    // The toolkit takes the second press of a double click that landed on another row for a plain press.
    m_pulsada = false;
    QTreeView::mouseDoubleClickEvent(evento);
    const bool elemento = indexAt(evento->position().toPoint()).isValid();
    if (evento->button() == Qt::LeftButton && elemento && !m_pulsada) {
        Q_EMIT DblClick();
    }
}

void ListaZT::mouseReleaseEvent(QMouseEvent* evento) {
    const bool clic =
        m_pulsada && evento->button() == Qt::LeftButton && indexAt(evento->position().toPoint()).isValid();
    m_pulsada = false;
    QTreeView::mouseReleaseEvent(evento);
    if (clic) {
        Q_EMIT Click();
    }
}

QModelIndex ListaZT::IndiceDe(int i) const {
    const QModelIndex indice = m_modelo->index(i - 1, PrimeraColumnaVisible());
    if (!indice.isValid()) {
        throw ErrorZT(NumError::Subindice);
    }
    return indice;
}

int ListaZT::PrimeraColumnaVisible() const {
    int columna = 0;
    while (columna < header()->count() - 1 && header()->isSectionHidden(columna)) {
        ++columna;
    }
    return columna;
}
