#include <QCheckBox>
#include <QFile>
#include <QLabel>

#include "core/run/Entorno.h"
#include "forms/runtime/Formularios.h"
#include "tools/visita/Etapas.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kExportar = u"frmZTExpDeclarantes";
constexpr auto kFichero = u"frmZTFicheroAExportar";
constexpr auto kImportar = u"frmZTImpDeclarantes";

QString Nombre(const char16_t* formulario) { return QStringView(formulario).toString(); }

/// A line with a bad NIF and no name, and a line that is too short.
void AnadirLineasConFaltas(const QString& ruta) {
    QFile fichero(ruta);
    Exigir(fichero.open(QIODevice::Append), ruta);
    fichero.write(QByteArray("12345678A").leftJustified(140, ' ') + "\r\nB20000113\r\n");
}

void Cifra(QWidget& formulario, const QString& etiqueta, const QString& cifra) {
    const QString vista = formulario.findChild<QLabel*>(etiqueta)->text();
    Exigir(vista == cifra, etiqueta + u": "_s + vista + u" en lugar de "_s + cifra);
}

}  // namespace

void Intercambio(Mano& mano) {
    mano.Elegir(u"mnuExport"_s);
    mano.Guardar(u"30-exportar"_s);
    mano.Pulsar(mano.EnPantalla(Nombre(kExportar)), u"cmdTodosF"_s);
    mano.Guardar(u"31-exportar-elegidos"_s);
    mano.Pulsar(mano.EnPantalla(Nombre(kExportar)), u"cmdAceptar"_s);
    QWidget& fichero = mano.EnPantalla(Nombre(kFichero));
    mano.Guardar(u"32-fichero"_s);
    const QString ruta = fichero.findChild<QLabel*>(u"lblFichero"_s)->text();
    mano.Pulsar(fichero, u"cmdAceptar"_s);
    mano.Guardar(u"33-exportado"_s);
    mano.Pulsar(fichero, u"CmdContinuar"_s);

    AnadirLineasConFaltas(ruta);
    mano.Elegir(u"mnuImportDec"_s);
    QWidget& importar = mano.EnPantalla(Nombre(kImportar));
    mano.Guardar(u"34-importar"_s);
    mano.CuandoAparezca(u"frmZTMsgBox"_s, [&mano](QWidget& aviso) {
        mano.Guardar(u"35-importar-automatico"_s);
        mano.Pulsar(aviso, u"cmdAceptar"_s);
    });
    mano.Pulsar(importar, u"chkAutomatico"_s);
    mano.Pulsar(importar, u"cmdAceptar"_s);
    mano.Guardar(u"36-importado"_s);
    Cifra(importar, u"lblNumSus"_s, QString::number(Ejemplos().size()));
    Cifra(importar, u"lblNumInc"_s, u"2"_s);
    mano.Pulsar(importar, u"CmdContinuar"_s);
}
