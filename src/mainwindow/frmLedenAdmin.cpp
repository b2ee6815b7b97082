// The main window shows a group, remembers it, and ends.
#include "mainwindow/frmLedenAdmin.h"

#include <QCloseEvent>

#include "mainwindow/nummerlijst.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/schijf/programma.h"

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

Tekst frmLedenAdmin::Groeptekst() const
{
    return administratie_.groepen.Toontekst(cmbGr->currentIndex() + 1);
}

void frmLedenAdmin::VulGroepen()
{
    VulKeus(*cmbGr, administratie_.groepen.Toonteksten());
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
    Celmeter celmeter(tabel, picP0->Meter());
    Weergave weergave = BouwWeergave(tabel, code, [&](int rij) { celmeter.Meet(rij); });
    const int regels = static_cast<int>(weergave.size());

    Label3->setText(u"Aantal regels: %1"_s.arg(regels));
    for (QWidget* deel : std::initializer_list<QWidget*>{cmdWijzig, cmdVerwijder, cmdVerwijderVT,
                                                         cmbVerwVan, cmbVerwTot})
        deel->setEnabled(regels > 0);
    regelnummers_->ZetAantal(regels);
    cmbVerwVan->setCurrentIndex(regels > 0 ? 0 : -1);
    cmbVerwTot->setCurrentIndex(regels > 0 ? 0 : -1);
    PasKnoppenAan(beeld);
    const QString printtekst = u"Print deze groep: %1 ..."_s.arg(NaarQString(groeptekst));
    cmdPrint->setText(MetSneltoets(printtekst, u'P'));
    ZetWenk(cmdPrint, printtekst);

    picP0->Toon(tabel, std::move(weergave), celmeter.Maten(), beeld.kolomnamen);
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
    cmdSortlijst3->setText(MetSneltoets(beeld.importgroep ? u"NBBgroep"_s : u"Subgroep"_s, u'o'));
}

/// A settings file that cannot be written costs the user little: told once, then kept quiet.
void frmLedenAdmin::BewaarInstellingen()
{
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
    gebeurtenis->accept();
    if (nietOpgeslagen_) {
        const int antwoord = Kies(
            this, QMessageBox::Warning,
            u"De laatste wijzigingen staan nog niet in het spelerbestand. Met 'Niet opslaan' gaan "
            "ze verloren. Met 'Annuleren' blijft Plexoran open."_s,
            {u"Opslaan"_s, u"Niet opslaan"_s, u"Annuleren"_s});
        const bool klaar = antwoord == 1 || (antwoord == 0 && SlaOp() != Opslag::Mislukt);
        if (!klaar) {
            gebeurtenis->ignore();
            return;
        }
    }
    ZetWerkmap(administratie_.mappen.RVDMAP);
}

} // namespace plexoran
