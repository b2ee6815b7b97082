#include "register/geschiedenis.h"

#include <algorithm>
#include <array>

#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

constexpr Tekstblik Achtervoegsel = ".txt";
constexpr Tekstblik Eindregel = "einde";

/// Where files of the suite stand; the first that fits counts.
constexpr std::array<std::pair<Tekstblik, Tekst Mappen::*>, 4> Wortels{
    {{"SPEMAP", &Mappen::SPEMAP},
     {"ZITMAP", &Mappen::ZITMAP},
     {"COMMAP", &Mappen::COMMAP},
     {"RVDMAP", &Mappen::RVDMAP}}};

/// What is on a line behind its word.
std::optional<Tekstblik> Achter(Tekstblik woord, Tekstblik regel)
{
    if (!regel.starts_with(woord) || regel.size() <= woord.size() || regel[woord.size()] != ' ')
        return std::nullopt;
    return regel.substr(woord.size() + 1);
}

Tekst Kopregel(Tekstblik woord, Tekst waarde)
{
    std::replace_if(
        waarde.begin(), waarde.end(), [](char teken) { return teken == '\r' || teken == '\n'; },
        ' ');
    return Tekst(woord) + " " + waarde + "\r\n";
}

/// A sum of bytes of which the disk may have kept only some when the power failed.
Tekst Som(Tekstblik bytes)
{
    constexpr std::uint64_t begin = 14'695'981'039'346'656'037U;
    constexpr std::uint64_t maal = 1'099'511'628'211U;
    std::uint64_t som = begin;
    while (!bytes.empty()) {
        std::uint64_t woord = 0; // eight at once: an import has megabytes
        const std::size_t aantal = bytes.copy(reinterpret_cast<char*>(&woord), sizeof woord);
        som = (som ^ woord) * maal;
        bytes.remove_prefix(aantal);
    }
    return std::to_string(som);
}

/// Reads the entries of a file off it, line by line.
class Lezer {
  public:
    Lezer(Tekstblik inhoud, Tekstblik naam) : rest_(inhoud), naam_(naam) {}

    std::vector<Handeling> Lees()
    {
        while (const auto regel = Volgende()) {
            if (const auto nummer = Achter("handeling", *regel))
                NeemOp({.id = Tekst(naam_) + " " + Tekst(*nummer)});
            else if (const auto bestand = Achter("bestand", *regel)) {
                if (!LeesBestand(regel->data(), *bestand))
                    break;
            } else
                LeesKop(*regel);
        }
        NeemOp({});
        return std::move(uit_);
    }

  private:
    /// A line with its end; one without an end was torn off.
    std::optional<Tekstblik> VolgendeRauw()
    {
        const auto eind = rest_.find('\n');
        if (eind == Tekstblik::npos)
            return std::nullopt;
        const Tekstblik regel = rest_.substr(0, eind + 1);
        rest_.remove_prefix(eind + 1);
        return regel;
    }

    std::optional<Tekstblik> Volgende()
    {
        auto regel = VolgendeRauw();
        if (regel)
            regel = ZonderEind(*regel);
        return regel;
    }

    static Tekstblik ZonderEind(Tekstblik regel)
    {
        return regel.substr(0, regel.size() - (regel.ends_with("\r\n") ? 2 : 1));
    }

    /// What was read counts from its first whole file on. An undoing counts without.
    void NeemOp(Handeling volgende)
    {
        if (!handeling_.wijzigingen.empty() || !handeling_.hoort.empty())
            uit_.push_back(std::move(handeling_));
        handeling_ = std::move(volgende);
    }

    void LeesKop(Tekstblik regel)
    {
        for (const auto& [woord, veld] : std::initializer_list<std::pair<Tekstblik, Tekst*>>{
                 {"tijd", &handeling_.tijd},
                 {"computer", &handeling_.computer},
                 {"gebruiker", &handeling_.gebruiker},
                 {"wat", &handeling_.wat}}) {
            if (const auto waarde = Achter(woord, regel))
                *veld = *waarde;
        }
        for (const auto& [woord, soort] : {std::pair("ongedaan", Handelingsoort::Ongedaan),
                                           std::pair("opnieuw", Handelingsoort::Opnieuw)}) {
            if (const auto id = Achter(woord, regel)) {
                handeling_.soort = soort;
                handeling_.hoort = *id;
            }
        }
    }

    /// False when its end is not there. One with another sum than its bytes is passed over.
    bool LeesBestand(const char* begin, Tekstblik plaats)
    {
        Wijziging uit{.plaats = Tekst(plaats), .voor = Tekst(), .na = Tekst()};
        char vorige = ' ';
        while (const auto regel = VolgendeRauw()) {
            const Tekstblik rest = regel->substr(1);
            if (regel->starts_with(Eindregel)) {
                const auto som = Achter(Eindregel, ZonderEind(*regel));
                const Tekstblik bytes(begin, static_cast<std::size_t>(regel->data() - begin));
                if (!som || *som == Som(bytes))
                    handeling_.wijzigingen.push_back(std::move(uit));
                return true;
            }
            if (regel->starts_with("geen voor"))
                uit.voor.reset();
            else if (regel->starts_with("geen na"))
                uit.na.reset();
            else if (regel->front() == '\\')
                KortIn(uit, vorige);
            else
                Verleng(uit, regel->front(), rest);
            vorige = regel->front();
        }
        return false;
    }

    static void Verleng(Wijziging& uit, char teken, Tekstblik regel)
    {
        if (teken != '+' && uit.voor)
            *uit.voor += regel;
        if (teken != '-' && uit.na)
            *uit.na += regel;
    }

    /// The line before has no end of its own.
    static void KortIn(Wijziging& uit, char teken)
    {
        if (teken != '+' && uit.voor && !uit.voor->empty())
            uit.voor->pop_back();
        if (teken != '-' && uit.na && !uit.na->empty())
            uit.na->pop_back();
    }

    Tekstblik rest_;
    Tekstblik naam_;
    Handeling handeling_;
    std::vector<Handeling> uit_;
};

} // namespace

Pad Wijziging::PadIn(const Mappen& mappen) const
{
    const auto streep = std::min(plaats.find('\\'), plaats.size() - 1);
    for (const auto& [naam, map] : Wortels) {
        if (naam == plaats.substr(0, streep) && !(mappen.*map).empty())
            return Samen(mappen.*map, plaats.substr(streep + 1));
    }
    return {};
}

std::vector<Handeling> HandelingenUit(Tekstblik inhoud, Tekstblik naam)
{
    return Lezer(inhoud, naam).Lees();
}

Geschiedenis::~Geschiedenis()
{
    if (mappen_ != nullptr)
        schijf_.ZetGetuige(nullptr);
}

void Geschiedenis::Open(const Mappen& mappen, Tekst computer, Tekst gebruiker)
{
    mappen_ = &mappen;
    computer_ = std::move(computer);
    gebruiker_ = std::move(gebruiker);
    schijf_.ZetGetuige(this);
}

void Geschiedenis::Begin(const Tekst& wat, Handelingsoort soort, Tekst hoort)
{
    handeling_ = {.wat = wat, .soort = soort, .hoort = std::move(hoort)};
    begonnen_ = genoemd_ = false;
    bezig_ = true;
}

void Geschiedenis::StelUit()
{
    if (!begonnen_)
        uitgesteld_ += handeling_.wat + "; ";
}

void Noteer::Leg() const
{
    if (!geschiedenis_.begonnen_)
        geschiedenis_.Schrijf(geschiedenis_.Kop());
}

void Geschiedenis::Noem(const Tekst& wat)
{
    Tekst& naam = handeling_.wat;
    naam = genoemd_ ? naam + "; " + wat : wat;
    genoemd_ = true;
    if (begonnen_)
        Schrijf(Kopregel("wat", naam));
}

std::optional<Tekst> Geschiedenis::PlaatsVan(const Pad& pad) const
{
    if (mappen_ == nullptr || pad == mappen_->Instellingenbestand())
        return std::nullopt;
    for (const auto& [naam, wortel] : Wortels) {
        const Tekst map = mappen_->*wortel + "\\";
        if (map.size() > 1 && pad.starts_with(map))
            return Samen(naam, pad.substr(map.size()));
    }
    return std::nullopt;
}

Tekst Geschiedenis::Kop() const
{
    Tekst uit = Kopregel("handeling", std::to_string(nummer_ + 1)) +
                Kopregel("tijd", Tijdtekst("yyyy-MM-dd HH:mm:ss")) +
                Kopregel("computer", computer_) + Kopregel("gebruiker", gebruiker_) +
                Kopregel("wat", uitgesteld_ + handeling_.wat);
    if (handeling_.soort != Handelingsoort::Gewoon)
        uit += Kopregel(handeling_.soort == Handelingsoort::Ongedaan ? "ongedaan" : "opnieuw",
                        handeling_.hoort);
    return uit;
}

void Geschiedenis::VoorVervanging(const Pad& pad, std::optional<Tekstblik> nieuw)
{
    const auto plaats = PlaatsVan(pad);
    if (!plaats)
        return;
    const auto oud = AlsErIs(schijf_.LeesBestand(pad));
    if (!oud) {
        fout_ = oud.error();
        return;
    }
    const bool spelers = pad == mappen_->Spelerbestand();
    const Tekst verschil =
        Regelverschil(oud->value_or(Tekst()), nieuw.value_or(Tekstblik()), !spelers);
    if (verschil.empty() && oud->has_value() == nieuw.has_value())
        return;
    const bool los = !bezig_;
    if (los)
        Begin(Wijziging{*plaats, {}, {}}.Naam() + " gewijzigd", Handelingsoort::Gewoon, {});
    Tekst regels = begonnen_ ? Tekst() : Kop();
    const std::size_t begin = regels.size();
    regels += Kopregel("bestand", *plaats);
    if (!*oud)
        regels += "geen voor\r\n";
    if (!nieuw)
        regels += "geen na\r\n";
    regels += verschil;
    regels += Kopregel(Eindregel, Som(Tekstblik(regels).substr(begin)));
    Schrijf(regels);
    bezig_ = !los;
}

/// Kept even when the power fails right after it. What could not be written whole is passed over
/// when the file is read; what comes after it goes to another file.
void Geschiedenis::Schrijf(Tekstblik regels)
{
    auto geschreven = schrijver_ ? Uitkomst<void>() : OpenBestand();
    geschreven = geschreven.and_then([&] { return schrijver_->Schrijf(regels); }).and_then([&] {
        return schrijver_->Sync();
    });
    if (!geschreven) {
        fout_ = geschreven.error();
        schrijver_.reset();
        return;
    }
    nummer_ += begonnen_ ? 0 : 1;
    begonnen_ = bezig_;
    uitgesteld_.clear();
}

Uitkomst<void> Geschiedenis::OpenBestand()
{
    const Pad map = mappen_->Geschiedenismap();
    const Pad basis = Samen(map, Tijdtekst("yyyy-MM-dd HHmmss ") + AlsBestandsnaam(computer_));
    Pad pad = basis + Tekst(Achtervoegsel);
    return schijf_.MaakMap(map)
        .and_then([&] { return schijf_.SyncMapVan(map); })
        .and_then([&]() -> Uitkomst<void> {
            constexpr int meeste = 100;
            for (int nummer = 2;; ++nummer) {
                auto nieuw = schijf_.MaakNieuw(pad);
                if (nieuw) {
                    schrijver_ = std::move(*nieuw);
                    begonnen_ = false;
                    RuimOp();
                    return schijf_.SyncMapVan(pad);
                }
                const auto soort = schijf_.Soort(pad);
                if (!soort || *soort == Padsoort::Niets || nummer > meeste)
                    return Mislukt(nieuw);
                pad = basis + "_" + std::to_string(nummer) + Tekst(Achtervoegsel);
            }
        });
}

void Geschiedenis::RuimOp() const
{
    constexpr std::int64_t dag = 86'400'000'000'000;
    constexpr std::uint64_t meesteBytes = std::uint64_t{200} << 20U;
    const Pad map = mappen_->Geschiedenismap();
    const Tekst oudste = Tijdtekst("yyyy-MM-dd", Nu() - 400 * dag);
    auto namen = schijf_.Bestanden(map).value_or(std::vector<Tekst>());
    std::sort(namen.begin(), namen.end(), std::greater());
    std::uint64_t bytes = 0;
    for (const Tekst& naam : namen) {
        const Pad pad = Samen(map, naam);
        const auto stempel = schijf_.NeemStempel(pad);
        bytes += stempel ? stempel->grootte : 0;
        const bool eigen = naam.ends_with(Achtervoegsel) && AlsGetal(naam.substr(0, 4), 4);
        if (eigen && (naam < oudste || bytes > meesteBytes))
            static_cast<void>(schijf_.Verwijder(pad)); // or at the next start
    }
}

std::optional<Fout> Geschiedenis::NeemFout()
{
    if (!fout_ || gemeld_)
        return std::nullopt;
    gemeld_ = true;
    return fout_;
}

} // namespace plexoran
