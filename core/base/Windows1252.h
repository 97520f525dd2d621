#pragma once

#include <QByteArray>
#include <QString>

/// To the 8-bit code page of the exchange and log files. A character outside it raises 20001 and is named
/// in the description; nothing is ever replaced silently.
QByteArray AWindows1252(QStringView texto);

/// From the 8-bit code page. The five unassigned bytes (81, 8D, 8F, 90, 9D) give the control characters of
/// the same number, as the platform does.
QString DeWindows1252(QByteArrayView bytes);
