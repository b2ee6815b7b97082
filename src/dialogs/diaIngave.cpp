#include "dialogs/diaIngave.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

// In twips.
constexpr int VensterBreed = 5500;
constexpr int RijBoven = 500;
constexpr int RijAfstand = 300;
constexpr int RijHoog = 285;
constexpr int LabelBreed = 1100;
constexpr int VakLinks = 1500;
constexpr int VakBreed = 2500;
constexpr int GeslachtBreed = 500;
constexpr int VoetHoog = 250;
constexpr int Inspringing = 300;
constexpr int Rand = 100;

constexpr double Veldletter = 8.0;
constexpr double Groepletter = 10.0;
constexpr double KleinsteGroepletter = 7.0;
constexpr int AchterDeTekst = 50; // caret position on returning to a field

void Kleur(QWidget* widget, QPalette::ColorRole rol, const QColor& kleur)
{
    QPalette palet = widget->palette();
    palet.setColor(rol, kleur);
    widget->setPalette(palet);
}

} // namespace

diaIngave::diaIngave(Ingave& ingave, std::int16_t& terugkeerveld, std::function<void()> bewaar,
                     QWidget* hoofdvenster)
    : QDialog(hoofdvenster), ingave_(ingave), Terugkeerveld(terugkeerveld),
      bewaar_(std::move(bewaar)), opt1(new QButtonGroup(this))
{
    setObjectName(u"diaIngave"_s);
    setWindowTitle(u"Ingeven persoonsgegevens"_s);
    setMinimumSize(maten_.Twips(VensterBreed, 3000));
    auto* velden = new Schuifblad(BouwVelden(), this);
    auto* lagen = Onderelkaar({{velden, 1}, BouwVoet()}, this);
    lagen->setContentsMargins({});
    lagen->setSpacing(0);
    ToonGroep();
    KleurVelden();
    PasInScherm(this, maten_.Twips(VensterBreed, 7650));
    Vak(Kolom::Voornaam)->setFocus();

    const QRect scherm = hoofdvenster->screen()->availableGeometry();
    const int links = hoofdvenster->frameGeometry().right() + 1 - width() - maten_.Twips(Rand);
    const int boven = scherm.top() + (scherm.height() - height()) / 2;
    ZetInScherm(this, {links, boven}, *hoofdvenster);
    // Showing ends with selecting all of the first field; the return field comes after that.
    QTimer::singleShot(0, this, [this] {
        if (!KanTerugkeerveld(Terugkeerveld))
            return;
        opt1->button(Terugkeerveld)->setChecked(true);
        GaNaar(Terugkeerveld);
    });
}

/// What scrolls on a low screen. The controls are made in the order of the Tab key, which is as the
/// eye reads: the fields from top to bottom, then the return fields.
QWidget* diaIngave::BouwVelden()
{
    const auto tw = [this](int twips) { return maten_.Twips(twips); };
    auto* velden = new QWidget(this);
    auto* rooster = new QGridLayout(velden);
    rooster->setContentsMargins(0, tw(Rand), 0, 0);
    rooster->setHorizontalSpacing(tw(Rand));
    rooster->setVerticalSpacing(tw(RijAfstand - RijHoog));
    rooster->setRowMinimumHeight(0, tw(RijBoven) - tw(Rand) - tw(RijAfstand - RijHoog));
    rooster->setRowStretch(AantalKolommen + 1, 1);
    rooster->setColumnMinimumWidth(0, tw(VakLinks - Rand));
    rooster->setColumnMinimumWidth(1, tw(VakBreed));
    rooster->setColumnStretch(1, 1);
    // The text boxes get what the window is wider; what a scroll bar takes goes at the right.
    rooster->addItem(
        new QSpacerItem(tw(VensterBreed - VakLinks - VakBreed - Rand), 0, QSizePolicy::Preferred),
        0, 2);

    auto* Label1 =
        MaakLabel(u"Label1"_s,
                  ingave_.IngaveModus == "Aanmaken" ? u"Aanmaken nieuwe regel"_s
                                                    : u"Regelnummer %1"_s.arg(ingave_.rij),
                  velden);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setFixedHeight(tw(RijBoven - 2 * Rand));
    rooster->addWidget(Label1, 0, 0, 1, 3, Qt::AlignTop);
    for (int veld = 1; veld <= AantalKolommen; ++veld)
        BouwVeld(veld, rooster);
    BouwTerugkeerkeuzen(rooster);
    return velden;
}

void diaIngave::BouwVeld(int veld, QGridLayout* rooster)
{
    const auto kolom = static_cast<Kolom>(veld);
    const QString naam = NaarQString(Kolomnamen[Index(kolom)]);
    QWidget* velden = rooster->parentWidget();

    auto* label = MaakLabel(u"lbl1_%1"_s.arg(veld), Opschrift(kolom), velden);
    label->setMinimumWidth(maten_.Twips(LabelBreed));
    rooster->addWidget(label, veld, 0, Qt::AlignRight);
    auto* vak = new Tekstvak(velden);
    Noem(vak, u"txt1_%1"_s.arg(veld), naam);
    vak->ZetTekst(Begintekst(kolom, ingave_.IngaveVelden[Index(kolom)]));
    label->setBuddy(vak);
    vak->ZetToetsregel(
        [kolom](char teken, std::size_t lengte) { return TypTeken(kolom, teken, lengte); });
    connect(vak, &Tekstvak::verlaten, this, [this, veld] { Verlaat(veld); });
    txt1 << vak;
    for (QWidget* deel : std::initializer_list<QWidget*>{label, vak}) {
        deel->setFont(maten_.Letter(Veldletter));
        deel->setFixedHeight(maten_.Twips(RijHoog));
        deel->setVisible(kolom != Kolom::NBBnr || ingave_.importgroep);
    }

    if (veld < EersteIngaveveld) {
        vak->setEnabled(false);
        vak->setReadOnly(true);
    }
    if (kolom == Kolom::Achternaam) {
        MaakVet(label);
        Kleur(label, QPalette::WindowText, QColor(255, 0, 0));
        Kleur(label, QPalette::Window, Qt::black);
    }
    if (kolom == Kolom::Status)
        BouwHulp(rooster, veld);
    if (kolom != Kolom::MV) {
        rooster->addWidget(vak, veld, 1);
        return;
    }
    vak->setFixedWidth(maten_.Twips(GeslachtBreed));
    vak->setAlignment(Qt::AlignCenter);
    auto* rij = Naastelkaar({vak, {BouwGeslacht(velden), 1}});
    rij->setSpacing(maten_.Twips(Rand));
    rooster->addLayout(rij, veld, 1);
}

QString diaIngave::Opschrift(Kolom kolom) const
{
    if (kolom == Kolom::MV)
        return {};
    if (kolom == Kolom::NBBgr && !ingave_.importgroep)
        return u"Subgroep"_s;
    if (kolom == Kolom::NBBnr && !ingave_.importgroep)
        return u"-----"_s;
    return NaarQString(Kolomnamen[Index(kolom)]) + u':';
}

QWidget* diaIngave::BouwGeslacht(QWidget* velden)
{
    auto* Frame1 = new QWidget(velden);
    Noem(Frame1, u"Frame1"_s, u"Geslacht"_s);
    auto* rij = new QHBoxLayout(Frame1);
    rij->setContentsMargins({});
    Frame1->setFixedHeight(maten_.Twips(RijHoog));
    for (const auto& [naam, tekst] :
         {std::pair(u"optMan"_s, u"Man"_s), std::pair(u"optVrouw"_s, u"Vrouw"_s)}) {
        const QString letter = tekst.left(1);
        auto* knop = MaakOptie(naam, tekst, letter.front().unicode(), Frame1);
        knop->setFont(maten_.Letter(Veldletter));
        knop->setFocusPolicy(Qt::TabFocus);
        knop->setChecked(Vak(Kolom::MV)->text() == letter);
        rij->addWidget(knop);
        connect(knop, &QRadioButton::clicked, this,
                [this, letter] { Vak(Kolom::MV)->setText(letter); });
    }
    rij->addStretch();
    return Frame1;
}

void diaIngave::BouwHulp(QGridLayout* rooster, int rij)
{
    auto* cmdH = MaakKnop(u"cmdH_1"_s, u"?"_s, 0, rooster->parentWidget());
    cmdH->setAccessibleName(u"Hulp voor Status"_s);
    cmdH->setToolTip(u"Hulp voor Status"_s);
    cmdH->setFocusPolicy(Qt::TabFocus);
    cmdH->setFixedSize(maten_.Twips(RijHoog), maten_.Twips(RijHoog));
    connect(cmdH, &QPushButton::clicked, this, [this] {
        Meld(this, QMessageBox::Information,
             u"Status: type 'overl' of 'overleden'. (is overleden)\r\n\r\nDeze speler wordt niet "
             "meer getoond bij 'Zittingindelen'.\r\n\r\n\r\nTekst mag in hoofdletters of kleine "
             "letters."_s,
             u"Hulp voor Status"_s);
    });
    rooster->addLayout(Naastelkaar({Wit{maten_.Twips(Inspringing)}, cmdH, 0}), rij, 2);
}

void diaIngave::BouwTerugkeerkeuzen(QGridLayout* rooster)
{
    for (int veld = EersteIngaveveld; veld <= AantalKolommen; ++veld) {
        const QString naam = Vak(veld)->accessibleName();
        auto* opt = new QRadioButton(rooster->parentWidget());
        Noem(opt, u"opt1_%1"_s.arg(veld), u"Terugkeerveld %1"_s.arg(naam));
        opt->setToolTip(u"Kies hier het terugkeerveld tbv snelle ingave"_s);
        opt->setFocusPolicy(Qt::TabFocus);
        opt->setFixedHeight(maten_.Twips(RijHoog));
        opt->setVisible(veld != static_cast<int>(Kolom::NBBnr) || ingave_.importgroep);
        opt1->addButton(opt, veld);
        rooster->addWidget(opt, veld, 2, Qt::AlignLeft);
    }
    connect(opt1, &QButtonGroup::idClicked, this, &diaIngave::KiesTerugkeerveld);
}

QLayout* diaIngave::BouwVoet()
{
    auto* Label2 = MaakLabel(u"Label2"_s, u"Rood = verplichte ingave"_s, this);
    Label2->setFixedHeight(maten_.Twips(VoetHoog));
    Label2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* cmdAnnuleren =
        MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &diaIngave::reject);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this, &diaIngave::close);
    cmdOK->setDefault(true);
    // A click on a button leaves no field: OK looks at all of them itself.
    for (QPushButton* knop : {cmdAnnuleren, cmdOK})
        knop->setFocusPolicy(Qt::TabFocus);
    auto* knoppen = Knoppenrij({cmdAnnuleren, cmdOK});
    knoppen->setSpacing(maten_.Twips(Inspringing));
    auto* voet = Onderelkaar({Label2, knoppen});
    const int rand = maten_.Twips(Rand);
    voet->setContentsMargins(rand, 0, rand, rand);
    voet->setSpacing(0);
    return voet;
}

/// In the theme of the desktop, also when that changes.
void diaIngave::KleurVelden()
{
    for (const Kolom kolom : {Kolom::Nr, Kolom::Key}) {
        Kleur(Vak(kolom), QPalette::Base, palette().color(QPalette::Button));
        Kleur(Vak(kolom), QPalette::Text, palette().color(QPalette::ButtonText));
    }
    // Red is hard to read on the grey of dark themes.
    findChild<QLabel*>(u"lbl1_6"_s)
        ->setAutoFillBackground(palette().color(QPalette::Window).lightness() < 128);
}

void diaIngave::changeEvent(QEvent* gebeurtenis)
{
    QDialog::changeEvent(gebeurtenis);
    if (gebeurtenis->type() == QEvent::PaletteChange && !txt1.isEmpty())
        KleurVelden();
}

/// Bold and large, but for a long name as small as it must be to stand in its box.
void diaIngave::ToonGroep()
{
    Tekstvak* groep = Vak(Kolom::Groep);
    groep->ZetTekst(ingave_.groeptekst);
    groep->setAlignment(Qt::AlignCenter);
    groep->setToolTip(Wenk(groep->text()));
    Kleur(groep, QPalette::Text, QColor(255, 0, 0));
    Kleur(groep, QPalette::Base, QColor(255, 255, 0));
    const int ruimte = maten_.Twips(VakBreed - Rand);
    double punten = Groepletter;
    QFont letter;
    do {
        letter = maten_.Letter(punten);
        letter.setBold(true);
        punten -= 0.5;
    } while (punten >= KleinsteGroepletter &&
             QFontMetrics(letter).horizontalAdvance(groep->text()) > ruimte);
    groep->setFont(letter);
}

void diaIngave::GaNaar(int veld)
{
    Tekstvak* vak = Vak(veld);
    vak->setFocus(Qt::OtherFocusReason);
    vak->deselect();
    vak->setCursorPosition(std::min(AchterDeTekst, static_cast<int>(vak->text().size())));
}

void diaIngave::KiesTerugkeerveld(int veld)
{
    Terugkeerveld = static_cast<std::int16_t>(veld);
    bewaar_();
    if (KanTerugkeerveld(veld))
        GaNaar(veld);
}

/// The text is mended at once; the messages follow when what took the focus away is done.
void diaIngave::Verlaat(int veld)
{
    Tekstvak* vak = Vak(veld);
    const Tekst tekst = vak->GeefTekst();
    const Veldverlaten verlaten = VerlaatVeld(static_cast<Kolom>(veld), tekst);
    if (verlaten.tekst != tekst)
        vak->Vervang(verlaten.tekst);
    if (verlaten.reparaties.empty())
        return;
    teMelden_.insert(teMelden_.end(), verlaten.reparaties.begin(), verlaten.reparaties.end());
    QTimer::singleShot(0, this, &diaIngave::MeldReparaties);
}

void diaIngave::MeldReparaties()
{
    for (const Reparatie reparatie : std::exchange(teMelden_, {}))
        Meld(this, QMessageBox::Information,
             reparatie == Reparatie::Komma
                 ? u"Komma's worden veranderd in Underscores"_s
                 : u"Bij dummy-speler 'Partner...' worden spaties veranderd in Underscores"_s);
}

bool diaIngave::IngaveControle()
{
    for (int veld = EersteIngaveveld; veld <= AantalKolommen; ++veld)
        Verlaat(veld);
    MeldReparaties();
    if (IsBlanco(Vak(Kolom::Achternaam)->GeefTekst())) {
        Meld(this, QMessageBox::Warning, u"U moet minimaal de ACHTERNAAM invullen!"_s);
        Vak(Kolom::Achternaam)->setFocus(Qt::OtherFocusReason);
        return false;
    }
    std::ranges::transform(txt1, ingave_.IngaveVelden.begin(), &Tekstvak::GeefTekst);
    return true;
}

/// The close box counts as OK; this asymmetry with Escape is intended.
void diaIngave::closeEvent(QCloseEvent* gebeurtenis)
{
    gebeurtenis->setAccepted(IngaveControle());
    if (gebeurtenis->isAccepted())
        done(Accepted);
}

} // namespace plexoran
