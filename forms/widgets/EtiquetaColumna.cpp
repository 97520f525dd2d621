#include "forms/widgets/EtiquetaColumna.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStyleOptionHeader>
#include <QStylePainter>

EtiquetaColumna::EtiquetaColumna(QWidget* padre) : QAbstractButton(padre) {
    setAttribute(Qt::WA_Hover);
    setPulsable(true);
}

void EtiquetaColumna::setPulsable(bool pulsable) {
    m_pulsable = pulsable;
    setFocusPolicy(pulsable ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, !pulsable);
}

void EtiquetaColumna::setAlineacion(Qt::Alignment alineacion) {
    m_alineacion = alineacion;
    update();
}

QSize EtiquetaColumna::sizeHint() const {
    const QStyleOptionHeader opcion = Opcion();
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &opcion, QSize(), this);
}

void EtiquetaColumna::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(evento);
}

void EtiquetaColumna::paintEvent(QPaintEvent*) {
    QStylePainter pintor(this);
    pintor.drawControl(QStyle::CE_Header, Opcion());
    if (hasFocus()) {
        QStyleOptionFocusRect foco;
        foco.initFrom(this);
        const int margen = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this);
        foco.rect = rect().adjusted(margen, margen, -margen, -margen);
        pintor.drawPrimitive(QStyle::PE_FrameFocusRect, foco);
    }
}

QStyleOptionHeader EtiquetaColumna::Opcion() const {
    QStyleOptionHeader opcion;
    opcion.initFrom(this);
    opcion.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    opcion.orientation = Qt::Horizontal;
    opcion.position = QStyleOptionHeader::Middle;
    opcion.textAlignment = m_alineacion;
    opcion.text = text();
    return opcion;
}
