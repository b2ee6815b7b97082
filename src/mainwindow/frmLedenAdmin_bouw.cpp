// Building the main window: its controls, their captions and places. They are made in the order in
// which Tab goes through them, as the eye reads: the top, the grid, then the columns of commands
// from left to right.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

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

QCheckBox* MaakVink(const QString& naam, const QString& tekst, char16_t letter, QWidget* ouder)
{
    auto* vink = new QCheckBox(MetSneltoets(tekst, letter), ouder);
    Noem(vink, naam);
    return vink;
}

} // namespace

/// A button with the letter that works with Alt.
QPushButton* frmLedenAdmin::Opdracht(const char16_t* naam, const char16_t* tekst, char16_t letter,
                                     void (frmLedenAdmin::*doe)())
{
    auto* knop = MaakKnop(QString::fromUtf16(naam), QString::fromUtf16(tekst), letter, this);
    if (doe != nullptr)
        connect(knop, &QPushButton::clicked, this, doe);
    return knop;
}

void frmLedenAdmin::Bouw()
{
    setObjectName(u"frmLedenAdmin"_s);
    setWindowTitle(u"Onderhoud Plexoran[*]"_s);
    auto* midden = new QWidget(this);
    auto* lagen = new QVBoxLayout(midden);
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->setSpacing(0);
    lagen->addWidget(BouwBovenkant());
    picP0 = new Rooster(maten_, this);
    connect(picP0->Vlak(), &Roostervlak::wijzigGevraagd, this, &frmLedenAdmin::Wijzig);
    connect(picP0->Vlak(), &Roostervlak::verwijderGevraagd, this, &frmLedenAdmin::VerwijderRij);
    auto* roosterrij = new QHBoxLayout;
    roosterrij->setContentsMargins(maten_.Twips(RoosterLinks), 0, maten_.Twips(RoosterLinks), 0);
    roosterrij->addWidget(picP0);
    lagen->addLayout(roosterrij, 1);
    lagen->addWidget(BouwOpdrachten());
    setCentralWidget(new Schuifblad(midden, this));
    PasInScherm(this, {maten_.Twips(15360), maten_.Twips(10500)});
    VerbindToetsen();
}

QWidget* frmLedenAdmin::BouwBovenkant()
{
    auto* boven = new QWidget(this);
    boven->setFixedHeight(maten_.Twips(RoosterBoven));
    auto* lblToel = MaakLabel(
        u"lblToel"_s,
        u"Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\nBij het "
        "opzetten van de zitting moet u kiezen uit deze spelers."_s,
        boven);
    lblToel->setWordWrap(true);
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
    connect(cmbGr, &QComboBox::currentIndexChanged, this, [this] {
        ToonGroep();
        netGetoond_ = true; // until the pick that changed it is over
        QTimer::singleShot(0, this, [this] { netGetoond_ = false; });
    });
    // Picking the group that is shown displays it anew.
    connect(cmbGr, &QComboBox::activated, this, [this] {
        if (!netGetoond_)
            ToonGroep();
    });
    auto* chkKolBr = MaakVink(u"chkKolBr"_s, u"Kolombreedte volgens header"_s, u'd', boven);
    chkKolBr->setChecked(true);
    connect(chkKolBr, &QCheckBox::toggled, this, [this](bool aan) {
        picP0->ZetBreedteregel(aan ? Breedteregel::VolgensHeader : Breedteregel::VolgensTeksten);
    });
    auto* cmdMaakGrNamen = Opdracht(u"cmdMaakGrNamen", u"Spelergroepsnaam aanvullen", u'S',
                                    &frmLedenAdmin::WijzigGroepsnamen);
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

QWidget* frmLedenAdmin::BouwOpdrachten()
{
    auto* opdrachten = new QWidget(this);
    auto* kolommen = new QHBoxLayout;
    kolommen->setSpacing(Tussenruimte);
    kolommen->addLayout(BouwSpelerkolom(), 1);
    kolommen->addLayout(BouwVerwijderkolom(), 1);
    kolommen->addLayout(BouwLijstkolom(), 1);
    kolommen->addLayout(BouwBondkolom(), 1);
    auto* lagen = new QVBoxLayout(opdrachten);
    lagen->setContentsMargins(maten_.Twips(RoosterLinks), 6, maten_.Twips(RoosterLinks), 8);
    lagen->setSpacing(Tussenruimte);
    lagen->addLayout(kolommen);
    lagen->addLayout(BouwOnderkant());
    return opdrachten;
}

QLayout* frmLedenAdmin::BouwSpelerkolom()
{
    Label3 = MaakLabel(u"Label3"_s, QString(), this);
    auto* cmdAanm = Opdracht(u"cmdAanm", u"Nieuwe Speler toevoegen", u'N', &frmLedenAdmin::VoegToe);
    cmdWijzig =
        Opdracht(u"cmdWijzig", u"Geselecteerde Speler wijzigen", u'w', &frmLedenAdmin::Wijzig);
    cmdWijzig->setToolTip(u"U kunt ook dubbelklikken op een regel"_s);
    auto* cmdVerplaats = Opdracht(u"cmdVerplaats", u"Verplaats speler(s) naar andere groep", u'V',
                                  &frmLedenAdmin::Verplaats);
    auto* cmdKopieer = Opdracht(u"cmdKopieer", u"Kopieer speler(s) naar andere groep", u'K',
                                &frmLedenAdmin::Kopieer);
    return MaakKolom({Label3, cmdAanm, cmdWijzig, cmdVerplaats, cmdKopieer});
}

QLayout* frmLedenAdmin::BouwVerwijderkolom()
{
    cmdVerwijder = Opdracht(u"cmdVerwijder", u"Geselecteerde regel verwijderen...", u'G',
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
    cmdVerwijderVT =
        Opdracht(u"cmdVerwijderVT", u"Verwijder ...", u'j', &frmLedenAdmin::VerwijderVanTot);
    vakken->addWidget(lblVan, 0, 0);
    vakken->addWidget(cmbVerwVan, 0, 1);
    vakken->addWidget(lblTot, 1, 0);
    vakken->addWidget(cmbVerwTot, 1, 1);
    vakken->addWidget(cmdVerwijderVT, 2, 0, 1, 2);
    vakken->setColumnStretch(1, 1);
    auto* cmdVerwGroep = Opdracht(u"cmdVerwGroep", u"Verwijder een hele subgroep ...", u'h',
                                  &frmLedenAdmin::VerwijderGroep);
    return MaakKolom({cmdVerwijder, Frame2, cmdVerwGroep});
}

QLayout* frmLedenAdmin::BouwLijstkolom()
{
    const auto sorteerknop = [this](const char16_t* naam, const char16_t* tekst, char16_t letter,
                                    Sorteersoort soort) {
        auto* knop = Opdracht(naam, tekst, letter, nullptr);
        // They share the width that there is; the standard one is too much for a small screen.
        knop->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        knop->setMinimumWidth(knop->fontMetrics().horizontalAdvance(QString::fromUtf16(tekst)) +
                              Knopruimte);
        connect(knop, &QPushButton::clicked, this, [this, soort] { ToonSorteerlijst(soort); });
        return knop;
    };
    auto* vakken = MaakVakken(u"Frame1"_s, u"Sorteerlijst op:"_s, this);
    vakken->addWidget(sorteerknop(u"cmdSortlijst1", u" Key", u'y', Sorteersoort::Key), 0, 0);
    cmdSortlijst2 = sorteerknop(u"cmdSortlijst2", u" NBB-nr", u'B', Sorteersoort::NBBnr);
    HoudPlaats(cmdSortlijst2);
    vakken->addWidget(cmdSortlijst2, 0, 1);
    cmdSortlijst3 = sorteerknop(u"cmdSortlijst3", u"NBB-groep", u'o', Sorteersoort::NBBgroep);
    vakken->addWidget(cmdSortlijst3, 0, 2);
    chkToonAlle = MaakVink(u"chkToonAlle"_s, u"Alle groepen"_s, u'A', vakken->parentWidget());
    vakken->addWidget(chkToonAlle, 1, 0, 1, 3);
    auto* cmdZoekDubbeleNamen = Opdracht(u"cmdZoekDubbeleNamen", u"Zoek dubbele namen", u'Z',
                                         &frmLedenAdmin::ToonDubbeleNamen);
    return MaakKolom({vakken->parentWidget(), cmdZoekDubbeleNamen});
}

QLayout* frmLedenAdmin::BouwBondkolom()
{
    cmdHaalNBBnamen =
        Opdracht(u"cmdHaalNBBnamen", u"Importeer NBB-spelers", u'I', &frmLedenAdmin::HaalNBBnamen);
    cmdKoppel = Opdracht(u"cmdKoppel", u"Koppel zwevende NBB-speler", u'l',
                         &frmLedenAdmin::KoppelZwevenden);
    cmdToonGatenlijst = Opdracht(u"cmdToonGatenlijst", u"Toon vrije NBB-nummers", u'T',
                                 &frmLedenAdmin::StartGatenlijst);
    cmdToonGatenlijst->setToolTip(u"Voor als u zoekt naar een vrij NBBnummer lager dan 9999 "_s);
    auto* cmdSpToevoegen = Opdracht(u"cmdSpToevoegen", u"Toevoegen (_Rev)", u'R',
                                    &frmLedenAdmin::VoegSessiespelersToe);
    cmdParenOnderhoud =
        Opdracht(u"cmdParenOnderhoud", u"Paren-onderhoud", u'u', &frmLedenAdmin::OnderhoudParen);
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
    auto* onder = new QHBoxLayout;
    onder->setSpacing(Tussenruimte);
    onder->addWidget(cmdPrint, 1);
    onder->addWidget(
        Opdracht(u"cmdToelichting", u"Toelichting", u'c', &frmLedenAdmin::ToonToelichting));
    onder->addWidget(Opdracht(u"cmdMaakScripts", u"MaakScripts ...", u'M', nullptr));
    auto* cmdEinde = Opdracht(u"cmdEinde", u"Einde", u'E', nullptr);
    connect(cmdEinde, &QPushButton::clicked, this, &frmLedenAdmin::close);
    onder->addWidget(cmdEinde);
    return onder;
}

void frmLedenAdmin::VerbindToetsen()
{
    const auto bij = [this](const QString& toets, auto doe) {
        connect(new QShortcut(QKeySequence(toets), this), &QShortcut::activated, this, doe);
    };
    bij(u"Ctrl+G"_s, [this] { cmbGr->setFocus(Qt::ShortcutFocusReason); });
    bij(u"F6"_s, [this] { picP0->Vlak()->setFocus(Qt::ShortcutFocusReason); });
    bij(u"Ctrl+N"_s, &frmLedenAdmin::VoegToe);
    bij(u"F1"_s, &frmLedenAdmin::ToonToelichting);
}

} // namespace plexoran
