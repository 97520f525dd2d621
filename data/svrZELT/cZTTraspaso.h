#pragma once

#include <QString>

namespace svrZELT {

/// Brings the user's store to the form that this version wants, at every start and after a restore.
class cZTTraspaso {
  public:
    /// Path of the user's store.
    QString mdbmod;
    /// Folder of the stores, with its separator.
    QString mdbPath;

    /// Makes the store on a fresh installation, brings an older one up in one transaction, and leaves one
    /// that is up to date as it is. True when the program must not go on.
    ///
    /// A newer, foreign, damaged or empty file is left untouched and raises 3340, 3343 or 3049 with the file
    /// and the cause.
    [[nodiscard]] bool Traspaso() const;
};

}  // namespace svrZELT
