#!/usr/bin/env python3
"""Attacks the program and judges what is left. See docs/fiabilidad.md.

    atacar.py PROGRAMS --casos 6 --semilla 569      some cases of each kind: what continuous integration runs
    atacar.py PROGRAMS --minutos 60                 every fault at every call, then new cases until the end
    atacar.py PROGRAMS --repetir fallos:importar:disco:17
                                                    one case again; its folder stays
    atacar.py PROGRAMS --control                    tries the judge: a disk that forgets what was synced has to
                                                    be found out

PROGRAMS is the folder of the built programs. Ends with 1 when something was found.
"""

import argparse
import itertools
import random
import sys
import threading
import time
import traceback
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
sys.dont_write_bytecode = True

from guion import cortes, danos, fallos, turnos  # noqa: E402
from guion.referencia import Referencia  # noqa: E402
from guion.taller import Taller  # noqa: E402

FASES = {"fallos": fallos, "turnos": turnos, "danos": danos, "cortes": cortes}
PARALELOS = 2


def _lugar(columna):
    """Faults and damages stand in the order of their tables."""
    orden = [*fallos.FALLOS, *danos.DANOS]
    return orden.index(columna) if columna in orden else len(orden)


class Resultados:
    """Cases by action and fault, and what was found."""

    def __init__(self):
        self.cuenta = Counter()
        self.malos = Counter()
        self.hallazgos = []
        self._cerrojo = threading.Lock()

    def anotar(self, caso, faltas):
        with self._cerrojo:
            self.cuenta[caso.celda] += 1
            if faltas:
                self.malos[caso.celda] += 1
                self.hallazgos.append((str(caso), faltas))

    def contiene(self, texto):
        """Whether that was found."""
        return any(texto in falta for _, faltas in self.hallazgos for falta in faltas)

    def tabla(self):
        """In the form that docs/fiabilidad.md has it."""
        for fase in FASES:
            celdas = [celda for celda in self.cuenta if celda[0] == fase]
            columnas = sorted({celda[2] for celda in celdas}, key=_lugar)
            if celdas:
                yield from self._tabla_de(fase, sorted({celda[1] for celda in celdas}), columnas)

    def _tabla_de(self, fase, filas, columnas):
        yield ""
        yield f"| {fase} | " + " | ".join(columnas) + " |"
        yield "|---|" + "---:|" * len(columnas)
        for fila in filas:
            yield f"| {fila} | " + " | ".join(self._celda((fase, fila, c)) for c in columnas) + " |"

    def _celda(self, celda):
        malos = f" ({self.malos[celda]} bad)" if self.malos[celda] else ""
        return f"{self.cuenta[celda]}{malos}"


def muestra(referencia, semilla, por_celda):
    """Some cases of each kind."""
    azar = random.Random(semilla)
    celdas = {}
    for caso in fallos.casos(referencia):
        celdas.setdefault(caso.celda, []).append(caso)
    for casos in celdas.values():
        yield from azar.sample(casos, min(por_celda, len(casos)))
    for fase, cuantos in ((turnos, 12 * por_celda), (danos, 30 * por_celda), (cortes, 28 * por_celda)):
        yield from itertools.islice(fase.casos(referencia, semilla), cuantos)


def sin_fin(referencia, semilla):
    """Every fault at every call in any order, and of the other attacks as many as there is time for."""
    todos = fallos.casos(referencia)
    azar = random.Random(semilla)
    azar.shuffle(todos)
    otros = [fase.casos(referencia, semilla) for fase in (turnos, danos, cortes)]
    for caso in itertools.chain(todos, itertools.repeat(None)):
        if caso is not None:
            yield caso
        if caso is None or azar.random() < 1 / len(otros):
            yield from (next(fase) for fase in otros)


def control(_referencia, semilla):
    """Power cuts after the end of actions on a disk that forgets what was synced."""
    cortes.Disco.olvida = True
    for numero in range(2):
        for tarea in ("guardar-anexos", "cambiar-declarante", "importar", "exportar", "copiar", "restaurar"):
            yield cortes.Caso(tarea, cortes.AL_FINAL, semilla + numero)


class Ataque:
    """Works the cases off, two at a time."""

    def __init__(self, programas, hasta):
        self._programas = programas
        self._hasta = hasta
        self._cerrojo = threading.Lock()
        self.resultados = Resultados()
        self._taller = Taller(programas, "referencia")
        self.referencia = Referencia(self._taller)

    def _siguiente(self, casos):
        with self._cerrojo:
            return None if time.monotonic() > self._hasta else next(casos, None)

    def _trabajar(self, casos, numero):
        taller = Taller(self._programas, str(numero))
        try:
            while (caso := self._siguiente(casos)) is not None:
                self._intentar(caso, taller)
        finally:
            taller.cerrar()

    def _intentar(self, caso, taller):
        """What fails in the attack itself is a finding, too."""
        try:
            self.resultados.anotar(caso, caso.hacer(taller, self.referencia))
        except Exception:
            self.resultados.anotar(caso, [traceback.format_exc()])

    def correr(self, casos):
        with ThreadPoolExecutor(PARALELOS) as grupo:
            for hilo in [grupo.submit(self._trabajar, casos, n) for n in range(PARALELOS)]:
                hilo.result()

    def repetir(self, caso):
        taller = Taller(self._programas, "repetido")
        taller.conservar = True
        self._intentar(caso, taller)
        print(f"folder: {taller.carpeta}")
        taller.cerrar()

    def cerrar(self):
        self.referencia.cerrar()
        self._taller.cerrar()


def argumentos():
    analizador = argparse.ArgumentParser(description=__doc__,
                                         formatter_class=argparse.RawDescriptionHelpFormatter)
    analizador.add_argument("programas", type=Path)
    analizador.add_argument("--semilla", type=int, default=569)
    analizador.add_argument("--casos", type=int, default=3)
    analizador.add_argument("--minutos", type=float)
    analizador.add_argument("--fase", choices=FASES)
    analizador.add_argument("--repetir")
    analizador.add_argument("--control", action="store_true")
    return analizador.parse_args()


def main():
    opciones = argumentos()
    comienzo = time.monotonic()
    hasta = comienzo + 60 * opciones.minutos if opciones.minutos else float("inf")
    ataque = Ataque(opciones.programas.resolve(), hasta)
    try:
        if opciones.repetir:
            fase, *partes = opciones.repetir.split(":")
            ataque.repetir(FASES[fase].Caso.de(partes, ataque.referencia))
        else:
            ataque.correr(elegir(opciones, ataque.referencia))
        todos = len(fallos.casos(ataque.referencia)) if opciones.minutos else None
    finally:
        ataque.cerrar()
    hallado = informar(ataque.resultados, opciones, todos, time.monotonic() - comienzo)
    if opciones.control:
        return int(not ataque.resultados.contiene("told as done, but not"))
    return int(hallado)


def elegir(opciones, referencia):
    """The cases of a run."""
    if opciones.control:
        return control(referencia, opciones.semilla)
    if opciones.minutos:
        casos = sin_fin(referencia, opciones.semilla)
    else:
        casos = muestra(referencia, opciones.semilla, opciones.casos)
    return (caso for caso in casos if opciones.fase in (None, caso.fase))


def informar(resultados, opciones, todos, segundos):
    """Prints what was done; True when something was found, or when nothing was done at all."""
    print("\n".join(resultados.tabla()))
    cuantos = sum(resultados.cuenta.values())
    print(f"\n{cuantos} attacks with seed {opciones.semilla} in {segundos:.0f} s: "
          f"{len(resultados.hallazgos)} found something.")
    if todos:
        hechos = sum(n for celda, n in resultados.cuenta.items() if celda[0] == "fallos")
        print(f"Of the {todos} faults at single calls it has tried {hechos}.")
    for caso, faltas in resultados.hallazgos[:40]:
        print(f"\n{caso}\n  " + "\n  ".join(faltas))
        print(f"  again: python3 {sys.argv[0]} {opciones.programas} --repetir '{caso}'")
    return bool(resultados.hallazgos) or not cuantos


if __name__ == "__main__":
    sys.exit(main())
