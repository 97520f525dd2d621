#include "forms/runtime/CamposDeFormulario.h"

#include <QLineEdit>

#include "core/base/Conversiones.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "forms/runtime/FamiliaDeControles.h"

using namespace Qt::StringLiterals;

namespace {

QString Normal(const QString& texto) { return texto.trimmed().toUpper(); }

void MarcarModificado(qint16 modo, const std::function<void()>& presentaBotones) {
    if (modo == kModoDeclarante) {
        oDeclarante().Modificado = true;
        presentaBotones();
    } else if (modo == kModoEstablecimiento) {
        oEstablecimientos().Modificado = true;
    }
}

void Abrir(QLineEdit& caja, bool abierta) {
    caja.setEnabled(abierta);
    PonerFondo(caja, abierta ? kFondoBlanco : kFondoAmarillo);
}

}  // namespace

void PonerFondo(QLineEdit& caja, QRgb fondo) {
    QPalette paleta = caja.palette();
    for (const auto grupo : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        paleta.setColor(grupo, QPalette::Base, QColor(fondo));
        paleta.setColor(grupo, QPalette::Text, Qt::black);
    }
    caja.setPalette(paleta);
}

void CompararCampos(qint16 modo, const QWidget& formulario, const std::function<void()>& presentaBotones) {
    Valor anterior;
    for (const QLineEdit* caja : formulario.findChildren<QLineEdit*>()) {
        const bool esTexto = caja->objectName().startsWith(u"txt");
        if (esTexto) {
            const QString campo = caja->property("Tag").toString().toUpper();
            anterior = AsignarCampo(modo, campo, caja->text().toUpper());
        }
        if ((esTexto || caja->objectName().startsWith(u"cn")) &&
            Normal(caja->text()) != Normal(anterior.aTexto())) {
            MarcarModificado(modo, presentaBotones);
        }
    }
}

void ActivarMunicipio(const QWidget& formulario) {
    auto& codigo = ElControl<QLineEdit>(formulario, u"txtMuni"_s);
    auto& nombre = ElControl<QLineEdit>(formulario, u"txtNombreMunicipio"_s);
    const QString provincia = ElControl<QLineEdit>(formulario, u"txtProvin"_s).text();
    const bool propia = LeerNumero(provincia) == cZTDeclarante::kProvinciaPropia;
    Abrir(nombre, !propia);
    Abrir(codigo, propia);
    ElControl<QWidget>(formulario, u"picMuni"_s).setEnabled(propia);
    if (!propia) {
        codigo.clear();
        oDeclarante().CMuni = 0;
    } else if (codigo.text().isEmpty()) {
        nombre.clear();
    }
}
