#include "forms/help/TextoAyuda.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QStyle>
#include <algorithm>

#include "core/help/TemasDeAyuda.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// Pictures wider than this many pixels are made smaller, so that they fit beside the contents.
constexpr int kAnchoDeImagen = 600;
constexpr qreal kTamanoMinimo = 6;
constexpr qreal kTamanoMaximo = 30;
constexpr int kMargen = 12;
constexpr int kHolgura = 8;

QString HojaDeEstilo() {
    QFile hoja(u":/ayuda/estilo.css"_s);
    return hoja.open(QIODevice::ReadOnly) ? QString::fromUtf8(hoja.readAll()) : QString();
}

}  // namespace

TextoAyuda::TextoAyuda(QWidget* padre) : QTextBrowser(padre), m_tamanoInicial(font().pointSizeF()) {
    setOpenExternalLinks(false);
    document()->setDefaultStyleSheet(HojaDeEstilo());
    document()->setDocumentMargin(kMargen);
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& tema) { Q_EMIT TemaMostrado(tema.fileName()); });
}

void TextoAyuda::PonerCarpeta(const QString& carpeta) { m_carpeta = QDir::cleanPath(carpeta); }

void TextoAyuda::IrA(const QString& tema) { setSource(QUrl::fromLocalFile(m_carpeta + u'/' + tema)); }

void TextoAyuda::doSetSource(const QUrl& nombre, QTextDocument::ResourceType tipo) {
    if (!EsDelJuego(nombre)) {
        return;
    }
    const QString ruta = nombre.toLocalFile();
    if (QFileInfo(ruta).isFile()) {
        QTextBrowser::doSetSource(nombre, tipo);
        return;
    }
    setPlainText(TextoPropio(u"ayuda_falta") + u' ' + QDir::toNativeSeparators(ruta));
    Q_EMIT TemaMostrado(nombre.fileName());
}

bool TextoAyuda::EsDelJuego(const QUrl& nombre) const {
    return nombre.isLocalFile() && QDir::cleanPath(nombre.toLocalFile()).startsWith(m_carpeta + u'/');
}

QVariant TextoAyuda::loadResource(int tipo, const QUrl& nombre) {
    const QUrl completo = source().resolved(nombre);
    if (!EsDelJuego(completo)) {
        return {};
    }
    return tipo == QTextDocument::ImageResource ? Imagen(completo.toLocalFile())
                                                : QTextBrowser::loadResource(tipo, completo);
}

QVariant TextoAyuda::Imagen(const QString& ruta) const {
    QPixmap imagen(ruta);
    if (imagen.isNull()) {
        return {};
    }
    const int ancho = std::min(imagen.width(), kAnchoDeImagen);
    const int puntos = std::min(imagen.width(), qRound(ancho * devicePixelRatioF()));
    imagen = imagen.scaledToWidth(puntos, Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(static_cast<qreal>(puntos) / ancho);
    return imagen;
}

bool TextoAyuda::Encontrar(const QString& texto, bool haciaAtras) {
    const QString buscado = PlegarTexto(texto);
    if (buscado.isEmpty()) {
        return false;
    }
    const QString todo = PlegarTexto(toPlainText());
    QTextCursor cursor = textCursor();
    qsizetype lugar = -1;
    if (haciaAtras) {
        const int desde = cursor.selectionStart();
        lugar = desde == 0 ? -1 : todo.lastIndexOf(buscado, desde - 1);
        lugar = lugar < 0 ? todo.lastIndexOf(buscado) : lugar;
    } else {
        lugar = todo.indexOf(buscado, cursor.selectionEnd());
        lugar = lugar < 0 ? todo.indexOf(buscado) : lugar;
    }
    if (lugar < 0) {
        return false;
    }
    cursor.setPosition(static_cast<int>(lugar));
    cursor.setPosition(static_cast<int>(lugar + buscado.size()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return true;
}

int TextoAyuda::AnchoNecesario() const {
    return kAnchoDeImagen + 2 * kMargen + 2 * frameWidth() +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent) + kHolgura;
}

void TextoAyuda::Ampliar(int pasos) {
    const qreal tamano = pasos == 0 ? m_tamanoInicial : font().pointSizeF() + pasos;
    QFont letra = font();
    letra.setPointSizeF(std::clamp(tamano, kTamanoMinimo, kTamanoMaximo));
    setFont(letra);
}
