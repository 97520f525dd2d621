#include "forms/widgets/CabeceraDeLista.h"

#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QStylePainter>
#include <algorithm>

#include "forms/widgets/Colocacion.h"
#include "forms/widgets/ListaZT.h"

namespace {

/// Left edge of the first label, in twips from that of the list.
constexpr int kSangria = 10;
/// The first column that is seen.
constexpr int kPrimeraColumna = 2;

}  // namespace

void CabeceraDeLista::Colocar(const ListaZT& lista, const QList<QWidget*>& etiquetas, QWidget* picOrden) {
    m_lista = &lista;
    m_etiquetas = etiquetas;
    m_picOrden = picOrden;
    if (picOrden != nullptr) {
        picOrden->setAttribute(Qt::WA_TransparentForMouseEvents);
        picOrden->raise();
    }
    connect(lista.header(), &QHeaderView::sectionResized, this, &CabeceraDeLista::Recolocar,
            Qt::UniqueConnection);
    updateGeometry();
    Recolocar();
}

QSize CabeceraDeLista::sizeHint() const {
    QSize tamano(0, 0);
    for (const QWidget* etiqueta : m_etiquetas) {
        tamano.rwidth() += etiqueta->sizeHint().width();
        tamano.setHeight(std::max(tamano.height(), etiqueta->sizeHint().height()));
    }
    return tamano;
}

void CabeceraDeLista::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    Recolocar();
}

void CabeceraDeLista::paintEvent(QPaintEvent*) {
    QStyleOptionHeader opcion;
    opcion.initFrom(this);
    opcion.position = QStyleOptionHeader::End;
    QStylePainter(this).drawControl(QStyle::CE_HeaderSection, opcion);
}

void CabeceraDeLista::Recolocar() {
    if (m_lista == nullptr) {
        return;
    }
    int left = TwipsAPixeles(kSangria, *m_lista);
    int columna = kPrimeraColumna;
    for (QWidget* etiqueta : m_etiquetas) {
        const int ancho = m_lista->AnchoColumna(columna++);
        etiqueta->setGeometry(left, 0, ancho, height());
        left += ancho;
    }
    if (m_picOrden != nullptr) {
        m_picOrden->move(m_picOrden->x(), (height() - m_picOrden->height()) / 2);
    }
}
