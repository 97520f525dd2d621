#pragma once

#include "core/records/Figuras.h"
#include "core/records/Tasas.h"

/// The open declaration: figures of the six products and total quota; one instance, `oDeclaraciones()`.
///
/// The figures are the store's sums over the annex lines; the program reads them here and changes them in
/// no other way. Reading gives the public scale: thousands of litres (tonnes for product 4), money, and
/// money per such unit. Writing takes the value on the stored scale (hundredths, millionths) as given, but
/// for `SUMEX` of product 1, which takes it times 100. Products count from 1; another one raises 9.
class cZTDeclaraciones {
  public:
    /// Uses of the record in `Modo`.
    static constexpr qint32 kModoExistente = 0;
    static constexpr qint32 kModoNuevo = 2;

    /// 2 a new declaration, 0 an existing one; `InicializarDatos` does nothing with any other value.
    qint32 Modo = kModoExistente;
    /// What `CargarTipImp` read last.
    Tasas vBufferTasas;
    /// Key of the declaration.
    qint32 CSDC = 0;
    /// Year and quarter (1 to 4). They come from the caller, never from the store.
    qint16 Ejercicio = 0;
    qint16 Periodo = 0;
    /// A screen that nothing here sets or reads: docs/reglas.md, campos-sin-lector.
    qint32 Procedencia = 0;

    /// Exempt quantity and taxable base, rounded to two decimals.
    [[nodiscard]] double SUMEX(int k) const;
    [[nodiscard]] double BASIM(int k) const;
    /// Rate, rounded to six decimals.
    [[nodiscard]] double TIPIM(int k) const;
    /// Quota, rounded to six decimals (to two in `cZTAnexos`).
    [[nodiscard]] double CUOTA(int k) const;
    /// Total quota, not rounded.
    [[nodiscard]] double TOTCUO() const;

    void SUMEX(int k, double valor);
    void BASIM(int k, double valor);
    void TIPIM(int k, double valor);
    void CUOTA(int k, double valor);
    void TOTCUO(double valor);

    /// `Modo` 2: zeros everywhere, year and quarter included, and the rates of the quarter in `oNuevaDec()`.
    /// `Modo` 0: loads the declaration `CSDC`.
    void InicializarDatos();
    /// Fills the figures from the store and gives `oAnexos()` the rates. A declaration whose first rate is
    /// exactly 0 takes those in force in its quarter.
    void CargarDeclaracion();
    /// Whether what `CargarDeclaracion` read last is there and is that declarant's return of that quarter.
    /// Another program can have deleted it, or put another one under its key by restoring a copy.
    [[nodiscard]] bool EsLaDe(qint32 CSDE, qint16 ejercicio, qint16 periodo) const;
    /// Whether the figures read last do not add up (see `DescuadresDe`). They are shown as they are stored,
    /// and the log has the values.
    [[nodiscard]] bool Descuadrada() const { return m_descuadrada; }
    /// Takes the rates in force in a quarter, here and in `oAnexos()`. Where the reference store has none,
    /// all rates stay as they were.
    void CargarTipImp(qint16 intEjercicio, qint16 intPeriodo);

  private:
    void Cuadrar(const Tabla& lineas);

    /// The row that the store gave last, whole.
    Registro m_fila;
    FigurasPorProducto m_figuras;
    Centesimas m_totcuo;
    bool m_descuadrada = false;
};

/// The shared instance.
cZTDeclaraciones& oDeclaraciones();
