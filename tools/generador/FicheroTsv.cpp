#include "tools/generador/FicheroTsv.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

FallaTsv::FallaTsv(const QString& fichero, int linea, const QString& causa)
    : std::runtime_error(
          u"%1:%2: %3"_s.arg(QDir::toNativeSeparators(fichero)).arg(linea).arg(causa).toStdString()) {}

FicheroTsv::FicheroTsv(QString ruta, const QStringList& columnas) : m_ruta(std::move(ruta)) {
    QFile fichero(m_ruta);
    if (!fichero.open(QIODevice::ReadOnly)) {
        throw FallaTsv(m_ruta, 0, fichero.errorString());
    }
    QStringDecoder decodificador(QStringDecoder::Utf8);
    const QString texto = decodificador(fichero.readAll());
    if (decodificador.hasError()) {
        throw FallaTsv(m_ruta, 0, u"not UTF-8"_s);
    }
    if (!texto.endsWith(u'\n')) {
        throw FallaTsv(m_ruta, 0, u"no end of line at the end"_s);
    }
    QStringList lineas = texto.split(u'\n');
    lineas.removeLast();
    int numero = 0;
    for (QString& linea : lineas) {
        if (linea.endsWith(u'\r')) {
            linea.chop(1);
        }
        LeerLinea(linea, ++numero, columnas);
    }
}

void FicheroTsv::LeerLinea(const QString& linea, int numero, const QStringList& columnas) {
    const QStringList campos = linea.split(u'\t');
    if (numero == 1) {
        if (campos != columnas) {
            throw FallaTsv(m_ruta, numero, u"columns expected: "_s + columnas.join(u' '));
        }
        return;
    }
    if (linea.startsWith(u'#')) {
        return;
    }
    const FilaTsv fila{numero, campos};
    if (campos.size() != columnas.size()) {
        Fallar(fila, u"%1 fields instead of %2"_s.arg(campos.size()).arg(columnas.size()));
    }
    for (const QString& campo : campos) {
        if (campo.isEmpty() || campo != campo.trimmed()) {
            Fallar(fila, u"empty field, or blanks around it"_s);
        }
    }
    m_filas.push_back(fila);
}

void FicheroTsv::Fallar(const FilaTsv& fila, const QString& causa) const {
    throw FallaTsv(m_ruta, fila.linea, causa);
}

int FicheroTsv::Entero(const FilaTsv& fila, int columna, int minimo, int maximo) const {
    const QString& campo = fila.campos.at(columna);
    bool bien = false;
    const int valor = campo.toInt(&bien);
    if (!bien || valor < minimo || valor > maximo) {
        Fallar(fila, u"\"%1\" is not a number from %2 to %3"_s.arg(campo).arg(minimo).arg(maximo));
    }
    return valor;
}

qint64 FicheroTsv::Millonesimas(const FilaTsv& fila, int columna) const {
    static const QRegularExpression kImporte(u"^([0-9]{1,9})\\.([0-9]{6})$"_s);
    const QString& campo = fila.campos.at(columna);
    const auto partes = kImporte.match(campo);
    if (!partes.hasMatch()) {
        Fallar(fila, u"\"%1\" is not an amount with six decimals"_s.arg(campo));
    }
    return (partes.captured(1) + partes.captured(2)).toLongLong();
}
