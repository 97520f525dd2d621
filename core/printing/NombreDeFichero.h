#pragma once

#include <QString>

/// A file name, without extension, that any system takes, out of the name of a document: characters that
/// some system gives a meaning become "-", and it is cut to a length that leaves room for a number and an
/// extension. Never empty, hidden or the name of a device.
QString NombreDeFichero(const QString& documento);
