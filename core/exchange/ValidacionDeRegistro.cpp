#include "core/exchange/ValidacionDeRegistro.h"

#include <algorithm>
#include <array>

#include "core/base/Formatos.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/run/ProcedimientoInformado.h"
#include "core/run/Textos.h"
#include "core/services/SvrKLComunLib/cMiscelaneos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 kLargoIncorrecto = 14;

bool NifErroneo(const Valor& valor) { return !SvrKLComunLib::cMiscelaneos().ValidaNifCif(valor.aTexto()); }

bool Falta(const Valor& valor) { return SinBlancosALaDerecha(valor.aTexto()).isEmpty(); }

bool NoNumerico(const Valor& valor) { return !valor.EsNumerico(); }

bool CortoConDosCifras(const Valor& valor) { return Formatear(valor, u"00").size() < 2; }

bool CortoConTresCifras(const Valor& valor) { return Formatear(valor, u"000").size() < 3; }

struct Comprobacion {
    /// Name of the field, in capitals.
    QStringView campo;
    bool (*falla)(const Valor&) = nullptr;
    qint16 codigo = 0;
};

/// By field in the order in which they run. A missing kind of way and a missing way share their code.
constexpr std::array kComprobaciones{
    Comprobacion{u"NIF", NifErroneo, 1},       Comprobacion{u"NOMBRE", Falta, 2},
    Comprobacion{u"SIGLAS", Falta, 8},         Comprobacion{u"VIAPUBLICA", Falta, 8},
    Comprobacion{u"NUMERO", NoNumerico, 9},    Comprobacion{u"PROVINCIA", NoNumerico, 10},
    Comprobacion{u"PROVINCIA", Falta, 4},      Comprobacion{u"PROVINCIA", CortoConDosCifras, 6},
    Comprobacion{u"CP", NoNumerico, 11},       Comprobacion{u"CP", CortoConTresCifras, 6},
    Comprobacion{u"CM", NoNumerico, 15},       Comprobacion{u"MUNICIPIO", Falta, 7},
    Comprobacion{u"TELEFONO", NoNumerico, 13}, Comprobacion{u"PREFIJO", NoNumerico, 12}};

struct TextoDeFalta {
    QStringView castellano;
    QStringView euskera;
};

/// Messages of the codes from 1 on.
constexpr std::array kTextos{
    TextoDeFalta{u"El NIF es erróneo o carece de dígito de control",
                 u"IFZ okerra da edo kontrol-digitua falta zaio"},
    TextoDeFalta{u"Falta el nombre del declarante", u"Aitortzailearen izena falta da"},
    TextoDeFalta{u"Debe seleccionarse el tipo de vía pública", u"Kale-mota aukeratu behar da"},
    TextoDeFalta{u"Falta el nombre de la provincia", u"Probintziaren izena falta da"},
    TextoDeFalta{u"El código postal es incorrecto", u"Posta-kodea ez da zuzena"},
    TextoDeFalta{u"El código postal no coincide con el código de provincia",
                 u"Posta-kodea ez dator bat probintziaren kodearekin"},
    TextoDeFalta{u"Falta el nombre del municipio", u"Udalerriaren izena falta da"},
    TextoDeFalta{u"Falta el nombre de la vía pública", u"Kalearen izena falta da"},
    TextoDeFalta{u"El número de la vivienda debe ser numérico",
                 u"Zenbakia eremuak zenbakizkoa izan behar du"},
    TextoDeFalta{u"El Código de Provincia debe ser numérico",
                 u"Probintziaren Kodea eremuak zenbakizkoa izan behar du"},
    TextoDeFalta{u"El Código Postal debe ser numérico", u"Posta-Kodea eremuak zenbakizkoa izan behar du"},
    TextoDeFalta{u"El Prefijo debe ser numérico",
                 u"Telefonoaren Aurrezenbakia eremuak zenbakizkoa izan behar du"},
    TextoDeFalta{u"El Número de Teléfono debe ser numérico",
                 u"Telefono-Zenbakia eremuak zenbakizkoa izan behar du"},
    TextoDeFalta{u"El registro que se desea importar carece de la longitud requerida.",
                 u"Inportatu nahi duzun erregistroak ez du behar den luzera."},
    TextoDeFalta{u"El código de municipio debe ser numérico.",
                 u"Udalerriaren kodea numerikoa izan behar da."}};

qsizetype LargoDe(const Tabla& registro) {
    qsizetype largo = 0;
    for (int fila = 0; fila <= registro.UltimaFila(); ++fila) {
        largo += registro(kColumnaValor, fila).aTexto().size();
    }
    return largo;
}

}  // namespace

Registro Validar(const Tabla& registro, int limite) {
    return ProcedimientoInformado(u"ImportacionZT"_s, u"Importación.Validar"_s, [&] {
        Registro errores(1);
        if (LargoDe(registro) > limite) {
            errores.emplace_back(kLargoIncorrecto);
            return errores;
        }
        for (int fila = 0; fila <= registro.UltimaFila(); ++fila) {
            const QString campo = registro(kColumnaNombre, fila).aTexto().toUpper();
            const Valor& valor = registro(kColumnaValor, fila);
            for (const Comprobacion& comprobacion : kComprobaciones) {
                if (campo == comprobacion.campo && comprobacion.falla(valor)) {
                    errores.emplace_back(comprobacion.codigo);
                }
            }
        }
        return errores;
    });
}

std::optional<QString> MensajeDeFalta(int codigo) {
    if (codigo < 1 || codigo > static_cast<int>(kTextos.size())) {
        return {};
    }
    const TextoDeFalta& texto = kTextos.at(static_cast<std::size_t>(codigo - 1));
    return IDI(texto.castellano.toString(), texto.euskera.toString());
}
