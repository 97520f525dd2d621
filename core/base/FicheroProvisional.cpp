#include "core/base/FicheroProvisional.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>

#include "core/base/FalloDeFichero.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kDiaEnSegundos = 86'400;
/// Links that lead to each other end here.
constexpr int kEnlacesSeguidos = 40;

void QuitarRestos(const QFileInfo& fichero) {
    const QRegularExpression propio(u'^' + QRegularExpression::escape(fichero.fileName()) +
                                    u"\\.[A-Za-z]{6}\\.parcial(-journal)?$"_s);
    const QDateTime limite = QDateTime::currentDateTimeUtc().addSecs(-kDiaEnSegundos);
    for (const QFileInfo& resto : fichero.dir().entryInfoList({u"*.parcial*"_s}, QDir::Files)) {
        if (propio.match(resto.fileName()).hasMatch() && resto.lastModified() < limite) {
            QFile::remove(resto.filePath());
        }
    }
}

}  // namespace

FicheroProvisional::FicheroProvisional(const QString& ruta) {
    const QFileInfo fichero(ruta);
    if (!fichero.dir().exists()) {
        throw FalloDeFichero(NumError::NoExisteRuta, fichero.absolutePath());
    }
    QuitarRestos(fichero);
    QTemporaryFile provisional(ruta + u".XXXXXX.parcial"_s);
    if (!provisional.open()) {
        const NumError numero = NumeroDelUltimoFallo(NumError::ErrorAccesoRuta);
        const bool lleno = numero == NumError::DiscoLleno;
        throw FalloDeFichero(numero, ruta, lleno ? QString() : u"No se puede crear el fichero."_s);
    }
    provisional.setAutoRemove(false);
    // Where the system gives it a name only when it is asked for, the name may prove too long here.
    m_ruta = provisional.fileName();
    if (m_ruta.isEmpty()) {
        throw FalloDeFichero(NumError::ErrorAccesoRuta, ruta, u"No se puede crear el fichero."_s);
    }
}

FicheroProvisional::~FicheroProvisional() {
    QFile::remove(m_ruta);
    QFile::remove(m_ruta + u"-journal"_s);
}

QString RutaReal(const QString& ruta) {
    QString real = ruta;
    for (int i = 0; i < kEnlacesSeguidos && QFileInfo(real).isSymbolicLink(); ++i) {
        real = QFileInfo(real).symLinkTarget();
    }
    return real;
}
