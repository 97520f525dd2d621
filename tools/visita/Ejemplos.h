#pragma once

#include <vector>

#include "tools/visita/Mano.h"

// What the guided tour declares: invented people whose figures can be worked out by hand.

struct EstablecimientoDeEjemplo {
    QString cim;
    QString domicilio;
};

struct DeclaracionDeEjemplo {
    QString ejercicio;
    int periodo = 0;
    /// The boxes of each establishment, in the order of the list.
    std::vector<std::vector<Casilla>> establecimientos;
    /// Lines that its annex comes to, and the total worked out by hand, as the screen shows it.
    int lineas = 0;
    QString total;
};

struct DeclaranteDeEjemplo {
    /// Short name, for the names of the pictures.
    QString clave;
    QString nif;
    QString nombre;
    std::vector<Casilla> casillas;
    std::vector<EstablecimientoDeEjemplo> establecimientos;
    std::vector<DeclaracionDeEjemplo> declaraciones;
};

/// A company with two establishments (all six products in the first quarter of 2002, three in the second of
/// 2007), a person with one, and a company with six whose annex has thirty lines.
std::vector<DeclaranteDeEjemplo> Ejemplos();
