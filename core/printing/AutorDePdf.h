#pragma once

#include <QByteArray>
#include <QString>

/// The PDF with its author told in the document information, beside what stands there. What there was stays
/// as it is, byte for byte: the change is an incremental update at the end of the file.
///
/// Takes files of one revision with a classic table of cross references, as the toolkit writes them; any
/// other, and any for an empty author, comes back as it is.
QByteArray ConAutor(const QByteArray& pdf, const QString& autor);
