#pragma once

#include <QFocusEvent>
#include <QObject>
#include <exception>
#include <functional>
#include <utility>

#include "core/base/ErrorZT.h"
#include "core/run/GeneralZT.h"
#include "forms/runtime/Formulario.h"
#include "forms/widgets/Foco.h"

/// What becomes of a failure that no handler has taken: the platform's own message, and the process ends.
/// Never swallowed and never handed to the toolkit's event loop. What the forms have typed and unsaved is
/// kept
/// first (`Formulario::PorGuardar`), and offered at the next start.
void ErrorSinTrampa(const ErrorZT& error) noexcept;
void ErrorSinTrampa(const std::exception& error) noexcept;

/// What becomes of a failure that a trap has taken: it is shown by `ShowError` under the fixed names, unless
/// it is seen to otherwise.
void ErrorConTrampa(const QString& formulario, const QString& evento, const ErrorZT& error);

/// Runs an event procedure without a trap.
template <class F>
void Evento(F&& cuerpo) noexcept {
    try {
        std::forward<F>(cuerpo)();
    } catch (const ErrorZT& error) {
        ErrorSinTrampa(error);
    } catch (const std::exception& error) {
        ErrorSinTrampa(error);
    }
}

/// Runs an event procedure with a trap: a failure is shown by `ShowError` under the fixed names, and the
/// form stays as it is.
template <class F>
void EventoConTrampa(const QString& formulario, const QString& evento, F&& cuerpo) noexcept {
    Evento([&] {
        try {
            std::forward<F>(cuerpo)();
        } catch (const ErrorZT& error) {
            ErrorConTrampa(formulario, evento, error);
        } catch (const std::exception& error) {
            ErrorConTrampa(formulario, evento, ErrorInterno(error));
        }
    });
}

/// Connects a signal to an event procedure of a form. From its unload on the form hears nothing.
template <class Emisor, class Senal, class F>
void Conectar(Formulario& formulario, Emisor* emisor, Senal senal, F cuerpo) {
    QObject::connect(emisor, senal, &formulario.Ventana(), [&formulario, cuerpo = std::move(cuerpo)] {
        if (!formulario.Descargado()) {
            Evento(cuerpo);
        }
    });
}

/// The events of a control that Qt gives as virtual functions and not as signals.
class EscuchaDeFoco : public QObject {
    Q_OBJECT
  public:
    using Cuerpo = std::function<void()>;
    EscuchaDeFoco(Formulario& formulario, QWidget* control, Cuerpo recibe, Cuerpo pierde);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    Formulario& m_formulario;
    Cuerpo m_recibe;
    Cuerpo m_pierde;
    bool m_entregando = false;
};

/// Runs `cuerpo` when the focus comes to `control` from within the program.
void AlRecibirFoco(Formulario& formulario, QWidget* control, std::function<void()> cuerpo);

/// Runs `cuerpo` when the focus leaves `control` for another control of the program; going to another
/// program, a menu or a context menu is not leaving.
void AlPerderFoco(Formulario& formulario, QWidget* control, std::function<void()> cuerpo);
