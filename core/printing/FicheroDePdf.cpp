#include "core/printing/FicheroDePdf.h"

#include "core/base/FicheroNuevo.h"
#include "core/printing/AutorDePdf.h"
#include "core/printing/NombreDeFichero.h"

using namespace Qt::StringLiterals;

QString GuardarPdf(const QString& carpeta, const QString& documento, const QString& autor,
                   const QByteArray& pdf) {
    return GuardarFicheroNuevo(carpeta, NombreDeFichero(documento), u".pdf"_s, ConAutor(pdf, autor));
}

void AsegurarPdf(const QString& carpeta) { AsegurarFicherosNuevos(carpeta); }
