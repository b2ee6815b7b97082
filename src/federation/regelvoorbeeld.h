// What an import is going to do, line by line, whatever it comes from: which fields change, what
// makes a line doubtful, and why it is refused. Lines and fields can be switched off; the import
// then does what is left, just as it was shown.
#pragma once

#include "federation/samenvoegen.h"

namespace plexoran {

/// The first three are what the import does with a line.
enum class Voorbeeldsoort { Nieuw, Gewijzigd, Ongewijzigd, Geweigerd, Verdwenen };
inline constexpr std::size_t AantalVoorbeeldsoorten = 5;

/// The last three are those of a list of any making.
enum class Weigering { ZonderNBBnr, KomtVoor, MetIsTeken, TeKort, Cellen, GeenNaam, Nummer };

struct Voorbeeldregel {
    Voorbeeldsoort soort = Voorbeeldsoort::Nieuw;
    Weigering weigering{}; ///< of one that is refused
    int rij = 0;           ///< of the player who is refreshed or gone
    Kolommen anders{};     ///< that the line fills of a new player, or changes

    // What is doubtful in a line that is not refused.
    int naamgenoot = 0;            ///< row in the group with this name under another number
    bool andereNaam = false;       ///< neither first name nor surname is what it was
    bool dubbel = false;           ///< the file has the name more than once
    bool zonderAchternaam = false; ///< such a player is not read any more after the save
    [[nodiscard]] bool IsTwijfelachtig() const
    {
        return naamgenoot > 0 || andereNaam || dubbel || zonderAchternaam;
    }
};

struct Veldwijziging {
    Kolom kolom;
    Tekstblik oud;
    Tekstblik nieuw;
};

/// By which names are compared: without regard to case, accent and blanks.
[[nodiscard]] Tekst Naamsleutel(Tekst naam);
/// Neither first name nor surname is what it was.
[[nodiscard]] bool IsAndereNaam(const Rijblikken& oud, const Rijblikken& nieuw);

class Regelvoorbeeld {
  public:
    virtual ~Regelvoorbeeld() = default;

    [[nodiscard]] const std::vector<Voorbeeldregel>& Regels() const { return regels_; }
    [[nodiscard]] std::size_t Aantal(Voorbeeldsoort soort) const
    {
        return aantallen_[static_cast<std::size_t>(soort)];
    }
    [[nodiscard]] std::size_t AantalTwijfelachtig() const;
    /// Lines of the file.
    [[nodiscard]] std::size_t AantalGelezen() const
    {
        return regels_.size() - Aantal(Voorbeeldsoort::Verdwenen);
    }
    /// Whether all of the file was read. Otherwise nobody can be said to be gone.
    [[nodiscard]] virtual bool IsHeel() const { return true; }
    /// Of a list of any making: where the line stands in its file, from 1; else 0.
    [[nodiscard]] virtual int Bestandsregel(std::size_t /*regel*/) const { return 0; }
    [[nodiscard]] bool IsLijst() const { return !regels_.empty() && Bestandsregel(0) > 0; }

    [[nodiscard]] virtual Tekst Naam(std::size_t regel) const = 0;
    [[nodiscard]] virtual Tekstblik Nummer(std::size_t regel) const = 0;
    /// Of `anders`. What an earlier line does with the same player is done by then.
    [[nodiscard]] std::vector<Veldwijziging> Velden(std::size_t regel) const;

    [[nodiscard]] bool MagUit(std::size_t regel) const
    {
        return regels_[regel].soort <= Voorbeeldsoort::Ongewijzigd;
    }
    /// A new player keeps his surname, without which there is no player.
    [[nodiscard]] bool MagUit(std::size_t regel, Kolom kolom) const
    {
        return regels_[regel].soort != Voorbeeldsoort::Nieuw || kolom != Kolom::Achternaam;
    }
    [[nodiscard]] bool IsAan(std::size_t regel) const;
    [[nodiscard]] bool IsAan(std::size_t regel, Kolom kolom) const;
    void Zet(std::size_t regel, bool aan);
    void Zet(std::size_t regel, Kolom kolom, bool aan);

    [[nodiscard]] std::size_t RegelsUit() const;
    [[nodiscard]] std::size_t VeldenUit() const; ///< of lines that are on
    [[nodiscard]] bool VerandertIets() const;

    [[nodiscard]] const Spelertabel& Tabel() const { return tabel_; }
    [[nodiscard]] const Tekst& Groep() const { return groep_; } ///< code of the one imported to
    /// What is on.
    [[nodiscard]] const Besluiten& Gekozen() const { return besluiten_; }

  protected:
    Regelvoorbeeld(const Spelertabel& tabel, Tekst groep, Besluiten besluiten);
    Regelvoorbeeld(Regelvoorbeeld&&) = default;

    /// What a line that is not refused puts in its cells.
    [[nodiscard]] virtual Rijblikken Cellen(std::size_t regel) const = 0;
    [[nodiscard]] Tekstblik Na(std::optional<std::size_t> regel, int rij, Kolom kolom) const;
    void Tel(); ///< when all lines are there

    const Spelertabel& tabel_;
    Tekst groep_;
    Besluiten besluiten_; ///< of the import lines, the columns only those that differ
    std::vector<Voorbeeldregel> regels_;
    /// Per import line the one before it that refreshes the same player.
    std::vector<std::optional<std::size_t>> eerdere_;

  private:
    std::array<std::size_t, AantalVoorbeeldsoorten> aantallen_{};
};

} // namespace plexoran
