#!/usr/bin/env bash
# Installs the Debian packages of the given purposes that are not there yet:
#   tools/dependencias.sh construir probar
# Where all of them are there nothing is touched and no rights are needed.
set -euo pipefail

paquetes_de() {
    case "$1" in
        construir) # compiling and running the program
            printf '%s\n' g++ cmake ninja-build \
                qt6-base-dev qt6-svg-dev qt6-translations-l10n libgl1-mesa-dev \
                libcurl4-openssl-dev libsqlitecpp-dev libsqlite3-dev libsimpleini-dev fonts-liberation2 ;;
        pantalla) # a virtual display with a window manager
            printf '%s\n' xvfb openbox ;;
        probar) # compiling and running the tests
            printf '%s\n' libgtest-dev libgmock-dev librapidcheck-dev \
                poppler-utils cups cups-client printer-driver-cups-pdf python3 sqlite3 xdotool x11-utils ;;
        estilo) # tools/estilo/comprobar.sh
            printf '%s\n' git python3 clang-format clang-tidy cppcheck shellcheck libxml2-utils ;;
        visita) # the pictures of what the guided tour prints
            printf '%s\n' poppler-utils ;;
        fuzz) # tools/fuzz.sh
            printf '%s\n' clang libclang-rt-14-dev ;;
        bancos) # the benchmarks
            printf '%s\n' libbenchmark-dev python3 ;;
        *)
            printf 'dependencias: unknown purpose "%s" (construir, pantalla, probar, estilo, visita, fuzz, bancos)\n' "$1" >&2
            return 2 ;;
    esac
}

# Of the packages given, those that are not installed.
ausentes() {
    local instalados
    instalados=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^installed //p') || true # it fails where it does not know one of them
    comm -23 <(printf '%s\n' "$@" | sort -u) <(sort -u <<<"$instalados")
}

# Runs apt-get with the rights it needs. Without a terminal nobody can type sudo's password.
instalador() {
    local -a orden=(env DEBIAN_FRONTEND=noninteractive apt-get
        -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 --quiet --yes "$@")
    if [ "$(id -u)" -eq 0 ]; then
        "${orden[@]}"
    elif [ -t 0 ]; then
        sudo "${orden[@]}"
    else
        sudo --non-interactive "${orden[@]}"
    fi
}

fallo() {
    printf 'dependencias: %s\n' "$*" >&2
    exit 1
}

[ $# -gt 0 ] || { paquetes_de ''; exit; }
lista=$(for proposito in "$@"; do paquetes_de "$proposito" || exit; done)
mapfile -t paquetes <<<"$lista"

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    printf 'dependencias: not a Debian system; taken as installed: %s\n' "${paquetes[*]}" >&2
    exit 0
fi

mapfile -t faltan < <(ausentes "${paquetes[@]}")
[ "${#faltan[@]}" -gt 0 ] || exit 0

if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    fallo 'these packages are missing, and installing them takes root or sudo:' "${faltan[*]}"
fi
printf 'dependencias: installing %s\n' "${faltan[*]}"
instalador update || fallo 'apt-get update failed; see its messages above'
instalador install --no-install-recommends "${faltan[@]}" ||
    fallo 'apt-get could not install these packages; see its messages above:' "${faltan[*]}"
