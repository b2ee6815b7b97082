// The start-up: all that the program works on is made, mended and read, in a fixed order, before
// the main window shows it.
#pragma once

#include "register/administratie.h"

class QWidget;

namespace plexoran {

/// Both scoring programs there: the user is asked which, at the start and whenever the import
/// window opens. Without an answer the captions stay those of the one before, whose database is
/// still the one read.
void KiesRekenprogramma(Administratie& administratie, QWidget* venster);

/// `TeBewaren`: the highest key was raised, which is to be saved at once.
enum class Startafloop { Mislukt, Gelezen, TeBewaren };

class Opstart {
  public:
    Opstart(Administratie& administratie, QWidget* venster)
        : administratie_(administratie), venster_(venster)
    {}

    [[nodiscard]] Startafloop Lees(const Pad& mappenIni);

  private:
    [[nodiscard]] bool LeesMappen(const Pad& mappenIni);
    void MaakLedenmap();
    void RuimRestenOp();
    void LeesInstellingenbestand();
    void ZoekDataMap();
    void LeesGroepsnamen();
    [[nodiscard]] bool LeesRegister();
    [[nodiscard]] bool VraagHogereSleutel(std::int32_t hoogste);
    void MeldLosseSleutels();
    void BiedTerugzettenAan(const Aanmaak& aanmaak, const Pad& pad, const QString& wat);
    [[nodiscard]] bool IsGemaakt(const Aanmaak& aanmaak, const QString& wat);
    void MeldMapfout(const QString& wat, const Fout& fout);
    [[nodiscard]] QString Toonpad(const Pad& pad) const;

    Administratie& administratie_;
    QWidget* venster_;
};

} // namespace plexoran
