#include "core/printing/AutorDePdf.h"

#include <QRegularExpression>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLargoDeEntrada = 20;
constexpr qsizetype kCifrasDeLugar = 10;

/// Where the string in parentheses that begins there has ended.
qsizetype FinDeCadena(const QByteArray& pdf, qsizetype i) {
    int abiertos = 0;
    for (; i < pdf.size(); ++i) {
        const char c = pdf.at(i);
        if (c == '\\') {
            ++i;
        } else if (c == '(') {
            ++abiertos;
        } else if (c == ')' && --abiertos == 0) {
            return i + 1;
        }
    }
    return i;
}

/// What stands between the brackets "<<" and ">>" of the first dictionary from there on, which has no other
/// one within; nothing when there is none. Strings may hold brackets.
std::optional<QByteArray> Diccionario(const QByteArray& pdf, qsizetype desde) {
    const qsizetype apertura = pdf.indexOf("<<", desde);
    if (desde < 0 || apertura < 0) {
        return std::nullopt;
    }
    for (qsizetype i = apertura + 2; i < pdf.size();) {
        if (pdf.at(i) == '(') {
            i = FinDeCadena(pdf, i);
        } else if (pdf.sliced(i).startsWith(">>")) {
            return pdf.mid(apertura + 2, i - apertura - 2);
        } else {
            ++i;
        }
    }
    return std::nullopt;
}

/// The number after that word, the first from there on; -1 when there is none.
qint64 NumeroTras(const QByteArray& pdf, const QByteArray& palabra, qsizetype desde) {
    static const QRegularExpression numero(u"^\\s*(\\d+)"_s);
    const qsizetype lugar = pdf.indexOf(palabra, desde);
    if (desde < 0 || lugar < 0) {
        return -1;
    }
    const auto encontrado =
        numero.match(QString::fromLatin1(pdf.mid(lugar + palabra.size(), kLargoDeEntrada)));
    return encontrado.hasMatch() ? encontrado.captured(1).toLongLong() : -1;
}

/// Where the object of that number stands, by the table that begins at `tabla`; -1 when it does not tell.
qint64 LugarDeObjeto(const QByteArray& pdf, qint64 tabla, qint64 numero) {
    static const QByteArray cabecera("xref\n0 ");
    if (tabla < 0 || tabla >= pdf.size() || pdf.mid(tabla, cabecera.size()) != cabecera) {
        return -1;
    }
    const qsizetype primera = pdf.indexOf('\n', tabla + cabecera.size()) + 1;
    bool bien = false;
    const qint64 lugar = pdf.mid(primera + numero * kLargoDeEntrada, kCifrasDeLugar).toLongLong(&bien);
    return bien && pdf.mid(lugar).startsWith(QByteArray::number(numero) + " 0 obj") ? lugar : -1;
}

/// A text string: UTF-16 with its mark, in hexadecimal digits.
QByteArray CadenaDeTexto(const QString& texto) {
    QByteArray cadena = "<FEFF";
    for (const QChar c : texto) {
        cadena += QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
    }
    return cadena + '>';
}

}  // namespace

QByteArray ConAutor(const QByteArray& pdf, const QString& autor) {
    const qint64 tabla = NumeroTras(pdf, "startxref", pdf.lastIndexOf("startxref"));
    const qsizetype cola = pdf.lastIndexOf("trailer");
    const auto remate = Diccionario(pdf, cola);
    const qint64 numero = NumeroTras(pdf, "/Info", cola);
    const auto datos = Diccionario(pdf, LugarDeObjeto(pdf, tabla, numero));
    if (autor.isEmpty() || !remate || !datos) {
        return pdf;
    }
    QByteArray nuevo = pdf;
    const QByteArray objeto = QByteArray::number(numero);
    const QByteArray lugar = QByteArray::number(nuevo.size());
    nuevo += objeto + " 0 obj\n<<" + *datos + "/Author " + CadenaDeTexto(autor) + "\n>>\nendobj\n";
    const QByteArray otraTabla = QByteArray::number(nuevo.size());
    nuevo += "xref\n" + objeto + " 1\n" + lugar.rightJustified(kCifrasDeLugar, '0') + " 00000 n \n";
    nuevo += "trailer\n<<" + *remate + "/Prev " + QByteArray::number(tabla) + "\n>>\n";
    nuevo += "startxref\n" + otraTabla + "\n%%EOF\n";
    return nuevo;
}
