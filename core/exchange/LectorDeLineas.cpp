#include "core/exchange/LectorDeLineas.h"

#include <QDir>
#include <QFileDevice>
#include <algorithm>

#include "core/base/ErrorZT.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBloque = 65'536;

bool EsFin(char c) { return c == '\n' || c == '\r'; }

/// Name of the file, for messages; empty for a device that is none.
QString NombreDe(const QIODevice& dispositivo) {
    const auto* fichero = qobject_cast<const QFileDevice*>(&dispositivo);
    return fichero == nullptr ? QString() : QDir::toNativeSeparators(fichero->fileName()) + u": "_s;
}

}  // namespace

LectorDeLineas::LectorDeLineas(QIODevice& dispositivo, qsizetype largoMaximo)
    : m_dispositivo(dispositivo), m_largoMaximo(largoMaximo), m_bloque(kBloque, Qt::Uninitialized) {}

std::optional<QByteArrayView> LectorDeLineas::Siguiente() {
    if (m_pos == m_fin && !Llenar()) {
        return {};
    }
    if (m_trasCR && Resto().front() == '\n') {
        ++m_pos;
        m_trasCR = false;
        if (m_pos == m_fin && !Llenar()) {
            return {};
        }
    }
    m_linea.clear();
    for (;;) {
        const QByteArrayView resto = Resto();
        const auto fin = std::find_if(resto.begin(), resto.end(), EsFin);
        const QByteArrayView trozo = resto.first(fin - resto.begin());
        m_pos += trozo.size();
        if (fin != resto.end()) {
            m_trasCR = *fin == '\r';
            ++m_pos;
            if (m_linea.isEmpty()) {
                return trozo.first(std::min(trozo.size(), m_largoMaximo));
            }
            Guardar(trozo);
            return m_linea;
        }
        Guardar(trozo);
        if (!Llenar()) {
            m_trasCR = false;
            return m_linea;
        }
    }
}

bool LectorDeLineas::Llenar() {
    const qint64 leidos = m_dispositivo.read(m_bloque.data(), kBloque);
    if (leidos < 0) {
        throw ErrorZT(NumError::ErrorDispositivo, TextoDeError(NumError::ErrorDispositivo) + u": "_s +
                                                      NombreDe(m_dispositivo) + TextoPropio(u"causa_disco"));
    }
    m_pos = 0;
    m_fin = leidos;
    if (Resto().contains('\0')) {
        throw ErrorZT(NumError::CaracterFueraDePagina,
                      NombreDe(m_dispositivo) + TextoPropio(u"intercambio_caracter_nulo"));
    }
    return leidos > 0;
}

void LectorDeLineas::Guardar(QByteArrayView trozo) {
    m_linea += trozo.first(std::min(trozo.size(), m_largoMaximo - m_linea.size()));
}
