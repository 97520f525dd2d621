#pragma once

#include <QString>

#include "core/base/ErrorZT.h"

namespace svrZELT {

/// Brings the user's store to the form that this version wants, at every start and after a restore.
class cZTTraspaso {
  public:
    /// Path of the user's store.
    QString mdbmod;
    /// Folder of the stores, with its separator.
    QString mdbPath;

    /// Makes the store on a fresh installation, brings an older one up in one transaction after an automatic
    /// copy of it, and leaves one that is up to date as it is. True when the program must not go on.
    ///
    /// A newer, foreign, empty or read-only file, one whose structure is damaged, and what is no file at all
    /// is left untouched. The channel of the copies tells the user which file and why, and offers him to go
    /// back to an automatic copy; True when he does not. Without a channel the refusal is raised: 3340, 3343,
    /// 3049 or 3027 with the file and the cause.
    [[nodiscard]] bool Traspaso() const;

    /// Whether a failure tells of damage in the user's store.
    [[nodiscard]] bool EsDano(const ErrorZT& error) const;

    /// Offers the user to go back to an automatic copy because of damage that shows after `Traspaso`; True
    /// when he has gone back. What is not damage of this store, and all where there is no channel, is raised
    /// again.
    [[nodiscard]] bool Volver(const ErrorZT& dano) const;

    /// At the end of the program: makes an automatic copy when the store has data and no copy has any.
    void CopiarPrimerosDatos() const;
};

}  // namespace svrZELT
