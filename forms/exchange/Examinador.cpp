#include "forms/exchange/Examinador.h"

#include <QFileDialog>

#include "core/run/GeneralZT.h"

using namespace Qt::StringLiterals;

QString ExaminarFichero(QWidget& formulario, const QString& actual, UsoDelFichero uso) {
    const bool leer = uso == UsoDelFichero::Leer;
    // The title is the same for both uses and in both languages.
    QFileDialog examinador(&formulario, u"Cambiar fichero de salida"_s, Directorio(actual));
    examinador.setObjectName(u"Examinador"_s);
    // The system's own dialog would speak the language of the system, not that of the screens.
    examinador.setOption(QFileDialog::DontUseNativeDialog);
    examinador.setOption(QFileDialog::DontConfirmOverwrite);
    examinador.setAcceptMode(leer ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    examinador.setFileMode(leer ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    examinador.setNameFilters({u"*.txt"_s, u"*.* (*)"_s});
    examinador.setDefaultSuffix(u"txt"_s);
    examinador.selectFile(QFileInfo(actual).fileName());
    return examinador.exec() == QDialog::Accepted
               ? QDir::toNativeSeparators(examinador.selectedFiles().first())
               : actual;
}
