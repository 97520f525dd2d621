#pragma once

#include <QHash>
#include <QPointF>
#include <memory>
#include <utility>

#include "core/printing/DispositivoImpresion.h"
#include "forms/printing/DocumentoDibujado.h"

/// The printer of the real program. Documents are drawn in memory, go to `oDestinoDeImpresion()` when they
/// end, and are lost when the batch is given up before.
///
/// The font is "Arial", regular, until set.
class DispositivoQt : public DispositivoImpresion {
  public:
    void EmpezarLote() override;
    void TerminarLote() override;
    void AbandonarLote() noexcept override;
    void NombrarDocumento(const QString& nombre) override;
    void FirmarDocumento(const QString& autor) override;

    void UsarMilimetros() override;
    void FijarNombreDeLetra(const QString& nombre) override;
    void FijarTamanoDeLetra(double puntos) override;
    void FijarNegrita(bool negrita) override;
    [[nodiscard]] double AnchoDeTexto(const QString& texto) override;
    [[nodiscard]] double AltoDeTexto(const QString& texto) override;

    void SituarPluma(double x, double y) override;
    void Escribir(const QString& texto) override;
    void Linea(double x1, double y1, double x2, double y2) override;
    void FijarRellenoBlanco() override;
    void Rectangulo(double x1, double y1, double x2, double y2) override;
    void PintarImagen(ImagenDeImpreso imagen, double x, double y) override;

    [[nodiscard]] int NumeroDePagina() override;
    void NuevaPagina() override;
    void TerminarDocumento() override;

  private:
    using Clave = std::pair<LetraDeImpreso, QString>;

    /// The document under way, begun if need be.
    DocumentoDibujado& Documento();
    void Anadir(Marca marca);
    const std::shared_ptr<const TextoCompuesto>& Componer(const QString& texto);

    LetraDeImpreso m_letra{QStringLiteral("Arial"), 12.0, false};
    QPointF m_pluma;
    QString m_nombre;
    QString m_autor;
    std::unique_ptr<DocumentoDibujado> m_documento;
    /// Texts come back on every copy, and each is measured before it is printed.
    QHash<Clave, std::shared_ptr<const TextoCompuesto>> m_textos;
};
