#include "data/CopiaDeAlmacen.h"

#include "data/Almacen.h"
#include "data/FicheroProvisional.h"
#include "data/SumaDeFichero.h"

void CopiarAlmacen(const QString& almacen, const QString& destino, const std::optional<FechaDeCopia>& fecha,
                   const AvanceDeCopia& avance) {
    const QString real = RutaReal(destino);
    const FicheroProvisional provisional(real);
    ConAlmacen(ClaseAlmacen::Usuario, almacen,
               [&](Almacen& vivo) { VolcarAlmacen(vivo.Base(), provisional.Ruta(), fecha, avance); });
    const QByteArray suma = SumaDeFichero(provisional.Ruta());
    // The former sum goes first: a copy without a sum is taken, one beside a sum that is not its own is not.
    QuitarSuma(real);
    SustituirFichero(provisional.Ruta(), real);
    AnotarSuma(real, suma);
}
