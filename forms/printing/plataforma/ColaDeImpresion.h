#pragma once

#include <QString>

// What the system's print queue tells and the toolkit does not. One implementation a system.

/// What the queue has said against the job that was handed over last in this thread; in the language in
/// force; empty when it took it, or where the toolkit itself tells of it.
QString FalloDelUltimoTrabajo();
