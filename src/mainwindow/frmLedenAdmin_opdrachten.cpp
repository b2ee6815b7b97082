// The commands of the main window.
#include <algorithm>

#include "dialogs/diaGrNamen.h"
#include "dialogs/diaIngave.h"
#include "dialogs/diaKopieer.h"
#include "dialogs/diaVerplaats.h"
#include "dialogs/frmVerwSubgroep.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {

/// Saves, shows what is in the table now, and says `klaar` unless the save failed. Whether the
/// table is on the disk now.
bool frmLedenAdmin::SlaOpEnToon(const QString& klaar)
{
    const Opslag opslag = opslag_.SlaOp();
    ToonGroep();
    if (opslag != Opslag::Mislukt)
        opslag_.Reserve().Meld();
    if (opslag != Opslag::Mislukt && !klaar.isEmpty())
        Meld(this, QMessageBox::Information, klaar);
    if (opslag == Opslag::RegisterBehouden)
        Meld(this, QMessageBox::Information,
             u"Een spelerbestand zonder spelers wordt niet opgeslagen. Het houdt zijn laatste "
             "inhoud, en die ziet u nu weer. Voeg eerst een andere speler toe."_s);
    MeldGeschiedenisfout();
    if (opslag == Opslag::Gelukt)
        ToonMelding();
    return opslag == Opslag::Gelukt;
}

/// The same after players came, changed or went, if any did. The first who is there now is chosen,
/// in his own group; without one, who was chosen stays so.
bool frmLedenAdmin::SlaOpEnKies(const std::vector<Rijverschil>& verschillen, Tekst gekozen)
{
    if (verschillen.empty()) {
        ToonMelding();
        return true;
    }
    int plaats = -1;
    if (const int rij = verschillen.front().nu; rij > 0) { // those who went come last
        gekozen = verschillen.front().key;
        plaats = Groepnummer(administratie_.spelers.tabel.Cel(rij, Kolom::Groep)) - 1;
    }
    const bool opgeslagen = SlaOpEnToon();
    if (plaats >= 0)
        cmbGr->setCurrentIndex(plaats);
    KiesSpeler(gekozen);
    return opgeslagen;
}

/// Players who are not saved may still get another key, and no other file may hold theirs.
bool frmLedenAdmin::IsAllesOpgeslagen()
{
    return !isWindowModified() || SlaOpEnToon();
}

bool frmLedenAdmin::IsRegelGekozen()
{
    if (picP0->Vlak()->Regel() > 0)
        return true;
    Meld(this, QMessageBox::Warning, u"Er is geen regel geselecteerd!"_s);
    return false;
}

int frmLedenAdmin::RijOp(int regel) const
{
    return picP0->Vlak()->Rijen()[static_cast<std::size_t>(regel - 1)];
}

bool frmLedenAdmin::ToonIngave(Ingave& ingave)
{
    BewaarInstellingen(); // another program may have chosen another return field
    const Tekst groeptekst = Groeptekst();
    ingave.groeptekst = groeptekst;
    ingave.importgroep = CodeUit(groeptekst) == administratie_.mappen.DFIMPG;
    diaIngave venster(
        ingave, administratie_.instellingen.OPTIND, [this] { BewaarInstellingen(); }, this);
    return venster.exec() == QDialog::Accepted;
}

void frmLedenAdmin::VoegToe()
{
    if (!MagWijzigen())
        return;
    Ingave ingave;
    ingave.IngaveModus = "Aanmaken";
    ingave.rij = administratie_.spelers.tabel.Rijen() + 1;
    if (!ToonIngave(ingave))
        return;
    if (!VoegSpelerToe(administratie_.spelers, Groeptekst(), ingave.IngaveVelden)) {
        MeldSleutelsOp(this, u"De speler is niet toegevoegd"_s,
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
        return;
    }
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const Noteer noteer(administratie_.geschiedenis,
                        VolleNaam(tabel, tabel.Rijen()) + " toegevoegd");
    SlaOpEnToon();
    const Weergave& rijen = picP0->Vlak()->Rijen();
    const auto nieuwe = std::max_element(rijen.begin(), rijen.end());
    picP0->Vlak()->BrengInBeeld(static_cast<int>(nieuwe - rijen.begin()) + 1);
}

void frmLedenAdmin::Wijzig()
{
    if (!MagWijzigen() || !BrengInRooster() || !IsRegelGekozen())
        return;
    Ingave ingave;
    ingave.rij = GekozenRij();
    ingave.IngaveVelden = administratie_.spelers.tabel.Velden(ingave.rij);
    if (!ToonIngave(ingave))
        return;
    WijzigSpeler(administratie_.spelers, ingave.rij, ingave.IngaveVelden);
    const Noteer noteer(administratie_.geschiedenis,
                        VolleNaam(administratie_.spelers.tabel, ingave.rij) + " gewijzigd");
    SlaOpEnToon();
}

void frmLedenAdmin::VerwijderRij()
{
    if (KiestInLijst() || picP0->Vlak()->IsMeer()) {
        VerwijderGekozen();
        return;
    }
    if (!MagWijzigen() || !IsRegelGekozen())
        return;
    const int regel = picP0->Vlak()->Regel();
    Verwijder({GekozenRij()}, u"regel %1"_s.arg(regel), {}, u"De regel is verwijderd."_s);
}

void frmLedenAdmin::VerwijderVanTot()
{
    const int van = cmbVerwVan->currentIndex() + 1;
    const int tot = cmbVerwTot->currentIndex() + 1;
    const auto eerste = picP0->Vlak()->Rijen().begin();
    if (van <= tot)
        Verwijder({eerste + van - 1, eerste + tot}, u"regel %1 t/m regel %2"_s.arg(van).arg(tot),
                  "Regels " + std::to_string(van) + " t/m " + std::to_string(tot),
                  u"De regels zijn verwijderd."_s);
    else
        Meld(this, QMessageBox::Warning,
             u"Er is niets verwijderd: regel %1 komt na regel %2. Kies bij 'Van regel' de eerste "
             "en bij 'T/m regel' de laatste regel."_s.arg(van)
                 .arg(tot));
}

/// After a warning with the names of the players; `regels` is what the question calls them, `wie`
/// the history where they are more than one.
void frmLedenAdmin::Verwijder(const std::vector<int>& rijen, const QString& regels,
                              const Tekst& wie, const QString& klaar)
{
    const QString waarschuwing =
        u"\t\tLET OP!\r\n\r\nAls u spelers verwijdert die nog voorkomen in bestaande zittingen dan "
        "zal hun naam daarin niet meer verschijnen.\r\nVoor competitie-zittingen betekent dat ook "
        "dat ze niet meer meedoen.\r\n\r\nHet opnieuw invoeren van een speler die per vergissing "
        "is "
        "verwijderd heeft alleen zin als men in elke relevante zitting zijn naam opnieuw "
        "ingeeft.\r\n\r\nWeet u zeker dat u %1 wilt verwijderen?\r\n\r\n"_s.arg(regels);
    Spelertabel& tabel = administratie_.spelers.tabel;
    if (!Vraag(this, waarschuwing, u"Verwijderen"_s, NoemSpelers(tabel, rijen, *this)))
        return;
    const Noteer noteer(administratie_.geschiedenis,
                        (rijen.size() == 1 ? VolleNaam(tabel, rijen.front()) : wie) +
                            " verwijderd");
    tabel.VerwijderRijen(rijen);
    if (rijen.size() > 1)
        opslag_.Reserve().Maak("voor verwijderen");
    SlaOpEnToon(klaar);
}

void frmLedenAdmin::WijzigGroepsnamen()
{
    const Groepen oud = administratie_.groepen;
    diaGrNamen venster(administratie_.groepen, this);
    const Noteer noteer(administratie_.geschiedenis, "Groepsnamen gewijzigd");
    if (venster.exec() != QDialog::Accepted)
        return;
    opslag_.Reserve().VoorWijziging();
    const auto bewaard = BewaarGroepen(oud);
    if (!bewaard)
        return;
    opslag_.Reserve().Meld();
    MeldGeschiedenisfout();
    ToonMelding();
    VulKeus(*cmbGr, administratie_.groepen.Toonteksten());
    KiesGroep(0);
    MeldMenging(this, {.een = u"groepsnaam"_s,
                       .meer = u"groepsnamen"_s,
                       .overgenomen = bewaard->overgenomen,
                       .botsingen = bewaard->botsingen,
                       .onze = bewaard->onze,
                       .andere = bewaard->andere});
}

/// Names that cannot be saved are taken back, so that screen and file stay one.
std::optional<Bewaring> frmLedenAdmin::BewaarGroepen(const Groepen& oud)
{
    for (;;) {
        Bewaring bewaard =
            SchrijfGroepen(administratie_.schijf, administratie_.mappen, administratie_.groepen);
        if (StaatEr(this, bewaard.gelukt))
            return bewaard;
        const int antwoord =
            Kies(this, QMessageBox::Critical,
                 u"De groepsnamen konden niet worden opgeslagen. Het bestand is gebleven zoals het "
                 "was. Probeer het opnieuw, of kies Annuleren om de oude namen te houden.\n\n"_s +
                     Bijzonderheden(bewaard.gelukt.error()),
                 {u"Opnieuw proberen"_s, u"Annuleren"_s});
        if (antwoord != 0) {
            administratie_.groepen = oud;
            return std::nullopt;
        }
    }
}

void frmLedenAdmin::Verplaats()
{
    const Noteer noteer(administratie_.geschiedenis, "Spelers verplaatst");
    diaVerplaats venster(administratie_, this);
    venster.exec();
    if (!venster.IngaveGeannuleerd())
        SlaOpEnToon(u"De spelers(s) zijn verplaatst."_s);
}

void frmLedenAdmin::Kopieer()
{
    const Noteer noteer(administratie_.geschiedenis, "Spelers gekopieerd");
    diaKopieer venster(administratie_, this);
    venster.exec();
    if (!venster.IngaveGeannuleerd())
        SlaOpEnToon();
}

void frmLedenAdmin::VerwijderGroep()
{
    const Noteer noteer(administratie_.geschiedenis, "Subgroep verwijderd");
    frmVerwSubgroep venster(administratie_, this);
    // Behind the window, which stays open, the grid must not show other players in its old lines.
    connect(&venster, &frmVerwSubgroep::rijenVerwijderd, this, &frmLedenAdmin::ToonGroep);
    venster.exec();
    if (!venster.IetsVerwijderd())
        return;
    opslag_.Reserve().Maak("voor verwijderen");
    SlaOpEnToon();
}

} // namespace plexoran
