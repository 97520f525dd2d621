#pragma once

#include <QDateTime>
#include <QDir>
#include <QString>
#include <QStringList>

#include "core/base/Pantalla.h"
#include "tests/support/CopiasDePrueba.h"

// The folder that is attacked: an installation, the folder of its user with full stores and copies, and the
// files that he imports, exports and prints.

struct Escenario {
    explicit Escenario(QString carpeta) : raiz(std::move(carpeta)) {}

    /// What the installation brings, and the program folder of the user.
    [[nodiscard]] QString Origen() const { return raiz + QStringLiteral("/origen"); }
    [[nodiscard]] QString Usuario() const { return raiz + QStringLiteral("/usuario"); }
    /// Folder of a program that holds no data.
    [[nodiscard]] QString Ejecutable() const { return raiz + QStringLiteral("/programa"); }
    /// The user's home folder, where his documents are.
    [[nodiscard]] QString Casa() const { return raiz + QStringLiteral("/casa"); }
    [[nodiscard]] QString Almacen() const { return Usuario() + QStringLiteral("/Tablas/ZELTMOD.mdb"); }
    [[nodiscard]] QString Copias() const { return Usuario() + QStringLiteral("/backups"); }
    [[nodiscard]] QString Copia() const { return Copias() + QStringLiteral("/ZELTMod_bak.mdb"); }
    [[nodiscard]] QString Exportado() const { return Usuario() + QStringLiteral("/Declaran.txt"); }
    [[nodiscard]] QString Importado() const { return raiz + QStringLiteral("/importar.txt"); }

    QString raiz;
};

/// A screen without a user: takes every offer, and keeps what it is told of failures.
class PantallaSinUsuario : public CanalPantalla {
  public:
    PantallaSinUsuario() { FijarPantalla(this); }
    ~PantallaSinUsuario() override { FijarPantalla(nullptr); }

    void ShowError(const QString& /*formulario*/, const QString& evento, const QString& texto) override {
        fallos += evento + QStringLiteral(": ") + texto;
    }
    qint16 Mensaje(const QString& texto, const QString& /*titulo*/, bool /*unBoton*/) override {
        mensajes += texto;
        return kRespuestaAceptar;
    }
    void MostrarListaErrores(const Tabla& /*errores*/) override { fallos += QStringLiteral("faltas"); }
    void MensajePlataforma(const QString& texto, bool esFallo) override {
        (esFallo ? fallos : mensajes) += texto;
    }
    void PonerPuntero(Puntero /*puntero*/) override {}
    void CederUnaVez() override {}
    void Pitar() override {}

    QStringList fallos;
    QStringList mensajes;
};

/// One run of the program in the folder, without its windows: screen, copies with a clock of their own, and
/// paths of the run.
class EjecucionDeAtaque {
  public:
    explicit EjecucionDeAtaque(const Escenario& escenario, QDate dia = QDate(2007, 7, 4));
    ~EjecucionDeAtaque();
    EjecucionDeAtaque(const EjecucionDeAtaque&) = delete;
    EjecucionDeAtaque& operator=(const EjecucionDeAtaque&) = delete;

    /// Lays the folder out and brings stores and settings up, as the start of the program does. False when it
    /// does not go on.
    [[nodiscard]] bool Arrancar() const;

    PantallaSinUsuario pantalla;
    CopiasDePrueba copias;

  private:
    const Escenario& m_escenario;
};

/// Makes the folder: three declarants, four establishments, declarations with their annexes, a backup and an
/// automatic copy of an older state, a file to be imported, and an export of that older state.
void PrepararEscenario(const Escenario& escenario);
