#include "shell/Formulario.h"

#include <QAbstractButton>
#include <QCloseEvent>

#include "shell/Eventos.h"
#include "shell/Formularios.h"

FormularioTrabajo::FormularioTrabajo(const QString& nombre) : Formulario(nombre) { setObjectName(nombre); }

FormularioModal::FormularioModal(const QString& nombre) : Formulario(nombre) {
    setObjectName(nombre);
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
