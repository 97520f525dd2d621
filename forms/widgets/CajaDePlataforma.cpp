#include "forms/widgets/CajaDePlataforma.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLayout>

#include "forms/widgets/Imagenes.h"

using namespace Qt::StringLiterals;

namespace {

// Measures of the program's own box, in pixels.
constexpr int kMargen = 16;
constexpr int kLadoImagen = 32;
constexpr int kAnchoDelTexto = 380;

}  // namespace

CajaDePlataforma::CajaDePlataforma(Icon icono, const QString& titulo, const QString& texto, QWidget* sobre)
    : QMessageBox(icono, titulo, QString(), Ok, sobre) {
    setObjectName(u"MensajePlataforma"_s);
    setTextFormat(Qt::PlainText);
    setText(texto);
    button(Ok)->setIcon(QIcon());
    // Parts of the toolkit's box, by the names that it gives them; the system's own has none.
    if (auto* etiqueta = findChild<QLabel*>(u"qt_msgbox_label"_s)) {
        etiqueta->setMinimumWidth(kAnchoDelTexto);
    }
    if (auto* botones = findChild<QDialogButtonBox*>(u"qt_msgbox_buttonbox"_s)) {
        botones->setCenterButtons(true);
    }
    auto* imagen = findChild<QLabel*>(u"qt_msgboxex_icon_label"_s);
    if (imagen != nullptr && icono == Warning) {
        PonerDibujo(*imagen, ilsMDI32(Imagen32::Aviso), kLadoImagen);
    }
}

/// Until then the toolkit may lay the box out anew.
void CajaDePlataforma::showEvent(QShowEvent* evento) {
    layout()->setContentsMargins(kMargen, kMargen, kMargen, kMargen);
    QMessageBox::showEvent(evento);
}
