#include "shell/ImagenesDeImpreso.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTamanoLogo(50, 63);
constexpr QSize kTamanoDeclarante(30, 82);
constexpr QSize kTamanoJustificante(49, 142);

QLabel& Anadir(QWidget& contenedor, const QString& nombre) {
    auto* etiqueta = new QLabel(&contenedor);
    etiqueta->setObjectName(nombre);
    return *etiqueta;
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
    QLabel& logo = Anadir(*contenedor, u"Logo"_s);
    QLabel& declarante = Anadir(*contenedor, u"picDeclarante"_s);
    QLabel& justificante = Anadir(*contenedor, u"picJustificante"_s);
    for (const QString& nombre :
         {u"picLiquidacion"_s, u"picInsLugar"_s, u"picIdeMaq"_s, u"picTalonDeCargo"_s}) {
        Anadir(*contenedor, nombre);
    }
    // Nothing is printed before control is back in the event loop: the start does not wait for them.
    QTimer::singleShot(0, contenedor, [&logo, &declarante, &justificante] {
        logo.setPixmap(QIcon(u":/imagenes/imprimir/Logo.svg"_s).pixmap(kTamanoLogo));
        declarante.setPixmap(TextoVertical({u"Identifikazioa"_s, u"Identificación"_s}, kTamanoDeclarante));
        justificante.setPixmap(
            TextoVertical({u"Ordainagiria"_s, u"Justificante de ingreso"_s}, kTamanoJustificante));
    });
}
