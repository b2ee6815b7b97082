#include "printing/frmAfdrukken.h"

#include <QIntValidator>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/printer.h"
#include "platform/schijf/klok.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

constexpr int VensterBreed = 12700; // twips

QLineEdit* MaakVak(const QString& naam, const QString& gesproken, int breed, QWidget* ouder)
{
    auto* vak = new QLineEdit(ouder);
    Noem(vak, naam, gesproken);
    vak->setFixedWidth(breed);
    return vak;
}

/// Qt's own bar goes back at the right arrow.
class Bladbalk : public QScrollBar {
  public:
    using QScrollBar::QScrollBar;

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override
    {
        if (!VerschuifOpzij(*this, gebeurtenis->key()) && !Verschuif(*this, gebeurtenis->key()))
            QScrollBar::keyPressEvent(gebeurtenis);
    }
};

/// Numbers of pages that can be shown. What is left standing and is none, such as 0, becomes the
/// number of the page in view.
class Bladnummers : public QIntValidator {
  public:
    explicit Bladnummers(const QScrollBar* bladen)
        : QIntValidator(bladen->minimum(), bladen->maximum(), nullptr), bladen_(bladen)
    {}
    void fixup(QString& tekst) const override { tekst = QString::number(bladen_->value()); }

  private:
    const QScrollBar* bladen_;
};

Printlijst MaakLijst(const Administratie& administratie, Afdruk afdruk, const Lettermeter& meter)
{
    Bladindeling indeling = BerekenKolommen(afdruk.tabel, afdruk.schaal, meter);
    return {.tabel = std::move(afdruk.tabel),
            .indeling = std::move(indeling),
            .groeptekst = std::move(afdruk.groeptekst),
            .subgroepkop = std::move(afdruk.subgroepkop),
            .datum = Dagtekening(),
            .programma = administratie.mappen.APPEXE};
}

} // namespace

frmAfdrukken::frmAfdrukken(Administratie& administratie, Afdruk afdruk, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie),
      lijst_(MaakLijst(administratie, std::move(afdruk), kast_)),
      picP0(new Bladbeeld(lijst_, kast_, maten_, this))
{
    Bouw();
    Verbind();
    WaarschuwVooraf();
    ToonBlad(1);
    picP0->setFocus();
}

/// A window that goes while it is in view takes the focus from its number box, which then speaks to
/// what is no more.
frmAfdrukken::~frmAfdrukken()
{
    txtBlad->disconnect(this);
}

void frmAfdrukken::Bouw()
{
    setObjectName(u"frmAfdrukken"_s);
    setWindowTitle(u"Toon/print ...."_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Label2 = MaakLabel(u"Label2"_s, QString(), this);
    lblReden = MaakLabel(u"lblReden"_s, QString(), this);
    lblReden->setWordWrap(true);
    lblZoom = MaakLabel(u"lblZoom"_s, u"100 %"_s, this);
    lblZoom->setToolTip(u"Groter of kleiner: Ctrl met het muiswiel, of met + en -"_s);
    cmdPrinten = MaakKnop(u"cmdPrinten"_s, u"Printen..."_s, u'P', this);
    cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this);
    cmdPrinten->setDefault(true);

    auto* boven = new QHBoxLayout;
    boven->addWidget(Label2);
    boven->addStretch();
    boven->addWidget(lblZoom);
    auto* onder = new QHBoxLayout;
    onder->addLayout(BouwBladkeuze());
    onder->addSpacing(maten_.Twips(300));
    onder->addLayout(Knoppenrij({cmdPrinten, cmdAnnuleren}));
    auto* lagen = new QVBoxLayout(this);
    lagen->addLayout(boven);
    lagen->addWidget(lblReden);
    lagen->addWidget(picP0, 1);
    lagen->addLayout(onder);
    picP0->setMinimumSize(maten_.Twips(3000), maten_.Twips(3000));
    PasInScherm(this, {maten_.Twips(VensterBreed), screen()->availableSize().height()});
    ZetTabvolgorde({picP0, Bladscroll, txtBlad, cmdPrinten, cmdAnnuleren});
    ToonPapier();
}

QLayout* frmAfdrukken::BouwBladkeuze()
{
    const int bladen = lijst_.indeling.ToonbareBladen();
    Label1 = MaakLabel(u"Label1"_s, QString(), this);
    Bladscroll = new Bladbalk(Qt::Horizontal, this);
    Noem(Bladscroll, u"Bladscroll"_s, u"Blad kiezen"_s);
    Bladscroll->setFocusPolicy(Qt::StrongFocus);
    Bladscroll->setMinimumWidth(maten_.Twips(1800));
    Bladscroll->setRange(1, bladen);
    Bladscroll->setSingleStep(1);
    Bladscroll->setPageStep(1);
    txtBlad = MaakVak(u"txtBlad"_s, u"Bladnummer"_s, maten_.Twips(600), this);
    Label1->setBuddy(txtBlad);
    auto* nummers = new Bladnummers(Bladscroll);
    nummers->setParent(txtBlad);
    txtBlad->setValidator(nummers);
    txtBlad->setAlignment(Qt::AlignRight);
    txtAantPages = MaakVak(u"txtAantPages"_s, u"Aantal bladen"_s, maten_.Twips(1700), this);
    txtAantPages->setReadOnly(true);
    txtAantPages->setFocusPolicy(Qt::ClickFocus); // no tab stop
    txtAantPages->setFrame(false);
    QPalette palet = txtAantPages->palette();
    palet.setColor(QPalette::Base, Qt::transparent);
    txtAantPages->setPalette(palet);
    txtAantPages->setText(u"(Totaal %1)"_s.arg(lijst_.indeling.bladen));

    auto* rij = new QHBoxLayout;
    rij->addWidget(Label1);
    rij->addWidget(Bladscroll);
    rij->addWidget(txtBlad);
    rij->addWidget(txtAantPages);
    return rij;
}

void frmAfdrukken::Verbind()
{
    connect(Bladscroll, &QScrollBar::valueChanged, this, &frmAfdrukken::ToonBlad);
    connect(txtBlad, &QLineEdit::editingFinished, this,
            [this] { Bladscroll->setValue(txtBlad->text().toInt()); });
    connect(picP0, &Bladbeeld::zoomVeranderd, this,
            [this](int procent) { lblZoom->setText(u"%1 %"_s.arg(procent)); });
    connect(cmdPrinten, &QPushButton::clicked, this, &frmAfdrukken::Print);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAfdrukken::ToonPapier()
{
    const Bladindeling& indeling = lijst_.indeling;
    const bool staand = indeling.papier.stand == Papierstand::Staand;
    Label2->setText(staand ? u"Printformaat: A4-staand"_s : u"Printformaat: A4-liggend"_s);
    QStringList ontbreken;
    for (int kolom = indeling.kolommen; kolom <= lijst_.tabel.Kolommen(); ++kolom) {
        const QString titel = NaarQString(lijst_.tabel.Titel(kolom));
        ontbreken << (titel.isEmpty() ? u"(kolom %1)"_s.arg(AantalKolommen) : titel);
    }
    const QString breed = QString::number(indeling.Millimeters());
    lblReden->setVisible(!staand);
    lblReden->setText(
        indeling.TeBreed()
            ? u"De kolommen zijn samen %1 mm breed; liggend is er 297 mm. Niet op het blad: %2"_s
                  .arg(breed, ontbreken.join(u", "_s))
            : u"Liggend omdat de kolommen samen %1 mm breed zijn; staand is er 210 mm."_s.arg(
                  breed));
}

void frmAfdrukken::WaarschuwVooraf()
{
    if (lijst_.indeling.TeBreed())
        Meld(parentWidget(), QMessageBox::Warning,
             u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    if (lijst_.indeling.bladen > Bladgrens)
        Meld(parentWidget(), QMessageBox::Warning,
             u"\r\nEr worden niet meer dan %1 pagina's tegelijk geprint!\r\n"_s.arg(Bladgrens));
}

void frmAfdrukken::ToonBlad(int blad)
{
    Label1->setText(u"Print blad %1"_s.arg(blad));
    txtBlad->setText(QString::number(blad));
    picP0->Toon(blad);
}

void frmAfdrukken::keyPressEvent(QKeyEvent* gebeurtenis)
{
    if (!Verwerk(*gebeurtenis))
        QDialog::keyPressEvent(gebeurtenis);
}

bool frmAfdrukken::Verwerk(const QKeyEvent& toets)
{
    const bool ctrl = toets.modifiers().testFlag(Qt::ControlModifier);
    switch (toets.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return txtBlad->hasFocus(); // it closes the number, and must not print
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        if (ctrl)
            picP0->Zoom(1);
        return ctrl;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        if (ctrl)
            picP0->Zoom(-1);
        return ctrl;
    case Qt::Key_0:
        if (ctrl)
            picP0->ZetZoom(100);
        return ctrl;
    case Qt::Key_Left:
    case Qt::Key_Right:
        return VerschuifOpzij(picP0->Liggend(), toets.key());
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Verschuif(picP0->Staand(), toets.key());
    default:
        return Verschuif(*Bladscroll, toets.key());
    }
}

// ---------------------------------------------------------------- printing

void frmAfdrukken::Print()
{
    const Bladindeling& indeling = lijst_.indeling;
    PrintBladen(
        administratie_.schijf,
        {.titel = u"Ledenlijst "_s + NaarQString(CodeUit(lijst_.groeptekst)).left(4),
         .stand = indeling.papier.stand,
         .bezig = u"De bladen worden geprint"_s,
         .bladen = indeling.ToonbareBladen(),
         .bladInBeeld = [this] { return Bladscroll->value(); }},
        [this](Tekenvlak& vlak, int blad) { TekenBlad(vlak, lijst_, blad); }, this);
}

} // namespace plexoran
