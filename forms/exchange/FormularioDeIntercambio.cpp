#include "forms/exchange/FormularioDeIntercambio.h"

#include "core/exchange/RutasDeIntercambio.h"
#include "core/run/Textos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Gemelos.h"
#include "forms/widgets/BarraDeProgreso.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/BotonZT.h"
#include "forms/widgets/EtiquetaDeRuta.h"
#include "forms/widgets/Imagenes.h"
#include "forms/widgets/SinEntrada.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kImagenAceptar = 6;
constexpr int kImagenCancelar = 8;

}  // namespace

FormularioDeIntercambio::FormularioDeIntercambio(QStringView nombre, QStringView modulo, UsoDelFichero uso)
    : FormularioTrabajo(nombre), m_modulo(modulo.toString()), m_uso(uso) {}

void FormularioDeIntercambio::Preparar(const Controles& controles) {
    m_controles = controles;
    const Controles& c = m_controles;
    c.picAceptar->setIcon(ilsMDI16(kImagenAceptar));
    c.picCancelar->setIcon(ilsMDI16(kImagenCancelar));
    c.picContinuar->setIcon(ilsMDI16(kImagenAceptar));
    GuardarSitio(*c.shpFondo);
    GuardarSitio(*c.lblAviso);

    ConectarBoton(*c.cmdModificar, [this] { cmdModificar_Click(); });
    for (QAbstractButton* boton : std::initializer_list<QAbstractButton*>{c.cmdAceptar, c.picAceptar}) {
        ConectarBoton(*boton, [this] { cmdAceptar_Click(); });
    }
    for (QAbstractButton* boton : std::initializer_list<QAbstractButton*>{c.cmdCancelar, c.picCancelar,
                                                                          c.CmdContinuar, c.picContinuar}) {
        ConectarBoton(*boton, [this] { Cerrar(); });
    }
}

void FormularioDeIntercambio::ConectarBoton(QAbstractButton& boton, std::function<void()> cuerpo) {
    Conectar(*this, &boton, &QAbstractButton::clicked, [&boton, cuerpo = std::move(cuerpo)] {
        if (!SinEntrada::Activa() && boton.isVisible()) {
            cuerpo();
        }
    });
}

void FormularioDeIntercambio::GuardarSitio(QWidget& control) {
    QSizePolicy politica = control.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    control.setSizePolicy(politica);
}

void FormularioDeIntercambio::CaptionsComunes() {
    const Controles& c = m_controles;
    c.cmdModificar->setText(Texto(Id::Modificar));
    c.cmdAceptar->setText(Texto(Id::Aceptar));
    c.cmdCancelar->setText(Texto(Id::Cancelar));
    c.CmdContinuar->setText(Texto(Id::Continuar));
    c.shpFondo->setAccessibleName(TextoPropio(u"intercambio_progreso"));
    NombrarGemelo(*c.picAceptar, *c.cmdAceptar);
    NombrarGemelo(*c.picCancelar, *c.cmdCancelar);
    NombrarGemelo(*c.picContinuar, *c.CmdContinuar);
}

void FormularioDeIntercambio::InicializarComunes() {
    PonerFichero(RutaDeDeclarantes());
    PresentaBotones(Botones::AceptarYCancelar);
    m_controles.shpFondo->hide();
    m_controles.lblAviso->hide();
    m_controles.cmdAceptar->setFocus();
}

void FormularioDeIntercambio::PonerFichero(const QString& ruta) {
    m_controles.lblFichero->setText(ruta);
    m_controles.lblFichero->setToolTip(ruta);
    FicheroElegido(ruta);
}

void FormularioDeIntercambio::PresentaBotones(Botones cuales) {
    const Controles& c = m_controles;
    for (QAbstractButton* boton :
         std::initializer_list<QAbstractButton*>{c.cmdAceptar, c.picAceptar, c.cmdCancelar, c.picCancelar}) {
        boton->setVisible(cuales == Botones::AceptarYCancelar);
    }
    c.CmdContinuar->setVisible(cuales == Botones::Continuar);
    c.picContinuar->setVisible(cuales == Botones::Continuar);
}

void FormularioDeIntercambio::cmdModificar_Click() {
    ConTrampa(u"cmdModificar_Click"_s,
              [this] { PonerFichero(ExaminarFichero(*this, m_controles.lblFichero->text(), m_uso)); });
}

void FormularioDeIntercambio::Cerrar() { Formularios::Descargar(Nombre()); }
