"""Damaged stores: the program refuses them by name and offers its copies, without a byte written into them, or
every figure is right."""

import random
import sqlite3
from dataclasses import dataclass

from . import juicio
from .referencia import TAREAS

PAGINA = 4096
FICHEROS = {
    "almacen": "usuario/Tablas/ZELTMOD.mdb",
    "referencia": "usuario/Tablas/ZELTLEC.mdb",
    "copia": "usuario/backups/ZELTMod_bak.mdb",
}


def _bit(datos, azar):
    lugar = azar.randrange(len(datos))
    datos[lugar] ^= 1 << azar.randrange(8)


def _bits(datos, azar):
    for _ in range(azar.randint(2, 8)):
        _bit(datos, azar)


def _cabecera(datos, azar):
    lugar = azar.randrange(100)
    datos[lugar] ^= azar.randint(1, 255)


def _cabecera_rota(datos, azar):
    largo = azar.randint(16, 100)
    datos[:largo] = azar.randbytes(largo)


def _ruido(datos, azar):
    lugar = azar.randrange(len(datos))
    largo = min(azar.randint(2, 600), len(datos) - lugar)
    datos[lugar:lugar + largo] = azar.randbytes(largo)


def _corte(datos, azar):
    del datos[azar.choice((len(datos) - azar.randint(1, 600), azar.randrange(len(datos)))):]


def _corte_de_pagina(datos, azar):
    del datos[PAGINA * azar.randrange(len(datos) // PAGINA):]


def _cola(datos, azar):
    datos += azar.randbytes(azar.randint(1, 2 * PAGINA))


def _pagina_a_cero(datos, azar):
    lugar = PAGINA * azar.randrange(len(datos) // PAGINA)
    datos[lugar:lugar + PAGINA] = bytes(PAGINA)


def _paginas_cambiadas(datos, azar):
    una, otra = (PAGINA * n for n in azar.sample(range(len(datos) // PAGINA), 2))
    datos[una:una + PAGINA], datos[otra:otra + PAGINA] = datos[otra:otra + PAGINA], datos[una:una + PAGINA]


def _version(datos, azar):
    datos[60:64] = azar.randint(2, 2**31 - 1).to_bytes(4, "big")


def _ajeno(datos, azar):
    with sqlite3.connect(":memory:") as base:
        base.execute("CREATE TABLE ajena (n INTEGER)")
        base.execute("INSERT INTO ajena VALUES (?)", (azar.randrange(1000),))
        base.commit()
        datos[:] = base.serialize()


def _texto(datos, azar):
    datos[:] = b"Esto no es un almacen.\n" * azar.randint(1, 2000)


def _vacio(datos, _azar):
    del datos[:]


def _ceros(datos, _azar):
    datos[:] = bytes(len(datos))


DANOS = {
    "bit": _bit, "bits": _bits, "cabecera": _cabecera, "cabecera-rota": _cabecera_rota, "ruido": _ruido,
    "corte": _corte, "corte-de-pagina": _corte_de_pagina, "cola": _cola, "pagina-a-cero": _pagina_a_cero,
    "paginas-cambiadas": _paginas_cambiadas, "version": _version, "ajeno": _ajeno, "texto": _texto,
    "vacio": _vacio, "ceros": _ceros,
}
# Nothing of these can be taken for a store of this version.
SIEMPRE_RECHAZADOS = {"cabecera-rota", "version", "ajeno", "texto", "vacio", "ceros", "corte-de-pagina"}


@dataclass(frozen=True)
class Caso:
    fichero: str
    dano: str
    semilla: int

    fase = "danos"

    @property
    def celda(self):
        return (self.fase, self.fichero, self.dano)

    def __str__(self):
        return f"{self.fase}:{self.fichero}:{self.dano}:{self.semilla}"

    @staticmethod
    def de(partes, _referencia):
        return Caso(partes[0], partes[1], int(partes[2]))

    def hacer(self, taller, referencia):
        fichero = taller.poner(referencia.base("lleno")) / FICHEROS[self.fichero]
        datos = bytearray(fichero.read_bytes())
        DANOS[self.dano](datos, random.Random(str(self)))
        fichero.write_bytes(datos)
        visto = taller.juzgar()
        averia = juicio.averia(visto, taller.juez)
        if averia:
            return averia
        antes = referencia.antes(TAREAS["arrancar"])
        if self.fichero == "almacen":
            return self._faltas_del_almacen(fichero, bytes(datos), visto.dicho, antes)
        if self.fichero == "referencia" and self._de_otra_version(visto.dicho):
            return []
        return self._faltas_de_otro(visto.dicho, antes)

    def _faltas_del_almacen(self, fichero, datos, visto, antes):
        if fichero.read_bytes() != datos:
            return [f"something was written into it: {visto}"]
        if not visto["arranque"]:
            nombrado = visto["rechazos"] and "ZELTMOD.mdb" in visto["rechazos"][0]
            ofrecido = visto["ofrecidas"] > 0
            bien = nombrado and ofrecido and not visto["problemas"]
            return [] if bien else [f"refused without a word: {visto}"]
        faltas = list(visto["problemas"])
        if self.dano in SIEMPRE_RECHAZADOS:
            faltas.append("taken for a store")
        if visto["figuras"] != antes["figuras"] and not visto["descuadres"]:
            faltas.append("other figures, and nothing tells of them")
        return faltas

    @staticmethod
    def _de_otra_version(visto):
        """A newer reference store is named and left as it is: a newer program has put it there."""
        return not visto["arranque"] and any("ZELTLEC.mdb" in problema and "más nueva" in problema
                                             for problema in visto["problemas"])

    @staticmethod
    def _faltas_de_otro(visto, antes):
        """The store itself is as it was; a copy is refused or holds what it held."""
        faltas = list(visto["problemas"])
        if not visto["arranque"] or visto["estado"] != antes["estado"]:
            faltas.append(f"the store suffers: {visto}")
        faltas += [f"a damaged copy is taken: {nombre}" for nombre, estado in visto["copias"].items()
                   if estado and estado != antes["copias"].get(nombre)]
        return faltas


def casos(_referencia, semilla):
    """Damages without an end, twice as many to the store as to the other files."""
    numero = 1000 * semilla
    while True:
        for dano in DANOS:
            for fichero in ("almacen", "almacen", "referencia", "copia"):
                numero += 1
                yield Caso(fichero, dano, numero)
