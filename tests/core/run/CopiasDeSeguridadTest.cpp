#include "core/run/CopiasDeSeguridad.h"

#include <QFileInfo>

#include "tests/support/CopiasDePrueba.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class CopiasDeSeguridadTest : public EntornoDePrueba {
  protected:
    CopiasDePrueba canal;
};

}  // namespace

TEST_F(CopiasDeSeguridadTest, TheBackupGoesFromTheFolderOfTheDataToThatOfTheCopies) {
    canal.alPedirCopia = [this](TareaDeCopia& tarea) {
        EXPECT_EQ(tarea.Carpeta(), QDir::toNativeSeparators(carpeta.filePath(u"backups"_s)));
        EXPECT_EQ(tarea.Nombre(), u"ZELTMod_bak.mdb"_s);
        EXPECT_EQ(tarea.Filtro(), u"archivos mdb (*.mdb mdb)"_s);
        const auto destino = tarea.Elegir(tarea.Carpeta(), tarea.Nombre());
        ASSERT_FALSE(destino.fallo);
        EXPECT_FALSE(tarea.Copiar(destino.ruta, [](int) {}));
        EXPECT_TRUE(tarea.Elegir(QFileInfo(Entorno().mdblec).path(), u"ZELTLEC"_s).fallo);
        EXPECT_EQ(tarea.UltimaCopia(), QDate(2007, 7, 4));
    };
    CrearCopiaDeSeguridad(0);
    EXPECT_TRUE(QFile::exists(carpeta.filePath(u"backups/ZELTMod_bak.mdb"_s)));
}

TEST_F(CopiasDeSeguridadTest, TheRestoreGoesTheOtherWayAndSaysWhetherItWasDone) {
    EXPECT_FALSE(RestaurarCopiaDeSeguridad(0));
    canal.alPedirCopia = [](TareaDeCopia& tarea) {
        const auto destino = tarea.Elegir(tarea.Carpeta(), tarea.Nombre());
        EXPECT_FALSE(tarea.Copiar(destino.ruta, [](int) {}));
    };
    CrearCopiaDeSeguridad(0);
    canal.alPedirRestauracion = [this](TareaDeRestauracion& tarea) {
        EXPECT_EQ(tarea.Carpeta(), QDir::toNativeSeparators(carpeta.filePath(u"backups"_s)));
        EXPECT_EQ(tarea.Nombre(), u"ZELTMod_bak.mdb"_s);
        const auto examen = tarea.Examinar(tarea.Carpeta(), tarea.Nombre());
        ASSERT_FALSE(examen.fallo);
        EXPECT_FALSE(tarea.Restaurar(examen.resumen.ruta, [](int) {}));
    };
    EXPECT_TRUE(RestaurarCopiaDeSeguridad(0));
}
