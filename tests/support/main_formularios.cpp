#include <gmock/gmock.h>

#include <QApplication>

#include "core/base/Regional.h"

int main(int argc, char** argv) {
    // Tests are listed where there is no display at all.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication aplicacion(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    FijarRegional({});
    return RUN_ALL_TESTS();
}
