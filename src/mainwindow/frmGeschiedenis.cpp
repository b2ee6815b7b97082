#include "mainwindow/frmGeschiedenis.h"

#include <algorithm>

#include "dialogs/frmVergelijk.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

enum Kop { Wanneer, Wat, Was, Werd, Wie, Computer };
enum Rol { Id = Sleutelrol, Soort, Tijd };

QTreeWidgetItem* VoegToe(QTreeWidgetItem* onder, const QString& wat, const QString& was = {},
                         const QString& werd = {})
{
    return new Boomregel(onder, {QString(), wat, was, werd});
}

/// Pairs stand on one line, in the order in which they were made: here each on its own, sorted.
Tekst OpRegels(Tekst tekst)
{
    if (tekst.find('#') == Tekst::npos)
        return tekst;
    std::ranges::replace(tekst, '#', '\n');
    auto paren = Regels(tekst);
    std::ranges::sort(paren);
    Tekst uit;
    for (const Tekstblik paar : paren)
        uit.append(paar) += '\n';
    return uit;
}

/// The lines that only one of two texts has, in their order.
void OpenRegels(QTreeWidgetItem* regel, const Wijziging& wijziging)
{
    VoegToe(regel, NaarQString(wijziging.Naam()), wijziging.voor ? u""_s : u"(geen bestand)"_s,
            wijziging.na ? u""_s : u"(geen bestand)"_s);
    const Tekst verschil = Regelverschil(OpRegels(wijziging.voor.value_or(Tekst())),
                                         OpRegels(wijziging.na.value_or(Tekst())), true);
    for (const Tekstblik een : Regels(verschil)) {
        if (een.starts_with('-'))
            VoegToe(regel, {}, NaarQString(een.substr(1)));
        else if (een.starts_with('+'))
            VoegToe(regel, {}, {}, NaarQString(een.substr(1)));
    }
}

} // namespace

frmGeschiedenis::frmGeschiedenis(Administratie& administratie, Tekst key, Draai draai,
                                 QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), key_(std::move(key)), draai_(std::move(draai)),
      lstHandelingen(MaakBoom(
          u"lstHandelingen"_s, u"Handelingen"_s,
          {u"Wanneer"_s, u"Wat"_s, u"Was"_s, u"Werd"_s, u"Gebruiker"_s, u"Computer"_s}, this))
{
    setObjectName(u"frmGeschiedenis"_s);
    setWindowTitle(u"Geschiedenis"_s);
    Label1 = MaakUitleg(u"Label1"_s,
                        u"Wat er in de administratie is gewijzigd, het laatste bovenaan. Open "
                        "een regel om te zien wat er was en wat het werd."_s,
                        this);
    connect(lstHandelingen, &QTreeWidget::itemExpanded, this, &frmGeschiedenis::Open);
    connect(lstHandelingen, &QTreeWidget::currentItemChanged, this, &frmGeschiedenis::Kies);
    cmdOngedaan =
        MaakKnop(u"cmdOngedaan"_s, u"Ongedaan maken"_s, u'O', this, &frmGeschiedenis::DraaiGekozen);
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::accept);
    Onderelkaar({Label1, {lstHandelingen, 1}, Knoppenrij({cmdOngedaan, cmdSluiten})}, this);
    const Maten maten;
    PasInScherm(this, maten.Twips(15000, 8400));
    Vul();
    for (const auto& [kolom, twips] :
         {std::pair(Wanneer, 2900), {Wat, 4700}, {Was, 2100}, {Werd, 2100}, {Wie, 1000}})
        lstHandelingen->setColumnWidth(kolom, maten.Twips(twips));
    lstHandelingen->setFocus();
}

/// Of one player only what changed himself.
bool frmGeschiedenis::IsGekozen(const Handeling& handeling) const
{
    const auto vanHem = [this](const Verschil& verschil) { return verschil.key == key_; };
    return key_.empty() || std::ranges::any_of(handeling.wijzigingen, [&](const auto& wijziging) {
               return wijziging.IsSpelerbestand() &&
                      std::ranges::any_of(SpelersIn(wijziging), vanHem);
           });
}

void frmGeschiedenis::Vul()
{
    lstHandelingen->clear();
    ongedaan_.clear();
    QList<QTreeWidgetItem*> regels;
    std::set<Tekst> geweest; // the last word on an entry counts, and comes first
    LoopTerug(administratie_.schijf, administratie_.mappen, [&](Handeling& handeling) {
        const bool draaide = // else nothing could be undone
            handeling.soort != Handelingsoort::Gewoon && !handeling.wijzigingen.empty();
        if (draaide && geweest.insert(handeling.hoort).second &&
            handeling.soort == Handelingsoort::Ongedaan)
            ongedaan_.insert(handeling.hoort);
        if (!IsGekozen(handeling))
            return true;
        const QString weg = ongedaan_.contains(handeling.id) ? u" (ongedaan gemaakt)"_s : QString();
        auto* regel = new Boomregel({Toonmoment(handeling.tijd), NaarQString(handeling.wat) + weg,
                                     QString(), QString(), NaarQString(handeling.gebruiker),
                                     NaarQString(handeling.computer)});
        regel->setData(0, Id, NaarQString(handeling.id));
        regel->setData(0, Soort, static_cast<int>(handeling.soort));
        regel->setData(0, Tijd, NaarQString(handeling.tijd));
        if (!handeling.wijzigingen.empty())
            regel->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        regels << regel;
        return true;
    });
    // Those of several computers come together.
    std::ranges::stable_sort(regels, std::greater(), [](const QTreeWidgetItem* regel) {
        return regel->data(0, Tijd).toString();
    });
    lstHandelingen->addTopLevelItems(regels);
    lstHandelingen->setCurrentItem(lstHandelingen->topLevelItem(0));
    if (lstHandelingen->topLevelItemCount() == 0)
        Label1->setText(key_.empty() ? u"Er is nog niets vastgelegd."_s
                                     : u"Van deze speler is nog niets vastgelegd."_s);
    Kies();
}

void frmGeschiedenis::Open(QTreeWidgetItem* regel)
{
    if (regel->parent() != nullptr || regel->childCount() > 0)
        return;
    const auto handeling = LeesHandeling(administratie_.schijf, administratie_.mappen,
                                         NaarTekst(regel->data(0, Id).toString()));
    if (!handeling) {
        VoegToe(regel, u"Dit is niet meer te lezen."_s);
        return;
    }
    for (const Wijziging& wijziging : handeling->wijzigingen) {
        if (wijziging.IsSpelerbestand())
            OpenSpelers(regel, wijziging);
        else if (key_.empty())
            OpenRegels(regel, wijziging);
    }
}

void frmGeschiedenis::OpenSpelers(QTreeWidgetItem* regel, const Wijziging& wijziging) const
{
    constexpr int meeste = 1000;
    for (const Verschil& verschil : SpelersIn(wijziging)) {
        if (!key_.empty() && verschil.key != key_)
            continue;
        if (regel->childCount() == meeste) {
            VoegToe(regel, u"... en meer"_s);
            return;
        }
        auto* speler =
            VoegToe(regel, NaarQString(Aanduiding(verschil)), verschil.links ? u""_s : u"(geen)"_s,
                    verschil.rechts ? u""_s : u"(verwijderd)"_s);
        VoegVeldenToe(*speler, verschil, administratie_.mappen.DFIMPG, Wat);
        speler->setExpanded(true);
    }
}

/// The line of the entry that is looked at; null for none.
QTreeWidgetItem* frmGeschiedenis::Gekozen() const
{
    QTreeWidgetItem* regel = lstHandelingen->currentItem();
    while (regel != nullptr && regel->parent() != nullptr)
        regel = regel->parent();
    return regel;
}

void frmGeschiedenis::Kies()
{
    const QTreeWidgetItem* regel = Gekozen();
    cmdOngedaan->setEnabled(regel != nullptr &&
                            regel->data(0, Soort) == static_cast<int>(Handelingsoort::Gewoon));
    const bool weg =
        regel != nullptr && ongedaan_.contains(NaarTekst(regel->data(0, Id).toString()));
    cmdOngedaan->setText(MetSneltoets(weg ? u"Opnieuw doen"_s : u"Ongedaan maken"_s, u'O'));
}

void frmGeschiedenis::DraaiGekozen()
{
    const Tekst id = NaarTekst(Gekozen()->data(0, Id).toString());
    const auto handeling = LeesHandeling(administratie_.schijf, administratie_.mappen, id);
    if (handeling)
        draai_(*handeling,
               ongedaan_.contains(id) ? Handelingsoort::Opnieuw : Handelingsoort::Ongedaan);
    Vul();
}

} // namespace plexoran
