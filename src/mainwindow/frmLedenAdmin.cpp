// The commands of the main window, and saving after them.
#include "mainwindow/frmLedenAdmin.h"

#include <QCloseEvent>

#include "dialogs/diaGrNamen.h"
#include "dialogs/diaIngave.h"
#include "mainwindow/nummerlijst.h"
#include "mainwindow/verwijderen.h"
#include "platform/programma.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/knop.h"

namespace plexoran {
namespace {

void PasToe(QPushButton* knop, Zichtbaarheid zichtbaarheid)
{
    if (zichtbaarheid != Zichtbaarheid::Ongemoeid)
        knop->setVisible(zichtbaarheid == Zichtbaarheid::Tonen);
}

} // namespace

frmLedenAdmin::frmLedenAdmin(Administratie& administratie, QWidget* ouder)
    : QMainWindow(ouder), administratie_(administratie)
{
    Bouw();
}

// ---------------------------------------------------------------- groups

Tekst frmLedenAdmin::Groeptekst() const
{
    return administratie_.groepen.Toontekst(cmbGr->currentIndex() + 1);
}

void frmLedenAdmin::VulGroepen()
{
    const QSignalBlocker stil(cmbGr);
    cmbGr->clear();
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        cmbGr->addItem(NaarQString(administratie_.groepen.Toontekst(nummer)));
}

/// Selecting runs the display, also when the place stays the same.
void frmLedenAdmin::KiesGroep(int plaats)
{
    {
        const QSignalBlocker stil(cmbGr);
        cmbGr->setCurrentIndex(plaats);
    }
    ToonGroep();
}

void frmLedenAdmin::ToonGroep()
{
    const Tekst groeptekst = Groeptekst();
    const Tekst code(CodeUit(groeptekst));
    const Groepsbeeld beeld = BeeldVan(administratie_.mappen, code);
    const Spelertabel& tabel = administratie_.spelers.tabel;
    Weergave weergave = BouwWeergave(tabel, code);
    const int regels = static_cast<int>(weergave.size());

    Label3->setText(QStringLiteral("Aantal regels: %1").arg(regels));
    for (QWidget* deel : std::initializer_list<QWidget*>{cmdWijzig, cmdVerwijder, cmdVerwijderVT,
                                                         cmbVerwVan, cmbVerwTot})
        deel->setEnabled(regels > 0);
    regelnummers_->ZetAantal(regels);
    cmbVerwVan->setCurrentIndex(regels > 0 ? 0 : -1);
    cmbVerwTot->setCurrentIndex(regels > 0 ? 0 : -1);
    PasKnoppenAan(beeld);
    const QString printtekst =
        QStringLiteral("Print deze groep: %1 ...").arg(NaarQString(groeptekst));
    cmdPrint->setText(MetSneltoets(printtekst, u'P'));
    cmdPrint->setToolTip(printtekst);

    picP0->Toon(tabel, std::move(weergave), beeld.kolomnamen);
    if (administratie_.instellingen.LOSTGR != cmbGr->currentIndex())
        picP0->NaarBoven();
    administratie_.instellingen.LOSTGR = static_cast<std::int16_t>(cmbGr->currentIndex());
    BewaarInstellingen();
}

void frmLedenAdmin::PasKnoppenAan(const Groepsbeeld& beeld)
{
    PasToe(cmdHaalNBBnamen, beeld.cmdHaalNBBnamen);
    PasToe(cmdToonGatenlijst, beeld.cmdToonGatenlijst);
    cmdKoppel->setVisible(beeld.importgroep);
    cmdSortlijst2->setVisible(beeld.importgroep);
    cmdSortlijst3->setText(MetSneltoets(
        beeld.importgroep ? QStringLiteral("NBBgroep") : QStringLiteral("Subgroep"), u'o'));
}

/// A settings file that cannot be written costs the user little: told once, then kept quiet.
void frmLedenAdmin::BewaarInstellingen()
{
    const auto uitkomst = SchrijfInstellingen(administratie_.schijf, administratie_.mappen,
                                              administratie_.instellingen);
    if (uitkomst || instellingenfoutGemeld_)
        return;
    instellingenfoutGemeld_ = true;
    Meld(this, QMessageBox::Warning,
         QStringLiteral("De instellingen van het programma kunnen niet worden bewaard. De gegevens "
                        "van de spelers zijn niet in gevaar: alleen de groep die u het laatst zag "
                        "en het terugkeerveld worden niet onthouden.\n\n") +
             Bijzonderheden(uitkomst.error()));
}

// ---------------------------------------------------------------- commands

bool frmLedenAdmin::IsRegelGekozen()
{
    if (picP0->Regel() > 0)
        return true;
    Meld(this, QMessageBox::Warning, QStringLiteral("Er is geen regel geselecteerd!"));
    return false;
}

bool frmLedenAdmin::ToonIngave(Ingave& ingave)
{
    const Tekst groeptekst = Groeptekst();
    ingave.groeptekst = groeptekst;
    ingave.importgroep = CodeUit(groeptekst) == administratie_.mappen.DFIMPG;
    diaIngave venster(
        ingave, administratie_.instellingen.OPTIND, [this] { BewaarInstellingen(); }, this);
    venster.exec();
    return !ingave.IngaveGeannuleerd;
}

void frmLedenAdmin::VoegToe()
{
    Ingave ingave;
    ingave.IngaveModus = "Aanmaken";
    ingave.rij = administratie_.spelers.tabel.Rijen() + 1;
    if (!ToonIngave(ingave))
        return;
    if (!VoegSpelerToe(administratie_.spelers, Groeptekst(), ingave.IngaveVelden)) {
        Meld(this, QMessageBox::Critical,
             QStringLiteral("De speler is niet toegevoegd: de spelersleutels zijn op. Kijk het "
                            "getal na achter HKEY= in het spelerbestand."));
        return;
    }
    (void)SlaOp();
    ToonGroep();
    picP0->BrengInBeeld(picP0->Regels());
}

void frmLedenAdmin::Wijzig()
{
    if (!IsRegelGekozen())
        return;
    const int regel = picP0->Regel();
    Ingave ingave;
    ingave.rij = picP0->GetoondeRijen()[static_cast<std::size_t>(regel - 1)];
    ingave.IngaveVelden = administratie_.spelers.tabel.Velden(ingave.rij);
    if (!ToonIngave(ingave))
        return;
    WijzigSpeler(administratie_.spelers, ingave.rij, ingave.IngaveVelden);
    (void)SlaOp();
    ToonGroep();
}

/// `vraag` names the lines; the warning is the same for one line and for many.
bool frmLedenAdmin::VraagVerwijderen(const QString& vraag)
{
    const QStringList regels{
        QStringLiteral("\t\tLET OP!"),
        QString(),
        QStringLiteral("Als u spelers verwijdert die nog voorkomen in bestaande zittingen dan zal "
                       "hun naam daarin niet meer verschijnen."),
        QStringLiteral("Voor competitie-zittingen betekent dat ook dat ze niet meer meedoen."),
        QString(),
        QStringLiteral("Het opnieuw invoeren van een speler die per vergissing is verwijderd heeft "
                       "alleen zin als men in elke relevante zitting zijn naam opnieuw ingeeft."),
        QString(),
        vraag,
        QString(),
    };
    return Vraag(this, QMessageBox::Information,
                 regels.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"),
                 QStringLiteral("Verwijderen"));
}

void frmLedenAdmin::VerwijderGekozen()
{
    if (!IsRegelGekozen())
        return;
    const int regel = picP0->Regel();
    if (!VraagVerwijderen(
            QStringLiteral("Weet u zeker dat u regel %1 wilt verwijderen?").arg(regel)))
        return;
    VerwijderRij(administratie_.spelers.tabel, picP0->GetoondeRijen(), regel);
    const Opslag opslag = SlaOp();
    ToonGroep();
    if (opslag != Opslag::Mislukt)
        Meld(this, QMessageBox::Information, QStringLiteral("De regel is verwijderd."));
    MeldRegisterBehouden(opslag);
}

void frmLedenAdmin::VerwijderVanTot()
{
    const int van = cmbVerwVan->currentIndex() + 1;
    const int tot = cmbVerwTot->currentIndex() + 1;
    if (van > tot) {
        Meld(this, QMessageBox::Warning,
             QStringLiteral("Er is niets verwijderd: regel %1 komt na regel %2. Kies bij 'Van "
                            "regel' de eerste en bij 'T/m regel' de laatste regel.")
                 .arg(van)
                 .arg(tot));
        return;
    }
    if (!VraagVerwijderen(QStringLiteral("Weet u zeker dat u regel %1 t/m regel %2 wilt "
                                         "verwijderen?")
                              .arg(van)
                              .arg(tot)))
        return;
    const int groep = cmbGr->currentIndex();
    VerwijderRijen(administratie_.spelers.tabel, picP0->GetoondeRijen(), van, tot);
    const Opslag opslag = SlaOp();
    ToonGroep();
    if (opslag != Opslag::Mislukt)
        Meld(this, QMessageBox::Information, QStringLiteral("De regels zijn verwijderd."));
    MeldRegisterBehouden(opslag);
    KiesGroep(groep);
}

void frmLedenAdmin::WijzigGroepsnamen()
{
    const Groepen oud = administratie_.groepen;
    diaGrNamen venster(administratie_.groepen, this);
    venster.exec();
    if (venster.Geannuleerd() || !BewaarGroepen(oud))
        return;
    VulGroepen();
    KiesGroep(0);
}

/// Names that cannot be saved are taken back, so that screen and file stay one.
bool frmLedenAdmin::BewaarGroepen(const Groepen& oud)
{
    for (;;) {
        const auto uitkomst =
            SchrijfGroepen(administratie_.schijf, administratie_.mappen, administratie_.groepen);
        if (uitkomst)
            return true;
        const int antwoord =
            Kies(this, QMessageBox::Critical,
                 QStringLiteral("De groepsnamen konden niet worden bewaard. Het bestand is "
                                "gebleven zoals het was.\n\n") +
                     Bijzonderheden(uitkomst.error()),
                 {QStringLiteral("Opnieuw proberen"), QStringLiteral("Annuleren")});
        if (antwoord != 0) {
            administratie_.groepen = oud;
            return false;
        }
    }
}

void frmLedenAdmin::StartGatenlijst()
{
    const auto uitkomst = StartProgramma(administratie_.schijf,
                                         Samen(administratie_.mappen.RVDMAP, "Gatenlijst.exe"));
    if (uitkomst)
        return;
    if (uitkomst.error().soort == Foutsoort::Ontbreekt)
        Meld(this, QMessageBox::Warning,
             QStringLiteral("Het programma 'Gatenlijst.exe' is niet te vinden."));
    else
        Meld(this, QMessageBox::Warning,
             QStringLiteral("Het programma 'Gatenlijst.exe' kon niet worden gestart.\n\n") +
                 Bijzonderheden(uitkomst.error()));
}

// ---------------------------------------------------------------- saving

/// Save and reload. A change that could not be saved stays in the table and is tried again with the
/// next save and at the end of the program.
frmLedenAdmin::Opslag frmLedenAdmin::SlaOp()
{
    const bool leeg = administratie_.spelers.tabel.Rijen() == 0;
    Overschrijven overschrijven = Overschrijven::AlleenEigen;
    for (;;) {
        const auto uitkomst = SchrijfSpelers(administratie_.schijf, administratie_.mappen,
                                             administratie_.spelers, overschrijven);
        if (uitkomst)
            break;
        nietOpgeslagen_ = true;
        setWindowModified(true);
        ToonGroep();
        if (uitkomst.error().soort != Foutsoort::Gewijzigd) {
            if (!OpnieuwProberen(uitkomst.error()))
                return Opslag::Mislukt;
            continue;
        }
        const int antwoord = Kies(
            this, QMessageBox::Warning,
            QStringLiteral("Het spelerbestand is door een ander programma gewijzigd nadat het hier "
                           "is ingelezen.\n\nOpslaan: uw gegevens vervangen dat bestand; er komt "
                           "eerst een kopie van in de map Reservekopie.\nOpnieuw inlezen: uw "
                           "laatste wijziging vervalt.\n\n") +
                Bijzonderheden(uitkomst.error()),
            {QStringLiteral("Opslaan"), QStringLiteral("Opnieuw inlezen"),
             QStringLiteral("Later beslissen")});
        if (antwoord == 0) {
            overschrijven = Overschrijven::OokGewijzigd;
            continue;
        }
        if (antwoord == 1)
            LeesOpnieuw();
        return Opslag::Mislukt;
    }
    LeesOpnieuw();
    return leeg && administratie_.spelers.tabel.Rijen() > 0 ? Opslag::RegisterBehouden
                                                            : Opslag::Gelukt;
}

void frmLedenAdmin::LeesOpnieuw()
{
    nietOpgeslagen_ = false;
    setWindowModified(false);
    const Leesverslag verslag =
        LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    if (!verslag.fout && verslag.zonderAchternaam.empty())
        return;
    ToonGroep(); // the grid must not show the old rows behind the box
    MeldLezing(verslag);
}

bool frmLedenAdmin::OpnieuwProberen(const Fout& fout)
{
    const QString wat =
        fout.soort == Foutsoort::GeenReservekopie
            ? QStringLiteral("Er is niets opgeslagen: het spelerbestand bevat gegevens die niet "
                             "zijn ingelezen, en de kopie die daarvan eerst moet worden gemaakt "
                             "in de map Reservekopie is mislukt.")
            : QStringLiteral("De spelers konden niet worden opgeslagen.");
    return Kies(this, QMessageBox::Critical,
                wat +
                    QStringLiteral(
                        "\n\nHet spelerbestand op de schijf is heel gebleven. Uw laatste wijziging "
                        "staat nog wel in dit programma: verhelp de oorzaak en probeer het "
                        "opnieuw, of ga door; bij de volgende wijziging en bij het afsluiten "
                        "wordt het weer geprobeerd.\n\n") +
                    Bijzonderheden(fout),
                {QStringLiteral("Opnieuw proberen"), QStringLiteral("Doorgaan")}) == 0;
}

void frmLedenAdmin::MeldRegisterBehouden(Opslag opslag)
{
    if (opslag == Opslag::RegisterBehouden)
        Meld(this, QMessageBox::Information,
             QStringLiteral("Een register zonder spelers wordt niet opgeslagen: het spelerbestand "
                            "houdt zijn laatste inhoud, en die ziet u nu weer."));
}

void frmLedenAdmin::closeEvent(QCloseEvent* gebeurtenis)
{
    gebeurtenis->accept();
    if (nietOpgeslagen_) {
        const int antwoord =
            Kies(this, QMessageBox::Warning,
                 QStringLiteral("De laatste wijzigingen staan nog niet in het spelerbestand."),
                 {QStringLiteral("Opslaan"), QStringLiteral("Niet opslaan"),
                  QStringLiteral("Annuleren")});
        const bool klaar = antwoord == 1 || (antwoord == 0 && SlaOp() != Opslag::Mislukt);
        if (!klaar) {
            gebeurtenis->ignore();
            return;
        }
    }
    ZetWerkmap(administratie_.mappen.RVDMAP);
}

} // namespace plexoran
