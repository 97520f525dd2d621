#include "forms/runtime/BloqueDeMunicipio.h"

#include <QLabel>
#include <QLineEdit>

#include "core/records/cZTDeclarante.h"
#include "core/run/Textos.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/runtime/FamiliaDeControles.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/ListaDeEleccion.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/ListaZT.h"

using namespace Qt::StringLiterals;

namespace {

ListaDeEleccion::Controles Controles(const QWidget& formulario, const QString& lista, const QString& imagen,
                                     const QString& caja, const QString& nombre) {
    return {ElControl<ListaZT>(formulario, lista), ElControl<BotonImagen>(formulario, imagen),
            ElControl<QLineEdit>(formulario, caja), ElControl<QLineEdit>(formulario, nombre)};
}

}  // namespace

BloqueDeMunicipio::BloqueDeMunicipio(Formulario& formulario, const Reglas& reglas)
    : QObject(&formulario.Ventana()), m_formulario(formulario.Ventana()) {
    const auto provincia =
        Controles(m_formulario, u"lsvProvin"_s, u"picProvin"_s, u"txtProvin"_s, u"txtNombreProv"_s);
    PonerFondo(provincia.nombre, kFondoAmarillo);
    m_provincias = new ListaDeEleccion(formulario, ListaDeEleccion::Codigo::Numero, provincia,
                                       {.codigoDelRegistro = reglas.provinciaDelRegistro,
                                        .alElegir =
                                            [this, alElegir = reglas.alElegir] {
                                                ActivarMunicipio(m_formulario);
                                                alElegir();
                                            },
                                        .alEncontrar =
                                            [this, &caja = provincia.caja] {
                                                oDeclarante().Provin = Valor(caja.text()).aEntero16();
                                                ActivarMunicipio(m_formulario);
                                            },
                                        .trasClic = reglas.trasLaProvincia,
                                        .trasIntro = reglas.trasLaProvincia,
                                        .cancelando = reglas.cancelando});
    m_municipios = new ListaDeEleccion(
        formulario, ListaDeEleccion::Codigo::Numero,
        Controles(m_formulario, u"lsvMunicipios"_s, u"picMuni"_s, u"txtMuni"_s, u"txtNombreMunicipio"_s),
        {.codigoDelRegistro = reglas.municipioDelRegistro,
         .alElegir = reglas.alElegir,
         .alEncontrar = reglas.alEncontrarMunicipio,
         .trasClic = reglas.trasElMunicipio,
         .trasIntro = reglas.trasElMunicipio,
         .cancelando = reglas.cancelando});
}

void BloqueDeMunicipio::PonerTextos() {
    for (const auto& [etiqueta, texto] : {std::pair{u"lblProvin"_s, Id::Provincia},
                                          {u"lblNombreProvincia"_s, Id::NombreDeLaProvincia},
                                          {u"lblMuni"_s, Id::Municipio},
                                          {u"lblMunici"_s, Id::NombreDelMunicipio}}) {
        ElControl<QLabel>(m_formulario, etiqueta).setText(Texto(texto));
    }
    m_provincias->Nombrar(Texto(Id::Provincia));
    m_municipios->Nombrar(Texto(Id::Municipio));
}

void BloqueDeMunicipio::PonerImagenes() {
    m_provincias->PonerImagen();
    m_municipios->PonerImagen();
}

bool BloqueDeMunicipio::Eligiendo() const { return m_provincias->Abierta() || m_municipios->Abierta(); }
