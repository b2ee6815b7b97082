#include "help/frmToelichting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include "hulp/venstergrepen.h"

using namespace plexoran;

TEST(frmUitleg, DeTekst)
{
    frmUitleg venster(nullptr);
    EXPECT_EQ("Uitleg paren samenstellen", venster.windowTitle().toStdString());
    const auto* Text1 = Vind<QPlainTextEdit>(venster, "Text1");
    EXPECT_EQ(
        "\tHet vormen van paren in RVD is nodig om de volgende redenen:\n"
        " 1. Bij het Ranking-voorstel voor zittingindeling op Ranking-punten moeten de paren "
        "bekend zijn.\n"
        " 2. Bij het handmatig zittingindelen kunnen beide spelers tegelijk worden geplaatst, "
        "werkt sneller.\n"
        "\n"
        " Uitleg PAREN, GROEPEN en SUBGROEPEN: \n"
        " In RVD kunt u de spelers indelen in (max 50) groepen: Gr01-, Gr02-, enz.\n"
        " Daarnaast kunt u per groep nog een SUBGROEP gebruiken voor verdere "
        "onderverdeling.\n"
        " Als u een paar samenstelt doet u dat altijd met spelers uit dezelfde "
        "groep(-subgroep).\n"
        "\n"
        " Voorbeeld:\n"
        " In RVD is groep 'Gr05-' vastgelegd voor het importeren van NBB-spelers.\n"
        " Deze NBB-spelers zijn onderverdeeld in SUBGROEPEN, de zgn NBB-ledenbestanden.\n"
        " Het gebruik van subgroepen is naar eigen wens.\n"
        " Als u een paar samenstelt zit dat altijd GEBONDEN aan de Groep (Gr..-) EN zijn "
        "Subgroep.",
        Text1->toPlainText().toStdString());
    EXPECT_TRUE(Text1->isReadOnly());
    EXPECT_EQ("Arial", Text1->font().family().toStdString());
}

TEST(frmUitleg, DeTekstVultHetVenster)
{
    frmUitleg venster(nullptr);
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    for (const QSize maat : {QSize(700, 300), QSize(500, 600)}) {
        venster.resize(maat);
        QApplication::processEvents();
        const QSize vak = Vind<QPlainTextEdit>(venster, "Text1")->size();
        EXPECT_GE(vak.width(), maat.width() - 30);
        EXPECT_GE(vak.height(), maat.height() - 30);
    }
}

TEST(frmUitleg, KopierenEnSluiten)
{
    frmUitleg venster(nullptr);
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    auto* Text1 = Vind<QPlainTextEdit>(venster, "Text1");
    QTest::keyClick(Text1, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(Text1, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Text1->toPlainText(), QGuiApplication::clipboard()->text());
    QTest::keyClick(Text1, Qt::Key_Escape);
    EXPECT_FALSE(venster.isVisible());
}
