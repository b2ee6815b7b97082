#include "platform/scherm/berichten.h"

#include <QEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLayout>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>

#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"
#include "platform/schijf/programma.h"

namespace plexoran {
namespace {

/// A message box with Dutch buttons that can be kept as it is laid out.
class Berichtvenster : public QMessageBox {
  public:
    /// Texts carry names from files: never let one be taken for markup.
    Berichtvenster(Icon icoon, const QString& tekst, const QString& titel, StandardButtons knoppen,
                   QWidget* ouder, const QString& toelichting = QString())
        : QMessageBox(icoon, titel, QString(), knoppen, ouder)
    {
        setTextFormat(Qt::PlainText);
        setText(tekst);
        setInformativeText(toelichting);
        if (auto* label = findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
            label->setTextFormat(Qt::PlainText); // which the box itself forgets
        if (knoppen.testFlag(Ok))
            button(Ok)->setText(u"OK"_s);
        if (knoppen.testFlag(Cancel))
            button(Cancel)->setText(u"Annuleren"_s);
    }

  protected:
    bool event(QEvent* gebeurtenis) override
    {
        // A message box answers this by breaking its lines, and making itself as high as its text,
        // again.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return blijft_ && gebeurtenis->type() == QEvent::LayoutRequest
                   ? QDialog::event(gebeurtenis)
                   : QMessageBox::event(gebeurtenis);
    }

    /// A box of which a small screen lacks the room for the text scrolls it: its buttons stay in
    /// sight.
    void showEvent(QShowEvent* gebeurtenis) override
    {
        QMessageBox::showEvent(gebeurtenis);
        const QSize ruimte = screen()->availableSize() - Kader;
        if (height() <= ruimte.height() || blijft_)
            return;
        blijft_ = true;
        auto* inhoud = new QWidget(this);
        auto* blad = new Schuifblad(inhoud, this);
        auto* teksten = new QVBoxLayout(inhoud);
        teksten->setContentsMargins(0, 0, 0, 0);
        const auto labels =
            findChildren<QLabel*>(QRegularExpression(u"^qt_msgbox_(informative)?label$"_s));
        const int tekstbreed = labels.front()->width();
        delete layout()->replaceWidget(labels.front(), blad); // the item that held the label
        for (QLabel* label : labels) {
            teksten->addWidget(label);
            label->show();
        }
        teksten->addStretch();
        blad->show();
        // The box counted on breaking lines that the labels leave whole.
        const int tekort = std::max(0, inhoud->minimumSizeHint().width() - tekstbreed);
        const int breed = width() + tekort + blad->verticalScrollBar()->sizeHint().width();
        setFixedSize(std::min(breed, ruimte.width()), ruimte.height());
        adjustPosition(parentWidget());
    }

    bool blijft_ = false;
};

/// A box whose lines are never broken: in a table a broken line would read as one more.
class Verslagbericht : public Berichtvenster {
  public:
    Verslagbericht(Icon icoon, const QString& tekst, const QString& titel, QWidget* ouder)
        : Berichtvenster(icoon, tekst, titel, Ok, ouder)
    {
        blijft_ = true;
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }

    [[nodiscard]] bool PastOpScherm()
    {
        ensurePolished();
        BreekNietAf();
        const QSize ruimte = screen()->availableSize() - Kader;
        const QSize nodig = layout()->totalSizeHint();
        return nodig.width() <= ruimte.width() && nodig.height() <= ruimte.height();
    }

  protected:
    void showEvent(QShowEvent* gebeurtenis) override
    {
        Berichtvenster::showEvent(gebeurtenis);
        BreekNietAf();
        setFixedSize(layout()->totalSizeHint());
        adjustPosition(parentWidget()); // it was placed at the size of broken lines
    }

  private:
    void BreekNietAf()
    {
        for (QLabel* label : findChildren<QLabel*>())
            label->setWordWrap(false);
        layout()->activate();
    }
};

constexpr int RegelsInBericht = 25;

/// Whether a message box with this text, which breaks its lines at blanks, is no larger than the
/// screen.
bool PastInBericht(const QWidget& ouder, const QString& tekst)
{
    constexpr int breed = 400;  // what a box leaves for its text
    constexpr int omheen = 140; // icon or title, margins and buttons
    const QRect vlak = ouder.fontMetrics().boundingRect(QRect(0, 0, breed, QWIDGETSIZE_MAX),
                                                        Qt::TextWordWrap, tekst);
    const QSize ruimte = ouder.screen()->availableSize() - QSize(omheen, omheen);
    return vlak.height() <= ruimte.height() && vlak.width() <= ruimte.width();
}

void ToonLang(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const QString& titel)
{
    frmBericht venster(tekst, titel, QMessageBox(icoon, {}, {}).iconPixmap(), ouder);
    LaatAntwoorden(venster);
}

} // namespace

int LaatAntwoorden(QDialog& venster)
{
    const QCursor* bezig = QGuiApplication::overrideCursor();
    if (bezig == nullptr)
        return venster.exec();
    const QCursor straks = *bezig;
    QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    const int antwoord = venster.exec();
    QGuiApplication::changeOverrideCursor(straks);
    return antwoord;
}

void Meld(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const QString& titel)
{
    Berichtvenster venster(icoon, tekst, titel, QMessageBox::Ok, ouder);
    LaatAntwoorden(venster);
}

void MeldLijst(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst)
{
    if (tekst.count(u'\n') > RegelsInBericht || !PastInBericht(*ouder, tekst))
        ToonLang(ouder, icoon, tekst, Programmatitel);
    else
        Meld(ouder, icoon, tekst);
}

void MeldVerslag(QWidget* ouder, const QString& tekst, const QString& titel,
                 QMessageBox::Icon icoon)
{
    Verslagbericht venster(icoon, tekst, titel, ouder);
    if (tekst.count(u'\n') > RegelsInBericht || !venster.PastOpScherm())
        ToonLang(ouder, icoon, tekst, titel);
    else
        LaatAntwoorden(venster);
}

bool Vraag(QWidget* ouder, const QString& tekst, const QString& titel, const QString& toelichting)
{
    Berichtvenster venster(QMessageBox::Information, tekst, titel,
                           QMessageBox::Ok | QMessageBox::Cancel, ouder, toelichting);
    return LaatAntwoorden(venster) == QMessageBox::Ok;
}

int Kies(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst,
         const QStringList& antwoorden, int voorkeur)
{
    Berichtvenster venster(icoon, tekst, Programmatitel, QMessageBox::NoButton, ouder);
    QList<QAbstractButton*> knoppen;
    for (const QString& antwoord : antwoorden)
        knoppen << venster.addButton(antwoord, QMessageBox::ActionRole);
    venster.setDefaultButton(qobject_cast<QPushButton*>(knoppen.at(voorkeur)));
    venster.setEscapeButton(knoppen.last());
    LaatAntwoorden(venster);
    const auto plaats = knoppen.indexOf(venster.clickedButton());
    return static_cast<int>(plaats < 0 ? knoppen.size() - 1 : plaats);
}

std::optional<Pad> VraagOpslagplaats(QWidget* ouder, const QString& vraag, const QString& soort,
                                     const QString& uitgang, const QString& naam)
{
    QFileDialog kiezer(ouder, vraag);
    Noem(&kiezer, u"CommonDialog1"_s);
    kiezer.setAcceptMode(QFileDialog::AcceptSave);
    kiezer.setNameFilter(soort);
    kiezer.setDefaultSuffix(uitgang);
    kiezer.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    kiezer.selectFile(naam + u'.' + uitgang);
    if (kiezer.exec() != QDialog::Accepted)
        return std::nullopt;
    return VolledigPad(kiezer.selectedFiles().constFirst().toStdString());
}

QString Bijzonderheden(const Fout& fout)
{
    QStringList regels;
    if (!fout.bestand.empty())
        regels << u"Bestand: "_s + QString::fromStdString(fout.bestand);
    if (fout.regel > 0)
        regels << u"Regel: "_s + QString::number(fout.regel);
    if (!fout.systeem.empty())
        regels << (fout.soort == Foutsoort::Beschadigd
                       ? u"Oorzaak: "_s // what a reader of this program found
                       : u"Melding van het systeem: "_s) +
                      QString::fromStdString(fout.systeem);
    return regels.join(u'\n');
}

void MeldFout(QWidget* ouder, QMessageBox::Icon icoon, const QString& tekst, const Fout& fout)
{
    const QString bijzonderheden = Bijzonderheden(fout);
    Meld(ouder, icoon, bijzonderheden.isEmpty() ? tekst : tekst + u"\n\n"_s + bijzonderheden);
}

bool StaatEr(QWidget* ouder, const Uitkomst<void>& opslag)
{
    if (!opslag && StaatOpSchijf(opslag))
        MeldFout(
            ouder, QMessageBox::Warning,
            u"Het bestand is opgeslagen: de nieuwe inhoud staat heel op de schijf. Het systeem "
            "kon alleen niet bevestigen dat dit na een stroomstoring nog zo is. Kijk of de schijf "
            "in orde is en sla later nog eens op."_s,
            opslag.error());
    return StaatOpSchijf(opslag);
}

void MeldSleutelsOp(QWidget* ouder, const QString& wat, const Fout& plaats)
{
    MeldFout(ouder, QMessageBox::Critical,
             wat +
                 u": er zijn geen nieuwe sleutels meer. Wat er al was, is niet veranderd. Sluit "
                 "Plexoran, zet op de regel hieronder achter HKEY= de hoogste sleutel die ooit is "
                 "uitgegeven, en start het opnieuw."_s,
             plaats);
}

QString Aantal(std::size_t aantal, const QString& een, const QString& meer)
{
    return u"%1 %2"_s.arg(aantal).arg(aantal == 1 ? een : meer);
}

QString Namen(const std::vector<Tekst>& namen)
{
    constexpr std::size_t meeste = 5;
    QStringList uit;
    for (std::size_t i = 0; i < std::min(meeste, namen.size()); ++i)
        uit << NaarQString(namen[i]);
    const QString rest = namen.size() > meeste ? u" en nog %1"_s.arg(namen.size() - meeste) : u""_s;
    return uit.join(u", "_s) + rest;
}

void MeldMenging(QWidget* ouder, const Mengbericht& samen)
{
    QStringList regels;
    if (!samen.overgenomen.empty())
        regels << u"%1 van een ander programma overgenomen: %2."_s.arg(
            Aantal(samen.overgenomen.size(), samen.een, samen.meer), Namen(samen.overgenomen));
    if (!samen.botsingen.empty())
        regels << u"%1 zowel hier als door een ander programma gewijzigd: %2. In het bestand staat "
                  "wat het andere programma ervan maakte. Zoals het hier was, staat het in de "
                  "kopie:\n%3"_s.arg(Aantal(samen.botsingen.size(), samen.een, samen.meer),
                                     Namen(samen.botsingen), QString::fromStdString(samen.onze));
    if (!samen.andere.empty())
        regels << u"Een ander programma heeft dit bestand intussen gewijzigd, en dat is niet samen "
                  "te voegen met wat hier staat. In het bestand staat nu wat hier staat; wat het "
                  "andere programma schreef, staat in de kopie:\n%1"_s.arg(
                      QString::fromStdString(samen.andere));
    if (!regels.isEmpty())
        Meld(ouder, QMessageBox::Information, regels.join(u"\n\n"_s));
}

void MeldOvergeslagen(QWidget* ouder, Schijf& schijf, const Pad& map)
{
    QStringList namen;
    for (const std::string& naam : schijf.NeemOvergeslagen(map))
        namen << QString::fromStdString(naam);
    if (namen.isEmpty())
        return;
    MeldLijst(
        ouder, QMessageBox::Warning,
        u"Overgeslagen in de map hieronder: "_s +
            Aantal(static_cast<std::size_t>(namen.size()), u"naam"_s, u"namen"_s) +
            u", omdat er een teken in staat dat een naam in Ravendeck niet kan hebben, zoals "
            "'\\'. Er is niets gewijzigd. Geef wat u ervan nodig hebt, een andere naam.\n\nMap: "_s +
            Toonpad(schijf, map) + u'\n' + namen.join(u'\n'));
}

frmBericht::frmBericht(const QString& tekst, const QString& titel, const QPixmap& icoon,
                       QWidget* ouder)
    : QDialog(ouder)
{
    setObjectName(u"frmBericht"_s);
    setWindowTitle(titel);
    auto* txtBericht = MaakLeesvak(u"txtBericht"_s, titel, tekst, this);
    txtBericht->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* cmdOK = MaakKnop(u"cmdOK"_s, u"OK"_s, u'O', this, &QDialog::accept);
    cmdOK->setDefault(true);
    auto* boven = new QHBoxLayout;
    if (!icoon.isNull()) {
        QLabel* lblIcoon = MaakLabel(u"lblIcoon"_s, QString(), this);
        lblIcoon->setPixmap(icoon);
        boven->addWidget(lblIcoon, 0, Qt::AlignTop);
    }
    boven->addWidget(txtBericht);
    Onderelkaar({boven, Knoppenrij({cmdOK})}, this);
    PasInScherm(this, Maten().Twips(10800, 8100));
}

} // namespace plexoran
