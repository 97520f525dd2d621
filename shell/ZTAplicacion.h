#pragma once

#include <QApplication>

#include "shell/PantallaQt.h"
#include "shell/TextosDeQt.h"

/// The application object: name, fonts, texts of the toolkit, screen channel, forms. The last net for a
/// failure that reaches the toolkit's event loop is here.
class ZTAplicacion : public QApplication {
    Q_OBJECT
  public:
    ZTAplicacion(int& argc, char** argv);
    ~ZTAplicacion() override;

    bool notify(QObject* receptor, QEvent* evento) override;

  private:
    TextosDeQt m_textos;
    PantallaQt m_pantalla;
};
