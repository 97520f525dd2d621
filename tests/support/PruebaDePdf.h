#pragma once

#include <QDir>
#include <QFontDatabase>
#include <QPrinter>

#include "app/ZTAplicacion.h"
#include "forms/printing/DestinoDeImpresion.h"
#include "forms/printing/DispositivoQt.h"
#include "tests/support/EntornoDeImpresion.h"
#include "tests/support/FicherosDePrueba.h"

/// The stored declaration of `EntornoDeImpresion` and the printer of the real program on a machine without
/// printers, whose documents folder is a throw-away one.
class PruebaDePdf : public EntornoDeImpresion {
  protected:
    void SetUp() override {
        EntornoDeImpresion::SetUp();
        SustituirLetras();
        m_entorno = {{"HOME", qgetenv("HOME")},
                     {"XDG_CONFIG_HOME", qgetenv("XDG_CONFIG_HOME")},
                     {"CUPS_SERVER", qgetenv("CUPS_SERVER")}};
        qputenv("HOME", QFile::encodeName(carpeta.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(carpeta.path()));
        qputenv("CUPS_SERVER", QFile::encodeName(carpeta.filePath(QStringLiteral("sin_cola"))));
        FijarImpresora(&dispositivo);
    }
    void TearDown() override {
        for (const auto& [nombre, valor] : m_entorno) {
            valor.isNull() ? qunsetenv(nombre) : qputenv(nombre, valor);
        }
        EntornoDeImpresion::TearDown();
    }

    [[nodiscard]] QString Documentos() const { return carpeta.filePath(QStringLiteral("Documents")); }
    /// Names of all files in that folder, hidden ones too.
    [[nodiscard]] QStringList Ficheros() const {
        return QDir(Documentos()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    [[nodiscard]] QString Ruta(const QString& nombre) const { return Documentos() + u'/' + nombre; }

    static void PedirEjemplares(bool administracion, bool interesado, bool borrador, bool banco) {
        oImprimir().Administracion = administracion;
        oImprimir().Interesado = interesado;
        oImprimir().Borrador = borrador;
        oImprimir().EntBank = banco;
    }

    DispositivoQt dispositivo;

  private:
    std::vector<std::pair<const char*, QByteArray>> m_entorno;
};
