#include "tests/ataque/Acciones.h"

#include <array>

#include "core/base/ErrorZT.h"
#include "core/exchange/ExporacionZT.h"
#include "core/exchange/ImportacionZT.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/exchange/cZTImportaciones.h"
#include "core/printing/ImprimirZT.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/CopiasDeSeguridad.h"
#include "core/run/Entorno.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "tests/support/DatosDeIntercambio.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kDeclarante = 1;
constexpr qint32 kOtroDeclarante = 2;
constexpr qint32 kDeclaracion = 2;

void Arrancar(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    if (!ejecucion.Arrancar()) {
        final.fallos += u"no arranca"_s;
    }
}

void GuardarAnexos(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/, Final& final) {
    using Columna = svrZELT::CamposDeAnexo::Columna;
    auto servidor = ServidorDeUsuario<svrZELT::cZTAnexos>();
    EstadoLeido leido;
    Tabla lineas = servidor.CargarAnexos(kDeclaracion, &leido);
    for (int fila = 1; fila <= lineas.UltimaFila(); ++fila) {
        lineas(Columna::kBASIM, fila) = lineas(Columna::kBASIM, fila).aDoble() + 12345.0;
    }
    if (!servidor.GuardarAnexos(lineas, std::nullopt, kDeclaracion, &leido)) {
        final.fallos += servidor.Causa;
    }
}

/// Opens a declarant, lets `cambiar` work on him, and saves him. One who could not be read is not saved: the
/// user has been told.
template <class F>
void GuardarDeclarante(qint32 CSDE, EjecucionDeAtaque& ejecucion, Final& final, F&& cambiar) {
    cZTDeclarante& declarante = oDeclarante();
    declarante.Modo = CSDE == 0 ? cZTDeclarante::kModoNuevo : cZTDeclarante::kModoExistente;
    declarante.CSDE = CSDE;
    declarante.InicializaDatos();
    cambiar(declarante);
    if (ejecucion.pantalla.fallos.isEmpty() && declarante.GuardarDeclarante() == 0) {
        final.fallos += u"no se ha guardado"_s;
    }
}

void CambiarNombre(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    GuardarDeclarante(kDeclarante, ejecucion, final,
                      [](cZTDeclarante& d) { d.Nombre = u"NOMBRE CAMBIADO"_s; });
}

void CambiarCalle(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    GuardarDeclarante(kDeclarante, ejecucion, final,
                      [](cZTDeclarante& d) { d.Domicilio = u"CALLE CAMBIADA"_s; });
}

void CrearDeclarante(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    GuardarDeclarante(0, ejecucion, final, [](cZTDeclarante& d) {
        d.NIF = NifDePersona(20);
        d.Nombre = u"DECLARANTE NUEVO"_s;
    });
}

void EliminarDeclarante(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/, Final& /*final*/) {
    oDeclarante().CSDE = kOtroDeclarante;
    oDeclarante().EliminarDeclarante();
}

void EliminarTitular(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/, Final& /*final*/) {
    oDeclarante().CSDE = kDeclarante;
    oDeclarante().EliminarDeclarante();
}

void EliminarDeclaracion(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/, Final& /*final*/) {
    ServidorDeUsuario<svrZELT::cZTDeclaraciones>().EliminarDeclaraciones(kDeclaracion);
}

void EliminarEstablecimiento(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/,
                             Final& /*final*/) {
    ServidorDeUsuario<svrZELT::cZTEstablecimientos>().EliminarEstablecimiento(2);
}

void Importar(const Escenario& escenario, EjecucionDeAtaque& /*ejecucion*/, Final& final) {
    PantallaDeImportacionGrabadora pantalla(true);
    Import(escenario.Importado(), pantalla);
    if (oImportaciones().vBufferImportados.index() == 0) {
        final.fallos += u"sin cuentas"_s;
    }
}

void ExportarTodos(const Escenario& escenario, EjecucionDeAtaque& /*ejecucion*/, Final& /*final*/) {
    Exportar(escenario, {qint32{1}, qint32{2}, qint32{3}, qint32{4}});
}

void Copiar(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    const auto anotar = [&](const std::optional<FalloDeCopia>& fallo) {
        if (fallo && fallo->motivo == MotivoDeCopia::FechaSinAnotar) {
            final.avisos += fallo->causa;
        } else if (fallo) {
            final.fallos += fallo->fichero + u": "_s + fallo->causa;
        }
        return fallo.has_value();
    };
    ejecucion.copias.alPedirCopia = [&](TareaDeCopia& tarea) {
        const TareaDeCopia::Destino destino = tarea.Elegir(tarea.Carpeta(), tarea.Nombre());
        if (!anotar(destino.fallo)) {
            anotar(tarea.Copiar(destino.ruta, [](int) {}));
        }
    };
    CrearCopiaDeSeguridad(0);
}

void Restaurar(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    const auto anotar = [&](const std::optional<FalloDeCopia>& fallo) {
        if (fallo) {
            final.fallos += fallo->fichero + u": "_s + fallo->causa;
        }
        return fallo.has_value();
    };
    ejecucion.copias.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
        const auto examen = tarea.Examinar(tarea.Carpeta(), tarea.Nombre());
        if (!anotar(examen.fallo)) {
            anotar(tarea.Restaurar(examen.resumen.ruta, [](int) {}));
        }
    };
    if (!RestaurarCopiaDeSeguridad(0) && final.fallos.isEmpty()) {
        final.fallos += u"no se ha restaurado"_s;
    }
}

void Imprimir(const Escenario& /*escenario*/, EjecucionDeAtaque& ejecucion, Final& final) {
    oFecha().LeerIdioma();
    oDeclarante().Modo = cZTDeclarante::kModoExistente;
    oDeclarante().CSDE = kDeclarante;
    oDeclarante().InicializaDatos();
    oDeclaraciones().CSDC = kDeclaracion;
    oImprimir().Ejercicio = oDeclaraciones().Ejercicio = 2007;
    oImprimir().Periodo = oDeclaraciones().Periodo = 1;
    oImprimir().FechaPresentacion = u"15/04/2007"_s;
    oImprimir().Administracion = oImprimir().Interesado = true;
    if (ejecucion.pantalla.fallos.isEmpty()) {
        ImprimirDeclaracion();
        if (ejecucion.pantalla.mensajes.isEmpty()) {
            final.fallos += u"sin aviso de los ficheros"_s;
        }
    }
}

void CambiarIdioma(const Escenario& /*escenario*/, EjecucionDeAtaque& /*ejecucion*/, Final& /*final*/) {
    oFecha().IDI(u"E"_s);
}

constexpr std::array kAcciones{Accion{u"arrancar", Arrancar},
                               Accion{u"guardar-anexos", GuardarAnexos},
                               Accion{u"cambiar-nombre", CambiarNombre},
                               Accion{u"cambiar-calle", CambiarCalle},
                               Accion{u"crear-declarante", CrearDeclarante},
                               Accion{u"eliminar-declarante", EliminarDeclarante},
                               Accion{u"eliminar-titular", EliminarTitular},
                               Accion{u"eliminar-declaracion", EliminarDeclaracion},
                               Accion{u"eliminar-establecimiento", EliminarEstablecimiento},
                               Accion{u"importar", Importar},
                               Accion{u"exportar", ExportarTodos},
                               Accion{u"copiar", Copiar},
                               Accion{u"restaurar", Restaurar},
                               Accion{u"imprimir", Imprimir},
                               Accion{u"cambiar-idioma", CambiarIdioma}};

}  // namespace

std::span<const Accion> Acciones() { return kAcciones; }

Final Hacer(const Accion& accion, const Escenario& escenario) {
    Final final;
    EjecucionDeAtaque ejecucion(escenario);
    try {
        accion.hacer(escenario, ejecucion, final);
    } catch (const ErrorZT& error) {
        final.fallos += error.Descripcion();
    }
    final.fallos += ejecucion.pantalla.fallos;
    for (const FalloDeCopia& aviso : ejecucion.copias.avisos) {
        final.avisos += aviso.fichero + u": "_s + aviso.causa;
    }
    return final;
}

void Exportar(const Escenario& escenario, const Registro& declarantes) {
    oExportaciones().vBufferDtes = declarantes;
    PantallaDeExportacionGrabadora pantalla(escenario.Exportado());
    ExportarDeclarantes(pantalla);
}
