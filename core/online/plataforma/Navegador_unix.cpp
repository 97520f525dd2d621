#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>

#include "core/base/Pantalla.h"
#include "core/online/plataforma/Navegador.h"

using namespace Qt::StringLiterals;

namespace {

/// How long the desktop may take to say what shows its pages.
constexpr int kPlazoMs = 1500;

/// Whether the desktop names a program for pages. One that cannot be asked is taken at its word.
bool HayAsociado() {
    const QString consulta = QStandardPaths::findExecutable(u"xdg-mime"_s);
    if (consulta.isEmpty()) {
        return true;
    }
    Pantalla().PonerPuntero(Puntero::Espera);
    const auto salida = qScopeGuard([] { Pantalla().PonerPuntero(Puntero::Normal); });
    QProcess proceso;
    proceso.start(consulta, {u"query"_s, u"default"_s, u"text/html"_s}, QIODevice::ReadOnly);
    if (!proceso.waitForFinished(kPlazoMs)) {
        proceso.kill();
        proceso.waitForFinished(kPlazoMs);
        return true;
    }
    return !proceso.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

QString BuscarNavegador() {
    QString programa = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (programa.isEmpty() || !HayAsociado()) {
        // Systems without a desktop keep the chosen browser under this name.
        programa = QStandardPaths::findExecutable(u"x-www-browser"_s);
    }
    return programa;
}

void AbrirConNavegador(const QString& programa, const QString& pagina, quintptr /*ventana*/) {
    QProcess::startDetached(programa, {pagina});
}
