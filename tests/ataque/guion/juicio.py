"""What must hold after an attack on one action."""

COPIA = "ZELTMod_bak.mdb"


def averia(respuesta, servidor, muerte=False):
    """A program that broke down by itself."""
    if respuesta.codigo == 0 or (muerte and respuesta.muerto):
        return []
    return [f"broke down with {respuesta.codigo}: {servidor.errores()}"]


def _copias(juicio, admitidas):
    malas = [nombre for nombre, estado in juicio["copias"].items() if not estado]
    ajenas = [nombre for nombre, estado in juicio["copias"].items() if estado and estado not in admitidas]
    return ([f"a copy that is none: {malas}"] if malas else []) + (
        [f"a copy of a state that never was: {ajenas}"] if ajenas else [])


def _exportado(juicio, antes, despues, parciales, contado):
    """The old file or the new one, whole; a new target of a refused export has the lines that it got to."""
    admitidos = {antes["exportado"], despues["exportado"]}
    if contado and not antes["exportado"]:
        admitidos |= parciales
    faltas = []
    if juicio["exportado"] not in admitidos:
        faltas.append("the export is neither the old nor the new one")
    if juicio["incompleto"] and juicio["incompleto"] not in parciales:
        faltas.append("what is left of the refused export is no part of it")
    return faltas


def _completo(respuesta, juicio, despues):
    """Who says that all is done has done all; notices tell what was not: the copy of the day, its date."""
    partes = ["exportado", "documentos"]
    if not respuesta.dicho.get("avisos"):
        partes.append("estado")
        # A restore keeps a store that it cannot read through as it is, and not as a copy.
        partes += [] if juicio["apartados"] else ["copias"]
    faltas_ = [f"told as done, but not: {parte}, {juicio[parte]} and not {despues[parte]}"
               for parte in partes if juicio[parte] != despues[parte]]
    if juicio["copias"].get(COPIA) != despues["copias"].get(COPIA):
        faltas_.append("told as done, but not: the backup")
    return faltas_


def faltas(referencia, tarea, respuesta, juicio, parciales):
    """What is wrong after the task, told or killed."""
    antes, despues = referencia.antes(tarea), referencia.despues(tarea)
    estados = referencia.estados(tarea)
    halladas = list(juicio["problemas"])
    if not juicio["arranque"] or juicio["rechazos"]:
        return halladas + [f"the program does not start again: {juicio['rechazos']} {juicio['avisos']}"]
    if juicio["estado"] not in estados:
        halladas.append("the store is neither as before nor as after")
    if juicio["descuadres"]:
        halladas.append("figures do not add up")
    admitidas = estados | set(antes["copias"].values()) | set(despues["copias"].values())
    halladas += _copias(juicio, admitidas)
    halladas += _exportado(juicio, antes, despues, parciales, bool(respuesta.dicho.get("fallos")))
    if respuesta.hecho:
        halladas += _completo(respuesta, juicio, despues)
    return halladas
