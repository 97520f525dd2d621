#include "forms/printing/DestinoDeImpresion.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrinter>
#include <QStandardPaths>
#include <utility>

#include "core/base/CarpetaNueva.h"
#include "core/base/ErrorZT.h"
#include "core/base/Instancias.h"
#include "core/base/TextosPropios.h"
#include "core/printing/FicheroDePdf.h"
#include "core/run/Textos.h"
#include "forms/printing/DialogoDeImpresora.h"
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

/// What the dialog offers for printing to a file. Left as it is, each document has a name of its own.
constexpr QStringView kNombreOfrecido = u"569";
constexpr QStringView kPdf = u".pdf";

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
    // The dialog takes no file in a folder that is not there.
    const CarpetaDePaso carpeta(CarpetaDePdf());
    (void)QDir().mkpath(CarpetaDePdf());
    const QString ofrecido = m_nombreElegido.isEmpty() ? kNombreOfrecido.toString() : m_nombreElegido;
    DialogoDeImpresora cdbImprimir(Impresora(), CarpetaDePdf() + u'/' + ofrecido + kPdf.toString(), sobre);
    cdbImprimir.setObjectName(u"cdbImprimir"_s);
    if (EjecutarDialogo(cdbImprimir) == QDialog::Accepted) {
        m_elegida = true;
        TomarNombre();
    } else {
        cdbImprimir.Deshacer();
    }
}

/// A file that is there when it is chosen is one that the user has agreed to replace.
void DestinoDeImpresion::TomarNombre() {
    const QFileInfo elegido(Impresora().outputFileName());
    QString nombre = elegido.fileName();
    if (nombre.endsWith(kPdf, Qt::CaseInsensitive)) {
        nombre.chop(kPdf.size());
    }
    m_nombreElegido = nombre == kNombreOfrecido ? QString() : nombre;
    m_sustituir = !m_nombreElegido.isEmpty() && elegido.isFile() ? elegido.absoluteFilePath() : QString();
}

void DestinoDeImpresion::EmpezarLote() {
    AbandonarLote();
    if (!m_elegida) {
        m_impresora.reset();
    }
}

void DestinoDeImpresion::Entregar(const DocumentoDibujado& documento) {
    // The system's default can be the other way round, and a return on its side is cut off.
    Impresora().setPageOrientation(QPageLayout::Portrait);
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
    m_nombreElegido.clear();
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
                               fallo.isEmpty() ? TextoPropio(u"causa_impresora_muda") : fallo);
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
        throw FalloDeImpresora(documento.nombre, TextoPropio(u"causa_pdf"));
    }
    RecogerFichero();
    GuardarAparte(documento, pdf.data());
}

void DestinoDeImpresion::GuardarAparte(const DocumentoDibujado& documento, const QByteArray& pdf) {
    if (!m_sustituir.isEmpty()) {
        m_guardando = std::async(std::launch::async, ReponerPdf, std::exchange(m_sustituir, QString()),
                                 documento.autor, pdf);
        return;
    }
    m_guardando =
        std::async(std::launch::async, GuardarPdf, CarpetaDePdf(),
                   m_nombreElegido.isEmpty() ? documento.nombre : m_nombreElegido, documento.autor, pdf);
}

void DestinoDeImpresion::RecogerFichero() {
    if (m_guardando.valid()) {
        m_ficheros += m_guardando.get();
    }
}

DestinoDeImpresion& oDestinoDeImpresion() { return InstanciaUnica<DestinoDeImpresion>(); }
