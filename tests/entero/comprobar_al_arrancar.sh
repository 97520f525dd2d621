#!/usr/bin/env bash
# The real program with the update check switched on and a service that nobody runs: the notice comes over
# the splash, and after it the main window; no file is left. The network's module is loaded for it and not
# before. Runs under con_pantalla.sh.
#   comprobar_al_arrancar.sh PROGRAM
set -euo pipefail
# shellcheck source=tests/entero/programa.sh
source "$(dirname "$0")/programa.sh"

# Whether the running copy has loaded the network's module.
con_red() {
    grep -q '/lib/zelt/zt_red' "/proc/$proceso/maps"
}

# A first start lays out the stores.
arrancar
esperar 'Hizkuntza hautapena / Selección de Idioma'
xdotool key --clearmodifiers shift+Tab space
esperar 'Impuesto sobre Ventas Minoristas'
! con_red || fallar 'el módulo de red se carga sin comprobación'
ultima_entrada l
terminar 0

guardar_ajustes C 1
sqlite3 "${almacen%MOD.mdb}LEC.mdb" \
    "UPDATE T01_DATOS SET T01_VALOR = 'http://127.0.0.1:1/version' WHERE T01_CLAVE = 'URLAct'"
echo 'de otro dia' > "$XDG_DATA_HOME/ZELT/version.ini"
arrancar
esperar 'Fallo en la conexión / Konexio akatsa gertatu da'
con_red || fallar 'no se encuentra el módulo de red'
xdotool key --clearmodifiers Return
esperar 'Impuesto sobre Ventas Minoristas'
[ ! -e "$XDG_DATA_HOME/ZELT/version.ini" ] || fallar 'queda un fichero de versión'
[ "$(ajustes)" = C1 ] || fallar "ajustes guardados: $(ajustes)"
ultima_entrada l
terminar 0
echo 'comprobar_al_arrancar: bien'
