#!/usr/bin/env bash
# The real program by the keyboard alone: a backup, its return under another language, and the way back to an
# automatic copy from a store that is not one. Runs under con_pantalla.sh.
#   copias.sh PROGRAM
set -euo pipefail
# shellcheck source=tests/entero/programa.sh
source "$(dirname "$0")/programa.sh"

# Chooses the entry so many places above the last one of the second menu, in the copy that has the focus. The
# menu has no access key; it stands beside the one whose key is given.
#   opcion KEY PLACES
opcion() {
    local antes
    antes=$(ventanas "$proceso")
    xdotool key --clearmodifiers "alt+$1" Right
    for _ in {1..200}; do
        if [ "$(ventanas "$proceso")" -gt "$antes" ]; then
            xdotool key --clearmodifiers --delay 50 --repeat "$(($2 + 1))" Up
            xdotool key --clearmodifiers Return
            return
        fi
        sleep 0.05
    done
    fallar "no se abre el menú junto al de $1"
}

# Answers the message box that is to come.
aceptar_mensaje() {
    esperar '^ZELT$'
    xdotool key --clearmodifiers space
}

# A first run in Castellano, then its backup: the focus is on the button that makes it.
arrancar
esperar 'Hizkuntza hautapena / Selección de Idioma'
xdotool key --clearmodifiers shift+Tab space
esperar 'Impuesto sobre Ventas Minoristas'
opcion l 3
esperar 'Crear copia de seguridad'
xdotool key --clearmodifiers space
aceptar_mensaje
esperar 'Impuesto sobre Ventas Minoristas'
copia=$XDG_DATA_HOME/ZELT/backups/ZELTMod_bak.mdb
(cd "$(dirname "$copia")" && sha256sum --check --quiet "$(basename "$copia").sha256") || fallar 'la suma no es la de la copia'
ultima_entrada l
terminar 0

# In Euskera the copy of the Castellano days comes back, and the main window with it.
guardar_ajustes E 0
arrancar
esperar 'Zenbait Hidrokarburoren'
opcion a 2
esperar 'Segurtasun kopia leheneratu'
xdotool key --clearmodifiers alt+l
aceptar_mensaje
aceptar_mensaje
esperar 'Impuesto sobre Ventas Minoristas'
[ "$(ajustes)" = C1 ] || fallar "ajustes tras restaurar: $(ajustes)"
ultima_entrada l
terminar 0

# A store that is not one: back to what the restore had kept, which was in Euskera.
echo 'esto no es un fichero de datos' > "$almacen"
arrancar
esperar 'Baztertutako datu-fitxategia'
xdotool key --clearmodifiers alt+i
aceptar_mensaje
esperar 'Zenbait Hidrokarburoren'
[ "$(ajustes)" = E0 ] || fallar "ajustes tras volver: $(ajustes)"
[ "$(cat "$almacen.1.rechazado")" = 'esto no es un fichero de datos' ] || fallar 'no se ha apartado el fichero'
ultima_entrada a
terminar 0
echo 'copias: bien'
