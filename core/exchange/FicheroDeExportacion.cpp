#include "core/exchange/FicheroDeExportacion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "core/base/ErrorZT.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

/// What can be replaced by its name: a file that can be written, or none yet in a folder that is there.
bool EsSustituible(const QString& ruta) {
    const QFileInfo fichero(ruta);
    return fichero.exists() ? fichero.isFile() && fichero.isWritable() : fichero.dir().exists();
}

}  // namespace

FicheroDeExportacion::FicheroDeExportacion(const QString& ruta) : m_destino(RutaReal(ruta)) {
    if (EsSustituible(m_destino)) {
        m_provisional.emplace(m_destino, Lectores::LosHabituales);
        m_escritor.emplace(m_provisional->Ruta(), m_destino);
    } else {
        m_escritor.emplace(m_destino);
    }
}

FicheroDeExportacion::~FicheroDeExportacion() {
    m_escritor.reset();
    if (!m_provisional || !QFile::exists(m_provisional->Ruta())) {
        return;
    }
    try {
        if (!PublicarFichero(m_provisional->Ruta(), m_destino)) {
            SustituirFichero(m_provisional->Ruta(), m_destino + u".incompleto"_s);
        }
    } catch (const ErrorZT&) {
        // The failure that ended the export is the one to be told; the rest goes with its provisional name.
        return;
    }
}

void FicheroDeExportacion::Terminar() {
    m_escritor->Asegurar();
    m_escritor->Cerrar();
    if (m_provisional) {
        SustituirFichero(m_provisional->Ruta(), m_destino);
    }
}
