#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include "core/run/plataforma/MarcaConNombre.h"

// The mark is a lock file in the user's run-time folder. Every copy holds a shared lock on it; the last one
// to go gets the exclusive lock and removes it. A copy that was killed leaves the file without a lock.

namespace {

/// A copy that goes while this one comes takes the file away between the opening and the lock.
constexpr int kIntentos = 10;

int g_fichero = -1;

/// Whether the open file is still the one that stands under the name.
bool EsElDeLaRuta(int fichero, const QByteArray& ruta) {
    struct stat abierto {};
    struct stat enRuta {};
    return ::fstat(fichero, &abierto) == 0 && ::stat(ruta.constData(), &enRuta) == 0 &&
           abierto.st_ino == enRuta.st_ino && abierto.st_dev == enRuta.st_dev;
}

QByteArray Ruta() {
    const QString carpeta = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return carpeta.isEmpty() ? QByteArray() : QFile::encodeName(carpeta + QStringLiteral("/KLKL_ZELT"));
}

}  // namespace

void PonerMarcaConNombre() noexcept {
    const QByteArray ruta = Ruta();
    if (ruta.isEmpty() || g_fichero >= 0) {
        return;
    }
    for (int intento = 0; intento < kIntentos; ++intento) {
        g_fichero = ::open(ruta.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (g_fichero < 0) {
            return;
        }
        if (::flock(g_fichero, LOCK_SH | LOCK_NB) == 0 && EsElDeLaRuta(g_fichero, ruta)) {
            return;
        }
        ::close(g_fichero);
        g_fichero = -1;
    }
}

void QuitarMarcaConNombre() noexcept {
    if (g_fichero < 0) {
        return;
    }
    if (::flock(g_fichero, LOCK_EX | LOCK_NB) == 0) {
        ::unlink(Ruta().constData());
    }
    ::close(g_fichero);
    g_fichero = -1;
}
