#include "hulp/pdfteksten.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr double MmPerPunt = 25.4 / 72.0;

double Maat(const QXmlStreamAttributes& kenmerken, const char* naam)
{
    return kenmerken.value(QLatin1String(naam)).toDouble() * MmPerPunt;
}

/// What a reader of PDF files writes; throws when it cannot.
QByteArray Uitvoer(const QString& programma, const QStringList& bij)
{
    QProcess lezer;
    lezer.start(programma, bij);
    if (!lezer.waitForFinished() || lezer.exitCode() != 0)
        throw std::runtime_error(programma.toStdString() + " leest " +
                                 bij.join(u' ').toStdString() +
                                 " niet: " + lezer.readAllStandardError().toStdString());
    return lezer.readAllStandardOutput();
}

std::string Aaneen(const std::vector<Pdfwoord>& woorden)
{
    std::string tekst;
    for (const Pdfwoord& woord : woorden)
        tekst += (tekst.empty() ? "" : " ") + woord.tekst;
    return tekst;
}

} // namespace

std::string Pdfblad::Regel(double boven) const
{
    constexpr double speling = 0.1;
    std::vector<Pdfwoord> regel;
    for (const Pdfwoord& woord : woorden) {
        if (std::abs(woord.boven - boven) < speling)
            regel.push_back(woord);
    }
    return Aaneen(regel);
}

std::string Pdfblad::Tekst() const
{
    return Aaneen(woorden);
}

const Pdfwoord& Pdfblad::Woord(const std::string& tekst) const
{
    for (const Pdfwoord& woord : woorden) {
        if (woord.tekst == tekst)
            return woord;
    }
    throw std::runtime_error("niet op het blad: " + tekst + "; er staat: " + Tekst());
}

void ZetInLeesvolgorde(Pdfblad& blad)
{
    auto& woorden = blad.woorden;
    constexpr double zelfdeRegel = 0.5; // millimetre
    const auto opX = [](const Pdfwoord& een, const Pdfwoord& ander) {
        return een.links < ander.links;
    };
    std::stable_sort(
        woorden.begin(), woorden.end(),
        [](const Pdfwoord& een, const Pdfwoord& ander) { return een.boven < ander.boven; });
    for (auto begin = woorden.begin(); begin != woorden.end();) {
        const auto eind = std::find_if(begin, woorden.end(), [&](const Pdfwoord& woord) {
            return woord.boven > begin->boven + zelfdeRegel;
        });
        std::stable_sort(begin, eind, opX);
        begin = eind;
    }
}

std::vector<Pdfblad> LeesPdf(const std::filesystem::path& bestand)
{
    std::vector<Pdfblad> bladen;
    QXmlStreamReader xml(Uitvoer(
        u"pdftotext"_s, {u"-bbox"_s, QString::fromStdU16String(bestand.u16string()), u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes bij = xml.attributes();
        if (xml.name() == "page"_L1)
            bladen.push_back({Maat(bij, "width"), Maat(bij, "height"), {}});
        else if (xml.name() == "word"_L1 && !bladen.empty())
            bladen.back().woorden.push_back({.tekst = xml.readElementText().toStdString(),
                                             .links = Maat(bij, "xMin"),
                                             .boven = Maat(bij, "yMin"),
                                             .rechts = Maat(bij, "xMax"),
                                             .onder = Maat(bij, "yMax")});
    }
    for (Pdfblad& blad : bladen)
        ZetInLeesvolgorde(blad); // the reader takes columns one by one
    return bladen;
}

QImage Pdfbeeld(const std::filesystem::path& bestand, int puntenPerMm)
{
    return QImage::fromData(
        Uitvoer(u"pdftoppm"_s,
                {u"-gray"_s, u"-singlefile"_s, u"-r"_s, QString::number(25.4 * puntenPerMm),
                 QString::fromStdU16String(bestand.u16string())}),
        "PGM");
}

} // namespace plexoran
