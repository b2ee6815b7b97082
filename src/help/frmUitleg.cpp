#include "help/frmUitleg.h"

#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/letterkast.h"

namespace plexoran {
namespace {

constexpr int VensterHoog = 4500; // twips
constexpr int VensterBreed = 9600;
constexpr double Letterpunten = 9;

QString VulUitleg()
{
    const QStringList regels{
        QStringLiteral("\tHet vormen van paren in RVD is nodig om de volgende redenen:"),
        QStringLiteral(" 1. Bij het Ranking-voorstel voor zittingindeling op Ranking-punten moeten "
                       "de paren bekend zijn."),
        QStringLiteral(" 2. Bij het handmatig zittingindelen kunnen beide spelers tegelijk worden "
                       "geplaatst, werkt sneller."),
        QString(),
        QStringLiteral(" Uitleg PAREN, GROEPEN en SUBGROEPEN: "),
        QStringLiteral(" In RVD kunt u de spelers indelen in (max 50) groepen: Gr01-, Gr02-, "
                       "enz."),
        QStringLiteral(" Daarnaast kunt u per groep nog een SUBGROEP gebruiken voor verdere "
                       "onderverdeling."),
        QStringLiteral(" Als u een paar samenstelt doet u dat altijd met spelers uit dezelfde "
                       "groep(-subgroep)."),
        QString(),
        QStringLiteral(" Voorbeeld:"),
        QStringLiteral(" In RVD is groep 'Gr05-' vastgelegd voor het importeren van NBB-spelers."),
        QStringLiteral(" Deze NBB-spelers zijn onderverdeeld in SUBGROEPEN, de zgn "
                       "NBB-ledenbestanden."),
        QStringLiteral(" Het gebruik van subgroepen is naar eigen wens."),
        QStringLiteral(" Als u een paar samenstelt zit dat altijd GEBONDEN aan de Groep (Gr..-) EN "
                       "zijn Subgroep."),
    };
    return regels.join(QStringLiteral("\r\n"));
}

} // namespace

frmUitleg::frmUitleg(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(QStringLiteral("frmUitleg"));
    setWindowTitle(QStringLiteral("Uitleg paren samenstellen"));
    const Maten maten;
    auto* Text1 = MaakLeesvak(QStringLiteral("Text1"), windowTitle(), VulUitleg(), this);
    Text1->setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Text1);
    PasInScherm(this, {maten.Twips(VensterBreed), maten.Twips(VensterHoog)});
}

} // namespace plexoran
