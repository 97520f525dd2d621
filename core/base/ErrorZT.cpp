#include "core/base/ErrorZT.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Fila {
    NumError numero{};
    QStringView texto;
};

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
    Fila{NumError::AlmacenNoEncontrado, u"No se encuentra el fichero de datos"},
    Fila{NumError::AlmacenSoloLectura, u"El fichero de datos es de solo lectura"},
    Fila{NumError::AlmacenDiscoLleno, u"No hay espacio suficiente en el disco"},
    Fila{NumError::AlmacenCambiado, u"Otro programa ha cambiado los mismos datos"},
    Fila{NumError::AlmacenErrorDisco, u"Error de disco durante una operación de datos"},
    Fila{NumError::AlmacenDanado, u"El fichero de datos está dañado"},
    Fila{NumError::AlmacenSinPermiso, u"No hay permiso para abrir el fichero de datos"},
    Fila{NumError::AlmacenOrden, u"La orden de datos no se ha podido ejecutar"},
    Fila{NumError::AlmacenOcupado, u"Otro programa está usando el fichero de datos"},
    Fila{NumError::AlmacenVersion, u"El fichero de datos es de otra versión del programa"},
    Fila{NumError::AlmacenAjeno, u"El fichero no es un fichero de datos de este programa"},
    Fila{NumError::CaracterFueraDePagina, u"El texto contiene un carácter que el fichero no admite"},
    Fila{NumError::ClaveRepetida, u"La clave no es única en la colección"},
    Fila{NumError::TextoInexistente, u"No se encontró el recurso con el identificador"},
};

}  // namespace

QString TextoDeError(NumError numero) {
    const auto fila = std::ranges::find(kTextos, numero, &Fila::numero);
    return fila == kTextos.end() ? u"Error definido por la aplicación"_s : fila->texto.toString();
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
