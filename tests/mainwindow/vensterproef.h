// What the tests of the main window share. Controls are found by their names.
#pragma once

#include "hulp/berichtwachter.h"
#include "hulp/proefstand.h"
#include "hulp/tekstvanger.h"
#include "hulp/venstergrepen.h"
#include "mainwindow/frmLedenAdmin.h"

namespace plexoran {

class Vensterproef : public testing::Test {
  protected:
    void Toon(int breed = 1024, int hoog = 700) const
    {
        venster->resize(breed, hoog);
        venster->show();
        if (!QTest::qWaitForWindowActive(venster.get()))
            throw std::runtime_error("het venster komt niet");
    }

    [[nodiscard]] QPushButton* Knop(const char* naam) const
    {
        return Vind<QPushButton>(*venster, naam);
    }
    [[nodiscard]] QLabel* Label(const char* naam) const { return Vind<QLabel>(*venster, naam); }
    [[nodiscard]] QComboBox* Keus(const char* naam) const
    {
        return Vind<QComboBox>(*venster, naam);
    }
    [[nodiscard]] QCheckBox* Vink(const char* naam) const
    {
        return Vind<QCheckBox>(*venster, naam);
    }
    [[nodiscard]] QScrollBar* Balk(const char* naam) const
    {
        return Vind<QScrollBar>(*venster, naam);
    }
    [[nodiscard]] QWidget* Deel(const char* naam) const { return Vind<QWidget>(*venster, naam); }
    [[nodiscard]] QWidget* Vlak() const { return Deel("P1"); }
    /// Element `nummer` of the header buttons.
    [[nodiscard]] QPushButton* Header(int nummer) const
    {
        return Knop(("cmd_" + std::to_string(nummer)).c_str());
    }

    /// Presses a button; all that was expected must have come.
    void Opdracht(const char* naam)
    {
        Klik(Knop(naam));
        wachter.Klaar();
    }
    /// The same for one that opens a window, which `stappen` close.
    void Opdracht(const char* naam, std::function<void(QDialog&)> stappen)
    {
        wachter.Bedien(std::move(stappen));
        Opdracht(naam);
    }
    /// The entry window is filled with a surname.
    void VerwachtIngave(const QString& achternaam)
    {
        wachter.Bedien([achternaam](QDialog& ingave) {
            Schrijf(ingave, "txt1_6", achternaam);
            Druk(ingave, "cmdOK");
        });
    }
    void VoegToe(const QString& achternaam)
    {
        VerwachtIngave(achternaam);
        Opdracht("cmdAanm");
    }
    [[nodiscard]] std::string Aantal() const { return Label("Label3")->text().toStdString(); }

    void KiesGroep(int nummer) const { Keus("cmbGr")->setCurrentIndex(nummer - 1); }
    [[nodiscard]] int GetoondeGroep() const { return Keus("cmbGr")->currentIndex() + 1; }

    /// Where a height on the surface of the grid, in millimetres, is on the screen.
    [[nodiscard]] double Y(double mm) const
    {
        return mm * Maten().PixelsPerMm() - Balk("VScroll1")->value();
    }
    [[nodiscard]] QPoint OpRegel(int regel) const
    {
        return {40, static_cast<int>(Y(5 + (regel - 0.5) * 4.4))};
    }
    void KiesRegel(int regel) const { Klik(Vlak(), OpRegel(regel)); }
    void DubbelklikRegel(int regel) const
    {
        QTest::mouseDClick(Vlak(), Qt::LeftButton, {}, OpRegel(regel));
    }
    void Toets(Qt::Key toets, Qt::KeyboardModifiers bij = {}) const
    {
        QTest::keyClick(Vlak(), toets, bij);
    }
    /// Keys work in the active window only, which nobody makes it here when a box has gone.
    void DrukMetCtrl(Qt::Key toets)
    {
        venster->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
        Toets(toets, Qt::ControlModifier);
        wachter.Klaar();
    }
    /// The selected line as the grid speaks it; 0 for none.
    [[nodiscard]] int GekozenRegel() const
    {
        const QString tekst = Vlak()->accessibleDescription();
        return tekst.startsWith(u"Regel "_s) ? tekst.mid(6).section(u',', 0, 0).toInt() : 0;
    }
    /// The register key of the player on the selected line.
    [[nodiscard]] std::string GekozenSleutel() const
    {
        const QString tekst = Vlak()->accessibleDescription();
        return tekst.section(u"Key "_s, 1).left(6).toStdString();
    }

    /// What is painted on a part, which must lie on it.
    static std::string GetekendOp(QWidget* deel)
    {
        Tekstvanger vanger(deel->size());
        deel->render(&vanger, {}, {}, QWidget::RenderFlags());
        std::string tekst;
        for (const Getekend& stuk : vanger.Teksten()) {
            EXPECT_GE(stuk.x, 0);
            EXPECT_LE(stuk.x + stuk.breed, deel->width());
            tekst += stuk.tekst;
        }
        return tekst;
    }

    Berichtwachter wachter;
    std::unique_ptr<frmLedenAdmin> venster;
};

/// The lines of a text whose lines end in CR LF; another end shows up in the line.
inline std::vector<std::string> RegelsVan(const std::string& tekst)
{
    std::vector<std::string> regels;
    for (std::size_t begin = 0; begin < tekst.size();) {
        const auto eind = tekst.find("\r\n", begin);
        if (eind == std::string::npos) {
            regels.push_back(tekst.substr(begin) + "<zonder regeleinde>");
            break;
        }
        regels.push_back(tekst.substr(begin, eind - begin));
        begin = eind + 2;
    }
    return regels;
}

/// The main window on a copy of the sample suite, with production saving.
class Hoofdvensterproef : public Vensterproef, protected Suitestand {
  protected:
    /// Closing the window changes the working folder to the suite's, which is gone then.
    ~Hoofdvensterproef() override
    {
        venster.reset();
        std::filesystem::current_path(werkmap_);
    }

    void Start(int breed = 1024, int hoog = 700)
    {
        venster = std::make_unique<frmLedenAdmin>(administratie);
        EXPECT_EQ(std::nullopt, venster->Laad(suite.MappenIni(), [] { return true; }));
        Toon(breed, hoog);
    }

    /// Ends the program and starts it again on the same folders.
    void Herstart()
    {
        EXPECT_TRUE(venster->close());
        venster.reset();
        administratie.mappen = {};
        administratie.instellingen = {};
        administratie.groepen = {};
        administratie.spelers = {};
        Start();
    }
    /// The same with other players.
    void HerstartMet(const std::string& spelers)
    {
        suite.Zet("Spelers/RVDspelers.txt", spelers);
        Herstart();
    }

  private:
    std::filesystem::path werkmap_ = std::filesystem::current_path();
};

/// The main window open on it.
class HoofdvensterTest : public Hoofdvensterproef {
  protected:
    HoofdvensterTest() { Start(); }
};

} // namespace plexoran
