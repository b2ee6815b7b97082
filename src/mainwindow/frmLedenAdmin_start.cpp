// The start-up of the main window, in its fixed order.
#include "mainwindow/frmLedenAdmin.h"
#include "platform/heelschrijven.h"
#include "platform/klok.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

constexpr int TeNoemenRegels = 10;

QString Opsomming(const std::vector<int>& regels)
{
    QStringList nummers;
    for (const int regel : regels) {
        if (nummers.size() == TeNoemenRegels)
            return nummers.join(QStringLiteral(", ")) + QStringLiteral(", ...");
        nummers << QString::number(regel);
    }
    return nummers.join(QStringLiteral(", "));
}

} // namespace

std::optional<int> frmLedenAdmin::Laad(const Opstart& opstart)
{
    if (!opstart.eersteExemplaar()) {
        Meld(nullptr, QMessageBox::Information, QStringLiteral("Het programma is al gestart!..."));
        return 0;
    }
    lblToel->setText(QStringLiteral(
        "Met dit programma moet u de gegevens van de spelers vastleggen en bewaren.\n"
        "Bij het opzetten van de zitting moet u kiezen uit deze spelers."));

    auto mappen = LeesMappenIni(administratie_.schijf, opstart.mappenIni);
    if (!mappen) {
        Meld(nullptr, QMessageBox::Critical,
             QStringLiteral("Het bestand 'Mappen.ini' kan niet worden gelezen. Daarin staat in "
                            "welke mappen de spelers worden bewaard; zonder dat bestand kan dit "
                            "programma niet werken.\n\nZet het bestand 'Mappen.ini' van uw "
                            "programma's op deze plaats, of start Plexoran met --mappen en de "
                            "naam van het bestand.\n\n") +
                 Bijzonderheden(mappen.error()));
        return 1;
    }
    administratie_.mappen = std::move(*mappen);
    const auto ledenmap = administratie_.schijf.MaakMap(administratie_.mappen.Ledenmap());
    if (!ledenmap)
        MeldMapfout(QStringLiteral("De map voor de ledenbestanden van de bond (NBB4-Leden) kon "
                                   "niet worden gemaakt."),
                    ledenmap.error());

    LeesInstellingenBijStart();
    opstarten_ = true;
    chkKolBr->setChecked(true);
    opstarten_ = false;
    cmdParenOnderhoud->setVisible(administratie_.mappen.NEWPAGR == 1);
    LeesGroepenBijStart();
    LeesSpelersBijStart();

    const int laatste = administratie_.instellingen.LOSTGR;
    KiesGroep(laatste >= 0 && laatste < AantalGroepen ? laatste : 0);
    if (administratie_.mappen.NBB28UIT == 1)
        cmdToonGatenlijst->hide();
    cmdKoppel->hide();
    return std::nullopt;
}

void frmLedenAdmin::LeesInstellingenBijStart()
{
    const Pad pad = administratie_.mappen.Instellingenbestand();
    administratie_.instellingen = LeesInstellingen(administratie_.schijf, administratie_.mappen);
    const auto inhoud = administratie_.schijf.LeesBestand(pad);
    if (inhoud && !IsInstellingenbestand(*inhoud))
        Meld(this, QMessageBox::Information,
             QStringLiteral("Het bestand 'Plexo.ini' bevat iets anders dan de instellingen van dit "
                            "programma. Voordat het wordt vervangen, komt er een kopie van in de "
                            "map Reservekopie.\n\nBestand: ") +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad)));
}

void frmLedenAdmin::LeesGroepenBijStart()
{
    const Pad pad = administratie_.mappen.Groepenbestand();
    // The players folder holds the group file too, so it must be there before that file is made.
    const auto gemaakt =
        administratie_.schijf.MaakMap(administratie_.mappen.SPEMAP).and_then([this] {
            return MaakGroepenbestand(administratie_.schijf, administratie_.mappen);
        });
    if (!gemaakt)
        MeldMapfout(QStringLiteral("Het bestand met de groepsnamen kon niet worden gemaakt of "
                                   "gelezen."),
                    gemaakt.error());
    const auto inhoud = administratie_.schijf.LeesBestand(pad);
    if (inhoud && !IsGroepenbestand(*inhoud))
        Meld(this, QMessageBox::Information,
             QStringLiteral("Het bestand met de groepsnamen bevat regels die geen groepsnaam zijn. "
                            "Die zijn overgeslagen. Voordat het bestand wordt vervangen, komt er "
                            "een kopie van in de map Reservekopie.\n\nBestand: ") +
                 QString::fromStdString(administratie_.schijf.Toonpad(pad)));
    administratie_.groepen = LeesGroepen(administratie_.schijf, administratie_.mappen);
    VulGroepen();
}

void frmLedenAdmin::LeesSpelersBijStart()
{
    RuimTijdelijkeOp(administratie_.schijf, administratie_.mappen.SPEMAP, "RVDspelers.txt", Nu());
    const auto gemaakt =
        MaakSpelerbestand(administratie_.schijf, administratie_.mappen, administratie_.spelers);
    if (!gemaakt)
        MeldMapfout(QStringLiteral("Het spelerbestand kon niet worden gemaakt of gelezen."),
                    gemaakt.error());
    MeldLezing(LeesSpelers(administratie_.schijf, administratie_.mappen, administratie_.spelers));
}

void frmLedenAdmin::MeldMapfout(const QString& wat, const Fout& fout)
{
    Meld(this, QMessageBox::Warning,
         wat +
             QStringLiteral("\n\nKijk na of de map in 'Mappen.ini' bestaat en of u erin mag "
                            "schrijven.\n\n") +
             Bijzonderheden(fout));
}

/// First the register's own warning, then what it means for the data.
void frmLedenAdmin::MeldLezing(const Leesverslag& verslag)
{
    if (verslag.fout)
        Meld(this, QMessageBox::Warning,
             QStringLiteral("Het spelerbestand is nog leeg, u moet als eerste leden toevoegen!"));
    const QString uitleg = WatNietGelezenIs(verslag);
    if (!uitleg.isEmpty())
        Meld(this, QMessageBox::Information,
             uitleg + QStringLiteral("\n\nHet bestand zelf is niet veranderd. Voordat dit "
                                     "programma het de eerste keer vervangt, komt er een kopie "
                                     "van in de map Reservekopie."));
}

QString frmLedenAdmin::WatNietGelezenIs(const Leesverslag& verslag) const
{
    QStringList delen;
    if (verslag.fout) {
        QString deel = QStringLiteral("Het spelerbestand is niet tot het einde gelezen; er staan "
                                      "nu %1 spelers in de tabel.")
                           .arg(administratie_.spelers.tabel.Rijen());
        if (verslag.velden > 0)
            deel += QStringLiteral(" De genoemde regel heeft %1 velden in plaats van %2.")
                        .arg(verslag.velden)
                        .arg(AantalKolommen);
        delen << deel << Bijzonderheden(*verslag.fout);
    }
    if (!verslag.zonderAchternaam.empty())
        delen << QStringLiteral("Spelers zonder achternaam zijn niet ingelezen (aantal: %1, op "
                                "regel %2 van het spelerbestand).")
                     .arg(verslag.zonderAchternaam.size())
                     .arg(Opsomming(verslag.zonderAchternaam));
    return delen.join(QStringLiteral("\n\n"));
}

} // namespace plexoran
