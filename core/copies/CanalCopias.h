#pragma once

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

// What the backup tool and the migration need of the screen, and what they tell it. The forms fill the
// channel in at start; tests put recorders in.

/// Why a copy was not made, or a file not taken.
enum class MotivoDeCopia {
    NoExiste,
    NoExisteCarpeta,
    EsCarpeta,
    EsTuberia,
    EsDispositivo,
    EsConector,
    EsBucleDeEnlaces,
    NombreNoValido,
    NombreLargo,
    EsFicheroDelPrograma,
    Vacio,
    Ajeno,
    Danado,
    Version,
    SumaDistinta,
    SoloLectura,
    SinPermiso,
    Ocupado,
    DiscoLleno,
    ErrorDeDisco,
    FechaSinAnotar,
    Otro
};

struct FalloDeCopia {
    MotivoDeCopia motivo = MotivoDeCopia::Otro;
    /// The file that it is about, with its path; that of a folder where it is missing.
    QString fichero;
    /// Description of the failure, in Castellano as the run-time gives it.
    QString causa;
};

/// What a sound copy holds.
struct ResumenDeCopia {
    QString ruta;
    /// When it was made. The time of a copy whose day alone is known is not valid.
    QDate fecha;
    QTime hora;
    qint32 declarantes = 0;
    qint32 declaraciones = 0;
    /// The language code stored in it: "C", "E" or empty.
    QString idioma;
};

/// Takes how much has been done, in per cent, never less than the time before.
using AvanceDeCopia = std::function<void(int)>;

/// A backup that the user has asked for and is to confirm. Failures of the store come back as results.
class TareaDeCopia {
  public:
    /// Where a copy would go: its path, and whether a file is there that it would replace; or why it cannot.
    struct Destino {
        QString ruta;
        bool existe = false;
        std::optional<FalloDeCopia> fallo;
    };

    TareaDeCopia() = default;
    TareaDeCopia(const TareaDeCopia&) = delete;
    TareaDeCopia& operator=(const TareaDeCopia&) = delete;
    virtual ~TareaDeCopia() = default;

    /// Suggested folder and name, and the filter of the file dialog in the toolkit's form.
    [[nodiscard]] virtual QString Carpeta() const = 0;
    [[nodiscard]] virtual QString Nombre() const = 0;
    [[nodiscard]] virtual QString Filtro() const = 0;
    /// Day of the last copy; not valid when none is on record.
    [[nodiscard]] virtual QDate UltimaCopia() const = 0;
    /// Judges a folder and a name as the user gives them.
    [[nodiscard]] virtual Destino Elegir(const QString& carpeta, const QString& nombre) const = 0;
    /// Makes the copy under a path that `Elegir` gave; nothing when it is there, whole and checked.
    [[nodiscard]] virtual std::optional<FalloDeCopia> Copiar(const QString& ruta,
                                                             const AvanceDeCopia& avance) = 0;
};

/// A restore that the user has asked for and is to confirm. Failures come back as results.
class TareaDeRestauracion {
  public:
    /// What a file holds, or why it cannot be restored.
    struct Examen {
        ResumenDeCopia resumen;
        std::optional<FalloDeCopia> fallo;
    };

    TareaDeRestauracion() = default;
    TareaDeRestauracion(const TareaDeRestauracion&) = delete;
    TareaDeRestauracion& operator=(const TareaDeRestauracion&) = delete;
    virtual ~TareaDeRestauracion() = default;

    [[nodiscard]] virtual QString Carpeta() const = 0;
    [[nodiscard]] virtual QString Nombre() const = 0;
    [[nodiscard]] virtual QString Filtro() const = 0;
    /// Reads the file that a folder and a name tell; changes nothing.
    [[nodiscard]] virtual Examen Examinar(const QString& carpeta, const QString& nombre) const = 0;
    /// Puts the copy in the place of the user's store; nothing when it is there. After a failure everything
    /// is as it was.
    [[nodiscard]] virtual std::optional<FalloDeCopia> Restaurar(const QString& ruta,
                                                                const AvanceDeCopia& avance) = 0;
};

/// A user's store that the start refuses or does not find, and the way back to an automatic copy.
class TareaDeVuelta {
  public:
    TareaDeVuelta() = default;
    TareaDeVuelta(const TareaDeVuelta&) = delete;
    TareaDeVuelta& operator=(const TareaDeVuelta&) = delete;
    virtual ~TareaDeVuelta() = default;

    /// Which file was refused, and why.
    [[nodiscard]] virtual const FalloDeCopia& Rechazo() const = 0;
    /// The sound automatic copies, the latest first; none where going back would not help.
    [[nodiscard]] virtual const std::vector<ResumenDeCopia>& Copias() const = 0;
    /// Puts one of them in the place of the refused file, which is kept under another name; nothing when it
    /// is there.
    [[nodiscard]] virtual std::optional<FalloDeCopia> Volver(const QString& ruta,
                                                             const AvanceDeCopia& avance) = 0;
};

class CanalCopias {
  public:
    CanalCopias() = default;
    CanalCopias(const CanalCopias&) = delete;
    CanalCopias& operator=(const CanalCopias&) = delete;
    virtual ~CanalCopias() = default;

    /// The moment now, for the names and dates of copies.
    [[nodiscard]] virtual QDateTime Ahora() const = 0;
    /// Have the user work on the task; they return when he has done or given up.
    virtual void PedirCopia(TareaDeCopia& tarea) = 0;
    virtual void PedirRestauracion(TareaDeRestauracion& tarea) = 0;
    /// The same before there is a main window and a language; False when he did not go back: the program is
    /// to end, or to start with an empty store where the store is missing.
    [[nodiscard]] virtual bool PedirVuelta(TareaDeVuelta& tarea) = 0;
    /// Tells that the automatic copy of the day could not be made; what the user saved is saved.
    virtual void AvisarSinCopiaDelDia(const FalloDeCopia& fallo) = 0;
};

/// The channel in force, or nullptr: then there are no dialogs and no copies of the day.
CanalCopias* Copias();

/// Puts a channel in, or takes it away with nullptr. The caller keeps it alive.
void FijarCopias(CanalCopias* copias);

/// The moment now by the channel in force; that of the system where there is none.
QDateTime AhoraDeCopias();
