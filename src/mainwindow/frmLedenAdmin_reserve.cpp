#include "mainwindow/frmLedenAdmin_reserve.h"

#include <algorithm>

#include "dialogs/frmTerugzetten.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"
#include "register/reservekopie.h"

namespace plexoran {
namespace {

/// Each after a copy of what stands there.
void SchrijfBestanden(Administratie& administratie, const std::vector<Zipdeel>& delen,
                      QWidget* venster)
{
    Schijf& schijf = administratie.schijf;
    const Pad& map = administratie.mappen.SPEMAP;
    auto uitkomst =
        delen.empty() ? Uitkomst<void>() : schijf.MaakMap(administratie.mappen.Parenmap());
    for (std::size_t i = 0; i < delen.size() && uitkomst; ++i) {
        uitkomst = BewaarSamen(schijf, map, Samen(map, delen[i].naam), std::nullopt,
                               delen[i].inhoud, [](Tekstblik) { return false; })
                       .gelukt;
        if (StaatOpSchijf(uitkomst) && StaatEr(venster, uitkomst))
            uitkomst = {};
    }
    if (!uitkomst)
        MeldFout(venster, QMessageBox::Warning,
                 u"De groepsnamen en paren zijn niet allemaal teruggezet: bij het bestand "
                 "hieronder ging het mis. Dat bestand en wat daarna kwam, zijn gebleven zoals ze "
                 "waren. Verhelp de oorzaak en zet ze nog eens terug."_s,
                 uitkomst.error());
}

} // namespace

void Reservewacht::VoorWijziging()
{
    if (laatsteDag_ != Tijdtekst("yyyy-MM-dd"))
        Maak(laatsteDag_.empty() ? "voor eerste wijziging" : "dagelijks");
}

void Reservewacht::Maak(Tekstblik reden)
{
    laatste_ =
        MaakReservezip(administratie_.schijf, administratie_.mappen, reden).map([](auto&&) {});
    if (!laatste_)
        return;
    laatsteDag_ = Tijdtekst("yyyy-MM-dd");
    WerkTweedeplaatsBij(administratie_.schijf, administratie_.mappen,
                        administratie_.tweedeplaatsIni);
}

void Reservewacht::Meld()
{
    if (laatste_ || gemeld_)
        return;
    gemeld_ = true;
    MeldFout(venster_, QMessageBox::Warning,
             u"Er kon geen reservekopie worden gemaakt. De gegevens van de spelers zijn niet in "
             "gevaar en u kunt doorwerken. Bij elke volgende wijziging wordt het stil opnieuw "
             "geprobeerd. Kijk na of er ruimte is en of u in de map mag schrijven."_s,
             laatste_.error());
}

bool ZetReserveTerug(Administratie& administratie, Reservewacht& reserve, QWidget* venster)
{
    frmTerugzetten keus(administratie, venster);
    if (keus.exec() != QDialog::Accepted)
        return false;
    reserve.Maak("voor terugzetten");
    SchrijfBestanden(administratie, keus.OokBestanden(), venster);
    if (!keus.IetsGekozen())
        return false;
    Menging hersteld = keus.Hersteld();
    administratie.spelers.tabel = std::move(hersteld.tabel);
    administratie.spelers.HKEY = hersteld.HKEY;
    return true;
}

bool BiedReservesAan(Administratie& administratie, QWidget* venster)
{
    const auto reserves = Reserves(administratie.schijf, administratie.mappen);
    const bool zijnEr = reserves && std::ranges::any_of(*reserves, [](const Reserve& reserve) {
                            return reserve.kopie.IsZip() && reserve.spelers.value_or(0) > 0;
                        });
    if (!zijnEr ||
        Kies(
            venster, QMessageBox::Question,
            u"Er zijn reservekopieën met spelers. Wilt u kijken of u er een terugzet? Er verandert "
            "niets voordat u daarin op Terugzetten drukt."_s,
            {u"Reservekopieën bekijken"_s, u"Zo verdergaan"_s}) != 0)
        return false;
    const Noteer noteer(administratie.geschiedenis, "Reservekopie teruggezet");
    Reservewacht reserve(administratie, venster);
    const bool hersteld = ZetReserveTerug(administratie, reserve, venster);
    administratie.groepen = LeesGroepen(administratie.schijf, administratie.mappen);
    return hersteld;
}

} // namespace plexoran
