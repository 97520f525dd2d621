#include "core/exchange/EscritorDeLineas.h"

#include "core/base/ErrorZT.h"
#include "core/base/FalloDeFichero.h"
#include "core/base/Windows1252.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBloque = 65'536;
constexpr auto kFinDeLinea = "\r\n";
constexpr qint64 kLargoDeFin = 2;

}  // namespace

EscritorDeLineas::EscritorDeLineas(const QString& ruta, const QString& destino)
    : m_destino(destino.isEmpty() ? ruta : destino),
      m_fichero(ruta, QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered, m_destino) {
    m_fichero.AntesDeQueLoCierren([this] { VolcarLoQueQuepa(); });
}

EscritorDeLineas::~EscritorDeLineas() { VolcarLoQueQuepa(); }

// A failure is on its way already; who writes asks by `Cerrar` whether all is there.
void EscritorDeLineas::VolcarLoQueQuepa() noexcept {
    try {
        if (m_fichero.Abierto()) {
            Volcar();
        }
    } catch (const ErrorZT&) {
        m_pendiente.clear();
    }
}

void EscritorDeLineas::Escribir(const QString& linea) {
    m_pendiente += AWindows1252(linea) + kFinDeLinea;
    if (m_pendiente.size() >= kBloque || !m_fichero.Abierto()) {
        Volcar();
    }
}

// A disk that fills up takes a part first; only the next write is told why. What is left of a line is cut
// off.
void EscritorDeLineas::Volcar() {
    QFile& fichero = m_fichero.Fichero();
    const qint64 desde = fichero.pos();
    for (qint64 escrito = 0; escrito < m_pendiente.size();) {
        const qint64 parte = fichero.write(m_pendiente.constData() + escrito, m_pendiente.size() - escrito);
        if (parte <= 0) {
            const auto entero =
                escrito == 0 ? -1 : m_pendiente.lastIndexOf(kFinDeLinea, escrito - kLargoDeFin);
            const qint64 lineas = entero < 0 ? 0 : entero + kLargoDeFin;
            m_pendiente.clear();
            const ErrorZT fallo = FalloDeEscritura(fichero, m_destino);
            fichero.resize(desde + lineas);
            throw ErrorZT(fallo);
        }
        escrito += parte;
    }
    m_pendiente.clear();
}

void EscritorDeLineas::Asegurar() {
    Volcar();
    if (!SincronizarFichero(m_fichero.Fichero())) {
        throw FalloDelSistema(NumError::ErrorDispositivo, m_destino);
    }
}

void EscritorDeLineas::Cerrar() {
    Volcar();
    m_fichero.Cerrar();
}
