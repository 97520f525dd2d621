#!/usr/bin/env bash
# The real program, from a home folder that has never seen it: splash, language by keyboard alone, main
# window, menu, end; then a second start, which asks nothing. Runs under con_pantalla.sh.
#   primer_arranque.sh PROGRAM
set -euo pipefail
# shellcheck source=tests/entero/programa.sh
source "$(dirname "$0")/programa.sh"

arrancar
esperar 'Hizkuntza hautapena / Selección de Idioma'
[ -e "$marca" ] || fallar 'falta la marca con nombre'
# Nothing is stored yet, so the focus is on Euskara; back to Castellano, and press it.
xdotool key --clearmodifiers shift+Tab space
esperar 'Impuesto sobre Ventas Minoristas'
[ "$(ajustes)" = C1 ] || fallar "ajustes guardados: $(ajustes)"
ultima_entrada l
terminar 0
[ ! -e "$marca" ] || fallar 'la marca con nombre no se ha quitado'

# The second start has its language and asks for none.
guardar_ajustes E 0
arrancar
esperar 'Zenbait Hidrokarburoren'
xdotool search --onlyvisible --name 'Hizkuntza hautapena' && fallar 'vuelve a preguntar el idioma'
ultima_entrada a
terminar 0

# A store that is not one is told at the start, which ends there and leaves it as it was.
echo 'esto no es un fichero de datos' > "$almacen"
arrancar
esperar 'Fichero de datos rechazado'
xdotool key --clearmodifiers Escape
terminar 0
[ "$(cat "$almacen")" = 'esto no es un fichero de datos' ] || fallar 'se ha tocado el fichero'
echo 'primer_arranque: bien'
