#include "mainwindow/frmLedenAdmin_opstart.h"

#include <algorithm>

#include "dialogs/toevoegen.h"
#include "federation/diaRekProgkeus.h"
#include "federation/zoekrekenprogramma.h"
#include "mainwindow/frmEersteStart.h"
#include "mainwindow/frmLedenAdmin_opslag.h"
#include "pairs/parenbestand.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/programma.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

void MeldMapfout(QWidget* venster, const QString& wat, const Fout& fout)
{
    MeldFout(venster, QMessageBox::Warning,
             wat + u" De gegevens van de spelers zijn niet veranderd. Kijk na of de map in "
                   "'Mappen.ini' bestaat en of u erin mag schrijven."_s,
             fout);
}

/// Of a file that stands there and should have been made anew, the user is told so.
void MeldAanmaak(QWidget* venster, const Aanmaak& aanmaak, const QString& wat,
                 const QString& mislukt)
{
    if (aanmaak.inhoud.empty() || StaatOpSchijf(aanmaak.gemaakt)) {
        if (!StaatEr(venster, aanmaak.gemaakt))
            MeldMapfout(venster, wat + mislukt, aanmaak.gemaakt.error());
        return;
    }
    MeldFout(
        venster, QMessageBox::Warning,
        wat + u" begint met een lege regel of een leeg gegeven en moest daarom worden vervangen, "
              "na een kopie. Dat is mislukt; het bestand is gebleven zoals het was. Kijk na of u "
              "in de map mag schrijven, of haal het lege begin weg met een tekstprogramma."_s,
        aanmaak.gemaakt.error());
}

/// A file that was made anew although it held something.
void BiedTerugzettenAan(Administratie& administratie, QWidget* venster, const Aanmaak& aanmaak,
                        const Pad& pad, const QString& wat)
{
    if (!StaatOpSchijf(aanmaak.gemaakt) || aanmaak.inhoud.empty())
        return;
    const QString kopie = u"\n\nKopie: "_s + Toonpad(administratie.schijf, aanmaak.kopie);
    int antwoord = Kies(
        venster, QMessageBox::Warning,
        wat +
            u" begon met een lege regel of een leeg gegeven en is daarom vervangen door een "
            "nieuw, leeg bestand. Wat erin stond, staat heel in een kopie. Zet het terug zonder "
            "dat lege begin, tenzij u met een leeg bestand wilt beginnen."_s +
            kopie,
        {u"Leeg beginnen"_s, u"Terugzetten"_s}, 1);
    while (antwoord == 1) {
        const auto terug =
            ZetTerug(administratie.schijf, administratie.mappen.SPEMAP, pad, aanmaak);
        if (StaatEr(venster, terug))
            return;
        antwoord = Kies(
            venster, QMessageBox::Critical,
            wat +
                u" kon niet worden teruggezet en is nu leeg. Wat erin stond, staat heel in een "
                "kopie. Verhelp de oorzaak en probeer het opnieuw, of zet de kopie zelf terug "
                "voordat u iets invoert."_s +
                kopie + u'\n' + Bijzonderheden(terug.error()),
            {u"Doorgaan"_s, u"Opnieuw proberen"_s}, 1);
    }
}

bool BiedEersteStartAan(Administratie& administratie, QWidget* venster)
{
    if (!MagKiezen(administratie))
        return false;
    frmEersteStart keus(administratie.schijf, *administratie.eersteStart, venster);
    return keus.exec() == QDialog::Accepted && LeesMappen(administratie, venster, keus.MappenIni());
}

void MaakLedenmap(Administratie& administratie, QWidget* venster)
{
    const Mappen& mappen = administratie.mappen;
    const QString wat =
        u"De map voor de ledenbestanden van de bond (NBB4-Leden) kon niet worden gemaakt."_s;
    if (mappen.WINMAP.empty()) {
        Meld(venster, QMessageBox::Warning,
             wat + u" Er staat geen map achter WINMAP= in 'Mappen.ini'; de gegevens van de spelers "
                   "zijn niet in gevaar. Vul die map in en start Plexoran opnieuw."_s);
        return;
    }
    const auto map = administratie.schijf.MaakMap(mappen.Ledenmap());
    if (!map)
        MeldMapfout(venster, wat, map.error());
}

/// What a program that was killed while saving may have left beside the files.
void RuimRestenOp(Administratie& administratie)
{
    const Mappen& mappen = administratie.mappen;
    for (const auto& [map, naam] : std::initializer_list<std::pair<Pad, const char*>>{
             {mappen.SPEMAP, "RVDspelers.txt"},
             {mappen.SPEMAP, "RVDGroepen.txt"},
             {Kopiemap(mappen.SPEMAP), "RVDspelers.txt"},
             {mappen.Parenmap(), "RVDparen.txt"},
             {mappen.ADMMAP, "Plexo.ini"},
             {mappen.RVDMAP.empty() ? Pad() : ParenCSVMap(mappen), "RVDparenCSV1.csv"},
             {administratie.programmamap, "Temp-NBBXMLtoCSV.csv"}})
        RuimTijdelijkeOp(administratie.schijf, map, naam);
}

void LeesInstellingenbestand(Administratie& administratie, QWidget* venster)
{
    administratie.instellingen = LeesInstellingen(administratie.schijf, administratie.mappen);
    if (administratie.mappen.ADMMAP.empty())
        return;
    const Pad pad = administratie.mappen.Instellingenbestand();
    const auto inhoud = administratie.schijf.LeesBestand(pad);
    if (inhoud && !IsInstellingenbestand(*inhoud))
        Meld(venster, QMessageBox::Information,
             u"Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit programma. "
             "Voordat het wordt vervangen, komt er een kopie van in de map Reservekopie. U hoeft "
             "niets te doen.\n\nBestand: "_s +
                 Toonpad(administratie.schijf, pad));
}

void ZoekDataMap(Administratie& administratie, QWidget* venster)
{
    KiesRekenprogramma(administratie, venster);
    const Tekst& dataRoot = administratie.rekenprogramma.DataRoot;
    if (!dataRoot.empty())
        administratie.DataMap = Samen(dataRoot, "data");
}

void MaakGroepsnamen(Administratie& administratie, QWidget* venster)
{
    const Pad pad = administratie.mappen.Groepenbestand();
    // The players folder holds the group file too, so it must be there before that file is made.
    const auto map = administratie.schijf.MaakMap(administratie.mappen.SPEMAP);
    if (!map)
        MeldMapfout(venster, u"De map van de spelers kon niet worden gemaakt."_s, map.error());
    const auto aanmaak = MaakGroepenbestand(administratie.schijf, administratie.mappen);
    const QString wat = u"Het bestand met de groepsnamen"_s;
    BiedTerugzettenAan(administratie, venster, aanmaak, pad, wat);
    if (map)
        MeldAanmaak(venster, aanmaak, wat, u" kon niet worden gemaakt of gelezen."_s);
}

void LeesGroepsnamen(Administratie& administratie, QWidget* venster)
{
    administratie.groepen = LeesGroepen(administratie.schijf, administratie.mappen);
    const auto& inhoud = administratie.groepen.bestandstekst;
    if (inhoud && !IsGroepenbestand(*inhoud))
        Meld(venster, QMessageBox::Information,
             u"Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn; die zijn "
             "overgeslagen. Voordat het bestand wordt vervangen, komt er een kopie van in de map "
             "Reservekopie. Kijk na of de groepsnamen kloppen.\n\nBestand: "_s +
                 Toonpad(administratie.schijf, administratie.mappen.Groepenbestand()));
}

/// The highest key issued is never raised without this answer.
bool VraagHogereSleutel(Administratie& administratie, QWidget* venster, std::int32_t hoogste)
{
    std::int32_t& HKEY = administratie.spelers.HKEY;
    const std::int32_t geldt = std::max(HKEY, Sleutelbasis);
    if (hoogste <= geldt)
        return false;
    const int antwoord = Kies(
        venster, QMessageBox::Warning,
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

/// What the start made of the register.
struct Registerstart {
    bool teBewaren;  ///< the highest key was raised; not when players were left out: then the new
                     ///< key goes along with the first change
    bool geschonden; ///< it was read, but not to its end, or holds no players
};

Registerstart LeesRegister(Administratie& administratie, QWidget* venster, bool alleenKijken)
{
    const auto aanmaak =
        alleenKijken
            ? Aanmaak()
            : MaakSpelerbestand(administratie.schijf, administratie.mappen, administratie.spelers);
    const QString wat = u"Het spelerbestand"_s;
    BiedTerugzettenAan(administratie, venster, aanmaak, administratie.mappen.Spelerbestand(), wat);
    const Leesverslag verslag =
        LeesSpelers(administratie.schijf, administratie.mappen, administratie.spelers);
    // A file that cannot be read is told of below.
    if (!verslag.fout)
        MeldAanmaak(venster, aanmaak, wat, u" kon niet worden gemaakt."_s);
    MeldLezing(venster, administratie.spelers.tabel, verslag, Leesmoment::Start);
    const std::int32_t hoogste =
        std::max(HoogsteSleutel(administratie.spelers.tabel), verslag.hoogsteWeggelaten);
    return {!alleenKijken && VraagHogereSleutel(administratie, venster, hoogste) &&
                verslag.AlleSpelersGelezen(),
            !verslag.NietGeopend() && (verslag.fout || administratie.spelers.tabel.Rijen() == 0)};
}

void MeldLosseSleutels(Administratie& administratie, QWidget* venster)
{
    if (administratie.spelers.HKEY < Sleutelbasis)
        return; // not known
    const auto verslagen = VerslagenMetLosseSleutels(administratie.schijf, administratie.mappen,
                                                     administratie.spelers.HKEY);
    if (verslagen.empty())
        return;
    const bool een = verslagen.size() == 1;
    QString tekst =
        u"In 'Koppelverslag.txt' van %1 staan sleutels die andere spelers nog kunnen krijgen, "
        "zoals na een toevoegen dat is afgebroken. Het spelerbestand is niet veranderd. Verwijder "
        "%2 of voeg de spelers opnieuw toe; hebt u een oud spelerbestand teruggezet, verhoog dan "
        "het getal achter HKEY=.\n"_s.arg(een ? u"een zitting"_s
                                              : u"%1 zittingen"_s.arg(verslagen.size()),
                                          een ? u"dat bestand"_s : u"die bestanden"_s);
    for (const Pad& pad : verslagen)
        tekst += u"\nBestand: "_s + Toonpad(administratie.schijf, pad);
    MeldLijst(venster, QMessageBox::Warning, tekst);
}

} // namespace

void KiesRekenprogramma(Administratie& administratie, QWidget* venster)
{
    const Tekst vorige = administratie.rekenprogramma.ProgrammaCode;
    administratie.rekenprogramma = ZoekRekenprogramma(administratie.winkel, [venster] {
        diaRekProgkeus keus(venster);
        keus.exec();
        return keus.Antwoord();
    });
    if (administratie.rekenprogramma.GekozenProgramma == Programma::Geen)
        administratie.rekenprogramma.ProgrammaCode = vorige;
}

bool MagKiezen(const Administratie& administratie)
{
    return administratie.eersteStart &&
           administratie.schijf.Soort(MappenIniPad(administratie.programmamap)) == Padsoort::Niets;
}

bool LeesMappen(Administratie& administratie, QWidget* venster, const Pad& mappenIni)
{
    auto mappen = LeesMappenIni(administratie.schijf, mappenIni);
    if (!mappen) {
        const QString wat =
            mappen.error().soort == Foutsoort::Beschadigd
                ? u"Het bestand 'Mappen.ini' noemt de map van de spelers niet: er staat geen map "
                  "achter SPEMAP=."_s
                : u"Het bestand 'Mappen.ini' kan niet worden gelezen."_s;
        MeldFout(
            venster, QMessageBox::Critical,
            wat + u" Uw gegevens zijn niet veranderd, maar zonder dat bestand weet dit programma "
                  "niet waar ze staan. Zet het goede bestand op deze plaats, of start Plexoran "
                  "met --mappen en de naam van het bestand."_s,
            mappen.error());
        return BiedEersteStartAan(administratie, venster);
    }
    administratie.mappen = std::move(*mappen);
    if (const std::string& bezwaar = administratie.mappen.bezwaar; !bezwaar.empty())
        Meld(venster, QMessageBox::Warning,
             u"Misschien zijn niet alle regels van 'Mappen.ini' gelezen: %1. Er is niets aan uw "
             "gegevens veranderd. Sla dat bestand in een tekstprogramma op als ANSI (Windows-1252) "
             "en start Plexoran opnieuw.\n\nBestand: %2"_s.arg(
                 QString::fromStdString(bezwaar), Toonpad(administratie.schijf, mappenIni)));
    return true;
}

bool LeesBijStart(Administratie& administratie, QWidget* venster, bool alleenKijken)
{
    if (!alleenKijken) {
        MaakLedenmap(administratie, venster);
        RuimRestenOp(administratie);
    }
    LeesInstellingenbestand(administratie, venster);
    ZoekDataMap(administratie, venster);
    if (!alleenKijken)
        MaakGroepsnamen(administratie, venster);
    LeesGroepsnamen(administratie, venster);
    const auto [teBewaren, geschonden] = LeesRegister(administratie, venster, alleenKijken);
    MeldLosseSleutels(administratie, venster);
    if (alleenKijken)
        return false;
    // What the start makes or puts back so far was no command of the user.
    administratie.geschiedenis.Open(administratie.mappen, Computernaam(), Gebruikersnaam());
    return (geschonden && BiedReservesAan(administratie, venster)) || teBewaren;
}

} // namespace plexoran
