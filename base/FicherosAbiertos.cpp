#include "base/FicherosAbiertos.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <vector>

#include "base/ErrorZT.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<QFile*>& Abiertos() {
    static std::vector<QFile*> abiertos;
    return abiertos;
}

NumError CausaDeApertura(const QString& ruta, QIODevice::OpenMode modo) {
    const QFileInfo info(ruta);
    if (info.isDir()) {
        return NumError::ErrorAccesoRuta;
    }
    if (!info.dir().exists()) {
        return NumError::NoExisteRuta;
    }
    if (!info.exists() && !(modo & QIODevice::WriteOnly)) {
        return NumError::NoExisteFichero;
    }
    return NumError::PermisoDenegado;
}

}  // namespace

FicheroZT::FicheroZT(const QString& ruta, QIODevice::OpenMode modo) : m_fichero(ruta) {
    if (!m_fichero.open(modo)) {
        const NumError causa = CausaDeApertura(ruta, modo);
        throw ErrorZT(causa, TextoDeError(causa) + u": "_s + QDir::toNativeSeparators(ruta));
    }
    Abiertos().push_back(&m_fichero);
}

FicheroZT::~FicheroZT() { std::erase(Abiertos(), &m_fichero); }

QFile& FicheroZT::Fichero() {
    if (!m_fichero.isOpen()) {
        throw ErrorZT(NumError::NombreFicheroIncorrecto);
    }
    return m_fichero;
}

void CerrarFicherosAbiertos() {
    for (QFile* fichero : Abiertos()) {
        fichero->close();
    }
}
