#!/usr/bin/env bash
# Runs a command on a virtual display of its own with a window manager, and ends as the command does:
#   tests/support/con_pantalla.sh build/dev/bin/pruebas_app
set -uo pipefail

if [ $# -eq 0 ]; then
    echo 'use: con_pantalla.sh COMMAND [ARGUMENT...]' >&2
    exit 2
fi

procesos=()
recoger() {
    local i
    for ((i = ${#procesos[@]} - 1; i >= 0; i--)); do
        kill "${procesos[i]}" 2>/dev/null && wait "${procesos[i]}" 2>/dev/null
    done
}
trap recoger EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# The server takes the first free number and says which, so that several can run side by side.
exec 8< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp -noreset 2>/dev/null)
procesos+=("$!")
if ! read -r -t 30 -u 8 numero; then
    echo 'con_pantalla: the virtual display (Xvfb) did not start' >&2
    exit 1
fi
export DISPLAY=:$numero QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY XAUTHORITY

# Windows get their focus from the window manager: the command starts when that is at work. It runs with
# the manager's stock settings, not those of whoever is logged in.
exec 9< <(exec openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml --startup 'echo listo' 2>/dev/null)
procesos+=("$!")
if ! read -r -t 30 -u 9 _; then
    echo 'con_pantalla: the window manager (openbox) did not start' >&2
    exit 1
fi

"$@" 8<&- 9<&-
