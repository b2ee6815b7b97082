#include "help/frmToelichting.h"

#include <numeric>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"
#include "platform/tekst/tekstblad.h"

namespace plexoran {
namespace {

QString VulToelichting()
{
    return u"\tGebruik van Plexoran.\n"
           "\n"
           " In dit programma moeten de namen van spelers worden vastgelegd en bewaard voor "
           "eventuele volgende zittingen.\n"
           " Bij het indelen van een zitting moet gekozen worden uit deze namen.\n"
           " Het opzetten en afhandelen van zittingen kan echter ook zonder spelernamen "
           "(testdoeleinden), alleen een competitieoverzicht is niet mogelijk.\n"
           "\n"
           " - Van een speler moet minimaal de Achternaam worden ingevuld, overige gegevens zijn "
           "ter uw beoordeling.\n"
           " - Spelers kunnen worden ingedeeld in GROEPEN ter onderscheiding. (max 50, Gr01 t/m "
           "GR50). \n"
           "    Bij het indelen van de zitting worden de spelers per groep getoond, zo kunt u ze "
           "eenvoudiger terugvinden.\n"
           "    Het is aan u om te bepalen of u hier gebruik van maakt, experimenteer hiermee.\n"
           " - Om een groep beter herkenbaar te maken voor u zelf kunt u de Groepsnaam aanvullen "
           "met eigen tekst.\n"
           " - De kolom 'NBBgr' kan gebruikt worden voor een onderverdeling binnen een groep.\n"
           " - Printen: Per groep, rubrieken naar keuze.\n"
           "    Indien te breed dan wordt automatisch overgegaan naar A4-liggend.\n"
           "    U kunt ook de tekst in grootte verschalen om een en ander passend te maken.\n"
           "\n"
           " Attentie!\n"
           " Groep 'Gr05-' is gereserveerd voor spelers die uit NBBR zijn geimporteerd.\n"
           " De kolom 'NBBgr' is de ledengroep-onderverdeling volgens NBBR\n"
           " Zorg dat deze spelers gelijk lopen met NBBR, want bij het maken van een BWS-zitting "
           "worden deze gebruikt.\n"
           " De basis voor deze lijst is het NBB-nummer dat slechts eenmaal kan voorkomen, spelers "
           "zonder NBB-nummer worden niet geimporteerd.\n"
           " Met NBB-nummers in andere groepen dan 'Gr05-' wordt niets gedaan."_s;
}

QString VulUitleg()
{
    return u"\tHet vormen van paren in RVD is nodig om de volgende redenen:\n"
           " 1. Bij het Ranking-voorstel voor zittingindeling op Ranking-punten moeten de paren "
           "bekend zijn.\n"
           " 2. Bij het handmatig zittingindelen kunnen beide spelers tegelijk worden geplaatst, "
           "werkt sneller.\n"
           "\n"
           " Uitleg PAREN, GROEPEN en SUBGROEPEN: \n"
           " In RVD kunt u de spelers indelen in (max 50) groepen: Gr01-, Gr02-, enz.\n"
           " Daarnaast kunt u per groep nog een SUBGROEP gebruiken voor verdere onderverdeling.\n"
           " Als u een paar samenstelt doet u dat altijd met spelers uit dezelfde "
           "groep(-subgroep).\n"
           "\n"
           " Voorbeeld:\n"
           " In RVD is groep 'Gr05-' vastgelegd voor het importeren van NBB-spelers.\n"
           " Deze NBB-spelers zijn onderverdeeld in SUBGROEPEN, de zgn NBB-ledenbestanden.\n"
           " Het gebruik van subgroepen is naar eigen wens.\n"
           " Als u een paar samenstelt zit dat altijd GEBONDEN aan de Groep (Gr..-) EN zijn "
           "Subgroep."_s;
}

/// The text of an explanation, in the window that shows it.
QPlainTextEdit* MaakText1(const QString& tekst, QWidget* venster)
{
    auto* Text1 = MaakLeesvak(u"Text1"_s, venster->windowTitle(), tekst, venster);
    Text1->setFont(Roosterletter(Maten().Letter(9).pixelSize()));
    return Text1;
}

} // namespace

frmToelichting::frmToelichting(QWidget* hoofdvenster, Printerkeus printer)
    : QDialog(hoofdvenster), printer_(std::move(printer))
{
    setObjectName(u"frmToelichting"_s);
    setWindowTitle(u"Toelichting"_s);
    Text1 = MaakText1(VulToelichting(), this);
    auto* cmdPrintToel = MaakKnop(u"cmdPrintToel"_s, u"Print"_s, u'P', this);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this, &QDialog::accept);
    cmdEinde->setDefault(true);
    // Without a preview. A printer that is not there leaves the window open.
    connect(cmdPrintToel, &QPushButton::clicked, this, [this] {
        if (const auto geprint = Print(); !geprint)
            MeldPrintfout(this, geprint.error());
    });

    Onderelkaar({Text1, Knoppenrij({cmdPrintToel, cmdEinde})}, this);
    const Maten maten;
    PasInScherm(this, {maten.Twips(13200), maten.Twips(6500)});
    const QPoint ingesprongen(maten.Twips(400), maten.Twips(400));
    ZetInScherm(this, hoofdvenster->frameGeometry().topLeft() + ingesprongen, *hoofdvenster);
    Text1->setFocus();
}

Uitkomst<void> frmToelichting::Print() const
{
    const auto printer = printer_();
    if (!printer)
        return Mislukt(printer);
    const auto bladen = Tekstbladen(NaarTekst(Text1->toPlainText()), Letterkast());
    std::vector<int> nummers(bladen.size());
    std::iota(nummers.begin(), nummers.end(), 0);
    return printer->Druk({.titel = windowTitle(), .stand = Papierstand::Staand}, nummers,
                         [&](Tekenvlak& vlak, int blad) {
                             TekenTekstblad(vlak, bladen[static_cast<std::size_t>(blad)]);
                         });
}

frmUitleg::frmUitleg(QWidget* ouder) : QDialog(ouder)
{
    setObjectName(u"frmUitleg"_s);
    setWindowTitle(u"Uitleg paren samenstellen"_s);
    Onderelkaar({MaakText1(VulUitleg(), this)}, this);
    const Maten maten;
    PasInScherm(this, {maten.Twips(9600), maten.Twips(4500)});
}

} // namespace plexoran
