-- The reference store, version 1. Written once, when the program is built, and read-only from then on.
--
-- Names are ordered by the collation ALFABETICO, which the program registers: accents and case do not
-- separate names, and Ñ comes after N.

-- General data by name: accepted years and quarters, department, addresses, version of the data.
CREATE TABLE T01_DATOS (
    T01_CLAVE TEXT PRIMARY KEY,
    T01_VALOR TEXT NOT NULL
) STRICT, WITHOUT ROWID;

CREATE TABLE T02_Provincias (
    T02_PROID INTEGER PRIMARY KEY,
    T02_PROCAS TEXT NOT NULL COLLATE ALFABETICO,
    T02_PROEUS TEXT NOT NULL COLLATE ALFABETICO
) STRICT;

CREATE TABLE T03_SIGLASVIA (
    T03_CODIGO TEXT PRIMARY KEY,
    T03_CAS TEXT NOT NULL COLLATE ALFABETICO,
    T03_EUS TEXT NOT NULL COLLATE ALFABETICO
) STRICT, WITHOUT ROWID;

CREATE TABLE T04_MUNICIPIOS (
    T04_CODMUN INTEGER PRIMARY KEY,
    T04_NOMMUN TEXT NOT NULL COLLATE ALFABETICO
) STRICT;

-- Tax rates in millionths of money by unit. DESDE and HASTA are quarters, year * 10 + number, both included;
-- the intervals of a product do not overlap.
CREATE TABLE T09_TIPOS (
    T09_PRODUCTO INTEGER NOT NULL CHECK (T09_PRODUCTO BETWEEN 1 AND 6),
    T09_DESDE INTEGER NOT NULL,
    T09_HASTA INTEGER NOT NULL CHECK (T09_HASTA >= T09_DESDE),
    T09_TIPO INTEGER NOT NULL CHECK (T09_TIPO >= 0),
    PRIMARY KEY (T09_PRODUCTO, T09_DESDE)
) STRICT, WITHOUT ROWID;
