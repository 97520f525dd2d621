#include "core/exchange/TextoEnUtf8.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>

namespace {

constexpr qint64 kBloque = 65'536;

bool EsAlto(char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; }

}  // namespace

bool PareceUtf8(const QString& ruta) {
    QFile fichero(ruta);
    if (!QFileInfo(fichero).isFile() || !fichero.open(QIODevice::ReadOnly)) {
        return false;
    }
    QStringDecoder decodificador(QStringDecoder::Utf8);
    bool altos = false;
    for (QByteArray bloque = fichero.read(kBloque); !bloque.isEmpty(); bloque = fichero.read(kBloque)) {
        altos = altos || std::ranges::any_of(bloque, EsAlto);
        const QString texto = decodificador(bloque);
        if (decodificador.hasError()) {
            return false;
        }
    }
    // A sequence that the end of the file cuts off is none.
    const QString resto = decodificador(QByteArrayView("\n"));
    return altos && !decodificador.hasError() && resto == u"\n";
}

QString DeUtf8(QByteArrayView bytes, bool primera) {
    const bool marcada = primera && bytes.startsWith(kMarcaUtf8);
    return QString::fromUtf8(marcada ? bytes.sliced(QByteArrayView(kMarcaUtf8).size()) : bytes);
}
