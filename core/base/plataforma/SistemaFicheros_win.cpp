#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>

#include <QDir>
#include <QFileDevice>

#include "core/base/FalloDeFichero.h"
#include "core/base/plataforma/SistemaFicheros.h"

namespace {

const wchar_t* Ancha(const QString& nativa) { return reinterpret_cast<const wchar_t*>(nativa.utf16()); }

qint64 De64Bits(DWORD alta, DWORD baja) {
    return static_cast<qint64>((static_cast<quint64>(alta) << 32U) | static_cast<quint64>(baja));
}

[[noreturn]] void NoSePuede(const QString& destino) {
    throw FalloDelSistema(NumError::ErrorAccesoRuta, destino);
}

}  // namespace

EstadoFichero ExaminarFichero(const QString& ruta) {
    const QString nativa = QDir::toNativeSeparators(ruta);
    EstadoFichero estado;
    HANDLE fichero = CreateFileW(Ancha(nativa), FILE_READ_ATTRIBUTES,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (fichero == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        const bool falta =
            error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
        estado.clase = falta ? ClaseFichero::NoExiste : ClaseFichero::Inaccesible;
        return estado;
    }
    BY_HANDLE_FILE_INFORMATION datos{};
    if (GetFileInformationByHandle(fichero, &datos) == 0) {
        estado.clase = ClaseFichero::Inaccesible;
    } else {
        const bool carpeta = (datos.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        estado.clase = carpeta ? ClaseFichero::Carpeta : ClaseFichero::Regular;
        estado.dispositivo = datos.dwVolumeSerialNumber;
        estado.numero = static_cast<quint64>(De64Bits(datos.nFileIndexHigh, datos.nFileIndexLow));
        estado.tamano = De64Bits(datos.nFileSizeHigh, datos.nFileSizeLow);
        estado.modificado =
            De64Bits(datos.ftLastWriteTime.dwHighDateTime, datos.ftLastWriteTime.dwLowDateTime);
        estado.cambiado = De64Bits(datos.ftCreationTime.dwHighDateTime, datos.ftCreationTime.dwLowDateTime);
    }
    CloseHandle(fichero);
    return estado;
}

bool DarNombre(const QString& temporal, const QString& destino) {
    const QString de = QDir::toNativeSeparators(temporal);
    const QString a = QDir::toNativeSeparators(destino);
    if (MoveFileExW(Ancha(de), Ancha(a), MOVEFILE_WRITE_THROUGH) != 0) {
        return true;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) {
        return false;
    }
    NoSePuede(destino);
}

// Names are written through as they are given.
bool PublicarFichero(const QString& temporal, const QString& destino) { return DarNombre(temporal, destino); }

void SustituirFichero(const QString& temporal, const QString& destino) {
    const QString de = QDir::toNativeSeparators(temporal);
    const QString a = QDir::toNativeSeparators(destino);
    if (MoveFileExW(Ancha(de), Ancha(a), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        NoSePuede(destino);
    }
}

bool SePuedeSustituirAbierto() { return false; }

bool ConservarFichero(const QString& ruta, const QString& otroNombre) {
    const QString de = QDir::toNativeSeparators(ruta);
    const QString a = QDir::toNativeSeparators(otroNombre);
    if (CreateHardLinkW(Ancha(a), Ancha(de), nullptr) != 0 || CopyFileW(Ancha(de), Ancha(a), TRUE) != 0) {
        return true;
    }
    if (GetLastError() == ERROR_FILE_EXISTS) {
        return false;
    }
    NoSePuede(otroNombre);
}

bool CambiarNombre(const QString& ruta, const QString& otroNombre) { return DarNombre(ruta, otroNombre); }

// Who shares reading, writing and deleting is in nobody's way but in that of another one who wants the file
// for himself.
RetencionDeFichero::RetencionDeFichero(const QString& ruta) {
    const QString nativa = QDir::toNativeSeparators(ruta);
    HANDLE solo = CreateFileW(Ancha(nativa), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                              FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (solo != INVALID_HANDLE_VALUE) {
        CloseHandle(solo);
        solo =
            CreateFileW(Ancha(nativa), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    }
    m_fichero = reinterpret_cast<qintptr>(solo);
    m_conseguida = solo != INVALID_HANDLE_VALUE;
}

RetencionDeFichero::~RetencionDeFichero() {
    if (m_conseguida) {
        CloseHandle(reinterpret_cast<HANDLE>(m_fichero));
    }
}

void SincronizarFichero(const QString& ruta) {
    const QString nativa = QDir::toNativeSeparators(ruta);
    HANDLE fichero = CreateFileW(Ancha(nativa), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (fichero == INVALID_HANDLE_VALUE) {
        NoSePuede(ruta);
    }
    const bool hecho = FlushFileBuffers(fichero) != 0;
    CloseHandle(fichero);
    if (!hecho) {
        NoSePuede(ruta);
    }
}

// Names are written through as they are given.
void SincronizarCarpetaDe(const QString& /*ruta*/) {}

bool SincronizarFichero(const QFileDevice& fichero) {
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(fichero.handle()))) != 0;
}
