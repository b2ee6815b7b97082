#include "federation/samenvoegen.h"

#include <bit>
#include <functional>
#include <optional>

#include "federation/nbbnrindex.h"

namespace plexoran {
namespace {

constexpr std::size_t MeldElke = 2048; // lines between two reports

/// The columns that an import line fills, rising, and from which of its fields.
constexpr std::array<std::pair<Kolom, Importveld>, 10> Herkomst{{
    {Kolom::Voornaam, Importveld::Voornaam},
    {Kolom::Tusv, Importveld::Tusv},
    {Kolom::Achternaam, Importveld::Achternaam},
    {Kolom::Telef, Importveld::Telef},
    {Kolom::Email, Importveld::Email},
    {Kolom::Adres, Importveld::Adres},
    {Kolom::Postc, Importveld::Postc},
    {Kolom::Plaats, Importveld::Plaats},
    {Kolom::Land, Importveld::Land},
    {Kolom::MV, Importveld::MV},
}};

Tekstblik Veld(const Importvelden& velden, Importveld veld)
{
    return velden[static_cast<std::size_t>(veld)];
}

Tekstblik NummerVan(Tekstblik regel)
{
    return ZonderSpaties(Veld(SplitsImportregel(regel), Importveld::NBBnr));
}

/// The first row with each number, as text. Rows in one block beside their hashes: a node for each
/// would be somewhere else in memory for every member that is looked up.
class RijMetNummer {
  public:
    explicit RijMetNummer(const Spelertabel& tabel)
        : tabel_(tabel), vakken_(std::bit_ceil(2 * (static_cast<std::size_t>(tabel.Rijen()) + 1)))
    {}

    void Voeg(int rij)
    {
        const Tekstblik nummer = tabel_.Cel(rij, Kolom::NBBnr);
        Vak& vak = vakken_[VakVan(nummer)];
        if (vak.rij == 0)
            vak = {Kenmerk(nummer), rij};
    }

    /// 0 when there is none.
    [[nodiscard]] int Zoek(Tekstblik nummer) const { return vakken_[VakVan(nummer)].rij; }

  private:
    struct Vak {
        std::uint32_t kenmerk = 0;
        int rij = 0;
    };

    static std::uint32_t Kenmerk(Tekstblik nummer)
    {
        return static_cast<std::uint32_t>(std::hash<Tekstblik>()(nummer));
    }

    /// Where the number stands or would come; at least half of them are free.
    [[nodiscard]] std::size_t VakVan(Tekstblik nummer) const
    {
        const std::uint32_t kenmerk = Kenmerk(nummer);
        std::size_t plaats = kenmerk & (vakken_.size() - 1);
        while (vakken_[plaats].rij != 0 &&
               (vakken_[plaats].kenmerk != kenmerk ||
                tabel_.Cel(vakken_[plaats].rij, Kolom::NBBnr) != nummer))
            plaats = (plaats + 1) & (vakken_.size() - 1);
        return plaats;
    }

    const Spelertabel& tabel_;
    std::vector<Vak> vakken_;
};

/// One merge. It works on a copy of the register, so that stopping half-way changes nothing and
/// the views into the original hold until the end.
class Samenvoeger {
  public:
    Samenvoeger(const Register& oud, const Samenvoegopdracht& opdracht, const Voortgang& voortgang)
        : oud_(oud.tabel), opdracht_(opdracht), voortgang_(voortgang), nieuw_(oud),
          NBBgr_(Hoofdletters(opdracht.subgroep)), NBBnrIndex_(Vragen(opdracht.lstN1)),
          rijMetNummer_(oud.tabel)
    {
        BouwNBBnrIndex();
    }

    [[nodiscard]] std::optional<Samenvoegfout> Voer()
    {
        if (!VerversBestaande())
            return Samenvoegfout::Gestopt;
        return VoegNieuweToe();
    }

    Samenvoeging uitkomst;
    [[nodiscard]] Register& Nieuw() { return nieuw_; }

  private:
    /// The formatted number of every line.
    static std::vector<Tekst> Vragen(const std::vector<Tekst>& lstN1)
    {
        std::vector<Tekst> vragen;
        vragen.reserve(lstN1.size());
        for (const Tekst& regel : lstN1)
            vragen.push_back(OpgemaaktNBBnr(NummerVan(regel)));
        return vragen;
    }

    void BouwNBBnrIndex();
    [[nodiscard]] bool VerversBestaande();
    void Ververs(int rij, const Importvelden& velden);
    [[nodiscard]] std::optional<Samenvoegfout> VoegNieuweToe();
    [[nodiscard]] bool VoegLidToe(const Importvelden& velden);
    [[nodiscard]] bool GaVerder()
    {
        return ++gedaan_ % MeldElke != 0 || !voortgang_ ||
               voortgang_(gedaan_, 2 * opdracht_.lstN1.size());
    }

    const Spelertabel& oud_;
    const Samenvoegopdracht& opdracht_;
    const Voortgang& voortgang_;
    Register nieuw_;
    Tekst NBBgr_;
    NBBnrIndex NBBnrIndex_;
    RijMetNummer rijMetNummer_;
    std::vector<std::size_t> lstN2_; ///< places in lstN1 of what is left
    std::size_t gedaan_ = 0;
};

void Samenvoeger::BouwNBBnrIndex()
{
    for (int rij = 1; rij <= oud_.Rijen(); ++rij) {
        if (oud_.Cel(rij, Kolom::Groep) != opdracht_.importgroep)
            continue;
        const Tekstblik nummer = oud_.Cel(rij, Kolom::NBBnr);
        NBBnrIndex_.Voeg(OpgemaaktNBBnr(nummer));
        if (!nummer.empty())
            rijMetNummer_.Voeg(rij);
    }
}

/// Refreshes what has a row of its own number; the rest that has a number stays for adding.
bool Samenvoeger::VerversBestaande()
{
    for (std::size_t i = 0; i < opdracht_.lstN1.size(); ++i) {
        const Tekst& regel = opdracht_.lstN1[i];
        const Importvelden velden = SplitsImportregel(regel);
        const Tekstblik nummer = ZonderSpaties(Veld(velden, Importveld::NBBnr));
        if (nummer.empty()) {
            uitkomst.ZonderNBBnr += regel + "\r\n";
        } else {
            const int rij = NBBnrIndex_.Bevat(i) ? rijMetNummer_.Zoek(nummer) : 0;
            if (rij == 0)
                lstN2_.push_back(i);
            else
                Ververs(rij, velden);
        }
        if (!GaVerder())
            return false;
    }
    return true;
}

/// The fields as they stand: one that was not asked for is empty and empties the cell.
void Samenvoeger::Ververs(int rij, const Importvelden& velden)
{
    std::array<Celtekst, Herkomst.size() + 1> cellen;
    for (std::size_t i = 0; i < Herkomst.size(); ++i)
        cellen[i] = {Herkomst[i].first, Veld(velden, Herkomst[i].second)};
    cellen.back() = {Kolom::NBBgr, NBBgr_};
    nieuw_.tabel.ZetCellen(rij, cellen);
    ++uitkomst.AantalVerververst;
}

std::optional<Samenvoegfout> Samenvoeger::VoegNieuweToe()
{
    for (const std::size_t i : lstN2_) {
        const Tekst& regel = opdracht_.lstN1[i];
        if (NBBnrIndex_.Bevat(i))
            uitkomst.overgeslagen.push_back(regel);
        else if (!VoegLidToe(SplitsImportregel(regel)))
            return Samenvoegfout::GeenSleutels;
        if (!GaVerder())
            return Samenvoegfout::Gestopt;
    }
    return std::nullopt;
}

/// False when the keys have run out.
bool Samenvoeger::VoegLidToe(const Importvelden& velden)
{
    const auto sleutel = NieuweSleutel(nieuw_);
    if (!sleutel)
        return false;
    Rijvelden cellen;
    cellen[Plaats(Kolom::Nr)] = std::to_string(nieuw_.tabel.Rijen() + 1);
    cellen[Plaats(Kolom::Key)] = std::to_string(*sleutel);
    cellen[Plaats(Kolom::Groep)] = opdracht_.importgroep;
    for (const auto& [kolom, veld] : Herkomst)
        cellen[Plaats(kolom)] = ZonderSpaties(Veld(velden, veld));
    cellen[Plaats(Kolom::NBBgr)] = NBBgr_;
    const Tekstblik nummer = ZonderSpaties(Veld(velden, Importveld::NBBnr));
    cellen[Plaats(Kolom::NBBnr)] = nummer;
    nieuw_.tabel.VoegToe(cellen);
    NBBnrIndex_.Voeg(OpgemaaktNBBnr(nummer));
    ++uitkomst.AantalNieuw;
    return true;
}

} // namespace

tl::expected<Samenvoeging, Samenvoegfout>
VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht, const Voortgang& voortgang)
{
    Samenvoeger samenvoeger(spelers, opdracht, voortgang);
    if (const auto fout = samenvoeger.Voer())
        return tl::unexpected(*fout);
    spelers = std::move(samenvoeger.Nieuw());
    return std::move(samenvoeger.uitkomst);
}

} // namespace plexoran
