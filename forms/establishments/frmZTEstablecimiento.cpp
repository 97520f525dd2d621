#include "forms/establishments/frmZTEstablecimiento.h"

#include "core/base/Formatos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/AnexosPorGuardar.h"
#include "forms/runtime/BloqueDeMunicipio.h"
#include "forms/runtime/CajasDeFormulario.h"
#include "forms/runtime/CamposDeFormulario.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/MarcaDeCancelar.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTEstablecimiento.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kDosCifras = u"00";

}  // namespace

frmZTEstablecimiento::frmZTEstablecimiento()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTEstablecimiento>()) {
    m_ui->setupUi(this);
    m_cancelando = new MarcaDeCancelar(*m_ui->cmdCancelar, *m_ui->picCancelar);
    m_aceptar = new ParDeBotones(*this, *m_ui->cmdAceptar, *m_ui->picAceptar,
                                 {Imagen16::Aceptar, Id::Aceptar}, [this] { cmdAceptar_Click(); });
    m_cancelar = new ParDeBotones(*this, *m_ui->cmdCancelar, *m_ui->picCancelar,
                                  {Imagen16::Cancelar, Id::Cancelar}, [this] { cmdCancelar_Click(); });
    PrepararListas();
    PrepararCajas(*this, [this] { Comparar(); });
}

frmZTEstablecimiento::~frmZTEstablecimiento() = default;

void frmZTEstablecimiento::PrepararListas() {
    // A code that is found on leaving its box goes to the declarant, not to the establishment, whose own
    // fields change through the comparison of the boxes alone. See docs/reglas.md,
    // codigo-hallado-al-declarante.
    m_municipio = new BloqueDeMunicipio(
        *this,
        {.provinciaDelRegistro = [] { return QString::number(oEstablecimientos().Provin); },
         .municipioDelRegistro = [] { return QString::number(oEstablecimientos().CMuni); },
         .alElegir = [this] { Comparar(); },
         .alEncontrarMunicipio = [this] { oDeclarante().CMuni = Valor(m_ui->txtMuni->text()).aEntero16(); },
         .trasLaProvincia = [this]() -> QWidget& { return TrasLaProvincia(); },
         .trasElMunicipio = [this]() -> QWidget& { return *m_ui->txtCIM; },
         .cancelando = [this] { return m_cancelando->Puesta(); }});
}

void frmZTEstablecimiento::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::DatosDelEstablecimiento));
        for (const auto& [etiqueta, texto] : {std::pair{m_ui->lblDatosDte, Id::DatosDelDeclarante},
                                              {m_ui->lblDte, Id::Nombre},
                                              {m_ui->lblNIF, Id::NIF},
                                              {m_ui->lblCIM, Id::CIM},
                                              {m_ui->lblDomicilio, Id::Domicilio}}) {
            etiqueta->setText(Texto(texto));
        }
        m_ui->lblNomDte->setText(oDeclarante().Nombre);
        m_ui->lblNIFDte->setText(oDeclarante().NIF);
        m_aceptar->PonerTexto();
        m_cancelar->PonerTexto();
        m_municipio->PonerTextos();
    });
}

void frmZTEstablecimiento::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        AnadirCaptions();
        oEstablecimientos().InicializarDatos();
        InicializarListas(nullptr, m_ui->lsvProvin, m_ui->lsvMunicipios);
        RellenarCampos();
        m_municipio->PonerImagenes();
        ActivarMunicipio(*this);
        m_guardados = TextosDeCajas(*this);
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

void frmZTEstablecimiento::Comparar() { CompararCampos(kModoEstablecimiento, *this, {}); }

QWidget& frmZTEstablecimiento::TrasLaProvincia() const {
    if (m_ui->picMuni->isEnabled()) {
        return *m_ui->picMuni;
    }
    return *m_ui->txtNombreMunicipio;
}

bool frmZTEstablecimiento::GuardarCambios() {
    // Leaving a code box changes other boxes, and no key release follows it on the way to the button.
    Comparar();
    cZTEstablecimientos& e = oEstablecimientos();
    if (!e.ValidarDatos()) {
        return false;
    }
    e.GuardaEstablecimiento();
    // The mark comes down with the save: one that the store refused leaves it up.
    if (!e.Modificado) {
        m_guardados = TextosDeCajas(*this);
    }
    return !e.Modificado;
}

void frmZTEstablecimiento::cmdAceptar_Click() {
    // On the way here the box that had the focus has been left: with its list open its code is still to come.
    if (m_municipio->Eligiendo()) {
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

std::vector<DatosSinGuardar> frmZTEstablecimiento::PorGuardar() const {
    const cZTEstablecimientos& e = oEstablecimientos();
    std::vector<DatosSinGuardar> datos;
    const QMap<QString, QString> ahora = TextosDeCajas(*this);
    if (m_guardados && ahora != *m_guardados) {
        datos.push_back({.formulario = Nombre(),
                         .CSDE = oDeclarante().CSDE,
                         .NIF = oDeclarante().NIF,
                         .clave = e.Modo == cZTEstablecimientos::kModoNuevo ? 0 : e.CSES,
                         .rasgo = m_guardados->value(m_ui->txtCIM->objectName()),
                         .valores = ahora});
    }
    // The form of the annexes has made room for this one, and its changes wait for it to come back.
    if (e.Procedencia == cZTEstablecimientos::kDesdeDetalle && oAnexos().Modificado) {
        datos.push_back(AnexosPorGuardar());
    }
    return datos;
}

void frmZTEstablecimiento::Reponer(const DatosSinGuardar& datos) {
    ConTrampa(u"Reponer", [&] {
        PonerTextosEnCajas(*this, datos.valores);
        ActivarMunicipio(*this);
        m_municipio->PonerImagenes();
        oEstablecimientos().Modificado = true;
        Comparar();
    });
}
