#pragma once

#include <QString>

#include "core/base/Tabla.h"

/// The declarants chosen for export, and the one being written; one instance, `oExportaciones()`.
class cZTExportaciones {
  public:
    /// Keys of the chosen declarants (32-bit), from element 0.
    Registro vBufferDtes;
    /// Record of the declarant being written, as the server gives it.
    Registro vBufferDeclarante;

    // The fields of a declarant. The writer reads the record and not these.
    QString Nombre;
    QString NIF;
    QString Siglas;
    QString Domicilio;
    qint32 Numero = 0;
    QString Mano;
    QString Letra;
    QString Escal;
    QString Piso;
    qint16 Provin = 0;
    qint16 CMuni = 0;
    qint16 Telepre = 0;
    qint32 CPost = 0;
    QString Munici;
    qint32 TelNum = 0;

    /// Reads the declarant with that key into `vBufferDeclarante`.
    void DeclaranteAExportar(qint32 CSDE);
};

/// The shared instance.
cZTExportaciones& oExportaciones();
