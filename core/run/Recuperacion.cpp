#include "core/run/Recuperacion.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <limits>
#include <span>

#include "core/base/FalloDeFichero.h"
#include "core/base/FicheroProvisional.h"
#include "core/base/Modelo.h"
#include "core/base/RegistroPropio.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

// More than the screens of a run can hold. What has more is no file of this program's.
constexpr qint64 kBytesMaximos = 1 << 20;
constexpr std::size_t kFormulariosMaximos = 8;
constexpr qsizetype kLetrasMaximas = 1000;
constexpr qint64 kClaveMaxima = std::numeric_limits<qint32>::max();

/// What a file has that is none of this program's.
struct NoEsPropio {};

void Exigir(bool cumplido) {
    if (!cumplido) {
        throw NoEsPropio();
    }
}

QString LeerTexto(const QJsonValue& valor) {
    Exigir(valor.isString() && valor.toString().size() <= kLetrasMaximas);
    return valor.toString();
}

qint64 LeerEntero(const QJsonValue& valor, qint64 desde, qint64 hasta) {
    const qint64 entero = valor.toInteger(desde - 1);
    Exigir(entero >= desde && entero <= hasta);
    return entero;
}

qint32 LeerClave(const QJsonValue& valor) { return static_cast<qint32>(LeerEntero(valor, 0, kClaveMaxima)); }

QJsonArray LineasAJson(const std::vector<LineaSinGuardar>& lineas) {
    QJsonArray todas;
    for (const LineaSinGuardar& linea : lineas) {
        todas.append(QJsonArray{linea.CSES, linea.producto, linea.exento, linea.base});
    }
    return todas;
}

std::vector<LineaSinGuardar> LineasDeJson(const QJsonValue& valor) {
    Exigir(valor.isArray());
    std::vector<LineaSinGuardar> lineas;
    for (const QJsonValue& una : valor.toArray()) {
        const QJsonArray partes = una.toArray();
        Exigir(partes.size() == 4);
        lineas.push_back({.CSES = LeerClave(partes.at(0)),
                          .producto = static_cast<qint16>(LeerEntero(partes.at(1), 1, kProductos)),
                          .exento = LeerEntero(partes.at(2), -kCentesimasMaximas, kCentesimasMaximas),
                          .base = LeerEntero(partes.at(3), -kCentesimasMaximas, kCentesimasMaximas)});
    }
    return lineas;
}

QJsonObject AJson(const DatosSinGuardar& datos) {
    QJsonObject valores;
    for (auto i = datos.valores.cbegin(); i != datos.valores.cend(); ++i) {
        valores.insert(i.key(), i.value().left(kLetrasMaximas));
    }
    return {{u"formulario"_s, datos.formulario},
            {u"CSDE"_s, datos.CSDE},
            {u"NIF"_s, datos.NIF},
            {u"clave"_s, datos.clave},
            {u"rasgo"_s, datos.rasgo},
            {u"valores"_s, valores},
            {u"lineas"_s, LineasAJson(datos.lineas)}};
}

DatosSinGuardar DeJson(const QJsonObject& objeto) {
    DatosSinGuardar datos{.formulario = LeerTexto(objeto.value(u"formulario"_s)),
                          .CSDE = LeerClave(objeto.value(u"CSDE"_s)),
                          .NIF = LeerTexto(objeto.value(u"NIF"_s)),
                          .clave = LeerClave(objeto.value(u"clave"_s)),
                          .rasgo = LeerTexto(objeto.value(u"rasgo"_s)),
                          .lineas = LineasDeJson(objeto.value(u"lineas"_s))};
    Exigir(objeto.value(u"valores"_s).isObject());
    const QJsonObject valores = objeto.value(u"valores"_s).toObject();
    for (auto i = valores.begin(); i != valores.end(); ++i) {
        datos.valores.insert(LeerTexto(i.key()), LeerTexto(i.value()));
    }
    return datos;
}

/// Neither a link, nor a pipe that nobody may ever write to, nor a device.
bool EsFichero(const QString& ruta) {
    return ExaminarFichero(ruta).clase == ClaseFichero::Regular && !QFileInfo(ruta).isSymLink();
}

std::vector<DatosSinGuardar> LeerFichero(const QString& ruta) {
    QFile fichero(ruta);
    Exigir(EsFichero(ruta) && fichero.size() <= kBytesMaximos && fichero.open(QIODevice::ReadOnly));
    const QJsonDocument documento = QJsonDocument::fromJson(fichero.read(kBytesMaximos));
    Exigir(documento.isArray() && documento.array().size() <= qsizetype{kFormulariosMaximos});
    std::vector<DatosSinGuardar> datos;
    for (const QJsonValue& uno : documento.array()) {
        Exigir(uno.isObject());
        datos.push_back(DeJson(uno.toObject()));
    }
    return datos;
}

}  // namespace

QString RutaDeRecuperacion() { return Entorno().mdbPath + u"ZELTMOD.recuperacion"_s; }

QString RegistroDeRecuperacion() { return Entorno().mdbPath + u"Recuperacion.log"_s; }

void GuardarRecuperacion(const std::vector<DatosSinGuardar>& datos) {
    std::vector<DatosSinGuardar> todos = LeerRecuperacion();
    for (const DatosSinGuardar& uno : datos) {
        if (std::ranges::find(todos, uno) == todos.end()) {
            todos.push_back(uno);
        }
    }
    QJsonArray lista;
    for (const DatosSinGuardar& uno : std::span(todos).last(std::min(todos.size(), kFormulariosMaximos))) {
        lista.append(AJson(uno));
    }
    const QString ruta = RutaDeRecuperacion();
    const FicheroProvisional provisional(ruta);
    QFile fichero(provisional.Ruta());
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        throw FalloDelSistema(NumError::ErrorAccesoRuta, ruta);
    }
    EscribirTodo(fichero, QJsonDocument(lista).toJson(), ruta);
    SincronizarFichero(provisional.Ruta());
    // What stands there would lend its permissions.
    QuitarRecuperacion();
    SustituirFichero(provisional.Ruta(), ruta);
}

std::vector<DatosSinGuardar> LeerRecuperacion() {
    const QString ruta = RutaDeRecuperacion();
    if (!QFileInfo::exists(ruta) && !QFileInfo(ruta).isSymLink()) {
        return {};
    }
    try {
        return LeerFichero(ruta);
    } catch (const NoEsPropio&) {
        AnotarRecuperacionAjena();
        return {};
    }
}

void AnotarRecuperacionAjena() {
    const QString linea = Entorno().Reloj().toString(u"yyyy-MM-dd hh:mm:ss ") + RutaDeRecuperacion() +
                          u": no es un fichero de recuperación válido y no se usa\n"_s;
    AnadirARegistro(RegistroDeRecuperacion(), linea.toUtf8());
}

void QuitarRecuperacion() { QFile::remove(RutaDeRecuperacion()); }
