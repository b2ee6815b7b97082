#include "help/frmToelichting.h"

#include <QVBoxLayout>

#include <numeric>

#include "help/tekstblad.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

constexpr int VensterHoog = 6500; // twips
constexpr int VensterBreed = 13200;
constexpr int Ingesprongen = 400; // from the corner of the main window
constexpr double Letterpunten = 9;

QString VulToelichting()
{
    const QStringList regels{
        u"\tGebruik van Plexoran."_s,
        QString(),
        u" In dit programma moeten de namen van spelers worden vastgelegd en bewaard voor "
        "eventuele volgende zittingen."_s,
        u" Bij het indelen van een zitting moet gekozen worden uit deze namen."_s,
        u" Het opzetten en afhandelen van zittingen kan echter ook zonder spelernamen "
        "(testdoeleinden), alleen een competitieoverzicht is niet mogelijk."_s,
        QString(),
        u" - Van een speler moet minimaal de Achternaam worden ingevuld, overige gegevens zijn "
        "ter uw beoordeling."_s,
        u" - Spelers kunnen worden ingedeeld in GROEPEN ter onderscheiding. (max 50, Gr01 t/m "
        "GR50). "_s,
        u"    Bij het indelen van de zitting worden de spelers per groep getoond, zo kunt u ze "
        "eenvoudiger terugvinden."_s,
        u"    Het is aan u om te bepalen of u hier gebruik van maakt, experimenteer hiermee."_s,
        u" - Om een groep beter herkenbaar te maken voor u zelf kunt u de Groepsnaam aanvullen "
        "met eigen tekst."_s,
        u" - De kolom 'NBBgr' kan gebruikt worden voor een onderverdeling binnen een groep."_s,
        u" - Printen: Per groep, rubrieken naar keuze."_s,
        u"    Indien te breed dan wordt automatisch overgegaan naar A4-liggend."_s,
        u"    U kunt ook de tekst in grootte verschalen om een en ander passend te maken."_s,
        QString(),
        u" Attentie!"_s,
        u" Groep 'Gr05-' is gereserveerd voor spelers die uit NBBR zijn geimporteerd."_s,
        u" De kolom 'NBBgr' is de ledengroep-onderverdeling volgens NBBR"_s,
        u" Zorg dat deze spelers gelijk lopen met NBBR, want bij het maken van een BWS-zitting "
        "worden deze gebruikt."_s,
        u" De basis voor deze lijst is het NBB-nummer dat slechts eenmaal kan voorkomen, spelers "
        "zonder NBB-nummer worden niet geimporteerd."_s,
        u" Met NBB-nummers in andere groepen dan 'Gr05-' wordt niets gedaan."_s,
    };
    return regels.join(u"\r\n"_s);
}

} // namespace

frmToelichting::frmToelichting(QWidget* hoofdvenster, Printerkeus printer)
    : QDialog(hoofdvenster), printer_(std::move(printer))
{
    Bouw();
    connect(cmdEinde, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdPrintToel, &QPushButton::clicked, this, &frmToelichting::Print);
}

void frmToelichting::Bouw()
{
    setObjectName(u"frmToelichting"_s);
    setWindowTitle(u"Toelichting"_s);
    const Maten maten;
    Text1 = MaakLeesvak(u"Text1"_s, windowTitle(), VulToelichting(), this);
    Text1->setFont(Roosterletter(maten.Letter(Letterpunten).pixelSize()));
    cmdPrintToel = MaakKnop(u"cmdPrintToel"_s, u"Print"_s, u'P', this);
    cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this);
    cmdEinde->setDefault(true);

    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Text1);
    lagen->addLayout(Knoppenrij({cmdPrintToel, cmdEinde}));
    PasInScherm(this, {maten.Twips(VensterBreed), maten.Twips(VensterHoog)});
    if (parentWidget() != nullptr)
        ZetInScherm(this,
                    parentWidget()->frameGeometry().topLeft() +
                        QPoint(maten.Twips(Ingesprongen), maten.Twips(Ingesprongen)),
                    *parentWidget());
    Text1->setFocus();
}

/// Without a preview. A printer that is not there leaves the window open.
void frmToelichting::Print()
{
    if (const auto geprint = PrintTekst(); !geprint)
        MeldPrintfout(this, geprint.error());
}

Uitkomst<void> frmToelichting::PrintTekst() const
{
    const auto printer = printer_();
    if (!printer)
        return tl::unexpected(printer.error());
    const auto bladen = Tekstbladen(NaarTekst(Text1->toPlainText()), Letterkast());
    std::vector<int> nummers(bladen.size());
    std::iota(nummers.begin(), nummers.end(), 0);
    return printer->Druk({.titel = windowTitle(), .stand = Papierstand::Staand}, nummers,
                         [&](Tekenvlak& vlak, int blad) {
                             TekenTekstblad(vlak, bladen[static_cast<std::size_t>(blad)]);
                         });
}

} // namespace plexoran
