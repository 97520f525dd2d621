#!/usr/bin/env bash
# Configures a preset where that is due and builds it, whole or the given targets:
#   tools/construir.sh release ZELT
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=${1:?preset missing}
shift

# Ninja itself sees changed CMake files; the presets are not among its inputs.
reglas=build/$preset/build.ninja
if [ ! -f "$reglas" ] || [ CMakePresets.json -nt "$reglas" ]; then
    cmake --preset "$preset"
fi
cmake --build --preset "$preset" ${1:+--target "$@"}
