// Reading the player file at the start, and what a reading leaves to tell.
#include <algorithm>

#include "mainwindow/frmLedenAdmin.h"
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

} // namespace

/// Whether the register is to be saved, because the highest key was raised. Not when players were
/// left out: then the new key goes along with the first change.
bool frmLedenAdmin::LeesSpelersBijStart()
{
    const auto aanmaak =
        MaakSpelerbestand(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    const QString wat = u"Het spelerbestand"_s;
    BiedTerugzettenAan(aanmaak, administratie_.mappen.Spelerbestand(), wat);
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    // A file that cannot be read is told of below.
    if (!verslag.fout && !IsGemaakt(aanmaak, wat))
        MeldMapfout(wat + u" kon niet worden gemaakt."_s, aanmaak.gemaakt.error());
    MeldLezing(verslag, Leesmoment::Start);
    const std::int32_t hoogste =
        std::max(HoogsteSleutel(administratie_.spelers.tabel), verslag.hoogsteWeggelaten);
    return VraagHogereSleutel(hoogste) && verslag.AlleSpelersGelezen();
}

/// The highest key issued is never raised without this answer.
bool frmLedenAdmin::VraagHogereSleutel(std::int32_t hoogste)
{
    std::int32_t& HKEY = administratie_.spelers.HKEY;
    const std::int32_t geldt = std::max(HKEY, Sleutelbasis);
    if (hoogste <= geldt)
        return false;
    const int antwoord = Kies(
        this, QMessageBox::Warning,
        u"In het spelerbestand staat een speler met sleutel %1, maar als hoogste uitgegeven "
        "sleutel (HKEY=) geldt %2. Een nieuwe speler kan daardoor een sleutel krijgen die al van "
        "een ander is. Met Verhogen geldt voortaan %1; met Niet verhogen blijft alles zoals het "
        "is."_s.arg(hoogste)
            .arg(geldt),
        {u"Verhogen"_s, u"Niet verhogen"_s});
    if (antwoord != 0)
        return false;
    HKEY = hoogste;
    return true;
}

/// First the register's own warning, then what it means for the data.
void frmLedenAdmin::MeldLezing(const Leesverslag& verslag, Leesmoment moment)
{
    if (verslag.fout)
        Meld(this, QMessageBox::Warning,
             u"Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"_s);
    if (verslag.NietGeopend()) {
        MeldNietGeopend(*verslag.fout, moment);
        return;
    }
    const QString gevolg =
        moment == Leesmoment::NaOpslag
            ? u"Uw wijziging is opgeslagen; voordat dit programma het bestand weer vervangt, komt "
              "er een kopie van in de map Reservekopie."_s
            : u"Het bestand zelf is niet veranderd; voordat dit programma het de eerste keer "
              "vervangt, komt er een kopie van in de map Reservekopie."_s;
    if (verslag.fout)
        MeldFout(this, QMessageBox::Information, WaarHetLezenStopte(verslag) + u"\n\n"_s + gevolg,
                 *verslag.fout);
    for (const QString& uitleg : WatNietGelezenIs(verslag))
        Meld(this, QMessageBox::Information, uitleg + u"\n\n"_s + gevolg);
}

void frmLedenAdmin::MeldNietGeopend(const Fout& fout, Leesmoment moment)
{
    QString wat;
    switch (moment) {
    case Leesmoment::Start:
        wat = u"Het spelerbestand kan niet worden geopend; er is niets uit gelezen en niets aan "
              "veranderd. Voeg nu geen spelers toe, maar verhelp de oorzaak en start het programma "
              "opnieuw."_s;
        break;
    case Leesmoment::NaOpslag:
        wat = u"Uw wijziging is opgeslagen, maar het spelerbestand kan daarna niet worden geopend. "
              "In dit programma staan dezelfde spelers als in dat bestand. Verhelp de oorzaak "
              "voordat u verder gaat."_s;
        break;
    case Leesmoment::Opnieuw:
        wat = u"Het spelerbestand kan niet worden geopend; er is niets aan veranderd. In dit "
              "programma staan de spelers van zonet, met uw laatste wijziging. Verhelp de oorzaak "
              "voordat u verder gaat."_s;
        break;
    }
    MeldFout(this, QMessageBox::Information, wat, fout);
}

QString frmLedenAdmin::WaarHetLezenStopte(const Leesverslag& verslag) const
{
    const auto rijen = static_cast<std::size_t>(administratie_.spelers.tabel.Rijen());
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

} // namespace plexoran
