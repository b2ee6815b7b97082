#include "dialogs/frmVergelijk.h"

namespace plexoran {

void VoegVeldenToe(QTreeWidgetItem& speler, const Verschil& verschil, Tekstblik importgroep,
                   int kolom)
{
    const Rijvelden& een = verschil.links ? *verschil.links : *verschil.rechts;
    const bool bondslid = CodeUit(een[Index(Kolom::Groep)]) == importgroep;
    for (auto i = Index(Kolom::Groep); i < AantalKolommen; ++i) {
        const auto tekst = [i](const std::optional<Rijvelden>& velden) {
            return velden ? NaarQString((*velden)[i]) : QString();
        };
        if (tekst(verschil.links) == tekst(verschil.rechts))
            continue;
        const bool subgroep = i == Index(Kolom::NBBgr) && !bondslid;
        const QStringList delen{NaarQString(subgroep ? Subgroepnaam : Kolomnamen[i]),
                                tekst(verschil.links), tekst(verschil.rechts)};
        auto* regel = new Boomregel(&speler, QStringList(kolom) << delen);
        const QTreeWidgetItem* koppen = speler.treeWidget()->headerItem();
        regel->setData(kolom, Qt::AccessibleTextRole,
                       u"%1, %2: %3, %4: %5"_s.arg(delen[0], koppen->text(kolom + 1), delen[1],
                                                   koppen->text(kolom + 2), delen[2]));
    }
}

frmVergelijk::frmVergelijk(const Vergelijking& teksten, const std::vector<Verschil>& verschillen,
                           Tekstblik importgroep, QWidget* ouder)
    : QDialog(ouder), lstVerschillen(MaakBoom(u"lstVerschillen"_s, u"Verschillen per speler"_s,
                                              {u"Speler"_s, teksten.links, teksten.rechts}, this))
{
    setObjectName(u"frmVergelijk"_s);
    setWindowTitle(teksten.titel);
    auto* Label1 = MaakUitleg(u"Label1"_s, teksten.uitleg, this);
    lstVerschillen->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (const Verschil& verschil : verschillen) {
        auto* speler = new Boomregel(lstVerschillen, {NaarQString(Aanduiding(verschil))});
        speler->setData(0, Sleutelrol, NaarQString(verschil.key));
        for (const auto& [kolom, velden] :
             {std::pair(KolomLinks, &verschil.links), {KolomRechts, &verschil.rechts}}) {
            speler->setText(kolom, *velden ? u"Deze"_s : u"Verwijderd"_s);
            speler->setCheckState(kolom, Qt::Unchecked);
        }
        VoegVeldenToe(*speler, verschil, importgroep);
    }
    lstVerschillen->expandAll();
    lstVerschillen->setCurrentItem(lstVerschillen->topLevelItem(0), KolomLinks);
    connect(lstVerschillen, &QTreeWidget::itemChanged, this, &frmVergelijk::LaatLos);

    auto* cmdLinks = MaakKnop(u"cmdLinks"_s, u"Alles: "_s + teksten.links, u'A', this,
                              [this] { VinkAlle(*lstVerschillen, KolomLinks); });
    auto* cmdRechts = MaakKnop(u"cmdRechts"_s, u"Alles: "_s + teksten.rechts, u'l', this,
                               [this] { VinkAlle(*lstVerschillen, KolomRechts); });
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this, &QDialog::accept);
    cmdOK->setDefault(true);
    Onderelkaar({Label1, {lstVerschillen, 1}, Knoppenrij({cmdLinks, cmdRechts, cmdOK})}, this);
    PasInScherm(this, Maten().Twips(10500, 7200));
    lstVerschillen->setFocus();
}

/// Of a player one state at the most is chosen.
void frmVergelijk::LaatLos(QTreeWidgetItem* speler, int kolom)
{
    if (speler->checkState(kolom) == Qt::Checked)
        speler->setCheckState(kolom == KolomLinks ? KolomRechts : KolomLinks, Qt::Unchecked);
}

} // namespace plexoran
