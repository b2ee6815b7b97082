// The power fails at every step of every kind of save, and the disk wrote any part of what was not
// synced: the next start finds every file as it was or as it became, the history agrees with it,
// and every backup that is listed can be read.
#include <cstdio>
#include <random>
#include <set>

#include "pairs/paarregel.h"
#include "pairs/parenbestand.h"
#include "register/geschiedenis.h"
#include "register/registerhulp.h"
#include "register/reservezip.h"
#include "sessions/koppelen.h"

using namespace plexoran;

namespace {

using Bestanden = std::map<Pad, Tekst>;

constexpr int zaden = 40;
constexpr int keerPerStap = 20;

const Mappen mappen = [] {
    Mappen uit = Proefmappen();
    uit.ZITMAP = "C:\\club\\Zittingen";
    uit.RVDMAP = "C:\\club";
    return uit;
}();
constexpr const char* paren = "C:\\club\\Spelers\\Parenmap\\Gr01-.txt";
constexpr const char* lijst = "C:\\club\\Zittingen\\Maandag\\Spelers.txt";
constexpr const char* uitslag = "C:\\club\\Zittingen\\Maandag\\PercZit.txt";

/// A program at work on the disk of a club.
struct Club {
    explicit Club(unsigned zaad) : toeval(zaad)
    {
        Register nieuw;
        for (int aantal = 4 + Keuze(8); aantal > 0; --aantal)
            VoegToe(nieuw);
        schijf.Zet(groepenbestand, "Gr01-Oud\r\nGr02-Ook\r\n");
        schijf.Zet(paren, "100001-100002#\r\n");
        schijf.Zet(lijst, "N01 Bos - 100001\r\nO01 100002 - Jansen\r\n");
        schijf.Zet(uitslag, "1,A,N1,Bos-100001,50,0,x\r\n2,A,O1,100002-Jansen,50,0,x\r\n");
        spelers = Gelezen(schijf, SpelersTekst(nieuw));
        groepen = LeesGroepen(schijf, mappen);
        gelezen = LeesParenbestand(schijf, mappen, "Gr01-");
        geschiedenis.Open(mappen, "pc", "an");
    }

    int Keuze(int aantal) { return static_cast<int>(toeval() % static_cast<unsigned>(aantal)); }

    void VoegToe(Register& aan)
    {
        Rijvelden velden;
        velden[Index(Kolom::Voornaam)] = Tekst(1 + toeval() % 9, 'v');
        velden[Index(Kolom::Achternaam)] = "Naam" + std::to_string(toeval());
        velden[Index(Kolom::Adres)] = Tekst(toeval() % 60, 'a');
        ASSERT_TRUE(VoegSpelerToe(aan, "Gr01-", velden));
    }
    void Wijzig(Register& in)
    {
        const int rij = 1 + Keuze(in.tabel.Rijen());
        const int keus = Keuze(3);
        if (keus == 0)
            VoegToe(in);
        else if (keus == 1)
            in.tabel.VerwijderRijen(std::vector{rij});
        else
            in.tabel.ZetCel(rij, Kolom::Telef, std::to_string(toeval()));
    }

    void Bewaar(Handelingsoort soort = Handelingsoort::Gewoon, const Tekst& hoort = {})
    {
        const Noteer noteer(geschiedenis, "Spelers", soort, hoort);
        for (;;) {
            const auto gelukt = SchrijfSpelers(schijf, mappen, spelers, Overschrijven::AlleenEigen);
            if (gelukt)
                break;
            ASSERT_EQ(gelukt.error().soort, Foutsoort::Gewijzigd);
            const auto ander = AnderRegister::Lees(schijf, mappen);
            ander->NeemOver(spelers, ander->MengMet(spelers));
        }
        LeesSpelers(schijf, mappen, spelers);
    }

    [[nodiscard]] Bestanden Alles() const
    {
        Bestanden uit;
        for (const Pad& pad : schijf.AlleBestanden())
            uit[pad] = schijf.Inhoud(pad).value();
        return uit;
    }

    std::mt19937 toeval;
    GeheugenSchijf schijf;
    Register spelers;
    Groepen groepen;
    Parenlezing gelezen;
    Geschiedenis geschiedenis{schijf};
};

struct Bewerking {
    std::string naam;
    std::function<void(Club&)> vooraf;
    std::function<void(Club&)> doe;
};

/// Of half of the seeds there is a history already when it begins.
void Vooraf(Club& club)
{
    if (club.Keuze(2) == 0)
        return;
    club.Wijzig(club.spelers);
    club.Bewaar();
}

void Importeer(Club& club)
{
    for (int aantal = club.spelers.tabel.Rijen() / 2 + club.Keuze(20); aantal >= 0; --aantal)
        club.VoegToe(club.spelers);
    club.Bewaar();
}

/// Another program wrote since everything was read here.
void VanBuiten(Club& club)
{
    Vooraf(club);
    Register ander = club.spelers;
    club.Wijzig(ander);
    club.schijf.Zet(spelerbestand, SpelersTekst(ander));
    club.schijf.Zet(groepenbestand, "Gr01-Oud\r\nGr02-Ander\r\n");
    club.schijf.Zet(paren, "100001-100002#100005-100006#\r\n");
}

void WijzigEnBewaar(Club& club)
{
    club.Wijzig(club.spelers);
    club.Bewaar();
}

void Koppelen(Club& club)
{
    const auto gevonden = ZoekZwevenden(club.schijf, {LosseZitting(mappen, "Maandag")});
    ASSERT_FALSE(gevonden.zwevenden.empty());
    const Noteer noteer(club.geschiedenis, "Gekoppeld");
    const auto gedaan = Koppel(club.schijf, MaakKoppelopdracht(gevonden.zwevenden, 0, "100003"));
    ASSERT_FALSE(gedaan.aangepast.empty());
}

void BewaarGroepen(Club& club)
{
    club.groepen.ZetNaam(1, Tekst(1 + club.toeval() % 900, 'g'));
    const Noteer noteer(club.geschiedenis, "Groepsnamen");
    ASSERT_TRUE(SchrijfGroepen(club.schijf, mappen, club.groepen).gelukt);
}

void BewaarPaar(Club& club)
{
    const std::vector<Tekst> regels{"100001 Een          +100002 Twee",
                                    "100003 Drie          +100004 Vier"};
    const Noteer noteer(club.geschiedenis, "Paren");
    ASSERT_TRUE(BewaarParen(club.schijf, mappen, "Gr01-", regels, club.gelezen).gelukt);
}

void VerwijderPaar(Club& club)
{
    const Noteer noteer(club.geschiedenis, "Paren weg");
    ASSERT_TRUE(VerwijderParen(club.schijf, mappen, "Gr01-", club.gelezen));
}

/// More of one day than will stay.
void ZetReserves(Club& club)
{
    constexpr int aantal = 24;
    const auto zip = ZipVan({{"RVDspelers.txt", vijfSpelers}}, "spelers=5").value();
    for (int nummer = 0; nummer < aantal; ++nummer)
        club.schijf.Zet("C:\\club\\Spelers\\Reservekopie\\2026-01-05 1200" + MetNullen(nummer, 2) +
                            " voor import.zip",
                        zip);
}

void MaakReserve(Club& club)
{
    ASSERT_TRUE(MaakReservezip(club.schijf, mappen, "voor import"));
}

void Ongedaan(Club& club)
{
    const auto handeling = club.geschiedenis.Laatste(Handelingsoort::Ongedaan).value();
    for (const Wijziging& wijziging : handeling.wijzigingen) {
        if (wijziging.IsSpelerbestand()) {
            Menging terug = DraaiSpelersTerug(club.spelers, wijziging, Handelingsoort::Ongedaan);
            club.spelers.tabel = std::move(terug.tabel);
            club.Bewaar(Handelingsoort::Ongedaan, handeling.id);
        } else {
            const Noteer noteer(club.geschiedenis, "Terug", Handelingsoort::Ongedaan, handeling.id);
            ASSERT_TRUE(
                DraaiBestandTerug(club.schijf, mappen, wijziging, Handelingsoort::Ongedaan));
        }
    }
}

const std::vector<Bewerking> bewerkingen{
    {"gewoon", Vooraf, WijzigEnBewaar},
    {"import", Vooraf, Importeer},
    {"samengevoegd", VanBuiten, WijzigEnBewaar},
    {"groepsnamen", Vooraf, BewaarGroepen},
    {"groepsnamen samen", VanBuiten, BewaarGroepen},
    {"paren", Vooraf, BewaarPaar},
    {"paren samen", VanBuiten, BewaarPaar},
    {"paren weg", Vooraf, VerwijderPaar},
    {"koppelen", Vooraf, Koppelen},
    {"reservekopie", ZetReserves, MaakReserve},
    {"ongedaan", WijzigEnBewaar, Ongedaan},
    {"import ongedaan", Importeer, Ongedaan},
    {"koppelen ongedaan", Koppelen, Ongedaan},
};

bool IsBestandVanDeSuite(const Pad& pad)
{
    return pad.find("Geschiedenis") == Pad::npos && pad.find("Reservekopie") == Pad::npos &&
           pad.find(".~") == Pad::npos;
}

std::optional<Tekst> In(const Bestanden& bestanden, const Pad& pad)
{
    const auto plek = bestanden.find(pad);
    return plek == bestanden.end() ? std::nullopt : std::optional(plek->second);
}

std::vector<Handeling> Handelingen(Schijf& schijf)
{
    std::vector<Handeling> uit;
    LoopTerug(schijf, mappen, [&](Handeling& handeling) {
        uit.push_back(std::move(handeling));
        return true;
    });
    return uit;
}

/// Every row but its number.
std::vector<Tekst> Rijen(const Spelertabel& tabel)
{
    std::vector<Tekst> uit;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij)
        uit.push_back(tabel.Inhoud(rij));
    return uit;
}

/// A save, and what the cuts on its way left.
class Proef {
  public:
    Proef(const Bewerking& bewerking, unsigned zaad) : club_(zaad), toeval_(zaad)
    {
        bewerking.vooraf(club_);
        oud_ = club_.Alles();
        voorheen_ = Handelingen(club_.schijf).size();
        club_.schijf.NaElkeStap([&] { Snijd(onderweg_); });
        bewerking.doe(club_);
        club_.schijf.NaElkeStap({});
        nieuw_ = club_.Alles();
        Snijd(klaar_);
    }

    [[nodiscard]] int Aantal() const { return aantal_; }
    [[nodiscard]] int Verschillend() const
    {
        return static_cast<int>(onderweg_.size() + klaar_.size());
    }
    /// That both were seen on the way.
    [[nodiscard]] bool IsOudEnNieuwGezien() const { return oudGezien_ && nieuwGezien_; }

    void Bekijk()
    {
        for (const Bestanden& over : onderweg_)
            BekijkStand(over);
        for (const Bestanden& over : klaar_) {
            BekijkStand(over);
            for (const auto& [pad, inhoud] : nieuw_)
                ASSERT_TRUE(!IsBestandVanDeSuite(pad) || In(over, pad) == inhoud) << pad;
        }
    }

  private:
    void Snijd(std::set<Bestanden>& naar)
    {
        for (int keer = 0; keer < keerPerStap; ++keer, ++aantal_)
            naar.insert(club_.schijf.NaStroomuitval(toeval_));
    }

    void BekijkStand(const Bestanden& over)
    {
        BekijkBestanden(over);
        GeheugenSchijf schijf; // the next start
        for (const auto& [pad, inhoud] : over)
            schijf.Zet(pad, inhoud);
        Register spelers;
        ASSERT_TRUE(Lees(schijf, spelers).AllesGelezen());
        BekijkGeschiedenis(over, schijf, spelers);
        BekijkReserves(schijf);
    }

    void BekijkBestanden(const Bestanden& over)
    {
        for (const Bestanden* kant : {&std::as_const(oud_), &std::as_const(nieuw_), &over}) {
            for (const auto& [pad, inhoud] : *kant) {
                if (!IsBestandVanDeSuite(pad))
                    continue;
                const auto nu = In(over, pad);
                ASSERT_TRUE(nu == In(oud_, pad) || nu == In(nieuw_, pad)) << pad << nu.value_or("");
                oudGezien_ = oudGezien_ || nu != In(nieuw_, pad);
                nieuwGezien_ = nieuwGezien_ || nu != In(oud_, pad);
            }
        }
    }

    /// Each entry that is whole tells how the file was, be it changed yet or not; and there is one
    /// of every file that changed.
    void BekijkGeschiedenis(const Bestanden& over, Schijf& schijf, const Register& spelers)
    {
        const auto handelingen = Handelingen(schijf);
        ASSERT_GE(handelingen.size(), voorheen_);
        std::set<Pad> genoteerd;
        for (std::size_t i = 0; i + voorheen_ < handelingen.size(); ++i) {
            for (const Wijziging& wijziging : handelingen[i].wijzigingen) {
                genoteerd.insert(wijziging.PadIn(mappen));
                BekijkWijziging(wijziging, spelers);
            }
        }
        for (const auto& [pad, inhoud] : oud_) {
            if (IsBestandVanDeSuite(pad) && In(over, pad) != inhoud) {
                ASSERT_TRUE(genoteerd.contains(pad)) << pad;
            }
        }
    }

    void BekijkWijziging(const Wijziging& wijziging, const Register& spelers)
    {
        const Pad pad = wijziging.PadIn(mappen);
        if (!wijziging.IsSpelerbestand()) {
            ASSERT_EQ(wijziging.voor, In(oud_, pad));
            ASSERT_EQ(wijziging.na, In(nieuw_, pad));
            return;
        }
        const Menging terug = DraaiSpelersTerug(spelers, wijziging, Handelingsoort::Ongedaan);
        ASSERT_TRUE(terug.botsingen.empty());
        ASSERT_EQ(Rijen(terug.tabel), Rijen(SpelersUit(oud_.at(pad)).tabel.value()));
    }

    void BekijkReserves(Schijf& schijf)
    {
        const auto reserves = Reserves(schijf, mappen);
        ASSERT_TRUE(reserves);
        for (const Reserve& reserve : *reserves) {
            ASSERT_TRUE(reserve.spelers) << reserve.kopie.naam;
            const auto delen = LeesReserve(schijf, mappen, reserve.kopie);
            ASSERT_TRUE(delen && !delen->empty()) << reserve.kopie.naam;
            const Tekst& spelers = delen->front().inhoud;
            ASSERT_TRUE(spelers == vijfSpelers || spelers == oud_.at(spelerbestand));
        }
        if (oud_.size() > meesteReserves) {
            ASSERT_GE(reserves->size(), meesteReserves);
        }
    }

    static constexpr std::size_t meesteReserves = 20;

    Club club_;
    std::mt19937 toeval_;
    Bestanden oud_;
    Bestanden nieuw_;
    std::size_t voorheen_ = 0; ///< entries
    std::set<Bestanden> onderweg_;
    std::set<Bestanden> klaar_;
    int aantal_ = 0;
    bool oudGezien_ = false;
    bool nieuwGezien_ = false;
};

} // namespace

TEST(Stroomuitval, LaatOudOfNieuwEnEenGeschiedenisDieKlopt)
{
    constexpr int minstens = 100'000;
    int aantal = 0;
    int verschillend = 0;
    for (const Bewerking& bewerking : bewerkingen) {
        bool beideGezien = false;
        for (unsigned zaad = 1; zaad <= zaden; ++zaad) {
            SCOPED_TRACE(bewerking.naam + ", zaad " + std::to_string(zaad));
            Proef proef(bewerking, zaad);
            ASSERT_FALSE(HasFailure());
            ASSERT_NO_FATAL_FAILURE(proef.Bekijk());
            aantal += proef.Aantal();
            verschillend += proef.Verschillend();
            beideGezien = beideGezien || proef.IsOudEnNieuwGezien();
        }
        EXPECT_TRUE(beideGezien || bewerking.naam == "reservekopie") << bewerking.naam;
    }
    RecordProperty("onderbrekingen", aantal);
    RecordProperty("verschillend", verschillend);
    std::printf("onderbrekingen: %d, waarvan verschillend: %d\n", aantal, verschillend);
    EXPECT_GE(aantal, minstens);
}
