#pragma once

#include "forms/widgets/CajaTexto.h"

/// The numeric box of the annex entry, the control behind the names that begin with "cnu".
///
/// It takes digits, points and commas as they are typed, and a leading minus; the decimal key of the keypad
/// gives the decimal separator of the regional settings. What is pasted or dropped is read by the same rules
/// (see `LimpiarNumero`) and comes in without its groups, or is refused. When the focus goes to another
/// control, the whole is read and shown by the mask; a text that says no number ("-", "1.23.4") goes back to
/// `OldValue`. Whatever is refused brings the system's beep. An empty box stays empty. Going to another
/// program is not leaving. Text set by code passes none of this.
class CajaNumerica : public CajaTexto {
    Q_OBJECT
    Q_PROPERTY(QString Mascara READ Mascara WRITE setMascara)
    Q_PROPERTY(QString Text READ text WRITE setText)
    Q_PROPERTY(QString OldValue READ OldValue WRITE setOldValue)
    Q_PROPERTY(bool Locked READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(int Appearance READ Appearance WRITE setAppearance)
  public:
    explicit CajaNumerica(QWidget* padre = nullptr);

    /// Mask of the number, as `Formatear` knows it. It also tells how many whole digits there is room for.
    [[nodiscard]] const QString& Mascara() const { return m_mascara; }
    void setMascara(const QString& mascara) { m_mascara = mascara; }

    /// The text to go back to: that of the moment when the focus came.
    [[nodiscard]] const QString& OldValue() const { return m_anterior; }
    void setOldValue(const QString& anterior) { m_anterior = anterior; }

    /// Frame: 0 flat, 1 sunken.
    [[nodiscard]] int Appearance() const { return m_apariencia; }
    void setAppearance(int apariencia);

  protected:
    [[nodiscard]] QString Filtrar(const QString& texto) const override;
    void Rechazar() override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void initStyleOption(QStyleOptionFrame* opcion) const override;

  private:
    void MostrarPorMascara();

    QString m_mascara;
    QString m_anterior;
    int m_apariencia = 1;
};
