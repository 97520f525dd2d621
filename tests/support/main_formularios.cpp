#include <gmock/gmock.h>

#include <QApplication>

#include "base/Regional.h"

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    FijarRegional({});
    return RUN_ALL_TESTS();
}
