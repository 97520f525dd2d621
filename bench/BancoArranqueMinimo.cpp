// A minimal program to measure against: a frame with three menus, a tool bar and an MDI area, and nothing
// else.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QToolBar>

#include "bench/Cronometro.h"

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    QMainWindow marco;
    marco.setObjectName(QStringLiteral("MDIZT"));
    marco.setCentralWidget(new QMdiArea);
    for (const auto* menu : {"Uno", "Dos", "Tres"}) {
        QMenu* esta = marco.menuBar()->addMenu(QLatin1String(menu));
        for (int i = 0; i < 5; ++i) {
            esta->addAction(QStringLiteral("Entrada %1").arg(i));
        }
    }
    QToolBar* barra = marco.addToolBar(QString());
    for (int i = 0; i < 5; ++i) {
        barra->addAction(QStringLiteral("Boton %1").arg(i));
    }
    const AlPintar pintado(QStringLiteral("MDIZT"), TerminarConMemoria);
    marco.resize(1000, 700);
    marco.show();
    return QApplication::exec();
}
