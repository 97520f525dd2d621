#include "core/run/GeneralZT.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <cmath>

#include "core/base/ErrorZT.h"
#include "core/base/Modelo.h"
#include "core/base/Pantalla.h"
#include "core/base/Procedimiento.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTGeneral.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRetroceso = 8;
constexpr auto kAceptables = u"0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ";
constexpr QStringView kInicializarDatosGenerales = u"General.InicializarDatosGenerales";

svrZELT::cZTDatosGeneral Servidor() { return ServidorDeReferencia<svrZELT::cZTDatosGeneral>(); }

QString NombreDePeriodo(qint16 periodo) { return Texto(Id::PrimerTrimestre + (periodo - 1)); }

}  // namespace

void Keypress_Naturales(int& KeyAscii) {
    Procedimiento(u"General.Keypress_Naturales", [&] {
        if ((KeyAscii < u'0' || KeyAscii > u'9') && KeyAscii != kRetroceso) {
            KeyAscii = 0;
        }
    });
}

qint16 CaracterAceptable(int KeyAscii) {
    return Procedimiento(u"General.CaracterAceptable", [&]() -> qint16 {
        if (KeyAscii == kRetroceso) {
            return kRetroceso;
        }
        if (KeyAscii < 0 || KeyAscii > 0xFFFF) {
            return 0;
        }
        const QChar mayuscula = QChar(static_cast<char16_t>(KeyAscii)).toUpper();
        return QStringView(kAceptables).contains(mayuscula) ? static_cast<qint16>(mayuscula.unicode())
                                                            : qint16{0};
    });
}

Valor BC(const Valor& valor) {
    return Procedimiento(u"General.BC", [&] {
        const bool vacio = valor.EsVacio() || (valor.EsTexto() && valor.aTexto().isEmpty());
        return vacio ? Valor(qint16{0}) : valor;
    });
}

Valor CB(const Valor& valor) {
    return Procedimiento(u"General.CB", [&] {
        const QString recortado = valor.aTexto().trimmed();
        return std::fabs(Valor(recortado).aDoble()) == 0.0 ? Valor(QString()) : valor;
    });
}

QString DameStringPeriodo(qint16 periodo) {
    return Procedimiento(u"General.DameStringPeriodo", [&] {
        return periodo >= 1 && periodo <= kTrimestres ? NombreDePeriodo(periodo) : QString();
    });
}

Valor ObtenerPeriodo(const QString& texto) {
    return Procedimiento(u"General.ObtenerPeriodo", [&] {
        for (qint16 periodo = 1; periodo <= kTrimestres; ++periodo) {
            if (texto == NombreDePeriodo(periodo)) {
                return Valor(QString::number(periodo));
            }
        }
        return Valor(u"Error"_s);
    });
}

QString Directorio(const QString& ruta) {
    return Procedimiento(u"General.Directorio", [&] {
        const auto barra = ruta.lastIndexOf(u'\\');
        const auto barraNativa = ruta.lastIndexOf(QDir::separator());
        return ruta.left(std::max(barra, barraNativa) + 1);
    });
}

void CargarResultado(const QString& sql, Tabla& buffer) {
    Procedimiento(u"General.CargarResultado", [&] { Servidor().CargarResultado(sql, buffer); });
}

void InicializarDatosGenerales() {
    Registro datos;
    Procedimiento(kInicializarDatosGenerales, [&] { Servidor().CargarDatosGenerales(datos); });
    InicializarDatosGenerales(datos);
}

void InicializarDatosGenerales(const Registro& datos) {
    Procedimiento(kInicializarDatosGenerales, [&] {
        EntornoZT& e = Entorno();
        const std::array<qint16*, 4> destinos{&e.EjercicioMinimo, &e.PeriodoMinimo, &e.EjercicioMaximo,
                                              &e.PeriodoMaximo};
        int i = 0;
        for (qint16* destino : destinos) {
            *destino = Elemento(datos, i++).aEntero16();
        }
    });
}

Tabla ExisteDec() { return ServidorDeUsuario<svrZELT::cZTGeneral>().ExisteDec(); }

QString ObtenerNombreProvincia(qint16 codigo) {
    return Servidor().ObtenerNombreProvincia(codigo, Entorno().OffsetIdioma).toUpper();
}

QString ObtenerNombreMunicipio(qint16 codigo) {
    return Servidor().ObtenerNombreMunicipio(codigo, Entorno().OffsetIdioma).toUpper();
}

QString ObtenerNombreCalle(const QString& codigo) {
    return Servidor().ObtenerNombreCalle(codigo, Entorno().OffsetIdioma).toUpper();
}

QString SelectSiglas() {
    return IDI(u"Select T03_CODIGO, T03_CAS From T03_SIGLASVIA ORDER BY T03_CAS"_s,
               u"Select T03_CODIGO, T03_EUS From T03_SIGLASVIA ORDER BY T03_EUS"_s);
}

QString SelectProvincias() {
    return IDI(u"Select T02_PROID, T02_PROCAS From T02_Provincias Order By T02_PROCAS"_s,
               u"Select T02_PROID, T02_PROEUS From T02_Provincias Order By T02_PROEUS"_s);
}

QString SelectMunicipios() {
    return u"Select T04_CODMUN, T04_NOMMUN From T04_MUNICIPIOS Order By T04_NOMMUN"_s;
}

void ShowError(const QString& formulario, const QString& evento, const QString& descripcion) {
    Procedimiento(u"General.ShowError", [&] {
        Pantalla().PonerPuntero(Puntero::Normal);
        Pantalla().ShowError(formulario, evento, descripcion);
    });
}

qint16 Mensaje(const QString& texto, const QString& titulo, bool unBoton) {
    Pantalla().PonerPuntero(Puntero::Normal);
    Entorno().RespuestaMensaje = Pantalla().Mensaje(texto, titulo, unBoton);
    return Entorno().RespuestaMensaje;
}
