#include "exchange/spelerslijst.h"

#include <algorithm>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr Tekstblik Utf8merk = "\xEF\xBB\xBF";

bool IsVanSet(Tekstblik regel)
{
    const auto isHoog = [](char teken) { return (teken & 0x80) != 0; };
    return std::ranges::none_of(regel, isHoog) || IsUtf8(regel);
}

/// A text that is UTF-8 but for some lines is just that: by these it is refused.
Lijsttekenset TekensetVan(Tekstblik bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return Lijsttekenset::Utf16;
    if (bytes.starts_with(Utf8merk))
        return Lijsttekenset::Utf8;
    std::ptrdiff_t meer = 0;
    for (const Tekstblik regel : Regels(bytes))
        meer += IsUtf8(regel) ? 1 : IsVanSet(regel) ? 0 : -1;
    return meer > 0 ? Lijsttekenset::Utf8 : Lijsttekenset::Windows1252;
}

std::u16string Utf16Van(Tekstblik bytes)
{
    const std::size_t hoog = bytes.starts_with("\xFE\xFF") ? 0 : 1;
    if (hoog == 0 || bytes.starts_with("\xFF\xFE"))
        bytes.remove_prefix(2);
    const auto byte = [&](std::size_t plek) { return static_cast<unsigned char>(bytes[plek]); };
    std::u16string uit(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < uit.size(); ++i)
        uit[i] = static_cast<char16_t>(byte(2 * i + hoog) * 256 + byte(2 * i + 1 - hoog));
    return uit;
}

/// The length of the line end that stands there; 0 for another character.
template <class Blik> std::size_t Eindelengte(Blik tekst, std::size_t plek)
{
    if (plek < tekst.size() && tekst[plek] == '\r')
        return plek + 1 < tekst.size() && tekst[plek + 1] == '\n' ? 2 : 1;
    return plek < tekst.size() && tekst[plek] == '\n' ? 1 : 0;
}

int Regeleinden(Tekstblik tekst)
{
    int aantal = 0;
    for (std::size_t i = 0; i < tekst.size(); i += std::max<std::size_t>(Eindelengte(tekst, i), 1))
        aantal += Eindelengte(tekst, i) > 0 ? 1 : 0;
    return aantal;
}

/// Line by line, so that what is left out of a text takes no room. The line that `zet` refuses; 0
/// when there is none.
template <class Blik, class Zet> int ZetOm(Blik bron, Lijsttekst& uit, const Zet& zet)
{
    for (int regel = 1; !bron.empty(); ++regel) {
        std::size_t lengte = 0;
        while (lengte < bron.size() && Eindelengte(bron, lengte) == 0)
            ++lengte;
        lengte += Eindelengte(bron, lengte);
        const std::optional<Omzetting> deel = zet(bron.substr(0, lengte));
        if (!deel)
            return regel;
        uit.tekst += deel->tekst;
        uit.vervangen += deel->vervangen.size();
        if (!deel->vervangen.empty() && !uit.eerste) {
            uit.eerste = deel->vervangen.front();
            uit.regel = regel;
        }
        bron.remove_prefix(lengte);
    }
    return 0;
}

} // namespace

Lijstuitkomst<Lijsttekst> Lijsttekstvan(Tekstblik bytes, std::optional<Lijsttekenset> tekenset)
{
    Lijsttekst uit{.tekenset = tekenset.value_or(TekensetVan(bytes))};
    if (bytes.starts_with(Utf8merk))
        bytes.remove_prefix(Utf8merk.size());
    int fout = 0;
    if (uit.tekenset == Lijsttekenset::Windows1252)
        uit.tekst = bytes;
    else if (uit.tekenset == Lijsttekenset::Utf16)
        fout = ZetOm(std::u16string_view(Utf16Van(bytes)), uit, [](std::u16string_view regel) {
            return std::optional(NaarCodepagina(regel));
        });
    else
        fout = ZetOm(bytes, uit, [](Tekstblik regel) {
            return IsVanSet(regel) ? std::optional(Utf8NaarCodepagina(regel)) : std::nullopt;
        });
    if (fout > 0)
        return tl::unexpected(Lijstfout{Lijstbezwaar::Lijsttekenset, fout});
    if (uit.tekst.find('\0') != Tekst::npos)
        return tl::unexpected(Lijstfout{Lijstbezwaar::GeenTekst});
    return uit;
}

Tekstblik Spelerslijst::Cel(std::size_t rij, std::size_t kolom) const
{
    if (kolom >= Cellen(rij))
        return {};
    const std::size_t cel = rijen_[rij].eerste + kolom;
    const std::uint32_t begin = cel == 0 ? 0 : einden_[cel - 1];
    return Tekstblik(tekst_).substr(begin, einden_[cel] - begin);
}

class Lijstontleder {
  public:
    Lijstontleder(Tekstblik tekst, const Lijstvorm& vorm) : tekst_(tekst), vorm_(vorm) {}

    /// Up to so many rows, as far as they can be read.
    std::optional<Lijstfout> Lees(std::size_t hoogstens, const Voortgang& voortgang)
    {
        constexpr std::size_t elkeZoveel = 4096;
        for (std::size_t i = 1; plek_ < tekst_.size() && lijst.Rijen() < hoogstens; ++i) {
            const std::size_t cellen = lijst.einden_.size();
            if (const auto fout = LeesRij()) {
                lijst.einden_.resize(cellen);
                return fout;
            }
            if (i % elkeZoveel == 0 && voortgang && !voortgang(plek_, tekst_.size()))
                return Lijstfout{Lijstbezwaar::Gestopt};
        }
        return std::nullopt;
    }
    Spelerslijst lijst;

  private:
    std::optional<Lijstfout> LeesRij();
    bool LeesAangehaald();
    [[nodiscard]] std::size_t Einde() const
    {
        const char teken = tekst_[plek_];
        if (teken != '\r' && teken != '\n')
            return 0; // as a rule
        if (vorm_.regeleinde.empty())
            return Eindelengte(tekst_, plek_);
        return tekst_.substr(plek_).starts_with(vorm_.regeleinde) ? vorm_.regeleinde.size() : 0;
    }

    Tekstblik tekst_;
    Lijstvorm vorm_;
    std::size_t plek_ = 0;
    int regel_ = 1;
};

/// False when it is not closed. What follows a closing quote belongs to the cell.
bool Lijstontleder::LeesAangehaald()
{
    for (++plek_;; ++plek_) {
        const std::size_t eind = tekst_.find(vorm_.aanhaling, plek_);
        if (eind == Tekstblik::npos)
            return false;
        lijst.tekst_ += tekst_.substr(plek_, eind - plek_);
        plek_ = eind + 1;
        if (plek_ == tekst_.size() || tekst_[plek_] != vorm_.aanhaling)
            return true;
        lijst.tekst_ += vorm_.aanhaling;
    }
}

std::optional<Lijstfout> Lijstontleder::LeesRij()
{
    const std::size_t begin = plek_;
    const std::size_t van = lijst.tekst_.size();
    const std::size_t eerste = lijst.einden_.size();
    for (std::size_t einde = 0; einde == 0;) {
        const std::size_t open = plek_;
        if (vorm_.aanhaling != 0 && plek_ < tekst_.size() && tekst_[plek_] == vorm_.aanhaling &&
            !LeesAangehaald())
            return Lijstfout{Lijstbezwaar::Aanhaling,
                             regel_ + Regeleinden(tekst_.substr(begin, open - begin))};
        const std::size_t kaal = plek_;
        while (plek_ < tekst_.size() && tekst_[plek_] != vorm_.scheiding && (einde = Einde()) == 0)
            ++plek_;
        lijst.tekst_ += tekst_.substr(kaal, plek_ - kaal);
        lijst.einden_.push_back(static_cast<std::uint32_t>(lijst.tekst_.size()));
        if (lijst.einden_.size() - eerste > MeesteLijstkolommen)
            return Lijstfout{Lijstbezwaar::TeBreed, regel_};
        if (plek_ == tekst_.size())
            break;
        plek_ += std::max<std::size_t>(einde, 1);
    }
    if (IsBlanco(Tekstblik(lijst.tekst_).substr(van))) {
        lijst.tekst_.resize(van);
        lijst.einden_.resize(eerste);
    } else
        lijst.rijen_.push_back({static_cast<std::uint32_t>(eerste), regel_});
    regel_ += Regeleinden(tekst_.substr(begin, plek_ - begin));
    return std::nullopt;
}

/// How well the first rows agree on there being more than one column.
static std::size_t Eenheid(Tekstblik proef, const Lijstvorm& vorm)
{
    constexpr std::size_t genoeg = 20;
    constexpr std::size_t zwaar = 1000;
    Lijstontleder ontleder(proef, vorm);
    (void)ontleder.Lees(genoeg, {});
    const Spelerslijst& lijst = ontleder.lijst;
    std::size_t gelijk = 0;
    for (std::size_t rij = 0; rij < lijst.Rijen(); ++rij)
        gelijk += lijst.Cellen(rij) == lijst.Kolommen() ? zwaar : 0;
    return lijst.Kolommen() < 2 ? 0 : gelijk / lijst.Rijen() + lijst.Kolommen();
}

Lijstvorm HerkenVorm(Tekstblik tekst)
{
    constexpr std::size_t genoeg = 65536;
    const Tekstblik proef = tekst.substr(0, genoeg);
    Lijstvorm vorm;
    if (proef.starts_with('\'') && proef.find('"') == Tekstblik::npos)
        vorm.aanhaling = '\'';
    for (std::size_t i = 0, lengte = 0; i < tekst.size(); i += std::max<std::size_t>(lengte, 1)) {
        lengte = Eindelengte(tekst, i);
        if (lengte > 0 && !vorm.regeleinde.empty() && vorm.regeleinde != tekst.substr(i, lengte)) {
            vorm.regeleinde.clear();
            break;
        }
        if (lengte > 0)
            vorm.regeleinde = tekst.substr(i, lengte);
    }
    std::size_t beste = 0;
    for (const char scheiding : Tekstblik(";,\t|")) {
        Lijstvorm keus = vorm;
        keus.scheiding = scheiding;
        if (const std::size_t eenheid = Eenheid(proef, keus); eenheid > beste) {
            beste = eenheid;
            vorm.scheiding = scheiding;
        }
    }
    return vorm;
}

Lijstuitkomst<Spelerslijst> LeesSpelerslijst(Tekstblik tekst, const Lijstvorm& vorm,
                                             const Voortgang& voortgang)
{
    Lijstontleder ontleder(tekst, vorm);
    if (const auto fout = ontleder.Lees(MeesteLijstrijen + 1, voortgang))
        return tl::unexpected(*fout);
    if (const std::size_t rijen = ontleder.lijst.Rijen(); rijen == 0 || rijen > MeesteLijstrijen)
        return tl::unexpected(Lijstfout{rijen == 0 ? Lijstbezwaar::Leeg : Lijstbezwaar::TeLang});
    return std::move(ontleder.lijst);
}

} // namespace plexoran
