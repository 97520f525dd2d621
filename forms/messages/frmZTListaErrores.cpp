#include "forms/messages/frmZTListaErrores.h"

#include "core/run/ListaDeErrores.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "ui_frmZTListaErrores.h"

using namespace Qt::StringLiterals;

frmZTListaErrores::frmZTListaErrores()
    : FormularioModal(kNombre), m_ui(std::make_unique<Ui::frmZTListaErrores>()) {
    m_ui->setupUi(this);
    QFont letra = m_ui->lstListaErrores->font();
    letra.setFamilies({u"Courier New"_s, u"Liberation Mono"_s});
    letra.setStyleHint(QFont::TypeWriter);
    m_ui->lstListaErrores->setFont(letra);
    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked,
             [this] { Formularios::Descargar(Nombre()); });
}

frmZTListaErrores::~frmZTListaErrores() = default;

void frmZTListaErrores::ListaErrores(const Tabla& errores) {
    m_errores = errores;
    RellenarListaDeErrores();
}

void frmZTListaErrores::RellenarListaDeErrores() {
    m_ui->lstListaErrores->clear();
    m_ui->lstListaErrores->addItems(LineasDeErrores(m_errores));
}

QAbstractButton* frmZTListaErrores::BotonDeEscape() { return m_ui->cmdAceptar; }
