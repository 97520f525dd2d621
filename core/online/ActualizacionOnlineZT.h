#pragma once

#include <QString>

class CanalActualizacion;

// The update check. It installs nothing: a newer version is only offered for download in the browser.

/// Results of a check, values of `SitAct` of `oActOnline()`.
inline constexpr qint32 kDescargaFallida = 1;
inline constexpr qint32 kComprobacionHecha = 3;
inline constexpr qint32 kLecturaFallida = 4;

/// The whole check: one second in which pending events run, download, reading, and the dialog that the
/// result asks for; `SitAct` tells the result afterwards.
///
/// | Download | Reading | `ComVer` | Preferences visible | `SitAct` | Shown               |
/// |----------|---------|----------|---------------------|----------|---------------------|
/// | fails    |         |          |                     | 1        | `frmZTSinConexion`  |
/// | good     | fails   |          |                     | 4        | `frmZTSinConexion`  |
/// | good     | good    | 1        | either              | 3        | `frmZTVersionCheck` |
/// | good     | good    | not 1    | yes                 | 3        | `frmZTVersionCheck` |
/// | good     | good    | not 1    | no                  | 3        | nothing             |
void ComprobarActualizacion(CanalActualizacion& canal);

/// Fetches the version file, after deleting the one that stands there: a failed download leaves no old file
/// to be read. Gives `kComprobacionHecha` or `kDescargaFallida`; raises nothing.
qint32 DescargarVersion(CanalActualizacion& canal);

/// Reads the version file and the installed version into `oActOnline()` and sets its `ComVer` to 1 when one
/// of the three parts differs as a text, in whichever order: an older version counts as a new one, and "01"
/// differs from "1". Gives 0, or `kLecturaFallida` for a file that cannot be read or whose version has fewer
/// than three parts; raises nothing.
qint32 LeerVersion();

/// Path of the version file: "version.ini" in the program's folder.
QString RutaDeVersion();

/// Address that is asked for the version file in the language in force.
QString DireccionDeVersion();
