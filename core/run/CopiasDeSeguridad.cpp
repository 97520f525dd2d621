#include "core/run/CopiasDeSeguridad.h"

#include <QDir>

#include "core/run/Entorno.h"
#include "core/services/SvrKLComunLib/cSaveAsRestore.h"
#include "core/services/svrZELT/cZTTraspaso.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kAlmacen = u"ZELTMOD.mdb";
constexpr QStringView kCopia = u"ZELTMod_bak.mdb";

QString CarpetaDeCopias() {
    return Entorno().CarpetaPrograma + QDir::separator() + u"backups"_s + QDir::separator();
}

/// What both commands hand over in the same way, after the files.
void PonerLoComun(SvrKLComunLib::cSaveAsRestore& herramienta, qint32 ventana) {
    herramienta.Filtro = u"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb"_s;
    herramienta.idioma = Entorno().OffsetIdioma;
    herramienta.Parent = ventana;
    herramienta.BDLectura = Entorno().mdblec;
    herramienta.BDTabla = u"T00_GENERAL"_s;
    herramienta.BDCampo = u"T00_BACKUP_TVC"_s;
}

}  // namespace

void CrearCopiaDeSeguridad(qint32 ventana) {
    SvrKLComunLib::cSaveAsRestore herramienta;
    herramienta.ArchivoOrigen = kAlmacen.toString();
    herramienta.ArchivoDestino = kCopia.toString();
    herramienta.RutaOrigen = Entorno().mdbPath;
    herramienta.RutaDestino = CarpetaDeCopias();
    PonerLoComun(herramienta, ventana);
    herramienta.CrearBackup();
}

void CopiarPrimerosDatos() { ServidorDeUsuario<svrZELT::cZTTraspaso>().CopiarPrimerosDatos(); }

bool RestaurarCopiaDeSeguridad(qint32 ventana) {
    SvrKLComunLib::cSaveAsRestore herramienta;
    herramienta.ArchivoOrigen = kCopia.toString();
    herramienta.ArchivoDestino = kAlmacen.toString();
    herramienta.RutaOrigen = CarpetaDeCopias();
    herramienta.RutaDestino = Entorno().mdbPath;
    PonerLoComun(herramienta, ventana);
    return herramienta.CrearRestore();
}
