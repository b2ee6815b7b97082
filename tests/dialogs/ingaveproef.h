// The entry dialog as the main window opens it.
#pragma once

#include <QClipboard>
#include <QPainter>
#include <QRadioButton>

#include "dialogs/diaIngave.h"
#include "hulp/dialoogproef.h"

namespace plexoran {

struct Ingavestand {
    Rijvelden velden;
    Ingave ingave;
    std::int16_t terugkeer = 0;
    int bewaard = 0;
};

class Ingaveproef : public Dialoogproef<diaIngave, Ingavestand> {
  protected:
    Ingaveproef()
    {
        for (std::size_t i = 0; i < velden.size(); ++i)
            velden[i] = "veld" + std::to_string(i + 1);
        velden[12] = "M";
        velden[16] = "A-LIJN";
        velden[17] = "1234567";
        hoofd.setGeometry(50, 60, 600, 500);
    }

    void Open(const Tekst& groeptekst = "Gr05-Bondsleden", bool importgroep = true,
              const Tekst& modus = {})
    {
        venster.reset();
        ingave = {};
        ingave.IngaveModus = modus;
        ingave.rij = 37;
        ingave.groeptekst = groeptekst;
        ingave.importgroep = importgroep;
        ingave.IngaveVelden = velden;
        venster = std::make_unique<diaIngave>(
            ingave, terugkeer, [this] { ++bewaard; }, &hoofd);
        ToonHet();
    }
    void OpenGewoneGroep() { Open("Gr02-Avond", false); }

    [[nodiscard]] Tekstvak* Vak(int veld) const
    {
        return Deel<Tekstvak>("txt1_" + std::to_string(veld));
    }
    [[nodiscard]] QLabel* Label(int veld) const
    {
        return Deel<QLabel>("lbl1_" + std::to_string(veld));
    }
    [[nodiscard]] QRadioButton* Keus(int veld) const
    {
        return Deel<QRadioButton>("opt1_" + std::to_string(veld));
    }
    [[nodiscard]] std::string Tekst_(int veld) const { return Vak(veld)->text().toStdString(); }

    /// After a message box the dialog gets the focus back, as on a real screen.
    void Activeer() const
    {
        venster->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(venster.get()));
    }
    void TypIn(int veld, const QString& tekst) const
    {
        Activeer();
        Schrijf(*venster, ("txt1_" + std::to_string(veld)).c_str(), tekst);
    }
    void PlakIn(int veld, const QString& tekst) const
    {
        QApplication::clipboard()->setText(tekst);
        Vak(veld)->setFocus();
        Vak(veld)->selectAll();
        QTest::keyClick(Vak(veld), Qt::Key_V, Qt::ControlModifier);
        QApplication::processEvents();
    }
    void Tab() const
    {
        QTest::keyClick(venster->focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    }
    void Enter(int veld) const
    {
        QTest::keyClick(Vak(veld), Qt::Key_Return);
        QApplication::processEvents();
    }
    void KlikOK() const { Klik(Deel<QPushButton>("cmdOK")); }

    void VerwachtKomma() { wachter.Informatie(u"Komma's worden veranderd in Underscores"_s); }
    void VerwachtPartner()
    {
        wachter.Informatie(
            u"Bij dummy-speler 'Partner...' worden spaties veranderd in Underscores"_s);
    }
    void VerwachtGeenAchternaam()
    {
        wachter.Waarschuwing(u"U moet minimaal de ACHTERNAAM invullen!"_s);
    }

    [[nodiscard]] bool IsOpen() const { return venster->isVisible(); }
    [[nodiscard]] bool Geaccepteerd() const
    {
        return !IsOpen() && venster->result() == QDialog::Accepted;
    }
};

} // namespace plexoran
