#include "forms/printing/DialogoDeImpresora.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QShowEvent>

using namespace Qt::StringLiterals;

EleccionDeImpresora::EleccionDeImpresora(const QPrinter& impresora)
    : m_formato(impresora.outputFormat()),
      m_nombre(impresora.printerName()),
      m_fichero(impresora.outputFileName()),
      m_hoja(impresora.pageLayout()) {}

void EleccionDeImpresora::Reponer(QPrinter& impresora) const {
    if (impresora.outputFormat() != m_formato) {
        impresora.setOutputFormat(m_formato);
    }
    if (impresora.printerName() != m_nombre) {
        impresora.setPrinterName(m_nombre);
    }
    if (impresora.outputFileName() != m_fichero) {
        impresora.setOutputFileName(m_fichero);
    }
    ReponerHoja(impresora);
}

DialogoDeImpresora::DialogoDeImpresora(QPrinter& impresora, const QString& fichero, QWidget& sobre)
    : DialogoDeImpresora(impresora, EleccionDeImpresora(impresora), sobre) {
    if (auto* caja = findChild<QLineEdit*>(u"filename"_s)) {
        caja->setText(fichero);
    }
}

DialogoDeImpresora::DialogoDeImpresora(QPrinter& impresora, const EleccionDeImpresora& enVigor,
                                       QWidget& sobre)
    : QPrintDialog(&impresora, &sobre),
      m_enVigor(enVigor),
      m_impresoras(findChild<QComboBox*>(u"printers"_s)) {
    setOptions(PrintToFile | PrintCollateCopies | PrintShowPageSize);
    // The toolkit's own dialog offers a range of pages whatever its options say.
    if (auto* paginas = findChild<QWidget*>(u"gbPrintRange"_s)) {
        paginas->setEnabled(false);
    }
    m_enVigor.Reponer(impresora);
    MostrarImpresora();
}

/// Printing to a file is in the list, and shown where it is in force, once the dialog is on the screen.
void DialogoDeImpresora::MostrarImpresora() {
    if (m_impresoras == nullptr) {
        return;
    }
    const int lugar = m_impresoras->findText(m_enVigor.Nombre());
    if (lugar >= 0) {
        m_impresoras->setCurrentIndex(lugar);
        m_enVigor.ReponerHoja(*printer());
    }
    connect(m_impresoras, &QComboBox::currentIndexChanged, this, [this] { m_hojaElegida = false; });
}

void DialogoDeImpresora::showEvent(QShowEvent* evento) {
    QPrintDialog::showEvent(evento);
    if (m_impresoras != nullptr && m_textoEnVigor.isEmpty()) {
        m_textoEnVigor = m_impresoras->currentText();
    }
}

bool DialogoDeImpresora::EsLaMisma() const {
    return m_impresoras != nullptr && m_impresoras->currentText() == m_textoEnVigor;
}

void DialogoDeImpresora::childEvent(QChildEvent* evento) {
    QPrintDialog::childEvent(evento);
    auto* propiedades = evento->polished() ? qobject_cast<QDialog*>(evento->child()) : nullptr;
    if (propiedades != nullptr) {
        PrepararPropiedades(*propiedades);
    }
}

void DialogoDeImpresora::PrepararPropiedades(QDialog& propiedades) {
    const auto* tumbada = propiedades.findChild<QAbstractButton*>(u"landscape"_s);
    auto* papeles = propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s);
    if (tumbada == nullptr || papeles == nullptr) {
        return;
    }
    tumbada->parentWidget()->hide();
    for (int i = 0; EsLaMisma() && i < papeles->count(); ++i) {
        if (papeles->itemData(i).value<QPageSize>().isEquivalentTo(m_enVigor.Hoja())) {
            papeles->setCurrentIndex(i);
            break;
        }
    }
    connect(&propiedades, &QDialog::accepted, this, [this] { m_hojaElegida = true; });
}

/// Without a look at its properties the toolkit takes the default paper of a printer.
void DialogoDeImpresora::accept() {
    const bool conSuHoja = EsLaMisma() && !m_hojaElegida;
    QPrintDialog::accept();
    if (conSuHoja) {
        m_enVigor.ReponerHoja(*printer());
    }
}
