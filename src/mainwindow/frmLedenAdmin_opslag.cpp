// Saving after a command, and reading back.
#include "dialogs/diaToevoegen.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

/// Save and reload. A change that could not be saved stays in the table and is tried again with the
/// next save and at the end of the program.
frmLedenAdmin::Opslag frmLedenAdmin::SlaOp()
{
    const bool leeg = administratie_.spelers.tabel.Rijen() == 0;
    auto overschrijven = Overschrijven::AlleenEigen;
    for (;;) {
        const auto uitkomst = SchrijfSpelers(administratie_.schijf, administratie_.mappen,
                                             administratie_.spelers, overschrijven);
        if (StaatEr(this, uitkomst))
            break;
        MerkNietOpgeslagen(true);
        ToonGroep();
        const Vervolg vervolg = VraagVervolg(uitkomst.error());
        if (vervolg == Vervolg::Overschrijven)
            overschrijven = Overschrijven::OokGewijzigd;
        else if (vervolg != Vervolg::Opnieuw) {
            ZetVerslagenTerug(vervolg == Vervolg::LeesOpnieuw);
            if (vervolg == Vervolg::LeesOpnieuw)
                LeesOpnieuw(Leesmoment::Opnieuw);
            return Opslag::Mislukt;
        }
    }
    MerkNietOpgeslagen(false);
    if (!leeg)
        SchrijfVerslagen();
    LeesOpnieuw(leeg ? Leesmoment::Opnieuw : Leesmoment::NaOpslag);
    return leeg && administratie_.spelers.tabel.Rijen() > 0 ? Opslag::RegisterBehouden
                                                            : Opslag::Gelukt;
}

void frmLedenAdmin::MerkNietOpgeslagen(bool nietOpgeslagen)
{
    nietOpgeslagen_ = nietOpgeslagen;
    setWindowModified(nietOpgeslagen);
}

void frmLedenAdmin::LeesOpnieuw(Leesmoment moment)
{
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    if (verslag.tabelVervangen) {
        MerkNietOpgeslagen(false);
        verslagen_.clear();
    }
    if (verslag.AllesGelezen())
        return;
    ToonGroep(); // the grid must not show the old rows behind the box
    MeldLezing(verslag, moment);
}

frmLedenAdmin::Vervolg frmLedenAdmin::VraagVervolg(const Fout& fout)
{
    if (fout.soort == Foutsoort::Gewijzigd)
        return VraagNaWijziging(fout);
    const QString wat =
        fout.soort == Foutsoort::GeenReservekopie
            ? u"Er is niets opgeslagen: de kopie van het spelerbestand die eerst in de map "
              "Reservekopie moet komen, is mislukt."_s
            : u"De spelers konden niet worden opgeslagen."_s;
    const QString gevolg =
        u" Het spelerbestand op de schijf is heel gebleven, en uw laatste wijziging staat nog in "
        "dit programma. Verhelp de oorzaak en probeer het opnieuw, of ga door: bij de volgende "
        "wijziging en bij het afsluiten komt deze keus terug.\n\n"_s;
    const int antwoord = Kies(this, QMessageBox::Critical, wat + gevolg + Bijzonderheden(fout),
                              {u"Opnieuw proberen"_s, u"Doorgaan"_s});
    return antwoord == 0 ? Vervolg::Opnieuw : Vervolg::Later;
}

frmLedenAdmin::Vervolg frmLedenAdmin::VraagNaWijziging(const Fout& fout)
{
    const QString wat =
        administratie_.spelers.gelezen
            ? u"Het spelerbestand is door een ander programma gewijzigd nadat het hier is "
              "ingelezen."_s
            : u"Het spelerbestand op de schijf is hier niet ingelezen."_s;
    const int antwoord = Kies(
        this, QMessageBox::Warning,
        wat +
            u"\n\nOpslaan: uw gegevens vervangen dat bestand; er komt eerst een kopie van in de "
            "map Reservekopie.\nOpnieuw inlezen: dat bestand blijft zoals het is; uw wijzigingen "
            "die nog niet zijn opgeslagen, vervallen.\nLater beslissen: er verandert nu niets; bij "
            "de volgende wijziging en bij het afsluiten komt deze keus terug.\n\n"_s +
            Bijzonderheden(fout),
        {u"Opslaan"_s, u"Opnieuw inlezen"_s, u"Later beslissen"_s});
    constexpr std::array vervolgen{Vervolg::Overschrijven, Vervolg::LeesOpnieuw, Vervolg::Later};
    return vervolgen.at(static_cast<std::size_t>(antwoord));
}

void frmLedenAdmin::MeldRegisterBehouden(Opslag opslag)
{
    if (opslag == Opslag::RegisterBehouden)
        Meld(this, QMessageBox::Information,
             u"Een spelerbestand zonder spelers wordt niet opgeslagen. Het houdt zijn laatste "
             "inhoud, en die ziet u nu weer. Voeg eerst een andere speler toe."_s);
}

/// The players are saved: link files that were put back after an earlier failure come again.
void frmLedenAdmin::SchrijfVerslagen()
{
    const auto nogEens = [this](const Fout& fout) {
        return Kies(this, QMessageBox::Critical,
                    u"De spelers zijn opgeslagen, maar 'Koppelverslag.txt' van hun zitting kon "
                    "niet worden geschreven. Zonder dat bestand zijn ze niet aan die zitting te "
                    "koppelen. Verhelp de oorzaak en probeer het opnieuw; met Doorgaan komt dat "
                    "bestand er niet.\n\n"_s +
                        Bijzonderheden(fout),
                    {u"Opnieuw proberen"_s, u"Doorgaan"_s}) == 0;
    };
    for (Koppelverslag& verslag : verslagen_) {
        auto geschreven = verslag.Staat() ? Uitkomst<void>() : verslag.Schrijf();
        while (!StaatEr(this, geschreven) && nogEens(geschreven.error()))
            geschreven = verslag.Schrijf();
    }
    verslagen_.clear();
}

/// Keys that the register on the disk lacks will be issued to other players: no link file may name
/// them.
void frmLedenAdmin::ZetVerslagenTerug(bool vervallen)
{
    if (verslagen_.empty())
        return;
    bool terug = false;
    for (Koppelverslag& verslag : verslagen_)
        terug = (verslag.Staat() && ZetTerugOfMeld(verslag, this)) || terug;
    if (!terug)
        return;
    QString tekst =
        u"De nieuwe spelers staan niet in het spelerbestand. Daarom is 'Koppelverslag.txt' van "
        "hun zitting weer zoals het was."_s;
    tekst += vervallen ? u" Voeg ze zo nodig opnieuw toe."_s
                       : u" Het wordt opnieuw geschreven zodra ze zijn opgeslagen."_s;
    Meld(this, QMessageBox::Information, tekst);
}

} // namespace plexoran
