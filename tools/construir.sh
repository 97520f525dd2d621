#!/usr/bin/env bash
# Configures a preset where that is due and builds it, whole or the given targets:
#   tools/construir.sh release ZELT
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=${1:?preset missing}
shift

# Ninja itself sees changed CMake files; the presets are not among its inputs.
configurado=build/$preset/CMakePresets.json
if ! cmp --silent CMakePresets.json "$configurado"; then
    cmake --preset "$preset"
    cp CMakePresets.json "$configurado"
fi
cmake --build --preset "$preset" ${1:+--target "$@"}
