#include "core/base/ErrorZT.h"

#include <algorithm>
#include <array>

#include "core/base/CatalogoDeTextos.h"

using namespace Qt::StringLiterals;

namespace {

struct Fila {
    NumError numero{};
    QStringView texto;
};

/// Those of the run-time, in its language whatever that of the screens. Those of the failures that are this
/// program's own stand in its catalogue.
constexpr std::array kTextos{
    Fila{NumError::LlamadaNoValida, u"Argumento o llamada a procedimiento no válida"},
    Fila{NumError::Desbordamiento, u"Desbordamiento"},
    Fila{NumError::Subindice, u"El subíndice está fuera del intervalo"},
    Fila{NumError::NoCoincidenTipos, u"No coinciden los tipos"},
    Fila{NumError::ErrorInterno, u"Error interno"},
    Fila{NumError::NombreFicheroIncorrecto, u"Nombre o número de archivo incorrecto"},
    Fila{NumError::NoExisteFichero, u"No se encontró el archivo"},
    Fila{NumError::ErrorDispositivo, u"Error de E/S de dispositivo"},
    Fila{NumError::DiscoLleno, u"Disco lleno"},
    Fila{NumError::PermisoDenegado, u"Permiso denegado"},
    Fila{NumError::ErrorAccesoRuta, u"Error de acceso a la ruta o al archivo"},
    Fila{NumError::NoExisteRuta, u"No se encontró la ruta de acceso"},
    Fila{NumError::ObjetoNoEstablecido, u"Variable de objeto o de bloque With no establecida"},
    Fila{NumError::UsoNoValidoDeNull, u"Uso no válido de Null"},
    Fila{NumError::FormularioDesconocido, u"Se requiere un objeto"},
    Fila{NumError::ErrorDeImpresora, u"Error de impresora"},
    Fila{NumError::ClaveRepetida, u"La clave no es única en la colección"},
    Fila{NumError::TextoInexistente, u"No se encontró el recurso con el identificador"},
};

}  // namespace

QString TextoDeError(NumError numero) {
    const auto fila = std::ranges::find(kTextos, numero, &Fila::numero);
    if (fila != kTextos.end()) {
        return fila->texto.toString();
    }
    const auto propio = TextoPropioSiHay(u"error_%1"_s.arg(static_cast<int>(numero)), IdiomaEnVigor());
    return propio.value_or(u"Error definido por la aplicación"_s);
}

ErrorZT::ErrorZT(NumError numero) : ErrorZT(numero, TextoDeError(numero)) {}

ErrorZT::ErrorZT(NumError numero, QString descripcion, QString origen)
    : m_numero(static_cast<int>(numero)),
      m_origen(std::move(origen)),
      m_descripcion(std::move(descripcion)),
      m_utf8(m_descripcion.toUtf8()) {}

void ErrorZT::Anteponer(QStringView nombre) {
    m_descripcion = nombre.toString() + u"\r\n"_s + m_descripcion;
    m_utf8 = m_descripcion.toUtf8();
}

ErrorZT ErrorInterno(const std::exception& error) {
    return {NumError::ErrorInterno,
            TextoDeError(NumError::ErrorInterno) + u": "_s + QString::fromUtf8(error.what())};
}

QString MensajeDePlataforma(const ErrorZT& error) {
    return u"Error '%1' en tiempo de ejecución:\r\n\r\n"_s.arg(error.Numero()) + error.Descripcion();
}
