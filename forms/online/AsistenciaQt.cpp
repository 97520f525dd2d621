#include "forms/online/AsistenciaQt.h"

#include "core/online/AsistenciaOnline.h"
#include "forms/online/DialogoInfoOnline.h"
#include "forms/online/Manejador.h"

void AsistenciaQt::AbrirDireccion(const QString& direccion) { AbrirEnNavegador(direccion); }

void AsistenciaQt::MostrarInfo(qint16 idioma, const QString& direccion, qint32 ventana) {
    DialogoInfoOnline dialogo(idioma, direccion, VentanaDe(ventana));
    dialogo.exec();
}
