#include "forms/declarants/frmZTDeclarante.h"

#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/BloqueDeMunicipio.h"
#include "forms/runtime/CajasDeFormulario.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/ListaDeEleccion.h"
#include "forms/runtime/MarcaDeCancelar.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTDeclarante.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kDosCifras = u"00";
constexpr QStringView kCodigoPostal = u"00000";

QString SinCero(const Valor& valor) { return CB(valor).aTexto(); }

}  // namespace

frmZTDeclarante::frmZTDeclarante()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTDeclarante>()) {
    m_ui->setupUi(this);
    m_cancelando = new MarcaDeCancelar(*m_ui->cmdCancelar, *m_ui->picCancelar);
    m_aceptar = new ParDeBotones(*this, *m_ui->cmdAceptar, *m_ui->picAceptar,
                                 {Imagen16::Aceptar, Id::Aceptar}, [this] { cmdAceptar_Click(); });
    m_cancelar = new ParDeBotones(*this, *m_ui->cmdCancelar, *m_ui->picCancelar,
                                  {Imagen16::Cancelar, Id::Cancelar}, [this] { cmdCancelar_Click(); });
    PonerFondo(*m_ui->txtNomVia, kFondoAmarillo);
    PrepararListas();
    PrepararCajas(*this, [this] { Comparar(); });
}

frmZTDeclarante::~frmZTDeclarante() = default;

void frmZTDeclarante::PrepararListas() {
    const auto cancelando = [this] { return m_cancelando->Puesta(); };
    const auto ir = [](QWidget* control) { return [control]() -> QWidget& { return *control; }; };

    m_siglas = new ListaDeEleccion(*this, ListaDeEleccion::Codigo::Letras,
                                   {*m_ui->lsvSiglas, *m_ui->picSiglas, *m_ui->txtSiglas, *m_ui->txtNomVia},
                                   {.codigoDelRegistro = [] { return oDeclarante().Siglas; },
                                    .alElegir = [this] { Comparar(); },
                                    .alEncontrar = [this] { oDeclarante().Siglas = m_ui->txtSiglas->text(); },
                                    .trasClic = ir(m_ui->txtNumero),
                                    .trasIntro = ir(m_ui->txtViaPub),
                                    .cancelando = cancelando});

    m_municipio = new BloqueDeMunicipio(
        *this, {.provinciaDelRegistro = [] { return QString::number(oDeclarante().Provin); },
                .municipioDelRegistro = [] { return QString::number(oDeclarante().CMuni); },
                .alElegir = [this] { Comparar(); },
                .alEncontrarMunicipio = [this] { oDeclarante().Munici = m_ui->txtNombreMunicipio->text(); },
                .trasLaProvincia = ir(m_ui->txtCPost),
                .trasElMunicipio = ir(m_ui->txtTelPre),
                .cancelando = cancelando});
}

void frmZTDeclarante::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::DatosDelDeclarante));
        m_ui->lblDatosDte->setText(Texto(Id::DatosDelDeclarante));
        for (const auto& [etiqueta, texto] : {std::pair{m_ui->lblNIF, Id::NIF},
                                              {m_ui->lblNombre, Id::Nombre},
                                              {m_ui->lblSiglas, Id::Via},
                                              {m_ui->lblViaPub, Id::NombreDeLaVia},
                                              {m_ui->lblNumero, Id::NumeroDeLaVia},
                                              {m_ui->lblEscalera, Id::Escalera},
                                              {m_ui->lblPiso, Id::Piso},
                                              {m_ui->lblMano, Id::Mano},
                                              {m_ui->lblCPost, Id::CodigoPostal},
                                              {m_ui->lblTelNum, Id::Telefono}}) {
            etiqueta->setText(Texto(texto));
        }
        m_aceptar->PonerTexto();
        m_cancelar->PonerTexto();
        m_siglas->Nombrar(m_ui->lblSiglas->text());
        m_municipio->PonerTextos();
        m_ui->txtNomVia->setAccessibleName(m_ui->lblSiglas->text());
        m_ui->txtTelNum->setAccessibleName(m_ui->lblTelNum->text());
    });
}

void frmZTDeclarante::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        Deshabilitar_menu();
        InicializarListas(m_ui->lsvSiglas, m_ui->lsvProvin, m_ui->lsvMunicipios);
        AnadirCaptions();
        RellenarCampos();
        PresentaBotones();
        ActivarMunicipio(*this);
        m_guardados = TextosDeCajas(*this);
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTDeclarante::RellenarCampos() {
    const cZTDeclarante& d = oDeclarante();
    m_ui->txtNIF->setText(d.NIF);
    m_ui->txtNombre->setText(d.Nombre);
    m_ui->txtSiglas->setText(d.Siglas);
    m_ui->txtViaPub->setText(d.Domicilio);
    m_ui->txtCPost->setText(SinCero(Formatear(d.CPost, kCodigoPostal)));
    m_ui->txtNumero->setText(SinCero(d.Numero));
    m_ui->txtTelPre->setText(SinCero(d.Telepre));
    m_ui->txtTelNum->setText(SinCero(d.TelNum));
    m_ui->txtLetra->setText(d.Letra);
    m_ui->txtEscalera->setText(d.Escal);
    m_ui->txtPiso->setText(d.Piso);
    m_ui->txtMano->setText(d.Mano);
    m_ui->txtProvin->setText(Formatear(d.Provin, kDosCifras));
    m_ui->txtMuni->setText(SinCero(Formatear(d.CMuni, kDosCifras)));

    if (!m_ui->txtProvin->text().isEmpty()) {
        m_ui->txtNombreProv->setText(ObtenerNombreProvincia(d.Provin));
    }
    const bool conCodigo = !m_ui->txtMuni->text().isEmpty();
    m_ui->txtNombreMunicipio->setText(conCodigo ? ObtenerNombreMunicipio(d.CMuni) : d.Munici);
    if (!m_ui->txtSiglas->text().isEmpty()) {
        m_ui->txtNomVia->setText(ObtenerNombreCalle(d.Siglas));
    }
}

void frmZTDeclarante::PresentaBotones() {
    m_municipio->PonerImagenes();
    m_siglas->PonerImagen();
}

void frmZTDeclarante::Comparar() {
    CompararCampos(kModoDeclarante, *this, [this] { PresentaBotones(); });
}

bool frmZTDeclarante::Eligiendo() const { return m_siglas->Abierta() || m_municipio->Eligiendo(); }

bool frmZTDeclarante::GuardarCambios() {
    cZTDeclarante& d = oDeclarante();
    if (!d.Modificado) {
        return true;
    }
    // Leaving a code box changes other boxes, and no key release follows it on the way to the button.
    Comparar();
    if (!d.ValidarDatos()) {
        return false;
    }
    const qint32 clave = d.GuardarDeclarante();
    if (clave == 0) {
        return false;
    }
    d.CSDE = clave;
    m_guardados = TextosDeCajas(*this);
    return true;
}

void frmZTDeclarante::cmdAceptar_Click() {
    // On the way here the box that had the focus has been left: with its list open its code is still to come.
    if (Eligiendo()) {
        return;
    }
    Pantalla().PonerPuntero(Puntero::Espera);
    if (GuardarCambios()) {
        Formularios::Mostrar(Forma::MDIZT);
        Pantalla().CederUnaVez();
        Formularios::Descargar(Nombre());
    }
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTDeclarante::cmdCancelar_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    cZTDeclarante& d = oDeclarante();
    if (d.Procedencia == cZTDeclarante::kDesdeMenu) {
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        Formularios::Descargar(Nombre());
    } else if (d.Procedencia == cZTDeclarante::kDesdeListaDeclaraciones) {
        oListaDeclaraciones().CSDC = 0;
        d.CargarDeclarante(d.CSDE);
        Formularios::Mostrar(Forma::ListaDeclaraciones);
        Pantalla().CederUnaVez();
        Formularios::Descargar(Nombre());
    }
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTDeclarante::Form_Unload() {
    cZTDeclarante& d = oDeclarante();
    d.Modificado = false;
    if (d.Procedencia == cZTDeclarante::kDesdeMenu) {
        Habilitar_menu();
    } else if (d.Procedencia == cZTDeclarante::kDesdeListaDeclaraciones) {
        Formularios::Mostrar(Forma::ListaDeclaraciones);
    }
    Pantalla().PonerPuntero(Puntero::Normal);
}

std::vector<DatosSinGuardar> frmZTDeclarante::PorGuardar() const {
    const QMap<QString, QString> ahora = TextosDeCajas(*this);
    if (!m_guardados || ahora == *m_guardados) {
        return {};
    }
    const cZTDeclarante& d = oDeclarante();
    return {{.formulario = Nombre(),
             .CSDE = d.Modo == cZTDeclarante::kModoNuevo ? 0 : d.CSDE,
             .NIF = m_guardados->value(m_ui->txtNIF->objectName()),
             .valores = ahora}};
}

void frmZTDeclarante::Reponer(const DatosSinGuardar& datos) {
    ConTrampa(u"Reponer", [&] {
        PonerTextosEnCajas(*this, datos.valores);
        ActivarMunicipio(*this);
        PresentaBotones();
        oDeclarante().Modificado = true;
        Comparar();
    });
}
