#pragma once

#include <QString>

/// The list of quarters of a form (`lsvPeriodos`), as far as a record fills it. Widths are in twips.
class ListaDeTrimestres {
  public:
    ListaDeTrimestres() = default;
    ListaDeTrimestres(const ListaDeTrimestres&) = delete;
    ListaDeTrimestres& operator=(const ListaDeTrimestres&) = delete;
    virtual ~ListaDeTrimestres() = default;

    virtual void Limpiar() = 0;
    virtual void LimpiarColumnas() = 0;
    [[nodiscard]] virtual int Ancho() const = 0;
    virtual void AnadirColumna(const QString& texto, int ancho) = 0;
    virtual void PermitirReordenarColumnas() = 0;
    virtual void Anadir(const QString& clave, const QString& texto) = 0;
};
