#include "controle/frmControle.h"

#include <array>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/printer.h"
#include "platform/scherm/schildervlak.h"
#include "platform/tekst/tekstblad.h"

namespace plexoran {
namespace {

const QString Titel = u"Controle van de administratie"_s;

/// What all findings of a kind have in common.
struct Soorttekst {
    QString kop;
    QString voor;   ///< before the `wat` of a finding
    QString midden; ///< between its `wat` and its `ander`
    QString raad;
};

const QString Paarraad =
    u"Ontbind het paar in Paren-onderhoud. Staat het in RVDparen.txt, of bestaat de subgroep niet "
    "meer, herstel dat bestand dan met het programma dat het maakt, of haal het weg."_s;

/// In the order of `Vondstsoort`.
const std::array Soortteksten{
    Soorttekst{u"Bestanden die niet of niet helemaal gelezen kunnen worden"_s, u""_s, u""_s,
               u"Kijk of het bestand er is en of u het mag lezen. Laat herstellen wat beschadigd "
               "is, of zet een oude kopie terug."_s},
    Soorttekst{u"Sleutels die meer dan eens voorkomen"_s, u"heeft dezelfde sleutel als "_s, u""_s,
               u"Zittingen en paren kunnen deze spelers niet uit elkaar houden. Ga na van wie de "
               "sleutel is. Voeg de ander toe als nieuwe speler en verwijder daarna zijn oude "
               "regel."_s},
    Soorttekst{u"Sleutels boven de hoogste uitgegeven sleutel (HKEY=)"_s, u"ligt boven HKEY="_s,
               u""_s,
               u"Een nieuwe speler kan een sleutel krijgen die al van een ander is. Kies hieronder "
               "HKEY= verhogen. Staan er in het spelerbestand regels die niet gelezen worden, "
               "herstel dan eerst die."_s},
    Soorttekst{u"Sleutels die geen zes cijfers zijn"_s, u"heeft als sleutel '"_s, u"'"_s,
               u"Zittingen en paren kunnen deze speler niet noemen. Voeg hem toe als nieuwe speler "
               "en verwijder daarna deze regel."_s},
    Soorttekst{u"Regels zonder achternaam"_s, u""_s, u""_s,
               u"Deze regel wordt niet ingelezen en verdwijnt als het spelerbestand weer wordt "
               "opgeslagen, na een kopie in de map Reservekopie. Sluit Plexoran en vul de "
               "achternaam in met een tekstprogramma."_s},
    Soorttekst{u"Spelers van een groep die niet bestaat"_s, u"staat in groep '"_s, u"'"_s,
               u"Geen enkele groep toont deze speler. Sluit Plexoran en zet met een tekstprogramma "
               "in het derde veld een groep die bestaat, Gr01- t/m Gr50-."_s},
    Soorttekst{u"NBB-nummers die in de importgroep meer dan eens voorkomen"_s,
               u"heeft NBB-nummer "_s, u", net als "_s,
               u"Bij het importeren wordt een lid herkend aan zijn NBB-nummer. Verbeter het nummer "
               "dat niet klopt, of verwijder de speler die er dubbel in staat."_s},
    Soorttekst{u"Paren met een speler die er niet is"_s, u"paar "_s, u": niemand heeft sleutel "_s,
               Paarraad},
    Soorttekst{u"Paren met een speler die is overleden"_s, u"paar "_s, u": "_s, Paarraad},
    Soorttekst{u"Paren met een speler uit een andere groep of subgroep"_s, u"paar "_s, u": "_s,
               Paarraad},
    Soorttekst{u"Sleutels in zittingen en competities die geen speler heeft"_s, u"sleutel "_s,
               u""_s,
               u"De speler is verwijderd, en zijn naam verschijnt niet meer in deze zitting. Was "
               "dat een vergissing, zet dan een oud spelerbestand terug, of geef de speler in elk "
               "van deze zittingen opnieuw op."_s},
    Soorttekst{u"Zwevende spelers: namen die nog geen sleutel hebben"_s, u""_s, u""_s,
               u"Kies in de groep van de bondsleden Koppel zwevende NBB-speler, en koppel de naam "
               "aan een speler."_s},
    Soorttekst{u"Tekens die niet kunnen"_s, u"bytes zonder teken in Windows-1252 (hex): "_s, u""_s,
               u"Een ander programma toont hier iets anders of niets. Typ de tekst op deze plaats "
               "opnieuw."_s},
    Soorttekst{u"Bestanden in UTF-8"_s, u"letters met een accent staan er verkeerd in"_s, u""_s,
               u"Open het bestand in een tekstprogramma en sla het op als ANSI (Windows-1252)."_s}};

const Soorttekst& TekstVan(Vondstsoort soort)
{
    return Soortteksten.at(static_cast<std::size_t>(soort));
}

/// A file is named from the root folder of the suite on, `wortel`, when it is below it.
QString Waar(const Vondst& vondst, const QString& wortel)
{
    if (vondst.plek)
        return Zittingnaam(*vondst.plek) + u": "_s + NaarQString(vondst.plek->plaatsen);
    if (!vondst.speler.empty())
        return NaarQString(vondst.speler);
    const QString regel = vondst.regel > 0 ? u", regel %1"_s.arg(vondst.regel) : QString();
    const QString pad = QString::fromStdString(vondst.bestand);
    return (pad.startsWith(wortel) ? pad.mid(wortel.size()) : pad) + regel;
}

QString Wat(const Vondst& vondst)
{
    const Soorttekst& tekst = TekstVan(vondst.soort);
    return tekst.voor + NaarQString(vondst.wat) + tekst.midden + NaarQString(vondst.ander) +
           QString::fromStdString(vondst.reden);
}

QString Kop(Vondstsoort soort, std::size_t aantal)
{
    return u"%1 (%2)"_s.arg(TekstVan(soort).kop).arg(aantal);
}

} // namespace

QString Zittingnaam(const Zittingplek& plek)
{
    const QString naam = NaarQString(plek.naam);
    return plek.inCompetitie ? u"Competitie %1, ronde %2, zitting %3"_s.arg(
                                   naam, QString::number(plek.ronde), QString::number(plek.zitting))
                             : u"Zitting "_s + naam;
}

frmControle::frmControle(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), oudeHKEY_(administratie.spelers.HKEY)
{
    {
        frmVoortgang voortgang(u"De bestanden van de administratie worden gecontroleerd ..."_s,
                               u"&Stoppen"_s, ouder);
        uitslag_ =
            ControleerSuite(administratie.schijf, administratie.mappen, voortgang.AlsVoortgang());
    }
    for (const Pad& map : {administratie.mappen.Parenmap(), administratie.mappen.ZITMAP,
                           administratie.mappen.COMMAP})
        MeldOvergeslagen(ouder, administratie.schijf, map);
    Bouw();
    VulLijst();
}

void frmControle::Bouw()
{
    setObjectName(u"frmControle"_s);
    setWindowTitle(Titel);
    lblUitslag = MaakUitleg(u"lblUitslag"_s, QString(), this);
    lstVondsten = MaakBoom(u"lstVondsten"_s, u"Wat aandacht vraagt"_s, {u"Waar"_s, u"Wat"_s}, this);
    const Maten maten;
    lstVondsten->header()->resizeSection(0, maten.Twips(6700)); // the other one takes the rest
    lstVondsten->setTextElideMode(Qt::ElideMiddle);
    txtRaad = MaakLeesvak(u"txtRaad"_s, u"Wat te doen"_s, QString(), this);
    constexpr int raadregels = 6;
    txtRaad->setFixedHeight(raadregels * fontMetrics().lineSpacing() + 2 * txtRaad->frameWidth());
    cmdHerstel = MaakKnop(u"cmdHerstel"_s, QString(), 0, this, &frmControle::Herstel);
    auto* cmdPrint = MaakKnop(u"cmdPrint"_s, u"Print"_s, u'P', this, &frmControle::Print);
    auto* cmdOpslaan =
        MaakKnop(u"cmdOpslaan"_s, u"Lijst opslaan ..."_s, u'o', this, &frmControle::SlaOp);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this, &QDialog::accept);
    cmdEinde->setDefault(true);
    connect(lstVondsten, &QTreeWidget::currentItemChanged, this, &frmControle::ToonRaad);

    Onderelkaar({lblUitslag,
                 {lstVondsten, 1},
                 txtRaad,
                 Naastelkaar({cmdHerstel, {Knoppenrij({cmdPrint, cmdOpslaan, cmdEinde}), 1}})},
                this);
    PasInScherm(this, maten.Twips(12600, 8400));
    lstVondsten->setFocus();
}

void frmControle::VulLijst()
{
    lstVondsten->clear();
    const Pad& map = administratie_.mappen.RVDMAP;
    const QString wortel = map.empty() ? QString() : Toonpad(administratie_.schijf, Samen(map, {}));
    QTreeWidgetItem* groep = nullptr;
    QFont vet = lstVondsten->font();
    vet.setBold(true);
    auto soort = Vondstsoort{};
    for (std::size_t i = 0; i < uitslag_.vondsten.size(); ++i) {
        const Vondst& vondst = uitslag_.vondsten[i];
        if (IsHersteld(vondst))
            continue;
        if (groep == nullptr || vondst.soort != soort) {
            soort = vondst.soort;
            const auto aantal = std::ranges::count(uitslag_.vondsten, soort, &Vondst::soort);
            groep =
                new QTreeWidgetItem(lstVondsten, {Kop(soort, static_cast<std::size_t>(aantal))});
            groep->setFirstColumnSpanned(true);
            groep->setFont(0, vet);
            groep->setData(0, Qt::UserRole, TekstVan(soort).raad);
        }
        new Boomregel(groep, {Waar(vondst, wortel), Wat(vondst)});
    }
    lstVondsten->expandAll();
    lstVondsten->setCurrentItem(lstVondsten->topLevelItem(0));
    ToonRaad();
    lblUitslag->setText(Samenvatting());
    cmdHerstel->setText(IetsGewijzigd() ? u"&HKEY= niet verhogen"_s : u"&HKEY= verhogen"_s);
    cmdHerstel->setEnabled(IetsGewijzigd() ||
                           (uitslag_.IsTeVerhogen() && uitslag_.hoogste > oudeHKEY_));
}

void frmControle::ToonRaad()
{
    const QTreeWidgetItem* regel = lstVondsten->currentItem();
    QString tekst;
    if (regel != nullptr && regel->parent() != nullptr) {
        tekst = u"%1\n%2\n\n"_s.arg(regel->text(0), regel->text(1));
        regel = regel->parent();
    }
    if (regel != nullptr)
        tekst += u"Wat te doen: "_s + regel->data(0, Qt::UserRole).toString();
    txtRaad->setPlainText(tekst);
}

/// The highest key issued goes up to that of the players, or back.
void frmControle::Herstel()
{
    administratie_.spelers.HKEY = IetsGewijzigd() ? oudeHKEY_ : uitslag_.hoogste;
    VulLijst();
}

QString frmControle::Samenvatting() const
{
    const Controletelling& telling = uitslag_.telling;
    const auto over = std::ranges::count_if(
        uitslag_.vondsten, [this](const Vondst& vondst) { return !IsHersteld(vondst); });
    const auto aantal = static_cast<std::size_t>(over);
    QString tekst = aantal == 0
                        ? u"Er is niets gevonden dat aandacht vraagt."_s
                        : Aantal(aantal, u"punt"_s, u"punten"_s) +
                              (aantal == 1 ? u" vraagt aandacht."_s : u" vragen aandacht."_s);
    tekst += u"\nGecontroleerd: %1 in %2, %3 en %4; samen %5."_s.arg(
        Aantal(telling.spelers, u"speler"_s, u"spelers"_s),
        Aantal(telling.groepen, u"groep"_s, u"groepen"_s),
        Aantal(telling.parenbestanden, u"parenbestand"_s, u"parenbestanden"_s),
        Aantal(telling.zittingen, u"zitting"_s, u"zittingen"_s),
        Aantal(telling.bestanden, u"bestand"_s, u"bestanden"_s));
    if (uitslag_.gestopt)
        tekst += u"\nDe controle is gestopt: de lijst is niet volledig."_s;
    if (IetsGewijzigd())
        tekst += u"\nHKEY= is verhoogd tot %1. Dat wordt opgeslagen als u dit venster sluit."_s.arg(
            administratie_.spelers.HKEY);
    return tekst;
}

/// The whole list as a text.
QString frmControle::Verslag() const
{
    QStringList regels{Titel + u", "_s + NaarQString(Tijdtekst("dd-MM-yyyy HH:mm")), QString(),
                       Samenvatting()};
    for (int i = 0; i < lstVondsten->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* groep = lstVondsten->topLevelItem(i);
        regels << QString() << groep->text(0)
               << u"Wat te doen: "_s + groep->data(0, Qt::UserRole).toString();
        for (int j = 0; j < groep->childCount(); ++j)
            regels << u" - %1: %2"_s.arg(groep->child(j)->text(0), groep->child(j)->text(1));
    }
    return regels.join(u'\n') + u'\n';
}

void frmControle::SlaOp()
{
    const auto pad =
        VraagOpslagplaats(this, u"Lijst opslaan"_s, u"Tekstbestanden (*.txt)"_s, u"txt"_s, Titel);
    if (!pad)
        return;
    Schijf& schijf = administratie_.schijf;
    const auto opgeslagen =
        SchrijfHeel(schijf, *pad, NaarTekst(Verslag().replace(u'\n', u"\r\n"_s)));
    if (StaatEr(this, opgeslagen))
        lblUitslag->setText(Samenvatting() + u"\nDe lijst is opgeslagen: "_s +
                            Toonpad(schijf, *pad));
    else
        MeldFout(this, QMessageBox::Warning,
                 u"De lijst kon niet worden opgeslagen. Er is niets veranderd. Kies een andere map "
                 "of een andere naam."_s,
                 opgeslagen.error());
}

void frmControle::Print()
{
    const auto bladen = Tekstbladen(NaarTekst(Verslag()), Letterkast());
    PrintBladen(
        administratie_.schijf,
        {.titel = Titel,
         .bezig = u"De lijst wordt geprint"_s,
         .bladen = static_cast<int>(bladen.size())},
        [&](Tekenvlak& vlak, int blad) {
            TekenTekstblad(vlak, bladen.at(static_cast<std::size_t>(blad - 1)));
        },
        this);
}

} // namespace plexoran
