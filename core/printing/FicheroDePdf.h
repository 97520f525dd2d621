#pragma once

#include <QByteArray>
#include <QString>

/// Saves a PDF that has been made as a new file of the document's name, with its author told in it (see
/// `ConAutor`), and gives its path. Makes the folder, and raises, as `GuardarFicheroNuevo`.
QString GuardarPdf(const QString& carpeta, const QString& documento, const QString& autor,
                   const QByteArray& pdf);

/// To be called after the last PDF of several: has their names on disk on return.
void AsegurarPdf(const QString& carpeta);
