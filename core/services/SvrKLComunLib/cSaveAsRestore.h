#pragma once

#include <QString>

namespace SvrKLComunLib {

/// Backup of the user's store and its return, with dialogs of its own, which go through the channel of the
/// copies (`Copias`) and speak the language in force. Made for one call; all properties are set before it.
class cSaveAsRestore {
  public:
    /// Name of the file that is copied, and of the copy: the store and the suggestion for a backup, the other
    /// way round for a restore.
    QString ArchivoOrigen;
    QString ArchivoDestino;
    /// Their folders, each with its separator.
    QString RutaOrigen;
    QString RutaDestino;
    /// Filter of the file dialog: description and patterns separated by "|", patterns by ";".
    QString Filtro;
    /// Language of the dialogs: 0 Castellano, 1000 Euskera. It is the one in force.
    qint16 idioma = 0;
    /// Handle of the calling window, over which the dialogs are modal. It is that of the active form.
    qint32 Parent = 0;
    /// Path of the reference store, in whose place no copy is put.
    QString BDLectura;
    /// Table and column in which the day of the last backup is noted, in the store and in its copies.
    QString BDTabla;
    QString BDCampo;

    /// Has the user choose where, and copies. Whatever comes of it has been told to him. Raises 91 without a
    /// channel.
    void CrearBackup() const;

    /// Has the user choose a copy, shows him what it holds, and puts it in the place of the store. True when
    /// the store has been replaced; otherwise everything is as it was, and the cause has been told. Raises 91
    /// without a channel.
    [[nodiscard]] bool CrearRestore() const;
};

}  // namespace SvrKLComunLib
