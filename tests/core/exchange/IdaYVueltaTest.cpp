// What is exported, imported into an empty store and exported again is the same, byte for byte.

#include "core/exchange/ExporacionZT.h"
#include "core/exchange/ImportacionZT.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/exchange/cZTImportaciones.h"
#include "core/services/SvrKLComunLib/cMiscelaneos.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/AlmacenRapido.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

/// Size of the longest lists of declarants.
constexpr int kMuchos = 8;

/// All characters of the code page but the controls of ASCII, its five unassigned bytes included, with those
/// of the language first, so that what fails shrinks to plain letters.
const QString& Caracteres() {
    static const QString caracteres = [] {
        QString c = u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZÇÁÉÍÓÚÜºª 0123456789"_s;
        for (char16_t u = u' '; u <= 0xFF; ++u) {
            if ((u < 0x7F || u > 0x9F) && !c.contains(QChar(u))) {
                c += QChar(u);
            }
        }
        return c + u"\u0081\u008D\u008F\u0090\u009D"_s + u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"_s;
    }();
    return caracteres;
}

/// A text of up to `ancho` characters, one that fills the field as often as any other. Blanks at its right
/// end are the padding's.
rc::Gen<QString> Texto(int ancho) {
    return rc::gen::exec([ancho] {
        QString texto;
        const auto largos = rc::gen::oneOf(rc::gen::just(ancho), rc::gen::inRange(0, ancho + 1));
        for (int n = *largos; n > 0; --n) {
            texto += Caracteres().at(*rc::gen::inRange<qsizetype>(0, Caracteres().size()));
        }
        while (texto.endsWith(u' ')) {
            texto.chop(1);
        }
        return texto;
    });
}

/// One of which the check of the import says that it is there.
rc::Gen<QString> TextoConAlgo(int ancho) {
    return rc::gen::suchThat(Texto(ancho), [](const QString& t) { return !t.isEmpty(); });
}

/// A number of up to `cifras` digits, the limits as often as any other.
template <class Entero>
rc::Gen<Valor> Numero(int cifras) {
    qint32 maximo = 1;
    for (int i = 0; i < cifras; ++i) {
        maximo *= 10;
    }
    return rc::gen::map(
        rc::gen::oneOf(rc::gen::just(0), rc::gen::just(maximo - 1), rc::gen::inRange(0, maximo)),
        [](int n) { return Valor(static_cast<Entero>(n)); });
}

/// A right tax number of every kind, another for each number: of natural persons, of those with K, L, M and
/// of foreigners, which have the same letter, and of entities with a digit or a letter.
QString Nif(int numero) {
    constexpr QStringView kClases = u"0KLMXYZABCDEFGHJNPQRSUVW";
    const QChar clase = kClases.at(numero % kClases.size());
    const QString persona = NifDePersona(numero);
    if (clase == u'0') {
        return persona;
    }
    const QString centro = persona.sliced(1, 7);
    for (const QChar control : u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s) {
        const QString nif = clase + centro + control;
        if (SvrKLComunLib::cMiscelaneos().ValidaNifCif(nif)) {
            return nif;
        }
    }
    qFatal("no control for %s", qUtf8Printable(clase + centro));
}

Registro Declarante(int numero) {
    return {Valor(),
            Nif(numero),
            *TextoConAlgo(40),
            *TextoConAlgo(2),
            *TextoConAlgo(30),
            *Numero<qint32>(5),
            *Texto(2),
            *Texto(2),
            *Texto(2),
            *Texto(3),
            *Numero<qint16>(2),
            *Numero<qint32>(5),
            *Numero<qint16>(3),
            *TextoConAlgo(25),
            *Numero<qint16>(3),
            *Numero<qint32>(7),
            Valor(),
            Valor()};
}

class IdaYVueltaTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        NoEsperarAlDisco();
    }

    static svrZELT::cZTDeclarante Servidor() {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor;
    }
    /// Keys of all declarants, ordered by NIF.
    static Registro Claves() {
        const Tabla declarantes = Servidor().ObtenerDeclarantes();
        Registro claves;
        for (int fila = 1; !declarantes.EsNula() && fila <= declarantes.UltimaFila(); ++fila) {
            claves.push_back(declarantes(0, fila));
        }
        return claves;
    }
    static void Vaciar() {
        for (const Valor& clave : Claves()) {
            Servidor().EliminarDeclarante(clave.aEntero32());
        }
    }
    /// Writes all declarants to a file that is not there yet and gives its bytes.
    [[nodiscard]] static QByteArray Exportar(const QString& fichero) {
        QFile::remove(fichero);
        oExportaciones().vBufferDtes = Claves();
        PantallaDeExportacionGrabadora formulario(fichero);
        ExportarDeclarantes(formulario);
        return LeerFichero(fichero);
    }
    /// Imports a file and gives the number of new declarants.
    static qint32 Importar(const QString& fichero) {
        PantallaDeImportacionGrabadora formulario;
        Import(fichero, formulario);
        return Elemento(std::get<Registro>(oImportaciones().vBufferImportados), 0).aEntero32();
    }
};

}  // namespace

TEST_F(IdaYVueltaTest, WhatFitsTheRecordComesBackByteForByte) {
    const QString fichero = carpeta.filePath(u"Declaran.txt"_s);
    EXPECT_TRUE(rc::check([&] {
        const auto numeros = *rc::gen::resize(
            kMuchos, rc::gen::nonEmpty(rc::gen::unique<std::vector<int>>(rc::gen::inRange(0, 10'000'000))));
        Vaciar();
        for (const int numero : numeros) {
            (void)Servidor().GuardarDeclarante(Declarante(numero));
        }
        const QByteArray ida = Exportar(fichero);
        RC_ASSERT(ida.size() == static_cast<qsizetype>(numeros.size()) * (kLargoDeRegistro + 2));
        Vaciar();
        RC_ASSERT(Importar(fichero) == static_cast<qint32>(numeros.size()));
        RC_ASSERT(Exportar(fichero) == ida);
        RC_ASSERT(pantalla.errores.empty());
    }));
}
