#include "core/copies/CopiaDeAlmacen.h"

#include "core/base/FicheroProvisional.h"
#include "core/copies/SumaDeFichero.h"
#include "core/store/Almacen.h"
#include "core/store/Migracion.h"

void CopiarAlmacen(const QString& almacen, const QString& destino, const std::optional<FechaDeCopia>& fecha,
                   const AvanceDeCopia& avance) {
    const QString real = RutaReal(destino);
    const FicheroProvisional provisional(real);
    ConAlmacen(ClaseAlmacen::Usuario, almacen,
               [&](Almacen& vivo) { VolcarAlmacen(vivo.Base(), provisional.Ruta(), fecha, avance); });
    const SumaPreparada suma(real, SumaDeFichero(provisional.Ruta()));
    // Everything is written: what may fail from here on are changes of names. A journal that stands there is
    // not that of the new copy. The former sum goes first: a copy without a sum is taken, one beside a sum
    // that is not its own is not.
    ApartarRestos(real);
    QuitarSuma(real);
    SustituirFichero(provisional.Ruta(), real);
    suma.Publicar();
}
