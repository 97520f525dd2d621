#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <QPoint>
#include <optional>

/// The text box of the entry forms.
///
/// Every character that the user brings in, by key, paste, drop or input method, passes the filter of the
/// box: capitals, refused characters dropped, and what is left is cut at the maximum length. Where nothing is
/// left, nothing happens: a selection stays. Text set by code does not pass it. A click that brings the focus
/// keeps what the form selected on that occasion.
class CajaTexto : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)
    Q_PROPERTY(FiltroDeCaja Filtro READ Filtro WRITE setFiltro)
  public:
    /// `Caracteres` is the filter `CaracterAceptable`, `Naturales` is `Keypress_Naturales`.
    enum FiltroDeCaja { Ninguno, Caracteres, Naturales };
    Q_ENUM(FiltroDeCaja)

    explicit CajaTexto(QWidget* padre = nullptr);

    /// Name of the field that the box stands for in the tracking of changes.
    [[nodiscard]] const QString& Tag() const { return m_tag; }
    void setTag(const QString& tag) { m_tag = tag; }

    [[nodiscard]] FiltroDeCaja Filtro() const { return m_filtro; }
    void setFiltro(FiltroDeCaja filtro) { m_filtro = filtro; }

  Q_SIGNALS:
    /// The user has changed the text, in whatever way.
    void Cambiado();

  protected:
    /// What is let in of a text that the user brings.
    [[nodiscard]] virtual QString Filtrar(const QString& texto) const;
    /// Nothing of what the user has pasted or dropped could be taken.
    virtual void Rechazar() {}

    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    void Pegar(QClipboard::Mode modo);

    QString m_tag;
    FiltroDeCaja m_filtro = Ninguno;
    /// The focus has come by the click that is about to be delivered.
    bool m_focoPorClic = false;
    /// Where that click was made, as long as the mouse has not been dragged away from it.
    std::optional<QPoint> m_clicDeFoco;
};
