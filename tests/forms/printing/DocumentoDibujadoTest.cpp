#include "forms/printing/DocumentoDibujado.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// A device that takes no second page, and counts how often it is asked.
template <class Papel>
class PapelDeUnaPagina : public Papel {
  public:
    using Papel::Papel;
    bool newPage() override {
        ++pedidas;
        return false;
    }

    int pedidas = 0;
};

DocumentoDibujado DosPaginasMas() {
    const PaginaDibujada pagina{MarcaDeLinea{QLineF(10, 10, 20, 10)}};
    return {u"uno"_s, QString(), {pagina, pagina, pagina}};
}

}  // namespace

TEST(DocumentoDibujadoTest, ADeviceThatTakesNoMorePagesIsAFailureAtOnce) {
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    PapelDeUnaPagina<QPdfWriter> papel(&pdf);
    EXPECT_FALSE(PintarDocumento(DosPaginasMas(), papel));
    EXPECT_EQ(papel.pedidas, 1);
}

TEST(DocumentoDibujadoTest, APrinterThatTakesNoMorePagesIsAFailureAtOnce) {
    const QTemporaryDir carpeta;
    PapelDeUnaPagina<QPrinter> papel;
    papel.setOutputFileName(carpeta.filePath(u"uno.pdf"_s));
    EXPECT_FALSE(PintarDocumento(DosPaginasMas(), papel));
    EXPECT_EQ(papel.pedidas, 1);
    EXPECT_NE(papel.printerState(), QPrinter::Active);
}

TEST(DocumentoDibujadoTest, ADeviceThatIsBusyIsAFailure) {
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter papel(&pdf);
    const QPainter otro(&papel);
    EXPECT_FALSE(PintarDocumento(DosPaginasMas(), papel));
}
