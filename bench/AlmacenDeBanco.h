#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "core/start/Arranque.h"
#include "core/store/Almacen.h"

/// A throw-away program folder with both stores, for measuring.
class AlmacenDeBanco {
  public:
    AlmacenDeBanco() {
        Entorno().CarpetaPrograma = QDir::toNativeSeparators(m_carpeta.path());
        QDir(m_carpeta.path()).mkdir(QStringLiteral("Tablas"));
        InicializarTodo();
        QFile::copy(QStringLiteral(ZELT_REFERENCIA), Entorno().mdblec);
        if (!Traspaso()) {
            InicializarEntorno();
        }
    }
    ~AlmacenDeBanco() { CerrarAlmacenes(); }
    AlmacenDeBanco(const AlmacenDeBanco&) = delete;
    AlmacenDeBanco& operator=(const AlmacenDeBanco&) = delete;

    /// Makes declarants without waiting for the disk; gives the key of the last one.
    qint32 CrearDeclarantes(int cuantos) const {
        NoEsperarAlDisco();
        qint32 ultimo = 0;
        for (int i = 0; i < cuantos; ++i) {
            svrZELT::cZTDeclarante servidor;
            servidor.mdbmod = Entorno().mdbmod;
            ultimo = servidor.GuardarDeclarante(Declarante(i));
        }
        CerrarAlmacenes();
        return ultimo;
    }

    /// Makes establishments of a declarant without waiting for the disk.
    void CrearEstablecimientos(qint32 CSDE, int cuantos) const {
        NoEsperarAlDisco();
        for (int i = 0; i < cuantos; ++i) {
            svrZELT::cZTEstablecimientos servidor;
            servidor.mdbmod = Entorno().mdbmod;
            servidor.GuardaEstablecimiento({Valor(), CSDE,
                                            QStringLiteral("20ES%1X").arg(i, 5, 10, QChar(u'0')),
                                            QStringLiteral("CARRETERA %1").arg(i), qint16{20}, qint16{2},
                                            QStringLiteral("AGERLEKUAIN")});
        }
        CerrarAlmacenes();
    }

  private:
    static void NoEsperarAlDisco() {
        AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base().exec("PRAGMA synchronous = OFF");
    }

    /// Names and numbers in no order, as in a real office.
    static Registro Declarante(int i) {
        const int revuelto = static_cast<int>(i * 7919LL % 100003);
        return {Valor(),
                QStringLiteral("%1Z").arg(10000000 + revuelto),
                QStringLiteral("EMPRESA NÚMERO %1 ÑANDÚ").arg(revuelto),
                QStringLiteral("CL"),
                QStringLiteral("MAYOR"),
                qint32{i % 300},
                QString(),
                QString(),
                QString(),
                QString(),
                static_cast<qint16>(1 + i % 52),
                qint32{20001},
                qint16{1},
                QStringLiteral("ABARZELAI"),
                qint16{943},
                qint32{123456},
                Valor(),
                Valor()};
    }

    QTemporaryDir m_carpeta;
};
