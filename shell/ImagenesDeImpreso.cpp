#include "shell/ImagenesDeImpreso.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamanoLogo(50, 63);
constexpr QSize kTamanoDeclarante(30, 82);
constexpr QSize kTamanoJustificante(49, 142);

void Anadir(QWidget& contenedor, const QString& nombre, const QPixmap& imagen) {
    auto* etiqueta = new QLabel(&contenedor);
    etiqueta->setObjectName(nombre);
    etiqueta->setPixmap(imagen);
}

}  // namespace

QPixmap TextoVertical(const QStringList& lineas, QSize tamano) {
    QPixmap imagen(tamano);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    QFont letra(u"Arial"_s);
    letra.setPixelSize(tamano.width() / (static_cast<int>(lineas.size()) + 1));
    pintor.setFont(letra);
    pintor.translate(0, tamano.height());
    pintor.rotate(-90);
    pintor.drawText(QRect(QPoint(0, 0), tamano.transposed()), Qt::AlignCenter, lineas.join(u'\n'));
    return imagen;
}

void CrearImagenesDeImpreso(QWidget& marco) {
    auto* contenedor = new QWidget(&marco);
    contenedor->setObjectName(u"Picture1"_s);
    contenedor->hide();
    Anadir(*contenedor, u"Logo"_s, QIcon(u":/imagenes/imprimir/Logo.svg"_s).pixmap(kTamanoLogo));
    Anadir(*contenedor, u"picDeclarante"_s,
           TextoVertical({u"Identifikazioa"_s, u"Identificación"_s}, kTamanoDeclarante));
    Anadir(*contenedor, u"picJustificante"_s,
           TextoVertical({u"Ordainagiria"_s, u"Justificante de ingreso"_s}, kTamanoJustificante));
    for (const QString& nombre :
         {u"picLiquidacion"_s, u"picInsLugar"_s, u"picIdeMaq"_s, u"picTalonDeCargo"_s}) {
        Anadir(*contenedor, nombre, {});
    }
}
