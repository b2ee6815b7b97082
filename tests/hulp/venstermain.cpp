// The main of tests that show windows: off screen, in Dutch, looking the same on every machine. A
// warning of Qt fails the test in which it comes.
#include <QApplication>

#include <cstdio>

#include <gtest/gtest.h>

#include "platform/bronnen/access.h"
#include "platform/scherm/inrichting.h"

using namespace Qt::StringLiterals;

namespace {

/// A display that the user chose is kept, so that a test can be looked at.
void ZetAlsLeeg(const char* naam, const char* waarde)
{
    if (!qEnvironmentVariableIsSet(naam))
        qputenv(naam, waarde);
}

void Vang(QtMsgType soort, const QMessageLogContext&, const QString& tekst)
{
    // What the off-screen display cannot do is no fault of the program.
    const bool vanHetScherm = tekst.startsWith("This plugin does not support"_L1);
    if (vanHetScherm || tekst.contains("XDG_RUNTIME_DIR"_L1))
        return;
    std::fprintf(stderr, "Qt: %s\n", qPrintable(tekst));
    if (soort != QtDebugMsg && soort != QtInfoMsg)
        ADD_FAILURE() << "waarschuwing van Qt: " << tekst.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    plexoran::WerkAlsAccesskind(argc,
                                argv); // the running program is its own child, as in production
    ZetAlsLeeg("QT_QPA_PLATFORM", "offscreen");
    ZetAlsLeeg("QT_FONT_DPI", "96");
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(Vang);
    QApplication programma(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    plexoran::RichtIn(programma);
    return RUN_ALL_TESTS();
}
