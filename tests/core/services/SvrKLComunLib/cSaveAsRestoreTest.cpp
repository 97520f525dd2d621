#include "core/services/SvrKLComunLib/cSaveAsRestore.h"

#include "core/copies/NombreDeCopia.h"
#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

class cSaveAsRestoreTest : public PruebaDeCopias {
  protected:
    [[nodiscard]] SvrKLComunLib::cSaveAsRestore Herramienta() const {
        SvrKLComunLib::cSaveAsRestore h;
        h.Filtro = u"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb"_s;
        h.BDLectura = almacen.mdblec();
        h.BDTabla = u"T00_GENERAL"_s;
        h.BDCampo = u"T00_BACKUP_TVC"_s;
        return h;
    }
    void CrearBackup() const {
        auto h = Herramienta();
        h.ArchivoOrigen = u"ZELTMOD.mdb"_s;
        h.ArchivoDestino = u"ZELTMod_bak.mdb"_s;
        h.RutaOrigen = almacen.mdbPath();
        h.RutaDestino = copias() + u'/';
        h.CrearBackup();
    }
    [[nodiscard]] bool CrearRestore() const {
        auto h = Herramienta();
        h.ArchivoOrigen = u"ZELTMod_bak.mdb"_s;
        h.ArchivoDestino = u"ZELTMOD.mdb"_s;
        h.RutaOrigen = copias() + u'/';
        h.RutaDestino = almacen.mdbPath();
        return h.CrearRestore();
    }
    /// A user who takes what is suggested.
    void AceptarCopia() {
        canal.alPedirCopia = [](TareaDeCopia& tarea) {
            const auto destino = tarea.Elegir(tarea.Carpeta(), tarea.Nombre());
            ASSERT_FALSE(destino.fallo);
            EXPECT_FALSE(tarea.Copiar(destino.ruta, SinAvance));
        };
    }
    static MotivoDeCopia Motivo(const std::optional<FalloDeCopia>& fallo) {
        return fallo.value_or(FalloDeCopia{}).motivo;
    }

    CopiasDePrueba canal;
};

}  // namespace

TEST_F(cSaveAsRestoreTest, TheBackupSuggestsFolderNameAndFilterAndTellsTheDayOfTheLastOne) {
    bool pedida = false;
    canal.alPedirCopia = [&](TareaDeCopia& tarea) {
        pedida = true;
        EXPECT_EQ(tarea.Carpeta(), QDir::toNativeSeparators(copias()));
        EXPECT_EQ(tarea.Nombre(), u"ZELTMod_bak.mdb"_s);
        EXPECT_EQ(tarea.Filtro(), u"archivos mdb (*.mdb mdb)"_s);
        EXPECT_FALSE(tarea.UltimaCopia().isValid());
    };
    CrearBackup();
    EXPECT_TRUE(pedida);
    EXPECT_EQ(Ficheros(copias()), QStringList());
}

TEST_F(cSaveAsRestoreTest, TheDayOfABackupIsNotedInTheStoreAndInTheCopy) {
    AceptarCopia();
    CrearBackup();
    EsperarSuma(copia());
    QDate ultima;
    canal.alPedirCopia = [&](TareaDeCopia& tarea) { ultima = tarea.UltimaCopia(); };
    CrearBackup();
    EXPECT_EQ(ultima, QDate(2007, 7, 4));
    canal.alPedirRestauracion = [](TareaDeRestauracion& tarea) {
        EXPECT_EQ(tarea.Examinar(tarea.Carpeta(), tarea.Nombre()).resumen.fecha, QDate(2007, 7, 4));
    };
    EXPECT_FALSE(CrearRestore());
}

TEST_F(cSaveAsRestoreTest, ABackupIsNoChangeOfTheDay) {
    AceptarCopia();
    CrearBackup();
    EXPECT_EQ(Ficheros(automaticas()), QStringList());
}

TEST_F(cSaveAsRestoreTest, ADayThatCannotBeNotedIsToldAndTheCopyIsThere) {
    almacen.Usuario()->Base().exec("PRAGMA query_only = ON");
    canal.alPedirCopia = [](TareaDeCopia& tarea) {
        const QString ruta = tarea.Elegir(tarea.Carpeta(), tarea.Nombre()).ruta;
        EXPECT_EQ(Motivo(tarea.Copiar(ruta, SinAvance)), MotivoDeCopia::FechaSinAnotar);
    };
    CrearBackup();
    EXPECT_EQ(Declarantes(copia()), kDosDeclarantes);
}

TEST_F(cSaveAsRestoreTest, AnExistingTargetIsToldBeforehandAndABadOneIsRefused) {
    Copiar();
    canal.alPedirCopia = [&](TareaDeCopia& tarea) {
        const QString carpeta = tarea.Carpeta();
        EXPECT_TRUE(tarea.Elegir(carpeta, tarea.Nombre()).existe);
        EXPECT_FALSE(tarea.Elegir(carpeta, u"nueva"_s).existe);
        EXPECT_EQ(Motivo(tarea.Elegir(carpeta, u"a:b"_s).fallo), MotivoDeCopia::NombreNoValido);
        EXPECT_FALSE(tarea.Elegir(carpeta, QString(229, u'x')).fallo);
        EXPECT_EQ(Motivo(tarea.Elegir(carpeta, QString(230, u'x')).fallo), MotivoDeCopia::NombreLargo);
        EXPECT_EQ(Motivo(tarea.Elegir(carpeta, QString(115, u'ñ')).fallo), MotivoDeCopia::NombreLargo);
        const auto sinCarpeta = tarea.Elegir(carpeta + u"/falta"_s, u"a"_s).fallo;
        EXPECT_EQ(Motivo(sinCarpeta), MotivoDeCopia::NoExisteCarpeta);
        EXPECT_EQ(sinCarpeta->fichero, QDir::toNativeSeparators(carpeta + u"/falta"_s));
        for (const QString& nombre : {u"ZELTMOD"_s, u"ZELTLEC"_s}) {
            EXPECT_EQ(Motivo(tarea.Elegir(almacen.mdbPath(), nombre).fallo),
                      MotivoDeCopia::EsFicheroDelPrograma);
        }
        QDir().mkdir(carpeta + u"/carpeta.mdb"_s);
        EXPECT_EQ(Motivo(tarea.Elegir(carpeta, u"carpeta"_s).fallo), MotivoDeCopia::EsCarpeta);
    };
    CrearBackup();
}

TEST_F(cSaveAsRestoreTest, AFailedBackupNamesFileAndReason) {
    canal.alPedirCopia = [&](TareaDeCopia& tarea) {
        const auto fallo = tarea.Copiar(u"/proc/self/x.mdb"_s, SinAvance);
        EXPECT_EQ(Motivo(fallo), MotivoDeCopia::SinPermiso);
        EXPECT_EQ(fallo->fichero, QDir::toNativeSeparators(u"/proc/self/x.mdb"_s));
        EXPECT_FALSE(fallo->causa.isEmpty());
    };
    CrearBackup();
    EXPECT_FALSE(almacen.Usuario()->Base().execAndGet("SELECT T00_BACKUP_TVC FROM T00_GENERAL").getInt());
}

TEST_F(cSaveAsRestoreTest, ARestoreShowsWhatTheCopyHoldsAndIsTrueOnlyWhenTheStoreIsReplaced) {
    Copiar();
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
        EXPECT_EQ(tarea.Carpeta(), QDir::toNativeSeparators(copias()));
        EXPECT_EQ(tarea.Nombre(), u"ZELTMod_bak.mdb"_s);
        const auto examen = tarea.Examinar(tarea.Carpeta(), tarea.Nombre());
        ASSERT_FALSE(examen.fallo);
        EXPECT_EQ(examen.resumen.declarantes, 2);
        EXPECT_EQ(examen.resumen.declaraciones, 3);
        EXPECT_FALSE(tarea.Restaurar(examen.resumen.ruta, SinAvance));
    };
    EXPECT_TRUE(CrearRestore());
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
}

TEST_F(cSaveAsRestoreTest, ARestoreThatIsGivenUpOrRefusedIsFalseAndChangesNothing) {
    CerrarAlmacenes();
    const QByteArray antes = LeerFichero(vivo());
    EXPECT_FALSE(CrearRestore());
    const std::vector<std::pair<QByteArray, MotivoDeCopia>> ficheros{
        {"", MotivoDeCopia::Vacio},
        {"un texto", MotivoDeCopia::Ajeno},
        {antes.left(9000), MotivoDeCopia::Danado}};
    for (const auto& caso : ficheros) {
        const MotivoDeCopia motivo = caso.second;
        EscribirFichero(copia(), caso.first);
        canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
            EXPECT_EQ(Motivo(tarea.Examinar(tarea.Carpeta(), tarea.Nombre()).fallo), motivo);
            EXPECT_EQ(Motivo(tarea.Restaurar(copia(), SinAvance)), motivo);
        };
        EXPECT_FALSE(CrearRestore());
        EXPECT_EQ(LeerFichero(vivo()), antes);
    }
    canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
        EXPECT_EQ(Motivo(tarea.Examinar(almacen.mdbPath(), u"ZELTMOD.mdb"_s).fallo),
                  MotivoDeCopia::EsFicheroDelPrograma);
        EXPECT_EQ(Motivo(tarea.Examinar(tarea.Carpeta(), u"falta"_s).fallo), MotivoDeCopia::NoExiste);
        EXPECT_EQ(Motivo(tarea.Examinar(almacen.Carpeta(), u"backups"_s).fallo), MotivoDeCopia::EsCarpeta);
    };
    EXPECT_FALSE(CrearRestore());
}

TEST_F(cSaveAsRestoreTest, ARestoreThatFailsNamesTheFileAtFault) {
    Copiar();
    CerrarAlmacenes();
    {
        SQLite::Database otra(vivo().toStdString(), SQLite::OPEN_READWRITE);
        otra.exec("BEGIN IMMEDIATE");
        canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
            const auto fallo = tarea.Restaurar(copia(), SinAvance);
            EXPECT_EQ(Motivo(fallo), MotivoDeCopia::Ocupado);
            EXPECT_EQ(fallo->fichero, QDir::toNativeSeparators(vivo()));
        };
        EXPECT_FALSE(CrearRestore());
    }
    EscribirFichero(automaticas(), "no es una carpeta");
    canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
        const auto fallo = tarea.Restaurar(copia(), SinAvance);
        EXPECT_EQ(Motivo(fallo), MotivoDeCopia::SinPermiso);
        EXPECT_EQ(fallo->fichero, QDir::toNativeSeparators(automaticas()));
    };
    EXPECT_FALSE(CrearRestore());
}

TEST_F(cSaveAsRestoreTest, ACopyThatHasChangedIsToldAlsoWhenALinkLeadsToIt) {
    Copiar();
    EscribirFichero(copia() + u".sha256"_s, "0");
    ASSERT_TRUE(QFile::link(copia(), copias() + u"/enlace.mdb"_s));
    canal.alPedirRestauracion = [&](TareaDeRestauracion& tarea) {
        for (const QString& nombre : {tarea.Nombre(), u"enlace"_s}) {
            EXPECT_EQ(Motivo(tarea.Examinar(tarea.Carpeta(), nombre).fallo), MotivoDeCopia::SumaDistinta);
            EXPECT_EQ(Motivo(tarea.Restaurar(OrigenDeCopia(tarea.Carpeta(), nombre), SinAvance)),
                      MotivoDeCopia::SumaDistinta);
        }
    };
    EXPECT_FALSE(CrearRestore());
}

TEST_F(cSaveAsRestoreTest, WithoutAChannelTheObjectIsNotSet) {
    FijarCopias(nullptr);
    EXPECT_EQ(NumeroDelError([&] { CrearBackup(); }), 91);
    EXPECT_EQ(NumeroDelError([&] { (void)CrearRestore(); }), 91);
}
