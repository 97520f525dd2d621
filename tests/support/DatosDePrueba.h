#pragma once

#include <QString>

#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "tests/support/AlmacenTemporal.h"

// Records of a declarant, an establishment and a declaration, as the program sends them.

inline Registro RegistroDeDeclarante(const QString& nif, const QString& nombre) {
    Registro r(18);
    r[1] = nif;
    r[2] = nombre;
    r[3] = QStringLiteral("CL");
    r[4] = QStringLiteral("MAYOR");
    r[5] = qint32{12};
    r[6] = QStringLiteral("A");
    r[7] = QStringLiteral("I");
    r[8] = QStringLiteral("3");
    r[9] = QStringLiteral("DCH");
    r[10] = qint16{20};
    r[11] = qint32{20001};
    r[12] = qint16{1};
    r[13] = QStringLiteral("ABARZELAI");
    r[14] = qint16{943};
    r[15] = qint32{123456};
    return r;
}

inline qint32 GuardarDeclarante(const AlmacenTemporal& almacen, const QString& nif,
                                const QString& nombre = QStringLiteral("EMPRESA")) {
    return almacen.Con<svrZELT::cZTDeclarante>().GuardarDeclarante(RegistroDeDeclarante(nif, nombre));
}

/// An establishment, the one place of the tests where its record is written down.
inline Registro RegistroDeEstablecimiento(qint32 CSDE, const QString& CIM,
                                          const QString& domicilio = QStringLiteral("CARRETERA 1"),
                                          qint16 provincia = 20, qint16 municipio = 2) {
    return {Valor(), CSDE, CIM, domicilio, provincia, municipio, QStringLiteral("AGERLEKUAIN")};
}

inline qint32 GuardarEstablecimiento(const AlmacenTemporal& almacen, qint32 CSDE, const QString& CIM) {
    return almacen.Con<svrZELT::cZTEstablecimientos>().GuardaEstablecimiento(
        RegistroDeEstablecimiento(CSDE, CIM));
}

/// With the rates 24, 24, 6, 1, 24, 6.
inline qint32 GuardarDeclaracion(const AlmacenTemporal& almacen, qint32 CSDE, qint16 ejercicio,
                                 qint16 periodo) {
    return almacen.Con<svrZELT::cZTDeclaraciones>().GuardarDeclaraciones(
        {CSDE, ejercicio, periodo, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
}
