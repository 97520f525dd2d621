#pragma once

#include <QString>

/// The pictures that the printed forms paint, with their natural size in pixels of 1/96 inch.
enum class ImagenDeImpreso {
    Logo,         ///< 50 by 63: emblem of the authority.
    Declarante,   ///< 30 by 82: text reading upward, "Identifikazioa" and "Identificación".
    Justificante  ///< 49 by 142: text reading upward, "Ordainagiria" and "Justificante de ingreso".
};

/// What the drawing of the forms needs of a printer. There is one for the whole run: font and units stay set
/// until changed, also over new pages and documents.
///
/// Coordinates and sizes are in the units set, with the origin at the top left corner of the paper and Y
/// growing downward. Drawing begins a document by itself, as does asking for the page number. A failure of
/// the device raises `ErrorZT` with the run-time's printer error (482) and the cause.
class DispositivoImpresion {
  public:
    DispositivoImpresion() = default;
    DispositivoImpresion(const DispositivoImpresion&) = delete;
    DispositivoImpresion& operator=(const DispositivoImpresion&) = delete;
    virtual ~DispositivoImpresion() = default;

    /// Begins the batch of documents that one command prints.
    virtual void EmpezarLote() = 0;
    /// Ends it: tells the user, once, what he has to know of where the documents went.
    virtual void TerminarLote() = 0;
    /// Gives up what stands unfinished of it, without a failure of its own.
    virtual void AbandonarLote() noexcept = 0;

    /// Name of the documents that begin from now on: the spooler's job, the PDF's title and file name.
    virtual void NombrarDocumento(const QString& nombre) = 0;
    /// Author of those documents, told in PDFs. A spooler's job has its name and its creator only.
    virtual void FirmarDocumento(const QString& autor) = 0;

    virtual void UsarMilimetros() = 0;
    virtual void FijarNombreDeLetra(const QString& nombre) = 0;
    /// In points.
    virtual void FijarTamanoDeLetra(double puntos) = 0;
    virtual void FijarNegrita(bool negrita) = 0;
    /// Size of a text in the font set.
    [[nodiscard]] virtual double AnchoDeTexto(const QString& texto) = 0;
    [[nodiscard]] virtual double AltoDeTexto(const QString& texto) = 0;

    virtual void SituarPluma(double x, double y) = 0;
    /// Prints a text with its top left corner at the pen.
    virtual void Escribir(const QString& texto) = 0;
    /// A black line of the default width.
    virtual void Linea(double x1, double y1, double x2, double y2) = 0;
    /// Colour of solid fillings. The style of filling is none, and no form sets another.
    virtual void FijarRellenoBlanco() = 0;
    /// A black outline; what is there shows through it.
    virtual void Rectangulo(double x1, double y1, double x2, double y2) = 0;
    /// Paints a picture in its natural size with its top left corner at that point.
    virtual void PintarImagen(ImagenDeImpreso imagen, double x, double y) = 0;

    /// Number of the current page of the document, from 1.
    [[nodiscard]] virtual int NumeroDePagina() = 0;
    virtual void NuevaPagina() = 0;
    /// Ends the document and sends it on its way.
    virtual void TerminarDocumento() = 0;
};

/// The device in force. Raises 482 when none has been put in.
DispositivoImpresion& Impresora();

/// Puts a device in, or takes it away with nullptr. The caller keeps it alive.
void FijarImpresora(DispositivoImpresion* impresora);
