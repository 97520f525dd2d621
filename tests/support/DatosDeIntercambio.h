#pragma once

#include <QString>
#include <QStringList>

#include "core/base/Tabla.h"
#include "core/exchange/PantallasDeIntercambio.h"

// Declarants, lines and screens for the tests of the exchange.

/// A right tax number of a natural person, another for each number.
inline QString NifDePersona(int numero) {
    return QStringLiteral("%1").arg(numero, 8, 10, QChar(u'0')) +
           QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKE").at(numero % 23);
}

/// A record of a declarant that fits the line.
inline Registro DeclaranteDePrueba(const QString& nif,
                                   const QString& nombre = QStringLiteral("ÑANDÚ, S.L.")) {
    return {Valor(),
            nif,
            nombre,
            QStringLiteral("CL"),
            QStringLiteral("MAYOR"),
            qint32{12},
            QStringLiteral("A"),
            QStringLiteral("I"),
            QStringLiteral("3º"),
            QStringLiteral("DCH"),
            qint16{20},
            qint32{20001},
            qint16{1},
            QStringLiteral("ABARZELAI"),
            qint16{943},
            qint32{123456},
            Valor(),
            Valor()};
}

/// The screen of the export, as the writer sees it.
class PantallaDeExportacionGrabadora : public PantallaDeExportacion {
  public:
    explicit PantallaDeExportacionGrabadora(QString fichero) : m_fichero(std::move(fichero)) {}

    [[nodiscard]] QString Fichero() const override { return m_fichero; }
    [[nodiscard]] QString Titulo() const override { return QStringLiteral("Exportar"); }
    void Empezar() override { pasos += QStringLiteral("empezar"); }
    void Terminar() override { pasos += QStringLiteral("terminar"); }
    void MostrarBarra() override { pasos += QStringLiteral("barra"); }
    void Avanzar(int hechos, int total) override { pasos += QStringLiteral("%1/%2").arg(hechos).arg(total); }

    QStringList pasos;

  private:
    QString m_fichero;
};

/// The screen of the import.
class PantallaDeImportacionGrabadora : public PantallaDeImportacion {
  public:
    explicit PantallaDeImportacionGrabadora(bool automatica = false) : automatico(automatica) {}

    [[nodiscard]] bool Automatico() const override { return automatico; }
    [[nodiscard]] bool EnUtf8() const override { return enUtf8; }
    void MostrarBarra() override { pasos += QStringLiteral("barra"); }
    void Avanzar(int hechos, int total) override { pasos += QStringLiteral("%1/%2").arg(hechos).arg(total); }

    bool automatico;
    bool enUtf8 = false;
    QStringList pasos;
};
