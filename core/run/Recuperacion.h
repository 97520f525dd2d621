#pragma once

#include <QMap>
#include <QString>
#include <vector>

// What was typed and not yet stored when a failure ended the program, in a file of the user's beside the
// store.

/// The largest figure of a line, in hundredths: of a greater one not every hundredth is a number of its own.
inline constexpr qint64 kCentesimasMaximas = qint64{1} << 53;

/// One line of an annex: key of the establishment, product from 1, and exempt quantity and taxable base in
/// hundredths of the public unit.
struct LineaSinGuardar {
    qint32 CSES = 0;
    qint16 producto = 0;
    qint64 exento = 0;
    qint64 base = 0;

    friend bool operator==(const LineaSinGuardar&, const LineaSinGuardar&) = default;
};

/// What one form had on its screen.
struct DatosSinGuardar {
    QString formulario;
    /// Key of the declarant, 0 for a new one, and the NIF that is stored under it: whether a store has him.
    qint32 CSDE = 0;
    QString NIF = {};
    /// Key of the establishment or of the declaration, 0 for a new one or for none, and what tells whether a
    /// store has it: the stored CIM, or "year/quarter".
    qint32 clave = 0;
    QString rasgo = {};
    /// Text of each box by its name.
    QMap<QString, QString> valores = {};
    /// The lines of all establishments, of the annexes.
    std::vector<LineaSinGuardar> lineas = {};

    friend bool operator==(const DatosSinGuardar&, const DatosSinGuardar&) = default;
};

/// Path of the file, and of the log that tells of one that was not taken.
QString RutaDeRecuperacion();
QString RegistroDeRecuperacion();

/// Adds to what the file has, once, in one step. Only the user can read it. Raises what keeps it from being
/// written.
void GuardarRecuperacion(const std::vector<DatosSinGuardar>& datos);

/// What the file has; nothing where there is none. One that is not just as `GuardarRecuperacion` writes it is
/// not taken at all, and the log says so.
std::vector<DatosSinGuardar> LeerRecuperacion();

/// Has the log say that the file is none of this program's and was not taken.
void AnotarRecuperacionAjena();

/// Takes the file away.
void QuitarRecuperacion();
