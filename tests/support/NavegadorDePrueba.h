#pragma once

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "tests/support/FicherosDePrueba.h"

/// A desktop of the test's own: the search path leads to an empty folder, into which a test puts what it
/// wants found. The browser there writes down what it is asked to open.
class NavegadorDePrueba {
  public:
    NavegadorDePrueba() : m_ruta(qgetenv("PATH")) { qputenv("PATH", m_carpeta.path().toLocal8Bit()); }
    ~NavegadorDePrueba() { qputenv("PATH", m_ruta); }
    NavegadorDePrueba(const NavegadorDePrueba&) = delete;
    NavegadorDePrueba& operator=(const NavegadorDePrueba&) = delete;

    /// Path of a program of that name, as if it were installed.
    [[nodiscard]] QString Ruta(const QString& programa) const { return m_carpeta.filePath(programa); }

    /// Installs a browser under that name.
    void Instalar(const QString& programa = QStringLiteral("xdg-open")) const {
        Guion(programa, "printf '%s\\n' \"$#\" \"$@\" fin > '" + QFile::encodeName(Ruta(kAbierto)) + "'");
    }
    /// Installs a program that does what `orden` says.
    void Guion(const QString& programa, const QByteArray& orden) const {
        EscribirFichero(Ruta(programa), "#!/bin/sh\n" + orden + "\n");
        QFile::setPermissions(Ruta(programa), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// What the browser was asked to open: the number of arguments, then the arguments, each in a line. Waits
    /// for it, since it runs beside the test; forgets it afterwards.
    [[nodiscard]] QByteArray Abierto() const {
        QElapsedTimer reloj;
        reloj.start();
        QByteArray texto;
        while (!texto.endsWith("fin\n") && !reloj.hasExpired(kPlazoMs)) {
            QThread::msleep(1);
            texto = LeerFichero(Ruta(kAbierto));
        }
        QFile::remove(Ruta(kAbierto));
        return texto.chopped(qMin<qsizetype>(texto.size(), 4));
    }
    /// True when nothing has been opened so far.
    [[nodiscard]] bool NadaAbierto() const { return !QFile::exists(Ruta(kAbierto)); }

  private:
    static constexpr qint64 kPlazoMs = 10'000;
    static inline const QString kAbierto = QStringLiteral("abierto.txt");
    QTemporaryDir m_carpeta;
    QByteArray m_ruta;
};
