#pragma once

#include <QStringView>

#include "core/base/ErrorZT.h"

// What the system has refused last, and why. One implementation a system.

/// The number of the last refusal of the system on this thread, to be asked at once: 61 where it was for want
/// of room on the disk or in the user's share of it, `otro` for every other reason.
[[nodiscard]] NumError NumeroDelUltimoFallo(NumError otro);

/// Whether that number of the system's own means that there is no room.
[[nodiscard]] bool EsFaltaDeSitio(int numeroDelSistema);

/// Key of the text that tells the reason of that refusal: "causa_permiso" and the like.
[[nodiscard]] QStringView CausaDelUltimoFallo();
