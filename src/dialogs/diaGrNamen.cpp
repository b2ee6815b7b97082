#include "dialogs/diaGrNamen.h"

#include <QFormLayout>
#include <QScreen>
#include <QTimer>

#include <utility>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {
namespace {

// In twips.
constexpr int VlakBoven = 700;
constexpr int RijAfstand = 390;
constexpr int RijHoog = 345;
constexpr int Rand = 100;

} // namespace

diaGrNamen::diaGrNamen(Groepen& groepen, QWidget* ouder) : QDialog(ouder), groepen_(groepen)
{
    setObjectName(u"diaGrNamen"_s);
    setWindowTitle(u"Groepsnamen ingeven/wijzigen"_s);
    const int rand = maten_.Twips(Rand);
    auto* lagen = Onderelkaar({BouwKader(), {BouwRijen(), 1}}, this);
    lagen->setContentsMargins(rand, rand / 2, rand, rand);
    lagen->setSpacing(rand / 2);
    auto* cmdAnnuleren =
        MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &diaGrNamen::reject);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this, &diaGrNamen::accept);
    cmdOK->setDefault(true);
    for (QPushButton* knop : {cmdAnnuleren, cmdOK})
        knop->setFocusPolicy(Qt::TabFocus);
    lagen->addLayout(Knoppenrij({cmdAnnuleren, cmdOK}));
    PasInScherm(this, maten_.Twips(8400, 7800));
    setMinimumWidth(
        std::min(lagen->minimumSize().width(), screen()->availableSize().width() - rand));
    txt1.first()->setFocus();
}

QWidget* diaGrNamen::BouwKader()
{
    auto* Frame2 = new QFrame(this);
    Noem(Frame2, u"Frame2"_s);
    Frame2->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    Frame2->setFixedHeight(maten_.Twips(VlakBoven) - 2 * (maten_.Twips(Rand) / 2));
    auto* vakken = new QGridLayout(Frame2);
    vakken->setContentsMargins(6, 2, 6, 2);
    vakken->setSpacing(1);
    vakken->setHorizontalSpacing(20);
    vakken->addWidget(
        MaakLabel(u"Label2"_s, u"Geef eventueel een herkenbare tekst aan de groep."_s, Frame2), 0,
        0, 1, 2);
    vakken->addWidget(MaakLabel(u"Label1"_s, u"U bent vrij in de toe te voegen tekst."_s, Frame2),
                      1, 0);
    vakken->addWidget(MaakLabel(u"Label3"_s, u"'Gr01-' enz, blijft een vast voorvoegsel"_s, Frame2),
                      1, 1);
    vakken->setColumnStretch(1, 1);
    return Frame2;
}

QWidget* diaGrNamen::BouwRijen()
{
    auto* P1 = new QWidget(this);
    Noem(P1, u"P1"_s);
    auto* rijen = new QFormLayout(P1);
    rijen->setContentsMargins(0, 0, maten_.Twips(Rand) / 2, 0);
    rijen->setSpacing(maten_.Twips(RijAfstand - RijHoog));
    rijen->setLabelAlignment(Qt::AlignLeft);
    for (int nummer = 1; nummer <= AantalGroepen; ++nummer) {
        const QString kop = u"Groep %1: "_s.arg(nummer, 2, 10, QChar(u'0'));
        auto* label = MaakLabel(u"lbl1_%1"_s.arg(nummer), kop, P1);
        auto* vak = new Tekstvak(P1);
        Noem(vak, u"txt1_%1"_s.arg(nummer), kop.trimmed());
        vak->ZetTekst(groepen_.Naam(nummer));
        label->setBuddy(vak);
        connect(vak, &Tekstvak::verlaten, this, [this, vak] { Verlaat(vak); });
        rijen->addRow(label, vak);
        txt1 << vak;
    }
    auto* P0 = new Schuifblad(P1, this);
    Noem(P0, u"P0"_s);
    P0->setMinimumHeight(maten_.Twips(1500));
    P0->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QScrollBar* VScroll1 = P0->verticalScrollBar();
    Noem(VScroll1, u"VScroll1"_s, u"Groepen verschuiven"_s);
    VScroll1->setSingleStep(maten_.Twips(RijAfstand));
    connect(VScroll1, &QScrollBar::rangeChanged, VScroll1,
            [VScroll1](int /*van*/, int tot) { VScroll1->setEnabled(tot > 0); });
    return P0;
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
        Meld(this, QMessageBox::Information, u"Komma's worden veranderd in Underscores. (_)"_s);
}

void diaGrNamen::accept()
{
    for (int i = 0; i < AantalGroepen; ++i) {
        Verlaat(txt1[i]);
        groepen_.ZetNaam(i + 1, ZonderSpaties(txt1[i]->GeefTekst()));
    }
    MeldKommas();
    QDialog::accept();
}

} // namespace plexoran
