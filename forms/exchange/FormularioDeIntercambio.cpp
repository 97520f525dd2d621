#include "forms/exchange/FormularioDeIntercambio.h"

#include "core/exchange/RutasDeIntercambio.h"
#include "core/run/Textos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/BarraDeProgreso.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/BotonZT.h"
#include "forms/widgets/EtiquetaDeRuta.h"
#include "forms/widgets/SinEntrada.h"

using namespace Qt::StringLiterals;

FormularioDeIntercambio::FormularioDeIntercambio(QStringView nombre, QStringView modulo, UsoDelFichero uso)
    : FormularioTrabajo(nombre), m_modulo(modulo.toString()), m_uso(uso) {}

void FormularioDeIntercambio::Preparar(const Controles& controles) {
    m_controles = controles;
    const Controles& c = m_controles;
    GuardarSitio(*c.shpFondo);
    GuardarSitio(*c.lblAviso);

    Conectar(*this, c.cmdModificar, &QAbstractButton::clicked,
             [this, boton = c.cmdModificar] { Ordenar(*boton, [this] { cmdModificar_Click(); }); });
    const auto par = [this](QAbstractButton* boton, BotonImagen* imagen, const ParDeBotones::Aspecto& aspecto,
                            const std::function<void()>& orden) {
        return new ParDeBotones(*this, *boton, *imagen, aspecto, [boton, orden] { Ordenar(*boton, orden); });
    };
    const auto cerrar = [this] { Cerrar(); };
    m_aceptar =
        par(c.cmdAceptar, c.picAceptar, {Imagen16::Aceptar, Id::Aceptar}, [this] { cmdAceptar_Click(); });
    m_cancelar = par(c.cmdCancelar, c.picCancelar, {Imagen16::Cancelar, Id::Cancelar}, cerrar);
    m_continuar = par(c.CmdContinuar, c.picContinuar, {Imagen16::Aceptar, Id::Continuar}, cerrar);
}

void FormularioDeIntercambio::Ordenar(const QAbstractButton& boton, const std::function<void()>& orden) {
    if (!SinEntrada::Activa() && boton.isVisible()) {
        orden();
    }
}

void FormularioDeIntercambio::GuardarSitio(QWidget& control) {
    QSizePolicy politica = control.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    control.setSizePolicy(politica);
}

void FormularioDeIntercambio::CaptionsComunes() {
    const Controles& c = m_controles;
    c.cmdModificar->setText(Texto(Id::Modificar));
    c.shpFondo->setAccessibleName(TextoPropio(u"intercambio_progreso"));
    for (ParDeBotones* par : {m_aceptar, m_cancelar, m_continuar}) {
        par->PonerTexto();
    }
}

void FormularioDeIntercambio::InicializarComunes() {
    PonerFichero(RutaDeDeclarantes());
    PresentaBotones(Botones::AceptarYCancelar);
    m_controles.shpFondo->hide();
    m_controles.lblAviso->hide();
    m_controles.cmdAceptar->setFocus();
}

void FormularioDeIntercambio::PonerFichero(const QString& ruta) const {
    m_controles.lblFichero->setText(ruta);
    m_controles.lblFichero->setToolTip(ruta);
}

void FormularioDeIntercambio::PresentaBotones(Botones cuales) {
    m_aceptar->Mostrar(cuales == Botones::AceptarYCancelar);
    m_cancelar->Mostrar(cuales == Botones::AceptarYCancelar);
    m_continuar->Mostrar(cuales == Botones::Continuar);
}

void FormularioDeIntercambio::cmdModificar_Click() {
    ConTrampa(u"cmdModificar_Click",
              [this] { PonerFichero(ExaminarFichero(*this, m_controles.lblFichero->text(), m_uso)); });
}

void FormularioDeIntercambio::Cerrar() { Formularios::Descargar(Nombre()); }
