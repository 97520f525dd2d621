#pragma once

#include <QByteArray>
#include <QString>

/// A file name, without extension, that any system takes, out of the name of a document: characters that
/// some system gives a meaning become "-", and it is cut to a length that leaves room for a number and an
/// extension. Never empty, hidden or the name of a device.
QString NombreDeFichero(const QString& documento);

/// Saves a PDF that has been made as a new file of the document's name, with its author told in it (see
/// `ConAutor`), and gives its path. Makes the folder, and raises, as `GuardarFicheroNuevo`.
QString GuardarPdf(const QString& carpeta, const QString& documento, const QString& autor,
                   const QByteArray& pdf);

/// Saves a PDF that has been made under that path, in the place of the file that is there, with its author
/// told in it, and gives the path. Raises as `ReponerFichero`.
QString ReponerPdf(const QString& ruta, const QString& autor, const QByteArray& pdf);

/// To be called after the last PDF of several: has their names on disk on return.
void AsegurarPdf(const QString& carpeta);
