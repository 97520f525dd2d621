#include "forms/exchange/frmZTFicheroAExportar.h"

#include <QScopeGuard>

#include "core/exchange/ExporacionZT.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Textos.h"
#include "forms/runtime/Menus.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/SinEntrada.h"
#include "ui_frmZTFicheroAExportar.h"

using namespace Qt::StringLiterals;

frmZTFicheroAExportar::frmZTFicheroAExportar()
    : FormularioDeIntercambio(kNombre, u"frmNotExportar", UsoDelFichero::Escribir),
      m_ui(std::make_unique<Ui::frmZTFicheroAExportar>()) {
    m_ui->setupUi(this);
    Preparar(*m_ui);
}

frmZTFicheroAExportar::~frmZTFicheroAExportar() = default;

void frmZTFicheroAExportar::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::ExportarEleccionDeFichero));
        m_ui->lblAviso->setText(Texto(Id::ExportacionFinalizada));
        m_ui->fraFichero->setTitle(Texto(Id::SeleccionDeFichero));
        CaptionsComunes();
    });
}

void frmZTFicheroAExportar::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        Deshabilitar_menu();
        AnadirCaptions();
        InicializarComunes();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTFicheroAExportar::Form_Unload() {
    oDeclarante().InicializaDatos();
    Habilitar_menu();
}

void frmZTFicheroAExportar::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        m_ui->lblAviso->hide();
        // Without these buttons a form whose export failed could not be left.
        auto comoEstaba = qScopeGuard([this] {
            PresentaBotones(Botones::AceptarYCancelar);
            m_ui->shpFondo->hide();
        });
        {
            const SinEntrada sinEntrada;
            ExportarDeclarantes(*this);
        }
        comoEstaba.dismiss();
        m_ui->lblAviso->show();
    });
}

QString frmZTFicheroAExportar::Fichero() const { return m_ui->lblFichero->text(); }

QString frmZTFicheroAExportar::Titulo() const { return windowTitle(); }

void frmZTFicheroAExportar::Empezar() { PresentaBotones(Botones::Ninguno); }

void frmZTFicheroAExportar::Terminar() {
    PresentaBotones(Botones::Continuar);
    m_ui->CmdContinuar->setFocus();
}

void frmZTFicheroAExportar::MostrarBarra() { m_ui->shpFondo->Empezar(); }

void frmZTFicheroAExportar::Avanzar(int hechos, int total) { m_ui->shpFondo->Avanzar(hechos, total); }
