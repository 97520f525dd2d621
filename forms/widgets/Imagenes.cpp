#include "forms/widgets/Imagenes.h"

#include <QHash>
#include <QLabel>
#include <QStringList>
#include <algorithm>
#include <array>

#include "core/base/ErrorZT.h"
#include "core/base/Instancias.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList& Pequenas() {
    static const QStringList nombres{u"01-flecha"_s,        u"02-flecha-foco"_s,  u"03-orden"_s,
                                     u"04-calendario"_s,    u"05-imprimir"_s,     u"06-aceptar"_s,
                                     u"07-cancelar-gris"_s, u"08-cancelar"_s,     u"09-borrar"_s,
                                     u"10-datos"_s,         u"11-nuevo"_s,        u"12-cerrar"_s,
                                     u"13-anexos"_s,        u"14-aceptar-gris"_s, u"15-borrar-gris"_s,
                                     u"16-nuevo-gris"_s,    u"17-datos-gris"_s,   u"18-imprimir-gris"_s,
                                     u"19-anexos-gris"_s,   u"20-guardar"_s,      u"21-guardar-gris"_s};
    return nombres;
}

const QStringList& Grandes() {
    static const QStringList nombres{u"01-zelt"_s, u"02-aviso"_s, u"03-pregunta"_s, u"04-flecha-abajo"_s,
                                     u"05-flecha-abajo-foco"_s};
    return nombres;
}

struct Gemelas {
    Imagen16 color;
    Imagen16 gris;
};
constexpr std::array kGemelas{
    Gemelas{Imagen16::Imprimir, Imagen16::ImprimirGris}, Gemelas{Imagen16::Aceptar, Imagen16::AceptarGris},
    Gemelas{Imagen16::Cancelar, Imagen16::CancelarGris}, Gemelas{Imagen16::Borrar, Imagen16::BorrarGris},
    Gemelas{Imagen16::Datos, Imagen16::DatosGris},       Gemelas{Imagen16::Nuevo, Imagen16::NuevoGris},
    Gemelas{Imagen16::Anexos, Imagen16::AnexosGris},     Gemelas{Imagen16::Guardar, Imagen16::GuardarGris}};

using Dibujos = QHash<QString, QIcon>;

/// One for the whole run: what the toolkit keeps drawn it keeps for each icon anew, and never finds again for
/// another one of the same file.
QIcon Dibujo(const QString& lista, const QString& nombre) {
    const QString ruta = u":/imagenes/"_s + lista + u'/' + nombre + u".svg"_s;
    QIcon& dibujo = InstanciaUnica<Dibujos>()[ruta];
    if (dibujo.isNull()) {
        dibujo = QIcon(ruta);
    }
    return dibujo;
}

QIcon DeLista(const QString& lista, const QStringList& nombres, int numero) {
    if (numero < 1 || numero > nombres.size()) {
        throw ErrorZT(NumError::Subindice);
    }
    return Dibujo(lista, nombres.at(numero - 1));
}

}  // namespace

QIcon ilsMDI16(int numero) { return DeLista(u"ilsMDI16"_s, Pequenas(), numero); }

QIcon ilsMDI16(Imagen16 imagen) { return ilsMDI16(static_cast<int>(imagen)); }

QIcon ilsMDI32(int numero) { return DeLista(u"ilsMDI32"_s, Grandes(), numero); }

QIcon ilsMDI32(Imagen32 imagen) { return ilsMDI32(static_cast<int>(imagen)); }

QIcon ilsMDI16_(const QString& clave) { return Dibujo(u"ilsMDI16_"_s, clave.toLower()); }

QIcon IconoDelPrograma() {
    // Drawn once: window systems ask for all sizes again with every window.
    const QIcon dibujo(u":/imagenes/zelt.svg"_s);
    QIcon icono;
    for (const int lado : {16, 32, 48, 64}) {
        icono.addPixmap(dibujo.pixmap(lado, lado));
    }
    return icono;
}

Imagen16 Gris(Imagen16 imagen) {
    const auto gemelas = std::ranges::find(kGemelas, imagen, &Gemelas::color);
    return gemelas == kGemelas.end() ? imagen : gemelas->gris;
}

void PonerDibujo(QLabel& etiqueta, const QIcon& imagen, int lado) {
    etiqueta.setPixmap(imagen.pixmap(QSize(lado, lado), etiqueta.devicePixelRatioF()));
}
