#include "printing/frmAfdrukken.h"

#include <QIntValidator>
#include <QScreen>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/printer.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

constexpr int VensterBreed = 12700; // twips

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
    Bladnummers(const QScrollBar* bladen, QObject* ouder)
        : QIntValidator(bladen->minimum(), bladen->maximum(), ouder), bladen_(bladen)
    {}
    void fixup(QString& tekst) const override { tekst = QString::number(bladen_->value()); }

  private:
    const QScrollBar* bladen_;
};

std::shared_ptr<const Printlijst> MaakLijst(const Administratie& administratie, Afdruk afdruk)
{
    Bladindeling indeling = BerekenKolommen(afdruk.tabel, afdruk.schaal, Letterkast());
    return std::make_shared<const Printlijst>(
        Printlijst{.tabel = std::move(afdruk.tabel),
                   .indeling = std::move(indeling),
                   .groeptekst = std::move(afdruk.groeptekst),
                   .subgroepkop = std::move(afdruk.subgroepkop),
                   .datum = Tijdtekst("dd-MM-yyyy"),
                   .programma = administratie.mappen.APPEXE});
}

/// Why the sheet lies on its side, and what does not come out.
QString Reden(const Printlijst& lijst)
{
    const Bladindeling& indeling = lijst.indeling;
    if (!indeling.TeBreed())
        return u"Liggend omdat de kolommen samen %1 mm breed zijn; staand is er 210 mm."_s.arg(
            indeling.Millimeters());
    QStringList ontbreken;
    for (int kolom = indeling.kolommen; kolom <= lijst.tabel.Kolommen(); ++kolom) {
        const QString titel = NaarQString(lijst.tabel.Titel(kolom));
        ontbreken << (titel.isEmpty() ? u"(kolom %1)"_s.arg(AantalKolommen) : titel);
    }
    return u"De kolommen zijn samen %1 mm breed; liggend is er 297 mm. Niet op het blad: %2"_s
        .arg(indeling.Millimeters())
        .arg(ontbreken.join(u", "_s));
}

void WaarschuwVooraf(const Bladindeling& indeling, QWidget* ouder)
{
    if (indeling.TeBreed())
        Meld(ouder, QMessageBox::Warning,
             u"De printbreedte is groter dan het liggende A4.\r\nRechts ontbreken dus kolommen!"_s);
    if (indeling.bladen > Bladgrens)
        Meld(ouder, QMessageBox::Warning,
             u"\r\nEr worden niet meer dan %1 pagina's tegelijk geprint!\r\n"_s.arg(Bladgrens));
}

/// They share the list.
Bladreeks BladenVan(const std::shared_ptr<const Printlijst>& lijst)
{
    const Bladindeling& indeling = lijst->indeling;
    const Tekst& groep = lijst->groeptekst;
    const Tekstblik code = CodeUit(groep);
    return {.titel =
                u"Ledenlijst "_s + NaarQString(Groepnummer(code) > 0 ? code.substr(0, 4) : groep),
            .papier = indeling.papier,
            .reden = indeling.papier.stand == Papierstand::Liggend ? Reden(*lijst) : QString(),
            .bladen = indeling.ToonbareBladen(),
            .totaal = indeling.bladen,
            .teken = [lijst](Tekenvlak& vlak, int blad) { TekenBlad(vlak, *lijst, blad); }};
}

} // namespace

frmAfdrukken::frmAfdrukken(Administratie& administratie, Afdruk afdruk, QWidget* ouder)
    : frmAfdrukken(administratie, MaakLijst(administratie, std::move(afdruk)), ouder)
{}

frmAfdrukken::frmAfdrukken(Administratie& administratie,
                           const std::shared_ptr<const Printlijst>& lijst, QWidget* ouder)
    : frmAfdrukken(administratie, BladenVan(lijst), ouder)
{
    WaarschuwVooraf(lijst->indeling, ouder);
}

frmAfdrukken::frmAfdrukken(Administratie& administratie, Bladreeks reeks, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), reeks_(std::move(reeks)),
      picP0(new Bladbeeld(reeks_, kast_, this))
{
    Bouw();
    ToonBlad(1);
    picP0->setFocus();
}

/// A window that goes while it is in view takes the focus from its number box, which then speaks to
/// what is no more.
frmAfdrukken::~frmAfdrukken()
{
    txtBlad->disconnect(this);
}

/// Controls are made in the order in which the Tab key goes through them.
void frmAfdrukken::Bouw()
{
    const Maten maten;
    setObjectName(u"frmAfdrukken"_s);
    setWindowTitle(u"Toon/print ...."_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    picP0->setMinimumSize(maten.Twips(3000), maten.Twips(3000));
    QLabel* lblZoom = MaakLabel(u"lblZoom"_s, u"100 %"_s, this);
    lblZoom->setToolTip(u"Groter of kleiner: Ctrl met het muiswiel, of met + en -"_s);
    connect(picP0, &Bladbeeld::zoomVeranderd, lblZoom,
            [lblZoom](int procent) { lblZoom->setText(u"%1 %"_s.arg(procent)); });

    const bool staand = reeks_.papier.stand == Papierstand::Staand;
    QLabel* Label2 = MaakLabel(
        u"Label2"_s, staand ? u"Printformaat: A4-staand"_s : u"Printformaat: A4-liggend"_s, this);
    QLabel* lblReden = MaakLabel(u"lblReden"_s, reeks_.reden, this);
    lblReden->setWordWrap(true);
    lblReden->setVisible(!reeks_.reden.isEmpty());
    QLayout* bladkeuze = BouwBladkeuze(maten);
    auto* cmdPrinten = MaakKnop(u"cmdPrinten"_s, u"Printen..."_s, u'P', this, &frmAfdrukken::Print);
    cmdPrinten->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    Onderelkaar(
        {Naastelkaar({Label2, 0, lblZoom}),
         lblReden,
         {picP0, 1},
         Naastelkaar({bladkeuze, Wit{maten.Twips(300)}, Knoppenrij({cmdPrinten, cmdAnnuleren})})},
        this);
    PasInScherm(this, {maten.Twips(VensterBreed), screen()->availableSize().height()});
}

QLayout* frmAfdrukken::BouwBladkeuze(const Maten& maten)
{
    Label1 = MaakLabel(u"Label1"_s, QString(), this);
    Bladscroll = new Bladbalk(Qt::Horizontal, this);
    Noem(Bladscroll, u"Bladscroll"_s, u"Blad kiezen"_s);
    Bladscroll->setFocusPolicy(Qt::StrongFocus);
    Bladscroll->setMinimumWidth(maten.Twips(1800));
    Bladscroll->setRange(1, reeks_.bladen);
    Bladscroll->setPageStep(1);
    connect(Bladscroll, &QScrollBar::valueChanged, this, &frmAfdrukken::ToonBlad);
    txtBlad = new QLineEdit(this);
    Noem(txtBlad, u"txtBlad"_s, u"Bladnummer"_s);
    txtBlad->setFixedWidth(maten.Twips(600));
    txtBlad->setValidator(new Bladnummers(Bladscroll, txtBlad));
    txtBlad->setAlignment(Qt::AlignRight);
    connect(txtBlad, &QLineEdit::editingFinished, this,
            [this] { Bladscroll->setValue(txtBlad->text().toInt()); });
    Label1->setBuddy(txtBlad);
    auto* txtAantPages = new QLineEdit(u"(Totaal %1)"_s.arg(reeks_.totaal), this);
    Noem(txtAantPages, u"txtAantPages"_s, u"Aantal bladen"_s);
    txtAantPages->setFixedWidth(maten.Twips(1700));
    txtAantPages->setReadOnly(true);
    txtAantPages->setFocusPolicy(Qt::ClickFocus); // no tab stop
    txtAantPages->setFrame(false);
    QPalette palet = txtAantPages->palette();
    palet.setColor(QPalette::Base, Qt::transparent);
    txtAantPages->setPalette(palet);

    return Naastelkaar({Label1, Bladscroll, txtBlad, txtAantPages});
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
    PrintBladen(administratie_.schijf,
                {.titel = reeks_.titel,
                 .stand = reeks_.papier.stand,
                 .bezig = u"De bladen worden geprint"_s,
                 .bladen = reeks_.bladen,
                 .bladInBeeld = [this] { return Bladscroll->value(); }},
                reeks_.teken, this);
}

} // namespace plexoran
