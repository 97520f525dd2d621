#include "tests/support/LectorDePdf.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kMilimetrosPorPunto = 25.4 / 72;
/// Largest that pdftohtml takes: its whole pixels are then thirds of a point.
constexpr int kAumento = 3;

QByteArray Ejecutar(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    EXPECT_TRUE(proceso.waitForFinished() && proceso.exitCode() == 0) << programa.toStdString();
    // What it tells of a file that is not as it should be, though it can be read.
    EXPECT_EQ(proceso.readAllStandardError().toStdString(), "");
    return proceso.readAllStandardOutput();
}

double Numero(const QXmlStreamReader& xml, QLatin1StringView atributo) {
    return xml.attributes().value(atributo).toDouble();
}

QRectF EnMilimetros(const QRectF& caja, double porUnidad) {
    return {caja.topLeft() * porUnidad, caja.size() * porUnidad};
}

void LeerPalabras(const QString& ruta, std::vector<PaginaDePdf>& paginas) {
    QXmlStreamReader xml(Ejecutar(u"pdftotext"_s, {u"-bbox"_s, ruta, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"page") {
            paginas.emplace_back();
        } else if (xml.name() == u"word") {
            const QRectF caja(QPointF(Numero(xml, "xMin"_L1), Numero(xml, "yMin"_L1)),
                              QPointF(Numero(xml, "xMax"_L1), Numero(xml, "yMax"_L1)));
            paginas.back().palabras.push_back(
                {xml.readElementText(), EnMilimetros(caja, kMilimetrosPorPunto)});
        }
    }
}

struct FuenteDePdf {
    double puntos = 0;
    QString nombre;
};

/// The text of a line, which changes to bold and back by its marks.
void LeerLinea(QXmlStreamReader& xml, const QHash<QString, FuenteDePdf>& fuentes, PaginaDePdf& pagina) {
    const FuenteDePdf fuente = fuentes.value(xml.attributes().value("font"_L1).toString());
    const QRectF caja(Numero(xml, "left"_L1), Numero(xml, "top"_L1), Numero(xml, "width"_L1),
                      Numero(xml, "height"_L1));
    const QRectF linea = EnMilimetros(caja, kMilimetrosPorPunto / kAumento);
    bool negrita = false;
    for (auto parte = xml.readNext(); !(xml.isEndElement() && xml.name() == u"text");
         parte = xml.readNext()) {
        if (parte == QXmlStreamReader::Characters) {
            pagina.tramos.push_back({xml.text().toString(), linea, fuente.puntos, negrita, fuente.nombre});
        } else if (xml.name() == u"b") {
            negrita = xml.isStartElement();
        }
    }
}

void LeerTramos(const QString& ruta, std::vector<PaginaDePdf>& paginas) {
    QXmlStreamReader xml(Ejecutar(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-stdout"_s, u"-zoom"_s,
                                                   QString::number(kAumento), u"-fontfullname"_s, ruta}));
    QHash<QString, FuenteDePdf> fuentes;
    std::size_t pagina = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"page") {
            pagina = static_cast<std::size_t>(Numero(xml, "number"_L1)) - 1;
        } else if (xml.name() == u"fontspec") {
            fuentes.insert(
                xml.attributes().value("id"_L1).toString(),
                {Numero(xml, "size"_L1) / kAumento, xml.attributes().value("family"_L1).toString()});
        } else if (xml.name() == u"text") {
            LeerLinea(xml, fuentes, paginas.at(pagina));
        }
    }
}

QTransform TransformacionDe(QStringView matriz) {
    static const QRegularExpression numeros(u"-?[0-9.]+(?:e-?[0-9]+)?"_s);
    std::vector<double> m;
    for (auto i = numeros.globalMatch(matriz.toString()); i.hasNext();) {
        m.push_back(i.next().captured().toDouble());
    }
    return m.size() == 6 ? QTransform(m[0], m[1], m[2], m[3], m[4], m[5]) : QTransform();
}

/// The straight parts of a path; curves are passed over.
void LeerTrazo(const QXmlStreamReader& xml, PaginaDePdf& pagina) {
    static const QRegularExpression orden(u"([MLCZ]) ?((?:-?[0-9.]+(?:e-?[0-9]+)? ?)*)"_s);
    const QTransform a = TransformacionDe(xml.attributes().value("transform"_L1)) *
                         QTransform::fromScale(kMilimetrosPorPunto, kMilimetrosPorPunto);
    static const QRegularExpression grosor(u"stroke-width:([0-9.]+)"_s);
    const double ancho = grosor.match(xml.attributes().value("style"_L1).toString()).captured(1).toDouble();
    pagina.grosores.push_back(ancho * std::sqrt(std::abs(a.determinant())));
    QPointF comienzo;
    QPointF aqui;
    for (auto i = orden.globalMatch(xml.attributes().value("d"_L1).toString()); i.hasNext();) {
        const auto parte = i.next();
        const QStringList numeros = parte.captured(2).split(u' ', Qt::SkipEmptyParts);
        const QPointF fin = numeros.size() < 2 ? comienzo
                                               : QPointF(numeros.at(numeros.size() - 2).toDouble(),
                                                         numeros.at(numeros.size() - 1).toDouble());
        if (parte.captured(1) == u"M") {
            comienzo = fin;
        } else if (parte.captured(1) != u"C") {
            pagina.trazos.emplace_back(a.map(aqui), a.map(fin));
        }
        aqui = fin;
    }
}

void LeerTrazos(const QString& ruta, int numero, PaginaDePdf& pagina) {
    const QString n = QString::number(numero);
    QXmlStreamReader xml(Ejecutar(u"pdftocairo"_s, {u"-svg"_s, u"-f"_s, n, u"-l"_s, n, ruta, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"path" &&
            xml.attributes().value("style"_L1).contains(u"stroke:rgb(0%,0%,0%)")) {
            LeerTrazo(xml, pagina);
        }
    }
}

}  // namespace

std::vector<PaginaDePdf> LeerPdf(const QString& ruta) {
    std::vector<PaginaDePdf> paginas;
    LeerPalabras(ruta, paginas);
    LeerTramos(ruta, paginas);
    int numero = 0;
    for (PaginaDePdf& pagina : paginas) {
        LeerTrazos(ruta, ++numero, pagina);
    }
    return paginas;
}

QString DatoDePdf(const QString& ruta, const QString& clave) {
    const QString datos = QString::fromUtf8(Ejecutar(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, ruta}));
    for (const QString& linea : datos.split(u'\n')) {
        if (linea.startsWith(clave + u':')) {
            return linea.sliced(clave.size() + 1).trimmed();
        }
    }
    return {};
}

QStringList FuentesDePdf(const QString& ruta) {
    const QString fuentes = QString::fromUtf8(Ejecutar(u"pdffonts"_s, {ruta}));
    return fuentes.split(u'\n', Qt::SkipEmptyParts).sliced(2);
}

QStringList ImagenesDePdf(const QString& ruta) {
    const QString imagenes = QString::fromUtf8(Ejecutar(u"pdfimages"_s, {u"-list"_s, ruta}));
    return imagenes.split(u'\n', Qt::SkipEmptyParts).sliced(2);
}
