#include "forms/widgets/BarraDeProgreso.h"

#include <QLocale>
#include <algorithm>

#include "forms/widgets/SinEntrada.h"

namespace {

constexpr int kAlto = 16;
constexpr qint64 kRepasoMs = 100;

}  // namespace

BarraDeProgreso::BarraDeProgreso(QWidget* padre) : QFrame(padre), m_barra(new QWidget(this)) {
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_barra->setObjectName(QStringLiteral("shpBarra"));
    m_barra->setBackgroundRole(QPalette::Highlight);
    m_barra->setAutoFillBackground(true);
}

void BarraDeProgreso::Empezar() {
    m_hechos = 0;
    Colocar();
    show();
    Repasar();
}

void BarraDeProgreso::Avanzar(int hechos, int total) {
    // A file that grows while it is read has more lines than were counted, be it none.
    m_total = std::max(1, total);
    m_hechos = std::clamp(hechos, 0, m_total);
    if (Colocar() || m_desdeElRepaso.hasExpired(kRepasoMs)) {
        Repasar();
    }
}

void BarraDeProgreso::Repasar() {
    setAccessibleDescription(QLocale::c().toString(100 * qint64{m_hechos} / m_total) + u'%');
    SinEntrada::Ceder();
    m_desdeElRepaso.start();
}

QSize BarraDeProgreso::sizeHint() const { return {0, kAlto + 2 * frameWidth()}; }

void BarraDeProgreso::resizeEvent(QResizeEvent* evento) {
    QFrame::resizeEvent(evento);
    Colocar();
}

bool BarraDeProgreso::Colocar() {
    QRect lugar = contentsRect();
    lugar.setWidth(static_cast<int>(qint64{lugar.width()} * m_hechos / m_total));
    const bool cambia = lugar != m_barra->geometry();
    m_barra->setGeometry(lugar);
    return cambia;
}
