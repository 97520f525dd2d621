#!/usr/bin/env python3
"""Start of the program beside a minimal one: paired runs, medians, ratio.

Usage: bench/arranque.py [folder of the programs] [runs]
Needs a display (run it under tests/support/con_pantalla.sh where there is none).
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time


def ejecutar(programa, casa):
    """Runs once; gives milliseconds from the start of the process to each paint, and peak memory in MiB."""
    entorno = dict(os.environ, HOME=casa, XDG_DATA_HOME=os.path.join(casa, "datos"))
    antes = time.monotonic_ns()
    salida = subprocess.run([programa], env=entorno, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            check=True, text=True, timeout=60).stdout
    medidas = {}
    for linea in salida.splitlines():
        nombre, valor = linea.split()
        medidas[nombre] = int(valor) / 1024 if nombre == "memoria" else (int(valor) - antes) / 1e6
    return medidas


def main():
    carpeta = sys.argv[1] if len(sys.argv) > 1 else "build/release/bin"
    veces = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    propias, minimas = [], []
    with tempfile.TemporaryDirectory() as casa:
        preparar_casa(carpeta, casa)
        for vez in range(veces + 1):
            propia = ejecutar(os.path.join(carpeta, "banco_arranque"), casa)
            minima = ejecutar(os.path.join(carpeta, "banco_arranque_minimo"), casa)
            if vez > 0:  # the first pair fills the caches
                propias.append(propia)
                minimas.append(minima)

    def mediana(medidas, que):
        return statistics.median(m[que] for m in medidas)

    inicio = mediana(propias, "frmZTInicio")
    marco, marco_minimo = mediana(propias, "MDIZT"), mediana(minimas, "MDIZT")
    memoria, memoria_minima = mediana(propias, "memoria"), mediana(minimas, "memoria")
    print(f"pairs: {veces}")
    print(f"splash painted:     {inicio:7.1f} ms")
    print(f"main window usable: {marco:7.1f} ms   minimal {marco_minimo:7.1f} ms   ratio {marco / marco_minimo:.2f}")
    print(f"peak memory:        {memoria:7.1f} MiB  minimal {memoria_minima:7.1f} MiB  ratio {memoria / memoria_minima:.2f}")


def preparar_casa(carpeta, casa):
    """A home folder whose user has been asked for the language, so that no dialog stands in the way."""
    proceso = subprocess.run([os.path.join(carpeta, "banco_arranque"), "--preparar"],
                             env=dict(os.environ, HOME=casa, XDG_DATA_HOME=os.path.join(casa, "datos")),
                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, timeout=60)
    if proceso.returncode != 0:
        sys.exit("the home folder could not be prepared")


if __name__ == "__main__":
    main()
