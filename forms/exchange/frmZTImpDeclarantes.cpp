#include "forms/exchange/frmZTImpDeclarantes.h"

#include "core/exchange/ImportacionZT.h"
#include "core/exchange/TextoEnUtf8.h"
#include "core/exchange/cZTImportaciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/Menus.h"
#include "forms/widgets/AvisoLlano.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/SinEntrada.h"
#include "ui_frmZTImpDeclarantes.h"

using namespace Qt::StringLiterals;

namespace {

/// Elements of the results that say whether there is something in the file of faults.
constexpr int kIncorrectos = 1;
constexpr int kSegundaOciosa = 6;

}  // namespace

frmZTImpDeclarantes::frmZTImpDeclarantes()
    : FormularioDeIntercambio(kNombre, u"frmNotImportar", UsoDelFichero::Leer),
      m_ui(std::make_unique<Ui::frmZTImpDeclarantes>()) {
    m_ui->setupUi(this);
    Preparar(*m_ui);
    GuardarSitio(*m_ui->lblFicheroErrores);
    GuardarSitio(*m_ui->lblFicheroErroresFich);
    Conectar(*this, m_ui->chkAutomatico, &QAbstractButton::toggled, [this] { chkAutomatico_Click(); });
    Conectar(*this, m_ui->lblFicheroErroresFich, &EtiquetaDeRuta::MouseMove,
             [this] { lblFicheroErroresFich_MouseMove(); });
}

frmZTImpDeclarantes::~frmZTImpDeclarantes() = default;

void frmZTImpDeclarantes::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::ImportarDeclarantes));
        for (const auto& [etiqueta, texto] : {std::pair{m_ui->lblDeclarantes, Id::Declarantes},
                                              {m_ui->lblImportados, Id::Importados},
                                              {m_ui->lblIncorrectos, Id::Incorrectos},
                                              {m_ui->lblSustituidos, Id::Sustituidos},
                                              {m_ui->lblDecIgn, Id::Ignorados},
                                              {m_ui->lblTotal, Id::Total},
                                              {m_ui->lblFicheroErrores, Id::ErroresDeCarga},
                                              {m_ui->lblAviso, Id::ProcesoFinalizado}}) {
            etiqueta->setText(Texto(texto));
        }
        m_ui->chkAutomatico->setText(Texto(Id::Automatico));
        m_ui->lblUtf8->setText(TextoPropio(u"imp_utf8_aviso"));
        m_ui->chkUtf8->setText(TextoPropio(u"imp_utf8_leer"));
        m_ui->chkUtf8->setAccessibleDescription(m_ui->lblUtf8->text());
        // The frame has no caption to be read out.
        m_ui->fraFichero->setAccessibleName(Texto(Id::SeleccionDeFichero));
        CaptionsComunes();
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
    InicializarComunes();
    m_ui->lblFicheroErroresFich->setText(RutaDeErrores());
    m_ui->lblFicheroErrores->hide();
    m_ui->lblFicheroErroresFich->hide();
    for (QLabel* cuenta :
         {m_ui->lblNumImp, m_ui->lblNumInc, m_ui->lblNumSus, m_ui->lblNumIgn, m_ui->lblNumTot}) {
        cuenta->clear();
    }
    oDeclarante().CSDE = 0;
}

/// A file that was saved as UTF-8 is told where it is chosen; how it is read stays the user's choice.
void frmZTImpDeclarantes::FicheroElegido(const QString& ruta) {
    const bool utf8 = PareceUtf8(ruta);
    m_ui->chkUtf8->setChecked(false);
    m_ui->lblUtf8->setVisible(utf8);
    m_ui->chkUtf8->setVisible(utf8);
}

void frmZTImpDeclarantes::chkAutomatico_Click() {
    ConTrampa(u"chkAutomatico_Click", [this] {
        if (m_ui->chkAutomatico->isChecked()) {
            Mensaje(Texto(Id::AvisoDeAutomatico), windowTitle(), true);
        }
    });
}

void frmZTImpDeclarantes::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        m_ui->shpFondo->hide();
        {
            const SinEntrada sinEntrada;
            Import(m_ui->lblFichero->text(), *this);
        }
        const auto* resultados = std::get_if<Registro>(&oImportaciones().vBufferImportados);
        // A failure has been shown, and there are no results.
        if (resultados == nullptr) {
            m_ui->shpFondo->hide();
            return;
        }
        MostrarResultados(*resultados);
        PresentaBotones(Botones::Continuar);
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
    ConTrampa(u"lblFicheroErroresFich_MouseMove", [this] {
        m_ui->lblFicheroErroresFich->setToolTip(AvisoLlano(m_ui->lblFicheroErroresFich->text()));
    });
}

bool frmZTImpDeclarantes::EnUtf8() const { return m_ui->chkUtf8->isChecked(); }

bool frmZTImpDeclarantes::Automatico() const { return m_ui->chkAutomatico->isChecked(); }

void frmZTImpDeclarantes::MostrarBarra() { m_ui->shpFondo->Empezar(); }

void frmZTImpDeclarantes::Avanzar(int hechos, int total) { m_ui->shpFondo->Avanzar(hechos, total); }
