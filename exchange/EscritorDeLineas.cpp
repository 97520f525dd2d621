#include "exchange/EscritorDeLineas.h"

#include <QDir>

#include "base/ErrorZT.h"
#include "base/Windows1252.h"

using namespace Qt::StringLiterals;

EscritorDeLineas::EscritorDeLineas(const QString& ruta)
    : m_fichero(ruta, QIODevice::WriteOnly | QIODevice::Truncate) {}

void EscritorDeLineas::Escribir(const QString& linea) {
    const QByteArray bytes = AWindows1252(linea) + "\r\n";
    if (m_fichero.Fichero().write(bytes) != bytes.size()) {
        Fallar();
    }
}

void EscritorDeLineas::Cerrar() {
    if (!m_fichero.Fichero().flush()) {
        Fallar();
    }
    m_fichero.Cerrar();
}

void EscritorDeLineas::Fallar() {
    const QFile& fichero = m_fichero.Fichero();
    const bool lleno = fichero.error() == QFileDevice::ResourceError;
    const NumError causa = lleno ? NumError::DiscoLleno : NumError::ErrorDispositivo;
    throw ErrorZT(causa, TextoDeError(causa) + u": "_s + QDir::toNativeSeparators(fichero.fileName()) +
                             (lleno ? QString() : u": "_s + fichero.errorString()));
}
