#include "core/copies/MigracionDeAlmacen.h"

#include <sqlite3.h>

#include <QFileInfo>

#include "core/copies/CopiasAutomaticas.h"
#include "core/store/Integridad.h"
#include "core/store/Migracion.h"

void MigrarConCopia(Almacen& almacen, std::span<const PasoDeEsquema> pasos, const QDateTime& ahora) {
    if (almacen.Version() >= pasos.back().hasta) {
        ComprobarEstructura(almacen, pasos);
        return;
    }
    const QString copia = HacerCopiaAutomatica(almacen.Base(), almacen.Ruta(), Ocasion::Migracion, ahora);
    MigrarEsquema(almacen, pasos);
    PodarCopiasAutomaticas(QFileInfo(copia).path(), copia);
}

void MigrarAlmacen(const QString& ruta, const QDateTime& ahora) {
    if (ExaminarFichero(ruta).clase == ClaseFichero::NoExiste) {
        CrearAlmacenDeUsuario(ruta);
    }
    try {
        Almacen almacen(ClaseAlmacen::Usuario, ruta, Versiones::LaActualYAnteriores);
        if (sqlite3_db_readonly(almacen.Base().getHandle(), "main") != 0) {
            throw FalloDeAlmacen(NumError::AlmacenSoloLectura, ruta);
        }
        ConCausaDelSistema(almacen.Base(), [&] { MigrarConCopia(almacen, PasosDelUsuario(), ahora); });
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
}
