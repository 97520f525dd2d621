#include "shell/EjecutarAyuda.h"

#include <QDir>

#include "shell/Entorno.h"
#include "shell/Textos.h"
#include "shell/VentanaAyuda.h"

using namespace Qt::StringLiterals;

QUrl RutaDeAyuda(const QString& tema) {
    const QString juego = IDI(u"/Ayuda/Ayuda/"_s, u"/Ayuda/Laguntza/"_s);
    return QUrl::fromLocalFile(QDir::fromNativeSeparators(Entorno().CarpetaPrograma) + juego + tema);
}

void EjecutarAyuda(const QString& tema, QWidget& formulario) {
    VentanaAyuda::Unica(formulario).Mostrar(RutaDeAyuda(tema));
}
