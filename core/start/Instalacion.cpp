#include "core/start/Instalacion.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <optional>

#include "core/base/ErrorZT.h"
#include "core/run/Entorno.h"
#include "core/store/DatosGenerales.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void NoSePuede(const QString& ruta, const QString& causa) {
    throw ErrorZT(NumError::ErrorAccesoRuta, TextoDeError(NumError::ErrorAccesoRuta) + u": "_s +
                                                 QDir::toNativeSeparators(ruta) + u" ("_s + causa + u')');
}

void CrearCarpeta(const QString& ruta) {
    if (!QDir().mkpath(ruta)) {
        NoSePuede(ruta, u"no se puede crear la carpeta"_s);
    }
}

/// What a file holds; nothing when it can't be read, as when it is not there.
std::optional<QByteArray> Contenido(const QString& ruta) {
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? std::optional(fichero.readAll()) : std::nullopt;
}

/// Copies through a temporary file, so that a copy cut short never stands under the final name.
void Copiar(const QString& de, const QString& a) {
    QFile origen(de);
    if (!origen.open(QIODevice::ReadOnly)) {
        NoSePuede(de, origen.errorString());
    }
    QSaveFile destino(a);
    if (!destino.open(QIODevice::WriteOnly) || destino.write(origen.readAll()) < 0 || !destino.commit()) {
        NoSePuede(a, destino.errorString());
    }
}

void PonerReferencia(const QString& de, const QString& a) {
    if (!QFileInfo::exists(de)) {
        return;
    }
    if (VersionDeReferencia(de) > VersionDeReferencia(a)) {
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
            CrearCarpeta(QFileInfo(destino).path());
            Copiar(fichero, destino);
        }
    }
    if (sumas) {
        Copiar(lista, listaPuesta);
    }
}

void Amueblar(const QString& raiz, const QString& origen) {
    for (const QString& nombre : {u"/Tablas"_s, u"/Ayuda"_s, u"/backups"_s}) {
        CrearCarpeta(raiz + nombre);
    }
    PonerReferencia(origen + u"/Tablas/ZELTLEC.mdb"_s, raiz + u"/Tablas/ZELTLEC.mdb"_s);
    PonerAyuda(origen + u"/Ayuda"_s, raiz + u"/Ayuda"_s);
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
    e.CarpetaDeUsuario = !QFileInfo(RaizDeDatos(propia) + QDir::separator() + u"Tablas"_s).isDir();
    e.CarpetaPrograma = e.CarpetaDeUsuario ? QDir::toNativeSeparators(carpetaUsuario) : propia;
    if (e.CarpetaDeUsuario) {
        Amueblar(carpetaUsuario, origen);
    } else {
        PonerReferencia(origen + u"/Tablas/ZELTLEC.mdb"_s, RaizDeDatos(propia) + u"/Tablas/ZELTLEC.mdb"_s);
    }
}

void PrepararCarpetaPrograma() {
    const QString ejecutable = QCoreApplication::applicationDirPath();
    const QString usuario =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ZELT"_s;
    PrepararCarpetaPrograma(ejecutable, usuario, QDir::cleanPath(ejecutable + u"/../share/zelt"_s));
}
