#pragma once

#include <QString>

/// What is to be printed and for whom; one instance, `oImprimir()`.
class cZTImprimir {
  public:
    /// Date of presentation as typed, in the form of the language.
    QString FechaPresentacion;
    /// Quarter (1 to 4) and year of the declaration.
    qint16 Periodo = 0;
    qint16 Ejercicio = 0;
    /// The copies: the taxpayer's, the administration's, a draft, the bank's.
    bool Interesado = false;
    bool Administracion = false;
    bool Borrador = false;
    bool EntBank = false;
};

/// The shared instance.
cZTImprimir& oImprimir();
