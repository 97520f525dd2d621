"""Programs under attack, judges of what they leave, and the folders in which that happens."""

import json
import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Respuesta:
    """How a piece of work ended: stopped, or ended with an exit status (minus a signal) and what was told."""

    parada: bool = False
    codigo: int = 0
    dicho: dict = field(default_factory=dict)

    @property
    def muerto(self):
        return self.codigo == -9

    @property
    def hecho(self):
        """The user was told of no failure."""
        return not self.parada and self.codigo == 0 and not self.dicho.get("fallos")


def _asan(programa):
    """The runtime of the sanitizer has to be loaded before any other library."""
    bibliotecas = subprocess.run(["ldd", programa], capture_output=True, text=True, check=True).stdout
    return [linea.split()[2] for linea in bibliotecas.splitlines() if "libasan" in linea]


class Servidor:
    """A program that does many pieces of work, each in a child of its own."""

    def __init__(self, programa, fallo, salida):
        entorno = dict(os.environ, LC_ALL="C", QT_QPA_PLATFORM="offscreen",
                       UBSAN_OPTIONS="print_stacktrace=1", ASAN_OPTIONS="detect_leaks=0")
        if fallo:
            entorno["LD_PRELOAD"] = ":".join(_asan(programa) + [str(fallo)])
        self._salida = salida
        self._errores = open(salida, "ab")
        self._proceso = subprocess.Popen([programa, "servir"], stdin=subprocess.PIPE, text=True,
                                         stdout=subprocess.PIPE, stderr=self._errores, env=entorno)

    def _pedir(self, linea):
        self._proceso.stdin.write(linea + "\n")
        self._proceso.stdin.flush()
        campos = self._proceso.stdout.readline().rstrip("\n").split("\t")
        if campos[0] == "parada":
            return Respuesta(parada=True)
        if campos[0] != "fin":
            raise RuntimeError(f"the server is gone: {self.errores()}")
        return Respuesta(codigo=int(campos[1]), dicho=json.loads(campos[2]) if campos[2] else {})

    def hacer(self, *argumentos, **variables):
        """Variables without their ZELT_FALLO_."""
        campos = [f"ZELT_FALLO_{nombre.upper()}={valor}" for nombre, valor in variables.items()]
        return self._pedir("\t".join(["hacer", *map(str, argumentos), *campos]))

    def seguir(self):
        return self._pedir("seguir")

    def errores(self):
        """The end of what the program said when it broke down."""
        return Path(self._salida).read_text(errors="replace")[-3000:]

    def cerrar(self):
        self._proceso.stdin.close()
        self._proceso.wait()
        self._errores.close()


class Taller:
    """Two programs, a judge, and a folder that is laid out anew for each case."""

    def __init__(self, programas, nombre):
        self.raiz = Path(tempfile.mkdtemp(prefix=f"ataque-{nombre}-"))
        fallo = programas / "libzt_fallo.so"
        self.victima = Servidor(programas / "ataque_victima", fallo, self.raiz / "victima.txt")
        self.otra = Servidor(programas / "ataque_victima", fallo, self.raiz / "otra.txt")
        self.juez = Servidor(programas / "ataque_juez", None, self.raiz / "juez.txt")
        self.conservar = False

    @property
    def carpeta(self):
        return self.raiz / "caso"

    def vaciar(self):
        shutil.rmtree(self.carpeta, ignore_errors=True)

    def poner(self, base):
        """Lays the folder out as `base` is."""
        self.vaciar()
        shutil.copytree(base, self.carpeta)
        return self.carpeta

    def hacer(self, accion, victima=None, **variables):
        return (victima or self.victima).hacer(accion, self.carpeta, carpeta=self.carpeta, **variables)

    def juzgar(self):
        return self.juez.hacer(self.carpeta)

    def cerrar(self):
        for servidor in (self.victima, self.otra, self.juez):
            servidor.cerrar()
        if not self.conservar:
            shutil.rmtree(self.raiz, ignore_errors=True)
