#include "shell/MostrarSiEsta.h"

#include "shell/GeneralZT.h"
#include "shell/Textos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoTitulo = 96;

}  // namespace

void AvisarFuncionAusente() { Mensaje(TextoPropio(u"funcion_ausente"), Texto(kTextoTitulo), true); }

void MostrarSiEsta(const QString& formulario, void (*mostrar)(const QString&)) {
    if (Formularios::Registrado(formulario)) {
        mostrar(formulario);
    } else {
        AvisarFuncionAusente();
    }
}
