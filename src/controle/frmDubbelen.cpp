#include "controle/frmDubbelen.h"

#include <algorithm>
#include <array>
#include <set>

#include "controle/controleur.h"
#include "controle/frmControle.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/boom.h"
#include "platform/scherm/frmVoortgang.h"
#include "register/herstel.h"

namespace plexoran {
namespace {

enum { KolomVeld, KolomLinks, KolomRechts };

/// In the order of `Dubbelreden`.
const std::array Redenen{u"zelfde NBB-nummer"_s,
                         u"zelfde e-mailadres"_s,
                         u"zelfde naam"_s,
                         u"naam gelijk op accenten en tekens na"_s,
                         u"naam gelijk op het tussenvoegsel na"_s,
                         u"voornaam en achternaam omgewisseld"_s,
                         u"voorletter in plaats van voornaam"_s,
                         u"naam scheelt één letter"_s,
                         u"zelfde telefoonnummer"_s,
                         u"maar een ander NBB-nummer"_s,
                         u"dezelfde speler in twee groepen"_s};

QTreeWidget* MaakLijst(const QString& naam, const QString& gesproken, const QStringList& koppen,
                       QWidget* ouder)
{
    auto* lijst = MaakBoom(naam, gesproken, koppen, ouder);
    lijst->setRootIsDecorated(false);
    lijst->setTextElideMode(Qt::ElideMiddle);
    lijst->header()->setSectionResizeMode(QHeaderView::Stretch);
    return lijst;
}

QString Plaatstekst(const Vindplaats& plaats)
{
    QString tekst = u"Paar "_s + NaarQString(plaats.paar);
    if (plaats.zitting)
        tekst = Zittingnaam(*plaats.zitting) + u": "_s + NaarQString(plaats.zitting->plaatsen);
    switch (plaats.bezwaar) {
    case Bezwaar::Geen:
        break;
    case Bezwaar::ZelfdePaar:
        return tekst + u" (vervalt: dat paar staat er al met de sleutel die blijft)"_s;
    case Bezwaar::AnderPaar:
        return tekst + u" (de sleutel die blijft, staat daar al in een ander paar)"_s;
    case Bezwaar::Beide:
        return tekst + u" (blijft zo: beide sleutels staan er)"_s;
    }
    return tekst;
}

} // namespace

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

void frmDubbelen::Bouw()
{
    setObjectName(u"frmDubbelen"_s);
    setWindowTitle(u"Dubbele spelers"_s);
    lblUitslag = MaakLabel(u"lblUitslag"_s, QString(), this);
    lblUitslag->setWordWrap(true);
    lstDubbelen = MaakLijst(u"lstDubbelen"_s, u"Mogelijke dubbelen"_s,
                            {u"Speler"_s, u"Misschien dezelfde"_s, u"Waarom"_s}, this);
    const Maten maten;
    lstDubbelen->header()->setSectionResizeMode(QHeaderView::Interactive);
    for (const int kolom : {0, 1}) // the reasons take the rest
        lstDubbelen->header()->resizeSection(kolom, maten.Twips(3600));
    optLinks = MaakOptie(u"optLinks"_s, QString(), 0, this);
    optRechts = MaakOptie(u"optRechts"_s, QString(), 0, this);
    lstVelden = MaakLijst(u"lstVelden"_s, u"Beide spelers, per veld"_s, {QString()}, this);
    lstVelden->setSelectionBehavior(QAbstractItemView::SelectItems); // the arrows go sideways too
    lstPlaatsen = MaakLijst(u"lstPlaatsen"_s, u"Waar de sleutel die vervalt nog staat"_s,
                            {QString(), u"Bestand"_s}, this);
    cmdSamenvoegen =
        MaakKnop(u"cmdSamenvoegen"_s, u"Samenvoegen"_s, u'S', this, &frmDubbelen::VoegSamen);
    cmdGeenDubbelen =
        MaakKnop(u"cmdGeenDubbelen"_s, u"Geen dubbelen"_s, u'G', this, &frmDubbelen::GeenDubbelen);
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'u', this, &QDialog::accept);
    cmdSluiten->setDefault(true);
    connect(lstDubbelen, &QTreeWidget::currentItemChanged, this, &frmDubbelen::VulVelden);
    connect(optLinks, &QRadioButton::toggled, this, &frmDubbelen::VulPlaatsen);
    connect(lstVelden, &QTreeWidget::itemChanged, this, &frmDubbelen::Kies);

    Onderelkaar({lblUitslag,
                 {lstDubbelen, 2},
                 Naastelkaar({optLinks, optRechts, 1}),
                 {lstVelden, 3},
                 {lstPlaatsen, 1},
                 Knoppenrij({cmdSamenvoegen, cmdGeenDubbelen, cmdSluiten})},
                this);
    PasInScherm(this, maten.Twips(13500, 9900));
    lstDubbelen->setFocus();
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

QString frmDubbelen::Samenvatting() const
{
    const std::size_t aantal = uitslag_.paren.size();
    QString tekst = !gedaan_.isEmpty() ? u"Klaar: alle mogelijke dubbelen zijn behandeld."_s
                                       : u"Er zijn geen dubbele spelers gevonden."_s;
    if (aantal > 0)
        tekst = Aantal(aantal, u"mogelijke dubbel"_s, u"mogelijke dubbelen"_s) +
                u", de waarschijnlijkste eerst."_s;
    if (uitslag_.meer > 0)
        tekst += u" Na deze zijn er nog %1."_s.arg(uitslag_.meer);
    if (uitslag_.teVaak)
        tekst += u" Wat meer dan %1 spelers gemeen hebben, telt niet mee."_s.arg(MeesteGelijken);
    if (uitslag_.gestopt)
        tekst += u" Het zoeken is gestopt: de lijst is niet volledig."_s;
    return tekst;
}

void frmDubbelen::VulDubbelen(int regel)
{
    const auto& tabel = administratie_.spelers.tabel;
    const auto wie = [&](int rij) {
        return NaarQString(VolleNaam(tabel, rij) + " (" + Key(rij) + ", " +
                           Tekst(tabel.Cel(rij, Kolom::Groep)) + ")");
    };
    {
        const QSignalBlocker stil(lstDubbelen);
        lstDubbelen->clear();
        for (const Dubbelpaar& paar : uitslag_.paren) {
            QStringList redenen;
            for (std::size_t i = 0; i < Redenen.size(); ++i) {
                if (paar.redenen[i])
                    redenen << Redenen.at(i);
            }
            new Boomregel(lstDubbelen, {wie(paar.rij), wie(paar.latere), redenen.join(u", "_s)});
        }
        const int laatste = lstDubbelen->topLevelItemCount() - 1;
        lstDubbelen->setCurrentItem(lstDubbelen->topLevelItem(std::min(regel, laatste)));
    }
    lblUitslag->setText(gedaan_ + Samenvatting());
    lstDubbelen->setAccessibleDescription(lblUitslag->text()); // read out when it gets the focus
    for (QWidget* deel : std::initializer_list<QWidget*>{cmdSamenvoegen, cmdGeenDubbelen, optLinks,
                                                         optRechts, lstVelden, lstPlaatsen})
        deel->setEnabled(Paar() != nullptr);
    VulVelden();
}

/// Where one has nothing, the other's is proposed; the key in the fewest files goes.
void frmDubbelen::VulVelden()
{
    const QSignalBlocker stil(lstVelden);
    lstVelden->clear();
    const Dubbelpaar* paar = Paar();
    if (paar == nullptr) {
        lstPlaatsen->clear();
        return;
    }
    const Tekst links = Key(paar->rij);
    const Tekst rechts = Key(paar->latere);
    optLinks->setText(MetSneltoets(u"Links blijft: sleutel "_s + NaarQString(links), u'L'));
    optRechts->setText(MetSneltoets(u"Rechts blijft: sleutel "_s + NaarQString(rechts), u'R'));
    const bool rechtsBlijft = !Sleutelgetal(links) || vindplaatsen_.Van(links, {}).size() <
                                                          vindplaatsen_.Van(rechts, {}).size();
    {
        const QSignalBlocker stilleKeus(optLinks);
        (rechtsBlijft ? optRechts : optLinks)->setChecked(true);
    }
    lstVelden->setHeaderLabels(
        {u"Veld"_s, NaarQString(Naam(paar->rij)), NaarQString(Naam(paar->latere))});
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const bool bondslid = IsBondslid(paar->rij);
    const bool eenBondslid = bondslid != IsBondslid(paar->latere);
    QFont vet = lstVelden->font();
    vet.setBold(true);
    for (auto i = Index(Kolom::Groep); i < AantalKolommen; ++i) {
        const auto kolom = static_cast<Kolom>(i + 1);
        const QString een = NaarQString(tabel.Cel(paar->rij, kolom));
        const QString ander = NaarQString(tabel.Cel(paar->latere, kolom));
        const bool subgroep = kolom == Kolom::NBBgr && !bondslid;
        auto* veld = new Boomregel(
            lstVelden, {NaarQString(subgroep ? Subgroepnaam : Kolomnamen[i]), een, ander});
        if (een == ander)
            continue;
        // The next import looks for a member in his group, by his number.
        const bool vanBond =
            kolom == Kolom::Groep || kolom == Kolom::NBBgr || kolom == Kolom::NBBnr;
        const bool rechtse = eenBondslid && vanBond
                                 ? !bondslid
                                 : een.isEmpty() || (rechtsBlijft && !ander.isEmpty());
        veld->setCheckState(KolomLinks, rechtse ? Qt::Unchecked : Qt::Checked);
        veld->setCheckState(KolomRechts, rechtse ? Qt::Checked : Qt::Unchecked);
        for (const int deel : {KolomVeld, KolomLinks, KolomRechts})
            veld->setFont(deel, vet);
    }
    lstVelden->setCurrentItem(lstVelden->topLevelItem(0), KolomLinks);
    VulPlaatsen();
}

/// Of each field that differs one side is chosen.
void frmDubbelen::Kies(QTreeWidgetItem* veld, int kolom)
{
    const bool gekozen = veld->checkState(kolom) == Qt::Checked;
    const QSignalBlocker stil(veld->treeWidget());
    veld->setCheckState(KolomLinks + KolomRechts - kolom, gekozen ? Qt::Unchecked : Qt::Checked);
}

void frmDubbelen::VulPlaatsen()
{
    lstPlaatsen->clear();
    plaatsen_ = Plaatsen();
    lstPlaatsen->setHeaderLabels(
        {u"Waar sleutel %1 nog staat (%2)"_s.arg(NaarQString(Key(Weg()))).arg(plaatsen_.size()),
         u"Bestand"_s});
    for (const Vindplaats& plaats : plaatsen_) {
        QStringList bestanden;
        for (const auto& bestand : plaats.bestanden)
            bestanden << Toonpad(administratie_.schijf, bestand.pad);
        auto* regel = new Boomregel(lstPlaatsen, {Plaatstekst(plaats), bestanden.join(u"; "_s)});
        if (plaats.bezwaar != Bezwaar::Beide)
            regel->setCheckState(0, plaats.bezwaar == Bezwaar::AnderPaar ? Qt::Unchecked
                                                                         : Qt::Checked);
    }
    for (const Fout& fout : vindplaatsen_.Fouten())
        new Boomregel(lstPlaatsen,
                      {u"Niet te lezen: %1"_s.arg(QString::fromStdString(fout.systeem)),
                       QString::fromStdString(fout.bestand)});
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

/// Whether the files are still as the list shows them, and can take the key that stays.
bool frmDubbelen::StaatGoed()
{
    vindplaatsen_.Herlees(administratie_.schijf, plaatsen_);
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
    for (std::size_t i = 0; i < plaatsen_.size(); ++i) {
        for (const auto& bestand : plaatsen_[i].bestanden) {
            if (IsAangevinkt(i))
                bestanden.insert(bestand.pad);
        }
    }
    QString tekst = NaarQString(Naam(Blijft()) + " blijft en " + Naam(Weg()) + " vervalt.");
    if (!bestanden.empty())
        tekst += u" In %1 komt de ene sleutel voor de andere in de plaats."_s.arg(
            Aantal(bestanden.size(), u"bestand"_s, u"bestanden"_s));
    const Rijvelden gekozen = Gekozen();
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
