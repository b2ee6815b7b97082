#include "help/frmHandleiding.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QTextBlock>

#include <algorithm>

#include "platform/scherm/boom.h"
#include "platform/scherm/printer.h"
#include "platform/scherm/schildervlak.h"

namespace plexoran {
namespace {

/// A heading as a link to it writes it.
QString Anker(const QString& kop)
{
    static const QRegularExpression leestekens(u"[^\\w -]"_s,
                                               QRegularExpression::UseUnicodePropertiesOption);
    return kop.toLower().remove(leestekens).replace(u' ', u'-');
}

/// The manual with its pictures, which in a dark theme are the dark ones where there are such.
class Handboek : public QTextDocument {
  public:
    Handboek(const QPalette& palet, QObject* ouder = nullptr) : QTextDocument(ouder)
    {
        constexpr int middengrijs = 128;
        donker_ = palet.color(QPalette::Base).lightness() < middengrijs;
        QFile bron(u":/docs/handleiding.md"_s);
        static_cast<void>(bron.open(QIODevice::ReadOnly)); // it is part of the program
        QString kop;
        QString tekst;
        for (const QString& regel : QString::fromUtf8(bron.readAll()).split(u'\n')) {
            if (regel.startsWith(u"##"_s))
                kop = regel.section(u' ', 1);
            if (regel.startsWith(u"<!--"_s)) { // below a heading: the windows of which it tells
                for (const QString& venster : regel.split(u' '))
                    vensters.insert(venster, kop);
            } else
                tekst += regel + u'\n';
        }
        setMarkdown(tekst);
        MaakVerwijzingenLeesbaar();
    }

    QHash<QString, QString> vensters;

  protected:
    QVariant loadResource(int /*soort*/, const QUrl& naam) override
    {
        const QString licht = u":/docs/"_s + naam.path();
        const QString donker = QString(licht).replace(u".png"_s, u"_donker.png"_s);
        const QScreen& scherm = *QGuiApplication::primaryScreen();
        constexpr int meest = 640; // fits on paper too
        const int breed = std::min(meest, scherm.size().width() * 3 / 5);
        const double fijn = scherm.devicePixelRatio();
        QImage plaat(donker_ && QFile::exists(donker) ? donker : licht);
        if (plaat.width() > breed * fijn)
            plaat = plaat.scaledToWidth(qRound(breed * fijn), Qt::SmoothTransformation);
        plaat.setDevicePixelRatio(fijn);
        return plaat;
    }

  private:
    /// As the text around them, underlined: the blue of some themes is hard to read.
    void MaakVerwijzingenLeesbaar()
    {
        QTextCursor plek(this);
        for (QTextBlock blok = begin(); blok.isValid(); blok = blok.next()) {
            for (const QTextLayout::FormatRange& deel : blok.textFormats()) {
                if (!deel.format.isAnchor())
                    continue;
                QTextCharFormat vorm = deel.format;
                vorm.clearForeground();
                vorm.setFontUnderline(true);
                plek.setPosition(blok.position() + deel.start);
                plek.setPosition(blok.position() + deel.start + deel.length,
                                 QTextCursor::KeepAnchor);
                plek.setCharFormat(vorm);
            }
        }
    }

    bool donker_;
};

} // namespace

frmHandleiding::frmHandleiding(Schijf& schijf, QWidget* ouder) : QDialog(ouder), schijf_(schijf)
{
    setObjectName(u"frmHandleiding"_s);
    setWindowTitle(u"Handleiding van Plexoran"_s);
    Bouw();
    Lees();
    PasInScherm(this, Maten().Twips(14400, 10200));
    txtHandleiding->setFocus();
}

void frmHandleiding::Bouw()
{
    lstHoofdstukken = MaakBoom(u"lstHoofdstukken"_s, u"Hoofdstukken"_s, {u"Hoofdstukken"_s}, this);
    txtHandleiding = new QTextBrowser(this);
    Noem(txtHandleiding, u"txtHandleiding"_s, windowTitle());
    txtHandleiding->setOpenLinks(false); // they lead to chapters
    txtHandleiding->setTabChangesFocus(true);
    auto* lblZoekTekst = MaakLabel(u"lblZoekTekst"_s, u"&Zoek:"_s, this);
    txtZoekTekst = new QLineEdit(this);
    Noem(txtZoekTekst, u"txtZoekTekst"_s);
    lblZoekTekst->setBuddy(txtZoekTekst);
    lblGevonden = MaakLabel(u"lblGevonden"_s, {}, this);
    const auto vorige = [this] { ToonTreffer(-1); };
    const auto volgende = [this] { ToonTreffer(1); };
    Onderelkaar(
        {Naastelkaar({lblZoekTekst,
                      {txtZoekTekst, 1},
                      lblGevonden,
                      MaakKnop(u"cmdVorige"_s, u"Vorige"_s, u'V', this, vorige),
                      MaakKnop(u"cmdVolgende"_s, u"Volgende"_s, u'o', this, volgende)}),
         {Naastelkaar({{lstHoofdstukken, 2}, {txtHandleiding, 5}}), 1},
         Knoppenrij(
             {MaakKnop(u"cmdAfdrukken"_s, u"Afdrukken..."_s, u'A', this, &frmHandleiding::Print),
              MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::accept)})},
        this);
    connect(txtHandleiding, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& waarheen) { ToonHoofdstuk(waarheen.fragment(QUrl::FullyDecoded)); });
    connect(lstHoofdstukken, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* regel) {
                ToonHoofdstuk(regel == nullptr ? QString() : regel->text(0));
            });
    connect(txtZoekTekst, &QLineEdit::textChanged, this, &frmHandleiding::Zoek);
    connect(txtZoekTekst, &QLineEdit::returnPressed, this, volgende);
    new QShortcut(QKeySequence::Find, txtZoekTekst, txtZoekTekst, qOverload<>(&QWidget::setFocus),
                  Qt::WindowShortcut);
    for (const char16_t* toets : {u"Ctrl++", u"Ctrl+="})
        new QShortcut(QKeySequence(QString::fromUtf16(toets)), this,
                      [this] { txtHandleiding->zoomIn(); });
    new QShortcut(QKeySequence(u"Ctrl+-"_s), this, [this] { txtHandleiding->zoomOut(); });
    new QShortcut(QKeySequence(u"Ctrl+0"_s), this, [this] { txtHandleiding->setFont(font()); });
}

void frmHandleiding::Lees()
{
    auto* boek = new Handboek(palette(), txtHandleiding);
    txtHandleiding->setDocument(boek);
    hoofdstukken_ = boek->vensters;
    QTreeWidgetItem* hoofdstuk = nullptr;
    for (QTextBlock blok = boek->begin(); blok.isValid(); blok = blok.next()) {
        if (const int niveau = blok.blockFormat().headingLevel(); niveau == 2)
            hoofdstuk = new Boomregel(lstHoofdstukken, {blok.text()});
        else if (niveau == 3)
            new Boomregel(hoofdstuk, {blok.text()});
    }
}

void frmHandleiding::ToonHoofdstuk(const QString& kop)
{
    const QTextDocument& boek = *txtHandleiding->document();
    QTextBlock blok = boek.begin();
    while (blok.isValid() &&
           (blok.blockFormat().headingLevel() == 0 || Anker(blok.text()) != Anker(kop)))
        blok = blok.next();
    if (!blok.isValid())
        return;
    txtHandleiding->setTextCursor(QTextCursor(blok));
    const double boven = boek.documentLayout()->blockBoundingRect(blok).top();
    txtHandleiding->verticalScrollBar()->setValue(static_cast<int>(boven));
    const auto regels =
        lstHoofdstukken->findItems(blok.text(), Qt::MatchExactly | Qt::MatchRecursive);
    const QSignalBlocker stil(lstHoofdstukken);
    lstHoofdstukken->setCurrentItem(regels.value(0));
}

/// Marks all places, and goes to the first one from where the reader is.
void frmHandleiding::Zoek()
{
    const QString wat = txtZoekTekst->text();
    const QTextDocument& boek = *txtHandleiding->document();
    const int hier = txtHandleiding->textCursor().selectionStart();
    QList<QTextEdit::ExtraSelection> treffers;
    treffer_ = 0;
    for (QTextCursor plek = boek.find(wat); !plek.isNull(); plek = boek.find(wat, plek)) {
        treffer_ += plek.selectionStart() < hier ? 1 : 0;
        QTextEdit::ExtraSelection treffer{plek, {}};
        treffer.format.setBackground(Qt::yellow);
        treffer.format.setForeground(Qt::black);
        treffers << treffer;
    }
    txtHandleiding->setExtraSelections(treffers);
    ToonTreffer(0);
}

void frmHandleiding::ToonTreffer(qsizetype stap)
{
    const auto treffers = txtHandleiding->extraSelections();
    QString stand = txtZoekTekst->text().isEmpty() ? QString() : u"Niet gevonden"_s;
    if (!treffers.isEmpty()) {
        treffer_ = (treffer_ + stap + treffers.size()) % treffers.size();
        txtHandleiding->setTextCursor(treffers[treffer_].cursor);
        stand = u"%1 van %2"_s.arg(treffer_ + 1).arg(treffers.size());
    }
    lblGevonden->setText(stand);
    Spreek(lblGevonden, stand);
}

/// Black on white, whatever the theme.
void frmHandleiding::Print()
{
    constexpr double rand = 15; // millimetres
    const double perMm = QGuiApplication::primaryScreen()->logicalDotsPerInch() / MmPerInch;
    const QSizeF blad = QSizeF(210 - 2 * rand, 297 - 2 * rand) * perMm;
    const QPalette papier(Qt::white);
    Handboek boek(papier);
    boek.setDocumentMargin(0);
    boek.setPageSize(blad);
    const auto teken = [&](Tekenvlak& vlak, int nummer) {
        const auto& vel = dynamic_cast<Schildervlak&>(vlak);
        const QRectF deel(QPointF(0, (nummer - 1) * blad.height()), blad);
        vel.Schilder().save();
        vel.Schilder().scale(vel.PerMm() / perMm, vel.PerMm() / perMm);
        vel.Schilder().translate(rand * perMm, rand * perMm - deel.top());
        vel.Schilder().setClipRect(deel);
        QAbstractTextDocumentLayout::PaintContext beeld;
        beeld.clip = deel;
        beeld.palette = papier;
        boek.documentLayout()->draw(&vel.Schilder(), beeld);
        vel.Schilder().restore();
    };
    PrintBladen(schijf_,
                {.titel = windowTitle(),
                 .bezig = u"De handleiding wordt geprint ..."_s,
                 .bladen = boek.pageCount()},
                teken, this);
}

Hulptoets::Hulptoets(Schijf& schijf, QWidget* hoofdvenster) : QObject(hoofdvenster), schijf_(schijf)
{
    qApp->installEventFilter(this);
}

void Hulptoets::ToonHandleiding(const QWidget& voor)
{
    QWidget* ouder = QApplication::activeModalWidget();
    if (ouder == nullptr)
        ouder = static_cast<QWidget*>(parent());
    auto* handleiding = ouder->findChild<frmHandleiding*>({}, Qt::FindDirectChildrenOnly);
    if (handleiding == nullptr) {
        handleiding = new frmHandleiding(schijf_, ouder);
        handleiding->setAttribute(Qt::WA_DeleteOnClose);
    }
    handleiding->show();
    handleiding->activateWindow();
    handleiding->ToonVenster(voor.inherits("QMessageBox") ? u"frmBericht"_s : voor.objectName());
}

bool Hulptoets::eventFilter(QObject* wie, QEvent* gebeurtenis)
{
    if (gebeurtenis->type() != QEvent::KeyPress || !wie->isWidgetType())
        return false;
    const auto* toets = static_cast<const QKeyEvent*>(gebeurtenis);
    const QWidget* voor = static_cast<QWidget*>(wie)->window();
    if (toets->key() != Qt::Key_F1 || (toets->modifiers() & ~Qt::ShiftModifier) != 0 ||
        voor->windowType() == Qt::Popup)
        return false;
    ToonHandleiding(*voor);
    return true;
}

} // namespace plexoran
