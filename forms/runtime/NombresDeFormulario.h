#pragma once

#include <QStringView>

/// The names of the forms, by which forms show each other: no form needs to know another one's class.
namespace Forma {

inline constexpr QStringView MDIZT = u"MDIZT";
inline constexpr QStringView About = u"frmZTAbout";
inline constexpr QStringView Copia = u"frmZTCopia";
inline constexpr QStringView Declaracion = u"frmZTDeclaracion";
inline constexpr QStringView Declarante = u"frmZTDeclarante";
inline constexpr QStringView DetDeclaracion = u"frmZTDetDeclaracion";
inline constexpr QStringView Establecimiento = u"frmZTEstablecimiento";
inline constexpr QStringView ExpDeclarantes = u"frmZTExpDeclarantes";
inline constexpr QStringView FicheroAExportar = u"frmZTFicheroAExportar";
inline constexpr QStringView GestErrores = u"frmZTGestErrores";
inline constexpr QStringView Idioma = u"frmZTIdioma";
inline constexpr QStringView Imp = u"frmZTImp";
inline constexpr QStringView ImpDeclarantes = u"frmZTImpDeclarantes";
inline constexpr QStringView Inicio = u"frmZTInicio";
inline constexpr QStringView ListaDeclaraciones = u"frmZTListaDeclaraciones";
inline constexpr QStringView ListaDeclarantes = u"frmZTListaDeclarantes";
inline constexpr QStringView ListaErrores = u"frmZTListaErrores";
inline constexpr QStringView ListaEstablecimientos = u"frmZTListaEstablecimientos";
inline constexpr QStringView MsgBox = u"frmZTMsgBox";
inline constexpr QStringView Preferencias = u"frmZTPreferencias";
inline constexpr QStringView Restaurar = u"frmZTRestaurar";
inline constexpr QStringView SinConexion = u"frmZTSinConexion";
inline constexpr QStringView VersionCheck = u"frmZTVersionCheck";
inline constexpr QStringView Vuelta = u"frmZTVuelta";

}  // namespace Forma
