#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A topic of the help as the contents of its set list it.
struct TemaDeAyuda {
    QString fichero;
    QString titulo;
    /// 0 for a topic of the first level, 1 for one below it, and so on.
    int nivel = 0;
    /// Names of the forms that the topic tells of.
    QStringList formularios;
};

/// A topic in which a search has found something.
struct HallazgoDeAyuda {
    TemaDeAyuda tema;
    /// How many times, and the words around the first of them.
    int veces = 0;
    QString fragmento;
};

/// The topics of one help set: a folder with topics and their contents, "contenido.txt". That file has one
/// line a topic, in the order of the contents: a tab for each level, the name of the file, a tab, the title
/// and, if the topic tells of forms, a tab and their names separated by commas.
///
/// Nothing is read before it is asked for. A file that is missing counts as empty.
class TemasDeAyuda {
  public:
    TemasDeAyuda() = default;
    explicit TemasDeAyuda(QString carpeta);

    [[nodiscard]] const QString& Carpeta() const { return m_carpeta; }
    [[nodiscard]] const QList<TemaDeAyuda>& Temas() const { return m_temas; }

    /// File of the first topic that tells of a form; empty when none does.
    [[nodiscard]] QString TemaDeFormulario(const QString& formulario) const;

    /// The topics that hold a text, in the order of the contents. Capitals and accents make no difference;
    /// a text without letters or digits is found nowhere.
    [[nodiscard]] QList<HallazgoDeAyuda> Buscar(const QString& texto);

  private:
    QString m_carpeta;
    QList<TemaDeAyuda> m_temas;
    QStringList m_textos;
};

/// A text without capitals and accents, character by character, so that places in it are places in the
/// original.
[[nodiscard]] QString PlegarTexto(QString texto);

/// What a topic says, without its markup and with single blanks. What follows a fault in the markup is
/// left out.
[[nodiscard]] QString TextoDelTema(const QString& ruta);
