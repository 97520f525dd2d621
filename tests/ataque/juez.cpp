// Judges folders after attacks.
//   ataque_juez FOLDER    looks it over, and tells (see Juicio.h)
//   ataque_juez servir    judges many, each in a child (see Servicio.h)

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>

#include "tests/ataque/Juicio.h"
#include "tests/ataque/Servicio.h"

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    const auto juzgar = [](const QStringList& argumentos) { return Juzgar(Escenario(argumentos.front())); };
    const QStringList argumentos = QCoreApplication::arguments().mid(1);
    if (argumentos == QStringList(QStringLiteral("servir"))) {
        Servir(juzgar);
        return 0;
    }
    QTextStream(stdout) << QJsonDocument(juzgar(argumentos)).toJson();
    return 0;
}
