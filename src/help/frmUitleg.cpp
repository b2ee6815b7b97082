#include "help/frmUitleg.h"

#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

constexpr int VensterHoog = 4500; // twips
constexpr int VensterBreed = 9600;
constexpr double Letterpunten = 9;

QString VulUitleg()
{
    const QStringList regels{
        u"\tHet vormen van paren in RVD is nodig om de volgende redenen:"_s,
        u" 1. Bij het Ranking-voorstel voor zittingindeling op Ranking-punten moeten de paren "
        "bekend zijn."_s,
        u" 2. Bij het handmatig zittingindelen kunnen beide spelers tegelijk worden geplaatst, "
        "werkt sneller."_s,
        QString(),
        u" Uitleg PAREN, GROEPEN en SUBGROEPEN: "_s,
        u" In RVD kunt u de spelers indelen in (max 50) groepen: Gr01-, Gr02-, enz."_s,
        u" Daarnaast kunt u per groep nog een SUBGROEP gebruiken voor verdere onderverdeling."_s,
        u" Als u een paar samenstelt doet u dat altijd met spelers uit dezelfde "
        "groep(-subgroep)."_s,
        QString(),
        u" Voorbeeld:"_s,
        u" In RVD is groep 'Gr05-' vastgelegd voor het importeren van NBB-spelers."_s,
        u" Deze NBB-spelers zijn onderverdeeld in SUBGROEPEN, de zgn NBB-ledenbestanden."_s,
        u" Het gebruik van subgroepen is naar eigen wens."_s,
        u" Als u een paar samenstelt zit dat altijd GEBONDEN aan de Groep (Gr..-) EN zijn "
        "Subgroep."_s,
    };
    return regels.join(u"\r\n"_s);
}

} // namespace

frmUitleg::frmUitleg(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(u"frmUitleg"_s);
    setWindowTitle(u"Uitleg paren samenstellen"_s);
    const Maten maten;
    auto* Text1 = MaakLeesvak(u"Text1"_s, windowTitle(), VulUitleg(), this);
    Text1->setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Text1);
    PasInScherm(this, {maten.Twips(VensterBreed), maten.Twips(VensterHoog)});
}

} // namespace plexoran
