#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

#include "app/ZTAplicacion.h"
#include "core/run/Entorno.h"
#include "core/start/Instalacion.h"
#include "core/store/Almacenes.h"
#include "tools/visita/Ejemplos.h"
#include "tools/visita/Exigir.h"
#include "tools/visita/Visita.h"

using namespace Qt::StringLiterals;

namespace {

/// Moves what was printed out of the user's documents to `destino`.
QStringList RecogerImpresos(const QDir& destino) {
    const QDir documentos(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QStringList impresos;
    for (const QString& nombre : documentos.entryList({u"*.pdf"_s}, QDir::Files, QDir::Name)) {
        const QString ruta = destino.absoluteFilePath(nombre);
        QFile::remove(ruta);
        Exigir(QFile::rename(documentos.absoluteFilePath(nombre), ruta), ruta);
        impresos += ruta;
    }
    return impresos;
}

void ContarLoDeclarado() {
    std::printf("%-11s %-32s %5s %7s %6s %12s\n", "NIF", "Declarant", "Year", "Quarter", "Lines", "Total");
    for (const DeclaranteDeEjemplo& ejemplo : Ejemplos()) {
        for (const DeclaracionDeEjemplo& declaracion : ejemplo.declaraciones) {
            // Padded by characters, not by the bytes of printf.
            const QString fila = u"%1 %2 %3 %4 %5 %6"_s.arg(ejemplo.nif, -11)
                                     .arg(ejemplo.nombre, -32)
                                     .arg(declaracion.ejercicio, 5)
                                     .arg(declaracion.periodo, 7)
                                     .arg(declaracion.lineas, 6)
                                     .arg(declaracion.total, 12);
            std::printf("%s\n", qPrintable(fila));
        }
    }
}

void ContarFicheros(const char* que, const QStringList& ficheros) {
    std::printf("%lld %s:\n", static_cast<long long>(ficheros.size()), que);
    for (const QString& fichero : ficheros) {
        std::printf("  %s\n", qPrintable(QDir::toNativeSeparators(fichero)));
    }
}

}  // namespace

/// Usage: zt_visita [folder for the pictures and the printed copies]
int main(int argc, char** argv) {
    const ZTAplicacion aplicacion(argc, argv);
    const QDir salida(QCoreApplication::arguments().value(1, u"out"_s));
    const QString origen = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/zelt"_s);
    QStringList imagenes;
    QStringList impresos;
    for (const auto& [idioma, carpeta] :
         {std::pair{u"C"_s, u"impresos-cas"_s}, {u"E"_s, u"impresos-eus"_s}}) {
        const QTemporaryDir casa;
        ReiniciarEntorno();
        PrepararCarpetaPrograma(casa.filePath(u"bin"_s), casa.filePath(u"ZELT"_s), origen);
        Entorno().CarpetaTemporal = QDir::toNativeSeparators(casa.path());
        imagenes += Recorrer(salida.path(), idioma);
        CerrarAlmacenes();
        Exigir(salida.mkpath(carpeta), carpeta);
        impresos += RecogerImpresos(QDir(salida.filePath(carpeta)));
    }
    ContarLoDeclarado();
    ContarFicheros("pictures of screens", imagenes);
    ContarFicheros("printed copies", impresos);
    return 0;
}
