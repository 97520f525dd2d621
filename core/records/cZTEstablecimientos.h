#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/records/CampoDeRegistro.h"
#include "core/services/EstadoLeido.h"
#include "core/services/svrZELT/CamposDeEstablecimiento.h"

/// The record of one establishment (retail outlet) of the current declarant, and the list of all of them.
/// One shared instance, `oEstablecimientos()`. The declarant is that of `oDeclarante()`.
///
/// Public procedures report their own failures in the error dialog and give their zero value back.
class cZTEstablecimientos {
  public:
    static constexpr qint32 kModoExistente = 0;
    static constexpr qint32 kModoNuevo = 2;
    /// Screens in `Procedencia`.
    static constexpr qint32 kDesdeDetalle = 4;
    static constexpr qint32 kDesdeLista = 6;

    /// True once a screen has changed a field since the last load or save.
    bool Modificado = false;
    /// 2 a new establishment; any other value an existing one.
    qint32 Modo = 0;
    /// Key of the owner.
    qint32 CSDE = 0;
    /// Retailer identification code, 8 characters.
    QString CIM;
    /// Address, up to 40 characters on the screen.
    QString Domicilio;
    /// Code of the province; 0 in a new establishment.
    qint16 Provin = 0;
    /// Code of the municipality, in province 20 only.
    qint16 CMuni = 0;
    /// Name of the municipality, up to 12 characters on the screen.
    QString Munici;
    /// The screen that opened the form: 4 the annex entry, 6 the list of establishments.
    qint32 Procedencia = 0;
    /// Key of the row to select when a list is filled again; 0 none.
    qint32 SelCSES = 0;
    /// Key of the establishment.
    qint32 CSES = 0;
    /// Not in use: `NumeroDeDeclaraciones` counts into that of `oListaDeclaraciones()`.
    qint16 NumDecla = 0;
    /// Columns of `BufferEstablecimientos`.
    using Columna = svrZELT::ListadoDeEstablecimientos::Columna;
    /// Establishments of the current declarant, rows from 1. Null when there are none.
    Tabla BufferEstablecimientos;

    /// The table of its fields.
    [[nodiscard]] static CamposDe<cZTEstablecimientos> Campos();

    /// Reads `BufferEstablecimientos`.
    void RellenarEstablecimientos();
    /// Deletes an establishment. The caller has checked that it has no annexes.
    void EliminarEstablecimiento(qint32 lngCSES) const;
    /// Counts the declarations of the current declarant into `NumDecla` of `oListaDeclaraciones()`.
    void NumeroDeDeclaraciones() const;
    /// Loads the establishment `CSES`, or clears the fields for a new one (`Modo` 2).
    void InicializarDatos();
    /// Checks every rule; shows the list of faults when there are any. True when there are none.
    [[nodiscard]] bool ValidarDatos() const;
    /// Stores the record; a new one gets its key in `CSES`. A refused save leaves `Modificado` up and `CSES`
    /// as it was. One that another program has changed since it was loaded or saved here is refused; the user
    /// is told.
    void GuardaEstablecimiento();
    /// True when no declaration has annex lines of the establishment.
    [[nodiscard]] static bool EstablecimientosSinAnexos(qint32 lngNumCSES);

  private:
    [[nodiscard]] bool CIMRepetido() const;
    void CargarEstablecimiento();

    /// What stood in the store at the last load or save.
    EstadoLeido m_leido;
};

/// The shared instance.
cZTEstablecimientos& oEstablecimientos();
