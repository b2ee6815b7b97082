#include "opdrachtregel.h"

#include <QCommandLineParser>

#include <cstdio>

#include "platform/bronnen/instellingenwinkel.h"
#include "platform/scherm/tekstbrug.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace plexoran {
namespace {

constexpr auto gebruik = R"(Gebruik: plexoran [opties]

Plexoran houdt de spelers van een bridgeclub bij.

Opties:
  --mappen BESTAND      lees de mappen uit dit bestand in plaats van uit het
                        bestand "Mappen.ini" bij het programma
  --slot BESTAND        kijk alleen met dit bestand of het programma al loopt
  --help                toon deze uitleg
  --version             toon de versie

Zonder --mappen wordt "Mappen.ini" gezocht in de map van het programma of, als
ergens in het pad van die map "Admin" voorkomt, in de map erboven. Staat het
daar niet, dan geldt het bestand dat bij de eerste start is gekozen.
De mappen van de rekenprogramma's worden gelezen uit:
  %1
)";

constexpr int VerkeerdGebruik = 2;

/// On Windows a program with windows has no console. The answers go to that of who started it,
/// unless they were sent elsewhere already.
void ZorgVoorUitvoer()
{
#ifdef _WIN32
    const auto heeft = [](DWORD stroom) {
        const HANDLE greep = ::GetStdHandle(stroom);
        return greep != nullptr && greep != INVALID_HANDLE_VALUE;
    };
    const bool uit = heeft(STD_OUTPUT_HANDLE);
    const bool fout = heeft(STD_ERROR_HANDLE);
    if ((uit && fout) || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0)
        return;
    if (!uit)
        static_cast<void>(std::freopen("CONOUT$", "w", stdout));
    if (!fout)
        static_cast<void>(std::freopen("CONOUT$", "w", stderr));
#endif
}

/// The program ends at once with this status; what it had to say has been said.
using Eindstatus = tl::unexpected<int>;

Eindstatus Weiger(const QString& reden)
{
    ZorgVoorUitvoer();
    const std::string tekst = reden.toStdString();
    std::fprintf(stderr, "plexoran: %s\nProbeer 'plexoran --help'.\n", tekst.c_str());
    return Eindstatus(VerkeerdGebruik);
}

Eindstatus Antwoord(const QString& tekst)
{
    ZorgVoorUitvoer();
    std::fputs(tekst.toUtf8().constData(), stdout);
    return Eindstatus(std::fflush(stdout) == 0 ? 0 : 1);
}

} // namespace

tl::expected<Opdrachten, int> LeesOpdrachtregel(int argc, char** argv)
{
    QStringList woorden;
    for (int i = 0; i < argc; ++i)
        woorden << QString::fromLocal8Bit(argv[i]);

    const QCommandLineOption mappen(u"mappen"_s, {}, u"BESTAND"_s);
    const QCommandLineOption slot(u"slot"_s, {}, u"BESTAND"_s);
    const QCommandLineOption help(u"help"_s);
    const QCommandLineOption versie(u"version"_s);
    QCommandLineParser lezer;
    lezer.addOptions({mappen, slot, help, versie});
    const bool begrepen = lezer.parse(woorden);

    if (!lezer.unknownOptionNames().isEmpty())
        return Weiger(u"onbekende optie '%1'"_s.arg(lezer.unknownOptionNames().constFirst()));
    if (!begrepen)
        return Weiger(u"bij een optie ontbreekt de waarde"_s);
    if (!lezer.positionalArguments().isEmpty())
        return Weiger(u"onbekend woord '%1'"_s.arg(lezer.positionalArguments().constFirst()));
    if (lezer.isSet(help))
        return Antwoord(QString::fromUtf8(gebruik).arg(QString::fromStdString(Winkelplaats())));
    if (lezer.isSet(versie))
        return Antwoord(QStringLiteral("Plexoran " PLEXORAN_VERSIE "\n"));
    for (const auto& optie : {mappen, slot}) {
        if (lezer.isSet(optie) && lezer.value(optie).isEmpty())
            return Weiger(u"bij --%1 ontbreekt de waarde"_s.arg(optie.names().constFirst()));
    }
    return Opdrachten{.mappenIni = lezer.value(mappen).toStdString(),
                      .slot = lezer.value(slot).toStdU16String()};
}

} // namespace plexoran
