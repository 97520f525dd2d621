#pragma once

#include <QTextBrowser>

/// The topic that is being read. It stays within the folder of its help set: what lies elsewhere, on the
/// network or on the disk, is neither shown nor loaded, whoever asks for it.
class TextoAyuda : public QTextBrowser {
    Q_OBJECT
  public:
    explicit TextoAyuda(QWidget* padre = nullptr);

    /// Folder of the help set from here on.
    void PonerCarpeta(const QString& carpeta);

    /// Shows a topic of the set by the name of its file. One that is missing is told in its place.
    void IrA(const QString& tema);

    /// Selects the next place that has the text, or the one before, going round at the end. Capitals and
    /// accents make no difference. False, with nothing changed, when there is none.
    bool Encontrar(const QString& texto, bool haciaAtras = false);

    /// Width with which its widest pictures have room.
    [[nodiscard]] int AnchoNecesario() const;

    /// Larger or smaller letters, by steps of a point within limits; 0 gives the size of the start back.
    void Ampliar(int pasos);

    QVariant loadResource(int tipo, const QUrl& nombre) override;

  Q_SIGNALS:
    /// The topic of that file is on the screen, or the word that it is missing.
    void TemaMostrado(const QString& tema);

  protected:
    void doSetSource(const QUrl& nombre, QTextDocument::ResourceType tipo) override;

  private:
    [[nodiscard]] bool EsDelJuego(const QUrl& nombre) const;
    [[nodiscard]] QVariant Imagen(const QString& ruta) const;

    QString m_carpeta;
    qreal m_tamanoInicial;
};
