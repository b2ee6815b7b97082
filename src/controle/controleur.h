// The walk of the check along the files of the suite. Of the players it keeps where each key is, so
// that the pairs and the sessions behind them can be looked up.
#pragma once

#include <unordered_map>

#include "controle/controle.h"
#include "register/spelerbestand.h"
#include "sessions/sessiemappen.h"

namespace plexoran {

/// The number that a key is; nothing when it is not six digits.
[[nodiscard]] std::optional<std::int32_t> Sleutelgetal(Tekstblik key);

class Controleur {
  public:
    Controleur(Schijf& schijf, const Mappen& mappen, const Voortgang& voortgang)
        : schijf_(schijf), mappen_(mappen), voortgang_(voortgang)
    {}
    [[nodiscard]] Controleuitslag Voer();

  private:
    // Files
    [[nodiscard]] std::string Toon(const Pad& pad) const { return schijf_.Toonpad(pad); }
    void Onleesbaar(const Fout& fout);
    [[nodiscard]] std::optional<Tekst> Lees(const Pad& pad);
    void ZoekTekens(Tekstblik inhoud, const Pad& pad);

    // Players (controleur_spelers.cpp)
    [[nodiscard]] Tekst Wie(int rij) const;
    void Speler(Vondstsoort soort, int rij, Tekst wat = {}, Tekst ander = {});
    void LeesRegister();
    void MeldLezing(const Spelerlezing& lezing, const Pad& pad);
    void MeldWeggelaten(const Spelerlezing& lezing, Tekstblik inhoud, const Pad& pad);
    void BekijkRijen();
    void BekijkSleutel(int rij);
    void BekijkNBBnr(int rij);
    /// The first row with this key, `ZonderRij`, or 0 when nobody has it.
    [[nodiscard]] int& RijVan(std::int32_t sleutel);
    [[nodiscard]] int RijVan(Tekstblik key);

    // Pairs and sessions (controleur_lijsten.cpp)
    void LeesParenmap();
    void LeesParen(const Pad& pad, const std::optional<Tekst>& keuze);
    void BekijkPaarspeler(const Pad& pad, const std::optional<Tekst>& keuze, const Tekst& paar,
                          Tekstblik key);
    void LeesSessies();
    void LeesSessie(const Sessie& sessie);
    [[nodiscard]] std::vector<Tafelnaam> LeesLijstVan(const Pad& pad, Lijstsoort soort);
    void MeldHelft(const Sessie& sessie, const Tafelnaam& wie);

    static constexpr int ZonderRij = -1; ///< of a player whose line is left out

    Schijf& schijf_;
    const Mappen& mappen_;
    const Voortgang& voortgang_;
    Controleuitslag uit_;
    Spelertabel tabel_;
    bool kentSpelers_ = false; ///< all of them, so that a key that is not found is nobody's
    std::vector<int> rijVan_;  ///< by the number of the key, as far as one was asked for
    std::unordered_map<Tekst, int> rijMetNBBnr_; ///< in the import group
};

} // namespace plexoran
