#include "forms/establishments/frmZTEstablecimiento.h"

#include "core/base/Formatos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/CajasDeFormulario.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Gemelos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/ListaDeEleccion.h"
#include "forms/runtime/MarcaDeCancelar.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTEstablecimiento.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kImagenAceptar = 6;
constexpr int kImagenCancelar = 8;

constexpr QStringView kDosCifras = u"00";

}  // namespace

frmZTEstablecimiento::frmZTEstablecimiento()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTEstablecimiento>()) {
    m_ui->setupUi(this);
    m_cancelando = new MarcaDeCancelar(*m_ui->cmdCancelar, *m_ui->picCancelar);
    m_ui->picAceptar->setIcon(ilsMDI16(kImagenAceptar));
    m_ui->picCancelar->setIcon(ilsMDI16(kImagenCancelar));
    PonerFondo(*m_ui->txtNombreProv, kFondoAmarillo);
    PrepararListas();
    PrepararCajas(*this, [this] { Comparar(); });

    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->picAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked, [this] { cmdCancelar_Click(); });
    Conectar(*this, m_ui->picCancelar, &QAbstractButton::clicked, [this] { cmdCancelar_Click(); });
}

frmZTEstablecimiento::~frmZTEstablecimiento() = default;

void frmZTEstablecimiento::PrepararListas() {
    const auto cancelando = [this] { return m_cancelando->Puesta(); };
    const auto trasLaProvincia = [this]() -> QWidget& { return TrasLaProvincia(); };
    const auto alCIM = [this]() -> QWidget& { return *m_ui->txtCIM; };

    // A code that is found on leaving its box goes to the declarant, not to the establishment, whose own
    // fields change through the comparison of the boxes alone. See docs/reglas.md,
    // codigo-hallado-al-declarante.
    m_provincias =
        new ListaDeEleccion(*this, ListaDeEleccion::Codigo::Numero,
                            {*m_ui->lsvProvin, *m_ui->picProvin, *m_ui->txtProvin, *m_ui->txtNombreProv},
                            {.codigoDelRegistro = [] { return QString::number(oEstablecimientos().Provin); },
                             .alElegir =
                                 [this] {
                                     ActivarMunicipio(*this);
                                     Comparar();
                                 },
                             .alEncontrar =
                                 [this] {
                                     oDeclarante().Provin = Valor(m_ui->txtProvin->text()).aEntero16();
                                     ActivarMunicipio(*this);
                                 },
                             .trasClic = trasLaProvincia,
                             .trasIntro = trasLaProvincia,
                             .cancelando = cancelando});

    m_municipios = new ListaDeEleccion(
        *this, ListaDeEleccion::Codigo::Numero,
        {*m_ui->lsvMunicipios, *m_ui->picMuni, *m_ui->txtMuni, *m_ui->txtNombreMunicipio},
        {.codigoDelRegistro = [] { return QString::number(oEstablecimientos().CMuni); },
         .alElegir = [this] { Comparar(); },
         .alEncontrar = [this] { oDeclarante().CMuni = Valor(m_ui->txtMuni->text()).aEntero16(); },
         .trasClic = alCIM,
         .trasIntro = alCIM,
         .cancelando = cancelando});
}

void frmZTEstablecimiento::AnadirCaptions() {
    EventoConTrampa(Nombre(), u"frmZTEstablecimiento.AnadirCaptions"_s, [this] {
        setWindowTitle(Texto(Id::DatosDelEstablecimiento));
        for (const auto& [etiqueta, texto] : {std::pair{m_ui->lblDatosDte, Id::DatosDelDeclarante},
                                              {m_ui->lblDte, Id::Nombre},
                                              {m_ui->lblNIF, Id::NIF},
                                              {m_ui->lblCIM, Id::CIM},
                                              {m_ui->lblDomicilio, Id::Domicilio},
                                              {m_ui->lblProvin, Id::Provincia},
                                              {m_ui->lblNombreProvincia, Id::NombreDeLaProvincia},
                                              {m_ui->lblMuni, Id::Municipio},
                                              {m_ui->lblMunici, Id::NombreDelMunicipio}}) {
            etiqueta->setText(Texto(texto));
        }
        m_ui->lblNomDte->setText(oDeclarante().Nombre);
        m_ui->lblNIFDte->setText(oDeclarante().NIF);
        m_ui->cmdAceptar->setText(Texto(Id::Aceptar));
        m_ui->cmdCancelar->setText(Texto(Id::Cancelar));
        NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
        NombrarGemelo(*m_ui->picCancelar, *m_ui->cmdCancelar);
        m_provincias->Nombrar(m_ui->lblProvin->text());
        m_municipios->Nombrar(m_ui->lblMuni->text());
    });
}

void frmZTEstablecimiento::Form_Load() {
    EventoConTrampa(Nombre(), u"frmZTEstablecimiento.Form_Load"_s, [this] {
        AnadirCaptions();
        oEstablecimientos().InicializarDatos();
        InicializarListas(nullptr, m_ui->lsvProvin, m_ui->lsvMunicipios);
        RellenarCampos();
        PresentaBotones();
        ActivarMunicipio(*this);
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTEstablecimiento::RellenarCampos() {
    const cZTEstablecimientos& e = oEstablecimientos();
    m_ui->txtCIM->setText(e.CIM);
    m_ui->txtMuni->setText(CB(Formatear(e.CMuni, kDosCifras)).aTexto());
    m_ui->txtNombreMunicipio->setText(e.Munici);
    m_ui->txtProvin->setText(CB(e.Provin).aTexto());
    m_ui->txtNombreProv->setText(ObtenerNombreProvincia(e.Provin));
    m_ui->txtDomicilio->setText(e.Domicilio);
}

void frmZTEstablecimiento::PresentaBotones() {
    m_municipios->PonerImagen();
    m_provincias->PonerImagen();
}

void frmZTEstablecimiento::Comparar() { CompararCampos(kModoEstablecimiento, *this, {}); }

QWidget& frmZTEstablecimiento::TrasLaProvincia() const {
    if (m_ui->picMuni->isEnabled()) {
        return *m_ui->picMuni;
    }
    return *m_ui->txtNombreMunicipio;
}

bool frmZTEstablecimiento::Eligiendo() const { return m_provincias->Abierta() || m_municipios->Abierta(); }

bool frmZTEstablecimiento::GuardarCambios() {
    // Leaving a code box changes other boxes, and no key release follows it on the way to the button.
    Comparar();
    cZTEstablecimientos& e = oEstablecimientos();
    if (!e.ValidarDatos()) {
        return false;
    }
    e.GuardaEstablecimiento();
    // The mark comes down with the save: one that the store refused leaves it up.
    return !e.Modificado;
}

void frmZTEstablecimiento::cmdAceptar_Click() {
    // On the way here the box that had the focus has been left: with its list open its code is still to come.
    if (Eligiendo()) {
        return;
    }
    if (!oEstablecimientos().Modificado || GuardarCambios()) {
        Formularios::Descargar(Nombre());
    }
}

void frmZTEstablecimiento::cmdCancelar_Click() { Formularios::Descargar(Nombre()); }

void frmZTEstablecimiento::Form_Unload() {
    cZTEstablecimientos& e = oEstablecimientos();
    e.Modificado = false;
    e.SelCSES = e.CSES;
    if (e.Procedencia == cZTEstablecimientos::kDesdeLista) {
        Formularios::Mostrar(Forma::ListaEstablecimientos);
    } else {
        oAnexos().Procedencia = cZTAnexos::kDesdeEstablecimiento;
        Formularios::Mostrar(Forma::DetDeclaracion);
    }
}
