#include "core/copies/SumaDeFichero.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include "core/base/FalloDeFichero.h"
#include "core/base/FicheroProvisional.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/store/AperturaAlmacen.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTrozo = 1 << 20;
constexpr qsizetype kCifras = 64;
/// A line of a sum is shorter: the digits and the longest name of a file.
constexpr qint64 kLargoDeLinea = 4096;
constexpr int kEntero = 100;

void Abrir(QFile& fichero) {
    (void)ExigirFicheroRegular(fichero.fileName());
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        throw FalloDelSistema(NumError::AlmacenSinPermiso, fichero.fileName());
    }
}

/// Hands the file over in pieces.
template <class F>
void LeerPorTrozos(QFile& fichero, F&& trozo) {
    for (;;) {
        const QByteArray leido = fichero.read(kTrozo);
        if (leido.isEmpty()) {
            break;
        }
        trozo(leido);
    }
    if (fichero.error() != QFileDevice::NoError) {
        throw FalloDelSistema(NumError::AlmacenErrorDisco, fichero.fileName());
    }
}

}  // namespace

QString RutaDeSuma(const QString& ruta) { return ruta + u".sha256"_s; }

QByteArray CopiarContenido(const QString& origen, const QString& destino, const AvanceDeCopia& avance) {
    QFile de(origen);
    QFile a(destino);
    Abrir(de);
    if (!a.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        throw FalloDelSistema(NumError::ErrorAccesoRuta, destino);
    }
    QCryptographicHash suma(QCryptographicHash::Sha256);
    qint64 hecho = 0;
    LeerPorTrozos(de, [&](const QByteArray& trozo) {
        suma.addData(trozo);
        EscribirTodo(a, trozo, destino);
        hecho += trozo.size();
        avance(static_cast<int>(qMin<qint64>(kEntero, hecho * kEntero / qMax<qint64>(1, de.size()))));
    });
    return suma.result().toHex();
}

QByteArray SumaDeFichero(const QString& ruta) {
    QFile fichero(ruta);
    Abrir(fichero);
    QCryptographicHash suma(QCryptographicHash::Sha256);
    LeerPorTrozos(fichero, [&](const QByteArray& trozo) { suma.addData(trozo); });
    return suma.result().toHex();
}

std::optional<QByteArray> SumaAnotada(const QString& ruta) {
    const QString nombre = RutaDeSuma(ruta);
    const ClaseFichero clase = ExaminarFichero(nombre).clase;
    if (clase == ClaseFichero::NoExiste) {
        return std::nullopt;
    }
    QFile fichero(nombre);
    if (clase != ClaseFichero::Regular || !fichero.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    const QByteArray linea = fichero.read(kLargoDeLinea);
    const bool completa = linea.size() > kCifras && linea.at(kCifras) == ' ' && linea.endsWith('\n');
    return completa ? linea.left(kCifras).toLower() : QByteArray();
}

void ExigirSuma(const QString& ruta, const QByteArray& suma) {
    if (SumaAnotada(ruta).value_or(suma) != suma) {
        throw ErrorDeCopia(MotivoDeCopia::SumaDistinta, ruta);
    }
}

SumaPreparada::SumaPreparada(const QString& ruta, const QByteArray& suma)
    : m_nombre(RutaDeSuma(ruta)), m_provisional(m_nombre) {
    {
        QFile fichero(m_provisional.Ruta());
        if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
            throw FalloDelSistema(NumError::ErrorAccesoRuta, m_nombre);
        }
        EscribirTodo(fichero, suma + "  " + QFileInfo(ruta).fileName().toUtf8() + '\n', m_nombre);
    }
    SincronizarFichero(m_provisional.Ruta());
}

void SumaPreparada::Publicar() const { SustituirFichero(m_provisional.Ruta(), m_nombre); }

void QuitarSuma(const QString& ruta) {
    const QString nombre = RutaDeSuma(ruta);
    if (ExaminarFichero(nombre).clase == ClaseFichero::NoExiste) {
        return;
    }
    if (!QFile::remove(nombre)) {
        throw FalloDelSistema(NumError::ErrorAccesoRuta, nombre);
    }
    SincronizarCarpetaDe(nombre);
}
