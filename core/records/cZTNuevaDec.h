#pragma once

#include <QString>

class ListaDeTrimestres;

/// What becomes of a text in the year box of the panel for a new declaration.
enum class CambioDeEjercicio {
    /// The year is the one that stood.
    Ninguno,
    /// `Ejercicio` took it: the panel is to be painted again.
    Tomado,
    /// It is out of the accepted years: the user has been told, and `Ejercicio` is 0. The box gets the focus
    /// and is emptied.
    Rechazado
};

/// The year and quarter chosen for a declaration that does not exist yet; one instance, `oNuevaDec()`.
///
/// The accepted years and the last quarter of the last year stand in `Entorno()`; they come from the
/// reference store.
class cZTNuevaDec {
  public:
    /// Year and quarter (1 to 4) chosen; 0 none. Nothing checks what is written here.
    qint16 Ejercicio = 0;
    qint16 Periodo = 0;
    /// A key that nothing here sets or reads: docs/reglas.md, campos-sin-lector.
    qint32 CSDC = 0;

    /// Forgets year and quarter.
    void InicializaDatos();
    /// Fills the list of quarters. All four are always offered.
    void CargaPeriodos(ListaDeTrimestres& lista) const;
    /// Takes the quarter of that name. Raises 13 for a text that names none in the language in force.
    void ObtPeriodo(const QString& strPeriodo);
    /// Proposes the quarter after the latest declaration of `oListaDeclaraciones()`, or none where there is
    /// nothing to propose. Without declarations the fields stay as they were. A quarter after the last one
    /// accepted can be proposed: that limit is looked at on choosing only.
    void Sugerencia();

    /// The check of the year box at each of its changes: a text of four characters has to be within the
    /// accepted years; a shorter one is taken as it is. Raises 13 for a shorter text that is not a number.
    [[nodiscard]] CambioDeEjercicio ComprobarEjercicio(const QString& texto);
    /// The check of a quarter chosen from the list: whether it can stand for `Ejercicio`. The user is told
    /// when it cannot.
    [[nodiscard]] bool ValidarPeriodo(const QString& strPeriodo) const;

    /// True when a declaration may be made; otherwise the list of faults has been shown. Does not look at
    /// the accepted years again.
    [[nodiscard]] bool ValidarDatos() const;
    /// Makes the declaration with the rates in force and gives its key. Raises 13, and makes none, when its
    /// quarter has no rates.
    [[nodiscard]] qint32 GuardarDeclaracion() const;

  private:
    [[nodiscard]] bool DecDuplicadas() const;
};

/// The shared instance.
cZTNuevaDec& oNuevaDec();
