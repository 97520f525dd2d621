#include "forms/runtime/Formulario.h"

#include <QAbstractButton>
#include <QCloseEvent>

#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"

using namespace Qt::StringLiterals;

void Formulario::ConTrampa(QStringView procedimiento, const std::function<void()>& cuerpo) const noexcept {
    EventoConTrampa(Nombre(), u"%1.%2"_s.arg(Modulo(), procedimiento), cuerpo);
}

FormularioTrabajo::FormularioTrabajo(QStringView nombre) : Formulario(nombre) { setObjectName(Nombre()); }

FormularioModal::FormularioModal(QStringView nombre) : Formulario(nombre) {
    setObjectName(Nombre());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void FormularioModal::reject() {
    QAbstractButton* boton = BotonDeEscape();
    if (boton != nullptr && boton->isVisible() && boton->isEnabled()) {
        boton->setFocus(Qt::ShortcutFocusReason);
        boton->click();
    }
}

void FormularioModal::closeEvent(QCloseEvent* evento) {
    evento->accept();
    Evento([this] { Formularios::Descargar(Nombre()); });
}
