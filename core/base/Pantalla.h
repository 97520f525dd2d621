#pragma once

#include <QString>

#include "core/base/Tabla.h"

/// What the records need of the screen. The forms fill these in at start; tests put recorders in.

/// Answers of `Mensaje`.
inline constexpr qint16 kRespuestaAceptar = 1;
inline constexpr qint16 kRespuestaCancelar = 2;

/// Mouse pointers by their number in the run-time.
enum class Puntero : int { Normal = 0, Espera = 11 };

/// The screen as the records see it; failures of showing climb to the caller.
class CanalPantalla {
  public:
    CanalPantalla() = default;
    CanalPantalla(const CanalPantalla&) = delete;
    CanalPantalla& operator=(const CanalPantalla&) = delete;
    virtual ~CanalPantalla() = default;

    /// Shows an unexpected failure: names of form and event, and the description that climbed up.
    virtual void ShowError(const QString& formulario, const QString& evento, const QString& descripcion) = 0;
    /// Shows a notice (`unBoton`) or a question. 1 is Aceptar, 2 is Cancelar.
    virtual qint16 Mensaje(const QString& texto, const QString& titulo, bool unBoton) = 0;
    /// Shows the faults of a record: column 0 the group, column 1 the code, rows from 0.
    virtual void MostrarListaErrores(const Tabla& errores) = 0;
    /// The platform's own message box, with a plain text or with one that tells of a failure.
    virtual void MensajePlataforma(const QString& texto, bool esFallo) = 0;
    /// The same for a failure whose cause stands below the text; a channel without room for the cause leaves
    /// it out.
    virtual void MensajePlataformaConCausa(const QString& texto, const QString& /*causa*/) {
        MensajePlataforma(texto, true);
    }
    /// Sets the mouse pointer: one value, not a stack.
    virtual void PonerPuntero(Puntero puntero) = 0;
    /// Lets pending events run once, but no input of the user.
    virtual void CederUnaVez() = 0;
    /// The system's beep: what was entered is not taken.
    virtual void Pitar() = 0;
    /// Called again and again, with True, while the program waits for another one in the middle of a call,
    /// and once with False when it goes on. To show that it lives: no event may run in it, least of all one
    /// that asks the store.
    virtual void EsperarAOtro(bool /*esperando*/) {}
};

/// The channel in force. Raises 91 when none has been put in.
CanalPantalla& Pantalla();

/// The channel in force, or nullptr.
CanalPantalla* PantallaSiHay();

/// Puts a channel in, or takes it away with nullptr. The caller keeps it alive.
void FijarPantalla(CanalPantalla* pantalla);
