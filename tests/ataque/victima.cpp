// The program under attack, without its windows.
//   ataque_victima preparar FOLDER    lays the folder out
//   ataque_victima ACTION FOLDER      does one thing in it; ends with 0 when it was done, with 3 when it was
//                                     done and something went wrong beside it, with 1 when it was refused
//   ataque_victima servir             does many, each in a child (see Servicio.h)

#include <sys/stat.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>
#include <algorithm>
#include <array>

#include "app/ZTAplicacion.h"
#include "core/store/Almacenes.h"
#include "forms/printing/DispositivoQt.h"
#include "tests/ataque/Acciones.h"
#include "tests/ataque/Servicio.h"

using namespace Qt::StringLiterals;

namespace {

/// How long a store in use is waited for: others do not let go of it while they are stopped.
constexpr int kEspera = 100;

QJsonObject Trabajar(const QStringList& argumentos) {
    const Escenario escenario(argumentos.at(1));
    FijarEsperaDeAlmacen(kEspera);
    // What is closed to others is closed by the program itself.
    umask(0);
    if (argumentos.front() == u"preparar") {
        PrepararEscenario(escenario);
        return {};
    }
    const auto accion = std::ranges::find(Acciones(), argumentos.front(), &Accion::nombre);
    if (accion == Acciones().end()) {
        qFatal("unknown action %s", qUtf8Printable(argumentos.front()));
    }
    const Final final = Hacer(*accion, escenario);
    return {{u"fallos"_s, QJsonArray::fromStringList(final.fallos)},
            {u"avisos"_s, QJsonArray::fromStringList(final.avisos)},
            {u"llamadas"_s, qint64{LlamadasContadas()}}};
}

int Codigo(const QJsonObject& dicho) {
    constexpr int kRehusado = 1;
    constexpr int kConAvisos = 3;
    if (!dicho.value(u"fallos"_s).toArray().isEmpty()) {
        return kRehusado;
    }
    return dicho.value(u"avisos"_s).toArray().isEmpty() ? 0 : kConAvisos;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    SustituirLetras();
    DispositivoQt impresora;
    FijarImpresora(&impresora);
    const QStringList argumentos = QCoreApplication::arguments().mid(1);
    if (argumentos == QStringList(u"servir"_s)) {
        Servir(Trabajar);
        return 0;
    }
    const QJsonObject dicho = Trabajar(argumentos);
    QTextStream(stdout) << QJsonDocument(dicho).toJson();
    return Codigo(dicho);
}
