#include "federation/samenvoegen.h"

#include <optional>
#include <unordered_map>

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

/// The number of every line, without outer blanks.
std::vector<Tekstblik> Nummers(const Tekstlijst& lstN1)
{
    std::vector<Tekstblik> nummers;
    nummers.reserve(lstN1.size());
    for (const Tekstblik regel : lstN1)
        nummers.push_back(ZonderSpaties(Veld(SplitsImportregel(regel), Importveld::NBBnr)));
    return nummers;
}

/// A file with many texts there that no number comes near holds something else.
bool ZijnTeGroot(const std::vector<Tekstblik>& nummers)
{
    constexpr std::size_t meeste = 65536;
    std::size_t samen = 0;
    for (const Tekstblik nummer : nummers)
        samen += nummer.size() > NBBnrIndex::Langste ? nummer.size() : 0;
    return samen > meeste;
}

/// One merge. It decides first what happens to every line and changes the register only then, so
/// that stopping half-way changes nothing.
class Samenvoeger {
  public:
    Samenvoeger(Register& spelers, const Samenvoegopdracht& opdracht, const Voortgang& voortgang,
                std::vector<Tekstblik> nummers)
        : spelers_(spelers), opdracht_(opdracht), voortgang_(voortgang),
          nummers_(std::move(nummers)), vragen_(Vragen(nummers_)), NBBnrIndex_(vragen_)
    {
        BouwNBBnrIndex();
    }

    [[nodiscard]] std::optional<Samenvoegfout> Beslis();
    void Voer();

    Samenvoeging uitkomst;

  private:
    struct Verversing {
        std::size_t regel; ///< place in lstN1
        int rij;
    };

    static std::vector<Tekst> Vragen(const std::vector<Tekstblik>& nummers);

    void BouwNBBnrIndex();
    [[nodiscard]] int ZoekRij(std::size_t regel) const;
    [[nodiscard]] bool KiesVerversingen();
    [[nodiscard]] bool KiesNieuwe();
    void Ververs(int rij, const Importvelden& velden);
    void VoegLidToe(const Importvelden& velden);
    [[nodiscard]] bool GaVerder()
    {
        return ++gedaan_ % MeldElke != 0 || !voortgang_ ||
               voortgang_(gedaan_, 2 * opdracht_.lstN1.size());
    }

    Register& spelers_;
    const Samenvoegopdracht& opdracht_;
    const Voortgang& voortgang_;
    std::vector<Tekstblik> nummers_; ///< of every line, without outer blanks
    std::vector<Tekst> vragen_;      ///< the numbers as the index writes them
    Tekst NBBgr_ = Hoofdletters(opdracht_.subgroep);
    NBBnrIndex NBBnrIndex_;
    std::unordered_map<Tekstblik, int> eersteRij_; ///< of the group, with each number as text
    std::vector<Verversing> verversingen_;
    std::vector<std::size_t> lstN2_; ///< places in lstN1 of what is to be added
    std::size_t gedaan_ = 0;
};

std::vector<Tekst> Samenvoeger::Vragen(const std::vector<Tekstblik>& nummers)
{
    std::vector<Tekst> vragen;
    vragen.reserve(nummers.size());
    for (const Tekstblik nummer : nummers)
        vragen.push_back(OpgemaaktNBBnr(nummer));
    return vragen;
}

void Samenvoeger::BouwNBBnrIndex()
{
    const Spelertabel& tabel = spelers_.tabel;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) != opdracht_.importgroep)
            continue;
        const Tekstblik nummer = tabel.Cel(rij, Kolom::NBBnr);
        NBBnrIndex_.Voeg(OpgemaaktNBBnr(nummer));
        eersteRij_.try_emplace(nummer, rij);
    }
}

/// The first row of the group whose number is, to the letter, the one of this line; 0: none.
int Samenvoeger::ZoekRij(std::size_t regel) const
{
    const auto plek = eersteRij_.find(nummers_[regel]);
    return plek != eersteRij_.end() && NBBnrIndex_.Bevat(vragen_[regel]) ? plek->second : 0;
}

std::optional<Samenvoegfout> Samenvoeger::Beslis()
{
    if (!KiesVerversingen() || !KiesNieuwe())
        return Samenvoegfout::Gestopt;
    if (!ZijnErSleutels(spelers_, lstN2_.size()))
        return Samenvoegfout::GeenSleutels;
    return std::nullopt;
}

/// What has a row of its own number is refreshed; the rest that has a number is left for adding.
bool Samenvoeger::KiesVerversingen()
{
    for (std::size_t i = 0; i < nummers_.size(); ++i) {
        if (nummers_[i].empty()) {
            uitkomst.ZonderNBBnr.append(opdracht_.lstN1[i]).append("\r\n");
        } else {
            const int rij = ZoekRij(i);
            if (rij == 0)
                lstN2_.push_back(i);
            else
                verversingen_.push_back({i, rij});
        }
        if (!GaVerder())
            return false;
    }
    return true;
}

/// Of what is left, all whose number does not occur yet; every one of them makes it occur.
bool Samenvoeger::KiesNieuwe()
{
    std::size_t over = 0;
    for (const std::size_t i : lstN2_) {
        if (NBBnrIndex_.Bevat(vragen_[i])) {
            uitkomst.overgeslagen.VoegToe(opdracht_.lstN1[i]);
        } else {
            NBBnrIndex_.Voeg(vragen_[i]);
            lstN2_[over++] = i;
        }
        if (!GaVerder())
            return false;
    }
    lstN2_.resize(over);
    return true;
}

void Samenvoeger::Voer()
{
    for (const auto& [regel, rij] : verversingen_)
        Ververs(rij, SplitsImportregel(opdracht_.lstN1[regel]));
    for (const std::size_t regel : lstN2_)
        VoegLidToe(SplitsImportregel(opdracht_.lstN1[regel]));
    uitkomst.AantalVerververst = verversingen_.size();
    uitkomst.AantalNieuw = lstN2_.size();
}

/// The fields as they stand: one that was not asked for is empty and empties the cell.
void Samenvoeger::Ververs(int rij, const Importvelden& velden)
{
    std::array<Celtekst, Herkomst.size() + 1> cellen;
    for (std::size_t i = 0; i < Herkomst.size(); ++i)
        cellen[i] = {Herkomst[i].first, Veld(velden, Herkomst[i].second)};
    cellen.back() = {Kolom::NBBgr, NBBgr_};
    spelers_.tabel.ZetCellen(rij, cellen);
}

void Samenvoeger::VoegLidToe(const Importvelden& velden)
{
    const Tekst nr = std::to_string(spelers_.tabel.Rijen() + 1);
    const Tekst key = std::to_string(NieuweSleutel(spelers_).value());
    Rijblikken cellen;
    cellen[Plaats(Kolom::Nr)] = nr;
    cellen[Plaats(Kolom::Key)] = key;
    cellen[Plaats(Kolom::Groep)] = opdracht_.importgroep;
    for (const auto& [kolom, veld] : Herkomst)
        cellen[Plaats(kolom)] = ZonderSpaties(Veld(velden, veld));
    cellen[Plaats(Kolom::NBBgr)] = NBBgr_;
    cellen[Plaats(Kolom::NBBnr)] = ZonderSpaties(Veld(velden, Importveld::NBBnr));
    spelers_.tabel.VoegRijToe(cellen);
}

} // namespace

tl::expected<Samenvoeging, Samenvoegfout>
VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht, const Voortgang& voortgang)
{
    auto nummers = Nummers(opdracht.lstN1);
    if (ZijnTeGroot(nummers))
        return tl::unexpected(Samenvoegfout::TeGroot);
    Samenvoeger samenvoeger(spelers, opdracht, voortgang, std::move(nummers));
    if (const auto fout = samenvoeger.Beslis())
        return tl::unexpected(*fout);
    samenvoeger.Voer();
    return std::move(samenvoeger.uitkomst);
}

} // namespace plexoran
