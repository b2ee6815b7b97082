#include "dialogs/diaToevoegen.h"

#include <QGridLayout>
#include <QTimer>

#include <utility>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

bool ZetTerugOfMeld(Koppelverslag& verslag, QWidget* ouder)
{
    const auto terug = verslag.ZetTerug();
    if (StaatEr(ouder, terug))
        return true;
    MeldFout(
        ouder, QMessageBox::Warning,
        u"Fout bij het terugzetten van 'Koppelverslag.txt': de sleutels die erin staan, zijn niet "
        "uitgegeven. Het spelerbestand is niet veranderd. Verwijder 'Koppelverslag.txt'."_s,
        terug.error());
    return false;
}

diaToevoegen::diaToevoegen(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"diaToevoegen"_s);
    setWindowTitle(u"Spelers toevoegen (speciaal)"_s);
    auto* lagen = new QVBoxLayout(this);
    for (auto* waarschuwing :
         {MaakLabel(u"Label2"_s, u"Alleen gebruiken door deskundigen van de materie."_s, this),
          MaakLabel(u"Label5"_s, u"(u riskeert een corrupt ledenbestand)"_s, this)}) {
        MaakVet(waarschuwing);
        lagen->addWidget(waarschuwing);
    }
    auto* Frame1 = MaakKader(u"Frame1"_s, QString(), this);
    BouwKader(Frame1);
    lagen->addWidget(Frame1, 1);
    OKButton = MaakKnop(u"OKButton"_s, u"Klaar en opslaan"_s, u'K', this, &QDialog::accept);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Annuleren"_s, u'A', this, &QDialog::reject);
    lagen->addLayout(Knoppenrij({cmdAnnuleren, OKButton}));
    for (QPushButton* later : {cmdLeesSpelers, cmdStart, OKButton})
        later->setEnabled(false);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(7500, 7800));
    ZetTabvolgorde({Combo1, cmdLeesSpelers, lstN2, cmdStart, cmdAnnuleren, OKButton});
    // The first session is read when the window is there, so that its messages stand before it.
    QTimer::singleShot(0, this, &diaToevoegen::VulZittingen);
}

void diaToevoegen::BouwKader(QGroupBox* Frame1)
{
    auto* Label1 = MaakLabel(u"Label1"_s, u"Kies een zitting:"_s, Frame1);
    auto* Label3 = MaakLabel(u"Label3"_s, u"(eindigend op '_Rev')"_s, Frame1);
    Label4 = MaakLabel(u"Label4"_s, u"..."_s, Frame1);
    auto* Label6 =
        MaakLabel(u"Label6"_s, u"Spelers worden toegevoegd aan spelergroep 'Gr08-'"_s, Frame1);
    auto* Label7 = MaakLabel(u"Label7"_s, u"U kunt ze daar later weer uit verwijderen."_s, Frame1);
    Combo1 = MaakKeus(u"Combo1"_s, Label1, Frame1);
    lstN2 = new QListWidget(Frame1);
    Noem(lstN2, u"lstN2"_s, u"Gevonden spelers"_s);
    LaatKopieren(lstN2);
    lstN2->setUniformItemSizes(true);
    cmdLeesSpelers = MaakKnop(u"cmdLeesSpelers"_s, u"Spelers ophalen uit deze zitting"_s, u'S',
                              this, &diaToevoegen::LeesNamen);
    cmdStart = MaakKnop(u"cmdStart"_s, u"Deze spelers toevoegen aan het ledenbestand"_s, u'D', this,
                        &diaToevoegen::VoegToe);
    connect(Combo1, &QComboBox::currentIndexChanged, this, &diaToevoegen::KiesZitting);
    // The list in the session's folder may be changed meanwhile, and be read again.
    connect(Combo1, &QComboBox::activated, this, [this] { cmdLeesSpelers->setEnabled(true); });

    auto* vakken = new QGridLayout(Frame1);
    vakken->addWidget(Label1, 0, 0);
    vakken->addWidget(Combo1, 0, 1);
    vakken->addWidget(Label3, 0, 2);
    vakken->addWidget(cmdLeesSpelers, 1, 1);
    int rij = 2;
    for (QWidget* deel : std::initializer_list<QWidget*>{lstN2, Label4, Label6, Label7, cmdStart})
        vakken->addWidget(deel, rij++, 0, 1, 3);
    vakken->setColumnStretch(1, 1);
    vakken->setRowStretch(2, 1);
}

void diaToevoegen::VulZittingen()
{
    auto gevonden = RevZittingen(administratie_.schijf, administratie_.mappen);
    if (!gevonden) {
        MeldLeesfout(u"Fout bij het lezen van de map met zittingen."_s, gevonden.error());
        return;
    }
    MeldOvergeslagen(this, administratie_.schijf, Zittingenmap(administratie_.mappen));
    zittingen_ = std::move(*gevonden);
    VulKeus(*Combo1, zittingen_);
    if (!zittingen_.empty())
        KiesZitting();
}

Tekst diaToevoegen::Zitting() const
{
    return zittingen_.at(static_cast<std::size_t>(Combo1->currentIndex()));
}

void diaToevoegen::KiesZitting()
{
    const auto gehaald = HaalSpelerslijst(administratie_.schijf, administratie_.mappen, Zitting());
    // The name of the club is to blame for every session; it is told once.
    const bool opnieuw = !gehaald && gehaald.error().soort == Foutsoort::Beschadigd &&
                         std::exchange(gemeld_, gehaald.error().bestand) == gehaald.error().bestand;
    if (!opnieuw && !StaatEr(this, gehaald))
        MeldLeesfout(u"Fout bij het ophalen van 'Spelers.txt' uit de map Puntenboek."_s,
                     gehaald.error());
    LeesNamen();
}

void diaToevoegen::LeesNamen()
{
    lstN2->clear();
    namen_.clear();
    auto gelezen = LeesSessieSpelers(administratie_.schijf, administratie_.mappen, Zitting());
    if (!gelezen)
        MeldLeesfout(u"Fout bij het lezen van de spelers van deze zitting."_s, gelezen.error());
    else if (gelezen->metKeys)
        Meld(this, QMessageBox::Information,
             u"De spelernamen hebben al een RVD-key, maar dit kan een oude zijn, wordt "
             "verwijderd."_s);
    if (gelezen)
        namen_ = std::move(gelezen->spelers);
    for (const Sessiespeler& speler : namen_)
        lstN2->addItem(NaarQString(Toevoegregel(speler)));
    if (lstN2->count() > 0)
        lstN2->setCurrentRow(0);
    Label4->setText(u"Aantal toe te voegen spelers: %1"_s.arg(namen_.size()));
    cmdStart->setEnabled(!namen_.empty());
}

void diaToevoegen::VoegToe()
{
    Register vorige = administratie_.spelers;
    auto tekst = VoegSpelersToe(administratie_.spelers, namen_);
    if (!tekst) {
        MeldSleutelsOp(this, u"Er is niets toegevoegd"_s,
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
        return;
    }
    Koppelverslag verslag(administratie_.schijf, administratie_.mappen, Zitting(),
                          std::move(*tekst));
    const auto geschreven = verslag.Schrijf();
    if (!geschreven) {
        static_cast<void>(verslag.ZetTerug()); // the first failure is the one to tell
        administratie_.spelers = std::move(vorige);
        MeldFout(
            this, QMessageBox::Warning,
            u"Fout bij het schrijven van 'Koppelverslag.txt'. Er is niets toegevoegd: zonder dat "
            "bestand zijn de nieuwe spelers niet aan deze zitting te koppelen. Verhelp de oorzaak "
            "en probeer het opnieuw."_s,
            geschreven.error());
        return;
    }
    administratie_.geschiedenis.Noem("Spelers toegevoegd uit " + Zitting());
    vorige_.emplace(Vorige{std::move(vorige), std::move(verslag)});
    for (QWidget* klaar : std::initializer_list<QWidget*>{cmdStart, Combo1, cmdLeesSpelers})
        klaar->setEnabled(false);
    Meld(this, QMessageBox::Information, u"De spelers zijn toegevoegd."_s);
    OKButton->setEnabled(true);
    OKButton->setDefault(true);
    OKButton->setFocus();
}

void diaToevoegen::reject()
{
    if (vorige_) {
        administratie_.spelers = std::move(vorige_->spelers);
        // The keys in it may soon be those of other players.
        static_cast<void>(ZetTerugOfMeld(vorige_->verslag, this));
        vorige_.reset();
    }
    Meld(this, QMessageBox::Information, u"Er worden geen spelers toegevoegd."_s);
    QDialog::reject();
}

void diaToevoegen::MeldLeesfout(const QString& wat, const Fout& fout)
{
    MeldFout(this, QMessageBox::Warning,
             wat + u" De spelers en de zitting zijn niet veranderd. Verhelp de oorzaak en open dit "
                   "venster opnieuw."_s,
             fout);
}

} // namespace plexoran
