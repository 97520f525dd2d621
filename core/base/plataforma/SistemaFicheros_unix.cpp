#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "core/base/FalloDeFichero.h"
#include "core/base/plataforma/SistemaFicheros.h"

namespace {

constexpr qint64 kNanosegundos = 1'000'000'000;

qint64 Momento(const timespec& t) { return qint64{t.tv_sec} * kNanosegundos + qint64{t.tv_nsec}; }

ClaseFichero ClaseDe(const struct stat& datos) {
    switch (datos.st_mode & S_IFMT) {
        case S_IFREG:
            return ClaseFichero::Regular;
        case S_IFDIR:
            return ClaseFichero::Carpeta;
        case S_IFIFO:
            return ClaseFichero::Tuberia;
        case S_IFCHR:
        case S_IFBLK:
            return ClaseFichero::Dispositivo;
        case S_IFSOCK:
            return ClaseFichero::Conector;
        default:
            return ClaseFichero::Otra;
    }
}

/// What a path is that cannot be looked at, by the cause.
ClaseFichero ClaseSinDatos(int causa) {
    if (causa == ENOENT || causa == ENOTDIR) {
        return ClaseFichero::NoExiste;
    }
    return causa == ELOOP ? ClaseFichero::BucleDeEnlaces : ClaseFichero::Inaccesible;
}

/// The lock of `RetencionDeFichero`. It belongs to the open file, so that it is not lost when the process
/// closes the file elsewhere, and it is on a byte far behind those that stores lock: on network file systems
/// all kinds of locks meet.
int Retener(int fichero) {
#ifdef F_OFD_SETLK
    constexpr off_t kLejos = off_t{1} << 62;
    struct flock candado {};
    candado.l_type = F_WRLCK;
    candado.l_whence = SEEK_SET;
    candado.l_start = kLejos;
    candado.l_len = 1;
    return ::fcntl(fichero, F_OFD_SETLK, &candado);
#else
    return ::flock(fichero, LOCK_EX | LOCK_NB);
#endif
}

/// Whether the open file still has its name.
bool TieneNombre(int fichero) {
    struct stat datos {};
    return ::fstat(fichero, &datos) == 0 && datos.st_nlink > 0;
}

[[noreturn]] void NoSePuede(const QString& destino) {
    throw FalloDelSistema(NumError::ErrorAccesoRuta, destino);
}

}  // namespace

EstadoFichero ExaminarFichero(const QString& ruta) {
    struct stat datos {};
    EstadoFichero estado;
    if (::stat(QFile::encodeName(ruta).constData(), &datos) != 0) {
        estado.clase = ClaseSinDatos(errno);
        return estado;
    }
    estado.clase = ClaseDe(datos);
    estado.dispositivo = datos.st_dev;
    estado.numero = datos.st_ino;
    estado.tamano = datos.st_size;
#ifdef Q_OS_DARWIN
    estado.modificado = Momento(datos.st_mtimespec);
    estado.cambiado = Momento(datos.st_ctimespec);
#else
    estado.modificado = Momento(datos.st_mtim);
    estado.cambiado = Momento(datos.st_ctim);
#endif
    return estado;
}

bool DarNombre(const QString& temporal, const QString& destino) {
    const QByteArray de = QFile::encodeName(temporal);
    const QByteArray a = QFile::encodeName(destino);
    if (::link(de.constData(), a.constData()) == 0) {
        ::unlink(de.constData());
    } else if (errno == EEXIST) {
        return false;
    } else {
        // File systems without hard links: the test and the change of name are two steps there.
        struct stat datos {};
        if (::lstat(a.constData(), &datos) == 0) {
            return false;
        }
        if (::rename(de.constData(), a.constData()) != 0) {
            NoSePuede(destino);
        }
    }
    return true;
}

bool PublicarFichero(const QString& temporal, const QString& destino) {
    const bool dado = DarNombre(temporal, destino);
    if (dado) {
        SincronizarCarpetaDe(destino);
    }
    return dado;
}

bool SincronizarFichero(const QFileDevice& fichero) { return ::fsync(fichero.handle()) == 0; }

void SustituirFichero(const QString& temporal, const QString& destino) {
    if (QFile::exists(destino)) {
        QFile::setPermissions(temporal, QFile::permissions(destino));
    }
    if (::rename(QFile::encodeName(temporal).constData(), QFile::encodeName(destino).constData()) != 0) {
        NoSePuede(destino);
    }
    SincronizarCarpetaDe(destino);
}

bool SePuedeSustituirAbierto() { return true; }

bool ConservarFichero(const QString& ruta, const QString& otroNombre) {
    if (::link(QFile::encodeName(ruta).constData(), QFile::encodeName(otroNombre).constData()) == 0) {
        SincronizarCarpetaDe(otroNombre);
        return true;
    }
    if (errno == EEXIST || QFile::exists(otroNombre)) {
        return false;
    }
    if (!QFile::copy(ruta, otroNombre)) {
        NoSePuede(otroNombre);
    }
    SincronizarFichero(otroNombre);
    SincronizarCarpetaDe(otroNombre);
    return true;
}

bool CambiarNombre(const QString& ruta, const QString& otroNombre) {
    const QByteArray de = QFile::encodeName(ruta);
    const QByteArray a = QFile::encodeName(otroNombre);
    struct stat datos {};
    // A folder has no second names: the test and the change of name are two steps.
    if (::lstat(a.constData(), &datos) == 0) {
        return false;
    }
    if (::rename(de.constData(), a.constData()) != 0) {
        NoSePuede(otroNombre);
    }
    SincronizarCarpetaDe(otroNombre);
    return true;
}

RetencionDeFichero::RetencionDeFichero(const QString& ruta)
    : m_fichero(::open(QFile::encodeName(ruta).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)),
      m_conseguida(m_fichero >= 0 && Retener(static_cast<int>(m_fichero)) == 0 &&
                   TieneNombre(static_cast<int>(m_fichero))) {}

RetencionDeFichero::~RetencionDeFichero() {
    if (m_fichero >= 0) {
        ::close(static_cast<int>(m_fichero));
    }
}

void SincronizarFichero(const QString& ruta) {
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_CLOEXEC);
    const bool hecho = fd >= 0 && ::fsync(fd) == 0;
    if (fd >= 0) {
        ::close(fd);
    }
    if (!hecho) {
        NoSePuede(ruta);
    }
}

// Some network file systems cannot; there is then nothing more to be done.
void SincronizarCarpetaDe(const QString& ruta) {
    const QByteArray carpeta = QFile::encodeName(QFileInfo(ruta).path());
    const int fd = ::open(carpeta.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}
