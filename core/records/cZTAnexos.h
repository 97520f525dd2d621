#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/records/Figuras.h"
#include "core/records/Tasas.h"
#include "core/services/EstadoLeido.h"
#include "core/services/svrZELT/CamposDeAnexo.h"
#include "core/services/svrZELT/CamposDeEstablecimiento.h"

class ListaDeEstablecimientos;

/// The annex lines of the open declaration, and the figures of the establishment on the screen; one
/// instance, `oAnexos()`.
///
/// A line is what one establishment sold of one product in the quarter. Entry works on `BufferAnexos` in
/// memory; nothing reaches the store until `GuardarDeclaracion`. The accessors of the figures take and give
/// the public scale: thousands of litres (tonnes for product 4), money, and money per such unit. Products
/// count from 1; another one raises 9.
class cZTAnexos {
  public:
    /// Screens in `Procedencia`: the form of the establishment, and the summary of the declaration.
    static constexpr qint32 kDesdeEstablecimiento = 7;
    static constexpr qint32 kDesdeDeclaracion = 8;

    /// Columns of `BufferEstDecl`.
    using ColumnaDeEstDecl = svrZELT::ListadoDeEstablecimientos::Columna;
    /// Establishments of the declarant, rows from 1. Null when there are none.
    Tabla BufferEstDecl;
    /// The user has changed a figure since the last save.
    bool Modificado = false;
    /// Rates now in force in the quarter of the declaration.
    Tasas vBufferTasas;
    /// Columns of `BufferAnexos`. `CSAN`, the key of the line, is Empty in a new one; figures are on the
    /// stored scale.
    using Columna = svrZELT::CamposDeAnexo::Columna;
    /// Annex lines, rows from 1. Null, or row 0 alone, when the declaration has none.
    Tabla BufferAnexos;
    /// Not in use: the declaration of the lines is `oDeclaraciones().CSDC`.
    qint32 CSDC = 0;
    /// Key of the establishment on the screen.
    qint32 CSES = 0;
    /// Not in use: docs/reglas.md, campos-sin-lector. The total of the screen is `SumaCuotas`.
    qint32 CSAN = 0;
    double TOTCUO = 0.0;
    /// How the form of the annexes was reached.
    qint32 Procedencia = 0;
    /// Whether new rates wait to be applied at the next change (see `ComprobarDiferenciasDeTipo`).
    bool DiferenciasDeTipo = false;
    /// Why the store refused the last `GuardarDeclaracion`; empty when it did not.
    QString CausaDelFallo;

    /// Exempt quantity, taxable base and quota, rounded to two decimals, and rate, rounded to six.
    [[nodiscard]] double SUMEX(int k) const;
    [[nodiscard]] double BASIM(int k) const;
    [[nodiscard]] double TIPIM(int k) const;
    [[nodiscard]] double CUOTA(int k) const;

    /// Nothing is rounded on the way in.
    void SUMEX(int k, double valor);
    void BASIM(int k, double valor);
    void TIPIM(int k, double valor);
    void CUOTA(int k, double valor);

    /// Reads `BufferEstDecl`.
    void RellenarEstDecl();
    /// Products with a line for an establishment, ascending, joined by commas. Raises 9 for an establishment
    /// with more than five lines.
    [[nodiscard]] QString ProductosEstablecimiento(qint32 lngCSES) const;
    /// Reads the lines of the declaration of `oDeclaraciones()`.
    void CargarAnexos();
    /// Sets quantities and quotas and `TOTCUO` to 0. Rates, `CSES` and buffers stay.
    void InicializarDatos();

    /// Brings the figures of the establishment on the screen into `BufferAnexos` and its products into the
    /// list of establishments. A product with both quantities at 0 loses its line; one without a line gets
    /// one where a quantity is above 0. The result is always False.
    bool GuardarAnexo(ListaDeEstablecimientos& lista);
    /// Takes the figures of the establishment `CSES` out of `BufferAnexos`. Products without a line stay as
    /// they are.
    void ObtenerAnexoEstab();

    /// Reads the rates in force and compares them with those of the declaration, brought down one scale too
    /// far: they differ whenever a rate is not 0. What a difference does is decided line by line by
    /// `ActualizarTipos`. Raises 13 when there are no rates.
    void ComprobarDiferenciasDeTipo();
    /// Takes the rates in force for the figures on the screen and for all lines. A line whose rate was
    /// another gets a quota of its own scale, which stands in the buffer until a base of its establishment
    /// is left; the store computes its own at the save.
    void ActualizarTipos();

    /// What the user typed for a product: the text of the box that he left. New rates are applied at the
    /// first change, and a base brings the quotas with it.
    void TomarExento(int k, const QString& texto);
    void TomarBaseImp(int k, const QString& texto);
    /// Sum of the six quotas on the screen.
    [[nodiscard]] double SumaCuotas() const;

    /// Stores all lines. False, with `CausaDelFallo`, when the store refuses, and when another program has
    /// changed the declaration since its lines were read or saved here.
    [[nodiscard]] bool GuardarDeclaracion();

  private:
    [[nodiscard]] int BuscarLinea(int k) const;
    [[nodiscard]] bool GuardarProducto(int k);
    void PonerLinea(int fila, const Figuras& figuras);
    void AnadirLinea(int k);
    void QuitarAnexoProducto(int k);
    void MostrarProductos(ListaDeEstablecimientos& lista) const;
    void AplicarTasasPendientes();
    void CalcularCuotas();

    FigurasPorProducto m_figuras;
    /// What stood in the store at the last load or save.
    EstadoLeido m_leido;
};

/// The shared instance.
cZTAnexos& oAnexos();
