#pragma once

#include <QDialog>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "core/run/Recuperacion.h"

/// A form of the program: made by name on first use, existing at most once, loaded, shown, activated and
/// unloaded as docs/architecture.md tells under "Forms at run time".
///
/// `Formularios` runs its rules; a form itself only says what they are. Working forms derive from
/// `FormularioTrabajo`, modal ones from `FormularioModal`.
class Formulario {
  public:
    explicit Formulario(QStringView nombre) : m_nombre(nombre.toString()) {}
    virtual ~Formulario() = default;
    Formulario(const Formulario&) = delete;
    Formulario& operator=(const Formulario&) = delete;

    [[nodiscard]] const QString& Nombre() const { return m_nombre; }
    [[nodiscard]] virtual QWidget& Ventana() = 0;

    /// True from the moment its unload rule has run. The widget goes later; until then its events are mute.
    [[nodiscard]] bool Descargado() const { return m_descargado; }

    /// Puts the texts of the language in force on the form.
    virtual void AnadirCaptions() {}
    /// Runs once, when the form is made.
    virtual void Form_Load() {}
    /// Runs each time the form becomes the active one of the program.
    virtual void Form_Activate() {}
    /// Runs at once when the form is unloaded, in the caller's line.
    virtual void Form_Unload() {}

    /// What has been typed, here and on what this form stands on, and is not yet stored. Asked for when a
    /// failure ends the program.
    [[nodiscard]] virtual std::vector<DatosSinGuardar> PorGuardar() const { return {}; }
    /// Puts such data on the loaded form again, marked as changed. Nothing is stored.
    virtual void Reponer(const DatosSinGuardar& /*datos*/) {}

  protected:
    /// What stands before the names of its procedures in a report of a failure: its own name, but for the
    /// forms that have always reported under another.
    [[nodiscard]] virtual QString Modulo() const { return m_nombre; }
    /// Runs a procedure with a trap: a failure is shown under the name of the form and
    /// "Modulo().procedimiento", and the form stays as it is.
    void ConTrampa(QStringView procedimiento, const std::function<void()>& cuerpo) const noexcept;

  private:
    friend class RegistroDeFormularios;
    QString m_nombre;
    bool m_descargado = false;
};

/// A working form: a sub-window of the frame with a title and no close box.
class FormularioTrabajo : public QWidget, public Formulario {
    Q_OBJECT
  public:
    explicit FormularioTrabajo(QStringView nombre);
    [[nodiscard]] QWidget& Ventana() override { return *this; }
};

/// A modal form. Closing it by its close box unloads it; Escape presses `BotonDeEscape`.
class FormularioModal : public QDialog, public Formulario {
    Q_OBJECT
  public:
    explicit FormularioModal(QStringView nombre);
    [[nodiscard]] QWidget& Ventana() override { return *this; }

    void reject() override;

  protected:
    /// The cancel or close button, pressed by Escape; none where Escape does nothing.
    [[nodiscard]] virtual class QAbstractButton* BotonDeEscape() { return nullptr; }
    void closeEvent(QCloseEvent* evento) override;
};
