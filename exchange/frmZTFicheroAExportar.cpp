#include "exchange/frmZTFicheroAExportar.h"

#include <QScopeGuard>

#include "declarants/cZTDeclarante.h"
#include "exchange/Examinador.h"
#include "exchange/ExporacionZT.h"
#include "exchange/RutasDeIntercambio.h"
#include "exchange/SinEntrada.h"
#include "shell/Colocacion.h"
#include "shell/Eventos.h"
#include "shell/Formularios.h"
#include "shell/Gemelos.h"
#include "shell/Imagenes.h"
#include "shell/Menus.h"
#include "shell/Textos.h"
#include "ui_frmZTFicheroAExportar.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kImagenAceptar = 6;
constexpr int kImagenCancelar = 8;

}  // namespace

frmZTFicheroAExportar::frmZTFicheroAExportar()
    : FormularioTrabajo(kNombre.toString()), m_ui(std::make_unique<Ui::frmZTFicheroAExportar>()) {
    m_ui->setupUi(this);
    m_ui->picAceptar->setIcon(ilsMDI16(kImagenAceptar));
    m_ui->picCancelar->setIcon(ilsMDI16(kImagenCancelar));
    m_ui->picContinuar->setIcon(ilsMDI16(kImagenAceptar));

    Conectar(*this, m_ui->cmdModificar, &QAbstractButton::clicked, [this] { cmdModificar_Click(); });
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->picAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    for (QAbstractButton* boton : std::initializer_list<QAbstractButton*>{
             m_ui->cmdCancelar, m_ui->picCancelar, m_ui->CmdContinuar, m_ui->picContinuar}) {
        Conectar(*this, boton, &QAbstractButton::clicked, [this] { Cerrar(); });
    }
}

frmZTFicheroAExportar::~frmZTFicheroAExportar() = default;

void frmZTFicheroAExportar::AnadirCaptions() {
    EventoConTrampa(Nombre(), u"frmZTFicheroAExportar.AnadirCaptions"_s, [this] {
        setWindowTitle(Texto(171));
        m_ui->lblAviso->setText(Texto(174));
        m_ui->fraFichero->setTitle(Texto(86));
        m_ui->cmdModificar->setText(Texto(109));
        m_ui->cmdAceptar->setText(Texto(28));
        m_ui->cmdCancelar->setText(Texto(29));
        m_ui->CmdContinuar->setText(Texto(111));
        NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
        NombrarGemelo(*m_ui->picCancelar, *m_ui->cmdCancelar);
        NombrarGemelo(*m_ui->picContinuar, *m_ui->CmdContinuar);
    });
}

void frmZTFicheroAExportar::Form_Load() {
    EventoConTrampa(Nombre(), u"frmZTFicheroAExportar.Form_Load"_s, [this] {
        Deshabilitar_menu();
        AnadirCaptions();
        InicializarDatos();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTFicheroAExportar::Form_Unload() {
    oDeclarante().InicializaDatos();
    Habilitar_menu();
}

void frmZTFicheroAExportar::InicializarDatos() {
    m_ui->lblFichero->setText(RutaDeDeclarantes());
    PresentaBotones(true, false);
    m_ui->shpFondo->hide();
    m_ui->lblAviso->hide();
    m_ui->cmdAceptar->setFocus();
}

void frmZTFicheroAExportar::PresentaBotones(bool aceptar, bool continuar) {
    m_ui->cmdAceptar->setVisible(aceptar);
    m_ui->picAceptar->setVisible(aceptar);
    m_ui->cmdCancelar->setVisible(aceptar);
    m_ui->picCancelar->setVisible(aceptar);
    m_ui->CmdContinuar->setVisible(continuar);
    m_ui->picContinuar->setVisible(continuar);
}

void frmZTFicheroAExportar::cmdModificar_Click() {
    EventoConTrampa(Nombre(), u"frmNotExportar.cmdModificar_Click"_s, [this] {
        m_ui->lblFichero->setText(ExaminarFichero(*this, Fichero(), UsoDelFichero::Escribir));
    });
}

void frmZTFicheroAExportar::cmdAceptar_Click() {
    EventoConTrampa(Nombre(), u"frmNotExportar.cmdAceptar_Click"_s, [this] {
        // Without these buttons a form whose export failed could not be left.
        auto comoEstaba = qScopeGuard([this] {
            PresentaBotones(true, false);
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

void frmZTFicheroAExportar::Cerrar() { Formularios::Descargar(Nombre()); }

QString frmZTFicheroAExportar::Fichero() const { return m_ui->lblFichero->text(); }

QString frmZTFicheroAExportar::Titulo() const { return windowTitle(); }

void frmZTFicheroAExportar::Empezar() { PresentaBotones(false, false); }

void frmZTFicheroAExportar::Terminar() {
    PresentaBotones(false, true);
    m_ui->CmdContinuar->setFocus();
}

void frmZTFicheroAExportar::MostrarBarra() { m_ui->shpFondo->Empezar(); }

void frmZTFicheroAExportar::Avanzar(int hechos, int total) { m_ui->shpFondo->Avanzar(hechos, total); }
