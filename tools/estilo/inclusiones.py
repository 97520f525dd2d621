#!/usr/bin/env python3
"""Rules of the includes between folders and layers. Run from the root of the tree.

The path says the layer of a file: core/ (no window), network/ (the download module), forms/ (screens), app/
(what ties them together). A layer stands on those before it, no folder and no file stands in a ring. The
tables below are the rules.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

EXTENSIONES = (".cpp", ".h", ".mm")
PRODUCTO = ("core", "network", "forms", "app")
TODAS = (*PRODUCTO, "tools", "tests", "bench")

# Layer -> layers that it may include.
CAPAS = {
    "core": ("core",),
    "network": ("core", "network"),
    "forms": ("core", "forms"),
    "app": ("core", "forms", "app"),
    "tools": ("core", "forms", "app", "tools"),
}

# Beginning of a path -> what no file under it includes, and why; but for the headers named.
VEDADO = (
    ("core/store/", ("core/copies/", "core/services/", "core/run/"), (), "the stores know nothing above them"),
    ("forms/", ("core/store/", "core/services/", "core/copies/"), ("core/copies/CanalCopias.h",),
     "forms ask the records, never the data layer"),
    ("app/", ("core/store/", "core/services/", "core/copies/"), (), "forms ask the records, never the data layer"),
    *((f"core/{registros}/", ("core/store/", "core/copies/"),
       ("core/store/DatosGenerales.h",) if registros == "start" else (), "records ask the servers")
      for registros in ("run", "records", "help", "printing", "exchange", "online", "start")),
)

# Rings of files that cannot be cut, each with its reason.
ANILLOS = {
    frozenset({"core/records/cZTAnexos", "core/records/cZTDeclaraciones",
               "core/records/cZTListaDeclaraciones", "core/records/cZTNuevaDec"}):
        "the records of one return read each other through their shared instances",
    frozenset({"forms/runtime/Eventos", "forms/runtime/Formulario", "forms/runtime/Formularios"}):
        "a form unloads itself through the list of forms, which runs its rules as events",
}

# Headers of a library -> folders that may use it. Tests look into the stores by themselves.
BIBLIOTECAS = {
    "SQLiteCpp/": ("core/store", "core/copies", "core/services", "tools/generador", "bench", "tests"),
    "sqlite3.h": ("core/store", "core/copies", "core/services", "tools/generador", "tests"),
    "SimpleIni.h": ("core/online",),
    "curl/": ("network",),
}

# The one module of the toolkit that what has no window may include.
QT_SIN_VENTANAS = "QtCore"
SIN_VENTANAS = ("core/", "network/", "tools/generador/")

# Headers that the build makes: of the toolkit's tools, and of the templates NAME.h.in of the tree.
DEL_GENERADOR_QT = re.compile(r"^(ui_\w+\.h|\w+\.moc)$")

MACROS_DE_PLATAFORMA = re.compile(r"^\s*#.*\b(_WIN32|WIN32|__APPLE__|__linux__|__unix__|Q_OS_\w+)\b")
FICHERO_DE_PLATAFORMA = re.compile(r"(^|/)plataforma/|_(win|unix)\.(cpp|h)$|_mac\.(mm|h)$")

INCLUSION = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def cabeceras_qt() -> dict[str, str]:
    """Header of the toolkit -> its module, for the modules that are installed."""
    resultado: dict[str, str] = {}
    for modulo in sorted(Path("/usr/include").glob("**/qt6/Qt*")):
        for cabecera in modulo.iterdir():
            resultado.setdefault(cabecera.name, modulo.name)
    return resultado


def carpeta(fichero: str) -> str:
    """The room of a file: two levels deep within a layer that has folders."""
    partes = fichero.split("/")
    return "/".join(partes[:2]) if len(partes) > 2 else partes[0]


def unidad(fichero: str) -> str:
    """A header, its source and the sources of its platforms are one."""
    return re.sub(r"(_unix|_win|_mac)?\.\w+$", "", fichero)


def falta_propia(fichero: str, incluida: str) -> str | None:
    """Why a file of the program must not include that one of its own; None if it may."""
    capa = fichero.split("/")[0]
    if capa == "core" and incluida.startswith("ui_"):
        return "the core knows no screen"
    if "/" not in incluida or capa not in CAPAS:
        return None
    if incluida.split("/")[0] not in CAPAS[capa]:
        return f"{capa}/ stands on {', '.join(CAPAS[capa])} alone"
    for quien, que, salvo, motivo in VEDADO:
        if fichero.startswith(quien) and incluida.startswith(que) and incluida not in salvo:
            return motivo
    return None


def falta_ajena(fichero: str, incluida: str, qt: dict[str, str]) -> str | None:
    """The same for a header of a library."""
    modulo = incluida.split("/")[0] if "/" in incluida else qt.get(incluida, "")
    if fichero.startswith(SIN_VENTANAS) and modulo.startswith("Qt") and modulo != QT_SIN_VENTANAS:
        return f"what has no window does not know {modulo}"
    for biblioteca, carpetas in BIBLIOTECAS.items():
        if incluida.startswith(biblioteca) and not fichero.startswith(tuple(c + "/" for c in carpetas)):
            return f"only {', '.join(carpetas)} use {biblioteca.rstrip('/')}"
    return None


def anillos(grafo: dict[str, set[str]]) -> list[frozenset[str]]:
    """The strongly connected components of more than one node (Tarjan)."""
    orden: dict[str, int] = {}
    bajo: dict[str, int] = {}
    pila: list[str] = []
    resultado = []

    def visitar(nodo: str) -> None:
        orden[nodo] = bajo[nodo] = len(orden)
        pila.append(nodo)
        for otro in sorted(grafo.get(nodo, ())):
            if otro not in orden:
                visitar(otro)
                bajo[nodo] = min(bajo[nodo], bajo[otro])
            elif otro in pila:
                bajo[nodo] = min(bajo[nodo], orden[otro])
        if bajo[nodo] == orden[nodo]:
            componente = pila[pila.index(nodo):]
            del pila[pila.index(nodo):]
            if len(componente) > 1:
                resultado.append(frozenset(componente))

    for nodo in sorted(grafo):
        if nodo not in orden:
            visitar(nodo)
    return resultado


def main() -> int:
    qt = cabeceras_qt()
    generadas = {plantilla.stem for c in TODAS for plantilla in Path(c).rglob("*.h.in")}
    faltas = []
    if not qt:
        faltas.append("the headers of Qt 6 are not under /usr/include")
    por_carpeta: dict[str, set[str]] = defaultdict(set)
    por_unidad: dict[str, set[str]] = defaultdict(set)

    ficheros = [f for c in TODAS for f in sorted(Path(c).rglob("*")) if f.suffix in EXTENSIONES]
    for camino in ficheros:
        fichero = camino.as_posix()
        for numero, linea in enumerate(camino.read_text(encoding="utf-8").splitlines(), 1):
            if MACROS_DE_PLATAFORMA.match(linea) and not FICHERO_DE_PLATAFORMA.search(fichero):
                faltas.append(f"{fichero}:{numero}: platform macros stand in files of a platform only")
            encontrada = INCLUSION.match(linea)
            if not encontrada:
                continue
            if encontrada[1] is None:
                falta = falta_ajena(fichero, encontrada[2], qt)
            else:
                falta = falta_propia(fichero, encontrada[1])
                generada = encontrada[1] in generadas or DEL_GENERADOR_QT.match(encontrada[1])
                if not generada and not Path(encontrada[1]).is_file():
                    falta = "there is no such file; own headers are named from the root of the tree"
                elif not generada and fichero.startswith(tuple(c + "/" for c in PRODUCTO)):
                    por_carpeta[carpeta(fichero)].add(carpeta(encontrada[1]))
                    por_unidad[unidad(fichero)].add(unidad(encontrada[1]))
            if falta is not None:
                faltas.append(f"{fichero}:{numero}: {encontrada[1] or encontrada[2]}: {falta}")

    faltas += [f"a ring of folders: {', '.join(sorted(anillo))}" for anillo in anillos(por_carpeta)]
    de_ficheros = anillos(por_unidad)
    faltas += [f"a ring of files: {', '.join(sorted(a))}" for a in de_ficheros if a not in ANILLOS]
    faltas += [f"no ring any more: {', '.join(sorted(a))}" for a in ANILLOS if a not in de_ficheros]
    print(*faltas, sep="\n", end="\n" if faltas else "")
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
