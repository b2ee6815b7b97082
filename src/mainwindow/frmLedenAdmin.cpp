// The main window starts, shows a group and its lists, remembers it, and ends.
#include "mainwindow/frmLedenAdmin.h"

#include <QCloseEvent>
#include <QStatusBar>

#include <algorithm>

#include "dialogs/frmTerugzetten.h"
#include "dialogs/groepswerk.h"
#include "mainwindow/frmLedenAdmin_opstart.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/schijf/programma.h"

namespace plexoran {
frmLedenAdmin::frmLedenAdmin(Administratie& administratie, QWidget* ouder)
    : QMainWindow(ouder), administratie_(administratie),
      opslag_(administratie, this, [this] { ToonGroep(); }), wacht_(administratie.schijf, this),
      geheugen_(administratie.vensterIni)
{
    Bouw();
    chkKolBr->setChecked(geheugen_.IsAan(chkKolBr->objectName()));
    picP0->Kies(geheugen_.Kolommen());
    actKnoppen->setChecked(geheugen_.IsAan(actKnoppen->objectName()));
    volgorde_ = geheugen_.Volgorde();
    geheugen_.Volg(*this);
    connect(&wacht_, &Bestandswacht::veranderd, this, &frmLedenAdmin::VolgBestanden);
}

std::optional<int> frmLedenAdmin::Laad(const Pad& mappenIni, std::function<bool()> eersteExemplaar)
{
    eersteExemplaar_ = std::move(eersteExemplaar);
    if (!IsEersteExemplaar())
        return 0;
    if (!LeesMappen(administratie_, this, mappenIni))
        return 1;
    // Who else is there comes before anything that is made, mended or put back.
    if (!MagErbij())
        return 0;
    // Before a question that may stand for long.
    wacht_.Bewaak({administratie_.mappen.Spelerbestand(), administratie_.mappen.Groepenbestand()});
    const bool teBewaren = LeesBijStart(administratie_, this, alleenKijken_);
    cmdParenOnderhoud->setVisible(administratie_.mappen.NEWPAGR == 1);
    VulKeus(*cmbGr, administratie_.groepen.Toonteksten());
    const int laatste = administratie_.instellingen.LOSTGR;
    KiesGroep(laatste >= 0 && laatste < AantalGroepen ? laatste : 0);
    // Not before: a display keeps the place of its group.
    if (teBewaren) {
        const Noteer noteer(administratie_.geschiedenis, "Hersteld bij de start");
        SlaOpEnToon();
    }
    if (administratie_.mappen.NBB28UIT == 1)
        cmdToonGatenlijst->hide();
    cmdKoppel->hide();
    ToonAdministratie();
    WerkOpdrachtenBij();
    picP0->Vlak()->setFocus();
    ToonOngedaan();
    ToonTweedePlaats();
    return std::nullopt;
}

/// A stick that was put in since gets its backup; one that stays away is told of in a line below.
void frmLedenAdmin::ToonTweedePlaats()
{
    WerkTweedeplaatsBij(administratie_.schijf, administratie_.mappen,
                        administratie_.tweedeplaatsIni);
    if (const QString regel = Tweedeplaatsregel(administratie_); !regel.isEmpty())
        statusBar()->addWidget(MaakLabel(u"lblTweedePlaats"_s, regel, this));
}

bool frmLedenAdmin::IsEersteExemplaar()
{
    const bool eerste = eersteExemplaar_();
    if (!eerste)
        Meld(this, QMessageBox::Information, u"Het programma is al gestart!..."_s);
    return eerste;
}

void frmLedenAdmin::KomNaarVoren()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

/// Whether the program may go on, when others have the register open.
bool frmLedenAdmin::MagErbij()
{
    aanwezigheid_.emplace(administratie_.schijf, administratie_.mappen, Computernaam(),
                          Gebruikersnaam());
    aanwezigheid_->Meld();
    const auto anderen = aanwezigheid_->Anderen();
    if (!anderen.empty()) {
        QStringList wie;
        for (const auto& [computer, gebruiker, sinds] : anderen)
            wie << u"%1 op %2, sinds %3"_s.arg(NaarQString(gebruiker), NaarQString(computer),
                                               NaarQString(sinds));
        const int antwoord = Kies(
            this, QMessageBox::Warning,
            u"Er werkt al iemand met deze administratie:\n%1\n\nSamenwerken: wat de ander opslaat, "
            "ziet u meteen; wat u beiden wijzigt, wordt samengevoegd.\nAlleen kijken: u kunt "
            "niets wijzigen.\nStoppen: Plexoran sluit."_s.arg(wie.join(u'\n')),
            {u"Samenwerken"_s, u"Alleen kijken"_s, u"Stoppen"_s});
        if (antwoord == 2)
            return false;
        if (antwoord == 1) {
            ZetOpKijken();
            return true;
        }
    }
    constexpr int halveMinuut = 30'000;
    connect(&hartslag_, &QTimer::timeout, this, [this] { aanwezigheid_->Meld(); });
    hartslag_.start(halveMinuut);
    return true;
}

/// What keys and windows that stay open could change all the same.
bool frmLedenAdmin::MagWijzigen()
{
    if (alleenKijken_)
        Meld(this, QMessageBox::Information,
             u"U kijkt alleen: er kan niets worden gewijzigd. Start Plexoran opnieuw om samen te "
             "werken."_s);
    return !alleenKijken_;
}

/// Every command that changes anything is off.
void frmLedenAdmin::ZetOpKijken()
{
    alleenKijken_ = true;
    setWindowTitle(u"Onderhoud Plexoran (alleen kijken)[*]"_s);
    for (const QString& naam :
         {u"cmdAanm"_s, u"cmdVerplaats"_s, u"cmdKopieer"_s, u"cmdVerwGroep"_s, u"cmdMaakGrNamen"_s,
          u"cmdHaalNBBnamen"_s, u"cmdKoppel"_s, u"cmdSpToevoegen"_s, u"cmdParenOnderhoud"_s})
        findChild<QPushButton*>(naam)->setEnabled(false);
    aanwezigheid_.reset(); // who only looks is in nobody's way
}

Tekst frmLedenAdmin::Groeptekst() const
{
    return administratie_.groepen.Toontekst(cmbGr->currentIndex() + 1);
}

/// Selecting runs the display, also when the place stays the same.
void frmLedenAdmin::KiesGroep(int plaats)
{
    if (cmbGr->currentIndex() == plaats)
        ToonGroep();
    cmbGr->setCurrentIndex(plaats);
}

/// When he is in the group that is shown.
void frmLedenAdmin::KiesSpeler(const Tekst& key)
{
    Roostervlak& vlak = *picP0->Vlak();
    const auto plek = std::ranges::find_if(vlak.Rijen(), [&](int rij) {
        return administratie_.spelers.tabel.Cel(rij, Kolom::Key) == key;
    });
    if (!key.empty() && plek != vlak.Rijen().end())
        vlak.KiesRegel(static_cast<int>(plek - vlak.Rijen().begin()) + 1);
}

/// Empty when nobody is chosen.
Tekst frmLedenAdmin::GekozenKey() const
{
    const int rij = GekozenRij();
    return rij == 0 ? Tekst() : Tekst(administratie_.spelers.tabel.Cel(rij, Kolom::Key));
}

int frmLedenAdmin::GekozenRij() const
{
    const int regel = picP0->Vlak()->Regel();
    return regel == 0 ? 0 : RijOp(regel);
}

void frmLedenAdmin::ToonGroep()
{
    const Tekst groeptekst = Groeptekst();
    const Tekst code(CodeUit(groeptekst));
    const Groepsbeeld beeld = BeeldVan(administratie_.mappen, code);
    const Spelertabel& tabel = administratie_.spelers.tabel;
    // A column that has no name here shows nothing to sort by.
    const bool gesorteerd = volgorde_ && !beeld.kolomnamen[Index(*volgorde_)].empty();
    Weergave rijen = RijenVanGroep(tabel, code);
    if (gesorteerd)
        rijen = Gesorteerd(tabel, std::move(rijen), *volgorde_);
    picP0->Toon(tabel, std::move(rijen), beeld.kolomnamen);
    picP0->MerkVolgorde(gesorteerd ? volgorde_ : std::nullopt);
    const int regels = picP0->Vlak()->Regels();
    Label3->setText(u"Aantal regels: %1"_s.arg(regels));
    for (QWidget* deel : std::initializer_list<QWidget*>{cmdWijzig, cmdVerwijder, cmdVerwijderVT,
                                                         cmbVerwVan, cmbVerwTot})
        deel->setEnabled(regels > 0 && !alleenKijken_);
    QStringList nummers;
    for (int regel = 1; regel <= regels; ++regel)
        nummers << QString::number(regel);
    regelnummers_->setStringList(nummers);
    cmbVerwVan->setCurrentIndex(regels > 0 ? 0 : -1);
    cmbVerwTot->setCurrentIndex(regels > 0 ? 0 : -1);
    if (beeld.cmdHaalNBBnamen)
        cmdHaalNBBnamen->setVisible(*beeld.cmdHaalNBBnamen);
    if (beeld.verbergGatenlijst)
        cmdToonGatenlijst->hide();
    cmdKoppel->setVisible(beeld.importgroep);
    cmdSortlijst2->setVisible(beeld.importgroep);
    cmdSortlijst3->setText(MetSneltoets(beeld.importgroep ? u"NBBgroep"_s : u"Subgroep"_s, u'o'));
    const QString printtekst = u"Print deze groep: %1 ..."_s.arg(NaarQString(groeptekst));
    cmdPrint->setText(MetSneltoets(printtekst, u'P'));
    cmdPrint->setToolTip(Wenk(printtekst));

    std::int16_t& LOSTGR = administratie_.instellingen.LOSTGR;
    if (LOSTGR != cmbGr->currentIndex())
        picP0->NaarBoven();
    else
        picZoek->Ververs(); // another group is no other table
    LOSTGR = static_cast<std::int16_t>(cmbGr->currentIndex());
    BewaarInstellingen();
    WerkOpdrachtenBij();
}

void frmLedenAdmin::VolgBestanden()
{
    Roosterplek plek = NeemPlek();
    const auto andereSpelers = opslag_.NeemAndereOver();
    if (!andereSpelers)
        wacht_.Vergeet();
    if (!VolgGroepsnamen() && !andereSpelers.value_or(false))
        return;
    ToonGroep();
    ZetPlek(std::move(plek));
}

/// Whether another program gave groups other names. A text that ends before its time is not taken.
bool frmLedenAdmin::VolgGroepsnamen()
{
    Schijf& schijf = administratie_.schijf;
    Groepen groepen = LeesGroepen(schijf, administratie_.mappen);
    if (!groepen.bestandstekst &&
        schijf.Soort(administratie_.mappen.Groepenbestand()) != Padsoort::Niets)
        wacht_.Vergeet();
    if (!groepen.bestandstekst || groepen.bestandstekst == administratie_.groepen.bestandstekst ||
        groepen.aantal < administratie_.groepen.aantal)
        return false;
    administratie_.groepen = std::move(groepen);
    const int plaats = cmbGr->currentIndex();
    VulKeus(*cmbGr, administratie_.groepen.Toonteksten());
    const QSignalBlocker stil(cmbGr);
    cmbGr->setCurrentIndex(plaats);
    return true;
}

/// Who comes back from another program sees at once what it did.
void frmLedenAdmin::changeEvent(QEvent* gebeurtenis)
{
    QMainWindow::changeEvent(gebeurtenis);
    if (gebeurtenis->type() == QEvent::ActivationChange && isActiveWindow())
        wacht_.KijkAlsHetMag();
    if (gebeurtenis->type() == QEvent::ModifiedChange)
        ToonOpgeslagen();
}

/// A settings file that cannot be written costs the user little: told once, then kept quiet.
void frmLedenAdmin::BewaarInstellingen()
{
    if (alleenKijken_)
        return;
    const auto uitkomst = SchrijfInstellingen(administratie_.schijf, administratie_.mappen,
                                              administratie_.instellingen);
    if (uitkomst || instellingenfoutGemeld_)
        return;
    instellingenfoutGemeld_ = true;
    if (StaatEr(this, uitkomst))
        return;
    MeldFout(
        this, QMessageBox::Warning,
        u"De instellingen van het programma kunnen niet worden opgeslagen. De gegevens van de "
        "spelers zijn niet in gevaar: alleen de groep die u het laatst zag en het terugkeerveld "
        "worden niet onthouden. Kijk of u in die map mag schrijven."_s,
        uitkomst.error());
}

void frmLedenAdmin::closeEvent(QCloseEvent* gebeurtenis)
{
    gebeurtenis->setAccepted(opslag_.MagEindigen());
    if (!gebeurtenis->isAccepted())
        return;
    geheugen_.BewaarPlaats(*this);
    ZetWerkmap(administratie_.mappen.RVDMAP);
}

} // namespace plexoran
