#include "federation/samenvoegen.h"

#include "platform/tekst/tekst.h"

namespace plexoran {
namespace {

constexpr std::size_t MeldElke = 2048; // lines between two reports

/// The columns that an import line fills, rising, and from which of its fields.
constexpr std::array<std::pair<Kolom, std::size_t>, 10> Herkomst{{
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

Tekstblik Nummer(const Importvelden& velden)
{
    return ZonderSpaties(velden[Importveld::NBBnr]);
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
          nummers_(std::move(nummers)), NBBnrIndex_(nummers_)
    {
        BouwNBBnrIndex();
    }

    /// What has a row of its own number is to be refreshed; the rest that has a number is left for
    /// adding. False when the user stops it, here and below.
    [[nodiscard]] bool VerversBestaande()
    {
        for (std::size_t i = 0; i < nummers_.size(); ++i) {
            const auto gelijke = eersteRij_.find(nummers_[i]);
            if (nummers_[i].empty())
                uitkomst.ZonderNBBnr.append(opdracht_.lstN1[i]).append("\r\n");
            else if (gelijke != eersteRij_.end()) // whose number is in the index as well
                verversingen_.emplace_back(i, gelijke->second);
            else
                lstN2_.push_back(i);
            if (!GaVerder())
                return false;
        }
        return true;
    }

    /// Of what is left, all whose number does not occur yet; every one of them makes it occur.
    [[nodiscard]] bool VoegNieuweToe()
    {
        std::size_t over = 0;
        for (const std::size_t i : lstN2_) {
            if (NBBnrIndex_.Bevat(i)) {
                uitkomst.overgeslagen.push_back(opdracht_.lstN1[i]);
            } else {
                NBBnrIndex_.Voeg(nummers_[i]);
                lstN2_[over++] = i;
            }
            if (!GaVerder())
                return false;
        }
        lstN2_.resize(over);
        uitkomst.AantalNieuw = over;
        return true;
    }

    /// Changes the register as the steps above decided.
    void Voer()
    {
        for (const auto& [regel, rij] : verversingen_)
            Ververs(rij, SplitsImportregel(opdracht_.lstN1[regel]));
        for (const std::size_t regel : lstN2_)
            VoegSpelerToe(SplitsImportregel(opdracht_.lstN1[regel]));
        uitkomst.AantalVerververst = verversingen_.size();
    }

    Samenvoeging uitkomst;

  private:
    /// The numbers of the import group, and where each stands first.
    void BouwNBBnrIndex()
    {
        const Spelertabel& tabel = spelers_.tabel;
        eersteRij_.reserve(static_cast<std::size_t>(tabel.Rijen()));
        for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
            if (tabel.Cel(rij, Kolom::Groep) != opdracht_.importgroep)
                continue;
            const Tekstblik nummer = tabel.Cel(rij, Kolom::NBBnr);
            NBBnrIndex_.Voeg(nummer);
            eersteRij_.try_emplace(nummer, rij);
        }
    }

    [[nodiscard]] bool GaVerder()
    {
        return ++gedaan_ % MeldElke != 0 || !voortgang_ ||
               voortgang_(gedaan_, 2 * opdracht_.lstN1.size());
    }

    /// The fields as they stand: one that was not asked for is empty and empties the cell.
    void Ververs(int rij, const Importvelden& velden)
    {
        std::array<Celtekst, Herkomst.size() + 1> cellen;
        for (std::size_t i = 0; i < Herkomst.size(); ++i)
            cellen[i] = {Herkomst[i].first, velden[Herkomst[i].second]};
        cellen.back() = {Kolom::NBBgr, NBBgr_};
        spelers_.tabel.ZetCellen(rij, cellen);
    }

    void VoegSpelerToe(const Importvelden& velden)
    {
        const Tekst nr = std::to_string(spelers_.tabel.Rijen() + 1);
        const Tekst key = std::to_string(NieuweSleutel(spelers_).value());
        Rijblikken cellen;
        cellen[Index(Kolom::Nr)] = nr;
        cellen[Index(Kolom::Key)] = key;
        cellen[Index(Kolom::Groep)] = opdracht_.importgroep;
        for (const auto& [kolom, veld] : Herkomst)
            cellen[Index(kolom)] = ZonderSpaties(velden[veld]);
        cellen[Index(Kolom::NBBgr)] = NBBgr_;
        cellen[Index(Kolom::NBBnr)] = Nummer(velden);
        spelers_.tabel.VoegToe(cellen);
    }

    Register& spelers_;
    const Samenvoegopdracht& opdracht_;
    const Voortgang& voortgang_;
    std::vector<Tekstblik> nummers_; ///< of every line, without outer blanks
    Tekst NBBgr_ = Hoofdletters(opdracht_.subgroep);
    NBBnrIndex NBBnrIndex_;
    std::unordered_map<Tekstblik, int> eersteRij_; ///< of the group, with each number as text
    std::vector<std::pair<std::size_t, int>> verversingen_; ///< element of lstN1, and row
    std::vector<std::size_t> lstN2_;                        ///< elements of lstN1 to be added
    std::size_t gedaan_ = 0;
};

} // namespace

tl::expected<Samenvoeging, Samenvoegfout>
VoegLedenSamen(Register& spelers, const Samenvoegopdracht& opdracht, const Voortgang& voortgang)
{
    std::vector<Tekstblik> nummers;
    nummers.reserve(opdracht.lstN1.size());
    for (const Tekstblik regel : opdracht.lstN1)
        nummers.push_back(Nummer(SplitsImportregel(regel)));
    if (ZijnTeGroot(nummers))
        return tl::unexpected(Samenvoegfout::TeGroot);
    Samenvoeger samenvoeger(spelers, opdracht, voortgang, std::move(nummers));
    if (!samenvoeger.VerversBestaande() || !samenvoeger.VoegNieuweToe())
        return tl::unexpected(Samenvoegfout::Gestopt);
    if (!ZijnErSleutels(spelers, samenvoeger.uitkomst.AantalNieuw))
        return tl::unexpected(Samenvoegfout::GeenSleutels);
    samenvoeger.Voer();
    return std::move(samenvoeger.uitkomst);
}

NBBnrIndex::NBBnrIndex(const std::vector<Tekstblik>& vragen)
{
    vragen_.reserve(vragen.size()); // their texts stay where they are
    gezien_.reserve(vragen.size());
    antwoorden_.reserve(vragen.size());
    for (const Tekstblik nummer : vragen) {
        const Tekst& vraag = vragen_.emplace_back(OpgemaaktNBBnr(nummer));
        if (vraag.size() > Langste) {
            antwoorden_.push_back(nullptr);
            continue;
        }
        // Nothing occurs everywhere.
        antwoorden_.push_back(&gezien_.try_emplace(vraag, vraag.empty()).first->second);
        lengten_.insert(vraag.size());
        metStreep_ = metStreep_ || vraag.find('-') != Tekst::npos;
    }
    lengten_.erase(0);
}

bool NBBnrIndex::Bevat(std::size_t vraag) const
{
    const bool* const antwoord = antwoorden_[vraag];
    return antwoord != nullptr ? *antwoord : tekst_.find(vragen_[vraag]) != Tekst::npos;
}

void NBBnrIndex::Voeg(Tekstblik nummer)
{
    const std::size_t begin = tekst_.size() + 1;
    tekst_ += '-';
    tekst_ += OpgemaaktNBBnr(nummer);
    for (const std::size_t lengte : lengten_) {
        // As a rule nothing that is asked can reach across the "-".
        const std::size_t eerste = metStreep_ ? std::max(lengte, begin) : begin + lengte;
        for (std::size_t eind = eerste; eind <= tekst_.size(); ++eind) {
            const auto gevonden = gezien_.find(Tekstblik(tekst_).substr(eind - lengte, lengte));
            if (gevonden != gezien_.end())
                gevonden->second = true;
        }
    }
}

} // namespace plexoran
