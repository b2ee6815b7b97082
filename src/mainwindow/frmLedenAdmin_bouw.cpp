// Building the main window: its controls, their captions and places.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListView>
#include <QShortcut>
#include <QVBoxLayout>

#include "mainwindow/frmLedenAdmin.h"
#include "mainwindow/nummerlijst.h"
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
constexpr int NamenBoven = 400;
constexpr int NamenTussen = 200;
constexpr int KolBrBoven = 60;

constexpr double Toelichtingletter = 8; // points
constexpr int Tussenruimte = 8;         // pixels between the columns of commands

QComboBox* MaakNummerkeus(const QString& naam, const QString& gesproken, Nummerlijst* nummers,
                          QWidget* ouder)
{
    auto* keus = new QComboBox(ouder);
    Noem(keus, naam, gesproken);
    // Asking the width of every number would take as long as showing the group.
    keus->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    keus->setMinimumContentsLength(6);
    keus->setModel(nummers);
    if (auto* lijst = qobject_cast<QListView*>(keus->view()))
        lijst->setUniformItemSizes(true);
    return keus;
}

/// A column of commands that keeps its place when some of them are hidden.
QVBoxLayout* MaakKolom(std::initializer_list<QWidget*> delen)
{
    auto* kolom = new QVBoxLayout;
    kolom->setSpacing(4);
    for (QWidget* deel : delen) {
        QSizePolicy beleid = deel->sizePolicy();
        beleid.setRetainSizeWhenHidden(true);
        deel->setSizePolicy(beleid);
        kolom->addWidget(deel);
    }
    kolom->addStretch();
    return kolom;
}

} // namespace

/// The captions as they stand, each with the letter that works with Alt.
void frmLedenAdmin::MaakKnoppen()
{
    const auto knop = [this](const char16_t* naam, const char16_t* tekst, char16_t letter) {
        return MaakKnop(QString::fromUtf16(naam), QString::fromUtf16(tekst), letter, this);
    };
    cmdMaakGrNamen = knop(u"cmdMaakGrNamen", u"Spelergroepsnaam aanvullen", u'S');
    cmdAanm = knop(u"cmdAanm", u"Nieuwe Speler toevoegen", u'N');
    cmdWijzig = knop(u"cmdWijzig", u"Geselecteerde Speler wijzigen", u'w');
    cmdVerplaats = knop(u"cmdVerplaats", u"Verplaats speler(s) naar andere groep", u'V');
    cmdKopieer = knop(u"cmdKopieer", u"Kopieer speler(s) naar andere groep", u'K');
    cmdVerwijder = knop(u"cmdVerwijder", u"Geselecteerde regel verwijderen...", u'G');
    cmdVerwijderVT = knop(u"cmdVerwijderVT", u"Verwijder ...", u'j');
    cmdVerwGroep = knop(u"cmdVerwGroep", u"Verwijder een hele subgroep ...", u'h');
    cmdSortlijst1 = knop(u"cmdSortlijst1", u" Key", u'y');
    cmdSortlijst2 = knop(u"cmdSortlijst2", u" NBB-nr", u'B');
    cmdSortlijst3 = knop(u"cmdSortlijst3", u"NBB-groep", u'o');
    cmdZoekDubbeleNamen = knop(u"cmdZoekDubbeleNamen", u"Zoek dubbele namen", u'Z');
    cmdSpToevoegen = knop(u"cmdSpToevoegen", u"Toevoegen (_Rev)", u'R');
    cmdHaalNBBnamen = knop(u"cmdHaalNBBnamen", u"Importeer NBB-spelers", u'I');
    cmdKoppel = knop(u"cmdKoppel", u"Koppel zwevende NBB-speler", u'l');
    cmdParenOnderhoud = knop(u"cmdParenOnderhoud", u"Paren-onderhoud", u'u');
    cmdPrint = new Kortknop(MetSneltoets(u"Printen..."_s, u'P'), this);
    Noem(cmdPrint, u"cmdPrint"_s);
    cmdToelichting = knop(u"cmdToelichting", u"Toelichting", u'c');
    cmdToonGatenlijst = knop(u"cmdToonGatenlijst", u"Toon vrije NBB-nummers", u'T');
    cmdMaakScripts = knop(u"cmdMaakScripts", u"MaakScripts ...", u'M');
    cmdEinde = knop(u"cmdEinde", u"Einde", u'E');

    cmdMaakGrNamen->setToolTip(
        u"Voor de duidelijkheid kunt u tekst toevoegen. Bijv: Gro2-Clubleden"_s);
    cmdWijzig->setToolTip(u"U kunt ook dubbelklikken op een regel"_s);
    cmdVerwijder->setToolTip(u"Selecteer een regel"_s);
    cmdToonGatenlijst->setToolTip(u"Voor als u zoekt naar een vrij NBBnummer lager dan 9999 "_s);
}

void frmLedenAdmin::Bouw()
{
    setObjectName(u"frmLedenAdmin"_s);
    setWindowTitle(u"Onderhoud Plexoran[*]"_s);
    MaakKnoppen();
    picP0 = new Rooster(maten_, this);

    auto* midden = new QWidget(this);
    auto* lagen = new QVBoxLayout(midden);
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->setSpacing(0);
    lagen->addWidget(BouwBovenkant());
    auto* roosterrij = new QHBoxLayout;
    roosterrij->setContentsMargins(maten_.Twips(RoosterLinks), 0, maten_.Twips(RoosterLinks), 0);
    roosterrij->addWidget(picP0);
    lagen->addLayout(roosterrij, 1);
    lagen->addWidget(BouwOpdrachten());
    setCentralWidget(new Schuifblad(midden, this));
    PasInScherm(this, {maten_.Twips(15360), maten_.Twips(10500)});
    StelTabvolgordeIn();
    Verbind();
}

QWidget* frmLedenAdmin::BouwBovenkant()
{
    auto* boven = new QWidget(this);
    boven->setFixedHeight(maten_.Twips(RoosterBoven));
    lblToel = MaakLabel(u"lblToel"_s, QString(), boven);
    lblToel->setWordWrap(true);
    lblToel->setFont(maten_.Letter(Toelichtingletter));
    lblToel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblToel->setGeometry(maten_.Twips(RoosterLinks), maten_.Twips(KolBrBoven),
                         maten_.Twips(KeuzeLinks - 3 * RoosterLinks),
                         maten_.Twips(RoosterBoven - 2 * KolBrBoven));
    Label1 = MaakLabel(u"Label1"_s, u"Kies spelergroep:"_s, boven);
    Label1->adjustSize();
    Label1->move(maten_.Twips(KeuzeLinks), maten_.Twips(Label1Boven));
    cmbGr = MaakKeus(u"cmbGr"_s, Label1, boven);
    cmbGr->setAccessibleName(u"Spelergroep"_s);
    cmbGr->setMaxVisibleItems(25);
    cmbGr->setGeometry(maten_.Twips(KeuzeLinks), maten_.Twips(GroepBoven), maten_.Twips(GroepBreed),
                       cmbGr->sizeHint().height());
    const int naast = cmbGr->geometry().right() + 1 + maten_.Twips(NamenTussen);
    cmdMaakGrNamen->setParent(boven);
    cmdMaakGrNamen->adjustSize();
    cmdMaakGrNamen->move(naast, maten_.Twips(NamenBoven));
    chkKolBr = new QCheckBox(MetSneltoets(u"Kolombreedte volgens header"_s, u'd'), boven);
    Noem(chkKolBr, u"chkKolBr"_s);
    chkKolBr->adjustSize();
    chkKolBr->move(naast, cmdMaakGrNamen->y() - chkKolBr->height() - maten_.Twips(KolBrBoven) / 2);
    boven->setMinimumWidth(chkKolBr->geometry().right() + maten_.Twips(RoosterLinks));
    return boven;
}

QWidget* frmLedenAdmin::BouwOpdrachten()
{
    auto* opdrachten = new QWidget(this);
    Label3 = MaakLabel(u"Label3"_s, QString(), opdrachten);
    auto* kolommen = new QHBoxLayout;
    kolommen->setSpacing(Tussenruimte);
    kolommen->addLayout(MaakKolom({Label3, cmdAanm, cmdWijzig, cmdVerplaats, cmdKopieer}), 1);
    kolommen->addLayout(MaakKolom({cmdVerwijder, BouwVerwijderkader(), cmdVerwGroep}), 1);
    kolommen->addLayout(MaakKolom({BouwSorteerkader(), cmdZoekDubbeleNamen}), 1);
    kolommen->addLayout(MaakKolom({cmdHaalNBBnamen, cmdKoppel, cmdToonGatenlijst, cmdSpToevoegen,
                                   cmdParenOnderhoud}),
                        1);

    // Its caption holds the group's name, of any length, and must not widen the window.
    cmdPrint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* onder = new QHBoxLayout;
    onder->setSpacing(Tussenruimte);
    onder->addWidget(cmdPrint, 1);
    for (QPushButton* knop : {cmdToelichting, cmdMaakScripts, cmdEinde})
        onder->addWidget(knop);

    auto* lagen = new QVBoxLayout(opdrachten);
    lagen->setContentsMargins(maten_.Twips(RoosterLinks), 6, maten_.Twips(RoosterLinks), 8);
    lagen->setSpacing(Tussenruimte);
    lagen->addLayout(kolommen);
    lagen->addLayout(onder);
    return opdrachten;
}

QGroupBox* frmLedenAdmin::BouwVerwijderkader()
{
    auto* kader = new QGroupBox(u"Verwijder regels van/tot"_s, this);
    Noem(kader, u"Frame2"_s);
    regelnummers_ = new Nummerlijst(this);
    cmbVerwVan = MaakNummerkeus(u"cmbVerwVan"_s, u"Van regel"_s, regelnummers_, kader);
    cmbVerwTot = MaakNummerkeus(u"cmbVerwTot"_s, u"Tot en met regel"_s, regelnummers_, kader);
    lblVan = MaakLabel(u"lblVan"_s, u"Van regel:"_s, kader);
    lblTot = MaakLabel(u"lblTot"_s, u"T/m regel:"_s, kader);
    lblVan->setBuddy(cmbVerwVan);
    lblTot->setBuddy(cmbVerwTot);
    auto* vakken = new QGridLayout(kader);
    vakken->setContentsMargins(8, 4, 8, 6);
    vakken->setVerticalSpacing(3);
    vakken->addWidget(lblVan, 0, 0);
    vakken->addWidget(cmbVerwVan, 0, 1);
    vakken->addWidget(lblTot, 1, 0);
    vakken->addWidget(cmbVerwTot, 1, 1);
    vakken->addWidget(cmdVerwijderVT, 2, 0, 1, 2);
    vakken->setColumnStretch(1, 1);
    return kader;
}

QGroupBox* frmLedenAdmin::BouwSorteerkader()
{
    auto* kader = new QGroupBox(u"Sorteerlijst op:"_s, this);
    Noem(kader, u"Frame1"_s);
    chkToonAlle = new QCheckBox(MetSneltoets(u"Alle groepen"_s, u'A'), kader);
    Noem(chkToonAlle, u"chkToonAlle"_s);
    QSizePolicy beleid = cmdSortlijst2->sizePolicy();
    beleid.setRetainSizeWhenHidden(true);
    cmdSortlijst2->setSizePolicy(beleid);
    auto* vakken = new QGridLayout(kader);
    vakken->setContentsMargins(8, 4, 8, 6);
    vakken->setVerticalSpacing(3);
    vakken->addWidget(cmdSortlijst1, 0, 0);
    vakken->addWidget(cmdSortlijst2, 0, 1);
    vakken->addWidget(cmdSortlijst3, 0, 2);
    vakken->addWidget(chkToonAlle, 1, 0, 1, 3);
    return kader;
}

/// As the eye reads: the top, the grid, then the columns of commands from left to right.
void frmLedenAdmin::StelTabvolgordeIn()
{
    ZetTabvolgorde({cmbGr,
                    chkKolBr,
                    cmdMaakGrNamen,
                    picP0->Toetsenvlak(),
                    cmdAanm,
                    cmdWijzig,
                    cmdVerplaats,
                    cmdKopieer,
                    cmdVerwijder,
                    cmbVerwVan,
                    cmbVerwTot,
                    cmdVerwijderVT,
                    cmdVerwGroep,
                    cmdSortlijst1,
                    cmdSortlijst2,
                    cmdSortlijst3,
                    chkToonAlle,
                    cmdZoekDubbeleNamen,
                    cmdHaalNBBnamen,
                    cmdKoppel,
                    cmdToonGatenlijst,
                    cmdSpToevoegen,
                    cmdParenOnderhoud,
                    cmdPrint,
                    cmdToelichting,
                    cmdMaakScripts,
                    cmdEinde});
}

void frmLedenAdmin::Verbind()
{
    connect(cmbGr, &QComboBox::currentIndexChanged, this, [this](int plaats) {
        ToonGroep();
        gewisseld_ = plaats;
    });
    // Picking the group that is shown displays it anew.
    connect(cmbGr, &QComboBox::activated, this, [this](int plaats) {
        if (std::exchange(gewisseld_, -1) != plaats)
            ToonGroep();
    });
    connect(chkKolBr, &QCheckBox::toggled, this, [this](bool aan) {
        if (!opstarten_)
            picP0->ZetBreedteregel(aan ? Breedteregel::VolgensHeader
                                       : Breedteregel::VolgensTeksten);
    });
    connect(picP0, &Rooster::wijzigGevraagd, this, &frmLedenAdmin::Wijzig);
    connect(picP0, &Rooster::verwijderGevraagd, this, &frmLedenAdmin::VerwijderGekozen);
    connect(cmdAanm, &QPushButton::clicked, this, &frmLedenAdmin::VoegToe);
    connect(cmdWijzig, &QPushButton::clicked, this, &frmLedenAdmin::Wijzig);
    connect(cmdVerwijder, &QPushButton::clicked, this, &frmLedenAdmin::VerwijderGekozen);
    connect(cmdVerwijderVT, &QPushButton::clicked, this, &frmLedenAdmin::VerwijderVanTot);
    connect(cmdMaakGrNamen, &QPushButton::clicked, this, &frmLedenAdmin::WijzigGroepsnamen);
    connect(cmdToonGatenlijst, &QPushButton::clicked, this, &frmLedenAdmin::StartGatenlijst);
    connect(cmdVerplaats, &QPushButton::clicked, this, &frmLedenAdmin::Verplaats);
    connect(cmdKopieer, &QPushButton::clicked, this, &frmLedenAdmin::Kopieer);
    connect(cmdVerwGroep, &QPushButton::clicked, this, &frmLedenAdmin::VerwijderGroep);
    connect(cmdHaalNBBnamen, &QPushButton::clicked, this, &frmLedenAdmin::HaalNBBnamen);
    connect(cmdSpToevoegen, &QPushButton::clicked, this, &frmLedenAdmin::VoegSessiespelersToe);
    connect(cmdKoppel, &QPushButton::clicked, this, &frmLedenAdmin::KoppelZwevenden);
    connect(cmdParenOnderhoud, &QPushButton::clicked, this, &frmLedenAdmin::OnderhoudParen);
    connect(cmdToelichting, &QPushButton::clicked, this, &frmLedenAdmin::ToonToelichting);
    connect(cmdPrint, &QPushButton::clicked, this, &frmLedenAdmin::Print);
    connect(cmdZoekDubbeleNamen, &QPushButton::clicked, this, &frmLedenAdmin::ToonDubbeleNamen);
    for (const auto& [knop, soort] : {std::pair{cmdSortlijst1, Sorteersoort::Key},
                                      std::pair{cmdSortlijst2, Sorteersoort::NBBnr},
                                      std::pair{cmdSortlijst3, Sorteersoort::NBBgroep}})
        connect(knop, &QPushButton::clicked, this,
                [this, soort = soort] { ToonSorteerlijst(soort); });
    connect(cmdEinde, &QPushButton::clicked, this, &frmLedenAdmin::close);
    connect(new QShortcut(QKeySequence(u"Ctrl+G"_s), this), &QShortcut::activated, this,
            [this] { cmbGr->setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(QKeySequence(u"F6"_s), this), &QShortcut::activated, this,
            [this] { picP0->Toetsenvlak()->setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(QKeySequence(u"Ctrl+N"_s), this), &QShortcut::activated, this,
            &frmLedenAdmin::VoegToe);
    connect(new QShortcut(QKeySequence(u"F1"_s), this), &QShortcut::activated, this,
            &frmLedenAdmin::ToonToelichting);
}

} // namespace plexoran
