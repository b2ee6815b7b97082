#include "afbeeldingen/vensterronde.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <numeric>

#include "controle/frmControle.h"
#include "controle/frmDubbelen.h"
#include "dialogs/diaGrNamen.h"
#include "dialogs/diaIngave.h"
#include "dialogs/diaKopieer.h"
#include "dialogs/diaSortlijst.h"
#include "dialogs/diaToevoegen.h"
#include "dialogs/diaVerplaats.h"
#include "dialogs/frmTerugzetten.h"
#include "dialogs/frmVeld.h"
#include "dialogs/frmVergelijk.h"
#include "dialogs/frmVerwSubgroep.h"
#include "exchange/frmEtiketten.h"
#include "exchange/frmExport.h"
#include "exchange/frmLijstImport.h"
#include "exchange/frmMail.h"
#include "federation/diaControleNBB.h"
#include "federation/diaRekProgkeus.h"
#include "federation/frmImportNBB.h"
#include "federation/frmVoorbeeld.h"
#include "help/frmHandleiding.h"
#include "help/frmToelichting.h"
#include "mainwindow/frmEersteStart.h"
#include "mainwindow/frmGeschiedenis.h"
#include "mainwindow/frmLedenAdmin.h"
#include "mainwindow/frmOverzicht.h"
#include "mainwindow/frmToetsen.h"
#include "mainwindow/lijsten.h"
#include "pairs/frmParenOnderhoud.h"
#include "platform/scherm/tekstbrug.h"
#include "printing/frmAfdrukken.h"
#include "printing/frmPrintIni.h"
#include "sessions/frmKoppelNBBnr.h"

namespace plexoran {
namespace {

/// A player of the shown group, so that the fields have something to show.
Ingave Voorbeeldingave(const Administratie& administratie)
{
    const int groep = administratie.instellingen.LOSTGR + 1;
    const Tekst code = Groepscode(groep);
    Ingave ingave;
    ingave.groeptekst = administratie.groepen.Toontekst(groep);
    ingave.importgroep = code == administratie.mappen.DFIMPG;
    const Spelertabel& tabel = administratie.spelers.tabel;
    for (int rij = 1; rij <= tabel.Rijen() && ingave.rij == 0; ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == code) {
            ingave.rij = rij;
            ingave.IngaveVelden = tabel.Velden(rij);
        }
    }
    return ingave;
}

using Bezoek = std::function<void(QWidget&)>;

/// A window that lives for the visit alone.
void Neem(const Bezoek& bezoek, QWidget&& venster)
{
    bezoek(venster);
}

void NeemSorteerlijst(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster, const Spelertabel& tabel)
{
    const auto lijst = VulSorteerlijst(tabel, Sorteersoort::NBBgroep, std::nullopt);
    if (!lijst)
        return;
    Neem(bezoek, diaSortlijst({.soort = Sorteersoort::NBBgroep,
                               .importgroep = false,
                               .regels = static_cast<int>(lijst->size()),
                               .regel =
                                   [&](int regel) {
                                       return VeldenVan((*lijst)[static_cast<std::size_t>(regel)],
                                                        Sorteersoort::NBBgroep);
                                   }},
                              &hoofdvenster));
}

/// A player with another number and town, and one whom one side deleted.
void NeemVergelijking(const Bezoek& bezoek, QWidget& hoofdvenster, const Spelertabel& tabel)
{
    if (tabel.Rijen() < 2)
        return;
    Rijvelden anders = tabel.Velden(1);
    anders[Index(Kolom::Telef)] = "06-00000999";
    anders[Index(Kolom::Plaats)] = "Oud-Merwolde aan de Lange Vaart";
    Neem(bezoek,
         frmVergelijk(
             {u"Ook door een ander programma gewijzigd"_s,
              u"Een ander programma heeft deze spelers intussen ook gewijzigd. "
              "Kies per speler wat in het spelerbestand komt. Waar u niets kiest, "
              "komt te staan wat het andere programma ervan maakte; zoals het hier "
              "was, komt het dan in een kopie."_s,
              u"Hier"_s, u"Ander programma"_s},
             {{"100001", tabel.Velden(1), anders}, {"100002", std::nullopt, tabel.Velden(2)}},
             "Gr05-", &hoofdvenster));
}

/// Backups of the suite, and a register in which a player came, one changed and one went since.
void NeemTerugzetten(const Bezoek& bezoek, QWidget& hoofdvenster, Administratie& administratie)
{
    const Register zoalsHetWas = administratie.spelers;
    Register& spelers = administratie.spelers;
    administratie.tweedeplaatsIni = Samen(administratie.mappen.ADMMAP, "reservekopie.ini");
    if (spelers.tabel.Rijen() < 3)
        return;
    for (const char* reden : {"voor eerste wijziging", "voor koppelen", "voor import"}) {
        if (!MaakReservezip(administratie.schijf, administratie.mappen, reden))
            return;
    }
    spelers.tabel.ZetCel(1, Kolom::Telef, "06-00000999");
    spelers.tabel.ZetCel(1, Kolom::Plaats, "Oud-Merwolde aan de Lange Vaart");
    spelers.tabel.VerwijderRijen(std::vector{2});
    static_cast<void>(
        VoegSpelerToe(spelers, "Gr01-", Rijvelden{"", "", "", "Roos", "van", "Nieuwland"}));
    frmTerugzetten venster(administratie, &hoofdvenster);
    if (auto* lijst = venster.findChild<QTreeWidget*>(u"lstVerschillen"_s)) {
        lijst->expandAll();
        lijst->topLevelItem(0)->setCheckState(0, Qt::Checked);
    }
    bezoek(venster);
    spelers = zoalsHetWas;
}

/// The main window with what was found in it.
void NeemZoeken(const Bezoek& bezoek, QWidget& hoofdvenster)
{
    auto* vak = hoofdvenster.findChild<QLineEdit*>(u"txtZoek"_s);
    vak->setText(u"jan 06"_s);
    bezoek(hoofdvenster);
    vak->clear();
}

/// The sample exports, where the suite has them.
void NeemControle(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster, Administratie& administratie)
{
    Ledenopdracht opdracht;
    opdracht.map = administratie.mappen.Ledenmap();
    std::vector<Tekst> namen;
    if (auto bestanden = administratie.schijf.Bestanden(opdracht.map)) {
        for (const Tekst& naam : *bestanden) {
            if (Hoofdletters(naam).ends_with(".CSV"))
                namen.push_back(naam);
        }
    }
    std::sort(namen.begin(), namen.end());
    if (namen.empty())
        return;
    diaControleNBB venster(administratie, opdracht, namen, &hoofdvenster);
    bezoek(venster);
}

/// A member file in which somebody is new, somebody else moved and bears another name, one has no
/// number and one came twice.
void NeemVoorbeeld(const Bezoek& bezoek, QWidget& hoofdvenster, const Administratie& administratie)
{
    const Spelertabel& tabel = administratie.spelers.tabel;
    std::vector<Tekst> regels{"Eva,van,Nieuwland,Lindelaan 3,0411 AB,Wielerdam,06-00000771,"
                              "eva@thuispost.example,Nederland,V,771",
                              "Gonnie,,Gastvrouw,Brink 2,,Wielerdam,,,,V,",
                              "Eva,van,Nieuwland,,,,,,,V,771"};
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::NBBgr) != "MAANDAG" || regels.size() == 9)
            continue;
        Tekst regel = regels.size() == 4 ? "Roos" : Tekst(tabel.Cel(rij, Kolom::Voornaam));
        for (const Kolom kolom :
             {Kolom::Tusv, Kolom::Achternaam, Kolom::Adres, Kolom::Postc, Kolom::Plaats,
              Kolom::Telef, Kolom::Email, Kolom::Land, Kolom::MV, Kolom::NBBnr})
            regel.append(",").append(regels.size() == 4 && kolom == Kolom::Achternaam ? "Zeldenrust"
                                     : regels.size() == 5 && kolom == Kolom::Adres
                                         ? "Nieuwe Singel 8"
                                         : tabel.Cel(rij, kolom));
        regels.push_back(regel);
    }
    const Ledenlezing lezing;
    auto voorbeeld =
        Voorbeeld::Maak(tabel, {administratie.mappen.DFIMPG, "Maandag", std::move(regels)}, lezing);
    frmVoorbeeld venster(voorbeeld.value(), u"Maandag 20260901.csv"_s, &hoofdvenster);
    if (auto* lijst = venster.findChild<QTreeView*>(u"lstVoorbeeld"_s)) {
        for (const int regel : {0, 4})
            lijst->expand(lijst->model()->index(regel, 0));
    }
    bezoek(venster);
}

/// A list with a header, as a sheet saves it.
void NeemLijst(const Bezoek& bezoek, QWidget& hoofdvenster, Administratie& administratie)
{
    const Pad bestand = Samen(administratie.mappen.ADMMAP, "leden 2026.csv");
    if (!SchrijfHeel(administratie.schijf, bestand,
                     "\xEF\xBB\xBFNaam;E-mail;Telefoon;Adres;Postcode;Woonplaats;Rol\r\n"
                     "\"Berg, Jan van der\";jan@thuispost.example;06-00000771;Lindelaan 3;0411 AB;"
                     "Wielerdam;lid\r\n"
                     "Zo\xC3\xAB Zeldenrust;;06-00000772;Brink 12;0411 CD;Wielerdam;gast\r\n"
                     "J. de Wit;wit@thuispost.example;;Pad 1;0437 VC;Oud-Merwolde;lid\r\n"))
        return;
    frmLijstImport venster(administratie, "Gr02-", &hoofdvenster);
    venster.Open(bestand);
    bezoek(venster);
}

/// With the floating players of the competition, and the first of them chosen.
void NeemKoppelvenster(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster,
                       Administratie& administratie)
{
    frmKoppelNBBnr venster(administratie, &hoofdvenster);
    bezoek(venster); // fills it
    if (auto* competities = venster.findChild<QRadioButton*>(u"Option2"_s))
        competities->setChecked(true);
    if (auto* cmbC = venster.findChild<QComboBox*>(u"cmbC"_s))
        cmbC->setCurrentIndex(cmbC->count() - 1);
    for (const char* knop : {"cmdZoekNamen", "cmdKiesRVDspeler"}) {
        if (auto* zwevenden = venster.findChild<QListView*>(u"lstSpelers"_s))
            zwevenden->setCurrentIndex(zwevenden->model()->index(0, 0));
        if (auto* deel = venster.findChild<QPushButton*>(QString::fromLatin1(knop)))
            deel->click();
    }
    bezoek(venster);
}

/// With the pairs of one of the sample club's groups, and two players chosen.
void NeemParen(const Bezoek& bezoek, Administratie& administratie, QWidget& hoofdvenster)
{
    frmParenOnderhoud venster(administratie, "Gr05-", &hoofdvenster);
    const Maten maten;
    // It is as high as the screen lets it be, which says nothing of a screen that is only drawn.
    venster.setProperty(Standaardmaat, QSize(maten.Twips(15000), maten.Twips(9600)));
    if (auto* keus = venster.findChild<QComboBox*>(u"cmbNBBledengr"_s)) {
        keus->setCurrentIndex(keus->findText(u"Gr05-DINSDAG"_s));
        emit keus->activated(keus->currentIndex());
    }
    int plaats = 1;
    for (const char16_t* naam : {u"L1", u"L2"}) {
        auto* lijst = venster.findChild<QListView*>(QString::fromUtf16(naam));
        if (lijst != nullptr && lijst->model()->rowCount() > plaats)
            lijst->setCurrentIndex(lijst->model()->index(plaats++, 0));
    }
    bezoek(venster);
}

/// The set-up and the first page of the shown group.
void NeemPrinten(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster, Administratie& administratie)
{
    const Maten maten;
    const Tekst groep = administratie.groepen.Toontekst(administratie.instellingen.LOSTGR + 1);
    frmPrintIni keuze(administratie, groep,
                      BeeldVan(administratie.mappen, CodeUit(groep)).kolomnamen, &hoofdvenster);
    bezoek(keuze);
    const Printopdracht opdracht{
        .groepscode = Tekst(CodeUit(groep)),
        .subgroepen = {},
        .kolommen = {Kolom::Voornaam, Kolom::Tusv, Kolom::Achternaam, Kolom::Telef, Kolom::Plaats}};
    frmAfdrukken blad(administratie,
                      {.tabel = MaakPrinttabel(administratie.spelers.tabel, opdracht),
                       .groeptekst = groep,
                       .subgroepkop = {}},
                      &hoofdvenster);
    // It is as high as the screen lets it be.
    blad.setProperty(Standaardmaat, QSize(maten.Twips(12700), maten.Twips(10500)));
    bezoek(blad);
}

/// Of the first two sheets of players, on a sheet of one's own.
void NeemEtiketten(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster, Administratie& administratie)
{
    std::vector<int> rijen;
    for (int rij = 1; rij <= std::min(40, administratie.spelers.tabel.Rijen()); ++rij)
        rijen.push_back(rij);
    frmEtiketten venster(administratie, rijen, &hoofdvenster);
    auto* cmbVel = venster.findChild<QComboBox*>(u"cmbVel"_s);
    cmbVel->setCurrentIndex(cmbVel->count() - 1);
    bezoek(venster);
}

/// A player deleted and another one changed, the latter open.
void NeemGeschiedenis(const Bezoek& bezoek, frmLedenAdmin& hoofdvenster,
                      Administratie& administratie)
{
    const Pad map = Samen(administratie.mappen.SPEMAP, "Geschiedenis");
    const Tekst kop = "\r\ncomputer SECRETARIAAT\r\ngebruiker wil\r\nwat ";
    const Tekst bestand = "\r\nbestand SPEMAP\\RVDspelers.txt\r\n";
    const auto gezet = administratie.schijf.MaakMap(map).and_then([&] {
        return SchrijfHeel(
            administratie.schijf, Samen(map, "2026-11-02 190400 SECRETARIAAT.txt"),
            "handeling 1\r\ntijd 2026-11-02 19:04:00" + kop + "Jan Bos verwijderd" + bestand +
                "-9,100009,Gr01-,Jan,,Bos,,,,,,,M,,,,A-LIJN,\r\neinde\r\n" +
                "handeling 2\r\ntijd 2026-11-02 19:21:40" + kop + "Trudy Kuipersma-Hol gewijzigd" +
                bestand +
                "-4,100004,Gr01-,Trudy,,Kuipersma-Hol,010-0000115,,Zuidereind 43,,,,V,,,,,\r\n" +
                "+4,100004,Gr01-,Trudy,,Kuipersma-Hol,06-00000115,,Zuidereind 45,,,,V,,,,,\r\n" +
                "einde\r\n");
    });
    if (!gezet)
        throw std::runtime_error("de geschiedenis kan niet worden gemaakt");
    frmGeschiedenis venster(
        administratie, {}, [](auto...) {}, &hoofdvenster);
    auto* lijst = venster.findChild<QTreeWidget*>(u"lstHandelingen"_s);
    lijst->expandItem(lijst->topLevelItem(0));
    bezoek(venster);
}

/// With the suite itself as the one that was found.
void NeemEersteStart(const Bezoek& bezoek, QWidget& hoofdvenster, Administratie& administratie)
{
    const Startomgeving omgeving{.ini = {},
                                 .documenten = administratie.mappen.RVDMAP,
                                 .zoekplaatsen = {{administratie.mappen.RVDMAP, 0}}};
    Neem(bezoek, frmEersteStart(administratie.schijf, omgeving, &hoofdvenster));
}

/// A member who came to the club under his initials, and stands in a session.
void NeemDubbelen(const Bezoek& bezoek, QWidget& hoofdvenster, Administratie& administratie)
{
    const Register zoalsHetWas = administratie.spelers;
    Spelertabel& tabel = administratie.spelers.tabel;
    if (tabel.Rijen() < 2)
        return;
    tabel.VoegKopieToe(1, std::vector<Celtekst>{{Kolom::Key, "100500"},
                                                {Kolom::Voornaam, "W."},
                                                {Kolom::Adres, "Oude Trekvaart 1003 achterhuis"},
                                                {Kolom::Plaats, ""}});
    frmDubbelen venster(
        administratie, [] { return true; }, &hoofdvenster);
    if (auto* links = venster.findChild<QRadioButton*>(u"optRechts"_s))
        links->setChecked(true);
    bezoek(venster);
    administratie.spelers = zoalsHetWas;
}

} // namespace

void DoorloopVensters(frmLedenAdmin& hoofdvenster, Administratie& administratie,
                      const std::function<void(QWidget&)>& bezoek)
{
    // A box that a window shows before it opens has nobody to answer it here.
    QTimer antwoord;
    QObject::connect(&antwoord, &QTimer::timeout, [] {
        if (auto* dialoog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialoog->reject();
    });
    antwoord.start(std::chrono::milliseconds(50));
    NeemZoeken(bezoek, hoofdvenster);
    bezoek(hoofdvenster);
    Neem(bezoek,
         frmVeld(administratie, {3, 4, 5}, Kolomnamen, Gekozenwerk::Verplaatsen, &hoofdvenster));
    Neem(bezoek,
         frmVeld(administratie, {3, 4, 5}, Kolomnamen, Gekozenwerk::Wijzigen, &hoofdvenster));
    Ingave ingave = Voorbeeldingave(administratie);
    std::int16_t terugkeerveld = administratie.instellingen.OPTIND;
    Neem(bezoek, diaIngave(
                     ingave, terugkeerveld, [] {}, &hoofdvenster));
    Groepen groepen = administratie.groepen;
    Neem(bezoek, diaGrNamen(groepen, &hoofdvenster));
    Neem(bezoek, diaRekProgkeus(&hoofdvenster));
    // With a scoring program installed the window shows all four sources.
    const Rekenprogramma zonder = administratie.rekenprogramma;
    administratie.rekenprogramma = {.NBBRaanwezig = true,
                                    .GekozenProgramma = Programma::NBBR,
                                    .DataRoot = {},
                                    .ProgrammaCode = "NBBR",
                                    .ProgrammaNaam = "NBB-R"};
    Importgeheugen importgeheugen{.mappen = {}, .bron = Ledenbron::XmlNbb4};
    Neem(bezoek, frmImportNBB(administratie, importgeheugen, &hoofdvenster));
    administratie.rekenprogramma = zonder;
    NeemVoorbeeld(bezoek, hoofdvenster, administratie);
    NeemLijst(bezoek, hoofdvenster, administratie);
    Neem(bezoek, diaVerplaats(administratie, &hoofdvenster));
    Neem(bezoek, diaKopieer(administratie, &hoofdvenster));
    Neem(bezoek, frmVerwSubgroep(administratie, &hoofdvenster));
    NeemPrinten(bezoek, hoofdvenster, administratie);
    Neem(bezoek, frmExport(administratie, Groepscode(1), &hoofdvenster));
    std::vector<int> rijen(static_cast<std::size_t>(administratie.spelers.tabel.Rijen()));
    std::iota(rijen.begin(), rijen.end(), 1);
    Neem(bezoek, frmMail(administratie, rijen, &hoofdvenster));
    NeemEtiketten(bezoek, hoofdvenster, administratie);
    NeemControle(bezoek, hoofdvenster, administratie);
    Neem(bezoek, diaToevoegen(administratie, &hoofdvenster));
    NeemKoppelvenster(bezoek, hoofdvenster, administratie);
    Neem(bezoek, frmToelichting(&hoofdvenster));
    Neem(bezoek, frmUitleg(&hoofdvenster));
    Neem(bezoek, frmToetsen(hoofdvenster));
    Neem(bezoek, frmHandleiding(administratie.schijf, &hoofdvenster));
    NeemParen(bezoek, administratie, hoofdvenster);
    NeemSorteerlijst(bezoek, hoofdvenster, administratie.spelers.tabel);
    NeemVergelijking(bezoek, hoofdvenster, administratie.spelers.tabel);
    Neem(bezoek, frmControle(administratie, &hoofdvenster));
    Neem(bezoek, frmOverzicht(administratie, &hoofdvenster));
    NeemEersteStart(bezoek, hoofdvenster, administratie);
    NeemDubbelen(bezoek, hoofdvenster, administratie);
    NeemTerugzetten(bezoek, hoofdvenster, administratie);
    NeemGeschiedenis(bezoek, hoofdvenster, administratie);
}

} // namespace plexoran
