#include "dialogs/frmTerugzetten.h"

#include <QFileDialog>

#include <algorithm>

#include "dialogs/frmVergelijk.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

QString Reden(const Kopienaam& kopie)
{
    return kopie.IsZip() ? NaarQString(kopie.reden) : u"kopie bij een conflict of schade"_s;
}

QString Wijze(const Rijverschil& verschil)
{
    if (verschil.toen == 0)
        return u"Sindsdien gekomen"_s;
    return verschil.nu == 0 ? u"Sindsdien verdwenen"_s : u"Sindsdien gewijzigd"_s;
}

std::optional<Rijvelden> Velden(const Spelertabel& tabel, int rij)
{
    return rij > 0 ? std::optional(tabel.Velden(rij)) : std::nullopt;
}

} // namespace

QString Tweedeplaatsregel(const Administratie& administratie)
{
    const Tweedeplaats plaats =
        LeesTweedeplaats(administratie.schijf, administratie.tweedeplaatsIni);
    const int dagen = DagenWeg(plaats, Tijdtekst("yyyy-MM-dd"));
    return dagen == 0 ? QString()
                      : u"De tweede plaats voor reservekopieën (%2) heeft al %1 dagen geen nieuwe "
                        "gekregen."_s.arg(dagen)
                            .arg(Toonpad(administratie.schijf, plaats.map));
}

frmTerugzetten::frmTerugzetten(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"frmTerugzetten"_s);
    setWindowTitle(u"Reservekopie terugzetten"_s);
    Bouw();
    ToonTweedePlaats();
    LeesLijst();
}

void frmTerugzetten::Bouw()
{
    auto* Label1 = MaakUitleg(
        u"Label1"_s,
        u"Kies een reservekopie. Daaronder staat wat er sindsdien is veranderd: vink de spelers "
        "aan die weer moeten worden zoals ze toen waren. Wie sindsdien gekomen is en wordt "
        "aangevinkt, verdwijnt."_s,
        this);
    lstReserves = MaakBoom(u"lstReserves"_s, u"Reservekopieën"_s,
                           {u"Datum"_s, u"Reden"_s, u"Aantal spelers"_s}, this);
    lstReserves->setRootIsDecorated(false);
    connect(lstReserves, &QTreeWidget::currentItemChanged, this, &frmTerugzetten::KiesReserve);
    Label2 = MaakUitleg(u"Label2"_s, QString(), this);
    lstVerschillen = MaakBoom(u"lstVerschillen"_s, u"Verschillen per speler"_s,
                              {u"Speler"_s, u"Nu"_s, u"In de reservekopie"_s}, this);
    for (const QTreeWidget* lijst : {lstReserves, lstVerschillen})
        lijst->header()->setSectionResizeMode(QHeaderView::Stretch);
    const Maten maten;
    lstVerschillen->header()->setSectionResizeMode(0, QHeaderView::Interactive);
    lstVerschillen->header()->resizeSection(0, maten.Twips(4300)); // a name and the key behind it
    connect(lstVerschillen, &QTreeWidget::itemExpanded, this, &frmTerugzetten::ToonVelden);
    connect(lstVerschillen, &QTreeWidget::itemChanged, this, &frmTerugzetten::ToonKnoppen);
    chkOokGroepen = MaakVink(u"chkOokGroepen"_s, u"Ook groepsnamen en paren"_s, u'g', this);
    connect(chkOokGroepen, &QCheckBox::toggled, this, &frmTerugzetten::ToonKnoppen);
    lblTweedePlaats = MaakUitleg(u"lblTweedePlaats"_s, QString(), this);
    auto* cmdTweedePlaats = MaakKnop(u"cmdTweedePlaats"_s, u"Tweede plaats..."_s, u'w', this,
                                     &frmTerugzetten::KiesTweedePlaats);
    cmdTweedePlaats->setEnabled(!administratie_.tweedeplaatsIni.empty());
    cmdAlles = MaakKnop(u"cmdAlles"_s, u"Alles aanvinken"_s, u'A', this, &frmTerugzetten::KiesAlle);
    cmdTerugzetten = MaakKnop(u"cmdTerugzetten"_s, u"Terugzetten"_s, u'T', this, &QDialog::accept);
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::reject);
    Onderelkaar({Label1,
                 {lstReserves, 2},
                 Label2,
                 {lstVerschillen, 3},
                 chkOokGroepen,
                 lblTweedePlaats,
                 Knoppenrij({cmdTweedePlaats, cmdAlles, cmdTerugzetten, cmdSluiten})},
                this);
    PasInScherm(this, maten.Twips(10500, 9000));
    lstReserves->setFocus();
}

void frmTerugzetten::LeesLijst()
{
    auto reserves = Reserves(administratie_.schijf, administratie_.mappen);
    if (!reserves) {
        Label2->setText(u"De map Reservekopie kan niet worden gelezen; er is niets veranderd. Kijk "
                        "na of u in die map mag lezen.\n"_s +
                        Bijzonderheden(reserves.error()));
    } else {
        reserves_ = std::move(*reserves);
        Label2->setText(reserves_.empty() ? u"Er zijn nog geen reservekopieën."_s : QString());
    }
    for (const auto& [kopie, spelers] : reserves_) {
        const QString aantal = spelers ? QString::number(*spelers) : u"onleesbaar"_s;
        auto* regel =
            new QTreeWidgetItem(lstReserves, {Toonmoment(kopie.moment), Reden(kopie), aantal});
        regel->setToolTip(0, Wenk(NaarQString(kopie.naam)));
    }
    ToonKnoppen();
    lstReserves->setCurrentItem(lstReserves->topLevelItem(0));
}

void frmTerugzetten::KiesReserve()
{
    delen_.clear();
    toen_ = {};
    verschillen_.clear();
    const int plaats = lstReserves->indexOfTopLevelItem(lstReserves->currentItem());
    if (plaats >= 0)
        LeesReservekopie(reserves_[static_cast<std::size_t>(plaats)].kopie);
    ToonVerschillen();
    ToonKnoppen();
}

void frmTerugzetten::LeesReservekopie(const Kopienaam& kopie)
{
    auto delen = LeesReserve(administratie_.schijf, administratie_.mappen, kopie);
    if (!delen) {
        Label2->setText(
            u"Deze reservekopie kan niet worden gelezen; er is niets veranderd. Kies een andere.\n"_s +
            Bijzonderheden(delen.error()));
        return;
    }
    delen_ = std::move(*delen);
    const auto spelers = std::find_if(delen_.begin(), delen_.end(),
                                      [](const Zipdeel& deel) { return deel.naam == Spelersdeel; });
    if (spelers != delen_.end())
        toen_ = SpelersUit(spelers->inhoud);
    if (!toen_.tabel) {
        Label2->setText(u"In deze reservekopie staan geen spelers die te lezen zijn."_s);
        return;
    }
    verschillen_ = Verschillen(administratie_.spelers.tabel, *toen_.tabel);
    const auto aantal = verschillen_.size();
    QString tekst = aantal == 0 ? u"De spelers zijn nu dezelfde."_s
                                : Aantal(aantal, u"verschil"_s, u"verschillen"_s) + u" met nu:"_s;
    if (toen_.fout)
        tekst =
            u"Let op: het spelerbestand in deze reservekopie is niet tot het einde te lezen. "_s +
            tekst;
    Label2->setText(tekst);
}

/// The fields come when a player is opened: there may be a hundred thousand players.
void frmTerugzetten::ToonVerschillen()
{
    const QSignalBlocker stil(lstVerschillen);
    lstVerschillen->clear();
    QList<QTreeWidgetItem*> regels;
    for (const Rijverschil& verschil : verschillen_) {
        auto* regel = new Boomregel;
        if (verschil.key.empty()) {
            regel->setText(0, u"Alle spelers zonder eigen sleutel"_s);
            regel->setText(1, u"Sindsdien gewijzigd"_s);
        } else {
            const Tekst naam = verschil.nu > 0
                                   ? VolleNaam(administratie_.spelers.tabel, verschil.nu)
                                   : VolleNaam(*toen_.tabel, verschil.toen);
            regel->setText(0, NaarQString(naam) + u" ("_s + NaarQString(verschil.key) + u')');
            regel->setText(1, Wijze(verschil));
            regel->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        }
        regel->setData(0, Sleutelrol, NaarQString(verschil.key));
        regel->setCheckState(0, Qt::Unchecked);
        regels << regel;
    }
    lstVerschillen->addTopLevelItems(regels);
}

void frmTerugzetten::ToonVelden(QTreeWidgetItem* speler) const
{
    const int plaats = lstVerschillen->indexOfTopLevelItem(speler);
    if (plaats < 0 || speler->childCount() > 0)
        return;
    const Rijverschil& verschil = verschillen_[static_cast<std::size_t>(plaats)];
    VoegVeldenToe(*speler,
                  {verschil.key, Velden(administratie_.spelers.tabel, verschil.nu),
                   Velden(*toen_.tabel, verschil.toen)},
                  administratie_.mappen.DFIMPG);
}

void frmTerugzetten::ToonKnoppen()
{
    cmdTerugzetten->setEnabled(IetsGekozen() || !OokBestanden().empty());
    cmdAlles->setEnabled(!verschillen_.empty());
}

void frmTerugzetten::KiesAlle()
{
    {
        const QSignalBlocker stil(
            lstVerschillen->model()); // the view looks up each line it is told of
        VinkAlle(*lstVerschillen, 0);
    }
    lstVerschillen->viewport()->update();
    ToonKnoppen();
}

Menging frmTerugzetten::Hersteld() const
{
    const Register& nu = administratie_.spelers;
    const Spelertabel leeg;
    return Herstel({nu.tabel, nu.HKEY}, {toen_.tabel ? *toen_.tabel : leeg, toen_.HKEY.value_or(0)},
                   Keys());
}

std::vector<Zipdeel> frmTerugzetten::OokBestanden() const
{
    std::vector<Zipdeel> uit;
    if (!chkOokGroepen->isChecked())
        return uit;
    for (const Zipdeel& deel : delen_) {
        const bool inParenmap = deel.naam.starts_with(Parenmapdeel) &&
                                IsKaleNaam(Tekstblik(deel.naam).substr(Parenmapdeel.size()));
        if (deel.naam == Groependeel || deel.naam == Parendeel || inParenmap)
            uit.push_back(deel);
    }
    return uit;
}

void frmTerugzetten::KiesTweedePlaats()
{
    const Pad nu = LeesTweedeplaats(administratie_.schijf, administratie_.tweedeplaatsIni).map;
    if (!nu.empty()) {
        const int antwoord = Kies(this, QMessageBox::Question,
                                  u"De nieuwste reservekopie gaat ook naar:\n\n%1"_s.arg(
                                      Toonpad(administratie_.schijf, nu)),
                                  {u"Andere map..."_s, u"Geen tweede plaats"_s, u"Annuleren"_s});
        if (antwoord == 1)
            ZetTweedePlaats({});
        if (antwoord != 0)
            return;
    }
    QFileDialog CommonDialog1(this, u"Kies de tweede plaats voor reservekopieën"_s);
    Noem(&CommonDialog1, u"CommonDialog1"_s);
    CommonDialog1.setFileMode(QFileDialog::Directory);
    CommonDialog1.setOption(QFileDialog::ShowDirsOnly);
    if (CommonDialog1.exec() == QDialog::Accepted && !CommonDialog1.selectedFiles().isEmpty())
        ZetTweedePlaats(VolledigPad(CommonDialog1.selectedFiles().first().toStdString()));
}

void frmTerugzetten::ZetTweedePlaats(const Pad& map)
{
    Schijf& schijf = administratie_.schijf;
    const auto bewaard =
        BewaarTweedeplaats(schijf, administratie_.tweedeplaatsIni, {map, Tijdtekst("yyyy-MM-dd")});
    if (!StaatEr(this, bewaard)) {
        MeldFout(this, QMessageBox::Warning,
                 u"De tweede plaats kan niet worden onthouden; er is niets veranderd. Kijk na of u "
                 "in uw eigen map voor instellingen mag schrijven."_s,
                 bewaard.error());
        return;
    }
    WerkTweedeplaatsBij(schijf, administratie_.mappen, administratie_.tweedeplaatsIni);
    ToonTweedePlaats();
}

void frmTerugzetten::ToonTweedePlaats()
{
    const Pad map = LeesTweedeplaats(administratie_.schijf, administratie_.tweedeplaatsIni).map;
    const QString weg = Tweedeplaatsregel(administratie_);
    const QString gewoon =
        map.empty() ? u"Er is geen tweede plaats gekozen, zoals een stick of een andere schijf."_s
                    : u"De nieuwste reservekopie gaat ook naar "_s +
                          Toonpad(administratie_.schijf, map) + u'.';
    lblTweedePlaats->setText(weg.isEmpty() ? gewoon : weg);
}

} // namespace plexoran
