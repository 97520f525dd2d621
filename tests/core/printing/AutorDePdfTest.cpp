#include "core/printing/AutorDePdf.h"

#include <gtest/gtest.h>

#include <QList>
#include <QRegularExpression>

#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

/// A file of three objects, the second one its information, as the toolkit writes them.
QByteArray Pdf(const QByteArray& datos) {
    QByteArray pdf = "%PDF-1.4\n";
    QList<qsizetype> lugares;
    for (const QByteArray& objeto :
         {QByteArray("<< /Type /Catalog >>"), "<<\n" + datos + "\n>>", QByteArray("<< /Kids [] >>")}) {
        lugares += pdf.size();
        pdf += QByteArray::number(lugares.size()) + " 0 obj\n" + objeto + "\nendobj\n";
    }
    const qsizetype tabla = pdf.size();
    pdf += "xref\n0 4\n0000000000 65535 f \n";
    for (const qsizetype lugar : lugares) {
        pdf += QByteArray::number(lugar).rightJustified(10, '0') + " 00000 n \n";
    }
    return pdf + "trailer\n<<\n/Size 4\n/Info 2 0 R\n/Root 1 0 R\n>>\nstartxref\n" +
           QByteArray::number(tabla) + "\n%%EOF\n";
}

QByteArray Anadido(const QByteArray& datos, const QString& autor) {
    const QByteArray antes = Pdf(datos);
    const QByteArray despues = ConAutor(antes, autor);
    EXPECT_TRUE(despues.startsWith(antes)) << "nothing of what there was may change";
    return despues.mid(antes.size());
}

}  // namespace

TEST(AutorDePdfTest, TheAuthorJoinsWhatStandsInTheInformation) {
    const QByteArray anadido = Anadido("/Title (uno)\n/Producer (dos)", u"Añ"_s);
    EXPECT_TRUE(
        anadido.startsWith("2 0 obj\n<<\n/Title (uno)\n/Producer (dos)\n/Author <FEFF004100F1>\n>>\n"
                           "endobj\n"))
        << anadido.toStdString();
}

TEST(AutorDePdfTest, BracketsAndBackslashesOfTheAuthorNeedNoCare) {
    EXPECT_TRUE(Anadido("/Title (uno)", uR"(A(\)>)"_s).contains("/Author <FEFF00410028005C0029003E>\n"));
    EXPECT_TRUE(Anadido("/Title (uno)", u"😀"_s).contains("/Author <FEFFD83DDE00>\n"));
}

TEST(AutorDePdfTest, BracketsWithinStringsDoNotEndTheInformation) {
    const QByteArray titulo = R"(/Title (a>>b\)(c>>)>>d))";
    EXPECT_TRUE(Anadido(titulo, u"A"_s).startsWith("2 0 obj\n<<\n" + titulo + "\n/Author <FEFF0041>\n>>\n"));
}

TEST(AutorDePdfTest, TheUpdateHasATableOfItsOwnThatLeadsToTheOldOne) {
    const QByteArray antes = Pdf("/Title (uno)");
    const QByteArray pdf = ConAutor(antes, u"A"_s);
    static const QRegularExpression cola(
        uR"(xref\n2 1\n(\d{10}) 00000 n \ntrailer\n<<\n/Size 4\n)"
        uR"(/Info 2 0 R\n/Root 1 0 R\n/Prev (\d+)\n>>\nstartxref\n(\d+)\n)"
        uR"(%%EOF\n$)"_s);
    const auto partes = cola.match(QString::fromLatin1(pdf));
    ASSERT_TRUE(partes.hasMatch()) << pdf.toStdString();
    EXPECT_EQ(partes.captured(1).toLongLong(), antes.size());
    EXPECT_TRUE(antes.mid(partes.captured(2).toLongLong()).startsWith("xref\n0 4\n"));
    EXPECT_EQ(partes.captured(3).toLongLong(), partes.capturedStart());
}

TEST(AutorDePdfTest, WithoutAnAuthorTheFileIsAsItWas) {
    EXPECT_EQ(ConAutor(Pdf("/Title (uno)"), QString()), Pdf("/Title (uno)"));
}

TEST(AutorDePdfTest, AFileOfAnotherBuildIsAsItWas) {
    const QByteArray pdf = Pdf("/Title (uno)");
    QByteArray sinInformacion = pdf;
    sinInformacion.replace("/Info", "/Otra");
    QByteArray sinTabla = pdf;
    sinTabla.replace("xref\n0 4", "xxxx\n0 4");
    QByteArray sinRemate = pdf;
    sinRemate.replace("trailer", "xxxxxxx");
    QByteArray numeroAjeno = pdf;
    numeroAjeno.replace("/Info 2", "/Info 9");
    for (const QByteArray& otro : {QByteArray(), QByteArray("%PDF-1.4\n"), sinInformacion, sinTabla,
                                   sinRemate, numeroAjeno, pdf.chopped(pdf.size() / 2)}) {
        EXPECT_EQ(ConAutor(otro, u"A"_s), otro);
    }
}
