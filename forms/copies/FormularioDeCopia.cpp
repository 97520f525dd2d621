#include "forms/copies/FormularioDeCopia.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QScopeGuard>

#include "core/base/Pantalla.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"

using namespace Qt::StringLiterals;

FormularioDeCopia::FormularioDeCopia(QStringView nombre) : FormularioModal(nombre) {}

void FormularioDeCopia::PrepararBarra(QProgressBar& barra) {
    QSizePolicy sitio = barra.sizePolicy();
    sitio.setRetainSizeWhenHidden(true);
    barra.setSizePolicy(sitio);
    barra.hide();
}

std::optional<FalloDeCopia> FormularioDeCopia::Trabajar(QProgressBar& barra, const Trabajo& trabajo) {
    QWidget* const foco = focusWidget();
    m_trabajando = true;
    setEnabled(false);
    barra.setValue(0);
    barra.show();
    Pantalla().PonerPuntero(Puntero::Espera);
    Pantalla().CederUnaVez();
    const auto salida = qScopeGuard([&] {
        // Keys and clicks that have come meanwhile go to a form that takes none.
        QCoreApplication::processEvents();
        Pantalla().PonerPuntero(Puntero::Normal);
        barra.hide();
        setEnabled(true);
        m_trabajando = false;
        if (foco != nullptr) {
            foco->setFocus();
        }
    });
    return trabajo([&](int porcentaje) {
        if (porcentaje > barra.value()) {
            barra.setValue(porcentaje);
            Pantalla().CederUnaVez();
        }
    });
}

bool FormularioDeCopia::ElegirFichero(QLineEdit& carpeta, QLineEdit& nombre, const QString& filtro,
                                      QFileDialog::AcceptMode modo) {
    QFileDialog dialogo(this, windowTitle(), carpeta.text(), filtro);
    dialogo.setObjectName(u"dlgFichero"_s);
    dialogo.setAcceptMode(modo);
    dialogo.setFileMode(modo == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // The form asks by itself, whichever way the name came into its box.
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    dialogo.selectFile(nombre.text());
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return false;
    }
    const QFileInfo elegido(dialogo.selectedFiles().constFirst());
    carpeta.setText(QDir::toNativeSeparators(elegido.absolutePath()));
    nombre.setText(elegido.fileName());
    return true;
}

bool FormularioDeCopia::Preguntar(const QString& pregunta) const {
    Entorno().RespuestaMensaje = kRespuestaCancelar;
    return Mensaje(pregunta, windowTitle(), false) == kRespuestaAceptar;
}

void FormularioDeCopia::Avisar(const QString& aviso) const { Mensaje(aviso, windowTitle(), true); }

void FormularioDeCopia::closeEvent(QCloseEvent* evento) {
    if (m_trabajando) {
        evento->ignore();
        return;
    }
    FormularioModal::closeEvent(evento);
}
