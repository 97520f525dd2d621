#pragma once

#include <QString>

// General data of the reference store, by name (table T01_DATOS).

inline constexpr auto kEjercicioMinimo = u"EjercicioMinimo";
inline constexpr auto kPeriodoMinimo = u"PeriodoMinimo";
inline constexpr auto kEjercicioMaximo = u"EjercicioMaximo";
inline constexpr auto kPeriodoMaximo = u"PeriodoMaximo";
inline constexpr auto kDepartamentoCas = u"DepartamentoCas";
inline constexpr auto kDepartamentoEus = u"DepartamentoEus";
inline constexpr auto kURLAct = u"URLAct";
inline constexpr auto kURLAsistencia = u"URLAsistencia";
inline constexpr auto kURLInfoCas = u"URLInfoCas";
inline constexpr auto kURLInfoEus = u"URLInfoEus";
inline constexpr auto kVersionDatos = u"VersionDatos";

/// The datum `clave` of the reference store at `mdblec`. Raises 3049 when the store lacks it.
QString LeerDatoGeneral(const QString& mdblec, QStringView clave);

/// `VersionDatos` of the reference store in the file at `ruta`: the higher one is the newer. 0 when there is
/// no such file. One that is not a reference store of this version of the program, or can't be read, raises
/// what `Almacen` raises, with the file and the cause: it is not for the program to replace it. Keeps no
/// connection.
qint32 VersionDeReferencia(const QString& ruta);
