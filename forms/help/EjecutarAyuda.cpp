#include "forms/help/EjecutarAyuda.h"

#include <QDir>

#include "core/help/TemasDeAyuda.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "forms/help/VentanaAyuda.h"
#include "forms/runtime/Formularios.h"

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
