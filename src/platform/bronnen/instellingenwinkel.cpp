#include "platform/bronnen/instellingenwinkel.h"

#include <QSettings>
#include <QStandardPaths>

#include "platform/schijf/systeempad.h"
#include "platform/tekst/codepagina.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

std::filesystem::path Gebruikerspad(const char* naam)
{
    const QString map = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path(map.toStdU16String()) / "plexoran" / naam;
}

#ifdef _WIN32

constexpr auto registerpad = "HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings";

#else

std::filesystem::path Winkelbestand()
{
    return Gebruikerspad("rekenprogrammas.ini");
}

#endif

} // namespace

Pad Gebruikersbestand(const char* naam)
{
    return PadVan(Gebruikerspad(naam));
}

std::optional<Tekst> WaardeUit(Tekstblik inhoud, Tekstblik toepassing, Tekstblik sectie,
                               Tekstblik sleutel)
{
    Tekst kop(1, '[');
    kop += Hoofdletters(Samen(toepassing, sectie));
    kop += ']';
    const Tekst gezocht = Hoofdletters(sleutel);
    std::optional<Tekst> waarde;
    bool inSectie = false;
    for (const Tekstblik regel : Regels(inhoud)) {
        const Tekstblik kaal = ZonderSpaties(regel);
        const auto gelijk = kaal.find('=');
        if (kaal.starts_with('['))
            inSectie = Hoofdletters(kaal) == kop;
        else if (inSectie && gelijk != Tekstblik::npos &&
                 Hoofdletters(ZonderSpaties(kaal.substr(0, gelijk))) == gezocht)
            waarde = ZonderSpaties(kaal.substr(gelijk + 1));
    }
    return waarde;
}

Instellingenwinkel MaakInstellingenwinkel([[maybe_unused]] Schijf& schijf)
{
#ifdef _WIN32
    return [](Tekstblik toepassing, Tekstblik sectie, Tekstblik sleutel) -> std::optional<Tekst> {
        const QSettings tak(QString::fromLatin1(registerpad) + u'\\' +
                                QString::fromStdU16String(NaarUtf16(Samen(toepassing, sectie))),
                            QSettings::NativeFormat);
        const QVariant waarde = tak.value(QString::fromStdU16String(NaarUtf16(sleutel)));
        if (!waarde.isValid())
            return std::nullopt;
        return NaarCodepagina(waarde.toString().toStdU16String()).tekst;
    };
#else
    return [&schijf](Tekstblik toepassing, Tekstblik sectie, Tekstblik sleutel) {
        const auto inhoud = schijf.LeesBestand(PadVan(Winkelbestand()));
        return inhoud ? WaardeUit(*inhoud, toepassing, sectie, sleutel) : std::nullopt;
    };
#endif
}

std::string Winkelplaats()
{
#ifdef _WIN32
    return registerpad;
#else
    return Leesbaar(Winkelbestand());
#endif
}

} // namespace plexoran
