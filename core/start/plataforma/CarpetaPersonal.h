#pragma once

/// Has the toolkit find the user's home folder: where the session names none, it is the one of his account.
void AsegurarCarpetaPersonal();
