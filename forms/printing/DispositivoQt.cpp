#include "forms/printing/DispositivoQt.h"

#include <QDir>
#include <QFileInfo>

#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/printing/DestinoDeImpresion.h"

using namespace Qt::StringLiterals;

namespace {

/// Texts that are kept laid out: more than one return has, but for the figures of a long annex.
constexpr qsizetype kTextosGuardados = 2000;

/// Tells where the PDFs of a batch are.
void AvisarDeFicheros(const QStringList& ficheros) {
    QStringList lineas{TextoPropio(u"imprimir_guardados"),
                       QDir::toNativeSeparators(QFileInfo(ficheros.front()).absolutePath()), QString()};
    for (const QString& fichero : ficheros) {
        lineas += QFileInfo(fichero).fileName();
    }
    Mensaje(lineas.join(u'\n'), TextoPropio(u"imprimir_titulo"), true);
}

}  // namespace

void DispositivoQt::EmpezarLote() {
    m_documento.reset();
    oDestinoDeImpresion().EmpezarLote();
}

void DispositivoQt::TerminarLote() {
    m_textos.clear();
    const QStringList ficheros = oDestinoDeImpresion().TerminarLote();
    if (!ficheros.isEmpty()) {
        AvisarDeFicheros(ficheros);
    }
}

void DispositivoQt::AbandonarLote() noexcept {
    oDestinoDeImpresion().AbandonarLote();
    m_documento.reset();
    m_textos.clear();
}

void DispositivoQt::NombrarDocumento(const QString& nombre) { m_nombre = nombre; }

void DispositivoQt::FirmarDocumento(const QString& autor) { m_autor = autor; }

void DispositivoQt::UsarMilimetros() {
    // It knows no other unit.
}

void DispositivoQt::FijarNombreDeLetra(const QString& nombre) { m_letra.nombre = nombre; }

void DispositivoQt::FijarTamanoDeLetra(double puntos) { m_letra.puntos = puntos; }

void DispositivoQt::FijarNegrita(bool negrita) { m_letra.negrita = negrita; }

double DispositivoQt::AnchoDeTexto(const QString& texto) { return Componer(texto)->Ancho(); }

double DispositivoQt::AltoDeTexto(const QString& texto) { return Componer(texto)->Alto(); }

void DispositivoQt::SituarPluma(double x, double y) { m_pluma = QPointF(x, y); }

void DispositivoQt::Escribir(const QString& texto) { Anadir(MarcaDeTexto{Componer(texto), m_pluma}); }

void DispositivoQt::Linea(double x1, double y1, double x2, double y2) {
    Anadir(MarcaDeLinea{QLineF(x1, y1, x2, y2)});
}

void DispositivoQt::FijarRellenoBlanco() {
    // Outlines are all that it draws.
}

void DispositivoQt::Rectangulo(double x1, double y1, double x2, double y2) {
    Anadir(MarcaDeRectangulo{QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized()});
}

void DispositivoQt::PintarImagen(ImagenDeImpreso imagen, double x, double y) {
    Anadir(MarcaDeImagen{imagen, QPointF(x, y)});
}

int DispositivoQt::NumeroDePagina() { return static_cast<int>(Documento().paginas.size()); }

void DispositivoQt::NuevaPagina() { Documento().paginas.emplace_back(); }

void DispositivoQt::TerminarDocumento() {
    // Whatever becomes of it, the next one begins anew.
    const std::unique_ptr<DocumentoDibujado> documento = std::move(m_documento);
    if (documento != nullptr) {
        oDestinoDeImpresion().Entregar(*documento);
    }
}

DocumentoDibujado& DispositivoQt::Documento() {
    if (m_documento == nullptr) {
        m_documento = std::make_unique<DocumentoDibujado>(DocumentoDibujado{m_nombre, m_autor, {{}}});
    }
    return *m_documento;
}

void DispositivoQt::Anadir(Marca marca) { Documento().paginas.back().push_back(std::move(marca)); }

const std::shared_ptr<const TextoCompuesto>& DispositivoQt::Componer(const QString& texto) {
    const Clave clave(m_letra, texto);
    auto compuesto = m_textos.find(clave);
    if (compuesto == m_textos.end()) {
        if (m_textos.size() >= kTextosGuardados) {
            m_textos.clear();
        }
        compuesto = m_textos.insert(clave, std::make_shared<const TextoCompuesto>(m_letra, texto));
    }
    return *compuesto;
}
