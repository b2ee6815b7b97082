// The pairs window: what its controls do.
#include "pairs/frmParenOnderhoud.h"

#include <QClipboard>
#include <QGuiApplication>

#include "help/frmToelichting.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

constexpr QColor Paarkleur(198, 224, 180);    // of the button that makes a pair
constexpr QColor Ontbindkleur(248, 203, 173); // of the one that dissolves it

/// A button that can be pressed has a colour, whatever the theme; else it is plain.
void ZetKnop(QPushButton* knop, bool aan, const QColor& kleur)
{
    knop->setEnabled(aan);
    QPalette palet;
    if (aan) {
        palet.setColor(QPalette::Button, kleur);
        palet.setColor(QPalette::ButtonText, Qt::black);
    }
    knop->setPalette(palet);
}

} // namespace

frmParenOnderhoud::frmParenOnderhoud(Administratie& administratie, Tekstblik groeptekst,
                                     QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), code_(CodeUit(groeptekst)),
      keuzes_(VulGroepSubgroepen(administratie.spelers.tabel, code_))
{
    Bouw();
    const auto map = administratie_.schijf.MaakMap(administratie_.mappen.Parenmap());
    if (!map)
        MeldFout(
            parentWidget(), QMessageBox::Warning,
            u"De map voor de parenbestanden (Parenmap) kon niet worden gemaakt, dus paren kunnen "
            "nu niet worden opgeslagen. De gegevens van de spelers zijn niet veranderd. Kijk of u "
            "in de map van de spelers mag schrijven."_s,
            map.error());
    VulKeus(*cmbNBBledengr, keuzes_);
    cmbNBBledengr->setCurrentIndex(-1);
    ZetKnoppen();
}

void frmParenOnderhoud::Kies(const std::vector<int>& rijen)
{
    const Spelertabel& tabel = administratie_.spelers.tabel;
    Regellijst* lijst = L1;
    for (const int rij : rijen) {
        if (lijst == L1) {
            const Tekst keuze = code_ + Tekst(tabel.Cel(rij, Kolom::NBBgr));
            const auto plek = std::ranges::find(keuzes_, keuze) - keuzes_.begin();
            cmbNBBledengr->setCurrentIndex(static_cast<int>(plek));
            LaadSubgroep();
        }
        int regel = L1->Aantal() - 1;
        while (regel >= 0 && !paren_.Keuze(regel).starts_with(tabel.Cel(rij, Kolom::Key)))
            --regel;
        lijst->ZetHuidige(regel);
        lijst = L2;
    }
    if (cmdOKE->isEnabled())
        cmdOKE->setFocus();
}

/// The pairs that were shown before are not saved.
void frmParenOnderhoud::LaadSubgroep()
{
    const int keuze = cmbNBBledengr->currentIndex();
    if (keuze < 0)
        return;
    keuze_ = keuzes_[static_cast<std::size_t>(keuze)];
    gelezen_ = LeesParenbestand(administratie_.schijf, administratie_.mappen, keuze_);
    const Paartekens paren = PaartekensUit(gelezen_.value_or(std::nullopt).value_or(Tekst()));
    const Tekst losse = paren_.LaadSubgroep(administratie_.spelers.tabel, code_, keuze_, paren);
    VulParenlijst(Regellijst::Plek::Begin);
    Label8->clear();
    if (!paren.empty())
        ToonAantalParen();
    VulSpelerslijsten(Regellijst::Plek::Begin);
    if (!gelezen_)
        MeldFout(
            this, QMessageBox::Warning,
            u"Het parenbestand '%1' kan niet worden gelezen; u ziet daarom geen paren. Voordat "
            "het wordt vervangen, komt er een kopie van in de map Reservekopie. Sluit met "
            "Annuleren als u eerst de oorzaak wilt verhelpen."_s.arg(NaarQString(keuze_)),
            gelezen_.error());
    if (!losse.empty())
        MeldVerslag(
            this,
            u"De volgende spelers zijn losse spelers: \r\n\r\n%1\r\n"_s.arg(NaarQString(losse)),
            Programmatitel, QMessageBox::Warning);
}

void frmParenOnderhoud::VulSpelerslijsten(Regellijst::Plek plek)
{
    for (Regellijst* lijst : {L1, L2})
        lijst->Vul(
            static_cast<int>(paren_.Lalle().size()),
            [this](int regel) { return paren_.Keuze(regel); }, plek);
    Label7->setText(u"Aantal spelers: %1"_s.arg(L1->Aantal()));
}

void frmParenOnderhoud::VulParenlijst(Regellijst::Plek plek)
{
    L3->Vul(
        static_cast<int>(paren_.L3().size()),
        [this](int regel) { return paren_.L3()[static_cast<std::size_t>(regel)]; }, plek);
}

void frmParenOnderhoud::ToonAantalParen()
{
    Label8->setText(u"Aantal paren: %1"_s.arg(paren_.L3().size()));
}

/// A pair and players are not chosen together.
void frmParenOnderhoud::KeuzeIn(const Regellijst* lijst)
{
    if (lijst->Gekozen() >= 0) {
        for (Regellijst* ander : {L1, L2, L3}) {
            if ((ander == L3) != (lijst == L3))
                ander->clearSelection();
        }
    }
    ZetKnoppen();
}

/// The same line in both lists is the same player.
void frmParenOnderhoud::ZetKnoppen()
{
    const int links = L1->Gekozen();
    const int rechts = L2->Gekozen();
    ZetKnop(cmdOKE, links >= 0 && rechts >= 0 && links != rechts, Paarkleur);
    ZetKnop(cmdOntbindt, L3->Gekozen() >= 0, Ontbindkleur);
}

void frmParenOnderhoud::MaakPaar()
{
    const bool vanafToetsen = L2->hasFocus() || cmdOKE->hasFocus();
    const int paar = paren_.MaakPaar(L1->Gekozen(), L2->Gekozen());
    VulParenlijst(Regellijst::Plek::Behouden);
    ToonAantalParen();
    VulSpelerslijsten(Regellijst::Plek::Behouden);
    L3->ZetHuidige(paar);
    // The button went grey; the next pair begins with its first player.
    if (vanafToetsen || focusWidget() == nullptr)
        L1->setFocus();
}

void frmParenOnderhoud::Ontbind()
{
    paren_.Ontbind(L3->Gekozen());
    VulSpelerslijsten(Regellijst::Plek::Behouden);
    VulParenlijst(Regellijst::Plek::Behouden);
    ToonAantalParen();
    L3->setFocus();
}

void frmParenOnderhoud::SorteerParen()
{
    paren_.Sorteer();
    VulParenlijst(Regellijst::Plek::Behouden);
}

void frmParenOnderhoud::VerwijderBestand()
{
    const QString keuze = NaarQString(keuze_);
    const auto pad = Parenbestand(administratie_.mappen, keuze_);
    const auto soort = pad ? administratie_.schijf.Soort(*pad) : Padsoort::Niets;
    if (soort && *soort != Padsoort::Bestand) {
        Meld(this, QMessageBox::Warning, u"Parenbestand '%1' bestaat nog niet!"_s.arg(keuze));
        return;
    }
    if (!Vraag(this,
               u"U gaat Parenbestand %1 volledig verwijderen!\r\nWeet u het zeker?"_s.arg(keuze)))
        return;
    const Noteer noteer(administratie_.geschiedenis, "Paren van " + keuze_ + " verwijderd");
    const auto weg = VerwijderParen(administratie_.schijf, administratie_.mappen, keuze_, gelezen_);
    if (!weg) {
        MeldFout(
            this, QMessageBox::Warning,
            u"Het parenbestand kon niet worden verwijderd; het is gebleven zoals het was. Verhelp "
            "de oorzaak en probeer het opnieuw."_s,
            weg.error());
        return;
    }
    gelezen_ = std::nullopt;
    paren_.WisParen();
    VulParenlijst(Regellijst::Plek::Begin);
    ToonAantalParen();
    if (!weg->empty())
        Meld(this, QMessageBox::Information,
             u"Een ander programma had dit parenbestand intussen gewijzigd. Wat erin stond, staat "
             "in de kopie:\n%1"_s.arg(QString::fromStdString(administratie_.schijf.Toonpad(*weg))));
}

void frmParenOnderhoud::SchrijfCSV(ParenCSV soort)
{
    const Mappen& mappen = administratie_.mappen;
    const QString naam = NaarQString(ParenCSVNaam(soort));
    const auto geschreven = SchrijfParenCSV(administratie_.schijf, mappen, paren_.L3(),
                                            administratie_.spelers.tabel, soort);
    if (StaatEr(this, geschreven))
        Meld(this, QMessageBox::Information,
             u"Het parenbestand '%1' is opgeslagen in de map: \r\n\r\n"_s.arg(naam) +
                 QString::fromStdString(administratie_.schijf.Toonpad(ParenCSVMap(mappen))));
    else if (mappen.RVDMAP.empty())
        Meld(this, QMessageBox::Warning,
             u"Het parenbestand '%1' is niet opgeslagen: er staat geen map achter RVDMAP= in "
             "'Mappen.ini'. De paren in dit venster zijn niet veranderd. Vul die map in en start "
             "Plexoran opnieuw."_s.arg(naam));
    else
        Meld(this, QMessageBox::Warning,
             u"Het parenbestand '%1' is niet opgeslagen. De paren in dit venster zijn niet "
             "veranderd. Sluit het bestand als het nog open is in een ander programma, en probeer "
             "het opnieuw.\n\n"_s.arg(naam) +
                 Bijzonderheden(geschreven.error()));
}

void frmParenOnderhoud::Einde()
{
    const Tekst geweigerd = GeweigerdeTekens(keuze_);
    if (!paren_.L3().empty() && !geweigerd.empty()) {
        Meld(this, QMessageBox::Warning,
             u"De paren van '%1' kunnen niet worden opgeslagen, want %2 %3 niet in de naam van een "
             "bestand staan. De paren staan nog op het scherm. Geef de spelers een andere "
             "subgroep, of kies Annuleren om niets op te slaan."_s.arg(
                 NaarQString(keuze_), NaarQString(geweigerd),
                 geweigerd.size() == 1 ? u"kan"_s : u"kunnen"_s));
        return;
    }
    const Noteer noteer(administratie_.geschiedenis, "Paren van " + keuze_ + " opgeslagen");
    const Bewaring bewaard =
        BewaarParen(administratie_.schijf, administratie_.mappen, keuze_, paren_.L3(), gelezen_);
    const Spelertabel& tabel = administratie_.spelers.tabel;
    if (StaatEr(this, bewaard.gelukt)) {
        MeldMenging(this, {.een = u"paar"_s,
                           .meer = u"paren"_s,
                           .overgenomen = Paarnamen(bewaard.overgenomen, tabel),
                           .botsingen = Paarnamen(bewaard.botsingen, tabel),
                           .onze = bewaard.onze,
                           .andere = bewaard.andere});
    } else {
        // The window closes all the same, so the pairs go where the user can still get them.
        const QString tekst = NaarQString(ParenTekst(paren_.L3()).value_or(Tekst()));
        QGuiApplication::clipboard()->setText(tekst.section(u'\r', 0, 0));
        Meld(this, QMessageBox::Warning,
             u"Fout bij het opslaan van Paren\nDe paren zijn niet verloren: ze staan nu op het "
             "klembord. Plak ze in een tekstbestand, verhelp de oorzaak en sla dat op onder de "
             "naam hieronder.\n\n%1"_s.arg(Bijzonderheden(bewaard.gelukt.error())));
    }
    accept();
}

void frmParenOnderhoud::ToonUitleg()
{
    frmUitleg(this).exec();
}

} // namespace plexoran
