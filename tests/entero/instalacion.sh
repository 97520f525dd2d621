#!/usr/bin/env bash
# An installation of its own runs by itself: the program finds its stores, its help and the network's module
# there. Runs under con_pantalla.sh.
#   instalacion.sh PROGRAM BUILD_FOLDER
set -euo pipefail

prefijo=$(mktemp --directory)
trap 'rm -rf -- "$prefijo"' EXIT
cmake --install "$2" --prefix "$prefijo" >/dev/null
"$(dirname "$0")/comprobar_al_arrancar.sh" "$prefijo/bin/$(basename "$1")"
