#!/usr/bin/env bash
# Runs every fuzz target for some seconds (60 unless told), starting from the inputs kept in
# tests/fuzz/corpus; one target alone if named:
#   tools/fuzz.sh 3600 intercambio
# Inputs that reach something new are gathered in build/fuzz/corpus; one that brings a target down is left in
# build/fuzz and ends the run as a failure.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

segundos=${1:-60}
[[ $segundos =~ ^[0-9]+$ ]] || { echo 'use: tools/fuzz.sh [SECONDS [TARGET...]]' >&2; exit 2; }
temas=("${@:2}")
if [ "${#temas[@]}" -eq 0 ]; then
    for carpeta in tests/fuzz/corpus/*/; do
        temas+=("$(basename "$carpeta")")
    done
fi

tools/dependencias.sh construir fuzz
tools/construir.sh fuzz "${temas[@]/#/fuzz_}"

for tema in "${temas[@]}"; do
    hallados=build/fuzz/corpus/$tema
    mkdir -p "$hallados"
    echo "fuzz: $tema, $segundos s"
    "build/fuzz/bin/fuzz_$tema" -max_total_time="$segundos" -timeout=10 -rss_limit_mb=1024 -verbosity=0 \
        -print_final_stats=1 -artifact_prefix="build/fuzz/$tema-" "$hallados" "tests/fuzz/corpus/$tema"
done
