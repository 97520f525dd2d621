#include "forms/widgets/TeclaDeMenu.h"

#include <QAction>
#include <QMenu>

TeclaDeMenu::TeclaDeMenu(QMenu& menu) : QObject(&menu), m_menu(menu) {
    connect(menu.menuAction(), &QAction::enabledChanged, this, &TeclaDeMenu::Mostrar);
}

void TeclaDeMenu::PonerTitulo(const QString& titulo) {
    m_titulo = titulo;
    Mostrar();
}

void TeclaDeMenu::Mostrar() {
    // The bar keeps the keys of its menus whether they are on or off.
    m_menu.setTitle(m_menu.isEnabled() ? m_titulo : QString(m_titulo).remove(u'&'));
}
