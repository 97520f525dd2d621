#include "core/printing/FicheroDePdf.h"

#include <QRegularExpression>

#include "core/base/FicheroNuevo.h"
#include "core/printing/AutorDePdf.h"

using namespace Qt::StringLiterals;

namespace {

/// Bytes of a name in the encoding of the file system. Most systems take 255.
constexpr qsizetype kBytesMaximos = 200;

}  // namespace

QString NombreDeFichero(const QString& documento) {
    static const QRegularExpression sinPermiso(uR"([\x00-\x1f\x7f<>:"/\\|?*])"_s);
    static const QRegularExpression bordes(u"^[. ]+|[. ]+$"_s);
    static const QRegularExpression dispositivo(u"^(con|prn|aux|nul|com\\d|lpt\\d)(\\..*)?$"_s,
                                                QRegularExpression::CaseInsensitiveOption);
    QString nombre = documento.normalized(QString::NormalizationForm_C).replace(sinPermiso, u"-"_s);
    while (nombre.toUtf8().size() > kBytesMaximos) {
        nombre.chop(nombre.back().isLowSurrogate() ? 2 : 1);
    }
    nombre.remove(bordes);
    if (nombre.isEmpty() || dispositivo.match(nombre).hasMatch()) {
        nombre.prepend(u"documento "_s);
    }
    return nombre.trimmed();
}

QString GuardarPdf(const QString& carpeta, const QString& documento, const QString& autor,
                   const QByteArray& pdf) {
    return GuardarFicheroNuevo(carpeta, NombreDeFichero(documento), u".pdf"_s, ConAutor(pdf, autor));
}

QString ReponerPdf(const QString& ruta, const QString& autor, const QByteArray& pdf) {
    ReponerFichero(ruta, ConAutor(pdf, autor));
    return ruta;
}

void AsegurarPdf(const QString& carpeta) { AsegurarFicherosNuevos(carpeta); }
