// The reader of the exchange file, its check and the conversions of what passes it, with any bytes for a
// file: nothing but a NUL may stop the reader, what it cuts is the line again, and a number of a good line
// converts or overflows.

#include <QBuffer>
#include <cstdlib>

#include "core/base/ErrorZT.h"
#include "core/base/Formatos.h"
#include "core/base/Windows1252.h"
#include "core/exchange/LectorDeLineas.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/ValidacionDeRegistro.h"

namespace {

void Exigir(bool cumplido) {
    if (!cumplido) {
        std::abort();
    }
}

template <class Conversion>
void ExigirNumero(Conversion&& convertir) {
    try {
        (void)convertir();
    } catch (const ErrorZT& error) {
        Exigir(error.Numero() == static_cast<int>(NumError::Desbordamiento));
    }
}

/// What storing a good record does to its values.
void ExigirConversiones(const Tabla& registro) {
    int fila = 0;
    for (const CampoDeIntercambio& campo : kCamposDeIntercambio) {
        const QString texto = SinBlancosALaDerecha(registro(kColumnaValor, ++fila).aTexto());
        Exigir(!texto.endsWith(u' '));
        if (campo.clase == ClaseDeCampo::Numero) {
            const Valor valor(texto);
            ExigirNumero([&] { return valor.aEntero16(); });
            ExigirNumero([&] { return valor.aEntero32(); });
        }
    }
}

void ExigirLinea(const QString& linea) {
    Exigir(linea.size() <= kLargoDeRegistro && !linea.contains(u'\r') && !linea.contains(u'\n'));
    const Tabla registro = TrocearRegistro(linea);
    QString junta;
    for (int fila = 1; fila <= static_cast<int>(kCamposDeIntercambio.size()); ++fila) {
        junta += registro(kColumnaValor, fila).aTexto();
    }
    Exigir(junta == linea);
    const Registro faltas = Validar(registro, kLimiteDeLargo);
    Exigir(!faltas.empty() && faltas.front().EsVacio());
    for (std::size_t i = 1; i < faltas.size(); ++i) {
        Exigir(MensajeDeFalta(faltas.at(i).aEntero16()).has_value());
    }
    if (faltas.size() == 1) {
        ExigirConversiones(registro);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* datos, std::size_t largo) {
    QByteArray bytes(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(largo));
    QBuffer fichero(&bytes);
    fichero.open(QIODevice::ReadOnly);
    LectorDeLineas lector(fichero, kLargoDeRegistro);
    try {
        while (const auto linea = lector.Siguiente()) {
            ExigirLinea(DeWindows1252(*linea));
        }
        Exigir(!bytes.contains('\0'));
    } catch (const ErrorZT& error) {
        Exigir(error.Numero() == static_cast<int>(NumError::CaracterFueraDePagina) && bytes.contains('\0'));
    }
    return 0;
}
