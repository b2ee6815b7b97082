#include "mainwindow/frmLedenAdmin_opstart.h"

#include <algorithm>

#include "dialogs/toevoegen.h"
#include "federation/diaRekProgkeus.h"
#include "federation/zoekrekenprogramma.h"
#include "mainwindow/frmLedenAdmin_opslag.h"
#include "pairs/parenbestand.h"
#include "pairs/parencsv.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/heelschrijven.h"
#include "register/reservekopie.h"

namespace plexoran {

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

Startafloop Opstart::Lees(const Pad& mappenIni)
{
    if (!LeesMappen(mappenIni))
        return Startafloop::Mislukt;
    MaakLedenmap();
    RuimRestenOp();
    LeesInstellingenbestand();
    ZoekDataMap();
    LeesGroepsnamen();
    const bool bewaren = LeesRegister();
    MeldLosseSleutels();
    return bewaren ? Startafloop::TeBewaren : Startafloop::Gelezen;
}

bool Opstart::LeesMappen(const Pad& mappenIni)
{
    auto mappen = LeesMappenIni(administratie_.schijf, mappenIni);
    if (!mappen) {
        const QString wat =
            mappen.error().soort == Foutsoort::Beschadigd
                ? u"Het bestand 'Mappen.ini' noemt de map van de spelers niet: er staat geen map "
                  "achter SPEMAP=."_s
                : u"Het bestand 'Mappen.ini' kan niet worden gelezen."_s;
        MeldFout(
            venster_, QMessageBox::Critical,
            wat + u" Uw gegevens zijn niet veranderd, maar zonder dat bestand weet dit programma "
                  "niet waar ze staan. Zet het goede bestand op deze plaats, of start Plexoran "
                  "met --mappen en de naam van het bestand."_s,
            mappen.error());
        return false;
    }
    administratie_.mappen = std::move(*mappen);
    if (const std::string& bezwaar = administratie_.mappen.bezwaar; !bezwaar.empty())
        Meld(venster_, QMessageBox::Warning,
             u"Misschien zijn niet alle regels van 'Mappen.ini' gelezen: %1. Er is niets aan uw "
             "gegevens veranderd. Sla dat bestand in een tekstprogramma op als ANSI (Windows-1252) "
             "en start Plexoran opnieuw.\n\nBestand: %2"_s.arg(QString::fromStdString(bezwaar),
                                                               Toonpad(mappenIni)));
    return true;
}

void Opstart::MaakLedenmap()
{
    const Mappen& mappen = administratie_.mappen;
    const QString wat =
        u"De map voor de ledenbestanden van de bond (NBB4-Leden) kon niet worden gemaakt."_s;
    if (mappen.WINMAP.empty()) {
        Meld(venster_, QMessageBox::Warning,
             wat + u" Er staat geen map achter WINMAP= in 'Mappen.ini'; de gegevens van de spelers "
                   "zijn niet in gevaar. Vul die map in en start Plexoran opnieuw."_s);
        return;
    }
    const auto map = administratie_.schijf.MaakMap(mappen.Ledenmap());
    if (!map)
        MeldMapfout(wat, map.error());
}

/// What a program that was killed while saving may have left beside the files.
void Opstart::RuimRestenOp()
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

void Opstart::LeesInstellingenbestand()
{
    administratie_.instellingen = LeesInstellingen(administratie_.schijf, administratie_.mappen);
    const Pad pad = administratie_.mappen.Instellingenbestand();
    const auto inhoud = administratie_.schijf.LeesBestand(pad);
    if (inhoud && !IsInstellingenbestand(*inhoud))
        Meld(venster_, QMessageBox::Information,
             u"Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit programma. "
             "Voordat het wordt vervangen, komt er een kopie van in de map Reservekopie. U hoeft "
             "niets te doen.\n\nBestand: "_s +
                 Toonpad(pad));
}

void Opstart::ZoekDataMap()
{
    KiesRekenprogramma(administratie_, venster_);
    const Tekst& dataRoot = administratie_.rekenprogramma.DataRoot;
    if (!dataRoot.empty())
        administratie_.DataMap = Samen(dataRoot, "data");
}

void Opstart::LeesGroepsnamen()
{
    const Pad pad = administratie_.mappen.Groepenbestand();
    // The players folder holds the group file too, so it must be there before that file is made.
    const auto map = administratie_.schijf.MaakMap(administratie_.mappen.SPEMAP);
    if (!map)
        MeldMapfout(u"De map van de spelers kon niet worden gemaakt."_s, map.error());
    const auto aanmaak = MaakGroepenbestand(administratie_.schijf, administratie_.mappen);
    const QString wat = u"Het bestand met de groepsnamen"_s;
    BiedTerugzettenAan(aanmaak, pad, wat);
    if (map && !IsGemaakt(aanmaak, wat))
        MeldMapfout(wat + u" kon niet worden gemaakt of gelezen."_s, aanmaak.gemaakt.error());
    administratie_.groepen = LeesGroepen(administratie_.schijf, administratie_.mappen);
    const auto& inhoud = administratie_.groepen.bestandstekst;
    if (inhoud && !IsGroepenbestand(*inhoud))
        Meld(venster_, QMessageBox::Information,
             u"Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn; die zijn "
             "overgeslagen. Voordat het bestand wordt vervangen, komt er een kopie van in de map "
             "Reservekopie. Kijk na of de groepsnamen kloppen.\n\nBestand: "_s +
                 Toonpad(pad));
}

/// Whether the register is to be saved, because the highest key was raised. Not when players were
/// left out: then the new key goes along with the first change.
bool Opstart::LeesRegister()
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
    MeldLezing(venster_, administratie_.spelers.tabel, verslag, Leesmoment::Start);
    const std::int32_t hoogste =
        std::max(HoogsteSleutel(administratie_.spelers.tabel), verslag.hoogsteWeggelaten);
    return VraagHogereSleutel(hoogste) && verslag.AlleSpelersGelezen();
}

/// The highest key issued is never raised without this answer.
bool Opstart::VraagHogereSleutel(std::int32_t hoogste)
{
    std::int32_t& HKEY = administratie_.spelers.HKEY;
    const std::int32_t geldt = std::max(HKEY, Sleutelbasis);
    if (hoogste <= geldt)
        return false;
    const int antwoord = Kies(
        venster_, QMessageBox::Warning,
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

/// A file that was made anew although it held something.
void Opstart::BiedTerugzettenAan(const Aanmaak& aanmaak, const Pad& pad, const QString& wat)
{
    if (!StaatOpSchijf(aanmaak.gemaakt) || aanmaak.inhoud.empty())
        return;
    const QString kopie = u"\n\nKopie: "_s + Toonpad(aanmaak.kopie);
    int antwoord = Kies(
        venster_, QMessageBox::Warning,
        wat +
            u" begon met een lege regel of een leeg gegeven en is daarom vervangen door een "
            "nieuw, leeg bestand. Wat erin stond, staat heel in een kopie. Zet het terug zonder "
            "dat lege begin, tenzij u met een leeg bestand wilt beginnen."_s +
            kopie,
        {u"Leeg beginnen"_s, u"Terugzetten"_s}, 1);
    while (antwoord == 1) {
        const auto terug =
            ZetTerug(administratie_.schijf, administratie_.mappen.SPEMAP, pad, aanmaak);
        if (StaatEr(venster_, terug))
            return;
        antwoord = Kies(
            venster_, QMessageBox::Critical,
            wat +
                u" kon niet worden teruggezet en is nu leeg. Wat erin stond, staat heel in een "
                "kopie. Verhelp de oorzaak en probeer het opnieuw, of zet de kopie zelf terug "
                "voordat u iets invoert."_s +
                kopie + u'\n' + Bijzonderheden(terug.error()),
            {u"Doorgaan"_s, u"Opnieuw proberen"_s}, 1);
    }
}

/// Also when a file stands there that should have been made anew; the user is told of that one.
bool Opstart::IsGemaakt(const Aanmaak& aanmaak, const QString& wat)
{
    if (aanmaak.inhoud.empty() || StaatOpSchijf(aanmaak.gemaakt))
        return StaatEr(venster_, aanmaak.gemaakt);
    MeldFout(
        venster_, QMessageBox::Warning,
        wat + u" begint met een lege regel of een leeg gegeven en moest daarom worden vervangen, "
              "na een kopie. Dat is mislukt; het bestand is gebleven zoals het was. Kijk na of u "
              "in de map mag schrijven, of haal het lege begin weg met een tekstprogramma."_s,
        aanmaak.gemaakt.error());
    return true;
}

void Opstart::MeldLosseSleutels()
{
    if (administratie_.spelers.HKEY < Sleutelbasis)
        return; // not known
    const auto verslagen = VerslagenMetLosseSleutels(administratie_.schijf, administratie_.mappen,
                                                     administratie_.spelers.HKEY);
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
        tekst += u"\nBestand: "_s + Toonpad(pad);
    MeldLijst(venster_, QMessageBox::Warning, tekst);
}

void Opstart::MeldMapfout(const QString& wat, const Fout& fout)
{
    MeldFout(venster_, QMessageBox::Warning,
             wat + u" De gegevens van de spelers zijn niet veranderd. Kijk na of de map in "
                   "'Mappen.ini' bestaat en of u erin mag schrijven."_s,
             fout);
}

QString Opstart::Toonpad(const Pad& pad) const
{
    return QString::fromStdString(administratie_.schijf.Toonpad(pad));
}

} // namespace plexoran
