#include <pwd.h>
#include <unistd.h>

#include <QByteArray>
#include <array>

#include "core/start/plataforma/CarpetaPersonal.h"

// Without `HOME` the toolkit takes the root of the file system.
void AsegurarCarpetaPersonal() {
    constexpr std::size_t kMasLarga = 16'384;
    if (!qEnvironmentVariableIsEmpty("HOME")) {
        return;
    }
    std::array<char, kMasLarga> textos{};
    passwd cuenta{};
    passwd* hallada = nullptr;
    if (::getpwuid_r(::getuid(), &cuenta, textos.data(), textos.size(), &hallada) == 0 &&
        hallada != nullptr) {
        qputenv("HOME", hallada->pw_dir);
    }
}
