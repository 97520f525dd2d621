#include "core/base/Windows1252.h"

#include <algorithm>
#include <array>

#include "core/base/ErrorZT.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPrimero = 0x80;

/// Characters of the bytes 80 to 9F; all other bytes are those of Latin-1.
constexpr std::array<char16_t, 32> kAltos{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                          0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QByteArray AWindows1252(QStringView texto) {
    QByteArray bytes;
    bytes.reserve(texto.size());
    for (const QChar c : texto) {
        const char16_t u = c.unicode();
        const auto alto = std::ranges::find(kAltos, u);
        if (alto != kAltos.end()) {
            bytes += static_cast<char>(kPrimero + (alto - kAltos.begin()));
        } else if (u < kPrimero || (u >= 0xA0 && u <= 0xFF)) {
            bytes += static_cast<char>(u);
        } else {
            throw ErrorZT(NumError::CaracterFueraDePagina,
                          TextoDeError(NumError::CaracterFueraDePagina) +
                              u": '%1' (U+%2)"_s.arg(c).arg(u, 4, 16, QChar(u'0')));
        }
    }
    return bytes;
}

QString DeWindows1252(QByteArrayView bytes) {
    QString texto = QString::fromLatin1(bytes);
    for (QChar& c : texto) {
        const char16_t u = c.unicode();
        if (u >= kPrimero && u < kPrimero + kAltos.size()) {
            c = QChar(kAltos.at(u - kPrimero));
        }
    }
    return texto;
}
