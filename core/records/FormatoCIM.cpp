#include "core/records/FormatoCIM.h"

#include "core/base/Conversiones.h"
#include "core/base/ErrorZT.h"

namespace {

constexpr QStringView kLetras = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView kDigitos = u"0123456789";
constexpr QStringView kAlfabeto = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr qsizetype kDeControl = 7;

/// False when the character at position `i` (from 1) is not one of those that may stand there.
bool PosicionBuena(qsizetype i, QChar c) {
    switch (i) {
        case 1:
        case 2:
            return kDigitos.contains(c);
        case 3:
            return QStringView(u"ECSV").contains(c.toUpper());
        case 4:
            return QStringView(u"SPUM").contains(c.toUpper());
        case 8:
            return kLetras.contains(c);
        default:
            return true;
    }
}

}  // namespace

QChar LetraDeControlCIM(QStringView primeros) {
    if (primeros.isEmpty()) {
        throw ErrorZT(NumError::NoCoincidenTipos);
    }
    // The remainder of the string of digits, taken pair by pair, so that it is exact for every code.
    qsizetype resto = 0;
    for (const QChar c : primeros) {
        const qsizetype lugar = kAlfabeto.indexOf(c);
        if (lugar < 0) {
            throw ErrorZT(NumError::NoCoincidenTipos);
        }
        resto = (resto * 100 + lugar) % kLetras.size();
    }
    return kLetras.at(resto);
}

bool ComprobarFormatoCIM(QStringView cim) {
    for (qsizetype i = 1; i <= cim.size(); ++i) {
        const QChar c = cim.at(i - 1);
        if (i <= 2 && !PosicionBuena(i, c)) {
            return false;
        }
        // Looked at from the first place on, before the second one has been.
        if (TextoADoble(cim.left(2)) == 0.0) {
            return false;
        }
        if (!PosicionBuena(i, c)) {
            return false;
        }
    }
    const QChar letra = LetraDeControlCIM(cim.left(kDeControl));
    return cim.back() == letra;
}
