#!/usr/bin/env bash
# The real program, from a home folder that has never seen it: splash, language by keyboard alone, main
# window, menu, end; then a second start, which asks nothing. Runs under con_pantalla.sh.
#   primer_arranque.sh PROGRAM
set -euo pipefail

programa=$1
casa=$(mktemp --directory)
export HOME=$casa XDG_DATA_HOME=$casa/datos XDG_RUNTIME_DIR=$casa
proceso=
recoger() {
    [ -z "$proceso" ] || kill "$proceso" 2>/dev/null || true
    rm -rf -- "$casa"
}
trap recoger EXIT

fallar() {
    echo "primer_arranque: $*" >&2
    exit 1
}

# Waits until a window with that title is on the screen and has the focus.
esperar() {
    local ventana
    ventana=$(timeout 30 xdotool search --sync --onlyvisible --name "$1" | tail -n 1) || fallar "no aparece: $1"
    timeout 10 xdotool windowfocus --sync "$ventana" || fallar "no recibe el foco: $1"
}

# Opens a menu by its access key and waits until it is on the screen.
menu() {
    local antes
    antes=$(ventanas)
    xdotool key --clearmodifiers "alt+$1"
    for _ in {1..200}; do
        [ "$(ventanas)" -gt "$antes" ] && return
        sleep 0.05
    done
    fallar "no se abre el menú $1"
}

ventanas() {
    xdotool search --onlyvisible --pid "$proceso" 2>/dev/null | wc -l
}

# Waits for the end of the program and wants exit code 0.
terminar() {
    local codigo=0
    timeout 20 tail --pid="$proceso" -f /dev/null || fallar 'el programa no termina'
    wait "$proceso" || codigo=$?
    [ "$codigo" -eq 0 ] || fallar "el programa termina con $codigo"
    proceso=
}

idioma() {
    sqlite3 "$XDG_DATA_HOME/ZELT/Tablas/ZELTMOD.mdb" 'SELECT T00_IDIOMA || T00_ACTONLINE FROM T00_GENERAL'
}

"$programa" &
proceso=$!
esperar 'Hizkuntza hautapena / Selección de Idioma'
[ -e "$casa/KLKL_ZELT" ] || fallar 'falta la marca con nombre'
# Nothing is stored yet, so the focus is on Euskara; back to Castellano, and press it.
xdotool key --clearmodifiers shift+Tab space
esperar 'Impuesto sobre Ventas Minoristas'
[ "$(idioma)" = C1 ] || fallar "ajustes guardados: $(idioma)"
menu l
xdotool key --clearmodifiers Up Return
terminar
[ ! -e "$casa/KLKL_ZELT" ] || fallar 'la marca con nombre no se ha quitado'

# The second start has its language and asks for none.
sqlite3 "$XDG_DATA_HOME/ZELT/Tablas/ZELTMOD.mdb" "UPDATE T00_GENERAL SET T00_IDIOMA = 'E', T00_ACTONLINE = 0"
"$programa" &
proceso=$!
esperar 'Zenbait Hidrokarburoren'
xdotool search --onlyvisible --name 'Hizkuntza hautapena' && fallar 'vuelve a preguntar el idioma'
menu a
xdotool key --clearmodifiers Up Return
terminar

# A store that is not one stops the start in a message that names it, and is left as it was.
echo 'esto no es un fichero de datos' > "$XDG_DATA_HOME/ZELT/Tablas/ZELTMOD.mdb"
"$programa" &
proceso=$!
esperar '^ZELT$'
xdotool key --clearmodifiers Return
codigo=0
timeout 20 tail --pid="$proceso" -f /dev/null || fallar 'el programa no termina tras el error'
wait "$proceso" || codigo=$?
proceso=
[ "$codigo" -eq 1 ] || fallar "el error termina con $codigo"
[ "$(cat "$XDG_DATA_HOME/ZELT/Tablas/ZELTMOD.mdb")" = 'esto no es un fichero de datos' ] || fallar 'se ha tocado el fichero'
echo 'primer_arranque: bien'
