#pragma once

#include <QString>

/// Writes the reference store `destino` out of the tables in `carpeta` (provincias.tsv, siglas_via.tsv,
/// municipios.tsv, tipos.tsv) and the general data in the file `generales`. The store replaces one that
/// stands there, and only when it is whole. Raises `FallaTsv` for faults of the data: duplicate keys,
/// unknown or missing general data, addresses that are none, overlapping intervals of rates, and quarters
/// from the first accepted to the last in which a product has no rate.
void GenerarReferencia(const QString& destino, const QString& carpeta, const QString& generales);
