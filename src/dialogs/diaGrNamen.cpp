#include "dialogs/diaGrNamen.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QScreen>
#include <QTimer>
#include <QWheelEvent>

#include <utility>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

// In twips.
constexpr int VensterBreed = 8400;
constexpr int VensterHoog = 7800;
constexpr int VlakLinks = 100;
constexpr int VlakBoven = 700;
constexpr int BalkBreed = 280;
constexpr int RijAfstand = 390;
constexpr int RijHoog = 345;
constexpr int LabelBreed = 1050;
constexpr int Rand = 100;

} // namespace

diaGrNamen::diaGrNamen(Groepen& groepen, QWidget* ouder)
    : QDialog(ouder), groepen_(groepen), P0(new QWidget(this)), P1(new QWidget(P0)),
      VScroll1(new QScrollBar(Qt::Vertical, this))
{
    Bouw();
    BouwKader();
    BouwRijen();
    txt1[1]->setFocus();
}

void diaGrNamen::Bouw()
{
    setObjectName(QStringLiteral("diaGrNamen"));
    setWindowTitle(QStringLiteral("Groepsnamen ingeven/wijzigen"));
    Noem(P0, QStringLiteral("P0"));
    Noem(P1, QStringLiteral("P1"));
    Noem(VScroll1, QStringLiteral("VScroll1"), QStringLiteral("Groepen verschuiven"));
    VScroll1->setAttribute(Qt::WA_NoMousePropagation);
    connect(VScroll1, &QScrollBar::valueChanged, this,
            [this](int waarde) { P1->move(0, -waarde); });

    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QStringLiteral("OK"), u'O', this);
    cmdOK->setDefault(true);
    cmdOK->setFocusPolicy(Qt::TabFocus);
    cmdAnnuleren =
        MaakKnop(QStringLiteral("cmdAnnuleren"), QStringLiteral("Annuleren"), u'A', this);
    cmdAnnuleren->setFocusPolicy(Qt::TabFocus);
    connect(cmdOK, &QPushButton::clicked, this, &diaGrNamen::accept);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &diaGrNamen::reject);
    PasInScherm(this, {maten_.Twips(VensterBreed), maten_.Twips(VensterHoog)});
    setMinimumHeight(maten_.Twips(3000));
}

void diaGrNamen::BouwKader()
{
    Frame2 = new QFrame(this);
    Frame2->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    Noem(Frame2, QStringLiteral("Frame2"));
    auto* vakken = new QGridLayout(Frame2);
    vakken->setContentsMargins(6, 2, 6, 2);
    vakken->setSpacing(1);
    vakken->setHorizontalSpacing(20);
    const auto label = [&](const QString& naam, const QString& tekst) {
        auto* nieuw = new QLabel(tekst, Frame2);
        Noem(nieuw, naam);
        return nieuw;
    };
    vakken->addWidget(label(QStringLiteral("Label2"),
                            QStringLiteral("Geef eventueel een herkenbare tekst aan de groep.")),
                      0, 0, 1, 2);
    vakken->addWidget(
        label(QStringLiteral("Label1"), QStringLiteral("U bent vrij in de toe te voegen tekst.")),
        1, 0);
    vakken->addWidget(
        label(QStringLiteral("Label3"), QStringLiteral("'Gr01-' enz, blijft een vast voorvoegsel")),
        1, 1);
    vakken->setColumnStretch(1, 1);
    const int nodig = std::max(maten_.Twips(VensterBreed),
                               vakken->minimumSize().width() + maten_.Twips(4 * VlakLinks));
    setMinimumWidth(std::min(nodig, screen()->availableSize().width() - maten_.Twips(VlakLinks)));
}

void diaGrNamen::BouwRijen()
{
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer) {
        const auto plaats = static_cast<std::size_t>(nummer);
        const QString kop = QStringLiteral("Groep %1: ").arg(nummer, 2, 10, QLatin1Char('0'));
        auto* label = new QLabel(kop, P1);
        Noem(label, QStringLiteral("lbl1_%1").arg(nummer));
        auto* vak = new Tekstvak(P1);
        Noem(vak, QStringLiteral("txt1_%1").arg(nummer), kop.trimmed());
        vak->ZetTekst(groepen_.Naam(nummer));
        label->setBuddy(vak);
        connect(vak, &Tekstvak::verlaten, this, [this, vak] { Verlaat(vak); });
        lbl1[plaats] = label;
        txt1[plaats] = vak;
    }
    QWidget::setTabOrder(txt1[AantalGroepen], cmdAnnuleren);
    QWidget::setTabOrder(cmdAnnuleren, cmdOK);
    // A field that the Tab key reaches outside the visible rows is scrolled into view.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* nieuw) {
        if (nieuw != nullptr && nieuw->parentWidget() == P1)
            BrengInBeeld(nieuw);
    });
}

void diaGrNamen::BrengInBeeld(const QWidget* vak)
{
    const int boven = vak->geometry().top();
    const int onder = vak->geometry().bottom() + 1;
    if (boven < VScroll1->value())
        VScroll1->setValue(boven);
    else if (onder > VScroll1->value() + P0->height())
        VScroll1->setValue(onder - P0->height());
}

void diaGrNamen::resizeEvent(QResizeEvent* gebeurtenis)
{
    QDialog::resizeEvent(gebeurtenis);
    PlaatsDelen();
}

void diaGrNamen::PlaatsRijen(int breed)
{
    const auto tw = [this](int twips) { return maten_.Twips(twips); };
    const int labelbreed = std::max(tw(LabelBreed), lbl1[AantalGroepen]->sizeHint().width());
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer) {
        const auto plaats = static_cast<std::size_t>(nummer);
        const int boven = tw(RijAfstand) * (nummer - 1);
        lbl1[plaats]->setGeometry(0, boven, labelbreed, tw(RijHoog));
        txt1[plaats]->setGeometry(labelbreed, boven, breed - labelbreed - tw(Rand) / 2,
                                  tw(RijHoog));
    }
    P1->resize(breed, tw(RijAfstand) * AantalGroepen);
}

void diaGrNamen::PlaatsDelen()
{
    const auto tw = [this](int twips) { return maten_.Twips(twips); };
    const QSize knop = cmdAnnuleren->sizeHint();
    const int knopBoven = height() - knop.height() - tw(Rand);
    const int hoog = knopBoven - tw(VlakBoven) - tw(Rand);
    const int breed = width() - tw(VlakLinks + BalkBreed + Rand);
    P0->setGeometry(tw(VlakLinks), tw(VlakBoven), breed, hoog);
    PlaatsRijen(breed);
    VScroll1->setGeometry(tw(VlakLinks) + breed, tw(VlakBoven), tw(BalkBreed), hoog);
    const int over = std::max(0, P1->height() - P0->height());
    VScroll1->setRange(0, over);
    VScroll1->setPageStep(std::max(1, hoog));
    VScroll1->setSingleStep(tw(RijAfstand));
    VScroll1->setEnabled(over > 0);

    Frame2->setGeometry(tw(VlakLinks), tw(Rand) / 2, width() - 2 * tw(VlakLinks),
                        tw(VlakBoven - Rand));
    cmdOK->setGeometry(width() - knop.width() - tw(Rand), knopBoven, knop.width(), knop.height());
    cmdAnnuleren->setGeometry(cmdOK->x() - knop.width() - tw(Rand), knopBoven, knop.width(),
                              knop.height());
}

void diaGrNamen::wheelEvent(QWheelEvent* gebeurtenis)
{
    QApplication::sendEvent(VScroll1, gebeurtenis);
}

/// The text is mended at once; the message follows when what took the focus away is done.
void diaGrNamen::Verlaat(Tekstvak* vak)
{
    const Tekst tekst = vak->GeefTekst();
    if (tekst.find(',') == Tekst::npos)
        return;
    vak->Vervang(Vervang(tekst, ',', '_'));
    kommaTeMelden_ = true;
    QTimer::singleShot(0, this, &diaGrNamen::MeldKommas);
}

void diaGrNamen::MeldKommas()
{
    if (std::exchange(kommaTeMelden_, false))
        Meld(this, QMessageBox::Information,
             QStringLiteral("Komma's worden veranderd in Underscores. (_)"));
}

void diaGrNamen::accept()
{
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        Verlaat(txt1[static_cast<std::size_t>(nummer)]);
    MeldKommas();
    geannuleerd_ = false;
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer)
        groepen_.ZetNaam(nummer,
                         ZonderSpaties(txt1[static_cast<std::size_t>(nummer)]->GeefTekst()));
    QDialog::accept();
}

} // namespace plexoran
