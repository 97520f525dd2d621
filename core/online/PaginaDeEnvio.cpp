#include "core/online/PaginaDeEnvio.h"

#include "core/base/Windows1252.h"
#include "core/online/FicheroLocal.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

QString PaginaDeEnvio(const QString& direccion) {
    return u"<HTML> "_s + u" <BODY ONLOAD='document.formulario.submit();'> "_s +
           u" <FORM NAME='formulario' action='"_s + direccion + u"' method=post> "_s +
           u" </FORM></BODY> </HTML>"_s;
}

QString EscribirPaginaDeEnvio(const QString& direccion) {
    QString ruta = EnCarpetaPrograma(u"temphtm.HTM"_s);
    BorrarSiExiste(ruta);
    EscribirEntero(ruta, AWindows1252(PaginaDeEnvio(direccion)));
    return ruta;
}
