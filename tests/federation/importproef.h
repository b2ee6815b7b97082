// The import window, opened from the main window on a copy of the sample suite.
#pragma once

#include <QFileDialog>

#include "mainwindow/vensterproef.h"

namespace plexoran {

class Importproef : public Hoofdvensterproef {
  protected:
    using Stappen = std::function<void(QDialog&)>;

    void SetUp() override
    {
        std::filesystem::create_directory(suite.Weg() / "Programma");
        // The samples lie where the window looks first. Each test puts there what it needs.
        std::filesystem::rename(suite.Weg() / "Bestanden/NBB4-Leden",
                                suite.Weg() / "Ledenbestanden");
        administratie.programmamap = (suite.Weg() / "Programma").string();
        ASSERT_NO_FATAL_FAILURE(Start());
        KiesGroep(5);
        oud = suite.Spelers();
    }

    /// What is done in the import window, which is left afterwards if it is still open; boxes and
    /// dialogs that come while it is open are announced after.
    void Verwacht(Stappen stappen)
    {
        wachter.Bedien([stappen = std::move(stappen)](QDialog& dia) {
            stappen(dia);
            if (dia.isVisible())
                Druk(dia, "cmdAnnuleren");
        });
    }
    void Importeer()
    {
        Klik(Knop("cmdHaalNBBnamen"));
        wachter.Klaar();
    }
    /// Without any box.
    void InVenster(Stappen stappen)
    {
        Verwacht(std::move(stappen));
        Importeer();
    }
    /// The database of the sample suite stands in "Rekenprogramma".
    void StartMetDatabase(const char* toepassing = "NBB-Rekenprogramma",
                          const char* map = "Rekenprogramma")
    {
        winkel.Zet(toepassing, "DataRoot", (suite.Weg() / map).string());
        Herstart();
    }
    void VerwachtVraag(const QString& subgroep, int spelers, const QString& antwoord = u"OK"_s)
    {
        wachter.Verwacht(
            {.tekst =
                 u"U gaat van '%1' %2 spelers importeren naar groep 'Gr05-'."_s.arg(subgroep).arg(
                     spelers),
             .antwoord = antwoord,
             .knoppen = {u"OK"_s, u"Annuleren"_s}});
    }
    void VerwachtAantallen(int ververst, int nieuw)
    {
        wachter.Informatie(
            u"Aantal spelers geupdate (ververst): %1\r\nAantal nieuwe spelers toegevoegd: %2"_s
                .arg(ververst)
                .arg(nieuw));
    }
    /// A member file that is taken in, with the question before it.
    void VerwachtImport(const QString& subgroep, int spelers, int ververst, int nieuw)
    {
        VerwachtVraag(subgroep, spelers);
        VerwachtAantallen(ververst, nieuw);
    }
    /// The file dialog, in which a file of the suite is picked.
    void VerwachtBestandskeuze(const QString& filter, const std::filesystem::path& bestand)
    {
        const QString pad = QString::fromStdString((suite.Weg() / bestand).string());
        wachter.Bedien([filter, pad](QDialog& dialoog) {
            auto& keuze = dynamic_cast<QFileDialog&>(dialoog);
            EXPECT_EQ("CommonDialog1", keuze.objectName());
            EXPECT_EQ("Kies 1 bestand uit de gekozen map", keuze.windowTitle());
            EXPECT_EQ(QStringList{filter}, keuze.nameFilters());
            Vind<QLineEdit>(keuze, "fileNameEdit")->setText(pad);
            QMetaObject::invokeMethod(&keuze, "accept");
        });
    }

    static void KiesOptie(QDialog& dia, const char* optie)
    {
        Vind<QRadioButton>(dia, optie)->click();
        QApplication::processEvents();
    }
    static Regellijst* Lijst(const QDialog& dia) { return Vind<Regellijst>(dia, "lstNBBbest"); }
    static std::vector<std::string> Bestanden(const QDialog& dia)
    {
        return Lijstregels(dia, "lstNBBbest");
    }
    /// The text as it reads, without the marks of the mnemonic and of where a long path may be
    /// broken.
    static std::string Labeltekst(const QDialog& dia, const char* label)
    {
        return Vind<QLabel>(dia, label)->text().remove(u'&').remove(QChar(0x200B)).toStdString();
    }
    /// Puts an export in the folder that is looked in first.
    void ZetExport(const std::string& naam, const std::string& inhoud) const
    {
        suite.Zet("Bestanden/NBB4-Leden/" + naam, inhoud);
    }
    void KopieerExports() const
    {
        for (const auto& naam : suite.Namen("Ledenbestanden"))
            ZetExport(naam, suite.Inhoud("Ledenbestanden/" + naam));
    }
    /// The player line with this key, without its number and key.
    [[nodiscard]] std::string Speler(const std::string& key) const
    {
        for (const std::string& regel : RegelsVan(suite.Spelers())) {
            const auto plaats = regel.find("," + key + ",");
            if (plaats < 8)
                return regel.substr(plaats + key.size() + 2);
        }
        return {};
    }
    [[nodiscard]] std::string Sleutelregel() const { return RegelsVan(suite.Spelers()).front(); }

    std::string oud;
};

} // namespace plexoran
