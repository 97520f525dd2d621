#include "forms/exchange/frmZTExpDeclarantes.h"

#include <QHeaderView>
#include <algorithm>
#include <array>
#include <vector>

#include "core/base/Pantalla.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/records/cZTListaDeclarantes.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTExpDeclarantes.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer, and sub-items of the lists from the second on.
using Columna = cZTListaDeclarantes::Columna;

constexpr qint16 kPorNIF = 1;

constexpr std::array kColumnas{ListaZT::Columna{Id::Numero, 1800}, ListaZT::Columna{Id::RazonSocial, 4000}};

/// Numbers of the selected items, in ascending order. Where none is marked that is the selected item of the
/// list; an empty list has none.
std::vector<int> Seleccionados(const ListaZT& lista) {
    std::vector<int> seleccionados;
    for (const QModelIndex& fila : lista.selectionModel()->selectedRows()) {
        seleccionados.push_back(fila.row() + 1);
    }
    if (seleccionados.empty() && lista.Cuenta() > 0) {
        seleccionados.push_back(lista.Seleccionado());
    }
    std::ranges::sort(seleccionados);
    return seleccionados;
}

}  // namespace

frmZTExpDeclarantes::frmZTExpDeclarantes()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTExpDeclarantes>()) {
    m_ui->setupUi(this);
    PonerFlechaDeOrden(*m_ui->picOrden);

    ListaZT& existentes = *m_ui->lsvDeclarantes;
    ListaZT& aExportar = *m_ui->lsvDeclarantesExp;
    ConectarLista(existentes, aExportar);
    ConectarLista(aExportar, existentes);
    const auto conectar = [this](QAbstractButton* boton, auto cuerpo) {
        Conectar(*this, boton, &QAbstractButton::clicked, std::move(cuerpo));
    };
    conectar(m_ui->cmdUnoF,
             [&] { ConTrampa(u"cmdUnoF_Click", [&] { MoverSeleccionados(existentes, aExportar); }); });
    conectar(m_ui->cmdUnoB,
             [&] { ConTrampa(u"cmdUnoB_Click", [&] { MoverSeleccionados(aExportar, existentes); }); });
    conectar(m_ui->cmdTodosF, [&] { ConTrampa(u"cmdTodosF_Click", [&] { MoverTodos(aExportar); }); });
    conectar(m_ui->cmdTodosB, [&] { ConTrampa(u"cmdTodosB_Click", [&] { MoverTodos(existentes); }); });
    m_aceptar = new ParDeBotones(*this, *m_ui->cmdAceptar, *m_ui->picAceptar,
                                 {Imagen16::Aceptar, Id::Aceptar}, [this] { cmdAceptar_Click(); });
    m_cancelar = new ParDeBotones(*this, *m_ui->cmdCancelar, *m_ui->picCancelar,
                                  {Imagen16::Cancelar, Id::Cancelar}, [this] { cmdCancelar_Click(); });
}

frmZTExpDeclarantes::~frmZTExpDeclarantes() = default;

QString frmZTExpDeclarantes::Modulo() const { return u"frmNotExpDeclarantes"_s; }

/// A double click or Enter moves as the button does.
void frmZTExpDeclarantes::ConectarLista(ListaZT& desde, ListaZT& hasta) {
    const QString nombre = desde.objectName();
    Conectar(*this, &desde, &ListaZT::Click,
             [=, this] { ConTrampa(nombre + u"_Click"_s, [this] { PresentaBotones(); }); });
    // The focus stays here, to move the next one.
    const auto mover = [this, &desde, &hasta] {
        MoverSeleccionados(desde, hasta);
        desde.setFocus(Qt::OtherFocusReason);
    };
    Conectar(*this, &desde, &ListaZT::DblClick, [=, this] { ConTrampa(nombre + u"_DblClick"_s, mover); });
    connect(&desde, &ListaZT::KeyPress, this, [=, this](int& keyAscii) {
        if (keyAscii == ListaZT::kIntro && !Descargado()) {
            keyAscii = 0;
            ConTrampa(nombre + u"_KeyPress"_s, mover);
        }
    });
}

void frmZTExpDeclarantes::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::ExportarDeclarantes));
        m_ui->lblDecExis->setText(Texto(Id::Declarantes));
        m_ui->lblDecAExp->setText(Texto(Id::DeclarantesSeleccionados));
        for (QAbstractButton* etiqueta : {m_ui->lblCol1, m_ui->lblColExp1}) {
            etiqueta->setText(Texto(Id::Numero));
        }
        for (QAbstractButton* etiqueta : {m_ui->lblCol2, m_ui->lblColExp2}) {
            etiqueta->setText(Texto(Id::RazonSocial));
        }
        for (const auto& [boton, clave] : {std::pair{m_ui->cmdUnoF, u"exp_uno_f"},
                                           {m_ui->cmdTodosF, u"exp_todos_f"},
                                           {m_ui->cmdUnoB, u"exp_uno_b"},
                                           {m_ui->cmdTodosB, u"exp_todos_b"}}) {
            boton->setAccessibleName(TextoPropio(clave));
            boton->setToolTip(TextoPropio(clave));
        }
        m_aceptar->PonerTexto();
        m_cancelar->PonerTexto();
    });
}

void frmZTExpDeclarantes::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        AnadirCaptions();
        InicializarLista();
        RellenarLista(*m_ui->lsvDeclarantes);
        PresentaBotones();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTExpDeclarantes::Form_Activate() {
    ConTrampa(u"Form_Activate", [this] {
        Pantalla().CederUnaVez();
        ListaZT& lista = *m_ui->lsvDeclarantes;
        if (lista.Cuenta() > 0 && lista.Subitem(1, Columna::kNombre) != Texto(Id::NoHayDeclarantes)) {
            lista.Seleccionar(1);
        }
        Deshabilitar_menu();
        PresentaBotones();
    });
}

void frmZTExpDeclarantes::InicializarLista() {
    ConTrampa(u"InicializarLista", [this] {
        const auto preparar = [this](ListaZT& lista, CabeceraDeLista& cabecera,
                                     const QList<QWidget*>& etiquetas) {
            lista.PonerColumnas(kColumnas);
            m_anchoDeLista = lista.TamanoDesplegada().width();
            // Two lists side by side are much for a small window: there the names are cut.
            lista.setMinimumWidth(m_anchoDeLista / 2);
            lista.header()->setStretchLastSection(true);
            cabecera.Colocar(lista, etiquetas);
        };
        preparar(*m_ui->lsvDeclarantes, *m_ui->cabLista, {m_ui->lblCol1, m_ui->lblCol2});
        preparar(*m_ui->lsvDeclarantesExp, *m_ui->cabListaExp, {m_ui->lblColExp1, m_ui->lblColExp2});
    });
}

QSize frmZTExpDeclarantes::sizeHint() const {
    QSize tamano = FormularioTrabajo::sizeHint();
    for (const ListaZT* lista : {m_ui->lsvDeclarantes, m_ui->lsvDeclarantesExp}) {
        tamano.rwidth() += std::max(0, m_anchoDeLista - lista->sizeHint().width());
    }
    return tamano;
}

void frmZTExpDeclarantes::RellenarLista(ListaZT& lista) {
    ConTrampa(u"RellenarLista", [&] {
        for (ListaZT* una : {m_ui->lsvDeclarantes, m_ui->lsvDeclarantesExp}) {
            una->Limpiar();
            una->Ordenado(false);
        }
        const Tabla declarantes = oListaDeclarantes().ObtenerDeclarantes();
        for (int fila = 1; fila <= declarantes.UltimaFila(); ++fila) {
            lista.Anadir(
                QString(), declarantes(Columna::kCSDE, fila).aTexto(),
                {declarantes(Columna::kNIF, fila).aTexto(), declarantes(Columna::kNombre, fila).aTexto()});
        }
    });
}

void frmZTExpDeclarantes::PresentaBotones() {
    const bool quedan = m_ui->lsvDeclarantes->Cuenta() > 0;
    const bool elegidos = m_ui->lsvDeclarantesExp->Cuenta() > 0;
    m_ui->cmdTodosF->setEnabled(quedan);
    m_ui->cmdUnoF->setEnabled(quedan);
    m_ui->cmdAceptar->setEnabled(elegidos);
    m_ui->picAceptar->setEnabled(elegidos);
    m_ui->cmdTodosB->setEnabled(elegidos);
    m_ui->cmdUnoB->setEnabled(elegidos);
}

void frmZTExpDeclarantes::MoverSeleccionados(ListaZT& desde, ListaZT& hasta) {
    const std::vector<int> seleccionados = Seleccionados(desde);
    if (seleccionados.empty()) {
        return;
    }
    hasta.Ordenado(false);
    for (const int i : seleccionados) {
        hasta.Anadir(QString(), desde.Texto(i),
                     {desde.Subitem(i, Columna::kNIF), desde.Subitem(i, Columna::kNombre)});
    }
    // From the last one, so that the numbers of those to come stay.
    std::for_each(seleccionados.rbegin(), seleccionados.rend(), [&](int i) { desde.Quitar(i); });
    // The next one is at hand.
    if (desde.Cuenta() > 0) {
        desde.Seleccionar(std::min(seleccionados.front(), desde.Cuenta()));
    }
    Ordenar(hasta);
    PresentaBotones();
}

void frmZTExpDeclarantes::MoverTodos(ListaZT& hasta) {
    RellenarLista(hasta);
    Ordenar(hasta);
    PresentaBotones();
}

void frmZTExpDeclarantes::Ordenar(ListaZT& lista) {
    QWidget& cabecera = &lista == m_ui->lsvDeclarantes ? *m_ui->cabLista : *m_ui->cabListaExp;
    QLabel& picOrden = *m_ui->picOrden;
    picOrden.setParent(&cabecera);
    picOrden.move(picOrden.x(), (cabecera.height() - picOrden.height()) / 2);
    OrdenarColumna(lista, kPorNIF, *this, picOrden);
    picOrden.raise();
}

void frmZTExpDeclarantes::cmdAceptar_Click() {
    // The name of the next form: docs/reglas.md, traza-de-otro-formulario.
    EventoConTrampa(Nombre(), u"frmNotExportar.cmdAceptar_Click"_s, [this] {
        const ListaZT& lista = *m_ui->lsvDeclarantesExp;
        Registro claves;
        for (int i = 1; i <= lista.Cuenta(); ++i) {
            claves.emplace_back(Valor(lista.Texto(i)).aEntero32());
        }
        oExportaciones().vBufferDtes = std::move(claves);
        Formularios::Descargar(Nombre());
        Pantalla().CederUnaVez();
        Formularios::Mostrar(Forma::FicheroAExportar);
    });
}

void frmZTExpDeclarantes::cmdCancelar_Click() {
    Formularios::Descargar(Nombre());
    Habilitar_menu();
}
