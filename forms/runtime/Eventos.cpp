#include "forms/runtime/Eventos.h"

#include <QCoreApplication>
#include <QFocusEvent>

#include "core/base/Pantalla.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "forms/runtime/Formularios.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<DatosSinGuardar> LoEscrito() {
    std::vector<DatosSinGuardar> datos;
    for (const QString& nombre : Formularios::Cargados()) {
        const std::vector<DatosSinGuardar> suyos = Formularios::Obtener(nombre).PorGuardar();
        datos.insert(datos.end(), suyos.begin(), suyos.end());
    }
    return datos;
}

/// The failure that ends the program is the one that is told: what fails here is not.
void GuardarLoEscrito() noexcept {
    try {
        if (const std::vector<DatosSinGuardar> datos = LoEscrito(); !datos.empty()) {
            GuardarRecuperacion(datos);
        }
    } catch (const std::exception& otro) {
        qCritical("%s", otro.what());
    }
}

}  // namespace

void ErrorSinTrampa(const ErrorZT& error) noexcept {
    try {
        if (Entorno().Atender(error)) {
            return;
        }
        GuardarLoEscrito();
        Pantalla().PonerPuntero(Puntero::Normal);
        Pantalla().MensajePlataforma(MensajeDePlataforma(error), true);
    } catch (const std::exception& otro) {
        qCritical("%s", error.what());
        qCritical("%s", otro.what());
    }
    Entorno().Terminar(1);
}

void ErrorSinTrampa(const std::exception& error) noexcept { ErrorSinTrampa(ErrorInterno(error)); }

void ErrorConTrampa(const QString& formulario, const QString& evento, const ErrorZT& error) {
    if (!Entorno().Atender(error)) {
        ShowError(formulario, evento, error.Descripcion());
    }
}

EscuchaDeFoco::EscuchaDeFoco(Formulario& formulario, QWidget* control, Cuerpo recibe, Cuerpo pierde)
    : QObject(control), m_formulario(formulario), m_recibe(std::move(recibe)), m_pierde(std::move(pierde)) {
    control->installEventFilter(this);
}

bool EscuchaDeFoco::eventFilter(QObject* objeto, QEvent* evento) {
    const bool recibe = evento->type() == QEvent::FocusIn;
    const bool pierde = evento->type() == QEvent::FocusOut;
    if (m_entregando || (!recibe && !pierde) || m_formulario.Descargado() ||
        !DentroDelPrograma(*static_cast<QFocusEvent*>(evento))) {
        return QObject::eventFilter(objeto, evento);
    }
    // The control takes the event first; a rule that selects its text would else be undone.
    m_entregando = true;
    QCoreApplication::sendEvent(objeto, evento);
    m_entregando = false;
    const Cuerpo& cuerpo = recibe ? m_recibe : m_pierde;
    if (cuerpo && !m_formulario.Descargado()) {
        Evento(cuerpo);
    }
    return true;
}

void AlRecibirFoco(Formulario& formulario, QWidget* control, std::function<void()> cuerpo) {
    new EscuchaDeFoco(formulario, control, std::move(cuerpo), {});
}

void AlPerderFoco(Formulario& formulario, QWidget* control, std::function<void()> cuerpo) {
    new EscuchaDeFoco(formulario, control, {}, std::move(cuerpo));
}
