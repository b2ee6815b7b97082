#include "mainwindow/frmOverzicht.h"

#include <QAction>
#include <QStyledItemDelegate>

#include <set>

#include "platform/scherm/berichten.h"
#include "platform/scherm/boom.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/printer.h"
#include "printing/overzichtblad.h"
#include "register/dubbelen.h"
#include "sessions/koppelen.h"

namespace plexoran {
namespace {

const QString Titel = u"Overzicht"_s;
constexpr int Balk = 1;                   // the column of numbers and bars
constexpr int Regelrol = Qt::UserRole;    // which line it is
constexpr int Deelrol = Qt::UserRole + 1; // how long its bar is, of the longest
constexpr int Cijfers = 7;

/// The bar stands behind the number, which is all that assistive programs need.
class Balkschilder : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A blank as wide as a digit keeps the numbers below each other.
    [[nodiscard]] QString displayText(const QVariant& waarde,
                                      const QLocale& /*taal*/) const override
    {
        constexpr QChar cijferwit(0x2007);
        return waarde.toString().rightJustified(Cijfers, cijferwit);
    }
    void paint(QPainter* schilder, const QStyleOptionViewItem& optie,
               const QModelIndex& plek) const override
    {
        QStyledItemDelegate::paint(schilder, optie, plek);
        constexpr int wit = 3;
        const int naast = optie.fontMetrics.horizontalAdvance(QString(Cijfers + 2, u'0'));
        QRect balk = optie.rect.adjusted(naast, wit, -wit, -wit);
        balk.setWidth(qRound(balk.width() * plek.data(Deelrol).toDouble()));
        const bool gekozen = optie.state.testFlag(QStyle::State_Selected);
        schilder->fillRect(
            balk, optie.palette.color(gekozen ? QPalette::HighlightedText : QPalette::Highlight));
    }
};

} // namespace

frmOverzicht::frmOverzicht(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie),
      regels_(MaakOverzicht(administratie.spelers.tabel, administratie.groepen))
{
    ZoekZwevende(ouder);
    ZoekDubbele(ouder);
    Bouw();
    VulLijst();
}

void frmOverzicht::ZoekZwevende(QWidget* ouder)
{
    std::vector<Fout> onleesbaar; // told of by the check of the administration
    std::vector<Zitting> zittingen;
    for (Sessie& sessie : AlleSessies(administratie_.schijf, administratie_.mappen, onleesbaar))
        zittingen.push_back(std::move(sessie.zitting));
    frmVoortgang voortgang(u"De zwevende spelers worden geteld ..."_s, u"&Stoppen"_s, ouder);
    const auto gevonden = ZoekZwevenden(administratie_.schijf, zittingen, voortgang.AlsVoortgang());
    std::set<Tekst> namen;
    for (const Zwevende& zwevende : gevonden.zwevenden)
        namen.insert(zwevende.naam);
    for (const Tekst& naam : namen)
        zwevende_ += naam + '\n';
    regels_.push_back({.tekst = "Na te kijken"});
    regels_.push_back({.diepte = 1,
                       .tekst = gevonden.gestopt ? "Zwevende namen in zittingen (niet alle)"
                                                 : "Zwevende namen in zittingen",
                       .aantal = namen.size()});
}

/// A player who was copied to another group is meant to stand there twice.
void frmOverzicht::ZoekDubbele(QWidget* ouder)
{
    frmVoortgang voortgang(u"De dubbele spelers worden geteld ..."_s, u"&Stoppen"_s, ouder);
    const auto gevonden = ZoekDubbelen(
        administratie_.spelers.tabel,
        LeesGeenDubbelen(administratie_.schijf, administratie_.mappen).value_or(Sleutelparen()),
        voortgang.AlsVoortgang());
    std::set<int> rijen;
    for (const Dubbelpaar& paar : gevonden.paren) {
        if (!paar.Heeft(Dubbelreden::TweeGroepen))
            rijen.insert({paar.rij, paar.latere});
    }
    regels_.push_back({.diepte = 1,
                       .tekst = gevonden.gestopt || gevonden.meer > 0
                                    ? "Vermoedelijk dubbele spelers (niet alle)"
                                    : "Vermoedelijk dubbele spelers",
                       .aantal = rijen.size(),
                       .rijen = {rijen.begin(), rijen.end()}});
}

void frmOverzicht::Bouw()
{
    setObjectName(u"frmOverzicht"_s);
    setWindowTitle(Titel);
    auto* Label1 = MaakUitleg(
        u"Label1"_s, u"Klik op een regel, of druk op Enter, om te zien om wie het gaat."_s, this);
    lstOverzicht =
        MaakBoom(u"lstOverzicht"_s, u"Aantallen spelers"_s, {u"Wat"_s, u"Aantal"_s}, this);
    lstOverzicht->setItemDelegateForColumn(Balk, new Balkschilder(lstOverzicht));
    connect(lstOverzicht, &QTreeWidget::itemClicked, this, &frmOverzicht::Kies);
    // Not what the list calls activated: on some desktops that is a click too.
    auto* actToon = new QAction(u"&Tonen wie het zijn"_s, lstOverzicht);
    actToon->setObjectName(u"actToonWie"_s);
    actToon->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    actToon->setShortcutContext(Qt::WidgetShortcut);
    connect(actToon, &QAction::triggered, this, [this] { Kies(lstOverzicht->currentItem()); });
    lstOverzicht->addAction(actToon);
    auto* cmdPrint = MaakKnop(u"cmdPrint"_s, u"Print"_s, u'P', this, &frmOverzicht::Print);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    Onderelkaar({Label1, {lstOverzicht, 1}, Knoppenrij({cmdPrint, cmdEinde})}, this);
    PasInScherm(this, Maten().Twips(10500, 8400));
    lstOverzicht->setFocus();
}

void frmOverzicht::VulLijst()
{
    const auto meeste = std::max<std::size_t>(1, *regels_.front().aantal);
    std::vector<QTreeWidgetItem*> boven{lstOverzicht->invisibleRootItem()};
    QFont vet = lstOverzicht->font();
    vet.setBold(true);
    for (std::size_t i = 0; i < regels_.size(); ++i) {
        const auto& [diepte, tekst, aantal, rijen] = regels_[i];
        boven.resize(static_cast<std::size_t>(diepte) + 1);
        auto* regel = new Boomregel(boven.back(), {NaarQString(tekst)});
        boven.push_back(regel);
        regel->setData(0, Regelrol, QVariant::fromValue(i));
        if (diepte == 0)
            regel->setFont(0, vet);
        if (!aantal)
            continue;
        regel->setText(Balk, QString::number(*aantal));
        regel->setData(Balk, Deelrol,
                       std::min(1.0, static_cast<double>(*aantal) / static_cast<double>(meeste)));
    }
    lstOverzicht->expandAll();
    lstOverzicht->resizeColumnToContents(0);
    lstOverzicht->header()->resizeSection(0, std::min(lstOverzicht->columnWidth(0), width() / 2));
    lstOverzicht->setCurrentItem(lstOverzicht->topLevelItem(0));
}

void frmOverzicht::Kies(const QTreeWidgetItem* regel)
{
    gekozen_ = regel->data(0, Regelrol).value<std::size_t>();
    opschrift_ = regel->text(0);
    if (Gekozen().diepte > 1)
        opschrift_.prepend(regel->parent()->text(0) + u", "_s);
    if (!Gekozen().rijen.empty())
        accept();
    else if (Gekozen().aantal > 0U) // no players: the names in the sessions
        MeldVerslag(this, NaarQString(zwevende_), opschrift_);
}

void frmOverzicht::Print()
{
    PrintBladen(
        administratie_.schijf, {.titel = Titel, .bezig = u"Het overzicht wordt geprint"_s},
        [this](Tekenvlak& vlak, int /*blad*/) {
            TekenOverzicht(vlak, "Overzicht, " + Tijdtekst("d-M-yyyy"), regels_);
        },
        this);
}

} // namespace plexoran
