#include "platform/schijf/systeempad.h"

#include "platform/tekst/codepagina.h"

#ifndef _WIN32
#include <QStringDecoder>
#endif

namespace plexoran {

namespace fs = std::filesystem;

#ifdef _WIN32

fs::path Systeempad(const Pad& pad)
{
    if (pad.find('\0') != Pad::npos)
        return {};
    const std::u16string breed = NaarUtf16(pad);
    return fs::path(std::wstring(breed.begin(), breed.end())).make_preferred();
}

std::optional<Tekst> NaamVan(const fs::path& naam)
{
    const std::wstring breed = naam.wstring();
    return ExactNaarCodepagina(std::u16string(breed.begin(), breed.end()));
}

Pad PadVan(const fs::path& pad)
{
    // A link may lead to a name that the code page lacks; the empty path makes that fail.
    return NaamVan(pad).value_or(Pad());
}

std::string Leesbaar(const fs::path& pad)
{
    const std::u8string utf8 = pad.u8string();
    return {utf8.begin(), utf8.end()};
}

#else

namespace {

std::optional<std::u16string> UitUtf8(std::string_view bytes)
{
    using Converter = QStringConverter;
    QStringDecoder lezer(Converter::Utf8,
                         Converter::Flag::Stateless | Converter::Flag::ConvertInitialBom);
    const QString tekst = lezer(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (lezer.hasError())
        return std::nullopt;
    return tekst.toStdU16String();
}

/// A name of the system in the code page. Some systems write letter and accent apart, hence the
/// composing. Without an exact equal in the code page the name stays the bytes that it is.
Tekst NaarTekst(const std::string& naam)
{
    if (const auto tekens = UitUtf8(naam)) {
        Omzetting omzetting = NaarCodepagina(*tekens);
        if (omzetting.vervangen.empty())
            return std::move(omzetting.tekst);
    }
    return naam;
}

bool Bestaat(const fs::path& pad)
{
    std::error_code fout;
    return fs::exists(fs::symlink_status(pad, fout)); // a link that leads nowhere counts too
}

/// The first in byte order, so that the answer does not hang on the order of the folder.
std::optional<std::string> GelijkOpKastNa(const fs::path& map, const Tekst& naam)
{
    const Tekst gezocht = Hoofdletters(naam);
    std::optional<std::string> beste;
    std::error_code fout;
    fs::directory_iterator plek(map.empty() ? fs::path(".") : map, fout);
    for (; !fout && plek != fs::directory_iterator(); plek.increment(fout)) {
        std::string kandidaat = plek->path().filename().string();
        if (Hoofdletters(NaarTekst(kandidaat)) == gezocht && (!beste || kandidaat < *beste))
            beste = std::move(kandidaat);
    }
    return beste;
}

std::string NieuweNaam(const Tekst& naam)
{
    // Bytes that `NaarTekst` had to leave alone, as of a link's target, go back as they came.
    const auto tekens = UitUtf8(naam);
    const bool zoGelezen = tekens && NaarTekst(naam) == naam;
    return zoGelezen ? naam : NaarUtf8(naam);
}

std::string ZoekNaam(const fs::path& map, const Tekst& naam)
{
    std::string utf8 = NaarUtf8(naam);
    if (Bestaat(map / utf8))
        return utf8;
    if (naam != utf8 && Bestaat(map / naam))
        return naam;
    if (auto gevonden = GelijkOpKastNa(map, naam))
        return std::move(*gevonden);
    return NieuweNaam(naam);
}

} // namespace

fs::path Systeempad(const Pad& pad)
{
    if (pad.find('\0') != Pad::npos)
        return {};
    const Pad metStrepen = Vervang(pad, '\\', '/');
    fs::path geheel = NaarUtf8(metStrepen);
    if (Bestaat(geheel)) // then so does every part, by the first rule
        return geheel;
    fs::path uit = metStrepen.starts_with('/') ? "/" : "";
    for (std::size_t begin = 0; begin < metStrepen.size();) {
        const auto eind = std::min(metStrepen.find('/', begin), metStrepen.size());
        if (eind > begin)
            uit /= ZoekNaam(uit, metStrepen.substr(begin, eind - begin));
        begin = eind + 1;
    }
    return uit;
}

std::optional<Tekst> NaamVan(const fs::path& naam)
{
    return NaarTekst(naam.string());
}

Pad PadVan(const fs::path& pad)
{
    Pad uit;
    for (const fs::path& deel : pad) {
        if (deel == "/") {
            uit += '\\';
            continue;
        }
        if (!uit.empty() && uit.back() != '\\')
            uit += '\\';
        uit += NaarTekst(deel.string());
    }
    return uit;
}

std::string Leesbaar(const fs::path& pad)
{
    const std::string bytes = pad.string();
    return UitUtf8(bytes) ? bytes : NaarUtf8(bytes);
}

#endif

} // namespace plexoran
