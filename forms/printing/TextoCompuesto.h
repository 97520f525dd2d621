#pragma once

#include <QString>
#include <QTextLayout>
#include <cstddef>

class QPainter;

/// Font of printed texts.
struct LetraDeImpreso {
    QString nombre;
    double puntos = 0;
    bool negrita = false;

    friend bool operator==(const LetraDeImpreso&, const LetraDeImpreso&) = default;
    friend std::size_t qHash(const LetraDeImpreso& letra, std::size_t semilla = 0) noexcept {
        return qHashMulti(semilla, letra.nombre, letra.puntos, letra.negrita);
    }
};

/// A line of text set in a font: laid out once, then measured and painted as often as need be, the same at
/// any resolution.
class TextoCompuesto {
  public:
    TextoCompuesto(const LetraDeImpreso& letra, const QString& texto);

    /// Width of the text, blanks at its ends included, and height of the line, in millimetres.
    [[nodiscard]] double Ancho() const { return m_ancho; }
    [[nodiscard]] double Alto() const { return m_alto; }

    /// Paints it with its top left corner at a point in millimetres. The painter works in units of the paper.
    void Pintar(QPainter& pintor, QPointF lugar) const;

  private:
    QTextLayout m_linea;
    double m_ancho = 0;
    double m_alto = 0;
};
