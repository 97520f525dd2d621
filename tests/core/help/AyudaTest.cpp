// The help itself: both sets are whole, well-formed, alike in structure, and true to the program's texts.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include "core/help/TemasDeAyuda.h"
#include "tests/core/help/Fuentes.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTamanoDeImagen = 60 * qint64{1024};

/// What a topic holds, as far as the rules look at it.
struct TemaLeido {
    QString fallo;
    QString idioma;
    QString titulo;
    QString cabecera;
    QMap<QString, int> elementos;
    QStringList enlaces;
    QStringList lugares;
    QStringList imagenes;
    QStringList imagenesMudas;
    QStringList rotulos;
    /// Texts of paragraphs, entries and cells, without what is quoted in them.
    QStringList bloques;
};

class LectorDeTema {
  public:
    explicit LectorDeTema(const QString& ruta) : m_lector(LeerFichero(ruta)) {
        while (!m_lector.atEnd()) {
            Paso();
        }
        if (m_lector.hasError()) {
            m_tema.fallo = u"%1: %2"_s.arg(m_lector.lineNumber()).arg(m_lector.errorString());
        }
    }
    [[nodiscard]] const TemaLeido& Tema() const { return m_tema; }

  private:
    void Paso() {
        m_lector.readNext();
        if (m_lector.isStartElement()) {
            Abrir(m_lector.name().toString(), m_lector.attributes());
        } else if (m_lector.isEndElement()) {
            Cerrar(m_lector.name().toString());
        } else if (m_lector.isCharacters()) {
            Texto(m_lector.text().toString());
        }
    }

    void Abrir(const QString& nombre, const QXmlStreamAttributes& atributos) {
        m_abiertos += nombre;
        ++m_tema.elementos[nombre];
        const auto valor = [&](const QString& cual) { return atributos.value(cual).toString(); };
        if (nombre == u"html") {
            m_tema.idioma = valor(u"lang"_s);
        } else if (nombre == u"a") {
            (atributos.hasAttribute(u"href"_s) ? m_tema.enlaces : m_tema.lugares) +=
                valor(u"href"_s) + valor(u"name"_s);
        } else if (nombre == u"img") {
            m_tema.imagenes += valor(u"src"_s);
            if (valor(u"alt"_s).isEmpty()) {
                m_tema.imagenesMudas += valor(u"src"_s);
            }
        }
        if (nombre == u"cite") {
            m_tema.rotulos += QString();
        } else if (EsBloque(nombre)) {
            m_tema.bloques += QString();
        }
    }

    void Cerrar(const QString& nombre) {
        m_abiertos.removeLast();
        if (nombre == u"cite") {
            m_tema.rotulos.last() = m_tema.rotulos.last().simplified();
        } else if (EsBloque(nombre)) {
            m_tema.bloques.last() = m_tema.bloques.last().simplified();
        }
    }

    void Texto(const QString& texto) {
        if (m_abiertos.contains(u"title"_s)) {
            m_tema.titulo += texto;
        } else if (m_abiertos.contains(u"h1"_s)) {
            m_tema.cabecera += texto;
        }
        if (m_abiertos.contains(u"cite"_s)) {
            m_tema.rotulos.last() += texto;
        } else if (!m_tema.bloques.isEmpty() && !m_abiertos.contains(u"code"_s)) {
            m_tema.bloques.last() += texto;
        }
    }

    static bool EsBloque(const QString& nombre) {
        return nombre == u"p" || nombre == u"li" || nombre == u"td" || nombre == u"h2" || nombre == u"h3";
    }

    QXmlStreamReader m_lector;
    QStringList m_abiertos;
    TemaLeido m_tema;
};

struct Juego {
    QString carpeta;
    QString idioma;
};

QString Ruta(const Juego& juego) { return QStringLiteral(ZELT_AYUDA) + u'/' + juego.carpeta; }

class AyudaTest : public testing::TestWithParam<Juego> {
  protected:
    [[nodiscard]] TemaLeido Leer(const TemaDeAyuda& tema) const {
        return LectorDeTema(carpeta + u'/' + tema.fichero).Tema();
    }

    QString carpeta = Ruta(GetParam());
    TemasDeAyuda temas{carpeta};
};

/// Both sets, topic by topic.
class AyudaEnDosIdiomasTest : public testing::Test {
  protected:
    TemasDeAyuda castellano{Ruta({u"Ayuda"_s, {}})};
    TemasDeAyuda euskera{Ruta({u"Laguntza"_s, {}})};

    static TemaLeido Leer(const TemasDeAyuda& temas, qsizetype i) {
        return LectorDeTema(temas.Carpeta() + u'/' + temas.Temas().at(i).fichero).Tema();
    }
    /// Links with the files replaced by their places in the contents.
    static QStringList Destinos(const TemasDeAyuda& temas, const TemaLeido& tema) {
        QStringList destinos;
        for (const QString& enlace : tema.enlaces) {
            qsizetype lugar = 0;
            while (lugar < temas.Temas().size() &&
                   temas.Temas().at(lugar).fichero != enlace.section(u'#', 0, 0)) {
                ++lugar;
            }
            destinos += QString::number(lugar) + u'#' + enlace.section(u'#', 1);
        }
        destinos.sort();
        return destinos;
    }
};

QString Caption(QString texto) { return texto.remove(u'&').simplified(); }

void Anadir(QSet<QString>& textos, const QStringList& nuevos) {
    for (const QString& texto : nuevos) {
        textos += Caption(texto);
    }
}

/// Fixed texts of the screens and of the code, which are the same in both languages.
QSet<QString> TextosFijos() {
    static const QRegularExpression deFormulario(u"<string[^>]*>([^<]*)</string>"_s);
    QSet<QString> textos;
    for (const Fuente& fuente : Fuentes({u"core"_s, u"forms"_s, u"app"_s}, {u"*.cpp"_s, u"*.h"_s})) {
        Anadir(textos, Literales(fuente.texto));
    }
    for (const Fuente& fuente : Fuentes({u"resources/screens"_s}, {u"*.ui"_s})) {
        for (auto i = deFormulario.globalMatch(fuente.texto); i.hasNext();) {
            textos += Caption(i.next().captured(1).replace(u"&amp;"_s, u"&"_s).replace(u"&gt;"_s, u">"_s));
        }
    }
    return textos;
}

/// All texts of the program in a language.
QSet<QString> TextosDelPrograma(const QString& idioma) {
    static const QRegularExpression fila(u"^(\\d+) \"(.*)\"$"_s, QRegularExpression::MultilineOption);
    static const QSet<QString> fijos = TextosFijos();
    QSet<QString> textos = fijos;
    const bool euskera = idioma == u"eu";
    for (auto i = fila.globalMatch(QString::fromUtf8(LeerFichero(u":/textos/tabla.txt"_s))); i.hasNext();) {
        const auto una = i.next();
        if ((una.captured(1).toInt() > 1000) == euskera) {
            textos += Caption(una.captured(2));
        }
    }
    for (const QString& linea : QString::fromUtf8(LeerFichero(u":/textos/propios.txt"_s)).split(u'\n')) {
        textos += Caption(linea.section(u'\t', euskera ? 2 : 1, euskera ? 2 : 1));
    }
    return textos;
}

}  // namespace

TEST_P(AyudaTest, TheSetHasItsTopics) { EXPECT_GT(temas.Temas().size(), 20); }

TEST_P(AyudaTest, EveryTopicIsWellFormedAndBearsItsLanguageAndTheTitleOfTheContents) {
    for (const TemaDeAyuda& tema : temas.Temas()) {
        SCOPED_TRACE(tema.fichero.toStdString());
        const TemaLeido leido = Leer(tema);
        EXPECT_EQ(leido.fallo, QString());
        EXPECT_EQ(leido.idioma, GetParam().idioma);
        EXPECT_EQ(leido.titulo, tema.titulo);
        EXPECT_EQ(leido.cabecera, tema.titulo);
    }
}

TEST_P(AyudaTest, EveryFileOfTheFolderIsUsedAndEveryUsedFileIsThere) {
    QSet<QString> usados{u"contenido.txt"_s};
    for (const TemaDeAyuda& tema : temas.Temas()) {
        EXPECT_FALSE(usados.contains(tema.fichero)) << tema.fichero.toStdString();
        usados += tema.fichero;
        for (const QString& imagen : Leer(tema).imagenes) {
            usados += imagen;
        }
    }
    QSet<QString> hay;
    QDirIterator ficheros(carpeta, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (ficheros.hasNext()) {
        hay += ficheros.next().mid(carpeta.size() + 1);
    }
    EXPECT_EQ(QStringList((usados - hay).values()), QStringList()) << "missing";
    EXPECT_EQ(QStringList((hay - usados).values()), QStringList()) << "left over";
}

TEST_P(AyudaTest, EveryLinkLeadsToAPlaceOfTheSet) {
    QMap<QString, QStringList> lugares;
    for (const TemaDeAyuda& tema : temas.Temas()) {
        lugares[tema.fichero] = Leer(tema).lugares;
    }
    for (const TemaDeAyuda& tema : temas.Temas()) {
        for (const QString& enlace : Leer(tema).enlaces) {
            SCOPED_TRACE((tema.fichero + u": "_s + enlace).toStdString());
            const QString fichero = enlace.section(u'#', 0, 0);
            ASSERT_TRUE(lugares.contains(fichero));
            EXPECT_TRUE(!enlace.contains(u'#') || lugares[fichero].contains(enlace.section(u'#', 1)));
        }
    }
}

TEST_P(AyudaTest, EveryTopicButTheFirstIsLinkedFromAnother) {
    QSet<QString> enlazados{temas.Temas().front().fichero};
    for (const TemaDeAyuda& tema : temas.Temas()) {
        for (const QString& enlace : Leer(tema).enlaces) {
            const QString fichero = enlace.section(u'#', 0, 0);
            if (fichero != tema.fichero) {
                enlazados += fichero;
            }
        }
    }
    for (const TemaDeAyuda& tema : temas.Temas()) {
        EXPECT_TRUE(enlazados.contains(tema.fichero)) << tema.fichero.toStdString();
    }
}

TEST_P(AyudaTest, PicturesAreSmallPngFilesOfTheSetAndAreDescribedInWords) {
    for (const TemaDeAyuda& tema : temas.Temas()) {
        const TemaLeido leido = Leer(tema);
        EXPECT_EQ(leido.imagenesMudas, QStringList()) << tema.fichero.toStdString();
        for (const QString& imagen : leido.imagenes) {
            SCOPED_TRACE(imagen.toStdString());
            const QByteArray contenido = LeerFichero(carpeta + u'/' + imagen);
            EXPECT_TRUE(QRegularExpression(u"^imagenes/\\w+\\.png$"_s).match(imagen).hasMatch());
            EXPECT_TRUE(contenido.startsWith("\x89PNG"));
            EXPECT_LT(contenido.size(), kTamanoDeImagen);
        }
    }
}

TEST_P(AyudaTest, EveryCaptionThatIsQuotedIsATextOfTheProgram) {
    const QSet<QString> textos = TextosDelPrograma(GetParam().idioma);
    for (const TemaDeAyuda& tema : temas.Temas()) {
        for (const QString& rotulo : Leer(tema).rotulos) {
            EXPECT_TRUE(textos.contains(rotulo))
                << tema.fichero.toStdString() << ": " << rotulo.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(LosDosIdiomas, AyudaTest,
                         testing::Values(Juego{u"Ayuda"_s, u"es"_s}, Juego{u"Laguntza"_s, u"eu"_s}),
                         [](const auto& caso) { return caso.param.carpeta.toStdString(); });

TEST_F(AyudaEnDosIdiomasTest, TheContentsAreTheSameInBothLanguages) {
    ASSERT_EQ(castellano.Temas().size(), euskera.Temas().size());
    EXPECT_EQ(castellano.Temas().front().fichero, u"cap.htm"_s);
    EXPECT_EQ(euskera.Temas().front().fichero, u"kap.htm"_s);
    for (qsizetype i = 0; i < castellano.Temas().size(); ++i) {
        const TemaDeAyuda& uno = castellano.Temas().at(i);
        const TemaDeAyuda& otro = euskera.Temas().at(i);
        SCOPED_TRACE(uno.fichero.toStdString());
        EXPECT_EQ(uno.nivel, otro.nivel);
        EXPECT_EQ(uno.formularios, otro.formularios);
        EXPECT_NE(uno.titulo, otro.titulo);
    }
}

TEST_F(AyudaEnDosIdiomasTest, ATopicHasTheSamePartsPicturesAndLinksInBothLanguages) {
    ASSERT_EQ(castellano.Temas().size(), euskera.Temas().size());
    for (qsizetype i = 0; i < castellano.Temas().size(); ++i) {
        SCOPED_TRACE(castellano.Temas().at(i).fichero.toStdString());
        const TemaLeido uno = Leer(castellano, i);
        const TemaLeido otro = Leer(euskera, i);
        for (const QString& parte :
             {u"h2"_s, u"h3"_s, u"p"_s, u"ol"_s, u"ul"_s, u"li"_s, u"table"_s, u"tr"_s, u"th"_s, u"td"_s}) {
            EXPECT_EQ(uno.elementos.value(parte), otro.elementos.value(parte)) << parte.toStdString();
        }
        EXPECT_EQ(uno.imagenes, otro.imagenes);
        EXPECT_EQ(uno.lugares, otro.lugares);
        EXPECT_EQ(Destinos(castellano, uno), Destinos(euskera, otro));
    }
}

TEST_F(AyudaEnDosIdiomasTest, NothingIsLeftUntranslated) {
    static const QRegularExpression palabras(u"[a-zñáéíóú]{3,}(\\W+[a-zñáéíóú]{2,}){2}"_s);
    ASSERT_EQ(castellano.Temas().size(), euskera.Temas().size());
    for (qsizetype i = 0; i < castellano.Temas().size(); ++i) {
        const QStringList unos = Leer(castellano, i).bloques;
        for (const QString& bloque : Leer(euskera, i).bloques) {
            EXPECT_FALSE(unos.contains(bloque) && palabras.match(bloque).hasMatch()) << bloque.toStdString();
        }
    }
}
