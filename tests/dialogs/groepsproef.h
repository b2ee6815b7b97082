// What the tests of the dialogs over groups share: a small register and its groups.
#pragma once

#include "hulp/dialoogproef.h"
#include "hulp/proefstand.h"
#include "hulp/tabelmaker.h"
#include "platform/scherm/regellijst.h"

namespace plexoran {

inline const std::string spaties60(60, ' ');
using Teksten_t = std::vector<std::string>;

template <class Dialoog> class Groepsproef : public Dialoogproef<Dialoog, Geheugenstand> {
    using Basis = Dialoogproef<Dialoog, Geheugenstand>;

  protected:
    using Basis::administratie;
    using Basis::venster;

    Groepsproef()
    {
        administratie.mappen.DFIMPG = "Gr05-";
        administratie.groepen.ZetNaam(1, "Clubleden & co");
        administratie.groepen.ZetNaam(5, "Bondsleden");
        administratie.groepen.ZetNaam(8, "Introduc\xE9s");
        administratie.spelers.HKEY = 100042;
        administratie.spelers.tabel =
            MaakTabel({{"100001", "Gr01-", "An", "", "Bos", "A-lijn", "1"},
                       {"100002", "Gr05-", "Bea", "de", "Cock", "DINSDAG", "2"},
                       {"100003", "Gr02-", "Cor", "van der", "Dam", "", ""},
                       {"100004", "Gr01-", "Dirk", "", "Eik", "", "4"},
                       {"100005", "Gr01-", "Els", "", "Fuik", "A-lijn", ""},
                       {"100006", "Gr05-", "Fred", "", "Gans", "MAANDAG", "6"}});
    }

    void Open() { this->Toon(administratie); }
    void OpenMet(const std::vector<Proefspeler>& spelers)
    {
        administratie.spelers.tabel = MaakTabel(spelers);
        Open();
    }
    void SetUp() override { Open(); }

    [[nodiscard]] QComboBox* Keus(const char* naam) const
    {
        return Vind<QComboBox>(*venster, naam);
    }
    void Kies(const char* naam, int plaats) const { KiesUit(Keus(naam), plaats); }
    [[nodiscard]] Regellijst* Lijst() const { return Vind<Regellijst>(*venster, "lstKeus"); }
    [[nodiscard]] Teksten_t Regels() const { return Lijstregels(*venster, "lstKeus"); }
    void KlikRegel(int plaats) const { plexoran::KlikRegel(*venster, "lstKeus", plaats); }
    /// Opens the window three times, does `keuze` and closes it without its command: by its button,
    /// by Escape and by the close box. The register stays as it was.
    void VerwachtDatSluitenNietsVerandert(const std::function<void()>& keuze)
    {
        const auto oud = AlleRijen(administratie.spelers.tabel);
        for (int weg = 0; weg < Basis::Sluitwegen; ++weg) {
            Open();
            keuze();
            this->Sluit(weg, "cmdAnnuleren");
            EXPECT_TRUE(venster->IngaveGeannuleerd());
            EXPECT_EQ(oud, AlleRijen(administratie.spelers.tabel));
        }
    }
    [[nodiscard]] Teksten_t Teksten(const char* keus) const { return Keuzes(Keus(keus)); }
    /// The 50 groups as every drop-down shows them.
    void VerwachtAlleGroepen(const char* keus) const
    {
        const auto teksten = Teksten(keus);
        ASSERT_EQ(50U, teksten.size());
        EXPECT_EQ("Gr01-Clubleden & co", teksten[0]);
        EXPECT_EQ("Gr02-", teksten[1]);
        EXPECT_EQ("Gr08-Introducés", teksten[7]);
        EXPECT_EQ("Gr50-", teksten[49]);
        EXPECT_EQ(0, Keus(keus)->currentIndex());
    }
    /// Also where it is shortened it can be read.
    void VerwachtDezelfdeBreedteBijLangeNamen(const std::vector<const char*>& keuzes)
    {
        const int breed = venster->width();
        const Tekst lang(300, 'W');
        administratie.groepen.ZetNaam(1, lang);
        administratie.groepen.ZetNaam(2, "<b>" + lang);
        administratie.spelers.tabel.ZetCel(1, Kolom::NBBgr, lang);
        Open();
        EXPECT_EQ(breed, venster->width());
        for (const char* naam : keuzes) {
            EXPECT_TRUE(StaatHeelIn(*venster, *Keus(naam))) << naam;
            EXPECT_EQ(Keus(naam)->currentText(), Keus(naam)->toolTip()) << naam;
            EXPECT_EQ(Keus(naam)->currentText(), Keus(naam)->itemData(0, Qt::ToolTipRole)) << naam;
        }
        Kies(keuzes.front(), 1);
        EXPECT_TRUE(Keus(keuzes.front())->toolTip().contains(u"Gr02-&lt;b&gt;W"_s));
    }
    [[nodiscard]] Tekst Cel(int rij, Kolom kolom) const
    {
        return Tekst(administratie.spelers.tabel.Cel(rij, kolom));
    }
};

} // namespace plexoran
