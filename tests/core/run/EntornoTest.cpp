#include "core/run/Entorno.h"

#include <gtest/gtest.h>

#include "core/services/SvrKLComunLib/cMiscelaneos.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/svrZELT/cZTTraspaso.h"

using namespace Qt::StringLiterals;

namespace {

class EntornoTest : public testing::Test {
  protected:
    EntornoTest() {
        Entorno().mdbPath = u"/datos/"_s;
        Entorno().mdbmod = u"/datos/ZELTMOD.mdb"_s;
        Entorno().mdblec = u"/datos/ZELTLEC.mdb"_s;
    }
    ~EntornoTest() override { ReiniciarEntorno(); }
};

}  // namespace

TEST_F(EntornoTest, AServerOfTheUserIsGivenHisStoreAlone) {
    EXPECT_EQ(ServidorDeUsuario<svrZELT::cZTDeclarante>().mdbmod, Entorno().mdbmod);
    EXPECT_EQ(ServidorDeUsuario<svrZELT::cZTDatosGeneral>().mdbmod, Entorno().mdbmod);
    EXPECT_TRUE(ServidorDeUsuario<svrZELT::cZTDatosGeneral>().mdblec.isEmpty());
}

TEST_F(EntornoTest, TheServerThatMakesTheStoreIsGivenItsFolderToo) {
    const auto servidor = ServidorDeUsuario<svrZELT::cZTTraspaso>();
    EXPECT_EQ(servidor.mdbmod, Entorno().mdbmod);
    EXPECT_EQ(servidor.mdbPath, Entorno().mdbPath);
}

TEST_F(EntornoTest, AServerOfTheReferenceIsGivenThatStoreAlone) {
    EXPECT_EQ(ServidorDeReferencia<SvrKLComunLib::cMiscelaneos>().mdblec, Entorno().mdblec);
    EXPECT_EQ(ServidorDeReferencia<svrZELT::cZTDatosGeneral>().mdblec, Entorno().mdblec);
    EXPECT_TRUE(ServidorDeReferencia<svrZELT::cZTDatosGeneral>().mdbmod.isEmpty());
}
