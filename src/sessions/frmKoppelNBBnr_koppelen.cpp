// Linking the chosen floating player, and telling what came of it.
#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/tekstbrug.h"
#include "sessions/frmKoppelNBBnr.h"
#include "sessions/tafelparen.h"

namespace plexoran {
namespace {

constexpr int TeNoemenBestanden = 10;

/// "- " before each file; of many only the first ones and how many more there are.
QString Opsomming(const std::vector<std::string>& bestanden)
{
    QStringList uit;
    for (const std::string& bestand : bestanden) {
        if (uit.size() == TeNoemenBestanden) {
            uit << u"... en nog "_s +
                       Aantal(bestanden.size() - TeNoemenBestanden, u"bestand"_s, u"bestanden"_s);
            break;
        }
        uit << u"- "_s + QString::fromStdString(bestand);
    }
    return uit.isEmpty() ? u"- geen"_s : uit.join(u'\n');
}

QString Hoeveel(const std::vector<std::string>& bestanden, const QString& wat)
{
    return wat + u" (%1):\n"_s.arg(bestanden.size());
}

} // namespace

void frmKoppelNBBnr::StartKoppelen()
{
    if (!Vraag(this, QMessageBox::Information,
               u"De zwevende speler krijgt nu zijn RVD-nummer toegewezen in de betreffende "
               "zittingbestanden.\r\n\r\nKies OK of Annuleer."_s))
        return;
    constexpr int lengteKey = 6;
    const Koppelopdracht opdracht = MaakKoppelopdracht(
        zwevenden_, static_cast<std::size_t>(GekozenZwevende() - zwevenden_.data()),
        NaarTekst(txtRVDspeler->text().left(lengteKey)));
    const Koppeluitslag uitslag =
        Koppel(administratie_.schijf, opdracht,
               frmVoortgang(u"De speler wordt gekoppeld ..."_s, {}, this).AlsVoortgang());
    QStringList regels;
    const QString naam = NaarQString(opdracht.naam);
    for (const Aangepast& aangepast : uitslag.aangepast)
        regels << naam + u" - "_s + NaarQString(aangepast.code) +
                      (aangepast.soort == Lijstsoort::Spelers
                           ? u" aangepast in Spelerbestand."_s
                           : u" aangepast in Percentagebestand."_s);
    for (const std::string& bestand : uitslag.nietGewijzigd)
        regels << u"Niet aangepast: "_s + QString::fromStdString(bestand);
    ToonResultaat(regels);
    if (uitslag.fout)
        MeldAfgebroken(uitslag);
    else
        MeldKoppeling(opdracht, uitslag);
}

void frmKoppelNBBnr::MeldKoppeling(const Koppelopdracht& opdracht, const Koppeluitslag& uitslag)
{
    const QString naam = NaarQString(opdracht.naam);
    VergeetGekoppelde(opdracht);
    if (!zwevenden_.empty())
        lstSpelers->setFocus(); // for the next one
    if (uitslag.aangepast.empty()) {
        Meld(this, QMessageBox::Warning,
             u"Er is niets gewijzigd: '%1' komt niet meer voor in de bestanden. Misschien heeft "
             "een ander programma ze intussen gewijzigd. Zoek de zwevende spelers opnieuw."_s.arg(
                 naam));
        return;
    }
    // Not arg: a name may hold a "%1" of its own.
    const QString gekoppeld =
        gezochtInCompetitie_ ? QString(naam + u" is in alle competitie-zittingen gekoppeld ("_s +
                                       QString::number(opdracht.regels.size()) + u" keer)"_s)
                             : QString(u"Speler "_s + naam + u" is gekoppeld."_s);
    Meld(this, QMessageBox::Information, gekoppeld);
}

void frmKoppelNBBnr::MeldAfgebroken(const Koppeluitslag& uitslag)
{
    MeldFout(
        this, QMessageBox::Critical,
        u"Fout bij het koppelen. Elk bestand is heel: het is helemaal aangepast of nog zoals het "
        "was. Verhelp de oorzaak en koppel deze speler opnieuw; dan wordt de rest aangepast.\n\n"
        ""_s +
            Hoeveel(uitslag.gewijzigd, u"Aangepast"_s) + Opsomming(uitslag.gewijzigd) + u"\n\n"_s +
            Hoeveel(uitslag.nietGewijzigd, u"Niet aangepast"_s) + Opsomming(uitslag.nietGewijzigd),
        *uitslag.fout);
}

/// The places that now hold the key leave the list; the next player becomes the chosen one only
/// when the user picks him.
void frmKoppelNBBnr::VergeetGekoppelde(const Koppelopdracht& opdracht)
{
    const Tekst plaats =
        gezochtInCompetitie_ ? Tekst() : Plaatssleutel(opdracht.regels.front().vindplaats.code);
    std::erase_if(zwevenden_, [&](const Zwevende& zwevende) {
        return zwevende.vindplaats.naam == opdracht.naam &&
               (gezochtInCompetitie_ || Plaatssleutel(zwevende.vindplaats.code) == plaats);
    });
    VulZwevenden();
    lstRVDsp->clearSelection();
}

} // namespace plexoran
