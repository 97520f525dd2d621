#include "forms/exchange/FormularioDeIntercambio.h"

#include <QDir>
#include <QFileDialog>

#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/AvisoLlano.h"
#include "forms/widgets/BarraDeProgreso.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/BotonZT.h"
#include "forms/widgets/EtiquetaDeRuta.h"
#include "forms/widgets/SinEntrada.h"

using namespace Qt::StringLiterals;

namespace {

/// The exchange file that both screens suggest, in the program folder.
QString RutaDeDeclarantes() { return EnCarpetaPrograma(u"Declaran.txt"_s); }

/// Lets the user choose another file than `actual` in the file dialog "Examinador", which starts in its
/// folder with its name. Gives `actual` back when the user cancels. Whether to write over a file that exists
/// is asked elsewhere.
QString ElegirOtroFichero(QWidget& formulario, const QString& actual, UsoDelFichero uso) {
    const bool leer = uso == UsoDelFichero::Leer;
    // The title is the same for both uses and in both languages.
    QFileDialog examinador(&formulario, u"Cambiar fichero de salida"_s, Directorio(actual));
    examinador.setObjectName(u"Examinador"_s);
    // The system's own dialog would speak the language of the system, not that of the screens.
    examinador.setOption(QFileDialog::DontUseNativeDialog);
    examinador.setOption(QFileDialog::DontConfirmOverwrite);
    examinador.setAcceptMode(leer ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    examinador.setFileMode(leer ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    examinador.setNameFilters({u"*.txt"_s, u"*.* (*)"_s});
    examinador.setDefaultSuffix(u"txt"_s);
    examinador.selectFile(QFileInfo(actual).fileName());
    return examinador.exec() == QDialog::Accepted
               ? QDir::toNativeSeparators(examinador.selectedFiles().first())
               : actual;
}

}  // namespace

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

void FormularioDeIntercambio::PonerFichero(const QString& ruta) {
    m_controles.lblFichero->setText(ruta);
    m_controles.lblFichero->setToolTip(AvisoLlano(ruta));
    FicheroElegido(ruta);
}

void FormularioDeIntercambio::PresentaBotones(Botones cuales) {
    m_aceptar->Mostrar(cuales == Botones::AceptarYCancelar);
    m_cancelar->Mostrar(cuales == Botones::AceptarYCancelar);
    m_continuar->Mostrar(cuales == Botones::Continuar);
}

void FormularioDeIntercambio::cmdModificar_Click() {
    ConTrampa(u"cmdModificar_Click",
              [this] { PonerFichero(ElegirOtroFichero(*this, m_controles.lblFichero->text(), m_uso)); });
}

void FormularioDeIntercambio::Cerrar() { Formularios::Descargar(Nombre()); }
