#include <algorithm>
#include <array>

#include "controle/controleur.h"
#include "platform/tekst/codepagina.h"
#include "platform/tekst/regels.h"
#include "register/groepen.h"

namespace plexoran {
namespace {

bool HeeftHogeBytes(Tekstblik tekst)
{
    unsigned char som = 0; // over all of it: compilers make vector code of that
    for (const char teken : tekst)
        som |= static_cast<unsigned char>(teken);
    return som > 0x7F;
}

/// The bytes in the text that the code page leaves undefined, each once: "81, 8D".
Tekst Ongedefinieerd(Tekstblik tekst)
{
    constexpr std::array<std::pair<char, const char*>, 5> bytes{
        {{'\x81', "81"}, {'\x8D', "8D"}, {'\x8F', "8F"}, {'\x90', "90"}, {'\x9D', "9D"}}};
    Tekst uit;
    for (const auto& [byte, naam] : bytes) {
        if (tekst.find(byte) != Tekstblik::npos)
            uit.append(uit.empty() ? "" : ", ").append(naam);
    }
    return uit;
}

} // namespace

Controleuitslag Controleur::Voer()
{
    LeesRegister();
    if (auto groepen = Lees(mappen_.Groepenbestand())) {
        if (!IsGroepenbestand(*groepen))
            Onleesbaar({.bestand = Toon(mappen_.Groepenbestand()),
                        .systeem = "er staat iets anders in dan groepsnamen"});
        ZoekTekens(*groepen, mappen_.Groepenbestand());
    }
    LeesParenmap();
    LeesSessies();
    std::ranges::stable_sort(uit_.vondsten, {}, &Vondst::soort);
    return std::move(uit_);
}

void Controleur::Onleesbaar(const Fout& fout)
{
    uit_.vondsten.push_back({.soort = Vondstsoort::Onleesbaar,
                             .bestand = fout.bestand,
                             .regel = fout.regel,
                             .reden = fout.systeem});
}

/// Nothing for a file that is not there, and for one that cannot be read, which is told.
std::optional<Tekst> Controleur::Lees(const Pad& pad)
{
    auto inhoud = LeesAlsErIs(schijf_, pad);
    if (!inhoud)
        Onleesbaar(inhoud.error());
    else if (*inhoud)
        ++uit_.telling.bestanden;
    return inhoud ? std::move(*inhoud) : std::nullopt;
}

void Controleur::ZoekTekens(Tekstblik inhoud, const Pad& pad)
{
    if (!HeeftHogeBytes(inhoud))
        return;
    if (IsUtf8(inhoud))
        uit_.vondsten.push_back({.soort = Vondstsoort::Utf8, .bestand = Toon(pad)});
    if (Ongedefinieerd(inhoud).empty())
        return;
    int nummer = 0;
    for (const Tekstblik regel : Regels(inhoud)) {
        ++nummer;
        if (Tekst bytes = Ongedefinieerd(regel); !bytes.empty())
            uit_.vondsten.push_back({.soort = Vondstsoort::Tekens,
                                     .bestand = Toon(pad),
                                     .regel = nummer,
                                     .wat = std::move(bytes)});
    }
}

Controleuitslag ControleerSuite(Schijf& schijf, const Mappen& mappen, const Voortgang& voortgang)
{
    return Controleur(schijf, mappen, voortgang).Voer();
}

} // namespace plexoran
