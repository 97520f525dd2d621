#include "forms/runtime/ParDeBotones.h"

#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/widgets/BotonImagen.h"

ParDeBotones::ParDeBotones(Formulario& formulario, QAbstractButton& boton, BotonImagen& imagen,
                           const Aspecto& aspecto, const std::function<void()>& orden)
    : QObject(&formulario.Ventana()), m_boton(boton), m_imagen(imagen), m_aspecto(aspecto) {
    Tomar(aspecto);
    for (QAbstractButton* emisor : {&m_boton, static_cast<QAbstractButton*>(&m_imagen)}) {
        Conectar(formulario, emisor, &QAbstractButton::clicked, orden);
    }
}

void ParDeBotones::Tomar(const Aspecto& aspecto) {
    m_aspecto = aspecto;
    m_imagen.setIcon(ilsMDI16(aspecto.imagen));
}

void ParDeBotones::PonerTexto() { PonerTexto(Texto(m_aspecto.texto)); }

void ParDeBotones::PonerTexto(const QString& texto) {
    m_boton.setText(texto);
    const QString nombre = m_boton.text().remove(u'&').trimmed();
    m_imagen.setAccessibleName(nombre);
    m_imagen.setToolTip(nombre);
}

void ParDeBotones::Habilitar(bool habilitado) {
    HabilitarBoton(habilitado);
    m_imagen.setEnabled(habilitado);
}

void ParDeBotones::HabilitarBoton(bool habilitado) {
    m_boton.setEnabled(habilitado);
    m_imagen.setIcon(ilsMDI16(habilitado ? m_aspecto.imagen : Gris(m_aspecto.imagen)));
}

void ParDeBotones::Mostrar(bool visible) {
    m_boton.setVisible(visible);
    m_imagen.setVisible(visible);
}
