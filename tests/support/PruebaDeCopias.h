#pragma once

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFileInfo>

#include "core/base/Instancias.h"
#include "core/copies/CopiaDeAlmacen.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/SumaDeFichero.h"
#include "core/store/Consulta.h"
#include "tests/support/CopiasDePrueba.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

/// Base of the tests of copies: a program folder with a store of two declarants and three declarations, and a
/// folder of copies beside it.
class PruebaDeCopias : public testing::Test {
  public:
    PruebaDeCopias() {
        ReiniciarInstancias();
        const qint32 uno = GuardarDeclarante(almacen, QStringLiteral("11111111H"));
        (void)GuardarDeclarante(almacen, QStringLiteral("22222222J"));
        for (const qint16 trimestre : {qint16{1}, qint16{2}, qint16{3}}) {
            (void)GuardarDeclaracion(almacen, uno, 2007, trimestre);
        }
        QDir().mkpath(copias());
    }
    ~PruebaDeCopias() override { ReiniciarInstancias(); }
    PruebaDeCopias(const PruebaDeCopias&) = delete;
    PruebaDeCopias& operator=(const PruebaDeCopias&) = delete;

  protected:
    [[nodiscard]] QString vivo() const { return almacen.mdbmod(); }
    [[nodiscard]] QString copias() const { return almacen.Carpeta() + QStringLiteral("/backups"); }
    [[nodiscard]] QString automaticas() const { return copias() + QStringLiteral("/auto"); }
    [[nodiscard]] QString copia() const { return copias() + QStringLiteral("/ZELTMod_bak.mdb"); }

    void Copiar() const { CopiarAlmacen(vivo(), copia(), std::nullopt, SinAvance); }

    [[nodiscard]] static QStringList Ficheros(const QString& carpeta) {
        return QDir(carpeta).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    /// NIF of the declarants of a store in the order of their making, joined by blanks.
    [[nodiscard]] static QString Declarantes(const QString& ruta) {
        return ConAlmacen(ClaseAlmacen::Copia, ruta, [](Almacen& base) {
            Consulta consulta(base, "SELECT group_concat(T05_NIF, ' ') FROM T05_DECLARANTES");
            consulta.Siguiente();
            return consulta.Texto(0);
        });
    }

    /// What stands in the file and in the sum beside it fit.
    static void EsperarSuma(const QString& ruta) {
        const QByteArray suma =
            QCryptographicHash::hash(LeerFichero(ruta), QCryptographicHash::Sha256).toHex();
        EXPECT_EQ(LeerFichero(ruta + QStringLiteral(".sha256")),
                  suma + "  " + QFileInfo(ruta).fileName().toUtf8() + '\n');
    }

    AlmacenTemporal almacen;
};

inline const QString kDosDeclarantes = QStringLiteral("11111111H 22222222J");
