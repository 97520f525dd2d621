#pragma once

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <memory>
#include <variant>
#include <vector>

#include "core/printing/DispositivoImpresion.h"
#include "forms/printing/TextoCompuesto.h"

class QPagedPaintDevice;

// A document as it was drawn. It is kept whole before it goes anywhere, so that one that is given up reaches
// no printer. Lengths are millimetres from the top left corner of the paper.

struct MarcaDeTexto {
    std::shared_ptr<const TextoCompuesto> texto;
    QPointF lugar;
};
struct MarcaDeLinea {
    QLineF linea;
};
struct MarcaDeRectangulo {
    QRectF rectangulo;
};
struct MarcaDeImagen {
    ImagenDeImpreso imagen = ImagenDeImpreso::Logo;
    QPointF lugar;
};

using Marca = std::variant<MarcaDeTexto, MarcaDeLinea, MarcaDeRectangulo, MarcaDeImagen>;
using PaginaDibujada = std::vector<Marca>;

struct DocumentoDibujado {
    QString nombre;
    QString autor;
    std::vector<PaginaDibujada> paginas;
};

/// Puts all pages of a document on paper, in their true size from its corner, whatever its resolution. False
/// when the device gives up; what a printer has taken by then is given up too.
[[nodiscard]] bool PintarDocumento(const DocumentoDibujado& documento, QPagedPaintDevice& papel);
