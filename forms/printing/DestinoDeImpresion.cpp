#include "forms/printing/DestinoDeImpresion.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <utility>

#include "core/base/ErrorZT.h"
#include "core/base/Instancias.h"
#include "core/printing/FicheroDePdf.h"
#include "forms/printing/plataforma/ColaDeImpresion.h"
#include "forms/runtime/DialogosDePlataforma.h"

using namespace Qt::StringLiterals;

namespace {

const QString& Creador() {
    static const QString creador = u"ZELT"_s;
    return creador;
}

ErrorZT FalloDeImpresora(const QString& impresora, const QString& causa) {
    return {NumError::ErrorDeImpresora,
            TextoDeError(NumError::ErrorDeImpresora) + u": "_s + impresora + u". "_s + causa};
}

/// Which printer is in force. The dialog changes it while the user looks at others.
class EleccionDeImpresora {
  public:
    explicit EleccionDeImpresora(const QPrinter& impresora)
        : m_formato(impresora.outputFormat()),
          m_nombre(impresora.printerName()),
          m_fichero(impresora.outputFileName()) {}

    /// Puts it in force again.
    void Reponer(QPrinter& impresora) const {
        if (impresora.outputFormat() != m_formato) {
            impresora.setOutputFormat(m_formato);
        }
        if (impresora.printerName() != m_nombre) {
            impresora.setPrinterName(m_nombre);
        }
        if (impresora.outputFileName() != m_fichero) {
            impresora.setOutputFileName(m_fichero);
        }
    }

  private:
    QPrinter::OutputFormat m_formato;
    QString m_nombre;
    QString m_fichero;
};

/// A folder, made where it is missing, that goes again unless it is kept or something has been put there.
class CarpetaPropuesta {
  public:
    explicit CarpetaPropuesta(const QString& ruta)
        : m_ruta(ruta), m_hecha(!QDir(ruta).exists() && QDir().mkpath(ruta)) {}
    ~CarpetaPropuesta() {
        if (m_hecha) {
            QDir().rmdir(m_ruta);
        }
    }
    CarpetaPropuesta(const CarpetaPropuesta&) = delete;
    CarpetaPropuesta& operator=(const CarpetaPropuesta&) = delete;

    void Conservar() { m_hecha = false; }

  private:
    QString m_ruta;
    bool m_hecha;
};

}  // namespace

DestinoDeImpresion::DestinoDeImpresion() = default;

DestinoDeImpresion::~DestinoDeImpresion() = default;

QPrinter& DestinoDeImpresion::Impresora() {
    if (m_impresora == nullptr) {
        m_impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    return *m_impresora;
}

void DestinoDeImpresion::Elegir(QWidget& sobre) {
    const EleccionDeImpresora antes(Impresora());
    // The dialog takes no file in a folder that is not there.
    CarpetaPropuesta carpeta(CarpetaDePdf());
    ProponerFichero();
    QPrintDialog cdbImprimir(m_impresora.get(), &sobre);
    cdbImprimir.setObjectName(u"cdbImprimir"_s);
    cdbImprimir.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies |
                           QAbstractPrintDialog::PrintShowPageSize);
    // A return is printed whole. The toolkit's own dialog offers a range of pages whatever its options say.
    if (auto* paginas = cdbImprimir.findChild<QWidget*>(u"gbPrintRange"_s)) {
        paginas->setEnabled(false);
    }
    if (EjecutarDialogo(cdbImprimir) == QDialog::Accepted) {
        m_elegida = true;
        carpeta.Conservar();
    } else {
        antes.Reponer(*m_impresora);
    }
}

void DestinoDeImpresion::ProponerFichero() {
    m_impresora->setDocName(u"569"_s);
    if (m_impresora->outputFormat() == QPrinter::PdfFormat) {
        m_impresora->setOutputFileName(CarpetaDePdf() + u"/569.pdf"_s);
    }
}

void DestinoDeImpresion::EmpezarLote() {
    AbandonarLote();
    if (!m_elegida) {
        m_impresora.reset();
    }
}

void DestinoDeImpresion::Entregar(const DocumentoDibujado& documento) {
    if (VaAFichero()) {
        HacerPdf(documento);
    } else {
        Enviar(documento);
    }
}

QStringList DestinoDeImpresion::TerminarLote() {
    RecogerFichero();
    if (!m_ficheros.isEmpty()) {
        AsegurarPdf(QFileInfo(m_ficheros.back()).path());
    }
    return std::exchange(m_ficheros, {});
}

void DestinoDeImpresion::AbandonarLote() noexcept {
    // Letting go of it waits for it.
    m_guardando = {};
    m_ficheros.clear();
}

bool DestinoDeImpresion::VaAFichero() {
    return Impresora().outputFormat() == QPrinter::PdfFormat || !Impresora().outputFileName().isEmpty();
}

QString DestinoDeImpresion::CarpetaDePdf() {
    const QString fichero = Impresora().outputFileName();
    return fichero.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                             : QFileInfo(fichero).absolutePath();
}

void DestinoDeImpresion::Enviar(const DocumentoDibujado& documento) {
    QPrinter& impresora = Impresora();
    impresora.setFullPage(true);
    impresora.setDocName(documento.nombre);
    impresora.setCreator(Creador());
    const bool entregado = PintarDocumento(documento, impresora);
    const QString fallo = FalloDelUltimoTrabajo();
    if (!entregado || !fallo.isEmpty()) {
        throw FalloDeImpresora(impresora.printerName(),
                               fallo.isEmpty() ? u"La impresora no responde."_s : fallo);
    }
}

void DestinoDeImpresion::HacerPdf(const DocumentoDibujado& documento) {
    // In memory first: the toolkit does not look whether what it writes arrives.
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter papel(&pdf);
    QPageLayout hoja = Impresora().pageLayout();
    hoja.setMode(QPageLayout::FullPageMode);
    papel.setPageLayout(hoja);
    papel.setResolution(Impresora().resolution());
    papel.setTitle(documento.nombre);
    papel.setCreator(Creador());
    if (!PintarDocumento(documento, papel)) {
        throw FalloDeImpresora(documento.nombre, u"No se puede hacer el PDF."_s);
    }
    RecogerFichero();
    m_guardando = std::async(std::launch::async, GuardarPdf, CarpetaDePdf(), documento.nombre,
                             documento.autor, pdf.data());
}

void DestinoDeImpresion::RecogerFichero() {
    if (m_guardando.valid()) {
        m_ficheros += m_guardando.get();
    }
}

DestinoDeImpresion& oDestinoDeImpresion() { return InstanciaUnica<DestinoDeImpresion>(); }
