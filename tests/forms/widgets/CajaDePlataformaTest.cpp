#include "forms/widgets/CajaDePlataforma.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>

#include "forms/messages/PantallaQt.h"
#include "forms/runtime/DialogosDePlataforma.h"
#include "forms/widgets/Imagenes.h"
#include "tests/support/AlDialogo.h"

using namespace Qt::StringLiterals;

namespace {

/// What makes the look of a box, but for its texts and its icon.
struct Aspecto {
    QMargins margenes;
    int anchoDelTexto = 0;
    bool centrado = false;
    bool conIcono = true;

    bool operator==(const Aspecto&) const = default;
};

Aspecto AspectoDe(const QMessageBox& caja) {
    return {caja.layout()->contentsMargins(), caja.findChild<QLabel*>(u"qt_msgbox_label"_s)->minimumWidth(),
            caja.findChild<QDialogButtonBox*>()->centerButtons(),
            !caja.button(QMessageBox::Ok)->icon().isNull()};
}

}  // namespace

TEST(CajaDePlataformaTest, TheBoxOfARefusedDateLooksLikeTheOtherBoxes) {
    Aspecto aspecto;
    Aspecto otro;
    const auto mirar = [](Aspecto& visto) {
        return [&visto](QMessageBox& caja) {
            visto = AspectoDe(caja);
            EXPECT_EQ(caja.objectName(), u"MensajePlataforma"_s);
            caja.accept();
        };
    };
    {
        const AlDialogo<QMessageBox> espera(mirar(otro));
        PantallaQt().MensajePlataformaConCausa(u"No"_s, u"Porque no"_s);
    }
    {
        QWidget ventana;
        const AlDialogo<QMessageBox> espera(mirar(aspecto));
        MensajeDeExclamacion(ventana, u"No"_s, u"Fecha"_s);
    }
    EXPECT_EQ(aspecto, otro);
    EXPECT_EQ(aspecto, (Aspecto{QMargins(16, 16, 16, 16), 380, true, false}));
}

TEST(CajaDePlataformaTest, ItsExclamationIsThatOfTheProgramsOwnBoxes) {
    const CajaDePlataforma caja(QMessageBox::Warning, u"Fecha"_s, u"No"_s, nullptr);
    EXPECT_EQ(caja.icon(), QMessageBox::Warning);
    EXPECT_EQ(caja.findChild<QLabel*>(u"qt_msgboxex_icon_label"_s)->pixmap(Qt::ReturnByValue).toImage(),
              ilsMDI32(Imagen32::Aviso).pixmap(QSize(32, 32)).toImage());
}
