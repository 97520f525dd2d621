#!/usr/bin/env bash
# Two copies of the real program at once: the second starts like the first, on the same two files and without
# a message, and the named mark stands until the last one ends. Runs under con_pantalla.sh.
#   dos_copias.sh PROGRAM
set -euo pipefail
# shellcheck source=tests/entero/programa.sh
source "$(dirname "$0")/programa.sh"

# Wants the main window of a copy to be all that it shows, and both stores to be open in it.
comprobar() {
    local fichero
    [ "$(ventanas "$1")" -eq 1 ] || fallar "hay más ventanas que la principal: $(ventanas "$1")"
    for fichero in ZELTMOD.mdb ZELTLEC.mdb; do
        find "/proc/$1/fd" -lname "$(dirname "$almacen")/$fichero" | grep -q . || fallar "no abre $fichero"
    done
}

# A first run furnishes the home folder and stores the settings.
arrancar
esperar 'Hizkuntza hautapena / Selección de Idioma'
xdotool key --clearmodifiers space
esperar 'Zenbait Hidrokarburoren'
ultima_entrada a
terminar 0
guardar_ajustes C 0

arrancar
primera=$proceso
arrancar
segunda=$proceso
for copia in "$primera" "$segunda"; do
    esperar 'Impuesto sobre Ventas Minoristas' "$copia"
done
for copia in "$primera" "$segunda"; do
    comprobar "$copia"
done

esperar 'Impuesto sobre Ventas Minoristas' "$primera"
ultima_entrada l "$primera"
terminar 0 "$primera"
[ -e "$marca" ] || fallar 'la marca con nombre se ha ido con la primera copia'
comprobar "$segunda"

esperar 'Impuesto sobre Ventas Minoristas' "$segunda"
ultima_entrada l "$segunda"
terminar 0 "$segunda"
[ ! -e "$marca" ] || fallar 'la marca con nombre no se ha quitado'
[ "$(ajustes)" = C0 ] || fallar "ajustes guardados: $(ajustes)"
echo 'dos_copias: bien'
