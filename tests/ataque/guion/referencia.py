"""What runs without a fault do: the calls that can be attacked, and the states that may be found afterwards."""

import functools
import hashlib
import shutil
import tempfile
import threading
from dataclasses import dataclass
from pathlib import Path

IMPORTADO = "importar.txt"


@dataclass(frozen=True)
class Tarea:
    """An action as it is attacked, on one of the bases."""

    nombre: str
    accion: str
    base: str = "lleno"


TAREAS = {tarea.nombre: tarea for tarea in (
    Tarea("primer-arranque", "arrancar", "nuevo"),
    Tarea("arrancar", "arrancar"),
    Tarea("guardar-anexos", "guardar-anexos"),
    Tarea("cambiar-declarante", "cambiar-nombre"),
    Tarea("crear-declarante", "crear-declarante"),
    Tarea("eliminar-declarante", "eliminar-declarante"),
    Tarea("eliminar-declaracion", "eliminar-declaracion"),
    Tarea("eliminar-establecimiento", "eliminar-establecimiento"),
    Tarea("importar", "importar"),
    Tarea("exportar", "exportar"),
    Tarea("exportar-nuevo", "exportar", "sin-exportar"),
    Tarea("copiar", "copiar"),
    Tarea("restaurar", "restaurar"),
    Tarea("imprimir", "imprimir"),
    Tarea("cambiar-idioma", "cambiar-idioma"))}


def resumen(datos):
    return hashlib.sha256(datos).hexdigest()[:16]


def prefijos(datos, fin=b"\r\n"):
    """The beginnings of a file that end with a line, the empty one too."""
    lineas = datos.split(fin)[:-1]
    return [b"".join(linea + fin for linea in lineas[:cuantas]) for cuantas in range(len(lineas) + 1)]


def _recordado(metodo):
    """Works each result out once, for one caller at a time."""

    @functools.wraps(metodo)
    def envuelto(self, *argumentos):
        clave = (metodo.__name__, argumentos)
        with self.cerrojo:
            if clave not in self.memoria:
                self.memoria[clave] = metodo(self, *argumentos)
            return self.memoria[clave]

    return envuelto


class Referencia:
    """Bases, and for each task the judgement before and after it."""

    def __init__(self, taller):
        self.raiz = Path(tempfile.mkdtemp(prefix="ataque-base-"))
        self.memoria = {}
        self.cerrojo = threading.RLock()
        self._taller = taller
        self._preparar()

    def _preparar(self):
        lleno = self.base("lleno")
        respuesta = self._taller.victima.hacer("preparar", lleno)
        if respuesta.codigo != 0:
            raise RuntimeError(self._taller.victima.errores())
        for nombre, quitar in (("nuevo", "usuario"), ("sin-exportar", "usuario/Declaran.txt")):
            shutil.copytree(lleno, self.base(nombre))
            sobra = self.base(nombre) / quitar
            shutil.rmtree(sobra) if sobra.is_dir() else sobra.unlink()

    def base(self, nombre):
        return self.raiz / nombre

    @_recordado
    def juicio(self, acciones, base="lleno"):
        """Judgement of a folder after those actions one after the other, and whether each was done. One that
        imports may be ("importar", first line, line behind the last one)."""
        carpeta = self._taller.poner(self.base(base))
        hechas = tuple(self._hacer(accion, carpeta) for accion in acciones)
        respuesta = self._taller.juzgar()
        if respuesta.codigo != 0 or respuesta.dicho["problemas"] or not respuesta.dicho["arranque"]:
            raise RuntimeError(f"without a fault, {acciones}: {respuesta} {self._taller.juez.errores()}")
        return respuesta.dicho, hechas

    def _hacer(self, accion, carpeta):
        if isinstance(accion, tuple):
            accion, desde, hasta = accion
            partes = prefijos((self.base("lleno") / IMPORTADO).read_bytes())
            (carpeta / IMPORTADO).write_bytes(partes[hasta][len(partes[desde]):])
        return self._taller.hacer(accion).hecho

    def antes(self, tarea):
        return self.juicio((), tarea.base)[0]

    def despues(self, tarea):
        juicio, hechas = self.juicio((tarea.accion,), tarea.base)
        if not all(hechas):
            raise RuntimeError(f"{tarea.nombre} fails without a fault")
        return juicio

    @_recordado
    def lineas(self):
        return len(prefijos((self.base("lleno") / IMPORTADO).read_bytes())) - 1

    @_recordado
    def estados(self, tarea):
        """States of the store that may be found: that before, that after, those of an import line by line."""
        estados = {self.antes(tarea)["estado"], self.despues(tarea)["estado"]}
        if tarea.accion == "importar":
            estados |= {self.juicio(((tarea.accion, 0, cuantas),))[0]["estado"]
                        for cuantas in range(self.lineas() + 1)}
        return estados

    @_recordado
    def llamadas(self, tarea, clase):
        """How many calls of that kind it makes."""
        self._taller.poner(self.base(tarea.base))
        return self._taller.hacer(tarea.accion, clase=clase).dicho["llamadas"]

    @_recordado
    def exportados(self, tarea):
        """Digests of what an export that was refused may leave: the lines that it got to."""
        self._taller.poner(self.base(tarea.base))
        self._taller.hacer(tarea.accion)
        fichero = self._taller.carpeta / "usuario/Declaran.txt"
        return {resumen(parte) for parte in prefijos(fichero.read_bytes())}

    def cerrar(self):
        shutil.rmtree(self.raiz, ignore_errors=True)
