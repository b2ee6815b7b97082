// The manual against the program: it explains every box, and names nothing that is not there.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "platform/scherm/tekstbrug.h"

using namespace plexoran;

namespace {

const QString hoofdmap = QStringLiteral(VOORBEELD "/..");

QString Lees(const QString& pad)
{
    QFile bestand(pad);
    EXPECT_TRUE(bestand.open(QIODevice::ReadOnly)) << pad.toStdString();
    return QString::fromUtf8(bestand.readAll());
}

QString Handleiding()
{
    return Lees(hoofdmap + u"/docs/handleiding.md"_s);
}

struct Bronfile {
    QString naam;
    QString tekst; ///< without comments
};

std::vector<Bronfile> Bronnen()
{
    static const QRegularExpression commentaar(u"^\\s*//.*$|\\s//[^\"\\n]*$|^#include.*$"_s,
                                               QRegularExpression::MultilineOption);
    std::vector<Bronfile> uit;
    for (QDirIterator bron(hoofdmap + u"/src"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
         bron.hasNext();) {
        const QString pad = bron.next();
        uit.push_back({pad.section(u"/src/"_s, -1), Lees(pad).remove(commentaar)});
    }
    EXPECT_GT(uit.size(), 100U);
    return uit;
}

/// A text of the source as the eye reads it; "..." stands for what is filled in.
QString Leesbaar(const QString& stukken)
{
    static const QRegularExpression stuk(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QString uit;
    for (auto plek = stuk.globalMatch(stukken); plek.hasNext();)
        uit += plek.next().captured(1);
    static const QRegularExpression wit(u"\\\\[rnt]"_s);
    static const QRegularExpression plaats(u"%\\d"_s);
    return uit.replace(wit, u" "_s)
        .replace(u"\\xE9"_s, u"é"_s)
        .replace(u"\\\\"_s, u"\\"_s)
        .replace(u"\\\""_s, u"\""_s)
        .replace(plaats, u"\u2026"_s) // one sign, so that it ends no sentence
        .simplified();
}

QString MetPuntjes(QString tekst)
{
    return tekst.replace(u"\u2026"_s, u"..."_s);
}

/// The first sentence, up to a semicolon or colon when there is one; a name that is filled in is
/// none.
QString EersteZin(const QString& tekst)
{
    static const QRegularExpression einde(u"[.!?:;](?=\\s|$)"_s);
    const auto plek = einde.match(tekst, 5);
    return MetPuntjes(plek.hasMatch() ? tekst.left(plek.capturedEnd()) : tekst);
}

/// Texts as they stand in the source, with pieces that the compiler joins joined.
const QRegularExpression
    letterlijk(u"\"(?:[^\"\\\\\\n]|\\\\.)*\"(?:\\s+u?\"(?:[^\"\\\\\\n]|\\\\.)*\")*"_s);

/// From behind the parenthesis up to the one that closes it.
qsizetype EindeVanHaakjes(const QString& tekst, qsizetype begin)
{
    int diep = 1;
    bool binnen = false;
    for (qsizetype i = begin; i < tekst.size(); ++i) {
        const QChar teken = tekst[i];
        if (binnen && teken == u'\\')
            ++i;
        else if (teken == u'"')
            binnen = !binnen;
        else if (!binnen && teken == u'(')
            ++diep;
        else if (!binnen && teken == u')' && --diep == 0)
            return i;
    }
    return tekst.size();
}

/// The first sentences of all boxes: of texts given to what shows one, and of texts elsewhere that
/// tell of a failure, which a routine hands to it.
std::map<QString, QString> Meldingen()
{
    static const QRegularExpression toon(
        u"\\b(?:Meld|MeldLijst|MeldVerslag|MeldFout|MeldSleutelsOp|Vraag|Kies)\\("_s);
    static const QRegularExpression begin(u"^(?:[A-ZÉ'(]|\u2026)"_s);
    static const QRegularExpression zin(u"[.!?:](?:\\s|$)"_s);
    static const QRegularExpression mislukt(
        u"\\b(?:Fout bij|(?:kan|kon|kunnen|konden) (?:\\w+ )?niet (?:\\w+ )?worden|Er is niets)\\b"_s);
    std::map<QString, QString> uit;
    for (const auto& [naam, bron] : Bronnen()) {
        if (naam.startsWith(u"help/"_s))
            continue;
        std::vector<std::pair<qsizetype, qsizetype>> aanroepen;
        for (auto plek = toon.globalMatch(bron); plek.hasNext();) {
            const auto na = plek.next().capturedEnd();
            aanroepen.emplace_back(na, EindeVanHaakjes(bron, na));
        }
        for (auto plek = letterlijk.globalMatch(bron); plek.hasNext();) {
            const auto deze = plek.next();
            const bool inMelding = std::ranges::any_of(aanroepen, [&](const auto& aanroep) {
                return aanroep.first <= deze.capturedStart() &&
                       deze.capturedStart() < aanroep.second;
            });
            const QString tekst = Leesbaar(deze.captured());
            // What begins with white goes on where another text stopped; dots close a caption.
            const bool vervolg =
                deze.captured().startsWith(u"\" "_s) || deze.captured().startsWith(u"\"\\n"_s);
            const bool opschrift = tekst.endsWith(u"..."_s) && !tekst.contains(u'!');
            if (vervolg || opschrift || tekst.size() < 10 || !begin.match(tekst).hasMatch() ||
                !zin.match(tekst).hasMatch() || !(inMelding || mislukt.match(tekst).hasMatch()))
                continue;
            uit.emplace(EersteZin(tekst), naam);
        }
    }
    return uit;
}

/// What the tables of messages explain, with what they say of it.
std::map<QString, QString> Uitgelegd()
{
    static const QRegularExpression rij(u"^\\| \\*([^*].*)\\* \\| (.*) \\|$"_s,
                                        QRegularExpression::MultilineOption);
    std::map<QString, QString> uit;
    const QString tekst = Handleiding();
    for (auto plek = rij.globalMatch(tekst); plek.hasNext();) {
        const auto deze = plek.next();
        EXPECT_TRUE(uit.emplace(deze.captured(1), deze.captured(2)).second)
            << "staat er twee keer: " << deze.captured(1).toStdString();
    }
    return uit;
}

/// All texts of the source without mnemonics, one behind the other.
QString AlleTeksten()
{
    QString uit;
    for (const auto& [naam, bron] : Bronnen()) {
        for (auto plek = letterlijk.globalMatch(bron); plek.hasNext();)
            uit += MetPuntjes(Leesbaar(plek.next().captured())).remove(u'&') + u'\n';
    }
    return uit;
}

} // namespace

TEST(Handleiding, LegtElkeMeldingUit)
{
    const auto uitgelegd = Uitgelegd();
    const auto meldingen = Meldingen();
    EXPECT_GT(meldingen.size(), 120U);
    for (const auto& [zin, bron] : meldingen)
        EXPECT_TRUE(uitgelegd.contains(zin))
            << "Deze melding van " << bron.toStdString()
            << " staat niet in docs/handleiding.md. Zet onder 'Wat betekent deze melding?' een "
               "regel\n| *"
            << zin.toStdString() << "* | wat de gebruiker doet |\nin de tabel waar zij hoort.";
}

TEST(Handleiding, LegtGeenMeldingUitDieErNietIs)
{
    const QString teksten = AlleTeksten();
    for (const auto& [zin, uitleg] : Uitgelegd()) {
        EXPECT_TRUE(teksten.contains(zin)) << zin.toStdString();
        EXPECT_GT(uitleg.size(), 10) << zin.toStdString();
    }
}

/// Keys, and words that begin a step or a warning, are bold too.
TEST(Handleiding, NoemtInVetAlleenWatErIs)
{
    static const QRegularExpression vet(u"\\*\\*([^*]+)\\*\\*"_s);
    static const QRegularExpression toets(
        u"^(?:(?:Ctrl|Shift|Alt)\\+.*|F\\d+|Enter|Escape|Delete|Tab|Pijl omlaag|Let op:|Start Plexoran\\.|Een tweede plaats\\.)$"_s);
    const QString teksten = AlleTeksten();
    const QString handleiding = Handleiding();
    int aantal = 0;
    for (auto plek = vet.globalMatch(handleiding); plek.hasNext(); ++aantal) {
        QString naam = plek.next().captured(1);
        if (toets.match(naam).hasMatch())
            continue;
        naam = naam.simplified();
        if (naam.endsWith(u'.') && !naam.endsWith(u".."_s))
            naam.chop(1);
        EXPECT_TRUE(teksten.contains(naam)) << naam.toStdString();
    }
    EXPECT_GT(aantal, 150);
}

TEST(Handleiding, NoemtAlleenAfbeeldingenDieErZijn)
{
    static const QRegularExpression plaat(u"!\\[([^\\]]+)\\]\\((afbeeldingen/[^)]+)\\)"_s);
    const QString handleiding = Handleiding();
    std::set<QString> genoemd;
    for (auto plek = plaat.globalMatch(handleiding); plek.hasNext();)
        genoemd.insert(plek.next().captured(2));
    EXPECT_GT(genoemd.size(), 7U);
    for (const QString& naam : genoemd)
        EXPECT_TRUE(QFile::exists(hoofdmap + u"/docs/"_s + naam)) << naam.toStdString();
}
