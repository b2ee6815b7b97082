// The commands of the main window that open a window of their own.
#include <array>

#include "controle/frmControle.h"
#include "controle/frmDubbelen.h"
#include "dialogs/diaSortlijst.h"
#include "dialogs/diaToevoegen.h"
#include "dialogs/frmTerugzetten.h"
#include "exchange/frmEtiketten.h"
#include "exchange/frmLijstImport.h"
#include "help/frmToelichting.h"
#include "mainwindow/frmEersteStart.h"
#include "mainwindow/frmLedenAdmin.h"
#include "mainwindow/frmLedenAdmin_opstart.h"
#include "mainwindow/frmOverzicht.h"
#include "pairs/frmParenOnderhoud.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/schijf/programma.h"
#include "printing/frmPrintIni.h"
#include "sessions/frmKoppelNBBnr.h"

namespace plexoran {
namespace {

QString NietsGevonden(Sorteersoort soort)
{
    constexpr std::array criteria{u"", u" 'NBB-nummer'", u" 'NBB-groep'"}; // by kind
    return u"Er zijn geen regels die voldoen aan het zoek-criterium%1."_s.arg(
        QString::fromUtf16(criteria.at(static_cast<std::size_t>(soort) - 1)));
}

Tekst Verslag(const Spelertabel& tabel, const std::vector<Dubbel>& dubbelen)
{
    if (dubbelen.empty())
        return "G\xE9\xE9n dubbele namen gevonden!\r\n";
    Tekst verslag = "RVDkey\tNaam\t\t\tNBBgr\tNBBnr\r\n" + Tekst(71, '-') + "\r\n";
    for (const Dubbel& dubbel : dubbelen) {
        for (const int rij : {dubbel.rij, dubbel.latere}) {
            VoegVeldenToe(verslag, tabel, rij, '\t');
            verslag += "\r\n";
        }
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
        const auto& [rij, waarde] = lijst.error();
        const bool opKey = soort == Sorteersoort::Key;
        Meld(this, QMessageBox::Warning,
             u"De lijst kan niet worden gemaakt: %1 van %2 (%3) is geen getal: '%4'. De gegevens "
             "zijn niet veranderd. Verbeter dat %5."_s.arg(
                 opKey ? u"de sleutel"_s : u"het NBB-nummer"_s, NaarQString(VolleNaam(tabel, rij)),
                 NaarQString(tabel.Cel(rij, Kolom::Groep)), NaarQString(waarde),
                 opKey ? u"in het spelerbestand"_s : u"bij deze speler"_s));
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

/// Members in a group that is none of the fifty would never be seen again.
void frmLedenAdmin::HaalNBBnamen()
{
    if (Groepnummer(administratie_.mappen.DFIMPG) == 0) {
        Meld(this, QMessageBox::Warning,
             u"Er kunnen geen bondsleden worden geïmporteerd: in 'Mappen.ini' staat achter DFIMPG= "
             "niet in welke groep ze komen, zoals Gr05-. Er is niets veranderd. Vul die groep in "
             "en start Plexoran opnieuw."_s);
        return;
    }
    const Noteer noteer(administratie_.geschiedenis, NaarTekst(u"Leden geïmporteerd"_s));
    KiesRekenprogramma(administratie_, this);
    frmImportNBB venster(administratie_, importgeheugen_, this);
    venster.exec();
    activateWindow(); // it closes with its last box, and a window manager may lose the focus then
    if (!venster.IetsGewijzigd())
        return;
    opslag_.Reserve().Maak("voor import");
    SlaOpEnToon();
}

/// The group that the players came to is shown, whichever it was.
void frmLedenAdmin::ImporteerLijst()
{
    if (!MagWijzigen())
        return;
    const Noteer noteer(administratie_.geschiedenis, NaarTekst(u"Lijst geïmporteerd"_s));
    frmLijstImport venster(administratie_, CodeUit(Groeptekst()), this);
    const int antwoord = venster.exec();
    activateWindow(); // as above
    if (antwoord != QDialog::Accepted)
        return;
    opslag_.Reserve().Maak("voor import");
    SlaOpEnToon();
    KiesGroep(Groepnummer(venster.Groep()) - 1);
}

void frmLedenAdmin::VoegSessiespelersToe()
{
    const Noteer noteer(administratie_.geschiedenis, "Spelerslijst opgehaald");
    diaToevoegen venster(administratie_, this);
    const int antwoord = venster.exec();
    activateWindow(); // as above
    if (antwoord != QDialog::Accepted)
        return;
    opslag_.Bewaak(venster.NeemVerslag());
    SlaOpEnToon();
}

/// Changes session files only: there is nothing to save in the register.
void frmLedenAdmin::KoppelZwevenden()
{
    if (!IsAllesOpgeslagen())
        return;
    frmKoppelNBBnr venster(administratie_, this);
    connect(&venster, &frmKoppelNBBnr::begint, this, [this] {
        opslag_.Reserve().Maak("voor koppelen");
        opslag_.Reserve().Meld();
    });
    venster.exec();
    MeldGeschiedenisfout();
}

void frmLedenAdmin::OnderhoudParen()
{
    OpenParen(Groeptekst(), {});
}

/// The pairs of a group; the players in these rows can be made one at once.
void frmLedenAdmin::OpenParen(const Tekst& groeptekst, const std::vector<int>& rijen)
{
    if (!IsEersteExemplaar()) {
        close();
        return;
    }
    if (!IsAllesOpgeslagen())
        return;
    opslag_.Reserve().VoorWijziging(); // the window saves pairs by itself
    opslag_.Reserve().Meld();
    frmParenOnderhoud venster(administratie_, groeptekst, this);
    venster.Kies(rijen);
    venster.exec();
    MeldGeschiedenisfout();
}

void frmLedenAdmin::Controleer()
{
    const Noteer noteer(administratie_.geschiedenis, "Controle van de administratie: hersteld");
    frmControle venster(administratie_, this);
    venster.exec();
    if (venster.IetsGewijzigd() && MagWijzigen())
        SlaOpEnToon();
}

void frmLedenAdmin::ToonOverzicht()
{
    frmOverzicht venster(administratie_, this);
    if (venster.exec() == QDialog::Accepted)
        picZoek->Toon(venster.Gekozen().rijen, venster.Opschrift());
}

void frmLedenAdmin::KiesAdministratie()
{
    if (!MagKiezen(administratie_)) {
        Meld(this, QMessageBox::Information,
             u"U kunt hier geen andere administratie kiezen: er staat een 'Mappen.ini' bij het "
             "programma, of Plexoran is gestart met --mappen. Er is niets veranderd. Wilt u kunnen "
             "kiezen, haal dat bestand dan weg of start Plexoran zonder --mappen."_s);
        return;
    }
    frmEersteStart keus(administratie_.schijf, *administratie_.eersteStart, this,
                        StartMappenIni(administratie_.schijf, administratie_.programmamap,
                                       administratie_.eersteStart->ini));
    if (keus.exec() == QDialog::Accepted &&
        Kies(this, QMessageBox::Question,
             u"Plexoran begint voortaan met de administratie die u koos. Wat nu open is, blijft "
             "dat tot u Plexoran opnieuw start."_s,
             {u"Nu opnieuw starten"_s, u"Later"_s}) == 0)
        moetOpnieuw_ = close();
}

void frmLedenAdmin::ZoekDubbelen()
{
    if (!MagWijzigen() || !IsAllesOpgeslagen())
        return;
    opslag_.Reserve().VoorWijziging(); // the window saves by itself
    opslag_.Reserve().Meld();
    frmDubbelen venster(
        administratie_, [this] { return SlaOpEnToon(); }, this);
    connect(&venster, &frmDubbelen::begint, this,
            [this] { opslag_.Reserve().Maak("voor samenvoegen"); });
    venster.exec();
    MeldGeschiedenisfout();
}

void frmLedenAdmin::ZetTerug()
{
    const Noteer noteer(administratie_.geschiedenis, "Reservekopie teruggezet");
    const Tekst gekozen = GekozenKey();
    const Spelertabel was = administratie_.spelers.tabel;
    const bool andereSpelers = ZetReserveTerug(administratie_, opslag_.Reserve(), this);
    const bool andereGroepen = VolgGroepsnamen();
    if (andereSpelers)
        SlaOpEnKies(Verschillen(administratie_.spelers.tabel, was), gekozen);
    else if (andereGroepen) {
        ToonGroep();
        ToonMelding();
    }
}

void frmLedenAdmin::ToonToelichting()
{
    frmToelichting(this).exec();
}

void frmLedenAdmin::Print()
{
    const Tekst groeptekst = Groeptekst();
    const Groepsbeeld beeld = BeeldVan(administratie_.mappen, CodeUit(groeptekst));
    // In the order that is shown, where the list is not sorted by surname.
    const auto rijen = volgorde_ ? std::optional(picP0->Vlak()->Rijen()) : std::nullopt;
    frmPrintIni venster(administratie_, groeptekst, beeld.kolomnamen, this, Getalnotatie(), rijen);
    OpenPrintkeuze(venster);
}

void frmLedenAdmin::OpenPrintkeuze(frmPrintIni& venster)
{
    connect(&venster, &frmPrintIni::etikettenGevraagd, this, [&](const std::vector<int>& rijen) {
        frmEtiketten(administratie_, rijen, &venster).exec();
    });
    venster.exec();
}

void frmLedenAdmin::StartGatenlijst()
{
    const Tekst& map = administratie_.mappen.RVDMAP;
    const auto uitkomst = map.empty()
                              ? Uitkomst<void>(Mislukt({.soort = Foutsoort::Ontbreekt}))
                              : StartProgramma(administratie_.schijf, Samen(map, "Gatenlijst.exe"));
    if (uitkomst)
        return;
    if (uitkomst.error().soort == Foutsoort::Ontbreekt)
        Meld(this, QMessageBox::Warning, u"Het programma 'Gatenlijst.exe' is niet te vinden."_s);
    else
        MeldFout(
            this, QMessageBox::Warning,
            u"Het programma 'Gatenlijst.exe' kon niet worden gestart. Er is niets veranderd. Kijk "
            "of u dat programma mag starten."_s,
            uitkomst.error());
}

} // namespace plexoran
