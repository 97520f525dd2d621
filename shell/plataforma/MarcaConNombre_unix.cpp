#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include "shell/plataforma/MarcaConNombre.h"

// The mark is a lock file in the user's run-time folder. Every copy holds a shared lock on it; the last one
// to go gets the exclusive lock and removes it. A copy that was killed leaves the file without a lock.

namespace {

int g_fichero = -1;

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
    g_fichero = ::open(ruta.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (g_fichero >= 0) {
        ::flock(g_fichero, LOCK_SH | LOCK_NB);
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
