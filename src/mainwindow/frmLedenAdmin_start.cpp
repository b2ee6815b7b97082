// The start-up of the main window, in its fixed order.
#include "federation/diaRekProgkeus.h"
#include "federation/zoekrekenprogramma.h"
#include "mainwindow/frmLedenAdmin.h"
#include "pairs/parenbestand.h"
#include "pairs/parencsv.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/heelschrijven.h"
#include "register/reservekopie.h"

namespace plexoran {

std::optional<int> frmLedenAdmin::Laad(const Opstart& opstart)
{
    eersteExemplaar_ = opstart.eersteExemplaar;
    if (!eersteExemplaar_()) {
        Meld(nullptr, QMessageBox::Information, u"Het programma is al gestart!..."_s);
        return 0;
    }
    lblToel->setText(
        u"Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\nBij het "
        "opzetten van de zitting moet u kiezen uit deze spelers."_s);

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
    const bool opslaan = LeesSpelersBijStart();
    MeldLosseSleutels();

    const int laatste = administratie_.instellingen.LOSTGR;
    KiesGroep(laatste >= 0 && laatste < AantalGroepen ? laatste : 0);
    if (opslaan) { // not before: a display keeps the place of its group
        (void)SlaOp();
        ToonGroep();
    }
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
        if (const std::string& bezwaar = administratie_.mappen.bezwaar; !bezwaar.empty())
            Meld(nullptr, QMessageBox::Warning,
                 u"Misschien zijn niet alle regels van 'Mappen.ini' gelezen: %1. Er is niets aan "
                 "uw gegevens veranderd. Sla dat bestand in een tekstprogramma op als ANSI "
                 "(Windows-1252) en start Plexoran opnieuw.\n\nBestand: %2"_s.arg(
                     QString::fromStdString(bezwaar),
                     QString::fromStdString(administratie_.schijf.Toonpad(mappenIni))));
        return true;
    }
    const Fout& fout = mappen.error();
    const QString wat =
        fout.soort == Foutsoort::Beschadigd
            ? u"Het bestand 'Mappen.ini' noemt de map van de spelers niet: er staat geen map "
              "achter SPEMAP=."_s
            : u"Het bestand 'Mappen.ini' kan niet worden gelezen."_s;
    Meld(nullptr, QMessageBox::Critical,
         wat +
             u" Uw gegevens zijn niet veranderd, maar zonder dat bestand weet dit programma niet "
             "waar ze staan. Zet het goede bestand op deze plaats, of start Plexoran met --mappen "
             "en de naam van het bestand.\n\n"_s +
             Bijzonderheden(fout));
    return false;
}

void frmLedenAdmin::MaakLedenmapBijStart()
{
    const Mappen& mappen = administratie_.mappen;
    const QString wat =
        u"De map voor de ledenbestanden van de bond (NBB4-Leden) kon niet worden gemaakt."_s;
    if (mappen.WINMAP.empty()) {
        Meld(this, QMessageBox::Warning,
             wat + u" Er staat geen map achter WINMAP= in 'Mappen.ini'; de gegevens van de spelers "
                   "zijn niet in gevaar. Vul die map in en start Plexoran opnieuw."_s);
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
             u"Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit programma. "
             "Voordat het wordt vervangen, komt er een kopie van in de map Reservekopie. U hoeft "
             "niets te doen.\n\nBestand: "_s +
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
        MeldMapfout(u"De map van de spelers kon niet worden gemaakt."_s, map.error());
    const auto aanmaak = MaakGroepenbestand(administratie_.schijf, administratie_.mappen);
    const QString wat = u"Het bestand met de groepsnamen"_s;
    BiedTerugzettenAan(aanmaak, pad, wat);
    if (map && !IsGemaakt(aanmaak, wat))
        MeldMapfout(wat + u" kon niet worden gemaakt of gelezen."_s, aanmaak.gemaakt.error());
    administratie_.groepen = LeesGroepen(administratie_.schijf, administratie_.mappen);
    const auto& inhoud = administratie_.groepen.bestandstekst;
    if (inhoud && !IsGroepenbestand(*inhoud))
        Meld(this, QMessageBox::Information,
             u"Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn; die zijn "
             "overgeslagen. Voordat het bestand wordt vervangen, komt er een kopie van in de map "
             "Reservekopie. Kijk na of de groepsnamen kloppen.\n\nBestand: "_s +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad)));
    VulGroepen();
}

/// A file that was made anew although it held something.
void frmLedenAdmin::BiedTerugzettenAan(const Aanmaak& aanmaak, const Pad& pad, const QString& wat)
{
    if (!StaatOpSchijf(aanmaak.gemaakt) || aanmaak.inhoud.empty())
        return;
    const QString kopie =
        u"\n\nKopie: "_s + QString::fromStdString(administratie_.schijf.Toonpad(aanmaak.kopie));
    int antwoord = Kies(
        this, QMessageBox::Warning,
        wat +
            u" begon met een lege regel of een leeg gegeven en is daarom vervangen door een "
            "nieuw, leeg bestand. Wat erin stond, staat heel in een kopie. Zet het terug zonder "
            "dat lege begin, tenzij u met een leeg bestand wilt beginnen."_s +
            kopie,
        {u"Leeg beginnen"_s, u"Terugzetten"_s}, 1);
    while (antwoord == 1) {
        const auto terug =
            ZetTerug(administratie_.schijf, administratie_.mappen.SPEMAP, pad, aanmaak);
        if (StaatEr(this, terug))
            return;
        antwoord = Kies(
            this, QMessageBox::Critical,
            wat +
                u" kon niet worden teruggezet en is nu leeg. Wat erin stond, staat heel in een "
                "kopie. Verhelp de oorzaak en probeer het opnieuw, of zet de kopie zelf terug "
                "voordat u iets invoert."_s +
                kopie + u'\n' + Bijzonderheden(terug.error()),
            {u"Doorgaan"_s, u"Opnieuw proberen"_s}, 1);
    }
}

/// Also when a file stands there that should have been made anew; the user is told of that one.
bool frmLedenAdmin::IsGemaakt(const Aanmaak& aanmaak, const QString& wat)
{
    if (aanmaak.inhoud.empty() || StaatOpSchijf(aanmaak.gemaakt))
        return StaatEr(this, aanmaak.gemaakt);
    Meld(this, QMessageBox::Warning,
         wat +
             u" begint met een lege regel of een leeg gegeven en moest daarom worden vervangen, na "
             "een kopie. Dat is mislukt; het bestand is gebleven zoals het was. Kijk na of u in de "
             "map mag schrijven, of haal het lege begin weg met een tekstprogramma.\n\n"_s +
             Bijzonderheden(aanmaak.gemaakt.error()));
    return true;
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
        u"In 'Koppelverslag.txt' van %1 staan sleutels die andere spelers nog kunnen krijgen, "
        "zoals na een toevoegen dat is afgebroken. Het spelerbestand is niet veranderd. Verwijder "
        "%2 of voeg de spelers opnieuw toe; hebt u een oud spelerbestand teruggezet, verhoog dan "
        "het getal achter HKEY=.\n"_s.arg(een ? u"een zitting"_s
                                              : u"%1 zittingen"_s.arg(verslagen.size()),
                                          een ? u"dat bestand"_s : u"die bestanden"_s);
    for (const Pad& pad : verslagen)
        tekst += u"\nBestand: "_s + QString::fromStdString(administratie_.schijf.Toonpad(pad));
    MeldLijst(this, QMessageBox::Warning, tekst);
}

void frmLedenAdmin::MeldMapfout(const QString& wat, const Fout& fout)
{
    Meld(this, QMessageBox::Warning,
         wat +
             u" De gegevens van de spelers zijn niet veranderd. Kijk na of de map in 'Mappen.ini' "
             "bestaat en of u erin mag schrijven.\n\n"_s +
             Bijzonderheden(fout));
}

} // namespace plexoran
