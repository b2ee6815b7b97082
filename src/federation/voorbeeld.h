// What the import of a member file is going to do, line by line: the decisions of the import itself
// (samenvoegen.h), which fields change by them, what makes a line doubtful, and who of the file's
// subgroup is no longer in it. Lines and fields can be switched off; the import then does what is
// left, just as it was shown.
#pragma once

#include <functional>

#include "federation/samenvoegen.h"

namespace plexoran {

/// The first three are what the import does with a line.
enum class Voorbeeldsoort { Nieuw, Gewijzigd, Ongewijzigd, Geweigerd, Verdwenen };
inline constexpr std::size_t AantalVoorbeeldsoorten = 5;

enum class Weigering { ZonderNBBnr, KomtVoor, MetIsTeken, TeKort };

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

class Voorbeeld {
  public:
    /// Of what was read of a member file, without its import lines: those are in `opdracht`. The
    /// table and the reading must outlive the preview, and the table must not change meanwhile.
    [[nodiscard]] static tl::expected<Voorbeeld, Samenvoegfout>
    Maak(const Spelertabel& tabel, Samenvoegopdracht opdracht, const Ledenlezing& lezing,
         const Voortgang& voortgang = {});

    /// The lines of the file in its order, but for those that were left out when it was read; these
    /// follow, and then who is gone.
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
    [[nodiscard]] bool IsHeel() const;

    /// Of a line that was left out when the file was read: that line, or where it stands.
    [[nodiscard]] Tekst Naam(std::size_t regel) const;
    [[nodiscard]] Tekstblik Nummer(std::size_t regel) const;
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
    [[nodiscard]] const Samenvoegopdracht& Opdracht() const { return opdracht_; }
    /// What is on.
    [[nodiscard]] const Besluiten& Gekozen() const { return besluiten_; }

  private:
    Voorbeeld(const Spelertabel& tabel, Samenvoegopdracht opdracht, const Ledenlezing& lezing,
              Besluiten besluiten);

    [[nodiscard]] Rijblikken Cellen(std::size_t regel) const;
    [[nodiscard]] Tekstblik Na(std::optional<std::size_t> regel, int rij, Kolom kolom) const;

    // The steps of making it, line by line. False once `verder` wants to stop.
    using Stap = std::function<bool()>;
    [[nodiscard]] bool VergelijkRegels(const Stap& verder);
    [[nodiscard]] bool ZoekTwijfels(const Stap& verder);
    [[nodiscard]] bool ZoekVerdwenen(const Stap& verder);
    void VoegOvergeslagenToe();

    const Spelertabel& tabel_;
    Samenvoegopdracht opdracht_;
    const Ledenlezing& lezing_;
    Tekst NBBgr_;
    Besluiten besluiten_; ///< of the import lines, the columns only those that differ
    std::vector<Voorbeeldregel> regels_;
    /// Per import line the one before it that refreshes the same player.
    std::vector<std::optional<std::size_t>> eerdere_;
    std::array<std::size_t, AantalVoorbeeldsoorten> aantallen_{};
};

} // namespace plexoran
