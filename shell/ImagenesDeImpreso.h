#pragma once

#include <QPixmap>
#include <QStringList>

class QWidget;

/// Text set vertically, reading upward, one line beside the other, in a picture of that size (pixels of 1/96
/// inch).
QPixmap TextoVertical(const QStringList& lineas, QSize tamano);

/// Makes the hidden container `Picture1` of the main window with the pictures of the printed forms, each a
/// label of its name. Those that no form draws have no picture.
void CrearImagenesDeImpreso(QWidget& marco);
