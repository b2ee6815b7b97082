#include "platform/accesspijp.h"

#include <utility>

namespace plexoran {
namespace {

constexpr std::size_t getalbreedte = 4;
constexpr std::size_t kopbreedte = 1 + getalbreedte;
constexpr std::size_t hoogsteBericht = std::size_t{16} << 20; // bytes

void VoegGetalToe(std::string& uit, std::size_t getal)
{
    for (unsigned schuif = 0; schuif < 32; schuif += 8)
        uit += static_cast<char>((getal >> schuif) & 0xFFU);
}

void VoegTekstToe(std::string& uit, std::string_view tekst)
{
    VoegGetalToe(uit, tekst.size());
    uit += tekst;
}

std::string Bericht(char soort, std::string_view inhoud)
{
    std::string uit(1, soort);
    VoegTekstToe(uit, inhoud);
    return uit;
}

/// Takes values off the front; each is nothing when there are not bytes enough.
class Afnemer {
  public:
    explicit Afnemer(std::string_view bytes) : rest_(bytes) {}

    std::optional<char> Byte()
    {
        const auto stuk = Stuk(1);
        return stuk ? std::optional(stuk->front()) : std::nullopt;
    }
    std::optional<std::uint32_t> Getal()
    {
        const auto stuk = Stuk(getalbreedte);
        if (!stuk)
            return std::nullopt;
        std::uint32_t getal = 0;
        for (std::size_t i = getalbreedte; i-- > 0;)
            getal = getal << 8U | static_cast<unsigned char>((*stuk)[i]);
        return getal;
    }
    std::optional<std::string_view> Stuk(std::size_t lengte)
    {
        if (rest_.size() < lengte)
            return std::nullopt;
        const auto stuk = rest_.substr(0, lengte);
        rest_.remove_prefix(lengte);
        return stuk;
    }
    std::optional<std::string_view> Bytes()
    {
        const auto lengte = Getal();
        return lengte ? Stuk(*lengte) : std::nullopt;
    }
    [[nodiscard]] bool Op() const { return rest_.empty(); }
    [[nodiscard]] std::size_t Over() const { return rest_.size(); }

  private:
    std::string_view rest_;
};

/// A message that is one number.
std::optional<std::uint32_t> EnkelGetal(std::string_view inhoud)
{
    Afnemer af(inhoud);
    const auto getal = af.Getal();
    return af.Op() ? getal : std::nullopt;
}

} // namespace

std::string SchrijfVraag(const Accessvraag& vraag)
{
    std::string uit;
    VoegTekstToe(uit, vraag.pad);
    VoegTekstToe(uit, vraag.tabel);
    VoegGetalToe(uit, vraag.kolommen.size());
    for (const Accesskolom& kolom : vraag.kolommen) {
        uit += static_cast<char>(kolom.soort);
        VoegTekstToe(uit, kolom.naam);
    }
    return uit;
}

std::optional<Accessvraag> LeesVraag(std::string_view bytes)
{
    Afnemer af(bytes);
    const auto pad = af.Bytes();
    const auto tabel = af.Bytes();
    const auto aantal = af.Getal();
    if (!pad || !tabel || !aantal)
        return std::nullopt;
    Accessvraag vraag{.pad = std::string(*pad), .tabel = Tekst(*tabel), .kolommen = {}};
    for (std::uint32_t kolom = 0; kolom < *aantal; ++kolom) {
        const auto soort = af.Byte();
        const auto naam = af.Bytes();
        if (!naam || *soort < 0 || *soort > static_cast<char>(Accesssoort::Geheel))
            return std::nullopt;
        vraag.kolommen.push_back({Tekst(*naam), static_cast<Accesssoort>(*soort)});
    }
    return af.Op() ? std::optional(std::move(vraag)) : std::nullopt;
}

std::string Tabelbericht(std::uint32_t rijen)
{
    std::string getal;
    VoegGetalToe(getal, rijen);
    return Bericht('T', getal);
}

void VoegRijberichtToe(std::string& uit, const Ruwerij& rij)
{
    std::size_t lengte = rij.size();
    for (const auto& cel : rij)
        lengte += cel ? getalbreedte + cel->size() : 0;
    uit += 'R';
    VoegGetalToe(uit, lengte);
    for (const auto& cel : rij) {
        uit += cel ? '\1' : '\0';
        if (cel)
            VoegTekstToe(uit, *cel);
    }
}

std::string Eindbericht(std::uint32_t rijen)
{
    std::string getal;
    VoegGetalToe(getal, rijen);
    return Bericht('E', getal);
}

std::string Foutbericht(Foutsoort soort, std::string_view reden)
{
    std::string inhoud(1, soort == Foutsoort::Beschadigd ? 'b' : 'g');
    VoegTekstToe(inhoud, reden);
    return Bericht('F', inhoud);
}

bool Antwoordlezer::Neem(std::string_view bytes)
{
    rest_ += bytes;
    Afnemer af(rest_);
    std::size_t verwerkt = 0;
    while (af.Over() >= kopbreedte) {
        const char soort = *af.Byte();
        const std::uint32_t lengte = *af.Getal();
        if (lengte > hoogsteBericht)
            return false;
        const auto inhoud = af.Stuk(lengte);
        if (!inhoud)
            break;
        if (!NeemBericht(soort, *inhoud))
            return false;
        ++berichten_;
        verwerkt = rest_.size() - af.Over();
    }
    rest_.erase(0, verwerkt);
    return !(klaar_ || melding_) || rest_.empty();
}

std::vector<Ruwerij> Antwoordlezer::NeemRijen()
{
    return std::exchange(rijen_, {});
}

bool Antwoordlezer::NeemBericht(char soort, std::string_view inhoud)
{
    if (klaar_ || melding_)
        return false;
    if (soort == 'F') {
        Afnemer af(inhoud);
        const auto letter = af.Byte();
        const auto reden = af.Bytes();
        if (!reden || !af.Op() || (*letter != 'b' && *letter != 'g'))
            return false;
        melding_ = Fout{.soort = *letter == 'b' ? Foutsoort::Beschadigd : Foutsoort::Geweigerd,
                        .bestand = {},
                        .regel = 0,
                        .systeem = std::string(*reden)};
        return true;
    }
    if (soort == 'T' && !geheel_) {
        geheel_ = EnkelGetal(inhoud);
        return geheel_.has_value();
    }
    if (soort == 'R' && geheel_ && gelezen_ < *geheel_)
        return NeemRij(inhoud);
    klaar_ = soort == 'E' && geheel_ && gelezen_ == *geheel_ && EnkelGetal(inhoud) == gelezen_;
    return klaar_;
}

bool Antwoordlezer::NeemRij(std::string_view inhoud)
{
    Afnemer af(inhoud);
    Ruwerij rij;
    rij.reserve(kolommen_);
    for (std::size_t kolom = 0; kolom < kolommen_; ++kolom) {
        const auto gevuld = af.Byte();
        if (!gevuld || (*gevuld != 0 && *gevuld != 1))
            return false;
        if (*gevuld == 0) {
            rij.emplace_back();
            continue;
        }
        const auto tekst = af.Bytes();
        if (!tekst)
            return false;
        rij.emplace_back(*tekst);
    }
    rijen_.push_back(std::move(rij));
    ++gelezen_;
    return af.Op();
}

} // namespace plexoran
