#pragma once

#include <QString>

#include "core/records/CampoDeRegistro.h"
#include "core/services/EstadoLeido.h"

/// The record of one declarant: the taxpayer who files the return. One shared instance, `oDeclarante()`,
/// holds the declarant that the program is working on.
///
/// Procedures of this class report their own failures in the error dialog and give their zero value back.
class cZTDeclarante {
  public:
    /// Uses of the record in `Modo`.
    static constexpr qint32 kModoExistente = 0;
    static constexpr qint32 kModoNuevo = 2;
    /// Screens in `Procedencia`: the command for a new declarant, and the list of declarations.
    static constexpr qint32 kDesdeMenu = 0;
    static constexpr qint32 kDesdeListaDeclaraciones = 3;
    /// Code of the province that the authority serves.
    static constexpr qint16 kProvinciaPropia = 20;

    /// 0 an existing declarant, 2 a new one or none.
    qint32 Modo = 0;
    /// Key of the declarant in the store.
    qint32 CSDE = 0;
    /// Surname and name, or name of the company; up to 40 characters on the screen.
    QString Nombre;
    /// Tax identity number, up to 9 characters.
    QString NIF;
    /// Code of the kind of way, 2 characters.
    QString Siglas;
    /// Name of the way, up to 20 characters.
    QString Domicilio;
    /// House number, up to 5 digits.
    qint32 Numero = 0;
    /// Side of the landing, up to 3 characters.
    QString Mano;
    /// Letter of the house number, up to 5 characters.
    QString Letra;
    /// Staircase and floor, up to 2 characters each.
    QString Escal;
    QString Piso;
    /// Code of the province.
    qint16 Provin = 0;
    /// Code of the municipality within province 20, else 0.
    qint16 CMuni = 0;
    /// Telephone prefix, up to 3 digits.
    qint16 Telepre = 0;
    /// Postal code, shown with five digits.
    qint32 CPost = 0;
    /// Name of the municipality, up to 12 characters on the screen.
    QString Munici;
    /// Telephone number, up to 7 digits.
    qint32 TelNum = 0;
    /// True once a screen has changed a field since the last load or save.
    bool Modificado = false;
    /// The screen that opened the form of the declarant.
    qint32 Procedencia = 0;

    /// The table of its fields.
    [[nodiscard]] static CamposDe<cZTDeclarante> Campos();

    /// Loads the declarant of `oDeclarante().CSDE` (`Modo` 0) or clears the record to a new declarant (2);
    /// any other `Modo` only clears `Modificado`.
    void InicializaDatos();
    /// Fills the fields from the store. Leaves `CSDE`, `Modo` and `Modificado`.
    void CargarDeclarante(qint32 csde);
    /// Stores the record and gives its key back; 0 when it could not be stored. One that another program has
    /// changed since it was loaded or saved here is left as it is; the user is told.
    [[nodiscard]] qint32 GuardarDeclarante();
    /// Above 0 when a declarant with this NIF is stored. Has no handler: its failures climb.
    [[nodiscard]] static qint32 NifRepetido(const QString& nif);
    /// Whether the declarant that the store has under that key is the one with that NIF.
    [[nodiscard]] static bool EsElDe(qint32 CSDE, const QString& NIF);
    /// Checks every rule; shows the list of faults when there are any. True when there are none.
    [[nodiscard]] bool ValidarDatos() const;
    /// Deletes the declarant with this record's key. Checks nothing.
    void EliminarDeclarante() const;
    /// True when the declarant with this record's key has declarations in the store. False also when the
    /// store could not be asked.
    [[nodiscard]] bool TieneDeclaraciones() const;
    /// The same for establishments.
    [[nodiscard]] bool TieneEstablecimientos() const;

  private:
    void Vaciar();

    /// What stood in the store at the last load or save.
    EstadoLeido m_leido;
};

/// The declarant that the program is working on.
cZTDeclarante& oDeclarante();
