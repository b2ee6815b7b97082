#include "dialogs/frmVergelijk.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

QString Toestand(const std::optional<Rijvelden>& velden)
{
    return velden ? u"Deze"_s : u"Verwijderd"_s;
}

} // namespace

void VoegVeldenToe(QTreeWidgetItem& speler, const std::optional<Rijvelden>& links,
                   const std::optional<Rijvelden>& rechts)
{
    for (auto i = Index(Kolom::Groep); i < AantalKolommen; ++i) {
        const auto tekst = [i](const std::optional<Rijvelden>& velden) {
            return velden ? NaarQString((*velden)[i]) : QString();
        };
        if (tekst(links) == tekst(rechts))
            continue;
        auto* veld =
            new QTreeWidgetItem(&speler, {NaarQString(Kolomnamen[i]), tekst(links), tekst(rechts)});
        for (const int kolom : {1, 2})
            veld->setToolTip(kolom, Wenk(veld->text(kolom)));
    }
}

frmVergelijk::frmVergelijk(const Vergelijking& teksten, const std::vector<Verschil>& verschillen,
                           QWidget* ouder)
    : QDialog(ouder), lstVerschillen(new QTreeWidget(this))
{
    setObjectName(u"frmVergelijk"_s);
    setWindowTitle(teksten.titel);
    auto* Label1 = MaakLabel(u"Label1"_s, teksten.uitleg, this);
    Label1->setWordWrap(true);
    Noem(lstVerschillen, u"lstVerschillen"_s, u"Verschillen per speler"_s);
    lstVerschillen->setHeaderLabels({u"Speler"_s, teksten.links, teksten.rechts});
    lstVerschillen->header()->setSectionResizeMode(QHeaderView::Stretch);
    lstVerschillen->setUniformRowHeights(true);
    for (const Verschil& verschil : verschillen)
        VoegToe(verschil);
    lstVerschillen->expandAll();
    lstVerschillen->setCurrentItem(lstVerschillen->topLevelItem(0), KolomLinks);
    connect(lstVerschillen, &QTreeWidget::itemChanged, this, &frmVergelijk::LaatLos);

    auto* cmdLinks = MaakKnop(u"cmdLinks"_s, u"Alles: "_s + teksten.links, u'A', this);
    auto* cmdRechts = MaakKnop(u"cmdRechts"_s, u"Alles: "_s + teksten.rechts, u'l', this);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this);
    connect(cmdLinks, &QPushButton::clicked, this, [this] { KiesAlle(KolomLinks); });
    connect(cmdRechts, &QPushButton::clicked, this, [this] { KiesAlle(KolomRechts); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    cmdOK->setDefault(true);

    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(Label1);
    lagen->addWidget(lstVerschillen, 1);
    lagen->addLayout(Knoppenrij({cmdLinks, cmdRechts, cmdOK}));
    const Maten maten;
    PasInScherm(this, {maten.Twips(10500), maten.Twips(7200)});
    lstVerschillen->setFocus();
}

void frmVergelijk::VoegToe(const Verschil& verschil)
{
    keys_.push_back(verschil.key);
    auto* speler =
        new QTreeWidgetItem(lstVerschillen, {NaarQString(Aanduiding(verschil)),
                                             Toestand(verschil.links), Toestand(verschil.rechts)});
    for (const int kolom : {KolomLinks, KolomRechts})
        speler->setCheckState(kolom, Qt::Unchecked);
    VoegVeldenToe(*speler, verschil.links, verschil.rechts);
}

void frmVergelijk::KiesAlle(int kolom)
{
    for (int i = 0; i < lstVerschillen->topLevelItemCount(); ++i)
        lstVerschillen->topLevelItem(i)->setCheckState(kolom, Qt::Checked);
}

/// Of a player one state at the most is chosen.
void frmVergelijk::LaatLos(QTreeWidgetItem* speler, int kolom)
{
    if (speler->checkState(kolom) == Qt::Checked)
        speler->setCheckState(kolom == KolomLinks ? KolomRechts : KolomLinks, Qt::Unchecked);
}

std::set<Tekst> frmVergelijk::Gekozen(int kolom) const
{
    std::set<Tekst> uit;
    for (int i = 0; i < lstVerschillen->topLevelItemCount(); ++i) {
        if (lstVerschillen->topLevelItem(i)->checkState(kolom) == Qt::Checked)
            uit.insert(keys_[static_cast<std::size_t>(i)]);
    }
    return uit;
}

} // namespace plexoran
