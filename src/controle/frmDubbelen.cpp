#include "controle/frmDubbelen.h"

#include <set>

#include "controle/controleur.h"
#include "controle/frmControle.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "register/herstel.h"

namespace plexoran {

frmDubbelen::frmDubbelen(Administratie& administratie, std::function<bool()> slaOp, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), slaOp_(std::move(slaOp))
{
    const auto geen = LeesGeenDubbelen(administratie.schijf, administratie.mappen);
    if (geen)
        geen_ = *geen;
    else
        MeldFout(
            ouder, QMessageBox::Warning,
            u"Het bestand met wat geen dubbelen zijn, kan niet worden gelezen. Paren waarvan u "
            "zei dat ze geen dubbelen zijn, staan daarom weer in de lijst."_s,
            geen.error());
    Zoek();
    LeesPlaatsen();
    Bouw();
    VulDubbelen(0);
}

void frmDubbelen::Zoek()
{
    frmVoortgang voortgang(u"Er wordt gezocht naar dubbele spelers ..."_s, u"&Stoppen"_s,
                           isVisible() ? this : parentWidget());
    uitslag_ = ZoekDubbelen(administratie_.spelers.tabel, geen_, voortgang.AlsVoortgang());
}

void frmDubbelen::LeesPlaatsen()
{
    frmVoortgang voortgang(u"De paren en de zittingen worden gelezen ..."_s, QString(),
                           isVisible() ? this : parentWidget());
    vindplaatsen_ =
        Vindplaatsen(administratie_.schijf, administratie_.mappen, voortgang.AlsVoortgang());
}

Tekst frmDubbelen::Key(int rij) const
{
    return Tekst(administratie_.spelers.tabel.Cel(rij, Kolom::Key));
}

bool frmDubbelen::IsBondslid(int rij) const
{
    return administratie_.spelers.tabel.Cel(rij, Kolom::Groep) == administratie_.mappen.DFIMPG;
}

Tekst frmDubbelen::Naam(int rij) const
{
    return VolleNaam(administratie_.spelers.tabel, rij) + " (" + Key(rij) + ")";
}

const Dubbelpaar* frmDubbelen::Paar() const
{
    const int regel = lstDubbelen->indexOfTopLevelItem(lstDubbelen->currentItem());
    return regel < 0 ? nullptr : &uitslag_.paren[static_cast<std::size_t>(regel)];
}

int frmDubbelen::Blijft() const
{
    return optLinks->isChecked() ? Paar()->rij : Paar()->latere;
}

std::vector<Vindplaats> frmDubbelen::Plaatsen() const
{
    return Key(Weg()) == Key(Blijft()) ? std::vector<Vindplaats>()
                                       : vindplaatsen_.Van(Key(Weg()), Key(Blijft()));
}

Rijvelden frmDubbelen::Gekozen() const
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    Rijvelden uit = tabel.Velden(Paar()->rij);
    const Rijvelden rechts = tabel.Velden(Paar()->latere);
    for (int i = 0; i < lstVelden->topLevelItemCount(); ++i) {
        const auto plek = Index(Kolom::Groep) + static_cast<std::size_t>(i);
        if (lstVelden->topLevelItem(i)->checkState(KolomRechts) == Qt::Checked)
            uit[plek] = rechts[plek];
    }
    return uit;
}

/// Whether the files are still as the list shows them, and can take the key that stays. Another
/// program may have put the key into any of them.
bool frmDubbelen::StaatGoed()
{
    LeesPlaatsen();
    if (Plaatsen() != plaatsen_) {
        VulPlaatsen();
        Meld(this, QMessageBox::Information,
             u"Een ander programma heeft intussen paren of zittingen gewijzigd. Er is nog niets "
             "samengevoegd. Kijk na waar de sleutel nu staat, en kies dan weer Samenvoegen."_s);
        return false;
    }
    if (Sleutelgetal(Key(Blijft())) || plaatsen_.empty())
        return true;
    Meld(this, QMessageBox::Warning,
         u"De sleutel die blijft, is geen zes cijfers en kan niet in paren en zittingen staan. Er "
         "is niets veranderd. Laat de andere sleutel blijven."_s);
    return false;
}

bool frmDubbelen::IsAangevinkt(std::size_t plaats) const
{
    return lstPlaatsen->topLevelItem(static_cast<int>(plaats))->checkState(0) == Qt::Checked;
}

bool frmDubbelen::IsGewild()
{
    std::set<Pad> bestanden;
    bool tweeParen = false;
    for (std::size_t i = 0; i < plaatsen_.size(); ++i) {
        if (!IsAangevinkt(i))
            continue;
        tweeParen = tweeParen || plaatsen_[i].bezwaar == Bezwaar::AnderPaar;
        for (const auto& bestand : plaatsen_[i].bestanden)
            bestanden.insert(bestand.pad);
    }
    QString tekst = NaarQString(Naam(Blijft()) + " blijft en " + Naam(Weg()) + " vervalt.");
    if (!bestanden.empty())
        tekst += u" In %1 komt de ene sleutel voor de andere in de plaats."_s.arg(
            Aantal(bestanden.size(), u"bestand"_s, u"bestanden"_s));
    if (tweeParen)
        tekst += u"\n\nLet op: wie blijft, staat dan in één bestand in twee paren. Ontbind er "
                 "daarna een met Paren-onderhoud."_s;
    const Rijvelden gekozen = Gekozen();
    for (const int rij : {Paar()->rij, Paar()->latere}) {
        const Tekst groep(administratie_.spelers.tabel.Cel(rij, Kolom::Groep));
        const int nummer = Groepnummer(groep);
        if (groep != gekozen[Index(Kolom::Groep)])
            tekst += u"\n\nLet op: wie blijft, staat dan niet meer in groep %1."_s.arg(
                NaarQString(nummer > 0 ? administratie_.groepen.Toontekst(nummer) : groep));
    }
    for (const int rij : {Paar()->rij, Paar()->latere}) {
        const Tekst nummer(administratie_.spelers.tabel.Cel(rij, Kolom::NBBnr));
        if (IsBondslid(rij) && !nummer.empty() &&
            (gekozen[Index(Kolom::Groep)] != administratie_.mappen.DFIMPG ||
             OpgemaaktNBBnr(gekozen[Index(Kolom::NBBnr)]) != OpgemaaktNBBnr(nummer)))
            tekst += u"\n\nLet op: NBB-nummer %1 staat dan niet meer in groep %2. Is het nog lid, "
                     "dan voegt de volgende import het als nieuwe speler toe."_s.arg(
                         NaarQString(nummer), NaarQString(administratie_.mappen.DFIMPG));
    }
    return Vraag(this, tekst + u"\n\nMet Ongedaan maken is alles in één keer terug te draaien."_s,
                 u"Samenvoegen?"_s);
}

/// First the files that name the key: until the register is saved both keys are somebody's.
void frmDubbelen::VoegSamen()
{
    if (!StaatGoed() || !IsGewild())
        return;
    const int blijft = Blijft();
    const int weg = Weg();
    const Tekst wie = Naam(blijft) + " samengevoegd met " + Naam(weg);
    const Tekst poging = Naam(blijft) + " en " + Naam(weg);
    if (poging != poging_)
        GeefOp();
    auto noteer =
        noteer_ ? std::move(noteer_) : std::make_unique<Noteer>(administratie_.geschiedenis, wie);
    emit begint();
    for (std::size_t i = 0; i < plaatsen_.size(); ++i) {
        if (!IsAangevinkt(i))
            continue;
        const auto vervangen =
            VervangSleutel(administratie_.schijf, plaatsen_[i], Key(weg), Key(blijft));
        if (!StaatEr(this, vervangen)) {
            noteer_ = std::move(noteer); // another try is part of it
            poging_ = poging;
            vindplaatsen_.Herlees(administratie_.schijf, plaatsen_);
            VulPlaatsen();
            MeldFout(this, QMessageBox::Warning,
                     u"De spelers zijn niet samengevoegd: een bestand kon niet worden gewijzigd. "
                     "Beide spelers staan er nog. In de bestanden die al klaar waren, staat de "
                     "sleutel die blijft; Ongedaan maken zet ze terug. Verhelp de oorzaak en kies "
                     "weer Samenvoegen."_s,
                     vervangen.error());
            return;
        }
    }
    Spelertabel& tabel = administratie_.spelers.tabel;
    VoegDubbelSamen(tabel, blijft, weg, Gekozen());
    const Spelertabel samen = tabel;
    if (!slaOp_()) {
        Meld(this, QMessageBox::Warning,
             u"De spelers zijn samengevoegd, maar dat is nog niet opgeslagen. In de aangevinkte "
             "paren en zittingen staat al de sleutel die blijft. Sla de spelers op voordat u "
             "Plexoran sluit."_s);
        accept();
        return;
    }
    vindplaatsen_.Herlees(administratie_.schijf, plaatsen_);
    NeemUitParen(uitslag_.paren, weg);
    ToonGedaan(wie, !Verschillen(tabel, samen).empty()); // another program's players came too
}

void frmDubbelen::GeefOp()
{
    if (noteer_)
        administratie_.geschiedenis.Noem("Niet samengevoegd: " + poging_);
    noteer_.reset();
}

/// The next pair, or what more there is.
void frmDubbelen::ToonGedaan(const Tekst& gedaan, bool zoek)
{
    gedaan_ = NaarQString(gedaan) + u". "_s;
    const int regel = lstDubbelen->indexOfTopLevelItem(lstDubbelen->currentItem());
    if (zoek || uitslag_.paren.empty())
        Zoek();
    VulDubbelen(regel);
    lstDubbelen->setFocus(); // another Enter must not merge the next two unseen
}

void frmDubbelen::GeenDubbelen()
{
    const auto [rij, latere, redenen, waarde] = *Paar();
    if (Key(rij) == Key(latere) || Key(rij).empty() || Key(latere).empty()) {
        Meld(this, QMessageBox::Warning,
             u"Dat is niet te onthouden, want deze spelers hebben geen eigen sleutel. Er is niets "
             "veranderd. Met 'Controle van de administratie' is dat te herstellen."_s);
        return;
    }
    const Tekst wat = "Geen dubbelen: " + Naam(rij) + " en " + Naam(latere);
    GeefOp();
    const Noteer noteer(administratie_.geschiedenis, wat);
    const auto& tabel = administratie_.spelers.tabel;
    const Bewaring bewaard =
        BewaarGeenDubbel(administratie_.schijf, administratie_.mappen, tabel, rij, latere);
    if (!StaatEr(this, bewaard.gelukt)) {
        MeldFout(this, QMessageBox::Warning,
                 u"Dat dit geen dubbelen zijn, kon niet worden opgeslagen. Er is niets veranderd. "
                 "Verhelp de oorzaak en kies weer Geen dubbelen."_s,
                 bewaard.gelukt.error());
        return;
    }
    geen_ = GeenDubbelenUit(bewaard.inhoud);
    uitslag_.paren.erase(uitslag_.paren.begin() +
                         lstDubbelen->indexOfTopLevelItem(lstDubbelen->currentItem()));
    ToonGedaan(wat, false);
}

} // namespace plexoran
