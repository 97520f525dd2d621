#include "app/RecuperacionDeDatos.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/records/Productos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/GeneralZT.h"
#include "core/run/Recuperacion.h"
#include "core/run/Textos.h"
#include "forms/runtime/AnexosPorGuardar.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"

using namespace Qt::StringLiterals;

namespace {

/// Opens the declarant, and leaves the record empty where the store has no such one.
bool CargarSuDeclarante(const DatosSinGuardar& datos) {
    cZTDeclarante& d = oDeclarante();
    d.CSDE = datos.CSDE;
    d.Modo = cZTDeclarante::kModoExistente;
    d.InicializaDatos();
    if (datos.CSDE != 0 && d.NIF == datos.NIF) {
        return true;
    }
    d.CSDE = 0;
    d.Modo = cZTDeclarante::kModoNuevo;
    d.InicializaDatos();
    return false;
}

bool PrepararDeclarante(const DatosSinGuardar& datos) {
    cZTDeclarante& d = oDeclarante();
    if (datos.CSDE == 0) {
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        d.Procedencia = cZTDeclarante::kDesdeMenu;
        return true;
    }
    d.Procedencia = cZTDeclarante::kDesdeListaDeclaraciones;
    return CargarSuDeclarante(datos);
}

bool PrepararEstablecimiento(const DatosSinGuardar& datos) {
    if (!CargarSuDeclarante(datos)) {
        return false;
    }
    cZTEstablecimientos& e = oEstablecimientos();
    e.Procedencia = cZTEstablecimientos::kDesdeLista;
    e.Modo = datos.clave == 0 ? cZTEstablecimientos::kModoNuevo : cZTEstablecimientos::kModoExistente;
    e.CSES = datos.clave;
    e.InicializarDatos();
    return datos.clave == 0 || e.CIM == datos.rasgo;
}

/// Row of the declaration among those of the open declarant; 0 when it is not one of them.
int FilaDeDeclaracion(const DatosSinGuardar& datos) {
    using Columna = cZTListaDeclaraciones::Columna;
    oListaDeclaraciones().RellenarDeclaraciones();
    const Tabla& lista = oListaDeclaraciones().BufferDeclaraciones;
    for (int fila = 1; !lista.EsNula() && fila <= lista.UltimaFila(); ++fila) {
        const QString rasgo =
            lista(Columna::kEjercicio, fila).aTexto() + u'/' + lista(Columna::kPeriodo, fila).aTexto();
        if (lista(Columna::kCSDC, fila).aEntero32() == datos.clave && rasgo == datos.rasgo) {
            return fila;
        }
    }
    return 0;
}

bool PrepararAnexos(const DatosSinGuardar& datos) {
    using Columna = cZTListaDeclaraciones::Columna;
    if (!CargarSuDeclarante(datos)) {
        return false;
    }
    oAnexos().RellenarEstDecl();
    const int fila = FilaDeDeclaracion(datos);
    if (fila == 0) {
        return false;
    }
    const Tabla& lista = oListaDeclaraciones().BufferDeclaraciones;
    cZTDeclaraciones& declaracion = oDeclaraciones();
    declaracion.Modo = cZTDeclaraciones::kModoExistente;
    declaracion.CSDC = datos.clave;
    declaracion.Ejercicio = lista(Columna::kEjercicio, fila).aEntero16();
    declaracion.Periodo = lista(Columna::kPeriodo, fila).aEntero16();
    declaracion.InicializarDatos();
    oAnexos().Procedencia = cZTAnexos::kDesdeDeclaracion;
    oAnexos().Modificado = false;
    return true;
}

struct Recuperable {
    QStringView formulario;
    Id titulo{};
    bool (*preparar)(const DatosSinGuardar&);
};

constexpr std::array kRecuperables{
    Recuperable{Forma::Declarante, Id::DatosDelDeclarante, PrepararDeclarante},
    Recuperable{Forma::Establecimiento, Id::DatosDelEstablecimiento, PrepararEstablecimiento},
    Recuperable{Forma::DetDeclaracion, Id::DatosDelAnexo, PrepararAnexos}};

const Recuperable* Buscar(const DatosSinGuardar& datos) {
    const auto* forma = std::ranges::find(kRecuperables, datos.formulario, &Recuperable::formulario);
    return forma == kRecuperables.end() ? nullptr : forma;
}

/// False where the store no longer has the record, or is not to be read, and where the form refuses the data.
bool Abrir(const Recuperable& forma, const DatosSinGuardar& datos) {
    try {
        if (!forma.preparar(datos)) {
            return false;
        }
        Deshabilitar_menu();
        Formularios::Mostrar(forma.formulario);
        Formularios::Obtener(forma.formulario).Reponer(datos);
        return true;
    } catch (const ErrorZT&) {
        Formularios::DescargarTodos(Forma::MDIZT);
        Habilitar_menu();
        return false;
    }
}

/// CIM of an establishment; its key where the declarant has no such one.
QString Establecimiento(qint32 cses) {
    using Columna = cZTAnexos::ColumnaDeEstDecl;
    const Tabla& lista = oAnexos().BufferEstDecl;
    for (int fila = 1; !lista.EsNula() && fila <= lista.UltimaFila(); ++fila) {
        if (lista(Columna::kCSES, fila).aEntero32() == cses) {
            return lista(Columna::kCIM, fila).aTexto();
        }
    }
    return QString::number(cses);
}

QString EnCifras(qint64 centesimas) {
    return Formatear(static_cast<double>(centesimas) / kCentesimas, kMascaraImporte);
}

/// What was typed, for the user to type it again.
QString EnTexto(const DatosSinGuardar& datos) {
    QStringList lineas{TextoPropio(u"recuperar_falta"), QString()};
    for (const QString& valor : datos.valores) {
        if (!valor.isEmpty()) {
            lineas += valor;
        }
    }
    for (const LineaSinGuardar& linea : datos.lineas) {
        lineas += u"%1. %2: %3; %4"_s.arg(Establecimiento(linea.CSES),
                                          Texto(TextoDeProducto(linea.producto)).trimmed(),
                                          EnCifras(linea.exento), EnCifras(linea.base));
    }
    return lineas.join(u'\n');
}

void Dejar(const std::vector<DatosSinGuardar>& quedan) {
    QuitarRecuperacion();
    if (!quedan.empty()) {
        GuardarRecuperacion(quedan);
    }
}

/// Asks for one form. True when it is open.
bool Ofrecer(const Recuperable& forma, const DatosSinGuardar& datos) {
    const QString titulo = TextoPropio(u"recuperar_titulo");
    const QString cual = u"\n\n"_s + Texto(forma.titulo) + u' ' + datos.NIF;
    if (Mensaje(TextoPropio(u"recuperar_pregunta") + cual, titulo, false) != kRespuestaAceptar) {
        return false;
    }
    const bool abierto = Abrir(forma, datos);
    if (!abierto) {
        Mensaje(EnTexto(datos), titulo, true);
    }
    return abierto;
}

}  // namespace

void OfrecerRecuperacion() {
    std::vector<DatosSinGuardar> quedan = LeerRecuperacion();
    if (!std::ranges::all_of(quedan, Buscar)) {
        AnotarRecuperacionAjena();
        quedan.clear();
    }
    if (quedan.empty()) {
        QuitarRecuperacion();
    }
    for (bool abierto = false; !quedan.empty() && !abierto; Dejar(quedan)) {
        abierto = Ofrecer(*Buscar(quedan.front()), quedan.front());
        quedan.erase(quedan.begin());
    }
}
