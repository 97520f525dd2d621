#pragma once

#include <QString>
#include <QStringView>
#include <exception>
#include <utility>

/// Numbers of the failures that the program raises. They are the numbers of the event-driven desktop
/// run-time whose rules the program follows, so that what the user reads to an adviser means the same.
enum class NumError : int {
    LlamadaNoValida = 5,
    Desbordamiento = 6,
    Subindice = 9,
    NoCoincidenTipos = 13,
    ErrorInterno = 51,
    NombreFicheroIncorrecto = 52,
    NoExisteFichero = 53,
    ErrorDispositivo = 57,
    DiscoLleno = 61,
    PermisoDenegado = 70,
    ErrorAccesoRuta = 75,
    NoExisteRuta = 76,
    ObjetoNoEstablecido = 91,
    UsoNoValidoDeNull = 94,
    FormularioDesconocido = 424,
    ErrorDeImpresora = 482,
    AlmacenNoEncontrado = 3024,
    AlmacenSoloLectura = 3027,
    AlmacenDiscoLleno = 3183,
    AlmacenCambiado = 3197,
    AlmacenErrorDisco = 3043,
    AlmacenDanado = 3049,
    AlmacenSinPermiso = 3051,
    AlmacenOrden = 3075,
    AlmacenOcupado = 3260,
    AlmacenVersion = 3340,
    AlmacenAjeno = 3343,
    CaracterFueraDePagina = 20001,
    ClaveRepetida = 35602,
    TextoInexistente = 326
};

/// The text of a failure: the platform's own, in Castellano as the run-time gives it, or that of this
/// program's own failures (stores, 20001), in the language in force.
QString TextoDeError(NumError numero);

/// A failure on its way up: number, source and description.
///
/// The description grows as it climbs: every procedure with a handler puts its fixed name and CR LF in
/// front (see `Procedimiento`), so that on the screen it reads as a trace, outermost procedure first.
class ErrorZT : public std::exception {
  public:
    /// Raises with the platform's own text.
    explicit ErrorZT(NumError numero);
    /// Raises with a description of its own, such as one that names a file and the cause.
    ErrorZT(NumError numero, QString descripcion, QString origen = QStringLiteral("ZELT"));

    [[nodiscard]] int Numero() const noexcept { return m_numero; }
    [[nodiscard]] const QString& Origen() const noexcept { return m_origen; }
    [[nodiscard]] const QString& Descripcion() const noexcept { return m_descripcion; }

    /// Puts `nombre` and CR LF in front of the description.
    void Anteponer(QStringView nombre);

    /// The description in UTF-8, for logs of tests and for the last net.
    [[nodiscard]] const char* what() const noexcept override { return m_utf8.constData(); }

  private:
    int m_numero;
    QString m_origen;
    QString m_descripcion;
    QByteArray m_utf8;
};

/// Runs `cuerpo`: a failure climbs on with the same number and source, and at the end of its description, in
/// brackets, the text that `detalle` gives: where in the file or of whom.
template <class Detalle, class F>
decltype(auto) ConDetalle(Detalle&& detalle, F&& cuerpo) {
    try {
        return std::forward<F>(cuerpo)();
    } catch (const ErrorZT& error) {
        throw ErrorZT(static_cast<NumError>(error.Numero()),
                      error.Descripcion() + QStringLiteral(" (%1)").arg(std::forward<Detalle>(detalle)()),
                      error.Origen());
    }
}

/// A failure of a library that nothing nearer to it has turned into one of the program's.
ErrorZT ErrorInterno(const std::exception& error);

/// Text of the platform's own message: "Error 'N' en tiempo de ejecución:", a blank line, the description.
QString MensajeDePlataforma(const ErrorZT& error);
