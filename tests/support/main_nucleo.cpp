#include <gmock/gmock.h>

#include <QCoreApplication>

#include "core/base/Regional.h"

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    FijarRegional({});
    return RUN_ALL_TESTS();
}
