"""Power cuts: an action is recorded, and what it wrote up to some call is laid out as a disk may hold it then:
what was synced is there; of the rest each write may be missing or half done, and the latest changes of the
names in a folder may be undone."""

import os
import random
from dataclasses import dataclass, field

from . import juicio
from .referencia import TAREAS

SECTOR = 512
# Behind the last call of every action.
AL_FINAL = 10**6


@dataclass
class Fichero:
    datos: bytearray = field(default_factory=bytearray)
    permisos: int = 0o600
    # What may not be there yet: ("escribir", place, data) or ("largo", length, nothing).
    pendientes: list = field(default_factory=list)


def leer_traza(ruta):
    """(call, path, other path, number, data) in their order."""
    datos = ruta.read_bytes()
    lugar = 0
    traza = []
    while lugar < len(datos):
        fin = datos.index(b"\n", lugar)
        llamada, nombre, otro, numero, largo = datos[lugar:fin].decode().split("\t")
        largo = int(largo)
        traza.append((llamada, nombre, otro, int(numero), datos[fin + 1:fin + 1 + largo]))
        lugar = fin + 1 + largo
    return traza


def aplicar(datos, cambio):
    clase, numero, nuevos = cambio
    if clase == "largo":
        del datos[numero:]
        datos.extend(bytes(numero - len(datos)))
    else:
        datos.extend(bytes(max(0, numero - len(datos))))
        datos[numero:numero + len(nuevos)] = nuevos


class Disco:
    """Files and names, those that are safe and those that are not yet."""

    # A disk that says that it has synced and has not: what a judge has to notice.
    olvida = False

    def __init__(self, carpeta):
        self.nombres = {}
        self.carpetas = {}
        self.pendientes = {}  # by folder: what undoes each change of a name, the latest last
        for raiz, _, ficheros in os.walk(carpeta):
            self.carpetas[raiz] = os.stat(raiz).st_mode & 0o777
            for nombre in ficheros:
                ruta = os.path.join(raiz, nombre)
                with open(ruta, "rb") as fichero:
                    self.nombres[ruta] = Fichero(bytearray(fichero.read()), os.stat(ruta).st_mode & 0o777)

    def _nombrar(self, ruta, fichero):
        """Gives or takes a name."""
        antes = self.nombres.get(ruta)
        self.pendientes.setdefault(os.path.dirname(ruta), []).append([(ruta, antes)])
        self._poner(ruta, fichero)

    def _poner(self, ruta, fichero):
        if fichero is None:
            self.nombres.pop(ruta, None)
        else:
            self.nombres[ruta] = fichero

    def seguir(self, llamada, ruta, otra, numero, datos):
        if llamada == "crear":
            self._nombrar(ruta, Fichero(permisos=numero))
        elif llamada in ("escribir", "largo"):
            if ruta in self.nombres:
                self.nombres[ruta].pendientes.append((llamada, numero, datos))
        elif llamada == "sincronizar":
            self._asegurar(ruta)
        elif llamada == "borrar":
            if ruta in self.carpetas:
                del self.carpetas[ruta]
            else:
                self._nombrar(ruta, None)
        elif llamada == "enlazar":
            self._nombrar(otra, self.nombres[ruta])
        elif llamada == "renombrar":
            self._renombrar(ruta, otra)
        elif llamada == "carpeta":
            self.carpetas[ruta] = 0o700

    def _renombrar(self, ruta, otra):
        """Both names change at once: they are in one folder."""
        cambio = [(ruta, self.nombres.get(ruta)), (otra, self.nombres.get(otra))]
        self.pendientes.setdefault(os.path.dirname(otra), []).append(cambio)
        self.nombres[otra] = self.nombres.pop(ruta)

    def _asegurar(self, ruta):
        if self.olvida:
            return
        if ruta in self.carpetas:
            self.pendientes[ruta] = []
        elif ruta in self.nombres:
            fichero = self.nombres[ruta]
            for cambio in fichero.pendientes:
                aplicar(fichero.datos, cambio)
            fichero.pendientes = []

    def cortar(self, azar):
        """The current goes."""
        modo = azar.choice(("nada", "todo", "parte", "parte"))
        for cambios in self.pendientes.values():
            quedan = {"nada": 0, "todo": len(cambios)}.get(modo, azar.randint(0, len(cambios)))
            for cambio in reversed(cambios[quedan:]):
                for ruta, antes in cambio:
                    self._poner(ruta, antes)
        for fichero in self.nombres.values():
            for cambio in fichero.pendientes:
                if modo == "todo" or (modo == "parte" and azar.random() < 0.5):
                    aplicar(fichero.datos, self._roto(cambio, azar) if modo == "parte" else cambio)
            fichero.pendientes = []

    @staticmethod
    def _roto(cambio, azar):
        """Now and then a part of the sectors only."""
        clase, numero, datos = cambio
        if clase == "escribir" and len(datos) > SECTOR and azar.random() < 0.3:
            return clase, numero, datos[:SECTOR * azar.randint(1, len(datos) // SECTOR)]
        return cambio

    def volcar(self):
        """Makes folders and files of it."""
        for carpeta, permisos in sorted(self.carpetas.items()):
            os.makedirs(carpeta, exist_ok=True)
            os.chmod(carpeta, permisos)
        for ruta, fichero in self.nombres.items():
            with open(ruta, "wb") as salida:
                salida.write(fichero.datos)
            os.chmod(ruta, fichero.permisos)


@dataclass(frozen=True)
class Caso:
    tarea: str
    cortada: int
    semilla: int

    fase = "cortes"

    @property
    def celda(self):
        return (self.fase, self.tarea, "corte de luz")

    def __str__(self):
        return f"{self.fase}:{self.tarea}:{self.cortada}:{self.semilla}"

    @staticmethod
    def de(partes, _referencia):
        return Caso(partes[0], int(partes[1]), int(partes[2]))

    def hacer(self, taller, referencia):
        tarea = TAREAS[self.tarea]
        carpeta = taller.poner(referencia.base(tarea.base))
        disco = Disco(str(carpeta))
        traza = taller.raiz / "traza"
        respuesta = taller.hacer(tarea.accion, traza=traza)
        if not respuesta.hecho:
            return [f"fails without a fault: {respuesta}"]
        llamadas = leer_traza(traza)
        for llamada in llamadas[:self.cortada]:
            disco.seguir(*llamada)
        disco.cortar(random.Random(str(self)))
        taller.vaciar()
        disco.volcar()
        if self.cortada < len(llamadas):
            respuesta.codigo = -9
        visto = taller.juzgar()
        averia = juicio.averia(visto, taller.juez)
        return averia or juicio.faltas(referencia, tarea, respuesta, visto.dicho, set())


def casos(referencia, semilla):
    """Cuts without an end; one in eight comes when all is done, where nothing told may be lost."""
    azar = random.Random(f"cortes {semilla}")
    # Threads share the work of printing: its record has no order.
    tareas = [tarea for tarea in TAREAS.values() if tarea.accion not in ("imprimir",)]
    while True:
        for tarea in tareas:
            ultima = referencia.llamadas(tarea, "cambio")
            cortada = AL_FINAL if azar.random() < 0.125 else azar.randint(1, ultima)
            yield Caso(tarea.nombre, cortada, azar.randrange(10**6))
