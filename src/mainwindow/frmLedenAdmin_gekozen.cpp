// Finding players in all groups, and what is done with all that are chosen, in the grid or in the
// list of who was found.
#include <QMenu>
#include <QShortcut>
#include <QStackedLayout>

#include <algorithm>

#include "exchange/frmEtiketten.h"
#include "exchange/frmExport.h"
#include "exchange/frmMail.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "printing/frmPrintIni.h"

namespace plexoran {

void frmLedenAdmin::BouwGekozenmenu()
{
    findChild<QMenu*>(u"mnuSpeler"_s)
        ->insertMenu(findChild<QAction*>(u"actSpToevoegen"_s), mnuGekozen);
    // Not by a loop of their own: it would keep what other programs did from being seen.
    Roostervlak* vlak = picP0->Vlak();
    connect(vlak, &Roostervlak::menuGevraagd, this, [this, vlak](QPoint plek) {
        vlak->setFocus();
        mnuGekozen->popup(plek);
    });
    Regellijst* lijst = picZoek->Lijst();
    auto* kopieer = lijst->findChild<QAction*>(u"actRegelKopieren"_s);
    kopieer->disconnect(); // a sheet takes the columns of a player, not his line
    connect(kopieer, &QAction::triggered, this, [this] {
        inRooster_ = false;
        KopieerGekozen();
    });
    lijst->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lijst, &QWidget::customContextMenuRequested, this, [this, lijst](QPoint plek) {
        lijst->setFocus();
        mnuGekozen->popup(lijst->viewport()->mapToGlobal(plek));
    });

    connect(picZoek, &Zoekbalk::opengegaan, this, &frmLedenAdmin::OpenZoeken);
    connect(picZoek, &Zoekbalk::aangeklikt, this, &frmLedenAdmin::GaNaar);
    connect(picZoek, &Zoekbalk::verwijderGevraagd, this, &frmLedenAdmin::VerwijderGekozen);
    connect(picZoek, &Zoekbalk::gevraagd, this, [this, vlak](int rij, bool ctrl) {
        if (!GaNaar(rij))
            return;
        if (ctrl)
            Wijzig();
        else
            vlak->setFocus();
    });
    connect(picZoek, &Zoekbalk::verlaten, this, &frmLedenAdmin::NaarRooster);
    terug_ = new QShortcut(Qt::Key_Escape, this);
    terug_->setEnabled(false);
    connect(terug_, &QShortcut::activated, this, [this] {
        picP0->Vlak()->setFocus();
        ZetPlek(std::move(vanwaar_));
        picZoek->Leeg();
    });
}

void frmLedenAdmin::OpenZoeken(bool open)
{
    if (open)
        vanwaar_ = NeemPlek();
    onderblad_->setCurrentIndex(open ? 1 : 0);
    knoppen_->setVisible(open || actKnoppen->isChecked());
    terug_->setEnabled(open);
    WerkOpdrachtenBij();
}

/// False when he is in a group that is none of the fifty, after saying so.
bool frmLedenAdmin::GaNaar(int rij)
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const int groep = Groepnummer(tabel.Cel(rij, Kolom::Groep));
    if (groep == 0) {
        Meld(this, QMessageBox::Warning,
             u"%1 staat in groep '%2', die niet bestaat, en is daarom niet te tonen. Er is niets "
             "veranderd. Met 'Controle van de administratie' is dat te herstellen."_s.arg(
                 NaarQString(VolleNaam(tabel, rij)), NaarQString(tabel.Cel(rij, Kolom::Groep))));
        return false;
    }
    if (cmbGr->currentIndex() != groep - 1)
        KiesGroep(groep - 1);
    Roostervlak& vlak = *picP0->Vlak();
    const auto plek = std::ranges::find(vlak.Rijen(), rij);
    vlak.KiesRegel(static_cast<int>(plek - vlak.Rijen().begin()) + 1);
    return true;
}

frmLedenAdmin::Roosterplek frmLedenAdmin::NeemPlek() const
{
    const Roostervlak& vlak = *picP0->Vlak();
    const auto key = [&](int regel) {
        return Tekst(administratie_.spelers.tabel.Cel(RijOp(regel), Kolom::Key));
    };
    Roosterplek plek{.groep = cmbGr->currentIndex(),
                     .huidige = GekozenKey(),
                     .gekozen = {},
                     .hoogte = picP0->Staand().value()};
    for (const int regel : vlak.Gekozen())
        plek.gekozen.insert(key(regel));
    return plek;
}

void frmLedenAdmin::ZetPlek(Roosterplek plek)
{
    if (cmbGr->currentIndex() != plek.groep)
        KiesGroep(plek.groep);
    Roostervlak& vlak = *picP0->Vlak();
    int huidige = 0;
    std::vector<int> gekozen;
    for (int regel = 1; !plek.huidige.empty() && regel <= vlak.Regels(); ++regel) {
        const Tekst key(administratie_.spelers.tabel.Cel(RijOp(regel), Kolom::Key));
        if (huidige == 0 && key == plek.huidige)
            huidige = regel;
        if (plek.gekozen.erase(key) > 0)
            gekozen.push_back(regel);
    }
    if (huidige == 0 && !gekozen.empty())
        huidige = gekozen.front();
    vlak.Kies(huidige, std::move(gekozen));
    picP0->Staand().setValue(plek.hoogte);
}

/// Whether a command is about who was found: as long as the grid did not get the keys since.
bool frmLedenAdmin::KiestInLijst() const
{
    return picZoek->IsOpen() && !inRooster_;
}

/// As they are shown; none after saying so.
std::vector<int> frmLedenAdmin::TeDoenRijen()
{
    std::vector<int> rijen = GekozenRijen();
    if (rijen.empty())
        Meld(this, QMessageBox::Warning, u"Er is geen regel geselecteerd!"_s);
    return rijen;
}

/// Who is current in the list becomes so in the grid, which the commands for one player are about.
bool frmLedenAdmin::BrengInRooster()
{
    return !KiestInLijst() || picZoek->Huidige() == 0 || GaNaar(picZoek->Huidige());
}

void frmLedenAdmin::DoeGekozen(Gekozenwerk werk)
{
    std::vector<int> rijen = MagWijzigen() ? TeDoenRijen() : std::vector<int>();
    if (rijen.empty())
        return;
    std::ranges::sort(rijen); // copies come in table order
    frmVeld venster(administratie_, rijen, NamenVan(rijen), werk, this);
    if (venster.exec() != QDialog::Accepted)
        return;
    Register& spelers = administratie_.spelers;
    Roosterplek plek = NeemPlek();
    if (!venster.VoerUit(spelers)) {
        MeldSleutelsOp(this, u"Er is niets gekopieerd"_s,
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
        return;
    }
    const Noteer noteer(administratie_.geschiedenis, venster.Wat());
    SlaOpEnToon();
    ZetPlek(std::move(plek)); // who is still there
}

void frmLedenAdmin::MaakPaarGekozen()
{
    const std::vector<int> rijen = MagWijzigen() ? TeDoenRijen() : std::vector<int>();
    if (rijen.empty())
        return;
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const auto samen = [&](Kolom kolom) {
        return tabel.Cel(rijen.front(), kolom) == tabel.Cel(rijen.back(), kolom);
    };
    const int groep = Groepnummer(tabel.Cel(rijen.front(), Kolom::Groep));
    if (rijen.size() == 2 && groep > 0 && samen(Kolom::Groep) && samen(Kolom::NBBgr))
        OpenParen(administratie_.groepen.Toontekst(groep), rijen);
    else
        Meld(this, QMessageBox::Information,
             u"Een paar bestaat uit twee spelers van dezelfde groep en subgroep. Er is niets "
             "veranderd. Kies er twee met Ctrl en de muis, of met Shift en de pijltjes."_s);
}

void frmLedenAdmin::VerwijderGekozen()
{
    const std::vector<int> rijen = MagWijzigen() ? TeDoenRijen() : std::vector<int>();
    const QString wie = Aantal(rijen.size(), u"speler"_s, u"spelers"_s);
    if (!rijen.empty())
        Verwijder(rijen, wie, NaarTekst(wie), {});
}

/// The columns' names in the groups of these players: those of the import group where one of them
/// is in it.
Namenrij frmLedenAdmin::NamenVan(const std::vector<int>& rijen) const
{
    Tekstblik groep = administratie_.mappen.DFIMPG;
    const auto groepVan = [this](int rij) {
        return administratie_.spelers.tabel.Cel(rij, Kolom::Groep);
    };
    if (!rijen.empty() && std::ranges::find(rijen, groep, groepVan) == rijen.end())
        groep = groepVan(rijen.front());
    return BeeldVan(administratie_.mappen, groep).kolomnamen;
}

void frmLedenAdmin::PrintGekozen()
{
    const std::vector<int> rijen = TeDoenRijen();
    if (rijen.empty())
        return;
    const QString wie = Aantal(rijen.size(), u"gekozen speler"_s, u"gekozen spelers"_s);
    frmPrintIni venster(administratie_, NaarTekst(wie), NamenVan(rijen), this, Getalnotatie(),
                        rijen);
    OpenPrintkeuze(venster);
}

void frmLedenAdmin::EtikettenGekozen()
{
    if (const std::vector<int> rijen = TeDoenRijen(); !rijen.empty())
        frmEtiketten(administratie_, rijen, this).exec();
}

void frmLedenAdmin::Exporteer()
{
    OpenExport({});
}

void frmLedenAdmin::ExporteerGekozen()
{
    if (std::vector<int> rijen = TeDoenRijen(); !rijen.empty())
        OpenExport(std::move(rijen));
}

/// The players in these rows, or those of the group where there are none.
void frmLedenAdmin::OpenExport(std::vector<int> rijen)
{
    frmExport venster(administratie_, CodeUit(Groeptekst()), this, std::move(rijen));
    if (venster.exec() == QDialog::Accepted)
        ToonMelding(venster.Gedaan());
}

void frmLedenAdmin::Mail()
{
    frmMail(administratie_, picP0->Vlak()->Rijen(), this).exec();
}

void frmLedenAdmin::MailGekozen()
{
    if (const std::vector<int> rijen = TeDoenRijen(); !rijen.empty())
        frmMail(administratie_, rijen, this).exec();
}

} // namespace plexoran
