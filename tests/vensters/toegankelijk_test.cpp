// Every window as assistive programs see it: each control has a name, each field a label that
// stands for it, each list its lines, and what takes the keys is something.
#include <QAbstractItemView>
#include <QAccessible>
#include <QGroupBox>
#include <QLineEdit>
#include <QTreeView>

#include "vensters/rondgang.h"

using namespace plexoran;

namespace {

bool IsLijst(QAccessible::Role rol)
{
    return rol == QAccessible::List || rol == QAccessible::Table || rol == QAccessible::Tree;
}

bool IsBediening(QAccessible::Role rol)
{
    static const std::set<QAccessible::Role> rollen{
        QAccessible::PushButton,   QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox,     QAccessible::SpinBox,  QAccessible::EditableText,
        QAccessible::ProgressBar,  QAccessible::Slider,   QAccessible::ScrollBar,
        QAccessible::ColumnHeader, QAccessible::Graphic};
    return rollen.contains(rol) || IsLijst(rol);
}

/// Whether a part that takes the keys says what it is.
bool IsNiets(QAccessible::Role rol)
{
    return rol == QAccessible::NoRole || rol == QAccessible::Client || rol == QAccessible::Border ||
           rol == QAccessible::Grouping || rol == QAccessible::Pane;
}

/// The scroll bars that Qt itself gives a list or a text; those have a name.
bool IsVanEenLijst(const QObject* object)
{
    return object != nullptr && object->parent() != nullptr &&
           object->parent()->objectName().startsWith(u"qt_scrollarea"_s);
}

/// A part that scrolls what stands in it, and has a name, has all that it needs.
bool IsRol(QAccessibleInterface* deel)
{
    return qobject_cast<const QAbstractScrollArea*>(deel->object()) != nullptr &&
           !deel->text(QAccessible::Name).isEmpty();
}

/// Qt gives what has no name of its own that of the frame around it.
bool HeeftNaam(QAccessibleInterface* deel)
{
    const QString naam = deel->text(QAccessible::Name).trimmed();
    const auto* kader = qobject_cast<const QGroupBox*>(deel->parent()->object());
    return !naam.isEmpty() && (kader == nullptr || naam != kader->title());
}

/// Whether a label stands for it that says something, as all do but that of M/V, beside which the
/// options do. Of a drop-down some assistive programs do not hear the name.
bool HeeftOpschrift(QAccessibleInterface* deel)
{
    const auto banden = deel->relations(QAccessible::Label);
    return std::any_of(banden.begin(), banden.end(), [deel](const auto& band) {
        const auto* label = qobject_cast<const QLabel*>(band.first->object());
        const bool geslacht = deel->object()->objectName() == "txt1_13"_L1;
        return label != nullptr && (geslacht || !label->text().isEmpty());
    });
}

/// Walks through a window and gathers what is missing, by the name of the part.
class Onderzoek {
  public:
    std::set<std::string> Loop(QWidget& venster)
    {
        gemist_.clear();
        gezien_ = 0;
        Bekijk(QAccessible::queryAccessibleInterface(&venster));
        EXPECT_GT(gezien_, 0) << venster.objectName().toStdString();
        return gemist_;
    }

  private:
    void Mis(const char* wat, const QObject* object)
    {
        for (; object != nullptr && object->objectName().isEmpty();)
            object = object->parent();
        gemist_.insert((object == nullptr ? "" : object->objectName().toStdString()) + ": " + wat);
    }

    void Bekijk(QAccessibleInterface* deel)
    {
        ASSERT_NE(nullptr, deel);
        if (!deel->isValid() || deel->state().invisible)
            return;
        const QAccessible::Role rol = deel->role();
        const QObject* object = deel->object();
        if (IsBediening(rol) && !IsVanEenLijst(object)) {
            ++gezien_;
            if (!HeeftNaam(deel))
                Mis("geen naam", object == nullptr ? deel->parent()->object() : object);
        }
        const auto* lijst = qobject_cast<const QAbstractItemView*>(object);
        const bool leeg = lijst != nullptr && lijst->model()->rowCount() == 0;
        if (IsLijst(rol) && deel->childCount() == 0 && !leeg)
            Mis("een lijst zonder regels", object);
        if (lijst != nullptr && !IsLijst(rol))
            Mis("een lijst die er geen is", object);
        const auto* widget = qobject_cast<const QWidget*>(object);
        if (widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            if (IsNiets(rol) && !IsRol(deel))
                Mis("neemt toetsen aan en is niets", object);
            const bool veld =
                rol == QAccessible::ComboBox || qobject_cast<const QLineEdit*>(object) != nullptr;
            if (veld && !HeeftOpschrift(deel))
                Mis("geen opschrift", object);
        }
        constexpr int genoeg = 60; // of the cells of a list
        const int delen = IsLijst(rol) ? std::min(deel->childCount(), genoeg) : deel->childCount();
        for (int i = 0; i < delen; ++i)
            Bekijk(deel->child(i));
    }

    std::set<std::string> gemist_;
    int gezien_ = 0;
};

} // namespace

using Toegankelijk = Rondgangproef;

TEST_F(Toegankelijk, ElkVensterIsTeGebruikenZonderKijken)
{
    Rondgang(QGuiApplication::primaryScreen(), [](QWidget& venster) {
        EXPECT_EQ(std::set<std::string>(), Onderzoek().Loop(venster));
    });
}

/// The beginning, now and then how far it is, and the end.
TEST_F(Toegankelijk, WieNietKijktHoortHoeVerHetWerkIs)
{
    const int totInBeeld = std::exchange(frmVoortgang::totInBeeld, 0);
    frmVoortgang voortgang(u"De spelers worden geteld ..."_s, u"&Stoppen"_s, nullptr);
    const auto* tekst = voortgang.findChild<QLabel*>(u"lblTekst"_s);
    std::vector<std::string> gezegd{""};
    const auto hoor = [&] {
        if (const auto nu = tekst->accessibleName().toStdString(); nu != gezegd.back())
            gezegd.push_back(nu);
    };
    for (std::size_t i = 0; i <= 100; ++i) {
        voortgang.Meld(i, 100);
        hoor();
    }
    frmVoortgang::totInBeeld = totInBeeld;
    voortgang.hide();
    hoor();
    EXPECT_EQ((std::vector<std::string>{
                  "", "De spelers worden geteld ...", "De spelers worden geteld ... 25 %",
                  "De spelers worden geteld ... 50 %", "De spelers worden geteld ... 75 %",
                  "De spelers worden geteld ... 100 %", "De spelers worden geteld ... Klaar"}),
              gezegd);
}

TEST_F(Toegankelijk, WatErVerschiltWordtHeelGezegd)
{
    std::set<std::string> gezegd;
    Rondgang(QGuiApplication::primaryScreen(), [&](const QWidget& venster) {
        for (const char* naam : {"lstVoorbeeld", "lstVerschillen", "lstHandelingen"}) {
            const auto* lijst = venster.findChild<QTreeView*>(QLatin1String(naam));
            if (lijst == nullptr)
                continue;
            for (QModelIndex plek = lijst->model()->index(0, 0); plek.isValid();
                 plek = lijst->indexBelow(plek)) {
                for (int kolom = 0; kolom < lijst->model()->columnCount(); ++kolom)
                    gezegd.insert(plek.siblingAtColumn(kolom)
                                      .data(Qt::AccessibleTextRole)
                                      .toString()
                                      .toStdString());
            }
        }
    });
    for (const char* tekst : {"Achternaam: Beukering wordt Zeldenrust", "Voornaam: leeg wordt Eva",
                              "Telef, Hier: 06-00000103, Ander programma: 06-00000999",
                              "Achternaam, Nu: Nieuwland, In de reservekopie: "})
        EXPECT_TRUE(gezegd.contains(tekst))
            << tekst << " en niet " << testing::PrintToString(gezegd);
}
