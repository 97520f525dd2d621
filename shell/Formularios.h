#pragma once

#include <QMdiArea>
#include <QString>
#include <QStringList>
#include <functional>

#include "shell/Formulario.h"

/// The forms of the program by name.
namespace Formularios {

using Fabrica = std::function<Formulario*()>;

/// Tells how the form of that name is made. All are registered at start.
void Registrar(const QString& nombre, const Fabrica& fabrica);
[[nodiscard]] bool Registrado(const QString& nombre);
/// All registered names, in alphabetical order.
[[nodiscard]] QStringList Registrados();

/// The form of that name, made and loaded on first use. Raises 424 for an unknown name; what its load raises
/// climbs on, and the form is gone.
Formulario& Obtener(const QString& nombre);

/// Shows a form without modal state, loading it if need be, and activates it.
void Mostrar(const QString& nombre);

/// Shows a form as the only one that takes input, and returns when it has been unloaded.
void MostrarModal(const QString& nombre);

/// Runs the unload rule at once and frees the name; the widget goes when control is back in the event loop.
/// A form that is not loaded, or that is just unloading, is left alone.
void Descargar(const QString& nombre);

[[nodiscard]] bool Cargado(const QString& nombre);
[[nodiscard]] bool Visible(const QString& nombre);
/// Names of the loaded forms in the order in which they were loaded.
[[nodiscard]] QStringList Cargados();
/// The form that was activated last; empty when there is none.
[[nodiscard]] QString Activo();

/// Unloads every loaded form but `excepto`: a snapshot of them, so that what their rules would show while
/// they go is not shown.
void DescargarTodos(const QString& excepto);

/// The area of the frame in which working forms live, or nullptr. Without one they are windows of their own.
void FijarMarco(QMdiArea* area);

/// Drops all forms without running their rules; used by tests.
void Reiniciar();

}  // namespace Formularios

/// The one form of a class, by the name that the class bears as `kNombre`.
template <class F>
F& ElFormulario() {
    return static_cast<F&>(Formularios::Obtener(F::kNombre.toString()));
}

/// Registers a class of form under its own name.
template <class F>
void RegistrarFormulario() {
    Formularios::Registrar(F::kNombre.toString(), [] { return new F; });
}
