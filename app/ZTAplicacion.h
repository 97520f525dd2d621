#pragma once

#include <QApplication>

#include "app/TextosDeQt.h"
#include "forms/copies/CopiasQt.h"
#include "forms/help/TeclaDeAyuda.h"
#include "forms/messages/PantallaQt.h"
#include "forms/online/AsistenciaQt.h"
#include "forms/printing/DispositivoQt.h"
#include "forms/runtime/TeclasRepetidas.h"

/// Gives the fonts "Arial" and "MS Sans Serif" a substitute of Arial's widths, for which the printed forms
/// and the screens are laid out.
void SustituirLetras();

/// The application object: name, fonts, texts of the toolkit, screen channel, printer, on-line services,
/// forms. The last net for a failure that reaches the toolkit's event loop is here.
class ZTAplicacion : public QApplication {
    Q_OBJECT
  public:
    ZTAplicacion(int& argc, char** argv);
    ~ZTAplicacion() override;

    bool notify(QObject* receptor, QEvent* evento) override;

  private:
    TextosDeQt m_textos;
    TeclasRepetidas m_teclas;
    TeclaDeAyuda m_ayuda;
    PantallaQt m_pantalla;
    AsistenciaQt m_asistencia;
    CopiasQt m_copias;
    DispositivoQt m_impresora;
};
