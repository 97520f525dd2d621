#pragma once

#include <QMdiArea>
#include <QString>
#include <QStringList>
#include <functional>

#include "forms/runtime/Formulario.h"

/// The forms of the program by name.
namespace Formularios {

using Fabrica = std::function<Formulario*()>;

/// Tells how the form of that name is made. All are registered at start.
void Registrar(QStringView nombre, const Fabrica& fabrica);
/// All registered names, in alphabetical order.
[[nodiscard]] QStringList Registrados();

/// The form of that name, made and loaded on first use. Raises 424 for an unknown name; what its load raises
/// climbs on, and the form is gone.
Formulario& Obtener(QStringView nombre);

/// Shows a form without modal state, loading it if need be, and activates it.
void Mostrar(QStringView nombre);

/// Shows a form as the only one that takes input, and returns when it has been unloaded.
void MostrarModal(QStringView nombre);

/// Runs the unload rule at once and frees the name; the widget goes when control is back in the event loop.
/// A form that is not loaded, or that is just unloading, is left alone.
void Descargar(QStringView nombre);

[[nodiscard]] bool Cargado(QStringView nombre);
[[nodiscard]] bool Visible(QStringView nombre);
/// Names of the loaded forms in the order in which they were loaded.
[[nodiscard]] QStringList Cargados();
/// The form that was activated last; empty when there is none.
[[nodiscard]] QString Activo();

/// Unloads every loaded form but `excepto`: a snapshot of them, so that what their rules would show while
/// they go is not shown.
void DescargarTodos(QStringView excepto);

/// The area of the frame in which working forms live, or nullptr. Without one they are windows of their own.
void FijarMarco(QMdiArea* area);

/// Drops all forms without running their rules; used by tests.
void Reiniciar();

}  // namespace Formularios

/// The one form of a class, by the name that the class bears as `kNombre`.
template <class F>
F& ElFormulario() {
    return static_cast<F&>(Formularios::Obtener(F::kNombre));
}

/// Registers a class of form under its own name.
template <class F>
void RegistrarFormulario() {
    Formularios::Registrar(F::kNombre, [] { return new F; });
}
