// The lists of the main window: players sorted, and names that occur twice.
#include "dialogs/diaSortlijst.h"
#include "mainwindow/dubbelenamen.h"
#include "mainwindow/frmLedenAdmin.h"
#include "mainwindow/sorteerlijst.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

QString NietsGevonden(Sorteersoort soort)
{
    switch (soort) {
    case Sorteersoort::Key:
        return u"Er zijn geen regels die voldoen aan het zoek-criterium."_s;
    case Sorteersoort::NBBnr:
        return u"Er zijn geen regels die voldoen aan het zoek-criterium 'NBB-nummer'."_s;
    case Sorteersoort::NBBgroep:
        break;
    }
    return u"Er zijn geen regels die voldoen aan het zoek-criterium 'NBB-groep'."_s;
}

void VoegRegelToe(Tekst& verslag, const Spelertabel& tabel, int rij)
{
    constexpr std::array kolommen{Kolom::Key,        Kolom::Voornaam, Kolom::Tusv,
                                  Kolom::Achternaam, Kolom::NBBgr,    Kolom::NBBnr};
    for (const Kolom kolom : kolommen) {
        verslag += tabel.Cel(rij, kolom);
        verslag += kolom == kolommen.back() ? "\r\n" : "\t";
    }
}

Tekst Verslag(const Spelertabel& tabel, const std::vector<Dubbel>& dubbelen)
{
    if (dubbelen.empty())
        return "G\xE9\xE9n dubbele namen gevonden!\r\n";
    Tekst verslag = "RVDkey\tNaam\t\t\tNBBgr\tNBBnr\r\n" + Tekst(71, '-') + "\r\n";
    for (const Dubbel& dubbel : dubbelen) {
        VoegRegelToe(verslag, tabel, dubbel.rij);
        VoegRegelToe(verslag, tabel, dubbel.latere);
    }
    return verslag + "\r\nGa na welke regel nog actueel is.\r\n"
                     "Verwijder 1 van beide, deze zal dan niet meer worden getoond in de "
                     "overzichten ed.\r\n";
}

} // namespace

void frmLedenAdmin::ToonSorteerlijst(Sorteersoort soort)
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const Tekst code(CodeUit(Groeptekst()));
    const auto lijst = VulSorteerlijst(
        tabel, soort, chkToonAlle->isChecked() ? std::nullopt : std::optional(code));
    if (!lijst) {
        MeldGeenGetal(soort, lijst.error());
        return;
    }
    if (lijst->empty()) {
        Meld(this, QMessageBox::Information, NietsGevonden(soort));
        return;
    }
    diaSortlijst venster({.soort = soort,
                          .importgroep = code == administratie_.mappen.DFIMPG,
                          .regels = static_cast<int>(lijst->size()),
                          .regel =
                              [&](int regel) {
                                  return VeldenVan((*lijst)[static_cast<std::size_t>(regel)],
                                                   soort);
                              }},
                         this);
    venster.exec();
}

void frmLedenAdmin::MeldGeenGetal(Sorteersoort soort, const GeenGetal& fout)
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    Meld(this, QMessageBox::Warning,
         u"De lijst kan niet worden gemaakt: %1 van %2 (%3) is geen getal: '%4'. De gegevens zijn "
         "niet veranderd. Verbeter dat %5."_s.arg(
             soort == Sorteersoort::Key ? u"de sleutel"_s : u"het NBB-nummer"_s,
             NaarQString(VolleNaam(tabel, fout.rij)),
             NaarQString(tabel.Cel(fout.rij, Kolom::Groep)), NaarQString(fout.waarde),
             soort == Sorteersoort::Key ? u"in het spelerbestand"_s : u"bij deze speler"_s));
}

void frmLedenAdmin::ToonDubbeleNamen()
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const Tekst code(CodeUit(Groeptekst()));
    const Dubbelen dubbelen = ZoekDubbeleNamen(tabel, code);
    MeldVerslag(this, NaarQString(Verslag(tabel, dubbelen.paren)),
                u"DUBBELE NAMEN in deze groep: %1"_s.arg(NaarQString(code)));
    if (dubbelen.meer)
        Meld(this, QMessageBox::Information,
             u"Er zijn meer dubbele namen dan dit verslag kan tonen: het houdt op na %1 paren. Er "
             "is niets veranderd. Verwijder er eerst een aantal en zoek dan "
             "opnieuw."_s.arg(MeesteDubbelen));
}

} // namespace plexoran
