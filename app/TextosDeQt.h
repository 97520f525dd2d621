#pragma once

#include <QTranslator>

/// The toolkit's own texts (context menus of boxes, buttons of its dialogs) in the language in force.
///
/// The toolkit brings a Castellano translation, which goes first, and no Euskera one. The texts that this
/// program's screens can show stand in its own catalogue; the rest falls back to Castellano.
class TextosDeQt : public QTranslator {
    Q_OBJECT
  public:
    explicit TextosDeQt(QObject* padre = nullptr);

    [[nodiscard]] QString translate(const char* contexto, const char* texto, const char* aclaracion = nullptr,
                                    int n = -1) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }
};
