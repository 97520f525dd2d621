#!/usr/bin/env bash
# Attacks the program for some minutes (60 unless told) and prints the tables of docs/fiabilidad.md:
#   tools/ataque.sh 60
#   tools/ataque.sh 5 1234          another seed: other damages, turns and power cuts
# Every fault comes at every call of every action first; the time left goes to new cases. Ends with a failure
# when one was found; each stands at the end with the command that repeats it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

minutos=${1:-60}
semilla=${2:-569}
[[ $minutos =~ ^[0-9]+$ && $semilla =~ ^[0-9]+$ ]] || { echo 'use: tools/ataque.sh [MINUTES [SEED]]' >&2; exit 2; }

tools/dependencias.sh construir probar
tools/construir.sh dev ataque_victima ataque_juez zt_fallo

# In memory, where there is some: what is attacked is synced again and again.
[ ! -w /dev/shm ] || export TMPDIR=${TMPDIR:-/dev/shm}
exec python3 tests/ataque/atacar.py build/dev/bin --minutos "$minutos" --semilla "$semilla"
