#pragma once

#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QString>

class QComboBox;

/// Which printer is in force and on what paper it prints. Whoever shows other printers changes it meanwhile.
class EleccionDeImpresora {
  public:
    explicit EleccionDeImpresora(const QPrinter& impresora);

    /// Puts it in force again.
    void Reponer(QPrinter& impresora) const;
    /// Puts its paper in force again.
    void ReponerHoja(QPrinter& impresora) const { impresora.setPageLayout(m_hoja); }
    [[nodiscard]] const QString& Nombre() const { return m_nombre; }
    [[nodiscard]] QPageSize Hoja() const { return m_hoja.pageSize(); }

  private:
    QPrinter::OutputFormat m_formato;
    QString m_nombre;
    QString m_fichero;
    QPageLayout m_hoja;
};

/// The system's printer dialog for a return. It shows the printer and the paper in force, where the toolkit's
/// own begins with the defaults, and offers neither a range of pages nor a sheet on its side: a return is
/// printed whole and upright.
class DialogoDeImpresora : public QPrintDialog {
    Q_OBJECT
  public:
    /// `fichero` is the path that is offered for printing to a file.
    DialogoDeImpresora(QPrinter& impresora, const QString& fichero, QWidget& sobre);

    /// Puts in force again what was so before the dialog came up.
    void Deshacer() { m_enVigor.Reponer(*printer()); }

    void accept() override;

  protected:
    void showEvent(QShowEvent* evento) override;
    /// Where the dialog gets its page of properties.
    void childEvent(QChildEvent* evento) override;

  private:
    /// `enVigor` is what is so before the toolkit's dialog is made, which puts the default printer in force.
    DialogoDeImpresora(QPrinter& impresora, const EleccionDeImpresora& enVigor, QWidget& sobre);
    void MostrarImpresora();
    void PrepararPropiedades(QDialog& propiedades);
    /// Whether the printer that was in force is the chosen one.
    [[nodiscard]] bool EsLaMisma() const;

    EleccionDeImpresora m_enVigor;
    /// Null where the system has a dialog of its own.
    QComboBox* m_impresoras;
    QString m_textoEnVigor;
    /// Whether the user has been asked for the paper of the chosen printer.
    bool m_hojaElegida = false;
};
