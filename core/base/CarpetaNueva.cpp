#include "core/base/CarpetaNueva.h"

#include <QDir>
#include <QFileInfo>

#include "core/base/FalloDeFichero.h"
#include "core/base/plataforma/SistemaFicheros.h"

namespace {

constexpr QFile::Permissions kDelUsuario = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

bool Hacer(const QString& ruta, Lectores lectores) {
    if (lectores == Lectores::LosHabituales) {
        return QDir().mkdir(ruta);
    }
    // Nobody else gets in between its making and its closing; settings that take rights away from its owner
    // hold no longer than to that.
    const bool hecha = QDir().mkdir(ruta, kDelUsuario);
    if (hecha) {
        CerrarCarpeta(ruta);
    }
    return hecha;
}

/// `pedida` is the folder that is told of a failure.
void Crear(const QString& carpeta, const QString& pedida, NumError otro, Lectores lectores) {
    if (QFileInfo(carpeta).isDir()) {
        return;
    }
    if (const QString superior = QFileInfo(carpeta).path(); superior != carpeta) {
        Crear(superior, pedida, otro, Lectores::LosHabituales);
    }
    if (Hacer(carpeta, lectores)) {
        SincronizarCarpetaDe(carpeta);
        return;
    }
    const ErrorZT fallo = FalloDelSistema(otro, pedida);
    // Another program may have made it.
    if (!QFileInfo(carpeta).isDir()) {
        throw ErrorZT(fallo);
    }
}

}  // namespace

void CrearCarpeta(const QString& ruta, NumError otro, Lectores lectores) {
    Crear(QDir::cleanPath(ruta), ruta, otro, lectores);
}

CarpetaDePaso::CarpetaDePaso(const QString& ruta) {
    for (QString carpeta = QDir::cleanPath(ruta); !QFileInfo::exists(carpeta);
         carpeta = QFileInfo(carpeta).path()) {
        m_faltaban += carpeta;
    }
}

CarpetaDePaso::~CarpetaDePaso() {
    for (const QString& carpeta : std::as_const(m_faltaban)) {
        // It goes only when it is empty.
        QDir().rmdir(carpeta);
    }
}

void CerrarCarpeta(const QString& ruta) { QFile::setPermissions(ruta, kDelUsuario); }
