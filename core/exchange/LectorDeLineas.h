#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>
#include <optional>

/// Reads the lines of a text in an 8-bit code page, one by one and in the memory of one block. A line ends
/// in CR LF, CR or LF; the last one may lack its end.
class LectorDeLineas {
  public:
    /// Lines of an open device, which must outlive the reader. Of each line `largoMaximo` bytes are given; a
    /// longer one loses its tail.
    LectorDeLineas(QIODevice& dispositivo, qsizetype largoMaximo);

    /// The next line without its end, nothing after the last one. The bytes are there until the next call.
    /// Raises 57 when the device cannot be read, and 20001 for a NUL: a text holds none.
    std::optional<QByteArrayView> Siguiente();

  private:
    bool Llenar();
    [[nodiscard]] QByteArrayView Resto() const { return QByteArrayView(m_bloque).first(m_fin).sliced(m_pos); }
    void Guardar(QByteArrayView trozo);

    QIODevice& m_dispositivo;
    qsizetype m_largoMaximo;
    QByteArray m_bloque;
    qsizetype m_pos = 0;
    qsizetype m_fin = 0;
    /// The last line ended in CR: an LF right behind is part of that end.
    bool m_trasCR = false;
    /// The beginning of a line that goes on in the next block.
    QByteArray m_linea;
};
