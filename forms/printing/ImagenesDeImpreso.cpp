#include "forms/printing/ImagenesDeImpreso.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>
#include <QWidget>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Letters are set in pixels this many times smaller, so that rounding to whole ones does not show in print.
constexpr int kFinura = 32;
/// Part of the length of the picture that a line of text may take.
constexpr double kLargoUtil = 0.97;

QStringList LineasDe(ImagenDeImpreso imagen) {
    return imagen == ImagenDeImpreso::Declarante
               ? QStringList{u"Identifikazioa"_s, u"Identificación"_s}
               : QStringList{u"Ordainagiria"_s, u"Justificante de ingreso"_s};
}

QFont LetraPara(const QStringList& lineas, QSize tamano) {
    QFont letra(u"Arial"_s);
    letra.setHintingPreference(QFont::PreferNoHinting);
    letra.setPixelSize(tamano.width() * kFinura / (static_cast<int>(lineas.size()) + 1));
    const QFontMetricsF medida(letra);
    double largo = 0;
    for (const QString& linea : lineas) {
        largo = std::max(largo, medida.horizontalAdvance(linea));
    }
    const double util = tamano.height() * kFinura * kLargoUtil;
    if (largo > util) {
        letra.setPixelSize(static_cast<int>(letra.pixelSize() * util / largo));
    }
    return letra;
}

/// Text set vertically, reading upward, one line beside the other, in a picture of that size: as large as the
/// width allows, but no line longer than the picture.
void PintarTextoVertical(QPainter& pintor, const QStringList& lineas, QSize tamano) {
    pintor.save();
    pintor.translate(0, tamano.height());
    pintor.rotate(-90);
    pintor.scale(1.0 / kFinura, 1.0 / kFinura);
    pintor.setFont(LetraPara(lineas, tamano));
    pintor.drawText(QRect(QPoint(0, 0), tamano.transposed() * kFinura), Qt::AlignCenter, lineas.join(u'\n'));
    pintor.restore();
}

/// A picture as a control. It costs nothing until it is painted.
class ControlDeImagen : public QWidget {
  public:
    ControlDeImagen(ImagenDeImpreso imagen, QWidget& contenedor) : QWidget(&contenedor), m_imagen(imagen) {
        setFixedSize(TamanoDeImagen(imagen));
    }

  protected:
    void paintEvent(QPaintEvent* /*evento*/) override {
        QPainter pintor(this);
        pintor.fillRect(rect(), Qt::white);
        pintor.setRenderHint(QPainter::Antialiasing);
        PintarImagen(pintor, m_imagen);
    }

  private:
    ImagenDeImpreso m_imagen;
};

}  // namespace

QSize TamanoDeImagen(ImagenDeImpreso imagen) {
    switch (imagen) {
        case ImagenDeImpreso::Declarante:
            return {30, 82};
        case ImagenDeImpreso::Justificante:
            return {49, 142};
        case ImagenDeImpreso::Logo:
            break;
    }
    return {50, 63};
}

void PintarImagen(QPainter& pintor, ImagenDeImpreso imagen) {
    const QSize tamano = TamanoDeImagen(imagen);
    if (imagen == ImagenDeImpreso::Logo) {
        static QSvgRenderer emblema(u":/imagenes/imprimir/Logo.svg"_s);
        emblema.render(&pintor, QRectF(QPointF(), tamano));
    } else {
        PintarTextoVertical(pintor, LineasDe(imagen), tamano);
    }
}

void CrearImagenesDeImpreso(QWidget& marco) {
    auto* contenedor = new QWidget(&marco);
    contenedor->setObjectName(u"Picture1"_s);
    contenedor->hide();
    const auto anadir = [contenedor](ImagenDeImpreso imagen, const QString& nombre) {
        (new ControlDeImagen(imagen, *contenedor))->setObjectName(nombre);
    };
    anadir(ImagenDeImpreso::Logo, u"Logo"_s);
    anadir(ImagenDeImpreso::Declarante, u"picDeclarante"_s);
    anadir(ImagenDeImpreso::Justificante, u"picJustificante"_s);
    for (const QString& nombre :
         {u"picLiquidacion"_s, u"picInsLugar"_s, u"picIdeMaq"_s, u"picTalonDeCargo"_s}) {
        (new QLabel(contenedor))->setObjectName(nombre);
    }
}
