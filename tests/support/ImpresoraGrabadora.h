#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <limits>
#include <vector>

#include "core/base/ErrorZT.h"
#include "core/printing/DispositivoImpresion.h"

/// Font that texts are written in.
struct LetraGrabada {
    QString nombre;
    double puntos = 0.0;
    bool negrita = false;

    friend bool operator==(const LetraGrabada&, const LetraGrabada&) = default;
};

/// What the recorder takes the size of a text for: no real font's, but each of name, size, weight and length
/// counts.
inline double AnchoGrabado(const LetraGrabada& letra, const QString& texto) {
    const double porLetra = (letra.nombre == u"Arial" ? 0.02 : 0.03) + (letra.negrita ? 0.005 : 0.0);
    return letra.puntos * porLetra * static_cast<double>(texto.size());
}
inline double AltoGrabado(const LetraGrabada& letra) {
    return letra.puntos * (letra.nombre == u"Arial" ? 0.375 : 0.5);
}

// One mark on the paper, as a line of text that tells all of it:
//   texto "569" (176.5000,22.0000) MS Sans Serif 30 negrita
//   raya (75.0000,14.0000)-(75.0000,42.0000)
//   marco (10.0000,14.0000)-(192.0000,42.0000) blanco
//   imagen 0 (10.5000,14.5000)
inline QString Punto(double x, double y) {
    return QStringLiteral("(%1,%2)").arg(QString::number(x, 'f', 4), QString::number(y, 'f', 4));
}
inline QString TextoGrabado(const QString& texto, double x, double y, const LetraGrabada& letra) {
    return QStringLiteral("texto \"%1\" %2 %3 %4 %5")
        .arg(texto, Punto(x, y), letra.nombre, QString::number(letra.puntos),
             letra.negrita ? QStringLiteral("negrita") : QStringLiteral("normal"));
}
inline QString RayaGrabada(double x1, double y1, double x2, double y2) {
    return QStringLiteral("raya %1-%2").arg(Punto(x1, y1), Punto(x2, y2));
}
inline QString MarcoGrabado(double x1, double y1, double x2, double y2, bool blanco = true) {
    return QStringLiteral("marco %1-%2 %3")
        .arg(Punto(x1, y1), Punto(x2, y2), blanco ? QStringLiteral("blanco") : QStringLiteral("sin relleno"));
}
inline QString ImagenGrabada(ImagenDeImpreso imagen, double x, double y) {
    return QStringLiteral("imagen %1 %2").arg(static_cast<int>(imagen)).arg(Punto(x, y));
}

/// A document: the marks of each page in their order.
struct DocumentoGrabado {
    QString nombre;
    QString autor;
    std::vector<QStringList> paginas;
    bool terminado = false;
};

/// A device that writes down what is drawn, with the state in force, and that can fail. The pen is lost once
/// a text has been printed, as nobody may count on where it is then.
class ImpresoraGrabadora : public DispositivoImpresion {
  public:
    void EmpezarLote() override {
        Contar();
        ++lotesEmpezados;
    }
    void TerminarLote() override {
        Contar();
        ++lotesTerminados;
    }
    void AbandonarLote() noexcept override { ++lotesAbandonados; }
    void NombrarDocumento(const QString& nombre) override {
        Contar();
        m_nombre = nombre;
    }
    void FirmarDocumento(const QString& autor) override {
        Contar();
        m_autor = autor;
    }
    void UsarMilimetros() override {
        Contar();
        m_milimetros = true;
    }
    void FijarNombreDeLetra(const QString& nombre) override {
        Contar();
        letra.nombre = nombre;
    }
    void FijarTamanoDeLetra(double puntos) override {
        Contar();
        letra.puntos = puntos;
    }
    void FijarNegrita(bool negrita) override {
        Contar();
        letra.negrita = negrita;
    }
    double AnchoDeTexto(const QString& texto) override {
        Contar();
        return AnchoGrabado(letra, texto);
    }
    double AltoDeTexto(const QString& /*texto*/) override {
        Contar();
        return AltoGrabado(letra);
    }
    void SituarPluma(double x, double y) override {
        Contar();
        m_x = x;
        m_y = y;
    }
    void Escribir(const QString& texto) override {
        Anotar(TextoGrabado(texto, m_x, m_y, letra));
        m_x = m_y = std::numeric_limits<double>::quiet_NaN();
    }
    void Linea(double x1, double y1, double x2, double y2) override { Anotar(RayaGrabada(x1, y1, x2, y2)); }
    void FijarRellenoBlanco() override {
        Contar();
        m_blanco = true;
    }
    void Rectangulo(double x1, double y1, double x2, double y2) override {
        Anotar(MarcoGrabado(x1, y1, x2, y2, m_blanco));
    }
    void PintarImagen(ImagenDeImpreso imagen, double x, double y) override {
        Anotar(ImagenGrabada(imagen, x, y));
    }
    int NumeroDePagina() override {
        Contar();
        return static_cast<int>(EnCurso().paginas.size());
    }
    void NuevaPagina() override {
        Contar();
        EnCurso().paginas.emplace_back();
    }
    void TerminarDocumento() override {
        Contar();
        EnCurso().terminado = true;
    }

    /// Font in force; at first that of the device.
    LetraGrabada letra{QStringLiteral("Courier"), 12, false};
    std::vector<DocumentoGrabado> documentos;
    int lotesEmpezados = 0;
    int lotesTerminados = 0;
    int lotesAbandonados = 0;
    /// Operations so far, and how many of them go well before one fails.
    int operaciones = 0;
    int fallaTras = std::numeric_limits<int>::max();

  private:
    void Contar() {
        if (operaciones++ == fallaTras) {
            throw ErrorZT(NumError::ErrorDeImpresora, QStringLiteral("No hay papel"));
        }
    }
    void Anotar(const QString& marca) {
        Contar();
        EXPECT_TRUE(m_milimetros);
        EnCurso().paginas.back() += marca;
    }
    DocumentoGrabado& EnCurso() {
        if (documentos.empty() || documentos.back().terminado) {
            documentos.push_back({m_nombre, m_autor, {QStringList()}, false});
        }
        return documentos.back();
    }

    QString m_nombre;
    QString m_autor;
    bool m_milimetros = false;
    bool m_blanco = false;
    double m_x = std::numeric_limits<double>::quiet_NaN();
    double m_y = std::numeric_limits<double>::quiet_NaN();
};
