#pragma once

#include <QByteArrayView>
#include <QString>

// Files of declarants that somebody saved anew as UTF-8. Read as the 8-bit code page, every accented letter
// becomes two and moves the fields behind it.

/// The bytes of the mark that some programs put in front of UTF-8.
inline constexpr char kMarcaUtf8[] = "\xEF\xBB\xBF";

/// Most bytes that a character takes there.
inline constexpr int kBytesPorCaracter = 4;

/// Whether the file starts with the mark, or has bytes above 127 and all of them are valid UTF-8 sequences.
/// False for what is not a regular file or cannot be read.
[[nodiscard]] bool PareceUtf8(const QString& ruta);

/// The text of a line; `primera` loses the mark.
[[nodiscard]] QString DeUtf8(QByteArrayView bytes, bool primera);
