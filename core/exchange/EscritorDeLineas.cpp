#include "core/exchange/EscritorDeLineas.h"

#include "core/base/FalloDeFichero.h"
#include "core/base/Windows1252.h"

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
    throw FalloDeEscritura(fichero, fichero.fileName());
}
