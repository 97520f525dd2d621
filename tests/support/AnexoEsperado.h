#pragma once

#include "tests/support/HojaEsperada.h"

// The blocks of an annex page as the form has them, for the declarant and the quarter of
// `EntornoDeImpresion`.

using namespace Qt::StringLiterals;

inline void EtiquetaDeAnexoEsperada(HojaEsperada& h, const QString& etiqueta) {
    h.Letra(u"Arial"_s, 8, false).C(12, 246, 180, etiqueta);
}

inline void CabeceraDeAnexoEsperada(HojaEsperada& h, const QString& pagina, const QString& total) {
    h.Marco(10, 14, 192, 42).Imagen(ImagenDeImpreso::Logo, 10.5, 14.5);
    h.Raya(75, 14, 75, 42).Raya(75, 33, 192, 33);
    h.Rotulos(7).T(32, 16, u"Ondarziako Foru Aldundia"_s).T(32, 19, u"Diputación Foral de Ondarzia"_s);
    h.T(12, 31, u"Ogasun eta Finantza Departamentua"_s).T(12, 34, u"Departamento de Hacienda y Finanzas"_s);
    h.C(12, 38, 50, u"www.ondarzia.example"_s);
    h.RotulosNegrita(9);
    h.C(70, 15, 126, u"569 EREDUAREN ERANSKINA"_s).C(70, 18, 126, u"ANEXO DEL MODELO 569"_s);
    h.C(70, 23, 126, u"ESTABLEZIMENDUAREN ARABERAKO BANAKETAREN AITORPENA (EBA)"_s);
    h.C(70, 26, 126, u"DECLARACION DE DESGLOSE POR ESTABLECIMIENTOS (DDE)"_s);
    h.RotulosNegrita(8);
    h.C(77, 33.5, 95, u"Zenbait hidrokarburoren txikizkako salmenten gaineko zerga"_s);
    h.C(77, 37, 95, u"Impuesto sobre ventas minoristas de determinados hidrocarburos"_s);
    h.Rotulos(8).L(174, 35, u"Orri zk:"_s).L(186, 35, u"/"_s).L(174, 38, u"Hoja:"_s).L(184, 38, u"de"_s);
    h.Datos(8).L(183, 35, pagina).L(188, 35, total).L(181.5, 38, pagina).L(188, 38, total);
}

inline void IdentificacionDeAnexoEsperada(HojaEsperada& h) {
    h.Marco(10, 44, 192, 74);
    h.Raya(40, 44, 40, 74).Raya(58, 44, 58, 54).Raya(165, 44, 165, 74);
    h.Raya(133, 54, 133, 64).Raya(149, 54, 149, 64).Raya(137, 64, 137, 74);
    h.Raya(165, 54, 192, 54).Raya(40, 54, 165, 54).Raya(40, 64, 165, 64);
    h.RotulosNegrita(7).C(10, 48, 30, u"Subj. pasiboaren"_s).C(10, 51, 30, u"identifikazioa"_s);
    h.C(10, 56, 30, u"Identificación del"_s).C(10, 59, 30, u"Sujeto pasivo"_s);
    h.Rotulos(7).L(41, 45, u"IZF / NIF"_s);
    h.L(59, 45, u"Deiturak eta izena edo sozietatearen izena / Apellidos y nombre (o razón social)"_s);
    h.RotulosNegrita(7).C(166, 45, 26, u"Sortzapena"_s).C(166, 48, 26, u"Devengo"_s);
    h.Rotulos(7).L(166, 56, u"Ekitaldia"_s).L(166, 59, u"Ejercicio"_s);
    h.Marco(182, 56, 186, 60).Marco(186, 56, 190, 60);
    h.L(166, 64, u"Zergaldia"_s).L(166, 67, u"Periodo"_s);
    h.Marco(182, 64, 186, 68).Marco(186, 64, 190, 68);
    h.L(41, 56, u"Zerga helbidea / Domicilio fiscal"_s).L(134, 56, u"Zk. / Núm."_s);
    h.L(150, 56, u"Solairua / Piso"_s);
    h.L(41, 66, u"Udalerria eta probintzia / Municipio y Provincia"_s);
    h.L(138, 66, u"Telefonoa / Teléfono"_s);
    h.Datos(7).L(41, 51, u"B48000012"_s).L(60, 51, u"GASOLINERAS DE PRUEBA SL"_s);
    h.L(41, 62, u"CL/ MAYOR"_s).L(134, 62, u"12"_s).L(150, 62, u"3"_s);
    h.L(41, 72, u"ABARZELAI ONDARZIA"_s).L(138, 72, u"943 123456"_s);
    h.L(184, 58, u"0"_s).L(188, 58, u"7"_s).L(184, 66, u"2"_s).L(188, 66, u"T"_s);
}

/// Up to where the rows begin.
inline void DesgloseEsperado(HojaEsperada& h) {
    h.Marco(10, 76, 192, 202);
    h.Raya(10, 86, 192, 86).Raya(68, 86, 68, 196).Raya(76, 86, 76, 196).Raya(144, 86, 144, 202);
    h.Raya(76, 94, 144, 94);
    for (int y = 100; y <= 196; y += 4) {
        h.Raya(10, y, 192, y);
    }
    h.RotulosNegrita(7).C(10, 77, 182, u"KUOTEN ETA HORNIKUNTZA SALBUETSIEN BANAKETA"_s);
    h.C(10, 81, 182, u"DESGLOSE DE CUOTAS Y SUMINISTROS EXENTOS"_s);
    h.C(10, 87, 58, u"TXIKIZKAKOEN"_s).C(10, 90, 58, u"IDENTIFIKAZIO KODEA"_s);
    h.C(10, 94, 58, u"CODIGO IDENTIFICACION"_s).C(10, 97, 58, u"MINORISTA"_s).C(69, 92, 8, u"P"_s);
    h.C(80, 87, 58, u"HORNIKUNTZA ETA AUTOKONTSUMO SALBUETSIAK"_s);
    h.C(80, 90, 58, u"SUMINISTROS Y AUTOCONSUMOS EXENTOS"_s);
    h.C(77, 94, 58, u"Litro edo tona milakoak"_s).C(77, 97, 58, u"Miles de litros o toneladas"_s);
    h.C(135, 90, 58, u"KUOTA LIKIDOA"_s).C(135, 94, 58, u"CUOTA LIQUIDA"_s);
    h.L(120, 197, u"Guztira"_s).L(120, 200, u"Total.................."_s);
}

/// The `fila`th row of a page, from 0.
inline void LineaEsperada(HojaEsperada& h, int fila, const QString& CIM, const QString& producto,
                          const QString& SUMEX, const QString& CUOTA) {
    h.Datos(7).C(10, 100.5 + 4 * fila, 58, CIM).C(69, 100.5 + 4 * fila, 8, producto);
    h.R(110, 102 + 4 * fila, SUMEX).R(170, 102 + 4 * fila, CUOTA);
}

inline void TotalDePaginaEsperado(HojaEsperada& h, const QString& total) { h.Datos(7).R(170, 200, total); }

inline void FirmaDeAnexoEsperada(HojaEsperada& h) {
    h.Marco(10, 204, 192, 244).Raya(55, 209, 135, 209);
    h.Rotulos(8).L(58, 207, u"Data / Fecha"_s).L(75, 211, u"Aitortzailearen sinadura"_s);
    h.L(77, 214, u"Firma del Declarante"_s);
    h.Datos(8).L(85, 207, u"2007/01/15ean /// 15/01/2007"_s);
}
