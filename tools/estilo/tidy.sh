#!/usr/bin/env bash
# clang-tidy over one source. Its findings come out in one piece, so that parallel runs do not mix, and
# without its count of what it left out. In tests the path-sensitive analysis is left off: it would spend
# twice the time of all other checks on the templates of the test frameworks.
comprobaciones=()
[[ $1 != tests/* ]] || comprobaciones=(--checks='-clang-analyzer-*')
salida=$(clang-tidy --quiet -p build/tidy "${comprobaciones[@]}" "$1" 2>&1)
codigo=$?
salida=$(grep -vE '^[0-9]+ warnings?( and [0-9]+ errors?)? generated\.$' <<<"$salida")
[ -z "$salida" ] || printf '%s\n' "$salida"
exit "$codigo"
