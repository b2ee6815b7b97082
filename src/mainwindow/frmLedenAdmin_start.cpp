// The start-up of the main window, in its fixed order.
#include "federation/diaRekProgkeus.h"
#include "federation/zoekrekenprogramma.h"
#include "mainwindow/frmLedenAdmin.h"
#include "pairs/parenbestand.h"
#include "pairs/parencsv.h"
#include "platform/heelschrijven.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

constexpr int TeNoemenRegels = 10;

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

} // namespace

std::optional<int> frmLedenAdmin::Laad(const Opstart& opstart)
{
    eersteExemplaar_ = opstart.eersteExemplaar;
    if (!eersteExemplaar_()) {
        Meld(nullptr, QMessageBox::Information, QStringLiteral("Het programma is al gestart!..."));
        return 0;
    }
    lblToel->setText(QStringLiteral(
        "Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\n"
        "Bij het opzetten van de zitting moet u kiezen uit deze spelers."));

    if (!LeesMappenBijStart(opstart.mappenIni))
        return 1;
    MaakLedenmapBijStart();
    RuimRestenOp();
    LeesInstellingenBijStart();
    ZoekRekenprogrammaBijStart();
    opstarten_ = true;
    chkKolBr->setChecked(true);
    opstarten_ = false;
    cmdParenOnderhoud->setVisible(administratie_.mappen.NEWPAGR == 1);
    LeesGroepenBijStart();
    LeesSpelersBijStart();
    MeldLosseSleutels();

    const int laatste = administratie_.instellingen.LOSTGR;
    KiesGroep(laatste >= 0 && laatste < AantalGroepen ? laatste : 0);
    if (administratie_.mappen.NBB28UIT == 1)
        cmdToonGatenlijst->hide();
    cmdKoppel->hide();
    picP0->Toetsenvlak()->setFocus();
    return std::nullopt;
}

bool frmLedenAdmin::LeesMappenBijStart(const Pad& mappenIni)
{
    auto mappen = LeesMappenIni(administratie_.schijf, mappenIni);
    if (mappen) {
        administratie_.mappen = std::move(*mappen);
        return true;
    }
    const Fout& fout = mappen.error();
    const QString wat =
        fout.soort == Foutsoort::Beschadigd
            ? QStringLiteral("Het bestand 'Mappen.ini' noemt de map van de spelers niet: er staat "
                             "geen map achter SPEMAP=.")
            : QStringLiteral("Het bestand 'Mappen.ini' kan niet worden gelezen.");
    Meld(nullptr, QMessageBox::Critical,
         wat +
             QStringLiteral(" Uw gegevens zijn niet veranderd, maar zonder dat bestand weet dit "
                            "programma niet waar ze staan. Zet het goede bestand op deze plaats, "
                            "of start Plexoran met --mappen en de naam "
                            "van het bestand.\n\n") +
             Bijzonderheden(fout));
    return false;
}

void frmLedenAdmin::MaakLedenmapBijStart()
{
    const Mappen& mappen = administratie_.mappen;
    const QString wat = QStringLiteral("De map voor de ledenbestanden van de bond (NBB4-Leden) kon "
                                       "niet worden gemaakt.");
    if (mappen.WINMAP.empty()) {
        Meld(this, QMessageBox::Warning,
             wat + QStringLiteral(" Er staat geen map achter WINMAP= in 'Mappen.ini'; de gegevens "
                                  "van de spelers zijn niet in gevaar. Vul die map in en start "
                                  "Plexoran opnieuw."));
        return;
    }
    const auto map = administratie_.schijf.MaakMap(mappen.Ledenmap());
    if (!map)
        MeldMapfout(wat, map.error());
}

/// What a program that was killed while saving may have left beside the files.
void frmLedenAdmin::RuimRestenOp()
{
    const Mappen& mappen = administratie_.mappen;
    for (const auto& [map, naam] : std::initializer_list<std::pair<Pad, const char*>>{
             {mappen.SPEMAP, "RVDspelers.txt"},
             {mappen.SPEMAP, "RVDGroepen.txt"},
             {Kopiemap(mappen.SPEMAP), "RVDspelers.txt"},
             {Parenmap(mappen), "RVDparen.txt"},
             {mappen.ADMMAP, "Plexo.ini"},
             {mappen.RVDMAP.empty() ? Pad() : ParenCSVMap(mappen), "RVDparenCSV1.csv"},
             {administratie_.programmamap, "Temp-NBBXMLtoCSV.csv"}})
        RuimTijdelijkeOp(administratie_.schijf, map, naam);
}

void frmLedenAdmin::LeesInstellingenBijStart()
{
    administratie_.instellingen = LeesInstellingen(administratie_.schijf, administratie_.mappen);
    const Pad pad = administratie_.mappen.Instellingenbestand();
    const auto inhoud = administratie_.schijf.LeesBestand(pad);
    if (inhoud && !IsInstellingenbestand(*inhoud))
        Meld(this, QMessageBox::Information,
             QStringLiteral("Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit "
                            "programma. Voordat het wordt vervangen, komt er een kopie van in de "
                            "map Reservekopie. U hoeft niets te doen.\n\nBestand: ") +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad)));
}

/// Both programs there: the user is asked which, now and whenever the import window opens. Without
/// an answer the captions stay those of the one before, whose database is still the one read.
void frmLedenAdmin::KiesRekenprogramma()
{
    const Tekst vorige = administratie_.rekenprogramma.ProgrammaCode;
    administratie_.rekenprogramma = ZoekRekenprogramma(administratie_.winkel, [this] {
        diaRekProgkeus keus(this);
        keus.exec();
        return keus.Antwoord();
    });
    if (administratie_.rekenprogramma.GekozenProgramma == Programma::Geen)
        administratie_.rekenprogramma.ProgrammaCode = vorige;
}

void frmLedenAdmin::ZoekRekenprogrammaBijStart()
{
    KiesRekenprogramma();
    const Tekst& dataRoot = administratie_.rekenprogramma.DataRoot;
    if (!dataRoot.empty())
        administratie_.DataMap = Samen(dataRoot, "data");
}

void frmLedenAdmin::LeesGroepenBijStart()
{
    const Pad pad = administratie_.mappen.Groepenbestand();
    // The players folder holds the group file too, so it must be there before that file is made.
    const auto map = administratie_.schijf.MaakMap(administratie_.mappen.SPEMAP);
    if (!map)
        MeldMapfout(QStringLiteral("De map van de spelers kon niet worden gemaakt."), map.error());
    const auto gemaakt = MaakGroepenbestand(administratie_.schijf, administratie_.mappen);
    if (map && !gemaakt)
        MeldMapfout(QStringLiteral("Het bestand met de groepsnamen kon niet worden gemaakt of "
                                   "gelezen."),
                    gemaakt.error());
    administratie_.groepen = LeesGroepen(administratie_.schijf, administratie_.mappen);
    const auto& inhoud = administratie_.groepen.bestandstekst;
    if (inhoud && !IsGroepenbestand(*inhoud))
        Meld(this, QMessageBox::Information,
             QStringLiteral("Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn; "
                            "die zijn overgeslagen. Voordat het bestand wordt vervangen, komt er "
                            "een kopie van in de map Reservekopie. Kijk na of de groepsnamen "
                            "kloppen.\n\nBestand: ") +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad)));
    VulGroepen();
}

void frmLedenAdmin::LeesSpelersBijStart()
{
    const auto gemaakt =
        MaakSpelerbestand(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    // A file that cannot be read is told of below.
    if (!gemaakt && !verslag.fout)
        MeldMapfout(QStringLiteral("Het spelerbestand kon niet worden gemaakt."), gemaakt.error());
    MeldLezing(verslag);
}

void frmLedenAdmin::MeldLosseSleutels()
{
    if (administratie_.spelers.HKEY < Sleutelbasis)
        return; // not known
    const auto verslagen = VerslagenMetLosseSleutels(administratie_.schijf, administratie_.mappen,
                                                     administratie_.spelers.HKEY);
    if (verslagen.empty())
        return;
    const bool een = verslagen.size() == 1;
    QString tekst =
        QStringLiteral("In 'Koppelverslag.txt' van %1 staan sleutels die nog niet zijn uitgegeven, "
                       "zoals na een toevoegen dat is afgebroken. Het spelerbestand is niet "
                       "veranderd. Verwijder %2 of voeg de spelers opnieuw toe, anders krijgen "
                       "andere spelers die sleutels.\n")
            .arg(een ? QStringLiteral("een zitting")
                     : QStringLiteral("%1 zittingen").arg(verslagen.size()),
                 een ? QStringLiteral("dat bestand") : QStringLiteral("die bestanden"));
    for (const Pad& pad : verslagen)
        tekst += QStringLiteral("\nBestand: ") +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad));
    MeldLijst(this, QMessageBox::Warning, tekst);
}

void frmLedenAdmin::MeldMapfout(const QString& wat, const Fout& fout)
{
    Meld(this, QMessageBox::Warning,
         wat +
             QStringLiteral(" De gegevens van de spelers zijn niet veranderd. Kijk na of de map in "
                            "'Mappen.ini' bestaat en of u erin mag schrijven.\n\n") +
             Bijzonderheden(fout));
}

/// First the register's own warning, then what it means for the data.
void frmLedenAdmin::MeldLezing(const Leesverslag& verslag)
{
    if (verslag.fout)
        Meld(this, QMessageBox::Warning,
             QStringLiteral("Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"));
    const QString uitleg = WatNietGelezenIs(verslag);
    if (!uitleg.isEmpty())
        Meld(this, QMessageBox::Information,
             uitleg + QStringLiteral("\n\nHet bestand zelf is niet veranderd. Voordat dit "
                                     "programma het de eerste keer vervangt, komt er een kopie "
                                     "van in de map Reservekopie."));
}

QString frmLedenAdmin::WatNietGelezenIs(const Leesverslag& verslag) const
{
    QStringList delen;
    if (verslag.fout) {
        QString deel = QStringLiteral("Het spelerbestand is niet tot het einde gelezen; er staan "
                                      "nu %1 spelers in de tabel.")
                           .arg(administratie_.spelers.tabel.Rijen());
        if (verslag.velden > 0)
            deel += QStringLiteral(" De genoemde regel heeft %1 velden in plaats van %2.")
                        .arg(verslag.velden)
                        .arg(AantalKolommen);
        delen << deel << Bijzonderheden(*verslag.fout);
    }
    if (!verslag.zonderAchternaam.empty())
        delen << QStringLiteral("Spelers zonder achternaam zijn niet ingelezen (aantal: %1, op "
                                "regel %2 van het spelerbestand).")
                     .arg(verslag.zonderAchternaam.size())
                     .arg(Opsomming(verslag.zonderAchternaam));
    if (verslag.zonderSleutelregel)
        delen << QStringLiteral("In het spelerbestand ontbreekt de regel HKEY= met de hoogste "
                                "spelersleutel. Nieuwe spelers krijgen daardoor een sleutel vanaf "
                                "100001, die al van een andere speler kan zijn. Voeg geen spelers "
                                "toe voordat die regel is hersteld.");
    return delen.join(QStringLiteral("\n\n"));
}

} // namespace plexoran
