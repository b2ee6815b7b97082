#include "register/overzicht.h"

#include <gtest/gtest.h>

using namespace plexoran;

namespace {

class OverzichtTest : public testing::Test {
  protected:
    void Voeg(const Tekst& groep, const Tekst& subgroep, const Tekst& mv = "",
              const Tekst& email = "", const Tekst& telef = "", const Tekst& nbbnr = "")
    {
        Rijvelden velden;
        velden[Index(Kolom::Groep)] = groep;
        velden[Index(Kolom::Achternaam)] = "Bos";
        velden[Index(Kolom::NBBgr)] = subgroep;
        velden[Index(Kolom::MV)] = mv;
        velden[Index(Kolom::Email)] = email;
        velden[Index(Kolom::Telef)] = telef;
        velden[Index(Kolom::NBBnr)] = nbbnr;
        tabel.VoegToe(velden);
    }
    /// Every line, indented as it stands, with who they are.
    [[nodiscard]] std::string Alles() const
    {
        std::string uit;
        for (const auto& [diepte, tekst, aantal, rijen] : MaakOverzicht(tabel, groepen)) {
            uit += std::string(static_cast<std::size_t>(diepte), ' ') + tekst;
            if (aantal) {
                EXPECT_EQ(rijen.size(), *aantal);
                uit += ":";
            }
            for (const int rij : rijen)
                uit += " " + std::to_string(rij);
            uit += "\n";
        }
        return uit;
    }

    Spelertabel tabel;
    Groepen groepen;
};

} // namespace

TEST_F(OverzichtTest, ZonderSpelersStaatErAlleenWatErZouKunnenZijn)
{
    EXPECT_EQ("Alle spelers:\nGroepen\nMan of vrouw\n Man:\n Vrouw:\n Niet ingevuld:\nGegevens\n"
              " Met e-mail:\n Zonder e-mail:\n Met telefoon:\n Zonder telefoon:\n"
              " Met NBB-nummer:\n Zonder NBB-nummer:\n",
              Alles());
}

TEST_F(OverzichtTest, TeltPerGroepEnSubgroepEnNoemtWieHetZijn)
{
    groepen.ZetNaam(1, "Clubleden");
    groepen.ZetNaam(3, "Jeugd");
    Voeg("Gr05-", "DINSDAG", "M", "a@b.example", "06", "123");
    Voeg("Gr01-", "B-LIJN", "V", " ", "06");
    Voeg("Gr01-", "", "V", "", "  ");
    Voeg("Gr01-Clubleden", " A-LIJN ", "M", "", "06", " ");
    Voeg("Gr02-", " ", "x");
    Voeg("Gr99-", "A-LIJN", "m");
    Voeg("", "", "");
    Voeg("Gr01-", "B-LIJN", "V");
    EXPECT_EQ("Alle spelers: 1 2 3 4 5 6 7 8\n"
              "Groepen\n"
              " Gr01-Clubleden: 2 3 4 8\n"
              "  A-LIJN: 4\n"
              "  B-LIJN: 2 8\n"
              "  Zonder subgroep: 3\n"
              " Gr02-: 5\n"
              " Gr05-: 1\n"
              "  DINSDAG: 1\n"
              " Van een groep die niet bestaat: 6 7\n"
              "Man of vrouw\n"
              " Man: 1 4\n"
              " Vrouw: 2 3 8\n"
              " Niet ingevuld: 5 6 7\n"
              "Gegevens\n"
              " Met e-mail: 1\n"
              " Zonder e-mail: 2 3 4 5 6 7 8\n"
              " Met telefoon: 1 2 4\n"
              " Zonder telefoon: 3 5 6 7 8\n"
              " Met NBB-nummer: 1\n"
              " Zonder NBB-nummer: 2 3 4 5 6 7 8\n",
              Alles());
}
