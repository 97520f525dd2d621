#include "shell/EjecutarAyuda.h"

#include <QDir>

#include "shell/Entorno.h"
#include "shell/Formularios.h"
#include "shell/TemasDeAyuda.h"
#include "shell/Textos.h"
#include "shell/VentanaAyuda.h"

using namespace Qt::StringLiterals;

namespace {

QString PrimerTema() { return IDI(u"cap.htm"_s, u"kap.htm"_s); }

}  // namespace

QString CarpetaDeAyuda() {
    return QDir::fromNativeSeparators(Entorno().CarpetaPrograma) +
           IDI(u"/Ayuda/Ayuda"_s, u"/Ayuda/Laguntza"_s);
}

void EjecutarAyuda(const QString& tema, QWidget& formulario) {
    VentanaAyuda::Unica(formulario).Mostrar(CarpetaDeAyuda(), tema, PrimerTema());
}

void PonerAyudaEnIdioma() { VentanaAyuda::CambiarJuego(CarpetaDeAyuda(), PrimerTema()); }

void EjecutarAyudaDelFormulario(QWidget& marco) {
    const QString tema = TemasDeAyuda(CarpetaDeAyuda()).TemaDeFormulario(Formularios::Activo());
    EjecutarAyuda(tema.isEmpty() ? PrimerTema() : tema, marco);
}
