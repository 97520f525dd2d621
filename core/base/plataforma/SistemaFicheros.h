#pragma once

#include <QString>

#include "core/base/plataforma/UltimoFallo.h"

class QFileDevice;

// What the stores need of the file system and no portable library gives. One implementation a system.

/// What stands at a path. `Tuberia` is a fifo, `Conector` a socket, `BucleDeEnlaces` links that lead to each
/// other.
enum class ClaseFichero {
    Regular,
    Carpeta,
    Tuberia,
    Dispositivo,
    Conector,
    BucleDeEnlaces,
    Otra,
    NoExiste,
    Inaccesible
};

/// Identity and state of the file at a path. Two equal states mean the same file with the same contents, as
/// far as the system tells.
struct EstadoFichero {
    ClaseFichero clase = ClaseFichero::NoExiste;
    quint64 dispositivo = 0;
    quint64 numero = 0;
    qint64 tamano = 0;
    /// Moments of the last change of the contents and of the entry, in units of the system.
    qint64 modificado = 0;
    qint64 cambiado = 0;

    friend bool operator==(const EstadoFichero&, const EstadoFichero&) = default;

    /// Whether `otro` is the same file, whatever its contents.
    [[nodiscard]] bool MismoFichero(const EstadoFichero& otro) const {
        return clase == otro.clase && dispositivo == otro.dispositivo && numero == otro.numero;
    }
};

/// Looks at the file, following links. Opens nothing, so that no lock held on the file is lost. Never fails.
EstadoFichero ExaminarFichero(const QString& ruta);

/// Gives the finished file `temporal` the name `destino` in the same folder, in one step, which reaches the
/// disk with `SincronizarCarpetaDe`. Never replaces: False, with `temporal` left as it is, when the name is
/// taken. Raises 75 with file and cause.
bool DarNombre(const QString& temporal, const QString& destino);

/// The same, with the step on disk on return.
bool PublicarFichero(const QString& temporal, const QString& destino);

/// The same in the place of the file that bears the name, whose permissions it takes: whoever looks finds the
/// one or the other, whole. Raises 75 with file and cause, everything being as it was.
void SustituirFichero(const QString& temporal, const QString& destino);

/// Whether a file can be replaced while someone has it open. Where not, replacing raises as long as any
/// program has.
bool SePuedeSustituirAbierto();

/// Gives the file a second name in the same folder, or a copy of its own where the file system has no second
/// names. False when the name is taken. Raises 75 with file and cause.
bool ConservarFichero(const QString& ruta, const QString& otroNombre);

/// Gives what stands at the path, of whatever kind and a link itself, another name in the same folder. False
/// when the name is taken. Raises 75 with file and cause.
bool CambiarNombre(const QString& ruta, const QString& otroNombre);

/// Marks a file, for its life, as one that this process works on. The mark goes with the process, also when
/// that is killed, and stands in nobody's way: not in that of the locks of a store, nor of a change of name.
/// Where the file system knows no such marks there is none.
class RetencionDeFichero {
  public:
    explicit RetencionDeFichero(const QString& ruta);
    ~RetencionDeFichero();
    RetencionDeFichero(const RetencionDeFichero&) = delete;
    RetencionDeFichero& operator=(const RetencionDeFichero&) = delete;

    /// False when another one has it, or when the file has gone before the mark was made.
    [[nodiscard]] bool Conseguida() const { return m_conseguida; }

  private:
    qintptr m_fichero;
    bool m_conseguida;
};

/// Has the contents of a file on disk on return. Raises 75 with file and cause.
void SincronizarFichero(const QString& ruta);

/// Has what was written to an open file reach the disk. False when the system cannot.
[[nodiscard]] bool SincronizarFichero(const QFileDevice& fichero);

/// Has the names in the folder of `ruta` on disk on return, as far as the file system can.
void SincronizarCarpetaDe(const QString& ruta);
