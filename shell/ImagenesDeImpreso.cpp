#include "shell/ImagenesDeImpreso.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Letters are set in pixels this many times smaller, so that rounding to whole ones does not show in print.
constexpr int kFinura = 32;
/// Part of the length of the picture that a line of text may take.
constexpr double kLargoUtil = 0.97;

QLabel& Anadir(QWidget& contenedor, const QString& nombre) {
    auto* etiqueta = new QLabel(&contenedor);
    etiqueta->setObjectName(nombre);
    return *etiqueta;
}

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

void PintarTextoVertical(QPainter& pintor, const QStringList& lineas, QSize tamano) {
    pintor.save();
    pintor.translate(0, tamano.height());
    pintor.rotate(-90);
    pintor.scale(1.0 / kFinura, 1.0 / kFinura);
    pintor.setFont(LetraPara(lineas, tamano));
    pintor.drawText(QRect(QPoint(0, 0), tamano.transposed() * kFinura), Qt::AlignCenter, lineas.join(u'\n'));
    pintor.restore();
}

QPixmap ImagenEnBlanco(QSize tamano) {
    QPixmap imagen(tamano);
    imagen.fill(Qt::white);
    return imagen;
}

QPixmap ComoMapa(ImagenDeImpreso imagen) {
    QPixmap mapa = ImagenEnBlanco(TamanoDeImagen(imagen));
    QPainter pintor(&mapa);
    pintor.setRenderHint(QPainter::Antialiasing);
    PintarImagen(pintor, imagen);
    return mapa;
}

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

QPixmap TextoVertical(const QStringList& lineas, QSize tamano) {
    QPixmap imagen = ImagenEnBlanco(tamano);
    QPainter pintor(&imagen);
    PintarTextoVertical(pintor, lineas, tamano);
    return imagen;
}

void CrearImagenesDeImpreso(QWidget& marco) {
    auto* contenedor = new QWidget(&marco);
    contenedor->setObjectName(u"Picture1"_s);
    contenedor->hide();
    QLabel& logo = Anadir(*contenedor, u"Logo"_s);
    QLabel& declarante = Anadir(*contenedor, u"picDeclarante"_s);
    QLabel& justificante = Anadir(*contenedor, u"picJustificante"_s);
    for (const QString& nombre :
         {u"picLiquidacion"_s, u"picInsLugar"_s, u"picIdeMaq"_s, u"picTalonDeCargo"_s}) {
        Anadir(*contenedor, nombre);
    }
    // Nothing is printed before control is back in the event loop: the start does not wait for them.
    QTimer::singleShot(0, contenedor, [&logo, &declarante, &justificante] {
        logo.setPixmap(ComoMapa(ImagenDeImpreso::Logo));
        declarante.setPixmap(ComoMapa(ImagenDeImpreso::Declarante));
        justificante.setPixmap(ComoMapa(ImagenDeImpreso::Justificante));
    });
}
