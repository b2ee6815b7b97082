#include "exchange/mailadressen.h"

#include <algorithm>
#include <unordered_set>

#include "platform/tekst/codepagina.h"

namespace plexoran {
namespace {

constexpr std::size_t LangsteAdres = 254; // by the rules of mail; a link holds some of these

/// What means nothing else in a link stands as it is.
std::string AlsLinkdeel(Tekstblik adres)
{
    constexpr Tekstblik gewoon = "-._~@";
    constexpr Tekstblik cijfers = "0123456789ABCDEF";
    std::string uit;
    for (const char teken : NaarUtf8(adres)) {
        const auto byte = static_cast<unsigned char>(teken);
        const bool letter = (teken >= 'A' && teken <= 'Z') || (teken >= 'a' && teken <= 'z');
        if (letter || IsCijfer(teken) || gewoon.find(teken) != Tekstblik::npos)
            uit += teken;
        else
            uit.append("%").append(1, cijfers[byte >> 4U]).append(1, cijfers[byte & 0xFU]);
    }
    return uit;
}

} // namespace

bool IsMailadres(Tekstblik tekst)
{
    constexpr Tekstblik geweigerd = ",;<>()[]:\\\"\x7F\xA0"; // the last is a blank too
    const auto apenstaart = tekst.find('@');
    if (tekst.size() > LangsteAdres || apenstaart == 0 || apenstaart == Tekstblik::npos ||
        std::ranges::any_of(tekst, [&](char teken) {
            return static_cast<unsigned char>(teken) <= ' ' ||
                   geweigerd.find(teken) != Tekstblik::npos;
        }))
        return false;
    const Tekstblik domein = tekst.substr(apenstaart + 1);
    return domein.find('@') == Tekstblik::npos && domein.find('.') != Tekstblik::npos &&
           !domein.starts_with('.') && !domein.ends_with('.');
}

Mailadressen MailadressenVan(const Spelertabel& tabel, std::span<const int> rijen)
{
    Mailadressen uit;
    std::unordered_set<Tekst> gezien;
    for (const int rij : rijen) {
        const Tekst adres(ZonderSpaties(tabel.Cel(rij, Kolom::Email)));
        if (!IsMailadres(adres))
            uit.zonder.push_back(rij);
        else if (gezien.insert(Hoofdletters(adres)).second)
            uit.adressen.push_back(adres);
    }
    return uit;
}

std::vector<Mail> MaakMails(std::span<const Tekst> adressen, std::size_t hoogstens)
{
    std::vector<Mail> uit;
    for (const Tekst& adres : adressen) {
        const std::string deel = AlsLinkdeel(adres);
        if (uit.empty() || uit.back().adressen >= hoogstens ||
            uit.back().link.size() + 1 + deel.size() > LangsteMaillink)
            uit.push_back({.link = "mailto:?bcc="});
        Mail& mail = uit.back();
        mail.link += (mail.adressen++ == 0 ? "" : ",") + deel;
    }
    return uit;
}

} // namespace plexoran
