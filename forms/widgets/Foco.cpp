#include "forms/widgets/Foco.h"

bool DentroDelPrograma(const QFocusEvent& evento) {
    switch (evento.reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        default:
            return true;
    }
}
