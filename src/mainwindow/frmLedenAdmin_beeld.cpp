// How the user sees the players: their order, the columns, the buttons under them, and the line at
// the foot of the window.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QStatusBar>

#include <algorithm>

#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {

/// In the order of the lines, of the grid or of who was found.
std::vector<int> frmLedenAdmin::GekozenRijen() const
{
    if (KiestInLijst())
        return picZoek->Gekozen();
    std::vector<int> rijen;
    for (const int regel : picP0->Vlak()->Gekozen())
        rijen.push_back(RijOp(regel));
    return rijen;
}

void frmLedenAdmin::Sorteer(int kolom)
{
    volgorde_ = kolom > 0 ? std::optional(static_cast<Kolom>(kolom)) : std::nullopt;
    geheugen_.Bewaar(volgorde_);
    const Tekst gekozen = GekozenKey();
    ToonGroep();
    KiesSpeler(gekozen);
}

/// One must stay, or nothing would be left to bring the others back by.
void frmLedenAdmin::ToonKolom(std::size_t kolom, bool tonen)
{
    Kolomkeuzes keuzes = picP0->Vlak()->Keuzes();
    keuzes[kolom].verborgen = !tonen;
    if (std::all_of(keuzes.begin(), keuzes.end(),
                    [](const auto& keuze) { return keuze.verborgen; }))
        ToonStatus(u"De laatste kolom blijft staan"_s);
    else
        KiesKolommen(keuzes);
    WerkOpdrachtenBij();
}

void frmLedenAdmin::KiesKolommen(const Kolomkeuzes& keuzes)
{
    picP0->Kies(keuzes);
    geheugen_.Bewaar(keuzes);
    WerkOpdrachtenBij();
}

void frmLedenAdmin::VerdeelKolommen()
{
    KiesKolommen(picP0->Vlak()->Verdeeld());
}

/// The columns have the widths that go with the tick again, after the user set or removed it.
void frmLedenAdmin::HerstelBreedten()
{
    Kolomkeuzes keuzes = picP0->Vlak()->Keuzes();
    for (Kolomkeuze& keuze : keuzes)
        keuze.breedte = 0;
    KiesKolommen(keuzes);
    geheugen_.ZetAan(chkKolBr->objectName(), chkKolBr->isChecked());
}

void frmLedenAdmin::HerstelKolommen()
{
    chkKolBr->setChecked(true);
    KiesKolommen({});
    HerstelBreedten();
}

void frmLedenAdmin::ToonKnoppen(bool tonen)
{
    if (!tonen && knoppen_->isAncestorOf(focusWidget()))
        NaarRooster();
    knoppen_->setVisible(tonen || picZoek->IsOpen());
    if (cmbGr->currentIndex() >= 0) // not while it is being built
        WerkOpdrachtenBij();
    geheugen_.ZetAan(actKnoppen->objectName(), tonen);
}

void frmLedenAdmin::NaarGroep()
{
    cmbGr->setFocus(Qt::ShortcutFocusReason);
}

void frmLedenAdmin::NaarRooster()
{
    picP0->Vlak()->setFocus(Qt::ShortcutFocusReason);
}

void frmLedenAdmin::KopieerGekozen()
{
    const auto rijen = GekozenRijen();
    if (rijen.empty())
        return;
    QGuiApplication::clipboard()->setText(NaarQString(Kopieertekst(
        administratie_.spelers.tabel, rijen, NamenVan(rijen), picP0->Vlak()->Keuzes())));
    ToonMelding(Aantal(rijen.size(), u"speler"_s, u"spelers"_s) + u" als tekst gekopieerd"_s);
}

void frmLedenAdmin::NaarZoeken()
{
    picZoek->GaErheen();
}

// ---------------------------------------------------------------- the line at the foot

void frmLedenAdmin::BouwStatus()
{
    const auto kort = [this](const QString& naam, QSizePolicy::Policy breed) {
        auto* label = new Kortlabel(this);
        Noem(label, naam);
        label->setTextFormat(Qt::PlainText);
        label->setSizePolicy(breed, QSizePolicy::Preferred);
        return label;
    };
    // The player as wide as he is; two others share what is left.
    lblSpeler = kort(u"lblSpeler"_s, QSizePolicy::Preferred);
    lblSpeler->setMinimumWidth(1);
    lblOngedaan = kort(u"lblOngedaan"_s, QSizePolicy::Ignored);
    lblOngedaan->setMinimumWidth(1);
    lblMelding = kort(u"lblMelding"_s, QSizePolicy::Preferred);
    lblMelding->hide();
    lblGekozen = MaakLabel(u"lblGekozen"_s, {}, this);
    lblOpgeslagen = MaakLabel(u"lblOpgeslagen"_s, {}, this);
    lblAdministratie = kort(u"lblAdministratie"_s, QSizePolicy::Ignored);
    lblAdministratie->setMinimumWidth(1);
    statusBar()->addWidget(lblSpeler);
    statusBar()->addWidget(lblOngedaan, 1);
    statusBar()->addWidget(lblMelding);
    for (QLabel* label : {lblGekozen, lblOpgeslagen})
        statusBar()->addPermanentWidget(label);
    statusBar()->addPermanentWidget(lblAdministratie, 1);
    meldtijd_.setSingleShot(true);
    connect(&meldtijd_, &QTimer::timeout, lblMelding, &QWidget::hide);
    connect(picP0->Vlak(), &Tabelvlak::keuzeVeranderd, this, &frmLedenAdmin::ToonGekozene);
    connect(picZoek->Lijst(), &Regellijst::keuzeVeranderd, this, &frmLedenAdmin::ToonGekozene);
    // A menu that has the focus for a while is about who was chosen before.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* naar) {
        if (naar == nullptr) // as when the window goes, its parts before it
            return;
        const bool inRooster = naar == picP0->Vlak();
        if (!inRooster && naar != picZoek->Lijst() && !picZoek->isAncestorOf(naar))
            return;
        inRooster_ = inRooster;
        ToonGekozene();
    });
    ToonOpgeslagen();
}

/// Of more than one the first.
void frmLedenAdmin::ToonGekozene()
{
    const auto rijen = GekozenRijen();
    const Spelertabel& tabel = administratie_.spelers.tabel;
    lblSpeler->Toon(rijen.empty() || rijen.front() > tabel.Rijen()
                        ? u"Geen speler gekozen"_s
                        : NaarQString(SpelerVoluit(tabel, rijen.front())));
    lblGekozen->setText(u"%1 gekozen"_s.arg(rijen.size()));
    WerkOpdrachtenBij();
}

void frmLedenAdmin::ToonOpgeslagen()
{
    lblOpgeslagen->setText(isWindowModified() ? u"Niet opgeslagen"_s : u"Opgeslagen"_s);
}

/// What Ctrl+Z would undo.
void frmLedenAdmin::ToonOngedaan()
{
    const auto laatste = administratie_.geschiedenis.Laatste(Handelingsoort::Ongedaan);
    lblOngedaan->Toon(laatste ? u"Ctrl+Z: "_s + NaarQString(laatste->wat)
                              : u"Niets ongedaan te maken"_s);
}

/// Which administration is open: its folder.
void frmLedenAdmin::ToonAdministratie()
{
    const QFileInfo ini(Toonpad(administratie_.schijf, administratie_.mappen.bestand));
    lblAdministratie->setText(ini.absoluteDir().dirName());
    lblAdministratie->setMaximumWidth(
        std::min(lblAdministratie->sizeHint().width(), maten_.Twips(3600)));
    lblAdministratie->setToolTip(Wenk(QDir::toNativeSeparators(ini.absoluteFilePath())));
    lblAdministratie->setAccessibleName(u"Administratie: "_s + lblAdministratie->text());
}

/// What was done, for as long as it takes to read it, and aloud; without a text what the history
/// calls it. Every save comes here. Boxes are for what must be known or decided, and where they
/// belong to a command of old.
void frmLedenAdmin::ToonMelding(const QString& tekst)
{
    constexpr int leestijd = 20'000;
    const QString gedaan = NaarQString(administratie_.geschiedenis.Bezig());
    statusBar()->clearMessage();
    lblMelding->Toon(!tekst.isEmpty() ? tekst : gedaan.isEmpty() ? u"Opgeslagen"_s : gedaan);
    lblMelding->setMinimumWidth(std::min(lblMelding->sizeHint().width(), width() / 2));
    Spreek(lblMelding, lblMelding->text());
    lblMelding->show();
    meldtijd_.start(leestijd);
}

/// Why something cannot be done, in place of all that, and aloud.
void frmLedenAdmin::ToonStatus(const QString& tekst)
{
    constexpr int leestijd = 8000;
    statusBar()->showMessage(tekst, leestijd);
    if (!tekst.isEmpty())
        Spreek(statusBar(), tekst);
}

} // namespace plexoran
