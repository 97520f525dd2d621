# What the scripts of this folder share: a home folder that has never seen the program, and ways to start it,
# to work its windows and to wait for its end. Sourced with the program as first argument.
# shellcheck shell=bash
# shellcheck disable=SC2034 # what is set here is read by the scripts

programa=$1
casa=$(mktemp --directory)
export HOME=$casa XDG_DATA_HOME=$casa/datos XDG_RUNTIME_DIR=$casa
almacen=$XDG_DATA_HOME/ZELT/Tablas/ZELTMOD.mdb
marca=$casa/KLKL_ZELT
# The copy that was started last.
proceso=

recoger() {
    local copia
    for copia in $(jobs -p); do
        kill "$copia" 2>/dev/null || true
    done
    rm -rf -- "$casa"
}
trap recoger EXIT

fallar() {
    echo "$(basename "$0" .sh): $*" >&2
    exit 1
}

arrancar() {
    "$programa" &
    proceso=$!
}

# Gives the focus to the window of a copy with that title as soon as it is on the screen. A search fails
# where a window goes away while it looks, as the splash does; it is then made again.
#   esperar TITLE [PROCESS]
esperar() {
    local ventana
    for _ in {1..300}; do
        ventana=$(xdotool search --onlyvisible --all --pid "${2:-$proceso}" --name "$1" 2>/dev/null |
            tail -n 1) || ventana=
        if [ -n "$ventana" ] && timeout 10 xdotool windowfocus --sync "$ventana" 2>/dev/null; then
            return
        fi
        sleep 0.1
    done
    fallar "no aparece: $1"
}

# Chooses the last entry of the menu with that access key, in the copy that has the focus.
#   ultima_entrada KEY [PROCESS]
ultima_entrada() {
    local antes
    antes=$(ventanas "${2:-$proceso}")
    xdotool key --clearmodifiers "alt+$1"
    for _ in {1..200}; do
        if [ "$(ventanas "${2:-$proceso}")" -gt "$antes" ]; then
            xdotool key --clearmodifiers Up Return
            return
        fi
        sleep 0.05
    done
    fallar "no se abre el menú $1"
}

# How many windows of a copy are on the screen.
ventanas() {
    { xdotool search --onlyvisible --pid "$1" 2>/dev/null || true; } | wc -l
}

# Waits for the end of a copy and wants that exit code.
#   terminar CODE [PROCESS]
terminar() {
    local codigo=0 copia=${2:-$proceso}
    timeout 20 tail --pid="$copia" -f /dev/null || fallar 'el programa no termina'
    wait "$copia" || codigo=$?
    [ "$codigo" -eq "$1" ] || fallar "el programa termina con $codigo"
}

# Language and update setting, as they are stored.
ajustes() {
    sqlite3 "$almacen" 'SELECT T00_IDIOMA || T00_ACTONLINE FROM T00_GENERAL'
}

guardar_ajustes() {
    sqlite3 "$almacen" "UPDATE T00_GENERAL SET T00_IDIOMA = '$1', T00_ACTONLINE = $2"
}
