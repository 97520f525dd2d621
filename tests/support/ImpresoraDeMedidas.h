#pragma once

#include <QFontMetricsF>
#include <QLineF>
#include <QRectF>
#include <QString>
#include <vector>

#include "core/printing/DispositivoImpresion.h"

/// A text that was printed: its top left corner and its size in millimetres, and its font.
struct TextoMedido {
    QString texto;
    QRectF caja;
    double puntos = 0;
    bool negrita = false;
};

/// What was printed on a page, in millimetres.
struct PaginaMedida {
    std::vector<TextoMedido> textos;
    std::vector<QLineF> rayas;
    std::vector<QRectF> marcos;
};

struct DocumentoMedido {
    QString nombre;
    std::vector<PaginaMedida> paginas;
};

/// A device that writes down what is drawn on it, with the widths of the toolkit's font metrics in a size so
/// large that no rounding counts.
class ImpresoraDeMedidas : public DispositivoImpresion {
  public:
    void EmpezarLote() override {}
    void TerminarLote() override {}
    void AbandonarLote() noexcept override {}
    void NombrarDocumento(const QString& nombre) override { m_nombre = nombre; }
    void FirmarDocumento(const QString& /*autor*/) override {}
    void UsarMilimetros() override {}
    void FijarNombreDeLetra(const QString& /*nombre*/) override {
        // Both fonts of the forms have the same substitute.
    }
    void FijarTamanoDeLetra(double puntos) override { m_puntos = puntos; }
    void FijarNegrita(bool negrita) override { m_negrita = negrita; }
    double AnchoDeTexto(const QString& texto) override {
        return Medida().horizontalAdvance(texto) * Milimetros();
    }
    double AltoDeTexto(const QString& /*texto*/) override { return Medida().height() * Milimetros(); }
    void SituarPluma(double x, double y) override { m_pluma = QPointF(x, y); }
    void Escribir(const QString& texto) override {
        Pagina().textos.push_back(
            {texto, QRectF(m_pluma, QSizeF(AnchoDeTexto(texto), AltoDeTexto(texto))), m_puntos, m_negrita});
    }
    void Linea(double x1, double y1, double x2, double y2) override {
        Pagina().rayas.emplace_back(x1, y1, x2, y2);
    }
    void FijarRellenoBlanco() override {}
    void Rectangulo(double x1, double y1, double x2, double y2) override {
        Pagina().marcos.emplace_back(QPointF(x1, y1), QPointF(x2, y2));
    }
    void PintarImagen(ImagenDeImpreso /*imagen*/, double /*x*/, double /*y*/) override {}
    int NumeroDePagina() override { return static_cast<int>(Documento().paginas.size()); }
    void NuevaPagina() override { Documento().paginas.emplace_back(); }
    void TerminarDocumento() override { m_terminado = true; }

    std::vector<DocumentoMedido> documentos;

  private:
    static constexpr int kPixeles = 10'000;

    [[nodiscard]] QFontMetricsF Medida() const {
        QFont letra(QStringLiteral("Liberation Sans"));
        letra.setPixelSize(kPixeles);
        letra.setBold(m_negrita);
        letra.setHintingPreference(QFont::PreferNoHinting);
        return QFontMetricsF(letra);
    }
    /// Millimetres of a pixel of that font in the size set.
    [[nodiscard]] double Milimetros() const { return m_puntos / kPixeles * 25.4 / 72; }

    DocumentoMedido& Documento() {
        if (m_terminado) {
            documentos.push_back({m_nombre, {{}}});
            m_terminado = false;
        }
        return documentos.back();
    }
    PaginaMedida& Pagina() { return Documento().paginas.back(); }

    QString m_nombre;
    QPointF m_pluma;
    double m_puntos = 12;
    bool m_negrita = false;
    bool m_terminado = true;
};
