#include "forms/establishments/BloqueDeEstablecimientos.h"

#include <array>

#include "core/base/Tabla.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/FamiliaDeControles.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/CabeceraDeLista.h"
#include "forms/widgets/ListaZT.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer; those of the buffer that the annexes keep are the same.
using Columna = cZTEstablecimientos::Columna;

constexpr std::array kColumnas{ListaZT::Columna{Id::CIM, 1170}, ListaZT::Columna{Id::Domicilio, 2980},
                               ListaZT::Columna{Id::NombreDeLaProvincia, 1275},
                               ListaZT::Columna{Id::NombreDelMunicipio, 2340}};
constexpr int kAnchoDeAnexos = 1170;

/// The headings of the columns, and their texts.
const auto& Cabeceras() {
    static const std::array cabeceras{
        std::pair{u"lblCIM"_s, Id::CIM}, std::pair{u"lblDomicilio"_s, Id::Domicilio},
        std::pair{u"lblProvincia"_s, Id::Provincia}, std::pair{u"lblMunicipio"_s, Id::Municipio}};
    return cabeceras;
}

}  // namespace

BloqueDeEstablecimientos::BloqueDeEstablecimientos(Formulario& formulario, const Ordenes& ordenes)
    : QObject(&formulario.Ventana()),
      m_formulario(formulario),
      m_lista(ElControl<ListaZT>(formulario.Ventana(), u"lsvEstablecimientos"_s)) {
    const auto par = [&formulario](const QString& orden, const ParDeBotones::Aspecto& aspecto,
                                   const std::function<void()>& cuerpo) {
        const QWidget& ventana = formulario.Ventana();
        return new ParDeBotones(formulario, ElControl<QAbstractButton>(ventana, u"cmd"_s + orden),
                                ElControl<BotonImagen>(ventana, u"pic"_s + orden), aspecto, cuerpo);
    };
    m_nuevo = par(u"Nuevo"_s, {Imagen16::Nuevo, Id::NuevoEstablecimiento}, ordenes.nuevo);
    m_datos = par(u"Datos"_s, {Imagen16::Datos, Id::DatosDeEstablecimiento}, ordenes.datos);
    m_eliminar = par(u"Eliminar"_s, {Imagen16::Borrar, Id::EliminarEstablecimiento}, ordenes.eliminar);
}

void BloqueDeEstablecimientos::PonerTextos() {
    const QWidget& ventana = m_formulario.Ventana();
    for (const auto& [etiqueta, texto] : Cabeceras()) {
        ElControl<QAbstractButton>(ventana, etiqueta).setText(Texto(texto));
    }
    for (ParDeBotones* orden : {m_nuevo, m_datos, m_eliminar}) {
        orden->PonerTexto();
    }
    m_lista.setAccessibleName(ventana.windowTitle());
}

void BloqueDeEstablecimientos::PonerColumnas(CabeceraDeLista& cabecera, QWidget* lblEstAnexos) {
    m_lista.PonerColumnas(kColumnas);
    QList<QWidget*> etiquetas;
    for (const auto& [etiqueta, texto] : Cabeceras()) {
        etiquetas += &ElControl<QWidget>(m_formulario.Ventana(), etiqueta);
    }
    if (lblEstAnexos != nullptr) {
        const QString texto = Texto(Id::Anexos);
        m_lista.AnadirColumna(texto, texto, kAnchoDeAnexos);
        etiquetas += lblEstAnexos;
    }
    m_lista.setMinimumWidth(m_lista.TamanoDesplegada().width());
    cabecera.Colocar(m_lista, etiquetas);
}

qint32 BloqueDeEstablecimientos::Clave(const Tabla& establecimientos, int fila) {
    return establecimientos(Columna::kCSES, fila).aEntero32();
}

int BloqueDeEstablecimientos::Anadir(const Tabla& establecimientos, int fila) {
    const auto texto = [&](Columna columna) { return establecimientos(columna, fila).aTexto(); };
    return m_lista.Anadir(QString(), texto(Columna::kCSES),
                          {texto(Columna::kCIM), texto(Columna::kDomicilio),
                           ObtenerNombreProvincia(establecimientos(Columna::kProvin, fila).aEntero16()),
                           texto(Columna::kMunici)});
}

void BloqueDeEstablecimientos::HabilitarOrdenes(bool hay) {
    m_datos->Habilitar(hay);
    m_eliminar->Habilitar(hay);
}

void BloqueDeEstablecimientos::AbrirElegido() {
    cZTEstablecimientos& e = oEstablecimientos();
    e.CSES = m_lista.ClaveElegida();
    Formularios::Descargar(m_formulario.Nombre());
    e.Modo = cZTEstablecimientos::kModoExistente;
    e.InicializarDatos();
    Formularios::Mostrar(Forma::Establecimiento);
}
