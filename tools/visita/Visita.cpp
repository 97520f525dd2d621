#include "tools/visita/Visita.h"

#include "core/base/Instancias.h"
#include "forms/runtime/Formularios.h"
#include "tools/visita/Etapas.h"

QStringList Recorrer(const QString& salida, const QString& idioma) {
    Mano mano(salida, idioma);
    PrimerArranque(mano);
    MenusYAvisos(mano);
    for (const DeclaranteDeEjemplo& ejemplo : Ejemplos()) {
        NuevoDeclarante(mano, ejemplo);
        NuevosEstablecimientos(mano, ejemplo);
        for (const DeclaracionDeEjemplo& declaracion : ejemplo.declaraciones) {
            Declarar(mano, ejemplo, declaracion);
            Imprimir(mano, ejemplo, declaracion);
        }
        CerrarDeclarante(mano);
    }
    Intercambio(mano);
    CopiaYRestauracion(mano);
    Preferencias(mano);
    Formularios::Reiniciar();
    ReiniciarInstancias();
    return mano.Imagenes();
}
