#include "forms/widgets/Colocacion.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "core/base/Procedimiento.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kTwipsPorPixel = 15.0;
constexpr double kPuntosPorPulgada = 72.0;
/// Type of 8.25 points at 96 dpi, for which the lengths in twips were drawn.
constexpr double kPixelesDelTipo = 11.0;

double PixelesPorTwip(const QWidget& control) {
    const double tipo = QFontInfo(control.font()).pointSizeF() * control.logicalDpiY() / kPuntosPorPulgada;
    return tipo / kPixelesDelTipo / kTwipsPorPixel;
}

QWidget* VentanaPrincipal() {
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    const auto marco = std::ranges::find(ventanas, u"MDIZT"_s, &QWidget::objectName);
    return marco == ventanas.end() ? nullptr : *marco;
}

/// The window that carries the form: its sub-window in the frame, or itself.
QWidget& MarcoDe(QWidget& form) {
    auto* hija = qobject_cast<QMdiSubWindow*>(form.parentWidget());
    return hija != nullptr ? *hija : form;
}

/// Gives the form a size in pixels, 0 leaving a side as it is; never less than its layout needs.
void DarTamano(QWidget& form, QSize pedido) {
    const QSize actual = form.size();
    const QSize nuevo(pedido.width() == 0 ? actual.width() : pedido.width(),
                      pedido.height() == 0 ? actual.height() : pedido.height());
    QWidget& marco = MarcoDe(form);
    marco.resize(marco.size() - actual + nuevo.expandedTo(form.minimumSizeHint()));
}

void Centrar(QWidget& form, const QWidget& principal) {
    QWidget& marco = MarcoDe(form);
    const auto* barra = principal.findChild<QWidget*>(u"tlbMdi"_s);
    const QSize fuera = principal.size();
    const QSize propio = marco.size();
    const int top = fuera.height() / 2 - (barra == nullptr ? 0 : barra->height()) - propio.height() / 2;
    const int left = fuera.width() / 2 - propio.width() / 2;
    QPoint lugar(std::max(0, left), std::max(0, top));
    if (marco.isWindow()) {
        const auto* area = principal.findChild<QMdiArea*>();
        lugar = (area == nullptr ? &principal : area->viewport())->mapToGlobal(lugar);
    }
    marco.move(lugar);
}

/// Waits for the form to appear: before that it has neither its sub-window nor its final size, and the frame
/// would place it by its own lights.
class AlAparecer : public QObject {
  public:
    AlAparecer(QWidget& form, QWidget& principal, QSize pedido)
        : QObject(&form), m_form(form), m_principal(&principal), m_pedido(pedido) {
        form.installEventFilter(this);
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (objeto == &m_form && evento->type() == QEvent::Show) {
            m_form.removeEventFilter(this);
            DarTamano(m_form, m_pedido);
            if (m_principal) {
                Centrar(m_form, *m_principal);
            }
            deleteLater();
        }
        return QObject::eventFilter(objeto, evento);
    }

  private:
    QWidget& m_form;
    QPointer<QWidget> m_principal;
    QSize m_pedido;
};

}  // namespace

int TwipsAPixeles(int twips, const QWidget& control) {
    return static_cast<int>(std::lround(twips * PixelesPorTwip(control)));
}

int PixelesATwips(int pixeles, const QWidget& control) {
    return static_cast<int>(std::lround(pixeles / PixelesPorTwip(control)));
}

void PosicionaFormulario(QWidget& form, int ancho, int alto) {
    Procedimiento(u"General.PosicionaFormulario", [&] {
        const QSize pedido(TwipsAPixeles(ancho, form), TwipsAPixeles(alto, form));
        DarTamano(form, pedido);
        QWidget* principal = VentanaPrincipal();
        if (principal == nullptr) {
            return;
        }
        if (form.isVisible()) {
            Centrar(form, *principal);
        } else {
            new AlAparecer(form, *principal, pedido);
        }
    });
}
