#include "mainwindow/zoekbalk.h"

#include <QApplication>
#include <QToolButton>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {

Zoekbalk::Zoekbalk(const Administratie& administratie, QWidget* ouder)
    : QWidget(ouder), administratie_(administratie), txtZoek(new QLineEdit(this)),
      lblZoek(MaakLabel(u"lblZoek"_s, QString(), this)),
      lstZoek(
          new Regellijst(QListView::ExtendedSelection, u"lstZoek"_s, u"Gevonden spelers"_s, ouder))
{
    Noem(this, u"picZoek"_s);
    auto* lblZoekop = MaakLabel(u"lblZoekop"_s, u"Zoek:"_s, this);
    Noem(txtZoek, u"txtZoek"_s, u"Zoek in alle groepen"_s);
    txtZoek->setToolTip(u"Naam, adres, telefoon, nummer, ... in alle groepen (Ctrl+F of /)"_s);
    lblZoekop->setBuddy(txtZoek);
    lstZoek->ZetMerken([this](int plaats) { return Regel(plaats).merken; });
    Naastelkaar({lblZoekop, {txtZoek, 2}, {lblZoek, 1}}, this)->setContentsMargins(8, 0, 8, 8);

    for (QObject* deel : std::initializer_list<QObject*>{txtZoek, lstZoek})
        deel->installEventFilter(this);
    connect(txtZoek, &QLineEdit::textChanged, this, &Zoekbalk::Zoek);
    // When the table changes, its rows are other players.
    connect(lstZoek, &Regellijst::keuzeVeranderd, this, [this] {
        huidige_ = Huidige() > 0 ? Wie(Huidige()) : Tekst();
        gekozen_.clear();
        for (const int rij : Gekozen())
            gekozen_.insert(Wie(rij));
    });
    connect(lstZoek, &QListView::clicked, this, [this] {
        if (QApplication::keyboardModifiers() == Qt::NoModifier)
            emit aangeklikt(Huidige());
    });
}

std::vector<int> Zoekbalk::Gekozen() const
{
    std::vector<int> rijen;
    for (const int plaats : lstZoek->GekozenPlaatsen())
        rijen.push_back(rijen_[static_cast<std::size_t>(plaats)]);
    return rijen;
}

int Zoekbalk::Huidige() const
{
    const int plaats = lstZoek->currentIndex().row();
    return plaats < 0 ? 0 : rijen_[static_cast<std::size_t>(plaats)];
}

void Zoekbalk::GaErheen()
{
    txtZoek->setFocus(Qt::ShortcutFocusReason);
    txtZoek->selectAll();
}

void Zoekbalk::Zoek()
{
    const bool was = IsOpen();
    wie_.clear();
    woorden_ = ZoekwoordenUit(NaarTekst(txtZoek->text()));
    VulAnders(was);
}

void Zoekbalk::Toon(const std::vector<int>& rijen, const QString& opschrift)
{
    const bool was = IsOpen();
    {
        const QSignalBlocker stil(txtZoek);
        txtZoek->clear();
    }
    woorden_.clear();
    wie_.clear();
    for (const int rij : rijen)
        wie_.insert(Wie(rij));
    opschrift_ = opschrift;
    VulAnders(was);
    lstZoek->setFocus();
}

/// A file may hold rows without a key, and one key twice.
Tekst Zoekbalk::Wie(int rij) const
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    return Tekst(tabel.Cel(rij, Kolom::Key)) + VolleNaam(tabel, rij);
}

void Zoekbalk::Leeg()
{
    txtZoek->clear();
    if (IsOpen())
        Zoek();
}

/// With other players than were shown.
void Zoekbalk::VulAnders(bool was)
{
    VulLijst(Regellijst::Plek::Begin);
    lstZoek->ZetHuidige(0);
    if (IsOpen() != was)
        emit opengegaan(IsOpen());
}

void Zoekbalk::Ververs()
{
    if (!IsOpen())
        return;
    const Tekst huidige = huidige_;
    const std::set<Tekst> gekozen = gekozen_;
    VulLijst(Regellijst::Plek::Behouden);
    int plek = 0;
    std::vector<int> plaatsen;
    for (int plaats = 0; plaats < lstZoek->Aantal(); ++plaats) {
        const Tekst wie = Wie(rijen_[static_cast<std::size_t>(plaats)]);
        if (wie == huidige)
            plek = plaats;
        if (gekozen.contains(wie))
            plaatsen.push_back(plaats);
    }
    lstZoek->ZetHuidige(plek);
    lstZoek->Kies(plaatsen);
}

void Zoekbalk::VulLijst(Regellijst::Plek plek)
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    rijen_ = ZoekSpelers(tabel, woorden_);
    for (int rij = 1; !wie_.empty() && rij <= tabel.Rijen(); ++rij) {
        if (wie_.contains(Wie(rij)))
            rijen_.push_back(rij);
    }
    lstZoek->Vul(
        static_cast<int>(rijen_.size()), [this](int plaats) { return Regel(plaats).tekst; }, plek);
    const QString wie = wie_.empty() ? QString() : opschrift_ + u": "_s;
    const QString hoeveel =
        rijen_.empty() ? u"niets gevonden"_s : u"%1 gevonden"_s.arg(rijen_.size());
    lblZoek->setText(IsOpen() ? wie + hoeveel : QString());
    txtZoek->setAccessibleDescription(lblZoek->text());
    if (IsOpen())
        Spreek(lblZoek, lblZoek->text());
}

/// While a change is going on there may be a line of a row that the table no longer has.
Zoekregel Zoekbalk::Regel(int plaats) const
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const int rij = rijen_[static_cast<std::size_t>(plaats)];
    if (rij > tabel.Rijen())
        return {};
    const auto maak = [&](bool kort) {
        return MaakZoekregel(tabel, administratie_.groepen, rij, woorden_, kort);
    };
    Zoekregel regel = maak(false);
    return lstZoek->Past(NaarQString(regel.tekst)) ? regel : maak(true);
}

bool Zoekbalk::eventFilter(QObject* object, QEvent* gebeurtenis)
{
    // Its picture is looked for in all themes of icons, which a start would have to wait for.
    if (object == txtZoek && gebeurtenis->type() == QEvent::FocusIn &&
        !txtZoek->isClearButtonEnabled()) {
        txtZoek->setClearButtonEnabled(true);
        Noem(txtZoek->findChild<QToolButton*>(), u"btnZoek"_s, u"Zoektekst wissen"_s);
    }
    // Ctrl+Z is for what was done to players, as the line at the foot says, not for what was typed.
    if (object == txtZoek && gebeurtenis->type() == QEvent::ShortcutOverride) {
        const auto& toets = static_cast<QKeyEvent&>(*gebeurtenis);
        gebeurtenis->ignore();
        return toets.matches(QKeySequence::Undo) || toets.matches(QKeySequence::Redo);
    }
    return gebeurtenis->type() == QEvent::KeyPress &&
           Verwerk(object, static_cast<QKeyEvent&>(*gebeurtenis));
}

bool Zoekbalk::Verwerk(const QObject* waar, QKeyEvent& toets)
{
    const bool ctrl = toets.modifiers().testFlag(Qt::ControlModifier);
    if (toets.key() == Qt::Key_Return || toets.key() == Qt::Key_Enter) {
        if (Huidige() > 0)
            emit gevraagd(Huidige(), ctrl);
        return true;
    }
    if (toets.key() == Qt::Key_F2 && Huidige() > 0) {
        emit gevraagd(Huidige(), true);
        return true;
    }
    // Behind the last letter there is nothing else to delete than who was found.
    const bool achteraan =
        waar == lstZoek || (txtZoek->cursorPosition() == txtZoek->text().size() &&
                            !txtZoek->hasSelectedText() && Huidige() > 0);
    if (toets.key() == Qt::Key_Delete && achteraan && toets.modifiers() == Qt::NoModifier &&
        !toets.isAutoRepeat()) {
        emit verwijderGevraagd();
        return true;
    }
    if (waar == txtZoek) {
        if (toets.key() == Qt::Key_Escape && !IsOpen()) {
            emit verlaten();
            return true;
        }
        if (toets.key() != Qt::Key_Down || lstZoek->Aantal() == 0)
            return false;
        lstZoek->setFocus();
        return true;
    }
    const bool boven = toets.key() == Qt::Key_Up && lstZoek->currentIndex().row() <= 0;
    const bool typt = !ctrl && !toets.text().isEmpty() && toets.text().front().isPrint();
    if (!boven && !typt && toets.key() != Qt::Key_Backspace)
        return false;
    txtZoek->setFocus(Qt::OtherFocusReason);
    if (!boven)
        QApplication::sendEvent(txtZoek, &toets);
    return true;
}

} // namespace plexoran
