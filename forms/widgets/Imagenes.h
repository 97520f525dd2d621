#pragma once

#include <QIcon>
#include <QString>

class QLabel;

// The image lists of the main window. Numbers count from 1; a number outside a list raises 9.

/// The pictures of the small list: arrows, buttons and their grey twins.
enum class Imagen16 : int {
    Flecha = 1,
    FlechaConFoco = 2,
    Orden = 3,
    Calendario = 4,
    Imprimir = 5,
    Aceptar = 6,
    CancelarGris = 7,
    Cancelar = 8,
    Borrar = 9,
    Datos = 10,
    Nuevo = 11,
    Cerrar = 12,
    Anexos = 13,
    AceptarGris = 14,
    BorrarGris = 15,
    NuevoGris = 16,
    DatosGris = 17,
    ImprimirGris = 18,
    AnexosGris = 19,
    Guardar = 20,
    GuardarGris = 21,
};

/// The pictures of the large list.
enum class Imagen32 : int { Programa = 1, Aviso = 2, Pregunta = 3, Flecha = 4, FlechaConFoco = 5 };

QIcon ilsMDI16(int numero);
QIcon ilsMDI16(Imagen16 imagen);
QIcon ilsMDI32(int numero);
QIcon ilsMDI32(Imagen32 imagen);
/// The list of the tool bar, by key of the button.
QIcon ilsMDI16_(const QString& clave);
/// The icon of all windows, which the application object hands to them.
QIcon IconoDelPrograma();

/// The grey twin of a picture, for a command that cannot be given; a picture that has none is its own.
[[nodiscard]] Imagen16 Gris(Imagen16 imagen);

/// Puts a picture on a label as a square of `lado` pixels, as sharp as its screen shows it.
void PonerDibujo(QLabel& etiqueta, const QIcon& imagen, int lado);
