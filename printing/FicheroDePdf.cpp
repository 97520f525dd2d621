#include "printing/FicheroDePdf.h"

#include "data/FicheroNuevo.h"
#include "printing/AutorDePdf.h"
#include "printing/NombreDeFichero.h"

using namespace Qt::StringLiterals;

QString GuardarPdf(const QString& carpeta, const QString& documento, const QString& autor,
                   const QByteArray& pdf) {
    return GuardarFicheroNuevo(carpeta, NombreDeFichero(documento), u".pdf"_s, ConAutor(pdf, autor));
}

void AsegurarPdf(const QString& carpeta) { AsegurarFicherosNuevos(carpeta); }
