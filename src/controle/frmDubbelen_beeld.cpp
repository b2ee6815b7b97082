// What the window shows: both players side by side, and where the key that goes still stands.
#include <algorithm>
#include <array>

#include "controle/controleur.h"
#include "controle/frmControle.h"
#include "controle/frmDubbelen.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/boom.h"

namespace plexoran {
namespace {

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
        veld->setData(KolomVeld, Qt::AccessibleTextRole,
                      u"%1, links: %2, rechts: %3"_s.arg(veld->text(KolomVeld), een, ander));
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

} // namespace plexoran
