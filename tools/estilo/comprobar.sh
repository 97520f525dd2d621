#!/usr/bin/env bash
# The style checks, all or those named:
#   tools/estilo/comprobar.sh
#   tools/estilo/comprobar.sh formato inclusiones
# Each ends in one line "estilo: <which>: bien" or "... mal" after its findings; all of them run. They look
# at the files under version control and at new ones that are not ignored.
# shellcheck disable=SC2317 # the checks are called by name
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit

# clang-tidy takes many minutes and runs by name: comprobar.sh tidy
TODAS=(formato inclusiones pantallas palabras guiones cppcheck)

# The existing files of those patterns, each ended by a NUL.
ficheros() {
    local fichero
    git ls-files -z --cached --others --exclude-standard --deduplicate -- "$@" |
        while IFS= read -r -d '' fichero; do
            [ ! -f "$fichero" ] || printf '%s\0' "$fichero"
        done
}

# git grep with its result turned round: lines found are findings. An error of git's own is a failure too.
sin_lineas() {
    local codigo=0
    git grep --untracked -nI "$@" || codigo=$?
    [ "$codigo" -eq 1 ]
}

comprobar_formato() {
    ficheros '*.cpp' '*.h' | xargs -0 -r clang-format --dry-run -Werror
}

# Includes between folders and layers, and platform macros.
comprobar_inclusiones() {
    python3 tools/estilo/inclusiones.py
}

# Screens, pictures and resource lists: well-formed XML; every control of a screen has a name of its own.
comprobar_pantallas() {
    local codigo=0
    ficheros '*.ui' '*.svg' '*.qrc' | xargs -0 -r xmllint --noout --nonet || codigo=1
    ficheros '*.ui' | xargs -0 -r python3 tools/estilo/pantallas.py || codigo=1
    return "$codigo"
}

comprobar_palabras() {
    local codigo=0 fichero
    local -a codigo_fuente=('*.cpp' '*.h' '*.h.in' '*.mm' '*.cmake' '*CMakeLists.txt' '*.sh' '*.py' run test .ci/run)
    local -a con_texto=("${codigo_fuente[@]}" '*.md' '*.json' '*.ui')

    # The bracketed letters keep these patterns from finding themselves.
    sin_lineas -Ew '(TOD[O]|FIXM[E]|XX[X]|HAC[K])' -- "${con_texto[@]}" || codigo=1
    sin_lineas -E 'GTEST_SKI[P]|DISABLE[D]_|QSKI[P]' -- "${codigo_fuente[@]}" || codigo=1
    # A lint exception names its check and gives its reason: (check): reason.
    sin_lineas -P 'NOLIN[T](?!(NEXTLINE|BEGIN|END)?\([a-zA-Z0-9.,* -]+\): \S)' -- "${codigo_fuente[@]}" || codigo=1
    sin_lineas -P '\t|[ \t]+$|\r' -- "${con_texto[@]}" || codigo=1
    while IFS= read -r -d '' fichero; do
        if [ -n "$(tail -c 1 -- "$fichero")" ]; then
            printf '%s: no line end at the end of the file\n' "$fichero"
            codigo=1
        fi
    done < <(ficheros "${con_texto[@]}")
    return "$codigo"
}

comprobar_guiones() {
    ficheros '*.sh' run test .ci/run | xargs -0 -r shellcheck
}

# By-value parameters are left to clang-tidy, which sees where they are moved.
comprobar_cppcheck() {
    ficheros '*.cpp' '*.h' | tr '\0' '\n' |
        cppcheck --quiet -j "$(nproc)" --std=c++20 --language=c++ --library=qt,googletest -I . \
            --enable=warning,performance,portability --suppress=passedByValue --inline-suppr \
            --error-exitcode=1 --file-list=-
}

# clang-tidy over the given sources as far as they are compiled, each with its own includes alone. Files
# differ much in weight, so each process takes one.
tidy_sobre() {
    local base=build/tidy/compile_commands.json
    # What the toolkit's tools generate is built, and nothing else.
    tools/construir.sh tidy zt_generadas >/dev/null || return 1
    ficheros "$@" | while IFS= read -r -d '' fichero; do
        ! grep -qF "/$fichero\"" "$base" || printf '%s\0' "$fichero"
    done | xargs -0 -r -n 1 -P "$(nproc)" tools/estilo/tidy.sh
}

comprobar_tidy() {
    tidy_sobre '*.cpp' ':!tests'
}

# Takes as long again; not one of those that run by themselves.
comprobar_tidy_pruebas() {
    tidy_sobre 'tests/*.cpp'
}

estado=0
[ $# -gt 0 ] || set -- "${TODAS[@]}"
for cual in "$@"; do
    if ! declare -F "comprobar_$cual" >/dev/null; then
        printf 'estilo: unknown check "%s" (%s)\n' "$cual" "${TODAS[*]}" >&2
        exit 2
    fi
done
for cual in "$@"; do
    if "comprobar_$cual" 2>&1; then
        echo "estilo: $cual: bien"
    else
        echo "estilo: $cual: mal"
        estado=1
    fi
done
exit "$estado"
