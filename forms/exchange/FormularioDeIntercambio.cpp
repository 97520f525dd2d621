#include "forms/exchange/FormularioDeIntercambio.h"

#include <QDir>
#include <QFileDialog>

#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
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
              [this] { PonerFichero(ElegirOtroFichero(*this, m_controles.lblFichero->text(), m_uso)); });
}

void FormularioDeIntercambio::Cerrar() { Formularios::Descargar(Nombre()); }
