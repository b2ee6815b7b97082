// The proof through a real print queue, which tests/printing/wachtrijproef sets up; no part of the
// quick run.
//
// Prints three pages of the sample suite from the windows of the program and compares every word
// that comes out of the queue with the page as the preview showed it. Around it: what the server
// makes of a range, of the reverse order and of a stop, and how a refusal is told. From the
// environment: PRINTPROEF_WACHTRIJ, the name of the queue, PRINTPROEF_UIT, the folders, joined by
// ":", in one of which the queue puts its PDF, PRINTPROEF_DICHT, a queue that takes no jobs, and
// PRINTPROEF_WEG, one that is removed.
#include <QCheckBox>
#include <QLabel>
#include <QProcess>

#include "hulp/printdialoog.h"
#include "hulp/proefstand.h"
#include "hulp/voortgangstopper.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/regellijst.h"
#include "printing/frmAfdrukken.h"
#include "printing/printproef.h"

using namespace plexoran;

namespace {

constexpr int Bladen = 3;
constexpr int Zoom = 4;          ///< times, so that the dots of the preview are fine
constexpr double Speling = 0.15; ///< millimetres: a tenth, and half a dot of the preview
constexpr int Geduld = 90'000;   ///< milliseconds

std::string Omgeving(const char* naam)
{
    const std::string waarde = qEnvironmentVariable(naam).toStdString();
    if (waarde.empty())
        throw std::runtime_error(std::string(naam) +
                                 " is niet gezet; zie tests/printing/wachtrijproef");
    return waarde;
}

/// A page on its side comes out of a queue on an upright sheet, turned to the right.
Pdfblad Teruggedraaid(const Pdfblad& vel)
{
    Pdfblad blad{vel.hoog, vel.breed, {}};
    for (const Pdfwoord& woord : vel.woorden)
        blad.woorden.push_back({.tekst = woord.tekst,
                                .links = woord.boven,
                                .boven = vel.breed - woord.rechts,
                                .rechts = woord.onder,
                                .onder = vel.breed - woord.links});
    ZetInLeesvolgorde(blad);
    return blad;
}

class WachtrijProef : public testing::Test, protected Suitestand {
  protected:
    void SetUp() override
    {
        std::istringstream mappen(Omgeving("PRINTPROEF_UIT"));
        for (std::string deel; std::getline(mappen, deel, ':');)
            uit_.emplace_back(deel);
        eerder_ = Aanwezig();
    }

    using Bestanden = std::map<std::filesystem::path, std::filesystem::file_time_type>;

    [[nodiscard]] Bestanden Aanwezig() const
    {
        Bestanden bestanden;
        for (const auto& map : uit_) {
            std::error_code geen;
            for (const auto& deel : std::filesystem::directory_iterator(map, geen))
                bestanden[deel.path()] = deel.last_write_time(geen);
        }
        return bestanden;
    }

    /// The file that the queue has written, once it reads as a PDF.
    [[nodiscard]] std::vector<Pdfblad> WachtOpUitvoer() const
    {
        QElapsedTimer klok;
        klok.start();
        while (klok.elapsed() < Geduld) {
            QTest::qWait(500);
            for (const auto& [bestand, tijd] : Aanwezig()) {
                const auto eerder = eerder_.find(bestand);
                if ((eerder != eerder_.end() && eerder->second == tijd) ||
                    bestand.extension() != ".pdf")
                    continue;
                try {
                    auto bladen = LeesPdf(bestand);
                    std::printf("uit de wachtrij: %s\n", bestand.string().c_str());
                    return bladen;
                } catch (const std::exception&) {
                    continue; // still being written
                }
            }
        }
        throw std::runtime_error("er kwam niets uit de wachtrij");
    }

    void WerkVoorbeeld(QDialog& voorbeeld)
    {
        ASSERT_EQ("(Totaal 3)", Vind<QLineEdit>(voorbeeld, "txtAantPages")->text().toStdString());
        while (Vind<QLabel>(voorbeeld, "lblZoom")->text() != u"%1 %"_s.arg(100 * Zoom))
            QTest::keyClick(Vind<QWidget>(voorbeeld, "picP0"), Qt::Key_Plus, Qt::ControlModifier);
        for (int blad = 1; blad <= Bladen; ++blad) {
            Vind<QScrollBar>(voorbeeld, "Bladscroll")->setValue(blad);
            beeld.push_back(
                BladInBeeld(*Vind<QWidget>(voorbeeld, "picP1"), suite.Weg() / "beeld.pdf", Zoom));
        }
        Klik(Vind<QPushButton>(voorbeeld, "cmdPrinten"));
        Klik(Vind<QPushButton>(voorbeeld, "cmdAnnuleren"));
    }

    static void KiesWachtrij(QDialog& dialoog, const char* naam)
    {
        auto* printers = Vind<QComboBox>(dialoog, "printers");
        const int plaats = printers->findText(QString::fromStdString(Omgeving(naam)));
        if (plaats < 0)
            throw std::runtime_error("de wachtrij staat niet tussen de printers");
        printers->setCurrentIndex(plaats);
        emit printers->activated(plaats);
    }
    static void KiesUitWachtrij(QDialog& dialoog, int van, int tot)
    {
        KiesWachtrij(dialoog, "PRINTPROEF_WACHTRIJ");
        KiesReeks(dialoog, van, tot);
    }

    /// The preview of a list of so many rows, whose print dialog will be answered by `stappen`.
    [[nodiscard]] std::unique_ptr<frmAfdrukken>
    OpenLijst(int rijen, const std::function<void(QDialog&)>& stappen)
    {
        eigen = MaakPrintspelers(rijen);
        auto venster = std::make_unique<frmAfdrukken>(
            administratie,
            Afdruk{.tabel = AlleenNaam(eigen), .groeptekst = "Gr01-", .subgroepkop = {}}, nullptr);
        venster->show();
        wachter.Bedien([=](QDialog& dialoog) {
            stappen(dialoog);
            DrukPrintdialoog(dialoog, QDialogButtonBox::AcceptRole);
        });
        return venster;
    }
    /// The failure is told in a box, and the preview stays.
    void MeldtFoutBij(const std::function<void(QDialog&)>& stappen)
    {
        const auto venster = OpenLijst(1, stappen);
        wachter.Begin(u"Het printen is niet gelukt."_s, QMessageBox::Critical);
        Klik(Vind<QPushButton>(*venster, "cmdPrinten"));
        wachter.Klaar();
        EXPECT_TRUE(venster->isVisible());
    }
    /// The number of each page that came out, as its foot has it.
    [[nodiscard]] std::vector<std::string> Bladnummers() const
    {
        std::vector<std::string> nummers;
        for (const Pdfblad& blad : WachtOpUitvoer())
            nummers.push_back(blad.woorden.at(blad.woorden.size() - 3).tekst);
        return nummers;
    }

    Berichtwachter wachter;
    Spelertabel eigen;
    std::vector<Pdfblad> beeld;

  private:
    std::vector<std::filesystem::path> uit_;
    Bestanden eerder_;
};

} // namespace

/// A queue that takes no jobs: the user is told, by what the server said.
TEST_F(WachtrijProef, EenDichteWachtrijWordtGemeld)
{
    MeldtFoutBij([](QDialog& dialoog) { KiesWachtrij(dialoog, "PRINTPROEF_DICHT"); });
}

/// A queue that is taken away while the dialog is open.
TEST_F(WachtrijProef, EenVerdwenenWachtrijWordtGemeld)
{
    MeldtFoutBij([](QDialog& dialoog) {
        KiesWachtrij(dialoog, "PRINTPROEF_WEG");
        QProcess lpadmin;
        lpadmin.start(u"lpadmin"_s, {u"-x"_s, qEnvironmentVariable("PRINTPROEF_WEG")});
        ASSERT_TRUE(lpadmin.waitForFinished());
        ASSERT_EQ(0, lpadmin.exitCode());
    });
}

/// A range is not cut once more by the server, and what was drawn before a stop comes out.
TEST_F(WachtrijProef, EenReeksDieWordtGestopt)
{
    const Voortgangstopper stopper(2);
    const auto venster = OpenLijst(300, [](QDialog& dialoog) { KiesUitWachtrij(dialoog, 2, 5); });
    wachter.Informatie(
        u"Het printen is gestopt na 2 van de 4 bladen. De gegevens van de spelers zijn niet "
        "veranderd. De overige bladen kunt u later printen."_s);
    Klik(Vind<QPushButton>(*venster, "cmdPrinten"));
    wachter.Klaar();
    EXPECT_EQ((std::vector<std::string>{"2", "3"}), Bladnummers());
}

TEST_F(WachtrijProef, OmgekeerdKomtHetLaatsteBladEerst)
{
    const auto venster = OpenLijst(300, [](QDialog& dialoog) {
        KiesUitWachtrij(dialoog, 2, 5);
        Vind<QCheckBox>(dialoog, "reverse")->setChecked(true);
    });
    Klik(Vind<QPushButton>(*venster, "cmdPrinten"));
    wachter.Klaar();
    EXPECT_EQ((std::vector<std::string>{"5", "4", "3", "2"}), Bladnummers());
}

TEST_F(WachtrijProef, DrieBladenZoalsInHetVoorbeeld)
{
    frmLedenAdmin venster(administratie);
    ASSERT_EQ(std::nullopt, venster.Laad(suite.MappenIni(), [] { return true; }));
    venster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    // Gr01- has fifty players; with those of Gr02- they fill three pages.
    Spelertabel& tabel = administratie.spelers.tabel;
    for (int rij = 1; rij <= tabel.Rijen(); ++rij) {
        if (tabel.Cel(rij, Kolom::Groep) == "Gr02-")
            tabel.ZetCel(rij, Kolom::Groep, "Gr01-");
    }
    KiesUit(Vind<QComboBox>(venster, "cmbGr"), 0);

    wachter.Bedien([&](QDialog& keuze) {
        Vind<Regellijst>(keuze, "lstNBBgr")->selectAll();
        auto* kolommen = Vind<Regellijst>(keuze, "lstKeus");
        kolommen->clearSelection();
        for (const int plaats : {0, 1, 2, 3, 7}) // names, telephone, town: A4 on its side
            kolommen->Kies({plaats});
        Klik(Vind<QPushButton>(keuze, "cmdOK"));
        Klik(Vind<QPushButton>(keuze, "cmdAnnuleren"));
    });
    wachter.Bedien([&](QDialog& voorbeeld) { WerkVoorbeeld(voorbeeld); });
    wachter.Bedien([](QDialog& dialoog) {
        KiesUitWachtrij(dialoog, 1, Bladen);
        DrukPrintdialoog(dialoog, QDialogButtonBox::AcceptRole);
    });
    Klik(Vind<QPushButton>(venster, "cmdPrint"));
    wachter.Klaar();

    auto uitvoer = WachtOpUitvoer();
    ASSERT_EQ(static_cast<std::size_t>(Bladen), uitvoer.size());
    ASSERT_EQ(static_cast<std::size_t>(Bladen), beeld.size());
    double grootste = 0;
    std::size_t woorden = 0;
    for (std::size_t blad = 0; blad < uitvoer.size(); ++blad) {
        if (beeld[blad].breed > beeld[blad].hoog && uitvoer[blad].breed < uitvoer[blad].hoog)
            uitvoer[blad] = Teruggedraaid(uitvoer[blad]);
        ASSERT_EQ(beeld[blad].woorden.size(), uitvoer[blad].woorden.size());
        for (std::size_t i = 0; i < uitvoer[blad].woorden.size(); ++i) {
            const Pdfwoord& is = uitvoer[blad].woorden[i];
            const Pdfwoord& moet = beeld[blad].woorden[i];
            ASSERT_EQ(moet.tekst, is.tekst);
            for (const double verschil :
                 {is.links - moet.links, is.rechts - moet.rechts, is.boven - moet.boven}) {
                EXPECT_NEAR(0, verschil, Speling) << is.tekst;
                grootste = std::max(grootste, std::abs(verschil));
            }
            ++woorden;
        }
    }
    std::printf("%zu woorden vergeleken; grootste verschil %.3f mm\n", woorden, grootste);
}
