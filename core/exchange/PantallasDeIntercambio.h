#pragma once

#include <QString>

/// What export and import need of their screens; recorders take their place in tests.
class PantallaDeIntercambio {
  public:
    PantallaDeIntercambio() = default;
    PantallaDeIntercambio(const PantallaDeIntercambio&) = delete;
    PantallaDeIntercambio& operator=(const PantallaDeIntercambio&) = delete;
    virtual ~PantallaDeIntercambio() = default;

    /// Shows the bar (`shpBarra` over `shpFondo`), empty.
    virtual void MostrarBarra() = 0;
    /// Gives the bar `hechos` parts out of `total` of the width of its ground, and lets the window repaint.
    virtual void Avanzar(int hechos, int total) = 0;
};

/// The screen that asks for the file of the export.
class PantallaDeExportacion : public PantallaDeIntercambio {
  public:
    /// The file to be written, and the caption of the screen.
    [[nodiscard]] virtual QString Fichero() const = 0;
    [[nodiscard]] virtual QString Titulo() const = 0;
    /// Writing begins: accept and cancel go.
    virtual void Empezar() = 0;
    /// All is written: the button to go on comes.
    virtual void Terminar() = 0;
};

/// The screen of the import.
class PantallaDeImportacion : public PantallaDeIntercambio {
  public:
    /// True when declarants that exist are replaced without a question.
    [[nodiscard]] virtual bool Automatico() const = 0;
    /// True when the user wants the file read as UTF-8 instead of in the code page of the exchange.
    [[nodiscard]] virtual bool EnUtf8() const { return false; }
};
