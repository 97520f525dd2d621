#!/usr/bin/env python3
"""Rules of the includes between folders and layers. Run from the root of the tree.

The layer of a file is the target that the CMakeLists.txt of its folder gives it to: zt_forms, the program
itself, the network's module, or the core, which is zt_core and the small libraries that it is made with. The tables below are the
rules.
"""

import re
import sys
from pathlib import Path

NUCLEO, FORMULARIOS, PROGRAMA = "zt_core", "zt_forms", "ZELT"
RED = ("zt_red", "zt_red_nucleo")
EXTENSIONES = (".cpp", ".h", ".mm")

CARPETAS = ("base", "data", "shell", "declarants", "establishments", "declarations", "printing", "exchange",
            "online", "resources")
TODAS = (*CARPETAS, "tests", "tools", "bench")

# What the records of a folder stand on: the value types, the services of the data layer, the run-wide
# values, texts and general procedures of the shell, and each other.
_REGISTROS = ("base/", "data/svrZELT/", "data/SvrKLComunLib/", "shell/", "declarants/", "establishments/",
              "declarations/", "printing/", "exchange/", "online/")

# Folder -> beginnings of what its files of the core may include. The longest folder that fits counts.
NUCLEO_INCLUYE = {
    "base": ("base/",),
    "data": ("base/", "data/"),
    "shell": (*_REGISTROS, "data/VersionReferencia.h"),
    "declarants": _REGISTROS,
    "establishments": _REGISTROS,
    "declarations": _REGISTROS,
    "printing": (*_REGISTROS, "data/FicheroNuevo.h"),
    "exchange": _REGISTROS,
    "online": _REGISTROS,
}

# Forms talk to records, never to a server: no file of zt_forms includes anything of data/.
FORMULARIOS_NO_INCLUYE = ("data/",)

# Headers of a library -> folders that may use it. Tests look into the stores by themselves.
BIBLIOTECAS = {
    "SQLiteCpp/": ("data", "tests/data", "tests/support"),
    "sqlite3.h": ("data", "tests/data", "tests/support"),
    "SimpleIni.h": ("online",),
    "curl/": ("online/red",),
}

# Modules of the toolkit that the core may include, by name of their folder of headers.
QT_DEL_NUCLEO = ("QtCore",)

# Headers that the build makes: of the toolkit's tools, and of the templates NAME.h.in of the tree.
DEL_GENERADOR_QT = re.compile(r"^(ui_\w+\.h|\w+\.moc)$")

MACROS_DE_PLATAFORMA = re.compile(r"^\s*#.*\b(_WIN32|WIN32|__APPLE__|__linux__|__unix__|Q_OS_\w+)\b")
FICHERO_DE_PLATAFORMA = re.compile(r"(^|/)plataforma/|_(win|unix)\.(cpp|h)$|_mac\.(mm|h)$")

INCLUSION = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
FUENTES = re.compile(r"(?:target_sources|add_library|add_executable)\s*\(\s*(\w+)([^)]*)\)")


def capas() -> dict[str, str]:
    """Source file -> layer, as the CMakeLists.txt files tell. Variables in names stand for any text."""
    resultado = {}
    listas = [Path("CMakeLists.txt")]
    for carpeta in CARPETAS:
        listas += sorted(Path(carpeta).rglob("CMakeLists.txt"))
    for lista in listas:
        texto = re.sub(r"#.*", "", lista.read_text(encoding="utf-8"))
        for destino, fuentes in FUENTES.findall(texto):
            capa = destino if destino in (FORMULARIOS, PROGRAMA, *RED) else NUCLEO
            for fuente in fuentes.replace('"', " ").split():
                if fuente.endswith(EXTENSIONES) and not fuente.startswith("${CMAKE_"):
                    for fichero in lista.parent.glob(re.sub(r"\$\{\w+\}", "*", fuente)):
                        resultado[fichero.as_posix()] = capa
    return resultado


def carpeta_de_reglas(fichero: str) -> str:
    return max((c for c in NUCLEO_INCLUYE if fichero.startswith(c + "/")), key=len)


def cabeceras_qt() -> dict[str, str]:
    """Header of the toolkit -> its module, for the modules that are installed."""
    resultado: dict[str, str] = {}
    for modulo in sorted(Path("/usr/include").glob("**/qt6/Qt*")):
        for cabecera in modulo.iterdir():
            resultado.setdefault(cabecera.name, modulo.name)
    return resultado


def falta_de_producto(fichero: str, incluida: str, propia: bool, capa: dict[str, str], qt: dict[str, str]):
    """Why a file of the program must not include that; None if it may."""
    if not propia:
        modulo = incluida.split("/")[0] if "/" in incluida else qt.get(incluida, "")
        if capa[fichero] == NUCLEO and modulo.startswith("Qt") and modulo not in QT_DEL_NUCLEO:
            return f"the core does not know {modulo}"
        return None
    if incluida.startswith("tests/"):
        return "the program does not know its tests"
    if capa[fichero] == NUCLEO and incluida.startswith("ui_"):
        return "the core knows no screen"
    if "/" not in incluida:
        return None
    if capa[fichero] == NUCLEO:
        if capa.get(incluida) == FORMULARIOS:
            return "the core does not know the forms"
        carpeta = carpeta_de_reglas(fichero)
        if not incluida.startswith(NUCLEO_INCLUYE[carpeta]):
            return f"{carpeta}/ stands on {', '.join(NUCLEO_INCLUYE[carpeta])}"
    elif incluida.startswith(FORMULARIOS_NO_INCLUYE):
        return "forms ask the records, never the data layer"
    return None


def falta_comun(fichero: str, incluida: str, propia: bool, generadas: set[str]):
    """Why no file at all, or none of this folder, may include that; None if it may."""
    for biblioteca, carpetas in BIBLIOTECAS.items():
        if incluida.startswith(biblioteca) and not fichero.startswith(tuple(c + "/" for c in carpetas)):
            return f"only {', '.join(carpetas)} use {biblioteca.rstrip('/')}"
    generada = incluida in generadas or DEL_GENERADOR_QT.match(incluida)
    if propia and not generada and not Path(incluida).is_file():
        return "there is no such file; own headers are named from the root of the tree, folder first"
    return None


def main() -> int:
    capa = capas()
    qt = cabeceras_qt()
    generadas = {plantilla.stem for c in TODAS for plantilla in Path(c).rglob("*.h.in")}
    faltas = []
    if not qt:
        faltas.append("the headers of Qt 6 are not under /usr/include")

    ficheros = [f for c in TODAS for f in sorted(Path(c).rglob("*")) if f.suffix in EXTENSIONES]
    for camino in ficheros:
        fichero = camino.as_posix()
        de_producto = fichero.startswith(tuple(c + "/" for c in CARPETAS))
        if de_producto and fichero not in capa:
            faltas.append(f"{fichero}: no target of its folder names it")
            continue
        for numero, linea in enumerate(camino.read_text(encoding="utf-8").splitlines(), 1):
            if MACROS_DE_PLATAFORMA.match(linea) and not FICHERO_DE_PLATAFORMA.search(fichero):
                faltas.append(f"{fichero}:{numero}: platform macros stand in files of a platform only")
            encontrada = INCLUSION.match(linea)
            if not encontrada:
                continue
            propia = encontrada[1] is not None
            incluida = encontrada[1] or encontrada[2]
            falta = falta_comun(fichero, incluida, propia, generadas)
            if falta is None and de_producto:
                falta = falta_de_producto(fichero, incluida, propia, capa, qt)
            if falta is not None:
                faltas.append(f"{fichero}:{numero}: {incluida}: {falta}")
    print(*faltas, sep="\n", end="\n" if faltas else "")
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
