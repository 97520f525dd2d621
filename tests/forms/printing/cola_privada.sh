#!/usr/bin/env bash
# Prints through a scheduler of its own, as any user, and looks at the jobs that come out: four copies are
# four jobs of their names and pages, in their places on the paper. The system's scheduler is not touched.
#   cola_privada.sh PROGRAM    (the one built from ImprimirEnCola.cpp)
set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin

programa=$1
modelo=/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd
carpeta=$(mktemp -d)
chmod 755 "$carpeta"
planificador=

limpiar() {
    [ -z "$planificador" ] || { kill "$planificador" && wait "$planificador"; } 2>/dev/null || true
    rm -rf "$carpeta"
}
trap limpiar EXIT

fallo() {
    printf 'cola_privada: %s\n' "$*" >&2
    tail -n 30 "$carpeta/error_log" >&2 || true
    exit 1
}

# Waits up to a minute for a command to succeed.
esperar() {
    for _ in $(seq 600); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fallo "in vain:" "$@"
}

preparar() {
    mkdir -p "$carpeta"/{bin/backend,cache,estado/certs,cola/tmp,ppd}
    mkdir -m 777 "$carpeta/salida"
    for parte in cgi-bin daemon filter monitor notifier; do
        ln -s "/usr/lib/cups/$parte" "$carpeta/bin/$parte"
    done
    # The printer: what arrives becomes a file of the name of its job.
    cat >"$carpeta/bin/backend/guardar" <<'FIN'
#!/bin/sh
[ $# -gt 0 ] || { echo 'direct guardar:/ "guardar" "guardar"'; exit 0; }
cat ${6:+"$6"} >"${DEVICE_URI#guardar:}/$1 $3.pdf"
FIN
    chmod 755 "$carpeta/bin/backend/guardar"
    # The printer driver's description, but of a printer that takes the PDF itself and has margins.
    sed -e '/^\*NickName/a *cupsFilter: "application/vnd.cups-pdf 0 -"' \
        -e 's|^\*ImageableArea A4/A4:.*|*ImageableArea A4/A4: "18 36 577 806"|' "$modelo" >"$carpeta/impreso.ppd"
    cat >"$carpeta/cups-files.conf" <<FIN
ServerRoot $carpeta
ServerBin $carpeta/bin
DataDir /usr/share/cups
CacheDir $carpeta/cache
StateDir $carpeta/estado
RequestRoot $carpeta/cola
TempDir $carpeta/cola/tmp
AccessLog $carpeta/access_log
ErrorLog $carpeta/error_log
PageLog $carpeta/page_log
FIN
    cat >"$carpeta/cupsd.conf" <<FIN
Listen $CUPS_SERVER
Browsing No
LogLevel info
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
FIN
}

# lpstat ends well whether the scheduler answers or not.
planificador_responde() { lpstat -r | grep -q 'is running'; }

# No job is left to be done.
cola_vacia() { [ -z "$(lpstat -W not-completed -o)" ]; }

trabajos() { find "$carpeta/salida" -name '*.pdf' | wc -l; }

paginas_de() {
    local fichero
    fichero=$(find "$carpeta/salida" -name "* $1.pdf")
    [ -n "$fichero" ] || fallo "no job $1"
    pdfinfo "$fichero" | sed -n 's/^Pages: *//p'
}

probar() { "$programa" --gtest_filter="ColaTest.$1" || fallo "$1"; }

poner_cola() { lpadmin -p "$1" -E -v "guardar:$carpeta/salida" -P "$carpeta/impreso.ppd" -o PageSize=A4; }

poner_impresora() {
    poner_cola impreso
    lpadmin -d impreso
}

export CUPS_SERVER=$carpeta/cups.sock
export IMPRESO_SALIDA=$carpeta/salida
preparar
cupsd -f -c "$carpeta/cupsd.conf" -s "$carpeta/cups-files.conf" &
planificador=$!
export IMPRESO_PLANIFICADOR=$planificador
esperar planificador_responde
poner_impresora

probar FourCopies
esperar cola_vacia
[ "$(trabajos)" -eq 4 ] || fallo "$(trabajos) jobs, not 4"
for ejemplar in administracion interesado borrador; do
    [ "$(paginas_de "569_B48000012_2007_2T_$ejemplar")" -eq 2 ] || fallo "pages of $ejemplar"
done
[ "$(paginas_de 569_B48000012_2007_2T_entidad-bancaria)" -eq 1 ] || fallo 'pages of the bank'
probar PlacesOnPaper

poner_cola otra
probar DialogOpenedAgain
lpadmin -x otra

probar QueueThatRefuses
esperar cola_vacia
[ "$(trabajos)" -eq 6 ] || fallo "$(trabajos) jobs, not 6"

# The job before, which goes with its queue unless it has come out by then, and no other one.
probar QueueThatIsGone
esperar cola_vacia
hechos=$(trabajos)
[ "$hechos" -le 7 ] || fallo "$hechos jobs, not 7 at most"

poner_impresora
probar SchedulerThatIsKilled
[ "$(trabajos)" -le $((hechos + 1)) ] || fallo "$(trabajos) jobs, not $((hechos + 1)) at most"
echo 'cola_privada: well'
