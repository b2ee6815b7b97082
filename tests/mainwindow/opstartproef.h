// The start-up on a disk in memory that writes down what happens to it.
#pragma once

#include "mainwindow/frmLedenAdmin_opstart.h"
#include "mainwindow/vensterproef.h"

namespace plexoran {

inline const QString isNogLeeg =
    u"Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"_s;
inline const QString mappenvraag =
    u" Uw gegevens zijn niet veranderd, maar zonder dat bestand weet dit programma niet waar ze "
    "staan. Zet het goede bestand op deze plaats, of start Plexoran met --mappen en de naam van "
    "het bestand.\n\n"_s;
inline const QString mapvraag =
    u" De gegevens van de spelers zijn niet veranderd. Kijk na of de map in 'Mappen.ini' bestaat "
    "en of u erin mag schrijven.\n\n"_s;
inline const QString blijftZoHetIs =
    u"\n\nHet bestand zelf is niet veranderd; voordat dit programma het de eerste keer vervangt, "
    "komt er een kopie van in de map Reservekopie."_s;
inline const QString sleutelgevolg =
    u". Nieuwe spelers krijgen daardoor een sleutel vanaf 100001, die al van een ander kan zijn: "
    "voeg er geen toe voordat die regel is hersteld."_s;
inline const QString nietGeopend =
    u"Het spelerbestand kan niet worden geopend; er is niets uit gelezen en niets aan veranderd. "
    "Voeg nu geen spelers toe, maar verhelp de oorzaak en start het programma opnieuw.\n\n"_s;
inline const QString groepenwat = u"Het bestand met de groepsnamen"_s;
inline const QString spelerwat = u"Het spelerbestand"_s;
inline const QString LeegBeginnen = u"Leeg beginnen"_s;
inline const QString Terugzetten = u"Terugzetten"_s;
inline const QString Spelerbestand = u"Bestand: C:\\RVD\\Spelers\\RVDspelers.txt"_s;

inline const std::string ini = "RVDMAP=C:\\RVD\r\n"
                               "ADMMAP=C:\\RVD\\Admin\r\n"
                               "SPEMAP=C:\\RVD\\Spelers\r\n"
                               "WINMAP=C:\\RVD\\Bestanden\r\n"
                               "DFIMPG=Gr05-\r\n";

/// The group file as it is made new.
inline std::string KaleGroepen()
{
    std::string tekst;
    for (int nummer = 1; nummer <= 50; ++nummer)
        tekst += std::string("Gr") + (nummer < 10 ? "0" : "") + std::to_string(nummer) + "-\r\n";
    return tekst;
}

inline std::string Speler(const std::string& nr, const std::string& sleutel,
                          const std::string& groep, const std::string& achternaam)
{
    return nr + "," + sleutel + "," + groep + ",Jan,," + achternaam + ",,,,,,,M,,,,,";
}

/// A disk in memory that writes down what the start-up does to it.
class Logschijf : public GeheugenSchijf {
  public:
    std::vector<std::string> log;

    Uitkomst<Tekst> LeesBestand(const Pad& pad) override
    {
        log.push_back("lees " + pad);
        return GeheugenSchijf::LeesBestand(pad);
    }
    Uitkomst<void> MaakMap(const Pad& map) override
    {
        log.push_back("map " + map);
        return GeheugenSchijf::MaakMap(map);
    }
    Uitkomst<void> Hernoem(const Pad& van, const Pad& naar) override
    {
        log.push_back("schrijf " + naar);
        return GeheugenSchijf::Hernoem(van, naar);
    }
};

class Opstartproef : public Vensterproef {
  protected:
    Opstartproef()
    {
        hoofd.setWindowTitle(u"[*]"_s);
        geheugen.ZetMap("C:\\RVD\\Admin");
        geheugen.ZetMap("C:\\RVD\\Spelers");
        geheugen.ZetMap("C:\\RVD\\Bestanden");
        geheugen.Zet("C:\\RVD\\Mappen.ini", ini);
    }
    ~Opstartproef() override { venster.reset(); }

    /// The start-up alone, without a window.
    void Lees(bool gelukt = true)
    {
        EXPECT_EQ(gelukt, LeesMappen(administratie, &hoofd, "C:\\RVD\\Mappen.ini"));
        if (gelukt) {
            EXPECT_FALSE(LeesBijStart(administratie, &hoofd, false)) << "nothing to be saved";
        }
        wachter.Klaar();
    }
    /// With the window that shows what was read.
    std::optional<int> Laad(bool eersteExemplaar = true)
    {
        venster = std::make_unique<frmLedenAdmin>(administratie);
        const auto status =
            venster->Laad("C:\\RVD\\Mappen.ini", [eersteExemplaar] { return eersteExemplaar; });
        wachter.Klaar();
        return status;
    }
    void Start()
    {
        EXPECT_EQ(std::nullopt, Laad());
        Toon();
    }

    void ZetSpelers(const std::string& inhoud)
    {
        geheugen.Zet("C:\\RVD\\Spelers\\RVDspelers.txt", inhoud);
    }
    void ZetGroepen(const std::string& inhoud)
    {
        geheugen.Zet("C:\\RVD\\Spelers\\RVDGroepen.txt", inhoud);
    }
    void ZetInstellingen(const std::string& inhoud)
    {
        geheugen.Zet("C:\\RVD\\Admin\\Plexo.ini", inhoud);
    }
    std::optional<Tekst> Spelers() { return geheugen.Inhoud("C:\\RVD\\Spelers\\RVDspelers.txt"); }
    std::optional<Tekst> Groepen() { return geheugen.Inhoud("C:\\RVD\\Spelers\\RVDGroepen.txt"); }
    std::optional<Tekst> Plexo() { return geheugen.Inhoud("C:\\RVD\\Admin\\Plexo.ini"); }

    /// The contents of the copies of a file, such as "RVDspelers".
    std::vector<Tekst> Kopieen(const Tekst& naam)
    {
        std::vector<Tekst> inhouden;
        for (const Pad& pad : geheugen.AlleBestanden()) {
            if (pad.starts_with("C:\\RVD\\Spelers\\Reservekopie\\" + naam + " "))
                inhouden.push_back(*geheugen.Inhoud(pad));
        }
        return inhouden;
    }

    /// Where a line first stands in the log; far behind everything when it does not.
    std::ptrdiff_t Wanneer(const std::string& regel) const
    {
        const auto plaats = std::find(geheugen.log.begin(), geheugen.log.end(), regel);
        EXPECT_NE(geheugen.log.end(), plaats) << regel << " is niet gebeurd";
        return plaats - geheugen.log.begin();
    }

    void VerwachtNietTotHetEinde(int spelers, int velden, int regel)
    {
        wachter.Waarschuwing(isNogLeeg);
        wachter.Informatie(
            u"Het spelerbestand is niet tot het einde gelezen; er %1 in de tabel, want de "
            "genoemde regel heeft %2 in plaats van 18. Laat die regel herstellen voordat u iets "
            "invoert."_s.arg(spelers == 1 ? u"staat nu 1 speler"_s
                                          : u"staan nu %1 spelers"_s.arg(spelers),
                             velden == 1 ? u"1 veld"_s : u"%1 velden"_s.arg(velden)) +
            blijftZoHetIs + u"\n\n"_s + Spelerbestand + u"\nRegel: %1"_s.arg(regel));
    }

    /// Of a file that was made anew although it held something.
    void VerwachtTerugzetvraag(const QString& wat, const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 wat +
                 u" begon met een lege regel of een leeg gegeven en is daarom vervangen door een "
                 "nieuw, leeg bestand. Wat erin stond, staat heel in een kopie. Zet het terug "
                 "zonder dat lege begin, tenzij u met een leeg bestand wilt beginnen.\n\nKopie: "
                 "C:\\RVD\\Spelers\\Reservekopie\\RVD"_s,
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {u"Leeg beginnen"_s, u"Terugzetten"_s},
             .alleenBegin = true});
    }

    void VerwachtSleutelvraag(int hoogste, int geldt, const QString& antwoord)
    {
        wachter.Verwacht(
            {.tekst =
                 u"In het spelerbestand staat een speler met sleutel %1, maar als hoogste "
                 "uitgegeven sleutel (HKEY=) geldt %2. Een nieuwe speler kan daardoor een sleutel "
                 "krijgen die al van een ander is. Met Verhogen geldt voortaan %1; met Niet "
                 "verhogen blijft alles zoals het is."_s.arg(hoogste)
                     .arg(geldt),
             .antwoord = antwoord,
             .icoon = QMessageBox::Warning,
             .knoppen = {u"Verhogen"_s, u"Niet verhogen"_s}});
    }

    /// Forgets the players that were read and the copies.
    void BeginOpnieuw()
    {
        administratie.spelers = {};
        for (const Pad& pad : geheugen.AlleBestanden()) {
            if (pad.find("Reservekopie") != Pad::npos) {
                ASSERT_TRUE(geheugen.Verwijder(pad));
            }
        }
    }

    /// A player of the first group, saved.
    void VoegToe(const Tekst& achternaam)
    {
        Rijvelden velden;
        velden[Index(Kolom::Achternaam)] = achternaam;
        ASSERT_TRUE(VoegSpelerToe(administratie.spelers, "Gr01-", velden));
        afloop = Spelersopslag(administratie, &hoofd, [] {}).SlaOp();
        wachter.Klaar();
    }

    Logschijf geheugen;
    Proefwinkel winkel;
    Administratie administratie{.schijf = geheugen, .winkel = [this](auto... waar) {
                                    geheugen.log.emplace_back("rekenprogramma");
                                    return winkel(waar...);
                                }};
    QWidget hoofd;
    Opslag afloop = Opslag::Gelukt;
};

} // namespace plexoran
