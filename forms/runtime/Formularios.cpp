#include "forms/runtime/Formularios.h"

#include <QApplication>
#include <QEventLoop>
#include <QHash>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScopeGuard>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <vector>

#include "core/base/ErrorZT.h"
#include "forms/runtime/Eventos.h"
#include "forms/widgets/Teclado.h"

using namespace Qt::StringLiterals;

/// Keeps the loaded forms and runs their rules.
class RegistroDeFormularios {
  public:
    QHash<QString, Formularios::Fabrica> fabricas;
    QPointer<QMdiArea> area;

    Formulario* Buscar(QStringView nombre) const {
        for (Formulario* f : m_cargados) {
            if (f->Nombre() == nombre) {
                return f;
            }
        }
        return nullptr;
    }

    Formulario& Obtener(QStringView nombre) {
        if (Formulario* cargado = Buscar(nombre)) {
            return *cargado;
        }
        const auto fabrica = fabricas.constFind(nombre.toString());
        if (fabrica == fabricas.constEnd()) {
            throw ErrorZT(NumError::FormularioDesconocido,
                          TextoDeError(NumError::FormularioDesconocido) + u": "_s + nombre.toString());
        }
        Formulario* nuevo = (*fabrica)();
        m_cargados.push_back(nuevo);
        try {
            nuevo->Form_Load();
        } catch (...) {
            Soltar(nuevo);
            throw;
        }
        return *nuevo;
    }

    void Mostrar(QStringView nombre) {
        if (m_cerrando) {
            return;
        }
        Formulario& formulario = Obtener(nombre);
        if (formulario.Descargado()) {
            return;
        }
        QWidget& ventana = formulario.Ventana();
        if (qobject_cast<FormularioTrabajo*>(&ventana) != nullptr && area) {
            MostrarEnMarco(ventana);
        } else {
            ventana.show();
            ventana.raise();
            ventana.activateWindow();
        }
        Activar(nombre);
    }

    void MostrarModal(QStringView nombre) {
        if (m_cerrando) {
            return;
        }
        Formulario& formulario = Obtener(nombre);
        if (formulario.Descargado()) {
            return;
        }
        const QString anterior = m_activo;
        QWidget& ventana = formulario.Ventana();
        ventana.setWindowModality(Qt::ApplicationModal);
        QEventLoop bucle;
        bool conFoco = true;
        m_bucles.push_back({&formulario, &bucle, &conFoco});
        {
            const auto salida = qScopeGuard(
                [&] { std::erase_if(m_bucles, [&](const auto& b) { return b.bucle == &bucle; }); });
            PonerEncima(formulario, anterior);
            ventana.show();
            Activar(nombre);
            if (!formulario.Descargado()) {
                bucle.exec();
            }
        }
        Formulario* debajo = Debajo(anterior);
        if (conFoco && debajo != nullptr && !m_cerrando) {
            DarTeclado(debajo->Ventana().window());
        }
        if (Buscar(anterior) != nullptr) {
            Activar(anterior);
        }
    }

    void Descargar(QStringView nombre) {
        Formulario* formulario = Buscar(nombre);
        if (formulario == nullptr || formulario->m_descargado) {
            return;
        }
        formulario->m_descargado = true;
        std::erase(m_cargados, formulario);
        if (m_activo == nombre) {
            m_activo.clear();
        }
        formulario->Form_Unload();
        Retirar(formulario);
    }

    void DescargarTodos(QStringView excepto) {
        m_cerrando = true;
        const auto salida = qScopeGuard([this] { m_cerrando = false; });
        const std::vector<Formulario*> instantanea = m_cargados;
        for (const Formulario* formulario : instantanea) {
            if (formulario->Nombre() != excepto) {
                Descargar(formulario->Nombre());
            }
        }
    }

    void Activar(QStringView nombre) {
        Formulario* formulario = Buscar(nombre);
        if (formulario == nullptr || m_activo == nombre) {
            return;
        }
        m_activo = nombre.toString();
        formulario->Form_Activate();
    }

    /// The last loaded goes first: the frame, which owns the windows in it, was there before them.
    void Reiniciar() {
        while (!m_cargados.empty()) {
            Soltar(m_cargados.back());
        }
        m_activo.clear();
        area = nullptr;
    }

    const std::vector<Formulario*>& Cargados() const { return m_cargados; }
    const QString& Activo() const { return m_activo; }

  private:
    struct Bucle {
        Formulario* formulario;
        QEventLoop* bucle;
        /// Whether the form had the keyboard when it went.
        bool* conFoco;
    };

    /// Ties a modal window to that of the form it comes over, so that it never goes behind it.
    void PonerEncima(Formulario& modal, const QString& activo) const {
        Formulario* debajo = Debajo(activo);
        if (debajo == nullptr || debajo == &modal) {
            return;
        }
        modal.Ventana().winId();
        modal.Ventana().windowHandle()->setTransientParent(debajo->Ventana().window()->windowHandle());
    }

    /// The form over which a modal one stands, `activo` having been the active one.
    Formulario* Debajo(const QString& activo) const {
        Formulario* formulario = Buscar(activo);
        return formulario == nullptr ? UltimoVisible() : formulario;
    }

    /// A form that shows itself while it is loading is on the screen before it is the active one.
    Formulario* UltimoVisible() const {
        const auto ultimo = std::find_if(m_cargados.rbegin(), m_cargados.rend(),
                                         [](Formulario* f) { return f->Ventana().isVisible(); });
        return ultimo == m_cargados.rend() ? nullptr : *ultimo;
    }

    void MostrarEnMarco(QWidget& ventana) const {
        auto* hija = qobject_cast<QMdiSubWindow*>(ventana.parentWidget());
        if (hija == nullptr) {
            hija =
                area->addSubWindow(&ventana, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
            hija->setAttribute(Qt::WA_DeleteOnClose, false);
            // A click on what takes no focus leaves it where it is.
            hija->setFocusPolicy(Qt::NoFocus);
        }
        ventana.show();
        hija->show();
        area->setActiveSubWindow(hija);
    }

    /// Takes the window off the screen and lets it be deleted once control is back in the event loop.
    void Retirar(Formulario* formulario) {
        QWidget& ventana = formulario->Ventana();
        const bool conFoco = ventana.isActiveWindow();
        ventana.hide();
        if (auto* hija = qobject_cast<QMdiSubWindow*>(ventana.parentWidget())) {
            hija->hide();
            if (area) {
                area->removeSubWindow(hija);
            }
            hija->deleteLater();
        } else {
            ventana.deleteLater();
        }
        for (const Bucle& b : m_bucles) {
            if (b.formulario == formulario) {
                *b.conFoco = conFoco;
                b.bucle->quit();
            }
        }
    }

    void Soltar(Formulario* formulario) {
        formulario->m_descargado = true;
        std::erase(m_cargados, formulario);
        QWidget& ventana = formulario->Ventana();
        // The focus leaves while the form can still be asked whether it hears that.
        ventana.hide();
        auto* hija = qobject_cast<QMdiSubWindow*>(ventana.parentWidget());
        delete (hija != nullptr ? static_cast<QWidget*>(hija) : &ventana);
    }

    std::vector<Formulario*> m_cargados;
    std::vector<Bucle> m_bucles;
    QString m_activo;
    bool m_cerrando = false;
};

namespace {

RegistroDeFormularios& ElRegistro() {
    static RegistroDeFormularios registro;
    return registro;
}

}  // namespace

namespace Formularios {

void Registrar(QStringView nombre, const Fabrica& fabrica) {
    ElRegistro().fabricas.insert(nombre.toString(), fabrica);
}

QStringList Registrados() {
    QStringList nombres = ElRegistro().fabricas.keys();
    nombres.sort();
    return nombres;
}

Formulario& Obtener(QStringView nombre) { return ElRegistro().Obtener(nombre); }

void Mostrar(QStringView nombre) { ElRegistro().Mostrar(nombre); }

void MostrarModal(QStringView nombre) { ElRegistro().MostrarModal(nombre); }

void Descargar(QStringView nombre) { ElRegistro().Descargar(nombre); }

bool Cargado(QStringView nombre) { return ElRegistro().Buscar(nombre) != nullptr; }

bool Visible(QStringView nombre) {
    Formulario* formulario = ElRegistro().Buscar(nombre);
    return formulario != nullptr && formulario->Ventana().isVisible();
}

QStringList Cargados() {
    QStringList nombres;
    for (const Formulario* formulario : ElRegistro().Cargados()) {
        nombres += formulario->Nombre();
    }
    return nombres;
}

QString Activo() { return ElRegistro().Activo(); }

void DescargarTodos(QStringView excepto) { ElRegistro().DescargarTodos(excepto); }

void FijarMarco(QMdiArea* area) {
    ElRegistro().area = area;
    if (area == nullptr) {
        return;
    }
    area->setFocusPolicy(Qt::NoFocus);
    QObject::connect(area, &QMdiArea::subWindowActivated, area, [](QMdiSubWindow* hija) {
        auto* formulario = hija == nullptr ? nullptr : dynamic_cast<Formulario*>(hija->widget());
        if (formulario != nullptr && !formulario->Descargado()) {
            Evento([&] { ElRegistro().Activar(formulario->Nombre()); });
        }
    });
}

void Reiniciar() { ElRegistro().Reiniciar(); }

}  // namespace Formularios
