#include "core/services/EstadoLeido.h"

#include <QCryptographicHash>

namespace {

/// The number of rows and of their columns goes in, so that no value can pass for a part of its neighbour.
void AnadirFilas(QCryptographicHash& suma, Consulta& consulta) {
    while (consulta.Siguiente()) {
        for (int columna = 0; columna < consulta.Columnas(); ++columna) {
            const QByteArray valor = consulta.Texto(columna).toUtf8();
            suma.addData(QByteArray::number(valor.size()) + ':');
            suma.addData(valor);
        }
        suma.addData("\n");
    }
    suma.addData("\f");
}

}  // namespace

EstadoLeido LeerEstado(Almacen& almacen, std::initializer_list<const char*> ordenes, qint32 clave) {
    QCryptographicHash suma(QCryptographicHash::Sha256);
    for (const char* orden : ordenes) {
        Consulta consulta(almacen, orden, clave);
        AnadirFilas(suma, consulta);
    }
    return suma.result();
}

void ExigirSinCambios(Almacen& almacen, std::initializer_list<const char*> ordenes, qint32 clave,
                      const EstadoLeido* leido) {
    if (leido != nullptr && !leido->isEmpty() && *leido != LeerEstado(almacen, ordenes, clave)) {
        throw FalloDeAlmacen(NumError::AlmacenCambiado, almacen.Ruta());
    }
}

void TomarEstado(Almacen& almacen, std::initializer_list<const char*> ordenes, qint32 clave,
                 EstadoLeido* leido) {
    if (leido != nullptr) {
        *leido = LeerEstado(almacen, ordenes, clave);
    }
}

void RenovarEstado(EstadoLeido* leido, const EstadoLeido& ahora) {
    if (leido != nullptr) {
        *leido = ahora;
    }
}

bool EsCambioDeOtro(const ErrorZT& error) {
    return error.Numero() == static_cast<int>(NumError::AlmacenCambiado);
}
