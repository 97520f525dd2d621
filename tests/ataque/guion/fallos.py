"""A fault at the n-th call of an action: refused, cut short, or the end of the process."""

from dataclasses import dataclass

from . import juicio
from .referencia import TAREAS

# Fault, the calls at which it can come, and whether everything after it goes wrong too.
FALLOS = {
    "lleno": ("ENOSPC", "sitio", True),
    "lleno-un-momento": ("ENOSPC", "sitio", False),
    "disco": ("EIO", "todas", True),
    "disco-un-momento": ("EIO", "todas", False),
    "corta": ("corta", "escritura", False),
    "corta-y-lleno": ("corta", "escritura", True),
    "muerte": ("muerte", "cambio", False),
    "muerte-a-medias": ("media", "escritura", False),
}


@dataclass(frozen=True)
class Caso:
    tarea: str
    fallo: str
    numero: int

    fase = "fallos"

    @property
    def celda(self):
        return (self.fase, self.tarea, self.fallo)

    def __str__(self):
        return f"{self.fase}:{self.tarea}:{self.fallo}:{self.numero}"

    @staticmethod
    def de(partes, _referencia):
        return Caso(partes[0], partes[1], int(partes[2]))

    def hacer(self, taller, referencia):
        tarea = TAREAS[self.tarea]
        modo, clase, sigue = FALLOS[self.fallo]
        taller.poner(referencia.base(tarea.base))
        respuesta = taller.hacer(tarea.accion, modo=modo, clase=clase, sigue=int(sigue), caso=self.numero)
        averia = juicio.averia(respuesta, taller.victima, muerte=modo in ("muerte", "media"))
        if averia:
            return averia
        visto = taller.juzgar()
        averia = juicio.averia(visto, taller.juez)
        parciales = referencia.exportados(tarea) if tarea.accion == "exportar" else set()
        return averia or [f"{falta} (told: {respuesta.dicho})" for falta in juicio.faltas(
            referencia, tarea, respuesta, visto.dicho, parciales)]


def casos(referencia):
    """Every call of every action with every fault."""
    return [Caso(tarea.nombre, fallo, numero)
            for tarea in TAREAS.values()
            for fallo, (_modo, clase, _sigue) in FALLOS.items()
            for numero in range(1, referencia.llamadas(tarea, clase) + 1)]
