// Reading the player file at the start, and what a reading leaves to tell.
#include <algorithm>

#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"

namespace plexoran {
namespace {

constexpr int TeNoemenRegels = 10;

const QString Sleutelgevolg =
    QStringLiteral("; nieuwe spelers krijgen daardoor een sleutel vanaf 100001, die al van een "
                   "andere speler kan zijn. Voeg geen spelers toe voordat die regel is hersteld.");

QString Opsomming(const std::vector<int>& regels)
{
    QStringList nummers;
    for (const int regel : regels) {
        if (nummers.size() == TeNoemenRegels)
            return nummers.join(QStringLiteral(", ")) + QStringLiteral(", ...");
        nummers << QString::number(regel);
    }
    return nummers.join(QStringLiteral(", "));
}

QStringList WatNietGelezenIs(const Leesverslag& verslag)
{
    QStringList delen;
    if (!verslag.zonderAchternaam.empty())
        delen << QStringLiteral("%1 niet ingelezen (regel %2 van het spelerbestand). Vul die "
                                "achternaam daar in als u de speler wilt houden.")
                     .arg(Aantal(verslag.zonderAchternaam.size(),
                                 QStringLiteral("speler zonder achternaam is"),
                                 QStringLiteral("spelers zonder achternaam zijn")),
                          Opsomming(verslag.zonderAchternaam));
    if (verslag.zonderSleutelregel)
        delen << QStringLiteral("In het spelerbestand ontbreekt de regel HKEY= met de hoogste "
                                "sleutel") +
                     Sleutelgevolg;
    if (verslag.sleutelZonderGetal > 0)
        delen << QStringLiteral("Op regel %1 van het spelerbestand staat achter HKEY= geen getal")
                         .arg(verslag.sleutelZonderGetal) +
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
    const QString wat = QStringLiteral("Het spelerbestand");
    BiedTerugzettenAan(aanmaak, administratie_.mappen.Spelerbestand(), wat);
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    // A file that cannot be read is told of below.
    if (!verslag.fout && !IsGemaakt(aanmaak, wat))
        MeldMapfout(wat + QStringLiteral(" kon niet worden gemaakt."), aanmaak.gemaakt.error());
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
        QStringLiteral("In het spelerbestand staat een speler met sleutel %1, maar als hoogste "
                       "uitgegeven sleutel (HKEY=) geldt %2. Een nieuwe speler kan daardoor "
                       "een sleutel krijgen die al van een ander is. Met Verhogen geldt "
                       "voortaan %1.")
            .arg(hoogste)
            .arg(geldt),
        {QStringLiteral("Verhogen"), QStringLiteral("Niet verhogen")});
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
             QStringLiteral("Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"));
    if (verslag.NietGeopend()) {
        MeldNietGeopend(*verslag.fout, moment);
        return;
    }
    const QString gevolg =
        moment == Leesmoment::NaOpslag
            ? QStringLiteral("Uw wijziging is opgeslagen; voordat dit programma het bestand weer "
                             "vervangt, komt er een kopie van in de map Reservekopie.")
            : QStringLiteral("Het bestand zelf is niet veranderd; voordat dit programma het de "
                             "eerste keer vervangt, komt er een kopie van in de map "
                             "Reservekopie.");
    if (verslag.fout)
        MeldFout(this, QMessageBox::Information,
                 WaarHetLezenStopte(verslag) + QStringLiteral("\n\n") + gevolg, *verslag.fout);
    for (const QString& uitleg : WatNietGelezenIs(verslag))
        Meld(this, QMessageBox::Information, uitleg + QStringLiteral("\n\n") + gevolg);
}

void frmLedenAdmin::MeldNietGeopend(const Fout& fout, Leesmoment moment)
{
    QString wat;
    switch (moment) {
    case Leesmoment::Start:
        wat = QStringLiteral("Het spelerbestand kan niet worden geopend; er is niets uit gelezen "
                             "en niets aan veranderd. Voeg nu geen spelers toe, maar verhelp de "
                             "oorzaak en start het programma opnieuw.");
        break;
    case Leesmoment::NaOpslag:
        wat = QStringLiteral("Uw wijziging is opgeslagen, maar het spelerbestand kan daarna niet "
                             "worden geopend. In dit programma staan dezelfde spelers als in dat "
                             "bestand. Verhelp de oorzaak voordat u verder gaat.");
        break;
    case Leesmoment::Opnieuw:
        wat = QStringLiteral("Het spelerbestand kan niet worden geopend; er is niets aan "
                             "veranderd. In dit programma staan de spelers van zonet, met uw "
                             "laatste wijziging. Verhelp de oorzaak voordat u verder gaat.");
        break;
    }
    MeldFout(this, QMessageBox::Information, wat, fout);
}

QString frmLedenAdmin::WaarHetLezenStopte(const Leesverslag& verslag) const
{
    const auto rijen = static_cast<std::size_t>(administratie_.spelers.tabel.Rijen());
    QString reden = QStringLiteral(". Verhelp de oorzaak voordat u iets invoert.");
    if (verslag.velden > 0)
        reden = QStringLiteral(", want de genoemde regel heeft %1 in plaats van %2. Laat die regel "
                               "herstellen voordat u iets invoert.")
                    .arg(Aantal(static_cast<std::size_t>(verslag.velden), QStringLiteral("veld"),
                                QStringLiteral("velden")))
                    .arg(AantalKolommen);
    else if (verslag.fout->regel > 0)
        reden = QStringLiteral(", want op regel %1 staat achter HKEY= een getal dat niet past (een "
                               "sleutel is ten hoogste 2147483647)")
                    .arg(verslag.fout->regel) +
                Sleutelgevolg;
    return QStringLiteral("Het spelerbestand is niet tot het einde gelezen; er %1 nu %2 in de "
                          "tabel%3")
        .arg(rijen == 1 ? QStringLiteral("staat") : QStringLiteral("staan"),
             Aantal(rijen, QStringLiteral("speler"), QStringLiteral("spelers")), reden);
}

} // namespace plexoran
