#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>
#include <vector>

/// A fault of the data, with the file and the line in its text.
class FallaTsv : public std::runtime_error {
  public:
    FallaTsv(const QString& fichero, int linea, const QString& causa);
};

/// A row of a table and the line it stands on.
struct FilaTsv {
    int linea = 0;
    QStringList campos;
};

/// A table of tab-separated columns in UTF-8: the first line has the names of the columns, lines that begin
/// with "#" are comments. Every row has all fields, none empty and none with blanks around it.
class FicheroTsv {
  public:
    /// Reads the file. Raises `FallaTsv` for anything that is not as told, other columns included.
    FicheroTsv(QString ruta, const QStringList& columnas);

    [[nodiscard]] const std::vector<FilaTsv>& Filas() const { return m_filas; }

    /// Raises `FallaTsv` at the row.
    [[noreturn]] void Fallar(const FilaTsv& fila, const QString& causa) const;

    /// The field as a whole number within the bounds. Raises `FallaTsv`.
    [[nodiscard]] int Entero(const FilaTsv& fila, int columna, int minimo, int maximo) const;

    /// The field as an amount with six decimals, in millionths. Raises `FallaTsv`.
    [[nodiscard]] qint64 Millonesimas(const FilaTsv& fila, int columna) const;

  private:
    void LeerLinea(const QString& linea, int numero, const QStringList& columnas);

    QString m_ruta;
    std::vector<FilaTsv> m_filas;
};
