#include "federation/leesfoutmelding.h"

#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

QString Aanhef(Ledenbron bron, Tekstblik naam)
{
    switch (bron) {
    case Ledenbron::Database:
        return QStringLiteral("Fout bij het lezen van het ledenbestand (alle items)!");
    case Ledenbron::Csv:
        return QStringLiteral("Fout bij het lezen van '%1' CSV-bestand").arg(NaarQString(naam));
    case Ledenbron::XmlNbb3:
        return QStringLiteral("Fout bij het lezen van '%1' NBB3-XML-bestand")
            .arg(NaarQString(naam));
    case Ledenbron::XmlNbb4:
        break;
    }
    return QStringLiteral("Fout bij het lezen van '%1' NBB4-XML-bestand").arg(NaarQString(naam));
}

QString Oorzaak(const Fout& fout)
{
    switch (fout.soort) {
    case Foutsoort::Ontbreekt:
        return QStringLiteral("Het bestand is er niet (meer)");
    case Foutsoort::Beschadigd:
        return fout.bestand.empty() // its name is to blame
                   ? QStringLiteral("Het ledenbestand kan niet worden gelezen")
                   : QStringLiteral("De inhoud is niet die van een ledenbestand");
    default:
        return QStringLiteral("Het bestand hieronder kan niet worden gelezen of geschreven");
    }
}

} // namespace

QString Leesfouttekst(Ledenbron bron, Tekstblik naam, const Fout& fout, Leesdoel doel)
{
    const QString tekst =
        Aanhef(bron, naam) + QStringLiteral("\r\n") + Oorzaak(fout) +
        (doel == Leesdoel::Import
             ? QStringLiteral("; er is niets uit geïmporteerd. ")
             : QStringLiteral("; de leden ervan staan niet in het overzicht. ")) +
        (bron == Ledenbron::Database
             ? QStringLiteral("Kies zo nodig een geëxporteerd ledenbestand.")
             : QStringLiteral("Exporteer het opnieuw of kies een ander ledenbestand."));
    Fout plaats = fout;
    if (fout.soort == Foutsoort::Ontbreekt)
        plaats.systeem.clear(); // would say the same again, perhaps in another language
    const QString bijzonderheden = Bijzonderheden(plaats);
    return bijzonderheden.isEmpty() ? tekst : tekst + QStringLiteral("\r\n\r\n") + bijzonderheden;
}

QString Leesfoutreden(const Fout& fout)
{
    if (fout.soort == Foutsoort::Ontbreekt)
        return QStringLiteral("het bestand is er niet (meer)");
    QString reden = fout.soort == Foutsoort::Beschadigd
                        ? QStringLiteral("het bestand kon niet als XML worden gelezen")
                        : QStringLiteral("het systeem stond het lezen niet toe");
    if (fout.regel > 0)
        reden += QStringLiteral("; regel %1").arg(fout.regel);
    if (!fout.systeem.empty())
        reden += QStringLiteral(": ") + QString::fromStdString(fout.systeem);
    return reden;
}

} // namespace plexoran
