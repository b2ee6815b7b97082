// Undoing, doing again, and looking back.
#include <QMenu>

#include "mainwindow/frmGeschiedenis.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

/// As it stands in a menu, where a name of any length must not widen it.
QString Menutekst(const QString& wat, const std::optional<Handeling>& handeling)
{
    constexpr qsizetype langste = 60;
    if (!handeling)
        return wat;
    QString naam = NaarQString(handeling->wat);
    if (naam.size() > langste)
        naam = naam.left(langste) + u"..."_s;
    return wat + u": "_s + ZonderSneltoets(naam);
}

QString NietsTeDraaien(Handelingsoort soort)
{
    return soort == Handelingsoort::Ongedaan ? u"Er is niets om ongedaan te maken."_s
                                             : u"Er is niets om opnieuw te doen."_s;
}

} // namespace

/// What they would do is looked up when the menu opens; their keys work always.
void frmLedenAdmin::BouwTerugmenu(QMenu* menu)
{
    const auto actie = [&](const QString& naam, const QString& tekst, const QKeySequence& toets,
                           Handelingsoort soort) {
        QAction* uit = menu->addAction(tekst, toets, this, [this, soort] { Draai(soort); });
        uit->setObjectName(naam);
        connect(menu, &QMenu::aboutToShow, uit, [=, this] {
            const auto laatste = administratie_.geschiedenis.Laatste(soort);
            uit->setText(Menutekst(tekst, laatste));
            if (uit->isEnabled() && !laatste) {
                uit->setEnabled(false);
                uit->setStatusTip(NietsTeDraaien(soort));
            }
        });
    };
    actie(u"actOngedaan"_s, u"Ongedaan maken"_s, Qt::CTRL | Qt::Key_Z, Handelingsoort::Ongedaan);
    actie(u"actOpnieuw"_s, u"Opnieuw doen"_s, Qt::CTRL | Qt::Key_Y, Handelingsoort::Opnieuw);
    menu->addSeparator();
    menu->addAction(u"Geschiedenis..."_s, Qt::CTRL | Qt::Key_H, this,
                    [this] { ToonGeschiedenis({}); })
        ->setObjectName(u"actGeschiedenis"_s);
}

void frmLedenAdmin::Draai(Handelingsoort soort)
{
    if (!IsAllesOpgeslagen()) // or else the last one is not in the history
        return;
    const auto handeling = administratie_.geschiedenis.Laatste(soort);
    if (handeling)
        DraaiTerug(*handeling, soort);
    else
        Meld(this, QMessageBox::Information, NietsTeDraaien(soort));
}

void frmLedenAdmin::DraaiTerug(const Handeling& handeling, Handelingsoort soort)
{
    if (!MagWijzigen() || !IsAllesOpgeslagen())
        return;
    VolgBestanden();
    opslag_.Reserve().VoorWijziging();
    opslag_.Reserve().Meld();
    const QString woorden =
        soort == Handelingsoort::Ongedaan ? u"ongedaan gemaakt"_s : u"opnieuw gedaan"_s;
    const QString wat = u": "_s + NaarQString(handeling.wat);
    QString kop = woorden.at(0).toUpper() + woorden.mid(1);
    const Noteer noteer(administratie_.geschiedenis, NaarTekst(kop + wat), soort, handeling.id);
    QStringList rest;
    const Tekst gekozen = GekozenKey();
    const Spelertabel was = administratie_.spelers.tabel;
    bool iets = false; // came out otherwise
    for (auto een = handeling.wijzigingen.rbegin(); een != handeling.wijzigingen.rend(); ++een) {
        if (een->IsSpelerbestand())
            DraaiSpelers(*een, soort, rest);
        else
            iets = DraaiBestand(*een, soort, rest) || iets;
    }
    const auto verschillen = Verschillen(administratie_.spelers.tabel, was);
    iets = iets || !verschillen.empty() || rest.isEmpty();
    if (!iets) {
        kop = u"Niet "_s + woorden;
        administratie_.geschiedenis.Noem(NaarTekst(kop + wat));
    }
    if (SlaOpEnKies(verschillen, gekozen))
        noteer.Leg();
    wacht_.Kijk(); // names of groups may be others
    if (!rest.isEmpty())
        MeldLijst(
            this, QMessageBox::Warning,
            u"%1. Dit is sindsdien op een andere manier gewijzigd en gebleven zoals het "
            "is:\n\n%2"_s.arg(iets ? kop + u", maar niet alles"_s : u"Er is niets "_s + woorden,
                              rest.join(u'\n')));
    MeldGeschiedenisfout();
}

void frmLedenAdmin::DraaiSpelers(const Wijziging& wijziging, Handelingsoort soort,
                                 QStringList& rest)
{
    Register& spelers = administratie_.spelers;
    Menging menging = DraaiSpelersTerug(spelers, wijziging, soort);
    Paarplaatsen inParen; // who is deleted once more was so with his pairs the first time
    if (soort == Handelingsoort::Ongedaan)
        inParen = ZonderSpelerInParen(administratie_.schijf, administratie_.mappen, spelers.tabel,
                                      menging.tabel);
    if (!inParen.empty())
        menging = DraaiSpelersTerug(spelers, wijziging, soort, inParen);
    const Sleutelwijzer wie(spelers.tabel);
    for (const auto& [key, bestand] : inParen) {
        const Verschil speler{key, spelers.tabel.Velden(wie.Rij(key)), {}};
        rest << u"%1 staat in de paren van %2"_s.arg(
            NaarQString(Aanduiding(speler)), NaarQString(bestand.substr(0, bestand.rfind('.'))));
    }
    for (const Verschil& botsing : menging.botsingen)
        rest << NaarQString(Aanduiding(botsing));
    spelers.tabel = std::move(menging.tabel);
}

/// Whether the file is another now.
bool frmLedenAdmin::DraaiBestand(const Wijziging& wijziging, Handelingsoort soort,
                                 QStringList& rest)
{
    Schijf& schijf = administratie_.schijf;
    const auto inhoud = [&] {
        return LeesAlsErIs(schijf, wijziging.PadIn(administratie_.mappen)).value_or(std::nullopt);
    };
    const auto was = inhoud();
    const auto gedaan = DraaiBestandTerug(schijf, administratie_.mappen, wijziging, soort);
    if (!gedaan)
        rest << NaarQString(wijziging.Naam()) + u'\n' + Bijzonderheden(gedaan.error());
    for (const Tekst& deel : gedaan.value_or(std::vector<Tekst>()))
        rest << NaarQString(deel);
    return inhoud() != was;
}

void frmLedenAdmin::ToonGeschiedenis(const Tekst& key, const QString& van)
{
    frmGeschiedenis venster(
        administratie_, key,
        [this](const Handeling& handeling, Handelingsoort soort) { DraaiTerug(handeling, soort); },
        this);
    venster.setWindowTitle(venster.windowTitle() + van);
    venster.exec();
}

void frmLedenAdmin::ToonSpeler()
{
    if (!BrengInRooster() || !IsRegelGekozen())
        return;
    const Spelertabel& tabel = administratie_.spelers.tabel;
    const QString naam = NaarQString(VolleNaam(tabel, GekozenRij()));
    const Tekst key = GekozenKey();
    if (key.empty())
        Meld(
            this, QMessageBox::Information,
            u"%1 heeft geen sleutel. Daarom is niet te zeggen wat er van deze speler is "
            "gewijzigd. Er is niets veranderd. Kijk in de hele geschiedenis (Ctrl+H)."_s.arg(naam));
    else
        ToonGeschiedenis(key, u" van "_s + naam);
}

/// What could not be kept cannot be undone later; told once.
void frmLedenAdmin::MeldGeschiedenisfout()
{
    ToonOngedaan();
    if (const auto fout = administratie_.geschiedenis.NeemFout())
        MeldFout(
            this, QMessageBox::Warning,
            u"De geschiedenis kan niet worden bijgehouden. Uw wijzigingen zelf zijn niet in "
            "gevaar, maar wat u nu doet, kunt u later niet ongedaan maken. Kijk of u in de map "
            "Geschiedenis mag schrijven en of de schijf vol is."_s,
            *fout);
}

} // namespace plexoran
