#include "forms/printing/DocumentoDibujado.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>

#include "forms/printing/ImagenesDeImpreso.h"
#include "forms/printing/UnidadesDePapel.h"

namespace {

/// Width of all lines, in millimetres.
constexpr double kGrosor = 0.15;

class PintorDeMarcas {
  public:
    explicit PintorDeMarcas(QPainter& pintor) : m_pintor(pintor) {}

    void operator()(const MarcaDeTexto& marca) const { marca.texto->Pintar(m_pintor, marca.lugar); }

    void operator()(const MarcaDeLinea& marca) const {
        m_pintor.drawLine(marca.linea.p1() * kUnidadesPorMilimetro, marca.linea.p2() * kUnidadesPorMilimetro);
    }

    void operator()(const MarcaDeRectangulo& marca) const {
        m_pintor.drawRect(QRectF(marca.rectangulo.topLeft() * kUnidadesPorMilimetro,
                                 marca.rectangulo.size() * kUnidadesPorMilimetro));
    }

    void operator()(const MarcaDeImagen& marca) const {
        m_pintor.save();
        m_pintor.translate(marca.lugar * kUnidadesPorMilimetro);
        m_pintor.scale(kUnidadesPorPixel, kUnidadesPorPixel);
        PintarImagen(m_pintor, marca.imagen);
        m_pintor.restore();
    }

  private:
    QPainter& m_pintor;
};

void PrepararPintor(QPainter& pintor) {
    const QPaintDevice& papel = *pintor.device();
    pintor.scale(papel.logicalDpiX() / kUnidadesPorPulgada, papel.logicalDpiY() / kUnidadesPorPulgada);
    pintor.setPen(
        QPen(Qt::black, kGrosor * kUnidadesPorMilimetro, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
}

/// Has a printer's job, begun as it is, go nowhere. Ending the painter would hand it to the spooler.
void AbandonarTrabajo(QPagedPaintDevice& papel) {
    if (auto* impresora = dynamic_cast<QPrinter*>(&papel)) {
        impresora->abort();
    }
}

}  // namespace

bool PintarDocumento(const DocumentoDibujado& documento, QPagedPaintDevice& papel) {
    QPainter pintor;
    if (!pintor.begin(&papel)) {
        return false;
    }
    PrepararPintor(pintor);
    bool primera = true;
    for (const PaginaDibujada& pagina : documento.paginas) {
        if (!primera && !papel.newPage()) {
            AbandonarTrabajo(papel);
            return false;
        }
        primera = false;
        for (const Marca& marca : pagina) {
            std::visit(PintorDeMarcas(pintor), marca);
        }
    }
    return pintor.end();
}
