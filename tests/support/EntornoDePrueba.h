#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "core/base/Instancias.h"
#include "core/base/Pantalla.h"
#include "core/base/Regional.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTTraspaso.h"
#include "core/start/Arranque.h"
#include "core/store/Almacenes.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/TextoPorNumero.h"

/// A screen channel that writes down what it is told and answers what the test says.
class PantallaGrabadora : public CanalPantalla {
  public:
    struct ErrorMostrado {
        QString formulario, evento, descripcion;
    };
    struct MensajeMostrado {
        QString texto, titulo;
        bool unBoton;
    };

    void ShowError(const QString& formulario, const QString& evento, const QString& descripcion) override {
        errores.push_back({formulario, evento, descripcion});
    }
    qint16 Mensaje(const QString& texto, const QString& titulo, bool unBoton) override {
        mensajes.push_back({texto, titulo, unBoton});
        return respuesta;
    }
    void MostrarListaErrores(const Tabla& lista) override { listas.push_back(lista); }
    void MensajePlataforma(const QString& texto, bool esFallo) override {
        plataforma.push_back(texto);
        ultimoEsFallo = esFallo;
    }
    void PonerPuntero(Puntero puntero) override { punteros.push_back(puntero); }
    void CederUnaVez() override { ++cesiones; }
    void Pitar() override { ++pitidos; }

    qint16 respuesta = 1;
    std::vector<ErrorMostrado> errores;
    std::vector<MensajeMostrado> mensajes;
    std::vector<Tabla> listas;
    std::vector<QString> plataforma;
    bool ultimoEsFallo = false;
    std::vector<Puntero> punteros;
    int cesiones = 0;
    int pitidos = 0;
};

/// A program folder of its own with both stores, a fixed clock, a recording screen, and no memory of other
/// tests.
class EntornoDePrueba : public testing::Test {
  protected:
    void SetUp() override {
        Reiniciar();
        FijarPantalla(&pantalla);
        ASSERT_TRUE(carpeta.isValid());
        Entorno().CarpetaPrograma = QDir::toNativeSeparators(carpeta.path());
        Entorno().CarpetaTemporal = QDir::toNativeSeparators(carpeta.filePath(QStringLiteral("tmp")));
        QDir().mkpath(carpeta.filePath(QStringLiteral("Tablas")));
        QDir().mkpath(carpeta.filePath(QStringLiteral("tmp")));
        Entorno().Reloj = [] { return QDateTime(QDate(2007, 7, 4), QTime(9, 8, 7)); };
        Entorno().Terminar = [this](int codigo) { terminado = codigo; };
        InicializarTodo();
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZELT_REFERENCIA), Entorno().mdblec));
        svrZELT::cZTTraspaso traspaso;
        traspaso.mdbmod = Entorno().mdbmod;
        traspaso.mdbPath = Entorno().mdbPath;
        ASSERT_FALSE(traspaso.Traspaso());
    }
    void TearDown() override {
        FijarPantalla(nullptr);
        Reiniciar();
    }

    static void Reiniciar() {
        ReiniciarInstancias();
        CerrarAlmacenes();
        ReiniciarEntorno();
        FijarRegional({});
    }

    QTemporaryDir carpeta;
    PantallaGrabadora pantalla;
    /// Exit code that the program ended with; -1 while it has not.
    int terminado = -1;
};
