#include "dialogs/diaIngave.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

// In twips.
constexpr int VensterBreed = 5500;
constexpr int VensterHoog = 7650;
constexpr int KleinsteHoogte = 3000;
constexpr int RijBoven = 500;
constexpr int RijAfstand = 300;
constexpr int RijHoog = 285;
constexpr int VeldenHoog = RijBoven + AantalKolommen * RijAfstand;
constexpr int LabelLinks = 300;
constexpr int LabelBreed = 1100;
constexpr int VakLinks = 1500;
constexpr int VakBreed = 2500;
constexpr int GeslachtBreed = 500;
constexpr int Rand = 100;

constexpr double Veldletter = 8.0;
constexpr double Groepletter = 10.0;
constexpr double KleinsteGroepletter = 7.0;
constexpr int AchterDeTekst = 50; // caret position on returning to a field

constexpr int Nummer(Kolom kolom)
{
    return static_cast<int>(kolom);
}

void Kleur(QWidget* widget, QPalette::ColorRole rol, const QColor& kleur)
{
    QPalette palet = widget->palette();
    palet.setColor(QPalette::Active, rol, kleur);
    palet.setColor(QPalette::Inactive, rol, kleur);
    palet.setColor(QPalette::Disabled, rol, kleur);
    widget->setPalette(palet);
}

} // namespace

diaIngave::diaIngave(Ingave& ingave, std::int16_t& terugkeerveld, std::function<void()> bewaar,
                     QWidget* hoofdvenster)
    : QDialog(hoofdvenster), ingave_(ingave), Terugkeerveld(terugkeerveld),
      bewaar_(std::move(bewaar)), hoofdvenster_(hoofdvenster)
{
    ingave_.IngaveGeannuleerd = false;
    Bouw();
    BouwVelden();
    StelTabvolgordeIn();
    PlaatsNaastHoofdvenster();
}

void diaIngave::Bouw()
{
    setObjectName(u"diaIngave"_s);
    setWindowTitle(u"Ingeven persoonsgegevens"_s);
    setMinimumSize(maten_.Twips(VensterBreed), maten_.Twips(KleinsteHoogte));
    PasInScherm(this, {maten_.Twips(VensterBreed), maten_.Twips(VensterHoog)});

    velden_ = new QWidget(this);
    blad_ = new Schuifblad(velden_, this);
    blad_->setWidgetResizable(false);
    Label1 = new QLabel(ingave_.IngaveModus == "Aanmaken" ? u"Aanmaken nieuwe regel"_s
                                                          : u"Regelnummer %1"_s.arg(ingave_.rij),
                        velden_);
    Noem(Label1, u"Label1"_s);
    Label1->setAlignment(Qt::AlignCenter);
    Label2 = new QLabel(u"Rood = verplichte ingave"_s, this);
    Noem(Label2, u"Label2"_s);

    cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this);
    cmdOK->setDefault(true);
    cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this);
    connect(cmdOK, &QPushButton::clicked, this, &diaIngave::close);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &diaIngave::reject);
    // A click on a button leaves no field: OK looks at all of them itself.
    cmdOK->setFocusPolicy(Qt::TabFocus);
    cmdAnnuleren->setFocusPolicy(Qt::TabFocus);
}

void diaIngave::BouwVelden()
{
    for (int veld = 1; veld <= AantalKolommen; ++veld)
        BouwVeld(veld);
    BouwGeslacht();
    BouwHulp();
    PasVeldenAanGroepAan();
    // Each pick is one of its own group; without it the sex buttons would switch these off.
    auto* terugkeer = new QButtonGroup(this);
    for (int veld = Nummer(Kolom::Voornaam); veld <= AantalKolommen; ++veld)
        terugkeer->addButton(opt1[static_cast<std::size_t>(veld)], veld);
    connect(terugkeer, &QButtonGroup::idClicked, this, &diaIngave::KiesTerugkeerveld);
}

void diaIngave::BouwVeld(int veld)
{
    const auto plaats = static_cast<std::size_t>(veld);
    const auto kolom = static_cast<Kolom>(veld);
    const QString naam = NaarQString(Kolomnamen[plaats - 1]);
    const QFont letter = maten_.Letter(Veldletter);

    auto* label = new QLabel(naam + u':', velden_);
    Noem(label, u"lbl1_%1"_s.arg(veld));
    label->setFont(letter);
    auto* vak = new Tekstvak(velden_);
    Noem(vak, u"txt1_%1"_s.arg(veld), naam);
    vak->setFont(letter);
    vak->ZetTekst(Begintekst(kolom, ingave_.IngaveVelden[plaats - 1]));
    label->setBuddy(vak);
    vak->ZetToetsregel(
        [kolom](char teken, std::size_t lengte) { return TypTeken(kolom, teken, lengte); });
    connect(vak, &Tekstvak::verlaten, this, [this, veld] { Verlaat(veld); });
    lbl1[plaats] = label;
    txt1[plaats] = vak;

    if (veld < Nummer(Kolom::Voornaam)) {
        vak->setEnabled(false);
        vak->setReadOnly(true);
        Kleur(vak, QPalette::Base, palette().color(QPalette::Button));
        Kleur(vak, QPalette::Text, palette().color(QPalette::ButtonText));
        return;
    }
    auto* opt = new QRadioButton(velden_);
    Noem(opt, u"opt1_%1"_s.arg(veld), u"Terugkeerveld %1"_s.arg(naam));
    opt->setToolTip(u"Kies hier het terugkeerveld tbv snelle ingave"_s);
    opt->setFocusPolicy(Qt::TabFocus);
    opt1[plaats] = opt;
    if (kolom == Kolom::Achternaam) {
        QFont vet = letter;
        vet.setBold(true);
        label->setFont(vet);
        Kleur(label, QPalette::WindowText, QColor(255, 0, 0));
        // Red is hard to read on the grey of dark themes.
        Kleur(label, QPalette::Window, Qt::black);
        label->setAutoFillBackground(palette().color(QPalette::Window).lightness() < 128);
    }
}

void diaIngave::BouwGeslacht()
{
    Frame1 = new QWidget(velden_);
    Noem(Frame1, u"Frame1"_s, u"Geslacht"_s);
    auto* rij = new QHBoxLayout(Frame1);
    rij->setContentsMargins(0, 0, 0, 0);
    const auto keus = [&](const QString& naam, const QString& tekst, const QString& letter) {
        auto* knop = new QRadioButton(MetSneltoets(tekst, tekst.front().unicode()), Frame1);
        Noem(knop, naam);
        knop->setFont(maten_.Letter(Veldletter));
        knop->setFocusPolicy(Qt::TabFocus);
        rij->addWidget(knop);
        connect(knop, &QRadioButton::clicked, this, [this, letter] { KiesGeslacht(letter); });
        return knop;
    };
    optMan = keus(u"optMan"_s, u"Man"_s, u"M"_s);
    optVrouw = keus(u"optVrouw"_s, u"Vrouw"_s, u"V"_s);
    rij->addStretch();

    lbl1[Nummer(Kolom::MV)]->clear();
    Tekstvak* vak = Vak(Kolom::MV);
    vak->setAlignment(Qt::AlignCenter);
    optMan->setChecked(vak->text() == "M"_L1);
    optVrouw->setChecked(vak->text() == "V"_L1);
}

void diaIngave::BouwHulp()
{
    cmdH = MaakKnop(u"cmdH_1"_s, u"?"_s, 0, velden_);
    cmdH->setAccessibleName(u"Hulp voor Status"_s);
    cmdH->setToolTip(u"Hulp voor Status"_s);
    cmdH->setFocusPolicy(Qt::TabFocus);
    connect(cmdH, &QPushButton::clicked, this, &diaIngave::ToonHulp);
}

void diaIngave::PasVeldenAanGroepAan()
{
    Tekstvak* groep = Vak(Kolom::Groep);
    groep->ZetTekst(ingave_.groeptekst);
    groep->setAlignment(Qt::AlignCenter);
    ZetWenk(groep, groep->text());
    groep->setFont(Groepsletter(groep->text()));
    Kleur(groep, QPalette::Text, QColor(255, 0, 0));
    Kleur(groep, QPalette::Base, QColor(255, 255, 0));

    if (!ingave_.importgroep) {
        lbl1[Nummer(Kolom::NBBgr)]->setText(u"Subgroep"_s);
        lbl1[Nummer(Kolom::NBBnr)]->setText(u"-----"_s);
    }
    for (QWidget* deel : std::initializer_list<QWidget*>{
             lbl1[Nummer(Kolom::NBBnr)], Vak(Kolom::NBBnr), opt1[Nummer(Kolom::NBBnr)]})
        deel->setVisible(ingave_.importgroep);
}

/// Bold and large, but for a long name as small as it must be to stand in its box.
QFont diaIngave::Groepsletter(const QString& tekst) const
{
    const int ruimte = maten_.Twips(VakBreed - Rand);
    for (double punten = Groepletter;; punten -= 0.5) {
        QFont letter = maten_.Letter(punten);
        letter.setBold(true);
        if (punten <= KleinsteGroepletter ||
            QFontMetrics(letter).horizontalAdvance(tekst) <= ruimte)
            return letter;
    }
}

/// As the eye reads: the fields from top to bottom, then the return fields, then the buttons.
void diaIngave::StelTabvolgordeIn()
{
    QList<QWidget*> volgorde;
    for (int veld = Nummer(Kolom::Voornaam); veld <= AantalKolommen; ++veld) {
        volgorde << Vak(veld);
        if (veld == Nummer(Kolom::MV))
            volgorde << optMan << optVrouw;
        if (veld == Nummer(Kolom::Status))
            volgorde << cmdH;
    }
    for (int veld = Nummer(Kolom::Voornaam); veld <= AantalKolommen; ++veld)
        volgorde << opt1[static_cast<std::size_t>(veld)];
    volgorde << cmdAnnuleren << cmdOK;
    ZetTabvolgorde(volgorde);
    Vak(Kolom::Voornaam)->setFocus();
}

void diaIngave::resizeEvent(QResizeEvent* gebeurtenis)
{
    QDialog::resizeEvent(gebeurtenis);
    PlaatsDelen();
}

/// The places given in twips; what the window is wider than that goes to the text boxes.
void diaIngave::PlaatsDelen()
{
    const auto tw = [this](int twips) { return maten_.Twips(twips); };
    const QSize ok = cmdOK->sizeHint();
    const QSize annuleren = cmdAnnuleren->sizeHint();
    const int knopBoven = height() - ok.height() - tw(Rand);
    cmdOK->setGeometry(width() - ok.width() - tw(Rand), knopBoven, ok.width(), ok.height());
    cmdAnnuleren->setGeometry(cmdOK->x() - annuleren.width() - tw(300), knopBoven,
                              annuleren.width(), ok.height());
    Label2->adjustSize();
    Label2->move(tw(Rand), knopBoven - tw(250));

    blad_->setGeometry(0, 0, width(), Label2->y());
    const bool balk = tw(VeldenHoog) > blad_->height();
    velden_->resize(width() - (balk ? blad_->verticalScrollBar()->sizeHint().width() : 0),
                    tw(VeldenHoog));
    PlaatsVelden();
}

void diaIngave::PlaatsVelden()
{
    const auto tw = [this](int twips) { return maten_.Twips(twips); };
    const int extra = std::max(0, velden_->width() - tw(VensterBreed));
    const int vakbreed = tw(VakBreed) + extra;
    Label1->setGeometry(0, tw(Rand), velden_->width(), tw(RijBoven - 2 * Rand));
    for (int veld = 1; veld <= AantalKolommen; ++veld) {
        const auto plaats = static_cast<std::size_t>(veld);
        const int boven = tw(RijBoven + (veld - 1) * RijAfstand);
        const int hoog = tw(RijHoog);
        const bool geslacht = veld == Nummer(Kolom::MV);
        const int labelbreed = std::max(tw(LabelBreed), lbl1[plaats]->sizeHint().width());
        lbl1[plaats]->setGeometry(std::min(tw(LabelLinks), tw(VakLinks - Rand) - labelbreed), boven,
                                  labelbreed, hoog);
        txt1[plaats]->setGeometry(tw(VakLinks), boven, geslacht ? tw(GeslachtBreed) : vakbreed,
                                  hoog);
        if (opt1[plaats] != nullptr)
            opt1[plaats]->setGeometry(tw(VakLinks) + vakbreed + tw(Rand), boven,
                                      opt1[plaats]->sizeHint().width(), hoog);
    }
    const int geslachtBoven = Vak(Kolom::MV)->y();
    Frame1->setGeometry(tw(VakLinks + GeslachtBreed + Rand), geslachtBoven,
                        vakbreed - tw(GeslachtBreed + Rand), tw(RijHoog));
    const QRadioButton* statuskeus = opt1[Nummer(Kolom::Status)];
    cmdH->setGeometry(statuskeus->x() + tw(300), statuskeus->y(), tw(RijHoog), tw(RijHoog));
}

void diaIngave::PlaatsNaastHoofdvenster()
{
    const QRect scherm = hoofdvenster_->screen()->availableGeometry();
    const QRect hoofd = hoofdvenster_->frameGeometry();
    const int links = hoofd.right() + 1 - width() - maten_.Twips(Rand);
    const int boven = scherm.top() + (scherm.height() - height()) / 2;
    ZetInScherm(this, {links, boven}, *hoofdvenster_);
}

void diaIngave::showEvent(QShowEvent* gebeurtenis)
{
    QDialog::showEvent(gebeurtenis);
    if (!geactiveerd_) {
        geactiveerd_ = true;
        // Showing ends with selecting all of the first field; the return field comes after that.
        QTimer::singleShot(0, this, &diaIngave::Activeer);
    }
}

void diaIngave::Activeer()
{
    if (!KanTerugkeerveld(Terugkeerveld))
        return;
    opt1[static_cast<std::size_t>(Terugkeerveld)]->setChecked(true);
    GaNaar(Terugkeerveld);
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

void diaIngave::KiesGeslacht(const QString& letter)
{
    Vak(Kolom::MV)->setText(letter);
}

void diaIngave::ToonHulp()
{
    Meld(this, QMessageBox::Information,
         u"Status: type 'overl' of 'overleden'. (is overleden)\r\n\r\nDeze speler wordt niet meer "
         "getoond bij 'Zittingindelen'.\r\n\r\n\r\nTekst mag in hoofdletters of kleine letters."_s,
         u"Hulp voor Status"_s);
}

void diaIngave::reject()
{
    ingave_.IngaveGeannuleerd = true;
    close();
}

/// The close box counts as OK; this asymmetry with Escape is intended.
void diaIngave::closeEvent(QCloseEvent* gebeurtenis)
{
    if (!IngaveControle()) {
        gebeurtenis->ignore();
        return;
    }
    gebeurtenis->accept();
    done(ingave_.IngaveGeannuleerd ? Rejected : Accepted);
}

} // namespace plexoran
