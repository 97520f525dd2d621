#include "exchange/frmZTImpDeclarantes.h"

#include "declarants/cZTDeclarante.h"
#include "exchange/Examinador.h"
#include "exchange/ImportacionZT.h"
#include "exchange/RutasDeIntercambio.h"
#include "exchange/SinEntrada.h"
#include "exchange/cZTImportaciones.h"
#include "shell/Colocacion.h"
#include "shell/Eventos.h"
#include "shell/Formularios.h"
#include "shell/Gemelos.h"
#include "shell/GeneralZT.h"
#include "shell/Imagenes.h"
#include "shell/Menus.h"
#include "shell/Textos.h"
#include "ui_frmZTImpDeclarantes.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kImagenAceptar = 6;
constexpr int kImagenCancelar = 8;

constexpr int kTextoAvisoAutomatico = 120;

/// Elements of the results that say whether there is something in the file of faults.
constexpr int kIncorrectos = 1;
constexpr int kSegundaOciosa = 6;

}  // namespace

frmZTImpDeclarantes::frmZTImpDeclarantes()
    : FormularioTrabajo(kNombre.toString()), m_ui(std::make_unique<Ui::frmZTImpDeclarantes>()) {
    m_ui->setupUi(this);
    m_ui->picAceptar->setIcon(ilsMDI16(kImagenAceptar));
    m_ui->picCancelar->setIcon(ilsMDI16(kImagenCancelar));
    m_ui->picContinuar->setIcon(ilsMDI16(kImagenAceptar));

    Conectar(*this, m_ui->cmdModificar, &QAbstractButton::clicked, [this] { cmdModificar_Click(); });
    Conectar(*this, m_ui->chkAutomatico, &QAbstractButton::toggled, [this] { chkAutomatico_Click(); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->picAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    for (QAbstractButton* boton : std::initializer_list<QAbstractButton*>{
             m_ui->cmdCancelar, m_ui->picCancelar, m_ui->CmdContinuar, m_ui->picContinuar}) {
        Conectar(*this, boton, &QAbstractButton::clicked, [this] { Cerrar(); });
    }
    Conectar(*this, m_ui->lblFicheroErroresFich, &EtiquetaDeRuta::MouseMove,
             [this] { lblFicheroErroresFich_MouseMove(); });
}

frmZTImpDeclarantes::~frmZTImpDeclarantes() = default;

template <class F>
void frmZTImpDeclarantes::ConTrampa(QStringView evento, F&& cuerpo) {
    EventoConTrampa(Nombre(), u"frmNotImportar.%1"_s.arg(evento), std::forward<F>(cuerpo));
}

void frmZTImpDeclarantes::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(119));
        for (const auto& [etiqueta, texto] : {std::pair{m_ui->lblDeclarantes, 31},
                                              {m_ui->lblImportados, 114},
                                              {m_ui->lblIncorrectos, 115},
                                              {m_ui->lblSustituidos, 116},
                                              {m_ui->lblDecIgn, 202},
                                              {m_ui->lblTotal, 117},
                                              {m_ui->lblFicheroErrores, 121},
                                              {m_ui->lblAviso, 110}}) {
            etiqueta->setText(Texto(texto));
        }
        m_ui->chkAutomatico->setText(Texto(118));
        m_ui->cmdModificar->setText(Texto(109));
        m_ui->cmdAceptar->setText(Texto(28));
        m_ui->cmdCancelar->setText(Texto(29));
        m_ui->CmdContinuar->setText(Texto(111));
        NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
        NombrarGemelo(*m_ui->picCancelar, *m_ui->cmdCancelar);
        NombrarGemelo(*m_ui->picContinuar, *m_ui->CmdContinuar);
    });
}

void frmZTImpDeclarantes::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        Deshabilitar_menu();
        AnadirCaptions();
        InicializarDatos();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTImpDeclarantes::Form_Unload() { Habilitar_menu(); }

void frmZTImpDeclarantes::InicializarDatos() {
    m_ui->lblFichero->setText(RutaDeDeclarantes());
    m_ui->lblFicheroErroresFich->setText(RutaDeErrores());
    PresentaBotones(false);
    for (QWidget* oculto : std::initializer_list<QWidget*>{
             m_ui->lblFicheroErrores, m_ui->lblFicheroErroresFich, m_ui->shpFondo, m_ui->lblAviso}) {
        oculto->hide();
    }
    for (QLabel* cuenta :
         {m_ui->lblNumImp, m_ui->lblNumInc, m_ui->lblNumSus, m_ui->lblNumIgn, m_ui->lblNumTot}) {
        cuenta->clear();
    }
    m_ui->cmdAceptar->setFocus();
    oDeclarante().CSDE = 0;
}

void frmZTImpDeclarantes::PresentaBotones(bool continuar) {
    m_ui->cmdAceptar->setVisible(!continuar);
    m_ui->picAceptar->setVisible(!continuar);
    m_ui->cmdCancelar->setVisible(!continuar);
    m_ui->picCancelar->setVisible(!continuar);
    m_ui->CmdContinuar->setVisible(continuar);
    m_ui->picContinuar->setVisible(continuar);
}

void frmZTImpDeclarantes::cmdModificar_Click() {
    ConTrampa(u"cmdModificar_Click", [this] {
        m_ui->lblFichero->setText(ExaminarFichero(*this, m_ui->lblFichero->text(), UsoDelFichero::Leer));
    });
}

void frmZTImpDeclarantes::chkAutomatico_Click() {
    ConTrampa(u"chkAutomatico_Click", [this] {
        if (m_ui->chkAutomatico->isChecked()) {
            Mensaje(Texto(kTextoAvisoAutomatico), windowTitle(), true);
        }
    });
}

void frmZTImpDeclarantes::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        {
            const SinEntrada sinEntrada;
            Import(m_ui->lblFichero->text(), *this);
        }
        // A failure has been shown, and there are no results.
        const auto* resultados = std::get_if<Registro>(&oImportaciones().vBufferImportados);
        if (resultados == nullptr) {
            return;
        }
        MostrarResultados(*resultados);
        PresentaBotones(true);
        m_ui->CmdContinuar->setFocus();
        m_ui->lblAviso->show();
    });
}

void frmZTImpDeclarantes::MostrarResultados(const Registro& resultados) {
    int elemento = 0;
    for (QLabel* cuenta :
         {m_ui->lblNumImp, m_ui->lblNumInc, m_ui->lblNumSus, m_ui->lblNumIgn, m_ui->lblNumTot}) {
        cuenta->setText(Elemento(resultados, elemento++).aTexto());
    }
    const bool conFaltas = Elemento(resultados, kIncorrectos).aEntero16() > 0 ||
                           Elemento(resultados, kSegundaOciosa).aEntero16() > 0;
    if (conFaltas) {
        m_ui->lblFicheroErrores->show();
        m_ui->lblFicheroErroresFich->show();
    }
}

void frmZTImpDeclarantes::lblFicheroErroresFich_MouseMove() {
    ConTrampa(u"lblFicheroErroresFich_MouseMove",
              [this] { m_ui->lblFicheroErroresFich->setToolTip(m_ui->lblFicheroErroresFich->text()); });
}

void frmZTImpDeclarantes::Cerrar() { Formularios::Descargar(Nombre()); }

bool frmZTImpDeclarantes::Automatico() const { return m_ui->chkAutomatico->isChecked(); }

void frmZTImpDeclarantes::MostrarBarra() { m_ui->shpFondo->Empezar(); }

void frmZTImpDeclarantes::Avanzar(int hechos, int total) { m_ui->shpFondo->Avanzar(hechos, total); }
