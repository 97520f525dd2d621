#pragma once

#include <QString>

/// State and settings of the update check; one instance, `oActOnline()`.
class cZTActOnline {
  public:
    /// 1 when the installed and the offered version differ. Only ever set to 1; a second check of the same
    /// run keeps it.
    qint32 ComVer = 0;
    /// Result of the last check: 1 the download failed, 3 it ran to its end, 4 the file could not be read.
    qint32 SitAct = 0;
    /// Text that the service offers for the new version.
    QString ActDescripcion;
    /// The three parts of the offered version.
    QString ActVer1;
    QString ActVer2;
    QString ActVer3;
    /// The three parts of the installed version.
    QString ProgVer3;
    QString ProgVer2;
    QString ProgVer1;
    /// Address of the download page.
    QString ActDownloadURL;
    /// Full path of the program file examined.
    QString ActFile;
    /// 1 check at start, 0 do not, negative: not yet decided (first run).
    qint16 ActOnline = 0;
    /// Address of the version file on the update service, from the reference store.
    QString URLAct;

    /// Reads the address of the service into `URLAct`. The function's own result stays empty: callers read
    /// the property.
    QString ObtenerURLAct();
    /// Stores `ActOnline` in the user's store.
    void GuardarActOnline() const;
    /// Reads `ActOnline` from the user's store.
    void LeerActOnline();
    /// Stores the language code in the user's store.
    void ModificarIdioma(const QString& sIdioma) const;
    /// Moves the stored language straight into `OffsetIdioma` as a number. Raises 13 for a letter; the
    /// program's own flow reads the language through `cZTFecha`.
    void LeerIdioma() const;
};

/// The shared instance.
cZTActOnline& oActOnline();
