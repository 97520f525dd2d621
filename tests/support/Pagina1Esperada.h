#pragma once

#include "tests/support/HojaEsperada.h"

// The blocks of page 1 as the form has them, for the declarant and the quarter of `EntornoDeImpresion`.

using namespace Qt::StringLiterals;

/// The label at the foot, in the font name that the device has.
inline void EtiquetaEsperada(HojaEsperada& h, const QString& letra, const QString& etiqueta) {
    h.Letra(letra, 9, false).C(12, 243, 180, etiqueta);
}

inline void CabeceraEsperada(HojaEsperada& h, const QString& periodo) {
    h.Marco(10, 14, 192, 42).Imagen(ImagenDeImpreso::Logo, 10.5, 14.5);
    h.Raya(75, 14, 75, 42).Raya(122, 34, 122, 42).Raya(170, 14, 170, 42);
    h.Raya(75, 30, 170, 30).Raya(75, 34, 170, 34).Raya(75, 38, 170, 38);
    h.Rotulos(7).T(32, 16, u"Ondarziako Foru Aldundia"_s).T(32, 19, u"Diputación Foral de Ondarzia"_s);
    h.T(12, 31, u"Ogasun eta Finantza Departamentua"_s).T(12, 34, u"Departamento de Hacienda y Finanzas"_s);
    h.C(12, 38, 50, u"www.ondarzia.example"_s);
    h.RotulosNegrita(9);
    h.C(70, 15, 100, u"Zenbait Hidrokarburoren Txikizkako"_s).C(70, 18, 100, u"Salmenten gaineko Zerga"_s);
    h.C(70, 23, 100, u"Impuesto sobre Ventas Minoristas de"_s);
    h.C(70, 26, 100, u"Determinados Hidrocarburos"_s).C(75, 30.5, 95, u"Sortzapena / Devengo"_s);
    h.Rotulos(8).T(76, 35, u"Ekitaldia / Ejercicio"_s).T(123, 35, u"Epealdia / Periodo"_s);
    h.RotulosNegrita(30).C(170, 22, 22, u"569"_s);
    h.Datos(8).L(76, 40, u"2007"_s).L(123, 40, periodo);
}

inline void RayasDeIdentificacionEsperadas(HojaEsperada& h) {
    h.Marco(10, 45, 192, 80).Imagen(ImagenDeImpreso::Declarante, 10.5, 52);
    h.Raya(19, 45, 19, 80).Raya(49, 45, 49, 53).Raya(19, 53, 192, 53);
    h.Raya(100, 53, 100, 61).Raya(120, 53, 120, 61).Raya(140, 53, 140, 61).Raya(160, 53, 160, 61);
    h.Raya(19, 61, 192, 61).Raya(100, 61, 100, 69).Raya(140, 61, 140, 69);
    h.Raya(19, 69, 192, 69).Raya(170, 69, 170, 80);
}

/// Without the boxes of the establishment.
inline void IdentificacionEsperada(HojaEsperada& h) {
    RayasDeIdentificacionEsperadas(h);
    h.Rotulos(8).L(21, 46, u"IFZ / NIF"_s);
    h.L(50, 46, u"Deiturak eta izena, edo sozietate izena / Apellidos y Nombre o Razón Social"_s);
    h.L(21, 54, u"Zerga helbidea / Domicilio fiscal"_s).L(101, 54, u"Zk./Nº"_s);
    h.L(121, 54, u"Solairua/Piso"_s).L(141, 54, u"Aldea/Mano"_s).L(161, 54, u"Telefonoa/Teléfono"_s);
    h.L(21, 62, u"Udalerria / Municipio"_s).L(101, 62, u"Probintzia / Provincia"_s);
    h.L(141, 62, u"Posta kodea / Cód. Postal"_s);
    h.L(21, 70, u"ESTABLEZIMENDUAren helbidea, herria, udalerria eta probintzia"_s);
    h.L(21, 73, u"Domicilio, localidad municipio y provincia del ESTABLECIMIENTO"_s);
    h.L(171, 70, u"TIK kodea"_s).L(171, 73, u"C.I.M."_s);
    h.Datos(8).L(22, 50, u"B48000012"_s).L(50, 50, u"GASOLINERAS DE PRUEBA SL"_s);
    h.L(22, 59, u"CL/ MAYOR"_s).L(101, 59, u"12"_s).L(121, 59, u"3"_s).L(141, 59, u"DCH"_s);
    h.L(161, 59, u"943 123456"_s).L(22, 67, u"ABARZELAI"_s).L(101, 67, u"ONDARZIA"_s);
    h.L(141, 67, u"20001"_s);
}

/// Title, grid and labels; with the table, or with the total's cell alone.
inline void RejillaEsperada(HojaEsperada& h, bool conTabla) {
    h.Marco(10, 82, 192, 130).Raya(10, 87, 192, 87);
    if (!conTabla) {
        h.Marco(157, 119, 188, 126);
        return;
    }
    for (const double x : {13.0, 49.0, 85.0, 121.0, 157.0}) {
        for (const double y : {95.0, 99.0, 103.0, 107.0, 111.0, 115.0, 119.0}) {
            h.Raya(x, y, x + 31, y);
        }
    }
    h.Marco(13, 95, 44, 119).Marco(49, 95, 80, 119).Marco(85, 95, 116, 119).Marco(121, 95, 152, 119);
    h.Marco(157, 95, 188, 126);
}

/// Up to where the products begin.
inline void LiquidacionEsperada(HojaEsperada& h, bool conTabla = true) {
    RejillaEsperada(h, conTabla);
    h.RotulosNegrita(9).C(10, 83, 182, u"Likidazioa / Liquidación"_s);
    if (conTabla) {
        h.Rotulos(8).C(13, 88, 31, u"Produktua"_s).C(13, 91, 31, u"Producto"_s);
        h.C(49, 88, 31, u"Hornidura eta autokon. salbuetsiak"_s);
        h.C(49, 91, 31, u"Sumi. y autoconsum. exen."_s);
        h.C(85, 88, 31, u"Oinarri ezargarria"_s).C(85, 91, 31, u"Base imponible"_s);
        h.C(121, 88, 31, u"Zerga tasa"_s).C(121, 91, 31, u"Tipo impositivo"_s);
        h.C(157, 88, 31, u"Kuota"_s).C(157, 91, 31, u"Cuota"_s);
    }
    h.RotulosNegrita(8).L(110, 121, u"Ordaintzeko kuota, guztira"_s);
    h.L(110, 124, u"Cuota total a ingresar ........"_s);
}

/// The row of a product, its number and its texts in the columns, at the height of the `fila`th one from 0.
inline void ProductoEsperado(HojaEsperada& h, int fila, const QString& numero, const QString& SUMEX,
                             const QString& BASIM, const QString& TIPIM, const QString& CUOTA) {
    h.Datos(8).C(13, 95.5 + 4 * fila, 31, numero).R(79, 97 + 4 * fila, SUMEX);
    h.R(115, 97 + 4 * fila, BASIM).R(151, 97 + 4 * fila, TIPIM).R(187, 97 + 4 * fila, CUOTA);
}

inline void TotalEsperado(HojaEsperada& h, const QString& total) { h.Datos(8).R(187, 122, total); }

inline void SinIngresoEsperado(HojaEsperada& h, bool conMarca) {
    h.Marco(10, 132, 192, 148).Raya(40, 132, 40, 148).Marco(182, 137, 188, 142);
    h.RotulosNegrita(8).C(10, 136, 31, u"Ordainketarik gabe"_s).C(10, 140, 31, u"Sin ingreso"_s);
    h.Rotulos(8);
    h.L(42, 134, u"Zerga honen likidazioak ZERO KUOTA LIKIDOA eman badu zergaldi eta ekitaldian,"_s);
    h.L(42, 137, u"\"X\" bat jarri behar da ondoko laukian:"_s);
    h.L(42, 142,
        u"Si la liquidación correspondiente a este tributo, por el ejercicio y periodo considerado resulta CON CUOTA "_s);
    h.L(42, 145, u"LIQUIDA CERO marque con una \"X\" el recuadro al efecto:"_s);
    if (conMarca) {
        h.Datos(8).L(184, 139, u"X"_s);
    }
}

inline void FirmaEsperada(HojaEsperada& h) {
    h.Marco(10, 150, 192, 190).Raya(55, 155, 135, 155);
    h.Rotulos(8).L(58, 153, u"Data / Fecha"_s).L(73, 157, u"Subjektu pasiboaren sinadura"_s);
    h.L(77, 160, u"Firma del Sujeto Pasivo"_s);
    h.Datos(8).L(85, 153, u"2007/01/15ean /// 15/01/2007"_s);
}

inline void CartaDePagoEsperada(HojaEsperada& h, const QString& periodo) {
    h.Marco(10, 192, 192, 241).Imagen(ImagenDeImpreso::Justificante, 12, 196).Raya(28, 192, 28, 241);
    h.Rotulos(8).C(28, 195, 164, u"Ordainketa-gutuna / Carta de pago"_s);
    h.L(30, 238, u"Zigilua eta sinadura / Sello y Firma"_s);
    h.L(78, 238, u"Entitatearen gakoa / Clave Entidad"_s);
    h.L(128, 238, u"Data / Fecha"_s).L(160, 238, u"Zenbatekoa / Importe"_s);
    h.Datos(8).L(76, 40, u"2007"_s).L(123, 40, periodo);
}
