// The linking window: choosing a session, finding its floating players and linking one of them.
#include "sessions/frmKoppelNBBnr.h"

#include <QStyle>
#include <QTimer>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/frmVoortgang.h"
#include "register/spelerbestand.h"

namespace plexoran {
namespace {

/// What happened to how many files, and "- " before each; of many only the first ones and how many
/// more there are.
QString Opsomming(const QString& wat, const std::vector<std::string>& bestanden)
{
    constexpr int meeste = 10;
    QStringList uit;
    for (const std::string& bestand : bestanden) {
        if (uit.size() == meeste) {
            uit << u"... en nog "_s +
                       Aantal(bestanden.size() - meeste, u"bestand"_s, u"bestanden"_s);
            break;
        }
        uit << u"- "_s + QString::fromStdString(bestand);
    }
    return wat + u" (%1):\n"_s.arg(bestanden.size()) +
           (uit.isEmpty() ? u"- geen"_s : uit.join(u'\n'));
}

} // namespace

frmKoppelNBBnr::frmKoppelNBBnr(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    ToonKnoppen();
    // Filled when the window is there, so that its messages stand before it.
    QTimer::singleShot(0, this, [this] {
        LeesRegister();
        KiesSoort();
    });
}

void frmKoppelNBBnr::KiesSoort()
{
    const bool competities = InCompetities();
    Label4->setText(competities ? u"Kies een Competitie"_s : u"Kies een Zitting"_s);
    cmbC->setAccessibleName(Label4->text());
    cmdZoekNamen->setText(MetSneltoets(competities
                                           ? u"Zoek de zwevende spelers in deze Competitie"_s
                                           : u"Zoek de zwevende spelers in deze Zitting"_s,
                                       u'Z'));
    const Mappen& mappen = administratie_.mappen;
    auto gelezen = competities ? LeesCompetities(administratie_.schijf, mappen)
                               : LeesZittingen(administratie_.schijf, mappen);
    sessies_ = gelezen.value_or(std::vector<Sessiemap>());
    std::vector<Tekst> namen;
    for (const Sessiemap& sessie : sessies_)
        namen.push_back(sessie.naam);
    VulKeus(*cmbC, namen);
    for (int i = 0; i < cmbC->count(); ++i)
        cmbC->setItemData(
            i, NaarQString(Tijdtekst("yyyy-MM-dd", sessies_[static_cast<std::size_t>(i)].tijd)),
            Qt::ToolTipRole);
    cmbC->setToolTip(cmbC->currentData(Qt::ToolTipRole).toString());
    VergeetGevonden();
    MeldOvergeslagen(this, administratie_.schijf, competities ? mappen.COMMAP : mappen.ZITMAP);
    if (!gelezen)
        MeldLeesfout(competities ? u"Fout bij het lezen van de map met competities."_s
                                 : u"Fout bij het lezen van de map met zittingen."_s,
                     gelezen.error());
    else if (sessies_.empty())
        Meld(this, QMessageBox::Information,
             competities
                 ? u"Er zijn nog geen competities voorhanden.\r\nU dient dus eerst een Competitie "
                   "aan te maken."_s
                 : u"Er zijn nog geen Zittingen voorhanden.\r\nU dient dus eerst een Zitting aan "
                   "te maken."_s);
}

/// What was found belongs to the session in which it was searched.
void frmKoppelNBBnr::VergeetGevonden()
{
    zwevenden_.clear();
    VulZwevenden();
    Label11->clear();
}

/// From the file and not from the table: sessions may only hold keys that are saved.
void frmKoppelNBBnr::LeesRegister()
{
    const Pad pad = administratie_.mappen.Spelerbestand();
    auto inhoud = administratie_.schijf.LeesBestand(pad);
    const auto lezing = inhoud ? SpelersUit(std::move(*inhoud)) : Spelerlezing();
    spelers_ = lezing.tabel ? Koppelspelers(*lezing.tabel, administratie_.mappen.DFIMPG)
                            : std::vector<Koppelspeler>();
    lstRVDsp->Vul(static_cast<int>(spelers_.size()),
                  [this, breedte = Naambreedte(spelers_)](int regel) {
                      return Koppelregel(spelers_[static_cast<std::size_t>(regel)], breedte);
                  });
    PlaatsKoppen();
    if (!inhoud)
        MeldLeesfout(
            u"Fout bij het lezen van het spelerbestand; er is nu niemand om te koppelen."_s,
            inhoud.error());
}

/// Over the columns of the list, also when it is scrolled sideways.
void frmKoppelNBBnr::PlaatsKoppen()
{
    const QFontMetrics maten(lstRVDsp->font());
    const int begin = lstRVDsp->frameWidth() + 1 +
                      lstRVDsp->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) -
                      lstRVDsp->horizontalScrollBar()->value();
    const int naam = static_cast<int>(Naambreedte(spelers_));
    const std::array kolommen{0, 8, 10 + naam, 20 + naam};
    for (std::size_t i = 0; i < koppen_.size(); ++i)
        koppen_[i]->move(begin + maten.horizontalAdvance(QString(kolommen[i], u'0')), 0);
}

const Zwevende* frmKoppelNBBnr::GekozenZwevende() const
{
    const int regel = lstSpelers->Gekozen();
    return regel < 0 ? nullptr : &zwevenden_.at(static_cast<std::size_t>(regel));
}

const Koppelspeler* frmKoppelNBBnr::GekozenSpeler() const
{
    const int regel = lstRVDsp->Gekozen();
    return regel < 0 ? nullptr : &spelers_.at(static_cast<std::size_t>(regel));
}

/// The file again, for who was imported meanwhile, and the player who bears the same name. Without
/// such a player nobody is chosen: whoever stands first is not the one who is meant.
void frmKoppelNBBnr::KiesUitRegister()
{
    LeesRegister();
    lstRVDsp->setFocus();
    const Zwevende* zwevende = GekozenZwevende();
    const int zelfde = zwevende == nullptr ? -1 : Naamgenoot(spelers_, zwevende->naam);
    if (zelfde >= 0)
        lstRVDsp->ZetHuidige(zelfde);
}

/// A warning about the chosen name goes with that name; what was done comes back after it.
void frmKoppelNBBnr::ToonZwevende()
{
    const Zwevende* zwevende = GekozenZwevende();
    txtSpeler->setText(zwevende != nullptr ? NaarQString(Lijstregel(*zwevende)) : QString());
    const bool streepje = zwevende != nullptr && zwevende->naam.find('-') != Tekst::npos;
    lblResultaat->setText(
        streepje
            ? u"Let op: in deze naam staat een streepje. Het eerste streepje van een paar scheidt "
              "de twee spelers.\nNa het koppelen staat de sleutel in de plaats van alles wat "
              "hierboven als naam staat."_s
            : resultaat_);
    ToonKnoppen();
}

void frmKoppelNBBnr::ToonSpeler()
{
    const Koppelspeler* speler = GekozenSpeler();
    txtRVDspeler->setText(speler != nullptr ? NaarQString(speler->key + "    " + speler->naam)
                                            : QString());
    ToonKnoppen();
}

void frmKoppelNBBnr::ToonKnoppen()
{
    cmdZoekNamen->setEnabled(cmbC->currentIndex() >= 0);
    cmdStartKoppelen->setEnabled(GekozenZwevende() != nullptr && GekozenSpeler() != nullptr);
}

void frmKoppelNBBnr::ToonResultaat(const QStringList& regels)
{
    resultaat_ = regels.join(u'\n');
    lblResultaat->setText(resultaat_);
}

void frmKoppelNBBnr::MeldLeesfout(const QString& wat, const Fout& fout)
{
    MeldFout(this, QMessageBox::Warning,
             wat + u" Er is niets veranderd. Verhelp de oorzaak en probeer het opnieuw."_s, fout);
}

void frmKoppelNBBnr::ZoekNamen()
{
    VergeetGevonden();
    ToonResultaat({});
    Schijf& schijf = administratie_.schijf;
    const Tekst& naam = sessies_.at(static_cast<std::size_t>(cmbC->currentIndex())).naam;
    const auto zittingen = InCompetities() ? ZittingenVan(schijf, administratie_.mappen, naam)
                                           : ZittingVan(schijf, administratie_.mappen, naam);
    if (!zittingen) {
        MeldLeesfout(
            zittingen.error().soort == Foutsoort::Ontbreekt
                ? u"Fout bij het zoeken van de zwevende spelers: deze map is er niet meer."_s
                : u"Fout bij het zoeken van de zwevende spelers."_s,
            zittingen.error());
        return;
    }
    auto uitslag =
        ZoekZwevenden(schijf, *zittingen,
                      frmVoortgang(u"De zwevende spelers worden gezocht ..."_s, u"&Stoppen"_s, this)
                          .AlsVoortgang());
    zwevenden_ = std::move(uitslag.zwevenden);
    ToonGevonden(uitslag);
}

void frmKoppelNBBnr::VulZwevenden()
{
    lstSpelers->Vul(static_cast<int>(zwevenden_.size()), [this](int regel) {
        return Lijstregel(zwevenden_[static_cast<std::size_t>(regel)]);
    });
}

void frmKoppelNBBnr::ToonGevonden(const Zoekuitslag& uitslag)
{
    VulZwevenden();
    Label11->setText(zwevenden_.empty() ? u"Geen zwevende spelers gevonden"_s
                     : InCompetities()  ? u"Gevonden zwevende spelers in deze Competitie"_s
                                        : u"Gevonden zwevende spelers in deze Zitting"_s);
    QStringList opmerkingen;
    if (uitslag.gestopt)
        opmerkingen << u"Het zoeken is gestopt: niet alle zittingen zijn doorzocht."_s;
    if (uitslag.overgeslagen > 0)
        opmerkingen
            << u"Overgeslagen regels in de percentagebestanden, omdat ze geen 7 velden hebben: "
               "%1."_s.arg(uitslag.overgeslagen);
    if (!zwevenden_.empty()) {
        lstSpelers->ZetHuidige(0); // may have to say something of it
        lstSpelers->setFocus();
    }
    if (!opmerkingen.isEmpty())
        ToonResultaat(opmerkingen);
    if (!uitslag.fouten.empty())
        MeldLeesfout(
            u"Fout bij het lezen van de zittingbestanden: de spelers uit %1 staan niet in de "
            "lijst."_s.arg(
                uitslag.fouten.size() == 1
                    ? u"het bestand hieronder"_s
                    : u"%1 bestanden, waarvan hieronder het eerste,"_s.arg(uitslag.fouten.size())),
            uitslag.fouten.front());
}

void frmKoppelNBBnr::StartKoppelen()
{
    if (!Vraag(this, u"De zwevende speler krijgt nu zijn RVD-nummer toegewezen in de betreffende "
                     "zittingbestanden.\r\n\r\nKies OK of Annuleer."_s))
        return;
    emit begint();
    const Koppelopdracht opdracht = MaakKoppelopdracht(
        zwevenden_, static_cast<std::size_t>(lstSpelers->Gekozen()), GekozenSpeler()->key);
    const Noteer noteer(administratie_.geschiedenis, opdracht.naam + " gekoppeld");
    const Koppeluitslag uitslag =
        Koppel(administratie_.schijf, opdracht,
               frmVoortgang(u"De speler wordt gekoppeld ..."_s, {}, this).AlsVoortgang());
    std::set<std::string> zittingen; ///< in which files were changed, by their folders
    for (const std::string& bestand : uitslag.gewijzigd)
        zittingen.insert(bestand.substr(0, bestand.find_last_of("/\\")));
    const QString naam = NaarQString(opdracht.naam);
    administratie_.geschiedenis.Noem(
        NaarTekst(naam + u" gekoppeld in "_s +
                  NaarQString(sessies_.at(static_cast<std::size_t>(cmbC->currentIndex())).naam) +
                  u" (%1)"_s.arg(Aantal(zittingen.size(), u"zitting"_s, u"zittingen"_s))));
    QStringList regels;
    for (const Aangepast& aangepast : uitslag.aangepast)
        regels << naam + u" - "_s + NaarQString(aangepast.code) +
                      (aangepast.soort == Lijstsoort::Spelers
                           ? u" aangepast in Spelerbestand."_s
                           : u" aangepast in Percentagebestand."_s);
    for (const std::string& bestand : uitslag.nietGewijzigd)
        regels << u"Niet aangepast: "_s + QString::fromStdString(bestand);
    ToonResultaat(regels);
    if (uitslag.fout)
        MeldAfgebroken(uitslag);
    else
        MeldKoppeling(opdracht, uitslag);
}

void frmKoppelNBBnr::MeldKoppeling(const Koppelopdracht& opdracht, const Koppeluitslag& uitslag)
{
    const QString naam = NaarQString(opdracht.naam);
    // The next player becomes the chosen one only when the user picks him.
    HaalGekoppeldenUit(zwevenden_, opdracht);
    VulZwevenden();
    lstRVDsp->clearSelection();
    if (!zwevenden_.empty())
        lstSpelers->setFocus(); // for the next one
    if (uitslag.aangepast.empty()) {
        Meld(this, QMessageBox::Warning,
             u"Er is niets gewijzigd: '%1' komt niet meer voor in de bestanden. Misschien heeft "
             "een ander programma ze intussen gewijzigd. Zoek de zwevende spelers opnieuw."_s.arg(
                 naam));
        return;
    }
    // Not arg: a name may hold a "%1" of its own.
    const QString gekoppeld =
        InCompetities() ? QString(naam + u" is in alle competitie-zittingen gekoppeld ("_s +
                                  QString::number(opdracht.regels.size()) + u" keer)"_s)
                        : QString(u"Speler "_s + naam + u" is gekoppeld."_s);
    Meld(this, QMessageBox::Information, gekoppeld);
}

void frmKoppelNBBnr::MeldAfgebroken(const Koppeluitslag& uitslag)
{
    MeldFout(
        this, QMessageBox::Critical,
        u"Fout bij het koppelen. Elk bestand is heel: het is helemaal aangepast of nog zoals het "
        "was. Verhelp de oorzaak en koppel deze speler opnieuw; dan wordt de rest aangepast.\n\n"_s +
            Opsomming(u"Aangepast"_s, uitslag.gewijzigd) + u"\n\n"_s +
            Opsomming(u"Niet aangepast"_s, uitslag.nietGewijzigd),
        *uitslag.fout);
}

} // namespace plexoran
