#include "core/copies/NombreDeCopia.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include "core/base/CarpetaNueva.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/store/AperturaAlmacen.h"
#include "core/store/FalloAlmacen.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kExtension = u".mdb";
/// The longest name that file systems take, in bytes, less what the sum and its provisional file add to it.
constexpr qsizetype kLargoDeNombre = 255 - QStringView(u".sha256.XXXXXX.parcial").size();

QString Ruta(const QString& carpeta, const QString& nombre) {
    return QDir::cleanPath(QDir::fromNativeSeparators(carpeta) + u'/' + nombre);
}

QString ConExtension(const QString& nombre) {
    return nombre.endsWith(kExtension, Qt::CaseInsensitive) ? nombre : nombre + kExtension.toString();
}

/// Whether every system takes the name: no separators and signs of its commands, no control characters, and
/// none of the names that Windows keeps for devices.
bool EsNombreDeFichero(const QString& nombre) {
    static const QRegularExpression ajeno(u"[<>:\"/\\\\|?*\\x00-\\x1F]"_s);
    static const QRegularExpression dispositivo(u"^(CON|PRN|AUX|NUL|COM[0-9]|LPT[0-9])(\\.|$)"_s,
                                                QRegularExpression::CaseInsensitiveOption);
    return !nombre.isEmpty() && !nombre.contains(ajeno) && !nombre.contains(dispositivo);
}

void ExigirCarpeta(const QString& carpeta, const QString& sugerida) {
    const QFileInfo lugar(QDir::fromNativeSeparators(carpeta));
    const bool propia = lugar.absoluteFilePath() == QFileInfo(QDir::cleanPath(sugerida)).absoluteFilePath();
    if (!lugar.isAbsolute() || (!lugar.isDir() && !propia)) {
        throw FalloDeAlmacen(NumError::NoExisteRuta, carpeta);
    }
    CrearCarpeta(lugar.filePath(), NumError::NoExisteRuta, Lectores::ElUsuario);
}

}  // namespace

QString DestinoDeCopia(const QString& carpeta, const QString& nombre) {
    return Ruta(carpeta, ConExtension(nombre.trimmed()));
}

void ExigirDestino(const QString& carpeta, const QString& nombre, const QString& sugerida,
                   std::initializer_list<QString> vivos) {
    if (!EsNombreDeFichero(nombre.trimmed())) {
        throw ErrorDeCopia(MotivoDeCopia::NombreNoValido, nombre);
    }
    if (QFile::encodeName(ConExtension(nombre.trimmed())).size() > kLargoDeNombre) {
        throw ErrorDeCopia(MotivoDeCopia::NombreLargo, nombre);
    }
    ExigirCarpeta(carpeta, sugerida);
    const QString ruta = DestinoDeCopia(carpeta, nombre);
    ExigirOtroFichero(ruta, vivos);
    if (ExaminarFichero(ruta).clase != ClaseFichero::NoExiste) {
        (void)ExigirFicheroRegular(ruta);
    }
}

QString OrigenDeCopia(const QString& carpeta, const QString& nombre) {
    const QString ruta = Ruta(carpeta, nombre.trimmed());
    const QString completa = ConExtension(ruta);
    const bool falta = ExaminarFichero(ruta).clase == ClaseFichero::NoExiste;
    return falta && ExaminarFichero(completa).clase == ClaseFichero::Regular ? completa : ruta;
}

void ExigirOtroFichero(const QString& ruta, std::initializer_list<QString> vivos) {
    const EstadoFichero estado = ExaminarFichero(ruta);
    for (const QString& vivo : vivos) {
        const bool elMismo =
            estado.clase == ClaseFichero::Regular && estado.MismoFichero(ExaminarFichero(vivo));
        if (elMismo || QFileInfo(ruta) == QFileInfo(vivo)) {
            throw ErrorDeCopia(MotivoDeCopia::EsFicheroDelPrograma, ruta);
        }
    }
}

QString FiltroDelDialogo(const QString& filtro) {
    static const QRegularExpression entreParentesis(u"\\s*\\([^)]*\\)\\s*$"_s);
    const QStringList partes = filtro.split(u'|');
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QString patrones = partes.at(i + 1);
        filtros +=
            QString(partes.at(i)).remove(entreParentesis) + u" ("_s + patrones.replace(u';', u' ') + u')';
    }
    return filtros.join(u";;"_s);
}
