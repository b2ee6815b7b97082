#include "federation/leesfoutmelding.h"

#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

QString Aanhef(Ledenbron bron, Tekstblik naam)
{
    if (bron == Ledenbron::Database)
        return u"Fout bij het lezen van het ledenbestand (alle items)!"_s;
    return u"Fout bij het lezen van '%1' %2-bestand"_s.arg(
        NaarQString(naam), bron == Ledenbron::Csv       ? u"CSV"_s
                           : bron == Ledenbron::XmlNbb3 ? u"NBB3-XML"_s
                                                        : u"NBB4-XML"_s);
}

QString Oorzaak(Foutsoort soort)
{
    if (soort == Foutsoort::Ontbreekt)
        return u"Het bestand is er niet (meer)"_s;
    return soort == Foutsoort::Beschadigd
               ? u"Het ledenbestand kan niet worden gelezen"_s
               : u"Het bestand hieronder kan niet worden gelezen of geschreven"_s;
}

QString Raad(Ledenbron bron, Foutsoort soort)
{
    if (bron == Ledenbron::Database)
        return u"Kies zo nodig een geëxporteerd ledenbestand."_s;
    return soort == Foutsoort::Ontbreekt || soort == Foutsoort::Beschadigd
               ? u"Exporteer het opnieuw of kies een ander ledenbestand."_s
               : u"Verhelp de oorzaak of kies een ander ledenbestand."_s;
}

} // namespace

QString Leesfouttekst(Ledenbron bron, Tekstblik naam, const Fout& fout, Leesdoel doel)
{
    const QString tekst =
        Aanhef(bron, naam) + u"\r\n"_s + Oorzaak(fout.soort) +
        (doel == Leesdoel::Import ? u"; er is niets uit geïmporteerd. "_s
                                  : u"; de leden ervan staan niet in het overzicht. "_s) +
        Raad(bron, fout.soort);
    Fout plaats = fout;
    if (fout.soort == Foutsoort::Ontbreekt)
        plaats.systeem.clear(); // would say the same again, perhaps in another language
    const QString bijzonderheden = Bijzonderheden(plaats);
    return bijzonderheden.isEmpty() ? tekst : tekst + u"\r\n\r\n"_s + bijzonderheden;
}

QString Leesfoutreden(const Fout& fout)
{
    if (fout.soort == Foutsoort::Ontbreekt)
        return u"het bestand is er niet (meer)"_s;
    QString reden = fout.soort == Foutsoort::Beschadigd
                        ? u"het bestand kon niet als XML worden gelezen"_s
                        : u"het systeem stond het lezen niet toe"_s;
    if (fout.regel > 0)
        reden += u"; regel %1"_s.arg(fout.regel);
    if (!fout.systeem.empty())
        reden += u": "_s + QString::fromStdString(fout.systeem);
    return reden;
}

} // namespace plexoran
