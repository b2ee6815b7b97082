// Building the main window: its controls, their captions and places. They are made in the order in
// which Tab goes through them, as the eye reads: the top, the grid, then the columns of commands
// from left to right.
#include <QGridLayout>
#include <QMenuBar>
#include <QStackedLayout>
#include <QStatusBar>

#include <algorithm>

#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

// In twips, where the window begins.
constexpr int RoosterBoven = 1000;
constexpr int RoosterLinks = 100;
constexpr int KeuzeLinks = 7000;
constexpr int Label1Boven = 200;
constexpr int GroepBoven = 500;
constexpr int GroepBreed = 3500;
constexpr int GroepSmaller = 1000; // at most, where the screen lacks the room
constexpr int NamenBoven = 400;
constexpr int NamenTussen = 200;
constexpr int KolBrBoven = 60;

constexpr double Toelichtingletter = 8; // points
constexpr int Tussenruimte = 8;         // pixels between the columns of commands
constexpr int Knopruimte = 16;          // pixels beside the caption of a button, both sides

QComboBox* MaakNummerkeus(const QString& naam, const QString& gesproken, QStringListModel* nummers,
                          QLabel* label, QWidget* ouder)
{
    auto* keus = MaakKeus(naam, label, ouder);
    keus->setAccessibleName(gesproken);
    keus->setMinimumContentsLength(6);
    keus->setModel(nummers);
    return keus;
}

void HoudPlaats(QWidget* deel)
{
    QSizePolicy beleid = deel->sizePolicy();
    beleid.setRetainSizeWhenHidden(true);
    deel->setSizePolicy(beleid);
}

/// A column of commands that keeps its place when some of them are hidden.
QVBoxLayout* MaakKolom(std::initializer_list<QWidget*> delen)
{
    auto* kolom = new QVBoxLayout;
    kolom->setSpacing(4);
    for (QWidget* deel : delen) {
        HoudPlaats(deel);
        kolom->addWidget(deel);
    }
    kolom->addStretch();
    return kolom;
}

/// A frame named `naam` around what the grid in it holds.
QGridLayout* MaakVakken(const QString& naam, const QString& opschrift, QWidget* ouder)
{
    auto* kader = MaakKader(naam, opschrift, ouder);
    auto* vakken = new QGridLayout(kader);
    vakken->setContentsMargins(8, 4, 8, 6);
    vakken->setVerticalSpacing(3);
    return vakken;
}

} // namespace

void frmLedenAdmin::Bouw()
{
    setObjectName(u"frmLedenAdmin"_s);
    setWindowTitle(u"Onderhoud Plexoran[*]"_s);
    auto* midden = new QWidget(this);
    QWidget* bovenkant = BouwBovenkant();
    picP0 = new Rooster(maten_, this);
    connect(picP0->Vlak(), &Roostervlak::wijzigGevraagd, this, &frmLedenAdmin::Wijzig);
    connect(picP0->Vlak(), &Roostervlak::verwijderGevraagd, this, &frmLedenAdmin::VerwijderRij);
    auto* roosterrij = Naastelkaar({picP0});
    roosterrij->setContentsMargins(maten_.Twips(RoosterLinks), 0, maten_.Twips(RoosterLinks), 0);
    knoppen_ = BouwOnderblad();
    auto* lagen = Onderelkaar({bovenkant, {roosterrij, 1}, knoppen_}, midden);
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->setSpacing(0);
    auto* geheel = new QWidget(this);
    auto* lagenMetBalk = Onderelkaar({{new Schuifblad(midden, geheel), 1}, picZoek}, geheel);
    lagenMetBalk->setContentsMargins(0, 0, 0, 0);
    lagenMetBalk->setSpacing(0);
    setCentralWidget(geheel);
    BouwMenu();
    BouwGekozenmenu();
    BouwStatus();
    // The bars stand above and below what the window is made for.
    const int balken = menuBar()->sizeHint().height() + statusBar()->sizeHint().height() +
                       picZoek->sizeHint().height();
    PasInScherm(this, maten_.Twips(15360, 10500) + QSize(0, balken));
}

QWidget* frmLedenAdmin::BouwBovenkant()
{
    auto* boven = new QWidget(this);
    boven->setFixedHeight(maten_.Twips(RoosterBoven));
    auto* lblToel = MaakUitleg(
        u"lblToel"_s,
        u"Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\nBij het "
        "opzetten van de zitting moet u kiezen uit deze spelers."_s,
        boven);
    lblToel->setFont(maten_.Letter(Toelichtingletter));
    lblToel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblToel->setGeometry(maten_.Twips(RoosterLinks), maten_.Twips(KolBrBoven),
                         maten_.Twips(KeuzeLinks - 3 * RoosterLinks),
                         maten_.Twips(RoosterBoven - 2 * KolBrBoven));
    auto* Label1 = MaakLabel(u"Label1"_s, u"Kies spelergroep:"_s, boven);
    Label1->adjustSize();
    Label1->move(maten_.Twips(KeuzeLinks), maten_.Twips(Label1Boven));
    cmbGr = MaakKeus(u"cmbGr"_s, Label1, boven);
    cmbGr->setAccessibleName(u"Spelergroep"_s);
    cmbGr->setMaxVisibleItems(25);
    // Also when the group that is shown is picked again.
    for (const auto signaal : {&QComboBox::currentIndexChanged, &QComboBox::activated})
        connect(cmbGr, signaal, this, &frmLedenAdmin::ToonGroep);
    chkKolBr = MaakVink(u"chkKolBr"_s, u"Kolombreedte volgens header"_s, u'd', boven);
    chkKolBr->setChecked(true);
    connect(chkKolBr, &QCheckBox::toggled, this, [this](bool aan) {
        picP0->ZetBreedteregel(aan ? Breedteregel::VolgensHeader : Breedteregel::VolgensTeksten);
    });
    connect(chkKolBr, &QCheckBox::clicked, this, &frmLedenAdmin::HerstelBreedten);
    auto* cmdMaakGrNamen = MaakKnop(u"cmdMaakGrNamen"_s, u"Spelergroepsnaam aanvullen"_s, u'S',
                                    this, &frmLedenAdmin::WijzigGroepsnamen);
    cmdMaakGrNamen->setToolTip(
        u"Voor de duidelijkheid kunt u tekst toevoegen. Bijv: Gro2-Clubleden"_s);
    cmdMaakGrNamen->setParent(boven);
    cmdMaakGrNamen->adjustSize();
    chkKolBr->adjustSize();
    const int breed =
        maten_.Twips(KeuzeLinks + GroepBreed + NamenTussen + RoosterLinks) + chkKolBr->width();
    const int teBreed = breed - (screen()->availableSize() - Kader).width();
    cmbGr->setGeometry(maten_.Twips(KeuzeLinks), maten_.Twips(GroepBoven),
                       maten_.Twips(GroepBreed) -
                           std::clamp(teBreed, 0, maten_.Twips(GroepSmaller)),
                       cmbGr->sizeHint().height());
    const int naast = cmbGr->geometry().right() + 1 + maten_.Twips(NamenTussen);
    cmdMaakGrNamen->move(naast, maten_.Twips(NamenBoven));
    chkKolBr->move(naast, cmdMaakGrNamen->y() - chkKolBr->height() - maten_.Twips(KolBrBoven) / 2);
    boven->setMinimumWidth(chkKolBr->geometry().right() + maten_.Twips(RoosterLinks));
    return boven;
}

/// Who was found stands in the place of the commands, so that nothing else moves.
QWidget* frmLedenAdmin::BouwOnderblad()
{
    auto* blad = new QWidget(this);
    blad->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    onderblad_ = new QStackedLayout(blad);
    onderblad_->addWidget(BouwOpdrachten());
    picZoek = new Zoekbalk(administratie_, this);
    auto* gevonden = new QWidget(this);
    Naastelkaar({picZoek->Lijst()}, gevonden)
        ->setContentsMargins(maten_.Twips(RoosterLinks), 6, maten_.Twips(RoosterLinks), 0);
    onderblad_->addWidget(gevonden);
    return blad;
}

QWidget* frmLedenAdmin::BouwOpdrachten()
{
    auto* opdrachten = new QWidget(this);
    auto* kolommen = Naastelkaar({{BouwSpelerkolom(), 1},
                                  {BouwVerwijderkolom(), 1},
                                  {BouwLijstkolom(), 1},
                                  {BouwBondkolom(), 1}});
    kolommen->setSpacing(Tussenruimte);
    auto* lagen = Onderelkaar({kolommen, BouwOnderkant()}, opdrachten);
    lagen->setContentsMargins(maten_.Twips(RoosterLinks), 6, maten_.Twips(RoosterLinks), 8);
    lagen->setSpacing(Tussenruimte);
    return opdrachten;
}

QLayout* frmLedenAdmin::BouwSpelerkolom()
{
    Label3 = MaakLabel(u"Label3"_s, QString(), this);
    auto* cmdAanm =
        MaakKnop(u"cmdAanm"_s, u"Nieuwe Speler toevoegen"_s, u'N', this, &frmLedenAdmin::VoegToe);
    cmdWijzig = MaakKnop(u"cmdWijzig"_s, u"Geselecteerde Speler wijzigen"_s, u'w', this,
                         &frmLedenAdmin::Wijzig);
    cmdWijzig->setToolTip(u"U kunt ook dubbelklikken op een regel"_s);
    auto* cmdVerplaats = MaakKnop(u"cmdVerplaats"_s, u"Verplaats speler(s) naar andere groep"_s,
                                  u'V', this, &frmLedenAdmin::Verplaats);
    auto* cmdKopieer = MaakKnop(u"cmdKopieer"_s, u"Kopieer speler(s) naar andere groep"_s, u'K',
                                this, &frmLedenAdmin::Kopieer);
    return MaakKolom({Label3, cmdAanm, cmdWijzig, cmdVerplaats, cmdKopieer});
}

QLayout* frmLedenAdmin::BouwVerwijderkolom()
{
    cmdVerwijder = MaakKnop(u"cmdVerwijder"_s, u"Geselecteerde regel verwijderen..."_s, u'G', this,
                            &frmLedenAdmin::VerwijderRij);
    cmdVerwijder->setToolTip(u"Selecteer een regel"_s);
    auto* vakken = MaakVakken(u"Frame2"_s, u"Verwijder regels van/tot"_s, this);
    QWidget* Frame2 = vakken->parentWidget();
    auto* lblVan = MaakLabel(u"lblVan"_s, u"Van regel:"_s, Frame2);
    auto* lblTot = MaakLabel(u"lblTot"_s, u"T/m regel:"_s, Frame2);
    regelnummers_ = new QStringListModel(this);
    cmbVerwVan = MaakNummerkeus(u"cmbVerwVan"_s, u"Van regel"_s, regelnummers_, lblVan, Frame2);
    cmbVerwTot =
        MaakNummerkeus(u"cmbVerwTot"_s, u"Tot en met regel"_s, regelnummers_, lblTot, Frame2);
    cmdVerwijderVT = MaakKnop(u"cmdVerwijderVT"_s, u"Verwijder ..."_s, u'j', this,
                              &frmLedenAdmin::VerwijderVanTot);
    vakken->addWidget(lblVan, 0, 0);
    vakken->addWidget(cmbVerwVan, 0, 1);
    vakken->addWidget(lblTot, 1, 0);
    vakken->addWidget(cmbVerwTot, 1, 1);
    vakken->addWidget(cmdVerwijderVT, 2, 0, 1, 2);
    vakken->setColumnStretch(1, 1);
    auto* cmdVerwGroep = MaakKnop(u"cmdVerwGroep"_s, u"Verwijder een hele subgroep ..."_s, u'h',
                                  this, &frmLedenAdmin::VerwijderGroep);
    return MaakKolom({cmdVerwijder, Frame2, cmdVerwGroep});
}

QLayout* frmLedenAdmin::BouwLijstkolom()
{
    const auto sorteerknop = [this](const QString& naam, const QString& tekst, char16_t letter,
                                    Sorteersoort soort) {
        auto* knop =
            MaakKnop(naam, tekst, letter, this, [this, soort] { ToonSorteerlijst(soort); });
        // They share the width that there is; the standard one is too much for a small screen.
        knop->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        knop->setMinimumWidth(knop->fontMetrics().horizontalAdvance(tekst) + Knopruimte);
        return knop;
    };
    auto* vakken = MaakVakken(u"Frame1"_s, u"Sorteerlijst op:"_s, this);
    vakken->addWidget(sorteerknop(u"cmdSortlijst1"_s, u" Key"_s, u'y', Sorteersoort::Key), 0, 0);
    cmdSortlijst2 = sorteerknop(u"cmdSortlijst2"_s, u" NBB-nr"_s, u'B', Sorteersoort::NBBnr);
    HoudPlaats(cmdSortlijst2);
    vakken->addWidget(cmdSortlijst2, 0, 1);
    cmdSortlijst3 = sorteerknop(u"cmdSortlijst3"_s, u"NBB-groep"_s, u'o', Sorteersoort::NBBgroep);
    vakken->addWidget(cmdSortlijst3, 0, 2);
    chkToonAlle = MaakVink(u"chkToonAlle"_s, u"Alle groepen"_s, u'A', vakken->parentWidget());
    vakken->addWidget(chkToonAlle, 1, 0, 1, 3);
    auto* cmdZoekDubbeleNamen = MaakKnop(u"cmdZoekDubbeleNamen"_s, u"Zoek dubbele namen"_s, u'Z',
                                         this, &frmLedenAdmin::ToonDubbeleNamen);
    return MaakKolom({vakken->parentWidget(), cmdZoekDubbeleNamen});
}

QLayout* frmLedenAdmin::BouwBondkolom()
{
    cmdHaalNBBnamen = MaakKnop(u"cmdHaalNBBnamen"_s, u"Importeer NBB-spelers"_s, u'I', this,
                               &frmLedenAdmin::HaalNBBnamen);
    cmdKoppel = MaakKnop(u"cmdKoppel"_s, u"Koppel zwevende NBB-speler"_s, u'l', this,
                         &frmLedenAdmin::KoppelZwevenden);
    cmdToonGatenlijst = MaakKnop(u"cmdToonGatenlijst"_s, u"Toon vrije NBB-nummers"_s, u'T', this,
                                 &frmLedenAdmin::StartGatenlijst);
    cmdToonGatenlijst->setToolTip(u"Voor als u zoekt naar een vrij NBBnummer lager dan 9999 "_s);
    auto* cmdSpToevoegen = MaakKnop(u"cmdSpToevoegen"_s, u"Toevoegen (_Rev)"_s, u'R', this,
                                    &frmLedenAdmin::VoegSessiespelersToe);
    cmdParenOnderhoud = MaakKnop(u"cmdParenOnderhoud"_s, u"Paren-onderhoud"_s, u'u', this,
                                 &frmLedenAdmin::OnderhoudParen);
    return MaakKolom(
        {cmdHaalNBBnamen, cmdKoppel, cmdToonGatenlijst, cmdSpToevoegen, cmdParenOnderhoud});
}

QLayout* frmLedenAdmin::BouwOnderkant()
{
    cmdPrint = new Kortknop(MetSneltoets(u"Printen..."_s, u'P'), this);
    Noem(cmdPrint, u"cmdPrint"_s);
    connect(cmdPrint, &QPushButton::clicked, this, &frmLedenAdmin::Print);
    // Its caption holds the group's name, of any length, and must not widen the window.
    cmdPrint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* onder =
        Naastelkaar({{cmdPrint, 1},
                     MaakKnop(u"cmdToelichting"_s, u"Toelichting"_s, u'c', this,
                              &frmLedenAdmin::ToonToelichting),
                     MaakKnop(u"cmdMaakScripts"_s, u"MaakScripts ..."_s, u'M', this),
                     MaakKnop(u"cmdEinde"_s, u"Einde"_s, u'E', this, &frmLedenAdmin::close)});
    onder->setSpacing(Tussenruimte);
    return onder;
}

} // namespace plexoran
