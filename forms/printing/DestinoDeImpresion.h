#pragma once

#include <QString>
#include <QStringList>
#include <future>
#include <memory>

#include "forms/printing/DocumentoDibujado.h"

class QPrinter;
class QWidget;

/// Where printed documents go: to the printer that the user has chosen, else to the system's default one.
/// Where there is none, or with printing to a file chosen, each becomes a PDF of its own name, in the user's
/// documents folder or the chosen one. All stand upright. There is one, `oDestinoDeImpresion()`; the system
/// is asked for its printers on first use only.
class DestinoDeImpresion {
  public:
    DestinoDeImpresion();
    ~DestinoDeImpresion();
    DestinoDeImpresion(const DestinoDeImpresion&) = delete;
    DestinoDeImpresion& operator=(const DestinoDeImpresion&) = delete;

    /// Opens the system's printer dialog over a window. What is chosen there, paper and all, holds for all
    /// documents that follow; cancelling it changes nothing. The name of a file typed there is that of the
    /// next batch: of its first document, the others have numbers behind it.
    void Elegir(QWidget& sobre);

    /// The printer, in the toolkit's terms: the same for all documents of a batch.
    QPrinter& Impresora();

    /// A batch begins. A default printer that has changed since the last one is seen.
    void EmpezarLote();

    /// Sends a document on its way. Raises 482 with the printer and the cause when it does not take it. A PDF
    /// reaches the disk while the next document is drawn: a failure of that, as of `GuardarPdf`,
    /// comes with that next one, which is then not sent, or with the end of the batch.
    void Entregar(const DocumentoDibujado& documento);

    /// Ends the batch: waits until all of it is on disk, and gives the paths of its PDFs in their order.
    QStringList TerminarLote();
    /// Ends it where it stands, with what has been sent.
    void AbandonarLote() noexcept;

  private:
    [[nodiscard]] bool VaAFichero();
    [[nodiscard]] QString CarpetaDePdf();
    /// Takes the name of the file that the user has chosen.
    void TomarNombre();
    void Enviar(const DocumentoDibujado& documento);
    void HacerPdf(const DocumentoDibujado& documento);
    /// Begins to save a PDF.
    void GuardarAparte(const DocumentoDibujado& documento, const QByteArray& pdf);
    /// Waits for the PDF that is being saved, if there is one.
    void RecogerFichero();

    std::unique_ptr<QPrinter> m_impresora;
    bool m_elegida = false;
    /// Without extension; empty when documents go by their own names.
    QString m_nombreElegido;
    /// Path of the file that the next document replaces; empty when there is none.
    QString m_sustituir;
    QStringList m_ficheros;
    std::future<QString> m_guardando;
};

/// The shared instance.
DestinoDeImpresion& oDestinoDeImpresion();
