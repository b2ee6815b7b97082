#include "mainwindow/frmLedenAdmin_opslag.h"

#include "dialogs/diaToevoegen.h"
#include "dialogs/frmVergelijk.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int TeNoemenRegels = 10;

const QString Sleutelgevolg =
    u". Nieuwe spelers krijgen daardoor een sleutel vanaf 100001, die al van een ander kan zijn: "
    "voeg er geen toe voordat die regel is hersteld."_s;

QString Opsomming(const std::vector<int>& regels)
{
    QStringList nummers;
    for (const int regel : regels) {
        if (nummers.size() == TeNoemenRegels)
            return nummers.join(u", "_s) + u", ..."_s;
        nummers << QString::number(regel);
    }
    return nummers.join(u", "_s);
}

QStringList WatNietGelezenIs(const Leesverslag& verslag)
{
    QStringList delen;
    if (const std::size_t aantal = verslag.zonderAchternaam.size(); aantal > 0)
        delen << (aantal == 1 ? u"%2 speler zonder achternaam is niet ingelezen (regel %1 van het "
                                "spelerbestand). Vul die achternaam daar in als u de speler wilt "
                                "houden."_s
                              : u"%2 spelers zonder achternaam zijn niet ingelezen (regels %1 van "
                                "het spelerbestand). Vul die achternamen daar in als u de spelers "
                                "wilt houden."_s)
                     .arg(Opsomming(verslag.zonderAchternaam), QString::number(aantal));
    if (verslag.zonderSleutelregel)
        delen << u"In het spelerbestand ontbreekt de regel HKEY= met de hoogste sleutel"_s +
                     Sleutelgevolg;
    if (verslag.sleutelZonderGetal > 0)
        delen << u"Op regel %1 van het spelerbestand staat achter HKEY= geen getal"_s.arg(
                     verslag.sleutelZonderGetal) +
                     Sleutelgevolg;
    return delen;
}

QString WaarHetLezenStopte(const Spelertabel& tabel, const Leesverslag& verslag)
{
    const auto rijen = static_cast<std::size_t>(tabel.Rijen());
    QString reden = u". Verhelp de oorzaak voordat u iets invoert."_s;
    if (verslag.velden > 0)
        reden = u", want de genoemde regel heeft %1 in plaats van %2. Laat die regel herstellen "
                "voordat u iets invoert."_s
                    .arg(Aantal(static_cast<std::size_t>(verslag.velden), u"veld"_s, u"velden"_s))
                    .arg(AantalKolommen);
    else if (verslag.fout->regel > 0)
        reden = u", want op regel %1 staat achter HKEY= een getal dat niet past"_s.arg(
                    verslag.fout->regel) +
                Sleutelgevolg;
    return u"Het spelerbestand is niet tot het einde gelezen; er %1 nu %2 in de tabel%3"_s.arg(
        rijen == 1 ? u"staat"_s : u"staan"_s, Aantal(rijen, u"speler"_s, u"spelers"_s), reden);
}

QString WatNietOpenGing(Leesmoment moment)
{
    switch (moment) {
    case Leesmoment::Start:
        return u"Het spelerbestand kan niet worden geopend; er is niets uit gelezen en niets aan "
               "veranderd. Voeg nu geen spelers toe, maar verhelp de oorzaak en start het "
               "programma opnieuw."_s;
    case Leesmoment::NaOpslag:
        return u"Uw wijziging is opgeslagen, maar het spelerbestand kan daarna niet worden "
               "geopend. In dit programma staan dezelfde spelers als in dat bestand. Verhelp de "
               "oorzaak voordat u verder gaat."_s;
    case Leesmoment::Opnieuw:
        break;
    }
    return u"Het spelerbestand kan niet worden geopend; er is niets aan veranderd. In dit "
           "programma staan de spelers van zonet, met uw laatste wijziging. Verhelp de oorzaak "
           "voordat u verder gaat."_s;
}

/// What the user wants after a save that failed.
enum class Vervolg { Opnieuw, Overschrijven, Later };

/// Another program left a file that cannot be brought together with what is here.
Vervolg VraagNaSchade(QWidget* ouder, const Fout& fout)
{
    const int antwoord = Kies(
        ouder, QMessageBox::Warning,
        u"Een ander programma heeft het spelerbestand gewijzigd, en wat er nu in staat kan niet "
        "helemaal worden ingelezen.\n\nOpnieuw proberen: als dat programma nog bezig was, is het "
        "daarna goed.\nOpslaan: de spelers van hier vervangen dat bestand; er komt eerst een kopie "
        "van in de map Reservekopie.\nLater beslissen: er verandert nu niets; bij de volgende "
        "wijziging en bij het afsluiten komt deze keus terug.\n\n"_s +
            Bijzonderheden(fout),
        {u"Opnieuw proberen"_s, u"Opslaan"_s, u"Later beslissen"_s});
    constexpr std::array vervolgen{Vervolg::Opnieuw, Vervolg::Overschrijven, Vervolg::Later};
    return vervolgen.at(static_cast<std::size_t>(antwoord));
}

Vervolg VraagVervolg(QWidget* ouder, const Fout& fout)
{
    if (fout.soort == Foutsoort::Gewijzigd)
        return VraagNaSchade(ouder, fout);
    const QString wat =
        fout.soort == Foutsoort::GeenReservekopie
            ? u"Er is niets opgeslagen: de kopie van het spelerbestand die eerst in de map "
              "Reservekopie moet komen, is mislukt."_s
            : u"De spelers konden niet worden opgeslagen."_s;
    const QString gevolg =
        u" Het spelerbestand op de schijf is heel gebleven, en uw laatste wijziging staat nog in "
        "dit programma. Verhelp de oorzaak en probeer het opnieuw, of ga door: bij de volgende "
        "wijziging en bij het afsluiten komt deze keus terug.\n\n"_s;
    const int antwoord = Kies(ouder, QMessageBox::Critical, wat + gevolg + Bijzonderheden(fout),
                              {u"Opnieuw proberen"_s, u"Doorgaan"_s});
    return antwoord == 0 ? Vervolg::Opnieuw : Vervolg::Later;
}

/// What came of bringing two registers together, a line each.
QStringList Nieuws(const Menging& menging)
{
    QStringList uit;
    if (const std::size_t aantal = menging.overgenomen.size(); aantal > 0)
        uit << u"%1 van een ander programma overgenomen: %2."_s.arg(
            Aantal(aantal, u"speler"_s, u"spelers"_s), Namen(menging.overgenomen));
    std::vector<Tekst> keys;
    for (const auto& [was, nu] : menging.hernummerd)
        keys.push_back(nu + " in plaats van " + was);
    if (!keys.empty())
        uit << u"%1 van hier %2 een andere sleutel gekregen, omdat het andere programma de sleutel "
               "ook had uitgegeven: %3."_s.arg(
                   Aantal(keys.size(), u"nieuwe speler"_s, u"nieuwe spelers"_s),
                   keys.size() == 1 ? u"heeft"_s : u"hebben"_s, Namen(keys));
    return uit;
}

const Vergelijking Botsingtekst{
    u"Ook door een ander programma gewijzigd"_s,
    u"Een ander programma heeft deze spelers intussen ook gewijzigd. Kies per speler wat in het "
    "spelerbestand komt. Waar u niets kiest, komt te staan wat het andere programma ervan maakte; "
    "zoals het hier was, komt het dan in een kopie."_s,
    u"Hier"_s, u"Ander programma"_s};

} // namespace

void MeldLezing(QWidget* ouder, const Spelertabel& tabel, const Leesverslag& verslag,
                Leesmoment moment)
{
    if (verslag.fout)
        Meld(ouder, QMessageBox::Warning,
             u"Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"_s);
    if (verslag.NietGeopend()) {
        MeldFout(ouder, QMessageBox::Information, WatNietOpenGing(moment), *verslag.fout);
        return;
    }
    const QString gevolg =
        moment == Leesmoment::NaOpslag
            ? u"Uw wijziging is opgeslagen; voordat dit programma het bestand weer vervangt, komt "
              "er een kopie van in de map Reservekopie."_s
            : u"Het bestand zelf is niet veranderd; voordat dit programma het de eerste keer "
              "vervangt, komt er een kopie van in de map Reservekopie."_s;
    if (verslag.fout)
        MeldFout(ouder, QMessageBox::Information,
                 WaarHetLezenStopte(tabel, verslag) + u"\n\n"_s + gevolg, *verslag.fout);
    for (const QString& uitleg : WatNietGelezenIs(verslag))
        Meld(ouder, QMessageBox::Information, uitleg + u"\n\n"_s + gevolg);
}

Spelersopslag::Spelersopslag(Administratie& administratie, QWidget* venster,
                             std::function<void()> toon)
    : administratie_(administratie), venster_(venster), toon_(std::move(toon)),
      reserve_(administratie, venster)
{}

Opslag Spelersopslag::SlaOp()
{
    reserve_.VoorWijziging();
    Register& spelers = administratie_.spelers;
    auto overschrijven = Overschrijven::AlleenEigen;
    for (;;) {
        auto uitkomst =
            SchrijfSpelers(administratie_.schijf, administratie_.mappen, spelers, overschrijven);
        if (StaatEr(venster_, uitkomst))
            break;
        venster_->setWindowModified(true);
        toon_();
        if (uitkomst.error().soort == Foutsoort::Gewijzigd) {
            uitkomst = MengMetSchijf();
            if (uitkomst)
                continue;
        }
        const Vervolg vervolg = VraagVervolg(venster_, uitkomst.error());
        if (vervolg == Vervolg::Overschrijven)
            overschrijven = Overschrijven::OokGewijzigd;
        else if (vervolg == Vervolg::Later) {
            ZetVerslagenTerug();
            administratie_.geschiedenis.StelUit();
            return Opslag::Mislukt;
        }
    }
    venster_->setWindowModified(false);
    const bool leeg = spelers.tabel.Rijen() == 0;
    if (!leeg)
        SchrijfVerslagen();
    LeesOpnieuw(leeg ? Leesmoment::Opnieuw : Leesmoment::NaOpslag);
    if (!nieuws_.empty()) {
        toon_();
        Meld(venster_, QMessageBox::Information, nieuws_.join(u"\n\n"_s));
        nieuws_.clear();
    }
    return leeg && spelers.tabel.Rijen() > 0 ? Opslag::RegisterBehouden : Opslag::Gelukt;
}

/// Brings what another program wrote together with what is here. On an error, `Gewijzigd` when its
/// file cannot be read whole, everything is as it was.
Uitkomst<void> Spelersopslag::MengMetSchijf()
{
    Schijf& schijf = administratie_.schijf;
    const Pad pad = administratie_.mappen.Spelerbestand();
    Register& spelers = administratie_.spelers;
    const auto ander = AnderRegister::Lees(schijf, administratie_.mappen);
    if (!ander)
        return Mislukt(ander);
    if (!ander->IsHeel(spelers))
        return Mislukt({.soort = Foutsoort::Gewijzigd, .bestand = schijf.Toonpad(pad)});
    Menging menging = ander->MengMet(spelers);
    if (const std::size_t aantal = menging.botsingen.size(); aantal > 0) {
        frmVergelijk venster(Botsingtekst, menging.botsingen, administratie_.mappen.DFIMPG,
                             venster_);
        const bool gekozen = venster.exec() == QDialog::Accepted;
        const auto voorOns = gekozen ? venster.Links() : std::set<Tekst>();
        if (!gekozen || voorOns.size() + venster.Rechts().size() < aantal) {
            const auto kopie =
                MaakReservekopie(schijf, administratie_.mappen.SPEMAP, pad, SpelersTekst(spelers));
            if (!kopie)
                return Mislukt(kopie);
            nieuws_ << u"Waar u niets koos, staat in het spelerbestand wat het andere programma "
                       "ervan maakte. Zoals het hier was, staat het in de kopie:\n%1"_s.arg(
                           Toonpad(schijf, *kopie));
        }
        menging = ander->MengMet(spelers, voorOns);
    }
    for (Koppelverslag& verslag : verslagen_)
        verslag.Hernummer(menging.hernummerd);
    nieuws_ << Nieuws(menging);
    ander->NeemOver(spelers, std::move(menging));
    return {};
}

std::optional<bool> Spelersopslag::NeemAndereOver()
{
    Register& spelers = administratie_.spelers;
    if (venster_->isWindowModified() || !spelers.gelezen)
        return false;
    const auto ander = AnderRegister::Lees(administratie_.schijf, administratie_.mappen);
    if (!ander || !ander->IsHeel(spelers))
        return std::nullopt;
    if (!ander->IsAnders(spelers))
        return false;
    ander->NeemOver(spelers, ander->MengMet(spelers));
    return true;
}

void Spelersopslag::LeesOpnieuw(Leesmoment moment)
{
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    if (verslag.tabelVervangen) {
        venster_->setWindowModified(false);
        verslagen_.clear();
    }
    if (verslag.AllesGelezen())
        return;
    toon_(); // not the old rows behind the box
    MeldLezing(venster_, administratie_.spelers.tabel, verslag, moment);
}

/// The players are saved: link files that were put back after an earlier failure come again.
void Spelersopslag::SchrijfVerslagen()
{
    const auto nogEens = [this](const Fout& fout) {
        return Kies(venster_, QMessageBox::Critical,
                    u"De spelers zijn opgeslagen, maar 'Koppelverslag.txt' van hun zitting kon "
                    "niet worden geschreven. Zonder dat bestand zijn ze niet aan die zitting te "
                    "koppelen. Verhelp de oorzaak en probeer het opnieuw; met Doorgaan komt dat "
                    "bestand er niet.\n\n"_s +
                        Bijzonderheden(fout),
                    {u"Opnieuw proberen"_s, u"Doorgaan"_s}) == 0;
    };
    for (Koppelverslag& verslag : verslagen_) {
        auto geschreven = verslag.IsBij() ? Uitkomst<void>() : verslag.Schrijf();
        while (!StaatEr(venster_, geschreven) && nogEens(geschreven.error()))
            geschreven = verslag.Schrijf();
    }
    verslagen_.clear();
}

/// Keys that the register on the disk lacks will be issued to other players: no link file may name
/// them.
void Spelersopslag::ZetVerslagenTerug()
{
    if (verslagen_.empty())
        return;
    bool terug = false;
    for (Koppelverslag& verslag : verslagen_)
        terug = (verslag.Staat() && ZetTerugOfMeld(verslag, venster_)) || terug;
    if (!terug)
        return;
    Meld(
        venster_, QMessageBox::Information,
        u"De nieuwe spelers staan niet in het spelerbestand. Daarom is 'Koppelverslag.txt' van hun "
        "zitting weer zoals het was. Het wordt opnieuw geschreven zodra ze zijn opgeslagen."_s);
}

bool Spelersopslag::MagEindigen()
{
    if (!venster_->isWindowModified())
        return true;
    const int antwoord =
        Kies(venster_, QMessageBox::Warning,
             u"De laatste wijzigingen staan nog niet in het spelerbestand. Met 'Niet opslaan' gaan "
             "ze verloren. Met 'Annuleren' blijft Plexoran open."_s,
             {u"Opslaan"_s, u"Niet opslaan"_s, u"Annuleren"_s});
    return antwoord == 1 || (antwoord == 0 && SlaOp() != Opslag::Mislukt);
}

} // namespace plexoran
