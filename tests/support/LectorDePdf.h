#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>
#include <vector>

// Reads a PDF with the tools of poppler. Lengths in millimetres from the top left corner of the page.

/// A word and the box around it, as high as its font.
struct PalabraDePdf {
    QString texto;
    QRectF caja;
};

/// A stretch of text in one font; its box is that of its whole line.
struct TramoDePdf {
    QString texto;
    QRectF linea;
    double puntos = 0;
    bool negrita = false;
    QString fuente;
};

/// A page. `trazos` are the parts of all paths that are stroked in black, rectangles as their four sides.
struct PaginaDePdf {
    std::vector<PalabraDePdf> palabras;
    std::vector<TramoDePdf> tramos;
    std::vector<QLineF> trazos;
    /// Widths of the pen, one for each of those paths.
    std::vector<double> grosores;
};

/// All pages of the file.
std::vector<PaginaDePdf> LeerPdf(const QString& ruta);

/// An entry of what `pdfinfo` tells, such as "Title"; empty when there is none.
QString DatoDePdf(const QString& ruta, const QString& clave);

/// What `pdffonts` tells of the fonts, a line each, without its heading.
QStringList FuentesDePdf(const QString& ruta);

/// What `pdfimages` tells of the pictures made of dots, a line each.
QStringList ImagenesDePdf(const QString& ruta);
