#include "core/base/FicheroProvisional.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include "core/base/FalloDeFichero.h"
#include "core/base/TextosPropios.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

/// Links that lead to each other end here.
constexpr int kEnlacesSeguidos = 40;
/// Names that are tried before a folder counts as one in which nothing can be written.
constexpr int kIntentos = 20;

constexpr QFile::Permissions kDelUsuario = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions kDeTodos =
    kDelUsuario | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

QString NombreAlAzar() {
    constexpr QStringView kLetras = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kLargo = 6;
    QString nombre;
    for (int i = 0; i < kLargo; ++i) {
        nombre += kLetras.at(QRandomGenerator::global()->bounded(static_cast<int>(kLetras.size())));
    }
    return nombre;
}

/// Removes a file that nobody works on, its journal first: without it the file itself would still be found.
void QuitarSiEsDeNadie(const QString& ruta) {
    const RetencionDeFichero retencion(ruta);
    if (retencion.Conseguida()) {
        QFile::remove(ruta + u"-journal"_s);
        QFile::remove(ruta);
    }
}

void QuitarRestos(const QDir& carpeta, const QString& nombres) {
    const QRegularExpression propio(u'^' + nombres + u"\\.[A-Za-z]{6}\\.parcial$"_s);
    for (const QString& resto : carpeta.entryList({u"*.parcial"_s}, QDir::Files | QDir::Hidden)) {
        if (propio.match(resto).hasMatch()) {
            QuitarSiEsDeNadie(carpeta.filePath(resto));
        }
    }
}

}  // namespace

FicheroProvisional::FicheroProvisional(const QString& ruta, Lectores lectores) {
    const QFileInfo fichero(ruta);
    if (!fichero.dir().exists()) {
        throw FalloDeFichero(NumError::NoExisteRuta, fichero.absolutePath());
    }
    QuitarRestos(fichero.dir(), QRegularExpression::escape(fichero.fileName()));
    for (int intento = 0; intento < kIntentos; ++intento) {
        QFile nuevo(ruta + u'.' + NombreAlAzar() + u".parcial"_s);
        if (!nuevo.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                        lectores == Lectores::ElUsuario ? kDelUsuario : kDeTodos)) {
            const ErrorZT fallo = FalloDelSistema(NumError::ErrorAccesoRuta, ruta);
            if (!nuevo.exists()) {
                throw fallo;
            }
            continue;
        }
        m_ruta = nuevo.fileName();
        m_retencion = std::make_unique<RetencionDeFichero>(m_ruta);
        // Another program may have taken it for a file of nobody before it was marked.
        if (m_retencion->Conseguida() || QFile::exists(m_ruta)) {
            return;
        }
    }
    throw FalloDeFichero(NumError::ErrorAccesoRuta, ruta, TextoPropio(u"causa_crear_fichero"));
}

FicheroProvisional::~FicheroProvisional() {
    QFile::remove(m_ruta);
    QFile::remove(m_ruta + u"-journal"_s);
}

void QuitarProvisionales(const QString& carpeta) { QuitarRestos(QDir(carpeta), u".+"_s); }

QString RutaReal(const QString& ruta) {
    QString real = ruta;
    for (int i = 0; i < kEnlacesSeguidos && QFileInfo(real).isSymbolicLink(); ++i) {
        real = QFileInfo(real).symLinkTarget();
    }
    return real;
}
