#include "core/exchange/ExporacionZT.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "core/base/ErrorZT.h"
#include "core/base/Pantalla.h"
#include "core/base/Procedimiento.h"
#include "core/exchange/FicheroDeExportacion.h"
#include "core/exchange/PantallasDeIntercambio.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// The longest name that file systems take, in bytes.
constexpr qsizetype kLargoDeNombre = 255;

bool EsNombreIncorrecto(const QFileInfo& fichero) {
    const QString ruta = fichero.filePath();
    return ruta.isEmpty() || std::ranges::any_of(ruta, [](QChar c) { return c < u' '; }) ||
           QFile::encodeName(fichero.fileName()).size() > kLargoDeNombre;
}

/// Whether the file can be written over; a folder is none.
bool Existe(const QFileInfo& fichero) { return fichero.exists() && !fichero.isDir(); }

}  // namespace

void ExportarDeclarantes(PantallaDeExportacion& pantalla) {
    Procedimiento(u"exportacion.ExportarDeclarantes", [&] {
        const QFileInfo fichero(pantalla.Fichero());
        if (EsNombreIncorrecto(fichero)) {
            Mensaje(Texto(Id::NombreDeFicheroIncorrecto), pantalla.Titulo(), true);
            return;
        }
        if (Existe(fichero) &&
            Mensaje(Texto(Id::FicheroExistente), pantalla.Titulo(), false) == kRespuestaCancelar) {
            return;
        }
        FicheroDeExportacion salida(fichero.filePath());
        pantalla.Empezar();
        pantalla.MostrarBarra();
        ExportarDeclarantesSolo(salida.Lineas(), pantalla);
        salida.Terminar();
        pantalla.Terminar();
    });
}

void ExportarDeclarantesSolo(EscritorDeLineas& fichero, PantallaDeExportacion& pantalla) {
    Procedimiento(u"exportacion.ExportarDeclarantesSolo", [&] {
        cZTExportaciones& exportaciones = oExportaciones();
        const int n = static_cast<int>(exportaciones.vBufferDtes.size());
        for (int i = 0; i < n; ++i) {
            exportaciones.DeclaranteAExportar(Elemento(exportaciones.vBufferDtes, i).aEntero32());
            pantalla.Avanzar(i + 1, n);
            const Registro& declarante = exportaciones.vBufferDeclarante;
            ConDetalle(
                [&] { return TextoPropio(u"intercambio_nif").arg(Elemento(declarante, kFilaNif).aTexto()); },
                [&] { fichero.Escribir(LineaDeDeclarante(declarante)); });
        }
    });
}
