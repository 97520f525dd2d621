#pragma once

#include <QDateTime>
#include <QString>
#include <array>
#include <functional>
#include <optional>

class ErrorZT;

/// What is added to a text id in each language.
inline constexpr qint16 kOffsetCastellano = 0;
inline constexpr qint16 kOffsetEuskera = 1000;

/// The offset of a language code: Euskera for "E", Castellano for any other, an empty one included.
qint16 OffsetDeIdioma(const QString& codigo);

/// The fixed version record of a program file: four numbers each.
struct VersionFichero {
    std::array<quint16, 4> fichero{};
    std::array<quint16, 4> producto{};
};

/// Run-wide values and what the program takes from the machine. There is one, `Entorno()`.
struct EntornoZT {
    /// Folder of the data files, always ending in a separator.
    QString mdbPath;
    /// Full path of the user's store.
    QString mdbmod;
    /// Full path of the read-only reference store.
    QString mdblec;
    /// 0 for Castellano, 1000 for Euskera; added to every text id.
    qint16 OffsetIdioma = 0;
    /// First, second and fourth number of the file version joined by points; empty when there is none.
    QString VersionPrograma;
    /// The four numbers of the product version joined by points.
    QString VersionProducto;
    /// First and last year and quarter that the program accepts. `PeriodoMinimo` is kept and never read.
    qint16 EjercicioMinimo = 0;
    qint16 PeriodoMinimo = 0;
    qint16 EjercicioMaximo = 0;
    qint16 PeriodoMaximo = 0;
    /// Last answer of the message box: 1 Aceptar, 2 Cancelar.
    qint16 RespuestaMensaje = 0;

    /// Folder of the program, native separators, none at the end.
    QString CarpetaPrograma;
    /// True when `CarpetaPrograma` is the user's own folder, which is never cut at the word "cliente".
    bool CarpetaDeUsuario = false;
    /// Name of the executable without extension, for the failure log.
    QString NombreEjecutable;
    /// Temporary folder and machine name, empty when the platform gives none.
    QString CarpetaTemporal;
    QString NombreMaquina;

    /// The moment now.
    std::function<QDateTime()> Reloj;
    /// Milliseconds of a clock that only goes forward.
    std::function<qint64()> Milisegundos;
    /// The version record of the program file, or nothing when there is none.
    std::function<std::optional<VersionFichero>()> LectorVersion;
    /// Has the data layer bring the user's store to the form of this version; True when the program must not
    /// go on.
    std::function<bool()> Migrar;
    /// Offers the user to go back to an automatic copy because of that damage in his store; True when he has.
    /// Raises the damage again where nobody can be asked.
    std::function<bool(const ErrorZT&)> Volver;
    /// Sees to a failure that is about to be shown; True when there is nothing left to be shown.
    std::function<bool(const ErrorZT&)> Atender;
    /// Runs the update check to its end; does nothing where the program is built without one.
    std::function<void()> ComprobarActualizacion;
    /// Ends the process at once with that exit code.
    std::function<void(int)> Terminar;
};

/// The one environment of the run, made from the machine on first use.
EntornoZT& Entorno();

/// A server of the user's store of the run, made for one call.
template <class Servidor>
[[nodiscard]] Servidor ServidorDeUsuario() {
    Servidor servidor;
    servidor.mdbmod = Entorno().mdbmod;
    if constexpr (requires { servidor.mdbPath; }) {
        servidor.mdbPath = Entorno().mdbPath;
    }
    return servidor;
}

/// A server of the reference store of the run, made for one call.
template <class Servidor>
[[nodiscard]] Servidor ServidorDeReferencia() {
    Servidor servidor;
    servidor.mdblec = Entorno().mdblec;
    return servidor;
}

/// Path of a file of the program folder.
QString EnCarpetaPrograma(const QString& nombre);

/// Back to the values of the machine; used by tests.
void ReiniciarEntorno();
