#!/usr/bin/env python3
"""Names of the screens: each .ui file describes the form of its own name, and no two of its parts share one.

use: pantallas.py FILE.ui ...
"""

import sys
import xml.etree.ElementTree as ET
from collections import Counter
from pathlib import Path

CON_NOMBRE = ("widget", "layout", "spacer", "action", "actiongroup", "buttongroup")


def faltas(fichero: Path) -> list[str]:
    raiz = ET.parse(fichero).getroot()
    encontradas = []

    formulario = raiz.find("widget")
    if formulario is None or formulario.get("name") != fichero.stem:
        encontradas.append(f"the root control is not named {fichero.stem}")
    if raiz.findtext("class") != fichero.stem:
        encontradas.append(f"<class> is not {fichero.stem}")

    nombres = Counter(e.get("name", "") for e in raiz.iter() if e.tag in CON_NOMBRE)
    for nombre, veces in nombres.items():
        if not nombre:
            encontradas.append("a part has no name")
        elif veces > 1:
            encontradas.append(f"{veces} parts are named {nombre}")

    referidos = [e.text for e in raiz.iterfind(".//property[@name='buddy']/cstring")]
    referidos += [e.text for e in raiz.iterfind("tabstops/tabstop")]
    for nombre in referidos:
        if nombre not in nombres:
            encontradas.append(f"a buddy or tab stop names {nombre}, which is not there")
    return encontradas


def main() -> int:
    codigo = 0
    for argumento in sys.argv[1:]:
        for falta in faltas(Path(argumento)):
            print(f"{argumento}: {falta}")
            codigo = 1
    return codigo


if __name__ == "__main__":
    sys.exit(main())
