// Searching the floating players of a session or a competition.
#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/tekstbrug.h"
#include "sessions/frmKoppelNBBnr.h"

namespace plexoran {

Uitkomst<std::vector<Zittingplaats>> frmKoppelNBBnr::TeDoorzoeken() const
{
    const Mappen& mappen = administratie_.mappen;
    const Tekst& naam = sessies_.at(static_cast<std::size_t>(cmbC->currentIndex())).naam;
    if (InCompetities())
        return ZittingenVan(administratie_.schijf, mappen, naam);
    const Zittingplaats plaats = LosseZitting(mappen, naam);
    const auto soort = administratie_.schijf.Soort(plaats.map);
    if (!soort)
        return tl::unexpected(soort.error());
    if (*soort != Padsoort::Map)
        return tl::unexpected(
            Fout{Foutsoort::Ontbreekt, administratie_.schijf.Toonpad(plaats.map), 0, {}});
    return std::vector{plaats};
}

void frmKoppelNBBnr::ZoekNamen()
{
    VergeetGevonden();
    ToonResultaat({});
    const auto zittingen = TeDoorzoeken();
    if (!zittingen) {
        MeldLeesfout(
            zittingen.error().soort == Foutsoort::Ontbreekt
                ? u"Fout bij het zoeken van de zwevende spelers: deze map is er niet meer."_s
                : u"Fout bij het zoeken van de zwevende spelers."_s,
            zittingen.error());
        return;
    }
    gezochtInCompetitie_ = InCompetities();
    auto uitslag =
        ZoekZwevenden(administratie_.schijf, *zittingen,
                      frmVoortgang(u"De zwevende spelers worden gezocht ..."_s, u"&Stoppen"_s, this)
                          .AlsVoortgang());
    zwevenden_ = std::move(uitslag.zwevenden);
    ToonGevonden(uitslag);
}

void frmKoppelNBBnr::VulZwevenden()
{
    lstSpelers->Vul(static_cast<int>(zwevenden_.size()), [this](int plaats) {
        return Lijstregel(zwevenden_[static_cast<std::size_t>(plaats)]);
    });
}

void frmKoppelNBBnr::ToonGevonden(const Zoekuitslag& uitslag)
{
    VulZwevenden();
    Label11->setText(zwevenden_.empty()     ? u"Geen zwevende spelers gevonden"_s
                     : gezochtInCompetitie_ ? u"Gevonden zwevende spelers in deze Competitie"_s
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

} // namespace plexoran
