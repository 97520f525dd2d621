#include <gmock/gmock.h>

#include <QApplication>

#include "core/base/Regional.h"
#include "forms/help/TeclaDeAyuda.h"
#include "forms/runtime/TeclasRepetidas.h"

int main(int argc, char** argv) {
    // Tests are listed where there is no display at all.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication aplicacion(argc, argv);
    const TeclasRepetidas teclas;
    const TeclaDeAyuda ayuda;
    testing::InitGoogleMock(&argc, argv);
    FijarRegional({});
    return RUN_ALL_TESTS();
}
