#include "forms/online/DialogoInfoOnline.h"

#include "core/online/AsistenciaOnline.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "ui_DialogoInfoOnline.h"

using namespace Qt::StringLiterals;

namespace {}  // namespace

DialogoInfoOnline::DialogoInfoOnline(qint16 idioma, const QString& direccion, QWidget* padre)
    : QDialog(padre), m_ui(std::make_unique<Ui::DialogoInfoOnline>()) {
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(padre == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
    PonerTextos(idioma);
    m_ui->txtDireccion->setText(direccion);
    m_ui->txtDireccion->setCursorPosition(0);
    m_ui->cmdAbrir->setFocus();
    connect(m_ui->cmdAbrir, &QAbstractButton::clicked, this, [this, direccion] {
        EventoConTrampa(objectName(), u"DialogoInfoOnline.cmdAbrir_Click"_s,
                        [&direccion] { AbrirEnNavegador(direccion); });
    });
    connect(m_ui->cmdCerrar, &QAbstractButton::clicked, this, &QDialog::reject);
}

DialogoInfoOnline::~DialogoInfoOnline() = default;

void DialogoInfoOnline::PonerTextos(qint16 idioma) {
    setWindowTitle(TextoEn(Id::DescripcionDeAsistencia, idioma));
    m_ui->lblDescripcion->setText(TextoPropioDe(u"online_descripcion", idioma));
    m_ui->lblDireccion->setText(TextoPropioDe(u"online_direccion", idioma));
    m_ui->cmdAbrir->setText(TextoPropioDe(u"online_abrir", idioma));
    m_ui->cmdCerrar->setText(TextoPropioDe(u"online_cerrar", idioma));
}
