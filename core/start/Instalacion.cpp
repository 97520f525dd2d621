#include "core/start/Instalacion.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <optional>

#include "core/base/CarpetaNueva.h"
#include "core/base/FalloDeFichero.h"
#include "core/base/FicheroNuevo.h"
#include "core/base/Pantalla.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "core/store/DatosGenerales.h"

using namespace Qt::StringLiterals;

namespace {

/// A folder whose name the toolkit cannot read is another one to it: the program would start there without
/// data.
void ExigirNombreLegible(const QString& carpeta) {
    if (carpeta.contains(QChar(QChar::ReplacementCharacter))) {
        throw FalloDeFichero(NumError::ErrorAccesoRuta, carpeta, TextoPropio(u"causa_nombre_ilegible"));
    }
}

/// What a file holds; nothing when it can't be read, as when it is not there.
std::optional<QByteArray> Contenido(const QString& ruta) {
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? std::optional(fichero.readAll()) : std::nullopt;
}

void Copiar(const QString& de, const QString& a) {
    QFile origen(de);
    if (!origen.open(QIODevice::ReadOnly)) {
        throw FalloDelSistema(NumError::ErrorAccesoRuta, de);
    }
    ReponerFichero(a, origen.readAll());
}

/// Names the damaged reference store to the user, in both languages since none is known yet, and sets it
/// aside.
void Apartar(const QString& ruta) {
    const auto texto = [](qint16 offset) { return TextoPropioDe(u"referencia_danada", offset); };
    Pantalla().MensajePlataforma(texto(kOffsetCastellano) + u"\n\n"_s + texto(kOffsetEuskera) + u"\n\n"_s +
                                     QDir::toNativeSeparators(ruta),
                                 true);
    for (int n = 1; !CambiarNombre(ruta, ruta + u".%1.rechazado"_s.arg(n)); ++n) {
    }
}

/// Version of the reference store that is in use; 0 where there is none, or where it was none and is set
/// aside.
qint32 VersionEnUso(const QString& ruta) {
    try {
        return VersionDeReferencia(ruta);
    } catch (const ErrorZT& error) {
        const auto numero = static_cast<NumError>(error.Numero());
        if (numero != NumError::AlmacenDanado && numero != NumError::AlmacenAjeno) {
            throw;
        }
    }
    Apartar(ruta);
    return 0;
}

void PonerReferencia(const QString& de, const QString& a) {
    if (!QFileInfo::exists(de)) {
        return;
    }
    const qint32 instalada = VersionDeReferencia(de);
    if (instalada > VersionEnUso(a)) {
        Copiar(de, a);
    }
}

/// The list of checksums stands for all topics, so that a start reads one file instead of a hundred. It is
/// copied last: a copy cut short is made again.
void PonerAyuda(const QString& de, const QString& a) {
    const QString lista = de + u"/sha256.txt"_s;
    const QString listaPuesta = a + u"/sha256.txt"_s;
    const auto sumas = Contenido(lista);
    if (sumas && sumas == Contenido(listaPuesta)) {
        return;
    }
    QDirIterator ficheros(de, QDir::Files, QDirIterator::Subdirectories);
    while (ficheros.hasNext()) {
        const QString fichero = ficheros.next();
        const QString destino = a + fichero.mid(de.size());
        if (fichero != lista && Contenido(destino) != Contenido(fichero)) {
            CrearCarpeta(QFileInfo(destino).path(), NumError::ErrorAccesoRuta);
            Copiar(fichero, destino);
        }
    }
    if (sumas) {
        Copiar(lista, listaPuesta);
    }
}

void Amueblar(const QString& raiz, const QString& origen) {
    for (const QString& nombre : {u"/Tablas"_s, u"/backups"_s}) {
        CrearCarpeta(raiz + nombre, NumError::ErrorAccesoRuta, Lectores::ElUsuario);
        // One of a former version is everybody's.
        CerrarCarpeta(raiz + nombre);
    }
    CrearCarpeta(raiz + u"/Ayuda"_s, NumError::ErrorAccesoRuta);
    PonerReferencia(origen + u"/Tablas/ZELTLEC.mdb"_s, raiz + u"/Tablas/ZELTLEC.mdb"_s);
    PonerAyuda(origen + u"/Ayuda"_s, raiz + u"/Ayuda"_s);
}

/// What killed copies of the program have left where it writes by itself.
void QuitarRestos(const QString& carpeta, const QString& raiz) {
    for (const QString& lugar :
         {carpeta, carpeta + u"/backups"_s, raiz + u"/Tablas"_s, raiz + u"/backups/auto"_s}) {
        QuitarProvisionales(lugar);
    }
}

}  // namespace

QString RaizDeDatos(const QString& carpeta) {
    const auto p = carpeta.indexOf(u"cliente"_s, 0, Qt::CaseInsensitive) + 1;
    if (p == 0) {
        return carpeta;
    }
    if (p < 2) {
        throw ErrorZT(NumError::LlamadaNoValida);
    }
    return carpeta.left(p - 2);
}

void PrepararCarpetaPrograma(const QString& carpetaEjecutable, const QString& carpetaUsuario,
                             const QString& origen) {
    EntornoZT& e = Entorno();
    const QString propia = QDir::toNativeSeparators(carpetaEjecutable);
    ExigirNombreLegible(propia);
    const QString raiz = RaizDeDatos(propia);
    e.CarpetaDeUsuario = !QFileInfo(raiz + QDir::separator() + u"Tablas"_s).isDir();
    e.CarpetaPrograma = e.CarpetaDeUsuario ? QDir::toNativeSeparators(carpetaUsuario) : propia;
    if (e.CarpetaDeUsuario) {
        ExigirNombreLegible(carpetaUsuario);
        Amueblar(carpetaUsuario, origen);
    } else {
        PonerReferencia(origen + u"/Tablas/ZELTLEC.mdb"_s, raiz + u"/Tablas/ZELTLEC.mdb"_s);
    }
    QuitarRestos(e.CarpetaPrograma, e.CarpetaDeUsuario ? carpetaUsuario : raiz);
}

void PrepararCarpetaPrograma() {
    const QString ejecutable = QCoreApplication::applicationDirPath();
    const QString usuario =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ZELT"_s;
    PrepararCarpetaPrograma(ejecutable, usuario, QDir::cleanPath(ejecutable + u"/../share/zelt"_s));
}
