#pragma once

#include <algorithm>

#include "tests/support/ImpresoraGrabadora.h"

/// A page as the tables of the form tell of it: each element in its place, by the letter of its operation,
/// in the font set last.
class HojaEsperada {
  public:
    HojaEsperada& Letra(const QString& nombre, double puntos, bool negrita) {
        m_letra = {nombre, puntos, negrita};
        return *this;
    }
    HojaEsperada& Rotulos(double puntos) { return Letra(QStringLiteral("MS Sans Serif"), puntos, false); }
    HojaEsperada& RotulosNegrita(double puntos) {
        return Letra(QStringLiteral("MS Sans Serif"), puntos, true);
    }
    HojaEsperada& Datos(double puntos) { return Letra(QStringLiteral("Arial"), puntos, true); }

    HojaEsperada& T(double x, double y, const QString& texto) { return Escribir(x, y, texto); }
    HojaEsperada& C(double x, double y, double ancho, const QString& texto) {
        return Escribir(x + ancho / 2 - AnchoGrabado(m_letra, texto) / 2, y, texto);
    }
    HojaEsperada& L(double x, double y, const QString& texto) {
        return Escribir(x, y - 0.35 * AltoGrabado(m_letra), texto);
    }
    HojaEsperada& R(double x, double y, const QString& texto) {
        return Escribir(x - AnchoGrabado(m_letra, texto), y - 0.35 * AltoGrabado(m_letra), texto);
    }
    HojaEsperada& Raya(double x1, double y1, double x2, double y2) {
        marcas += RayaGrabada(x1, y1, x2, y2);
        return *this;
    }
    HojaEsperada& Marco(double x1, double y1, double x2, double y2) {
        marcas += MarcoGrabado(x1, y1, x2, y2);
        return *this;
    }
    HojaEsperada& Imagen(ImagenDeImpreso imagen, double x, double y) {
        marcas += ImagenGrabada(imagen, x, y);
        return *this;
    }

    QStringList marcas;

  private:
    HojaEsperada& Escribir(double x, double y, const QString& texto) {
        marcas += TextoGrabado(texto, x, y, m_letra);
        return *this;
    }

    LetraGrabada m_letra;
};

/// Every mark of the page, in its order.
inline void ComprobarHoja(const QStringList& pagina, const HojaEsperada& esperada) {
    for (qsizetype i = 0; i < std::min(pagina.size(), esperada.marcas.size()); ++i) {
        EXPECT_EQ(pagina.at(i), esperada.marcas.at(i)) << "mark " << i;
    }
    EXPECT_EQ(pagina.size(), esperada.marcas.size());
}

/// Whether the page has the marks, one right after the other.
inline bool ContieneSeguidas(const QStringList& pagina, const HojaEsperada& esperada) {
    return pagina.join(u'\n').contains(esperada.marcas.join(u'\n'));
}
