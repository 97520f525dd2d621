"""Two programs on one store: the first is stopped at its n-th call, the second works until its m-th one or its
end, and then both go on. Whatever the turns, what is found is what the two would have done one after the
other, or what one would have done whose partner was told that it did not work."""

import random
from dataclasses import dataclass

from . import juicio
from .referencia import Tarea

PAREJAS = (
    ("cambiar-nombre", "cambiar-calle"),
    ("cambiar-nombre", "eliminar-titular"),
    ("eliminar-titular", "guardar-anexos"),
    ("guardar-anexos", "guardar-anexos"),
    ("guardar-anexos", "eliminar-establecimiento"),
    ("guardar-anexos", "restaurar"),
    ("cambiar-nombre", "restaurar"),
    ("cambiar-nombre", "copiar"),
    ("importar", "restaurar"),
    ("importar", "cambiar-nombre"),
    ("importar", "eliminar-declarante"),
    ("crear-declarante", "crear-declarante"),
    ("restaurar", "restaurar"),
    ("copiar", "copiar"),
    ("copiar", "restaurar"),
    ("cambiar-idioma", "guardar-anexos"),
    ("arrancar", "restaurar"),
)
# At its end, and not before.
SIN_PARADA = 0


def _series(referencia, pareja):
    """What the two may have done one after the other: (which, action) in its order. An import can have got to
    any line, and the other one between any two of them."""
    una, otra = pareja
    if una != "importar":
        yield from ([], [(0, una)], [(1, otra)], [(0, una), (1, otra)], [(1, otra), (0, una)])
        return
    for ultima in range(referencia.lineas() + 1):
        yield [(0, (una, 0, ultima))]
        for corte in range(ultima + 1):
            yield [(0, (una, 0, corte)), (1, otra), (0, (una, corte, ultima))]


def _estados(referencia, pareja):
    """States by (first done, second done)."""
    posibles = {}
    with referencia.cerrojo:
        for serie in _series(referencia, pareja):
            visto, hechas = referencia.juicio(tuple(accion for _, accion in serie))
            acabadas = {cual: hecha for (cual, _), hecha in zip(serie, hechas)}
            if pareja[0] == "importar":
                # Who was told of a failure may have got to the last line.
                posibles.setdefault((False, acabadas.get(1, False)), set()).add(visto["estado"])
                acabadas[0] = serie[-1][1][2] == referencia.lineas()
            hechas = (acabadas.get(0, False), acabadas.get(1, False))
            posibles.setdefault(hechas, set()).add(visto["estado"])
    if pareja == ("copiar", "restaurar"):
        # What is restored is the copy that was looked at, whatever has taken its name since.
        posibles[True, True] |= posibles[False, True]
    return posibles


@dataclass(frozen=True)
class Caso:
    pareja: tuple
    primera: int
    segunda: int

    fase = "turnos"

    @property
    def celda(self):
        return (self.fase, "+".join(self.pareja), "parada")

    def __str__(self):
        return f"{self.fase}:{self.pareja[0]}:{self.pareja[1]}:{self.primera}:{self.segunda}"

    @staticmethod
    def de(partes, _referencia):
        return Caso((partes[0], partes[1]), int(partes[2]), int(partes[3]))

    def _correr(self, taller):
        una = taller.hacer(self.pareja[0], modo="parada", clase="todas", caso=self.primera)
        otra = taller.hacer(self.pareja[1], taller.otra, modo="parada", clase="todas", caso=self.segunda)
        if una.parada:
            una = taller.victima.seguir()
        if otra.parada:
            otra = taller.otra.seguir()
        return una, otra

    def hacer(self, taller, referencia):
        taller.poner(referencia.base("lleno"))
        una, otra = self._correr(taller)
        averia = juicio.averia(una, taller.victima) + juicio.averia(otra, taller.otra)
        if averia:
            return averia
        visto = taller.juzgar()
        averia = juicio.averia(visto, taller.juez)
        return averia or self._faltas(referencia, una, otra, visto.dicho)

    def _admitidos(self, referencia, una, otra):
        """A notice tells of a part that was not done."""
        estados = _estados(referencia, self.pareja)
        admitidos = set()
        for hecha in {una.hecho, una.hecho and not una.dicho.get("avisos")}:
            for hecha_otra in {otra.hecho, otra.hecho and not otra.dicho.get("avisos")}:
                admitidos |= estados.get((hecha, hecha_otra), set())
        return admitidos

    def _faltas(self, referencia, una, otra, visto):
        faltas = list(visto["problemas"])
        if not visto["arranque"] or visto["rechazos"]:
            faltas.append(f"the program does not start again: {visto['rechazos']}")
        elif visto["estado"] not in self._admitidos(referencia, una, otra):
            faltas.append("the store is as no order of the two makes it")
        if visto.get("descuadres"):
            faltas.append("figures do not add up")
        faltas += [f"a copy that is none: {nombre}" for nombre, estado in visto["copias"].items() if not estado]
        return [f"{falta} (told: {una.dicho} and {otra.dicho})" for falta in faltas]


def casos(referencia, semilla):
    """Turns without an end."""
    azar = random.Random(f"turnos {semilla}")
    while True:
        for pareja in PAREJAS:
            una, otra = (referencia.llamadas(Tarea(accion, accion), "todas") for accion in pareja)
            segunda = azar.choice((SIN_PARADA, azar.randint(1, otra)))
            yield Caso(pareja, azar.randint(1, una), segunda)
