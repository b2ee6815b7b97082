// A walk along every window on a copy of the sample suite.
#pragma once

#include <QApplication>
#include <QTest>

#include "afbeeldingen/vensterronde.h"
#include "hulp/proefstand.h"
#include "mainwindow/frmLedenAdmin.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

class Rondgangproef : public testing::Test, protected Suitestand {
  protected:
    ~Rondgangproef() override
    {
        QApplication::setFont(letter_);
        std::filesystem::current_path(werkmap_);
    }

    /// Every window stands on `scherm` when `bekijk` gets it, shown.
    void Rondgang(QScreen* scherm, const std::function<void(QWidget&)>& bekijk)
    {
        QWidget ouder; // says on which screen the main window begins
        ouder.setScreen(scherm);
        ouder.move(scherm->availableGeometry().topLeft());
        ouder.show();
        frmLedenAdmin hoofdvenster(administratie, &ouder);
        hoofdvenster.move(ouder.pos());
        ASSERT_EQ(std::nullopt, hoofdvenster.Laad(suite.MappenIni(), [] { return true; }));
        const auto bezoek = [&](QWidget& venster) {
            SCOPED_TRACE(venster.objectName().toStdString());
            venster.show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&venster));
            QApplication::processEvents();
            ASSERT_EQ(scherm, venster.screen());
            gezien_ << venster.objectName();
            bekijk(venster);
            if (!venster.inherits("plexoran::frmLedenAdmin"))
                venster.hide();
        };
        DoorloopVensters(hoofdvenster, administratie, bezoek);
        frmBericht bericht(QString(3000, u'x'), u"Bericht"_s, {}, &hoofdvenster);
        bezoek(bericht);
        frmVoortgang voortgang(u"Even geduld"_s, u"&Stoppen"_s, &hoofdvenster);
        voortgang.move(ouder.pos()); // else the window manager places it
        bezoek(voortgang);
        gezien_.removeDuplicates();
        EXPECT_EQ(34, gezien_.size()) << gezien_.join(u' ').toStdString();
    }

  private:
    QFont letter_ = QApplication::font();
    std::filesystem::path werkmap_ = std::filesystem::current_path();
    QStringList gezien_;
};

} // namespace plexoran
