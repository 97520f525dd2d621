#include "tests/core/help/TextosDeMensajes.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <array>

#include "core/run/Textos.h"
#include "tests/core/help/Fuentes.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// Which argument of a call is the message; the others are titles, numbers and paths.
struct Llamada {
    QStringView nombre;
    int argumento;
};

constexpr std::array kLlamadas{Llamada{u"Mensaje", 0},
                               Llamada{u"MensajeDeExclamacion", 1},
                               Llamada{u"Avisar", 0},
                               Llamada{u"AvisarDelLimite", 0},
                               Llamada{u"Preguntar", 0},
                               Llamada{u"TextoDeFallo", 0},
                               Llamada{u"AvisarDeCambioDeOtro", 0},
                               Llamada{u"GuardarSalvoCambioDeOtro", 0},
                               Llamada{u"ErrorZT", 1},
                               Llamada{u"FalloDeFichero", 2},
                               Llamada{u"FalloDeAlmacen", 2},
                               Llamada{u"NoSePuede", 1}};

/// Sentences of the catalogue that describe and report nothing.
const QSet<QString>& Descripciones() {
    static const QSet<QString> claves{u"online_descripcion"_s};
    return claves;
}

const QList<Fuente>& Programa() {
    static const QList<Fuente> fuentes =
        Fuentes({u"core"_s, u"forms"_s, u"app"_s, u"network"_s}, {u"*.cpp"_s, u"*.h"_s});
    return fuentes;
}

QString TextoDe(const QString& ruta) {
    for (const Fuente& fuente : Programa()) {
        if (fuente.ruta == ruta) {
            return fuente.texto;
        }
    }
    return {};
}

QStringList Hallados(const QRegularExpression& expresion, const QString& texto) {
    QStringList hallados;
    for (auto i = expresion.globalMatch(texto); i.hasNext();) {
        hallados += i.next().captured(1);
    }
    return hallados;
}

/// Rows by the names that the code gives them.
int FilaDe(const QString& id) {
    static const QHash<QString, int> filas = [] {
        static const QRegularExpression fila(u"\\b(\\w+) = (\\d+),"_s);
        QHash<QString, int> leidas;
        for (auto i = fila.globalMatch(TextoDe(u"core/run/IdDeTexto.h"_s)); i.hasNext();) {
            const auto una = i.next();
            leidas[una.captured(1)] = una.captured(2).toInt();
        }
        return leidas;
    }();
    return filas.value(id);
}

/// The rows of the table that are named there. One that the language lacks shows nothing.
QStringList DeLaTabla(const QString& codigo, int offset) {
    static const QRegularExpression id(u"\\bId::(\\w+)"_s);
    static const QRegularExpression fila(u"^(\\d+) \"(.*)\"$"_s, QRegularExpression::MultilineOption);
    static const QHash<int, QString> tabla = [] {
        QHash<int, QString> leida;
        for (auto i = fila.globalMatch(QString::fromUtf8(LeerFichero(u":/textos/tabla.txt"_s)));
             i.hasNext();) {
            const auto una = i.next();
            leida[una.captured(1).toInt()] = una.captured(2);
        }
        return leida;
    }();
    QStringList textos;
    for (const QString& nombre : Hallados(id, codigo)) {
        textos += tabla.value(FilaDe(nombre) + offset);
    }
    return textos;
}

/// The texts of the catalogue that are named there, and what is written out with a word in it.
QStringList DeLosLiterales(const QString& codigo, int offset) {
    static const QRegularExpression palabras(u"\\p{L}{2,} "_s);
    QStringList textos;
    for (const QString& literal : Literales(codigo)) {
        if (const auto propio = TextoPropioSiHay(literal, static_cast<qint16>(offset))) {
            textos += *propio;
        } else if (palabras.match(literal).hasMatch()) {
            textos += literal;
        }
    }
    return textos;
}

QStringList DeLasLlamadas(int offset) {
    QStringList textos;
    for (const Fuente& fuente : Programa()) {
        for (const Llamada& llamada : kLlamadas) {
            for (const QStringList& argumentos : Argumentos(fuente.texto, llamada.nombre.toString())) {
                const QString codigo = argumentos.value(llamada.argumento);
                // What is written out in both languages is that of the pairs.
                const bool esPar = codigo.contains(u"IDI(");
                textos +=
                    DeLaTabla(codigo, offset) + (esPar ? QStringList() : DeLosLiterales(codigo, offset));
            }
        }
    }
    return textos;
}

/// Failures and sentences of the catalogue: titles and captions have no full stop. Those of the toolkit are
/// its own.
QStringList DelCatalogo(int offset) {
    static const QRegularExpression frase(u"[^.][.?]$"_s);
    QStringList textos;
    for (const QString& linea : QString::fromUtf8(LeerFichero(u":/textos/propios.txt"_s)).split(u'\n')) {
        const QStringList campos = linea.split(u'\t');
        const bool esMensaje = campos.at(0).startsWith(u"error_") ||
                               (!campos.at(0).startsWith(u"qt:") && frase.match(campos.value(1)).hasMatch());
        if (campos.size() == 3 && esMensaje && !Descripciones().contains(campos.at(0))) {
            textos += campos.at(offset == 0 ? 1 : 2);
        }
    }
    return textos;
}

/// Pairs that are written out: the first in Castellano, the second in Euskera.
QStringList DeLosPares(int offset) {
    static const QRegularExpression orden(u"^Select "_s);
    QStringList textos;
    for (const Fuente& fuente : Programa()) {
        for (const QString& nombre : {u"IDI"_s, u"TextoDeFalta"_s}) {
            for (const QStringList& par : Argumentos(fuente.texto, nombre)) {
                textos += DeLosLiterales(par.value(offset == 0 ? 0 : 1), offset);
            }
        }
    }
    textos.removeIf([](const QString& texto) { return orden.match(texto).hasMatch(); });
    return textos;
}

/// The platform's texts of failures, and the causes that are told after them.
QStringList DeLosFallos() {
    static const QRegularExpression causa(u"^\\p{Lu}\\p{Ll}* .*[^.]\\.$"_s);
    QStringList textos =
        Literales(TextoDe(u"core/base/ErrorZT.cpp"_s)).filter(QRegularExpression(u"^\\p{Lu}"_s));
    for (const Fuente& fuente : Programa()) {
        if (!fuente.ruta.startsWith(u"core/printing/") && !fuente.ruta.startsWith(u"core/exchange/")) {
            textos += Literales(fuente.texto).filter(causa);
        }
    }
    return textos;
}

}  // namespace

QStringList TextosDeMensajes(int offset) {
    QStringList textos = DeLasLlamadas(offset) + DelCatalogo(offset) + DeLosPares(offset) + DeLosFallos() +
                         DeLaTabla(TextoDe(u"core/run/ListaDeErrores.cpp"_s), offset);
    for (QString& texto : textos) {
        texto = texto.remove(u'&').simplified();
    }
    textos.removeAll(QString());
    textos.removeDuplicates();
    return textos;
}
