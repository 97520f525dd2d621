#include "forms/help/ImpresionDeAyuda.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

#include "core/run/Textos.h"

void ImprimirTema(const QTextDocument& tema, const QString& titulo, QWidget& ventana) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(titulo);
    QPrintDialog dialogo(&impresora, &ventana);
    dialogo.setWindowTitle(TextoPropio(u"ayuda_imprimir"));
    if (dialogo.exec() == QDialog::Accepted) {
        tema.print(&impresora);
    }
}
