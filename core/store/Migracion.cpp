#include "core/store/Migracion.h"

#include <QFile>
#include <QFileInfo>
#include <string>

#include "core/base/FicheroProvisional.h"
#include "core/base/TextosPropios.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/store/Integridad.h"
#include "core/store/PasosDeEsquema.h"

using namespace Qt::StringLiterals;

namespace {

/// Makes the store in an empty file that nobody else knows yet.
void Escribir(const QString& ruta) {
    SQLite::Database base(ruta.toUtf8().constData(), SQLite::OPEN_READWRITE);
    ConCausaDelSistema(base, [&base] {
        base.exec("PRAGMA synchronous = EXTRA");
        base.exec("PRAGMA foreign_keys = ON");
        base.exec("BEGIN IMMEDIATE");
        base.exec("PRAGMA application_id = " + std::to_string(kAplicacionUsuario));
        MigrarBase(base, 0, PasosDelUsuario());
        base.exec("COMMIT");
    });
}

}  // namespace

void CrearAlmacenDeUsuario(const QString& ruta) {
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo(carpeta).isDir()) {
        throw FalloDeAlmacen(NumError::NoExisteRuta, carpeta);
    }
    const FicheroProvisional provisional(ruta);
    try {
        Escribir(provisional.Ruta());
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
    if (ExaminarFichero(ruta).clase == ClaseFichero::NoExiste) {
        ApartarRestos(ruta);
    }
    // False means that another program has made the store meanwhile: its file stays.
    (void)PublicarFichero(provisional.Ruta(), ruta);
}

void ApartarRestos(const QString& ruta) {
    for (const QString& sufijo : {u"-journal"_s, u"-wal"_s, u"-shm"_s}) {
        const QString resto = ruta + sufijo;
        for (int n = 1; QFile::exists(resto); ++n) {
            const QString libre = resto + u".%1.apartado"_s.arg(n);
            if (!QFile::exists(libre) && !QFile::rename(resto, libre)) {
                throw FalloDeAlmacen(NumError::AlmacenSinPermiso, resto, TextoPropio(u"causa_resto"));
            }
        }
    }
}

void MigrarEsquema(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    if (almacen.Version() >= pasos.back().hasta) {
        return;
    }
    Transaccion transaccion(almacen);
    // Asked again: another program may have done it while this one waited.
    MigrarBase(almacen.Base(), almacen.Version(), pasos);
    ComprobarIntegridad(almacen, pasos);
    transaccion.Confirmar();
}
