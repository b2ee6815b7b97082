// What the import of a member file is going to do, line by line: the decisions of the import itself
// (samenvoegen.h), which fields change by them, what makes a line doubtful, and who of the file's
// subgroup is no longer in it.
#pragma once

#include <functional>

#include "federation/regelvoorbeeld.h"

namespace plexoran {

class Voorbeeld : public Regelvoorbeeld {
  public:
    /// Of what was read of a member file, without its import lines: those are in `opdracht`. The
    /// table and the reading must outlive the preview, and the table must not change meanwhile.
    /// Its lines are those of the file in its order, but for those that were left out when it was
    /// read; these follow, and then who is gone.
    [[nodiscard]] static tl::expected<Voorbeeld, Samenvoegfout>
    Maak(const Spelertabel& tabel, Samenvoegopdracht opdracht, const Ledenlezing& lezing,
         const Voortgang& voortgang = {});

    [[nodiscard]] bool IsHeel() const override;
    /// Of a line that was left out when the file was read: that line, or where it stands.
    [[nodiscard]] Tekst Naam(std::size_t regel) const override;
    [[nodiscard]] Tekstblik Nummer(std::size_t regel) const override;
    [[nodiscard]] const Samenvoegopdracht& Opdracht() const { return opdracht_; }

  private:
    Voorbeeld(const Spelertabel& tabel, Samenvoegopdracht opdracht, const Ledenlezing& lezing,
              Besluiten besluiten);

    [[nodiscard]] Rijblikken Cellen(std::size_t regel) const override;

    // The steps of making it, line by line. False once `verder` wants to stop.
    using Stap = std::function<bool()>;
    [[nodiscard]] bool VergelijkRegels(const Stap& verder);
    [[nodiscard]] bool ZoekTwijfels(const Stap& verder);
    [[nodiscard]] bool ZoekVerdwenen(const Stap& verder);
    void VoegOvergeslagenToe();

    Samenvoegopdracht opdracht_;
    const Ledenlezing& lezing_;
    Tekst NBBgr_;
};

} // namespace plexoran
