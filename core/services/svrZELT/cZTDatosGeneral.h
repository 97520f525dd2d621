#pragma once

#include <QString>
#include <optional>

#include "core/base/Tabla.h"

namespace svrZELT {

/// Code tables, general data, rates and settings. Made for one call and fed with exactly one path.
///
/// Failures of the store are raised as the run-time's errors (see `Almacen`).
class cZTDatosGeneral {
  public:
    /// Path of the reference store; for `GuardarActOnline` and `ObtenerActOnline` that of the user's store.
    QString mdblec;
    /// Path of the user's store, for the language.
    QString mdbmod;

    /// Runs one select on the reference store and leaves the rows in `buffer`: rows from 0, Null when there
    /// are none. Raises 3075 for anything but one select.
    void CargarResultado(const QString& sql, Tabla& buffer) const;

    /// Names by code, in Castellano for offset 0 and in Euskera otherwise, as stored; empty for a code that
    /// the table lacks. Municipalities have one name for both languages.
    [[nodiscard]] QString ObtenerNombreProvincia(qint16 codigo, qint16 offset) const;
    [[nodiscard]] QString ObtenerNombreMunicipio(qint16 codigo, qint16 offset) const;
    [[nodiscard]] QString ObtenerNombreCalle(const QString& codigo, qint16 offset) const;

    /// First year, quarter in it, last year, and last quarter in it: four 16-bit integers.
    void CargarDatosGenerales(Registro& buffer) const;

    /// Rates in force in a quarter: element k - 1 is product k, in millionths, 64-bit floats. Nothing when
    /// no interval covers the quarter; a product without a rate in a quarter that others cover has 0.
    [[nodiscard]] std::optional<Registro> CargarTipImp(qint16 Ejercicio, qint16 Periodo) const;

    /// Address of the update service.
    [[nodiscard]] QString URLAct() const;

    /// The update setting: 1 check at start, 0 do not, negative while nothing has been chosen.
    void GuardarActOnline(qint16 ActOnline) const;
    [[nodiscard]] qint16 ObtenerActOnline() const;

    /// The language code as stored: "C", "E", or empty while nothing has been chosen. Storing the value that
    /// stands writes nothing to the disk.
    void ModificarIdioma(const QString& idioma) const;
    void CambiarIdioma(const QString& idioma) const;
    [[nodiscard]] QString ObtenerIdioma() const;
};

}  // namespace svrZELT
