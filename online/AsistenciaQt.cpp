#include "online/AsistenciaQt.h"

#include "online/AsistenciaOnline.h"
#include "online/DialogoInfoOnline.h"
#include "online/Manejador.h"

void AsistenciaQt::AbrirDireccion(const QString& direccion) { AbrirEnNavegador(direccion); }

void AsistenciaQt::MostrarInfo(qint16 idioma, const QString& direccion, qint32 ventana) {
    DialogoInfoOnline dialogo(idioma, direccion, VentanaDe(ventana));
    dialogo.exec();
}
