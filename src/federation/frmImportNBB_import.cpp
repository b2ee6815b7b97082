// The import run: every chosen member file is read, asked about and merged.
#include <QGuiApplication>

#include "federation/frmImportNBB.h"
#include "federation/frmVoorbeeld.h"
#include "federation/leesfoutmelding.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/frmVoortgang.h"
#include "platform/scherm/tekstbrug.h"
#include "platform/tekst/regels.h"

namespace plexoran {
namespace {

/// The lines as they stand, each with CR LF. Only what no member file holds is cut, since drawing
/// it would take minutes.
template <class Reeks> QString Toonbaar(const Reeks& regels)
{
    constexpr std::size_t langste = 500;
    constexpr int meeste = 100'000;
    QString tekst;
    int aantal = 0;
    for (const Tekstblik regel : regels) {
        if (++aantal > meeste)
            continue;
        tekst += NaarQString(regel.substr(0, langste));
        if (regel.size() > langste)
            tekst += u" ..."_s;
        tekst += u"\r\n"_s;
    }
    if (aantal > meeste)
        tekst += u"... en nog %1\r\n"_s.arg(aantal - meeste);
    return tekst;
}

} // namespace

void frmImportNBB::ImporteerLedenbestanden()
{
    Behandel(&frmImportNBB::ImporteerEenBestand);
}

void frmImportNBB::BekijkLedenbestanden()
{
    Behandel(&frmImportNBB::BekijkEenBestand);
}

void frmImportNBB::Behandel(Behandeling behandeling)
{
    const auto gekozen = GekozenBestanden();
    if (gekozen.empty())
        return;
    const Ledenopdracht opdracht = Opdracht();
    bezig_ = true;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool heel = std::all_of(gekozen.begin(), gekozen.end(), [&](const Tekst& naam) {
        return LeesEnBehandel(opdracht, naam, behandeling);
    });
    QGuiApplication::restoreOverrideCursor();
    bezig_ = false;
    if (heel)
        accept();
}

/// False when the import ends here, as below.
bool frmImportNBB::LeesEnBehandel(const Ledenopdracht& opdracht, const Tekst& naam,
                                  Behandeling behandeling)
{
    frmVoortgang voortgang(u"'%1' wordt gelezen ..."_s.arg(NaarQString(naam)), u"&Stoppen"_s, this);
    connect(&voortgang, &frmVoortgang::canceled, &voortgang,
            [&] { voortgang.setLabelText(u"Het importeren wordt gestopt ..."_s); });
    auto lezing = LeesLedenbestand(administratie_.schijf, opdracht, naam, voortgang.AlsVoortgang());
    voortgang.hide();
    if (const auto weg = RuimTussenbestandOp(administratie_.schijf, opdracht, naam); !weg)
        MeldFout(
            this, QMessageBox::Information,
            u"Een tussenbestand met gegevens van leden kon niet worden verwijderd. Het importeren "
            "gaat gewoon door. Verwijder het bestand zelf."_s,
            weg.error());
    if (voortgang.Gestopt()) {
        MeldAfgebroken(naam, Samenvoegfout::Gestopt);
        return false;
    }
    if (!lezing) {
        Meld(this, QMessageBox::Warning,
             Leesfouttekst(opdracht.bron, naam, lezing.error(), Leesdoel::Import));
        return false;
    }
    MeldVooraf(opdracht.bron, naam, *lezing);
    return (this->*behandeling)(naam, std::move(*lezing));
}

/// What the user must know to answer the question that follows.
void frmImportNBB::MeldVooraf(Ledenbron bron, const Tekst& naam, const Ledenlezing& lezing)
{
    if (lezing.nietGeladen)
        Meld(this, QMessageBox::Warning,
             Leesfouttekst(bron, naam, *lezing.nietGeladen, Leesdoel::Import));
    if (lezing.anderNummer)
        Meld(this, QMessageBox::Warning,
             u"Van het nummer achter de naam '%1' tellen alleen de laatste drie tekens: dit zijn "
             "de leden van het ledenbestand met nummer %2. Er is nog niets geïmporteerd. Kies bij "
             "de volgende vraag Annuleren als u een ander ledenbestand bedoelt."_s
                 .arg(NaarQString(naam))
                 .arg(*lezing.anderNummer));
    if (lezing.inUtf8)
        Meld(this, QMessageBox::Warning,
             u"'%1' is opgeslagen in UTF-8: letters met een accent komen verkeerd over, en soms "
             "ook het eerste NBB-nummer. Er is nog niets geïmporteerd. Kies bij de volgende vraag "
             "liever Annuleren, en sla het bestand op als ANSI (Windows-1252) of exporteer een "
             "XML-bestand."_s.arg(NaarQString(naam)));
    if (lezing.teKorteRegel > 0)
        Meld(this, QMessageBox::Warning,
             u"Regel %1 van '%2' heeft minder kolommen dan nodig is voor de gegevens die u hebt "
             "aangevinkt. Er is nog niets geïmporteerd; dat kan alleen met wie ervoor staat (%3). "
             "Kies bij de volgende vraag Annuleren als u eerst het bestand wilt herstellen."_s
                 .arg(lezing.teKorteRegel)
                 .arg(NaarQString(naam), Aantal(lezing.lstN1.size(), u"speler"_s, u"spelers"_s)));
}

bool frmImportNBB::ImporteerEenBestand(const Tekst& naam, Ledenlezing lezing)
{
    if (!VraagOfHetMag(naam, lezing.lstN1.size()))
        return true;
    return RondAf(
        naam, lezing,
        import_.Importeer(naam, std::move(lezing.lstN1),
                          frmVoortgang(u"'%1' wordt geïmporteerd ..."_s.arg(NaarQString(naam)),
                                       u"&Stoppen"_s, this)
                              .AlsVoortgang()));
}

/// The file comes in as it was shown. Who thinks better of it at the question sees it again.
bool frmImportNBB::BekijkEenBestand(const Tekst& naam, Ledenlezing lezing)
{
    auto voorbeeld = import_.Bekijk(
        naam, lezing,
        frmVoortgang(u"'%1' wordt bekeken ..."_s.arg(NaarQString(naam)), u"&Stoppen"_s, this)
            .AlsVoortgang());
    if (!voorbeeld) {
        MeldAfgebroken(naam, voorbeeld.error());
        return false;
    }
    frmVoorbeeld venster(*voorbeeld, NaarQString(naam), this);
    do {
        if (LaatAntwoorden(venster) != QDialog::Accepted)
            return false;
        if (!voorbeeld->VerandertIets()) {
            if (const auto uitkomst = import_.Importeer(*voorbeeld))
                MeldUitkomst(naam, lezing, *uitkomst, frmVoorbeeld::Nietstekst());
            return true;
        }
    } while (!VraagOfHetMag(naam, voorbeeld->Gekozen().size() - voorbeeld->RegelsUit()));
    return RondAf(naam, lezing, import_.Importeer(*voorbeeld));
}

bool frmImportNBB::VraagOfHetMag(const Tekst& naam, std::size_t aantal)
{
    return Vraag(this, u"U gaat van '%1' %2 spelers importeren naar groep '%3'."_s.arg(
                           NaarQString(SubgroepUitNaam(naam)), QString::number(aantal),
                           NaarQString(administratie_.mappen.DFIMPG)));
}

bool frmImportNBB::RondAf(const Tekst& naam, const Ledenlezing& lezing,
                          const Samenvoeguitkomst& uitkomst)
{
    if (!uitkomst) {
        MeldAfgebroken(naam, uitkomst.error());
        return false;
    }
    administratie_.geschiedenis.Noem(NaarTekst(u"%1 geïmporteerd uit %2"_s.arg(
        Aantal(uitkomst->AantalVerververst + uitkomst->AantalNieuw, u"lid"_s, u"leden"_s),
        NaarQString(SubgroepUitNaam(naam)))));
    MeldUitkomst(naam, lezing, *uitkomst,
                 u"Aantal spelers geupdate (ververst): %1\r\nAantal nieuwe spelers toegevoegd: %2"_s
                     .arg(uitkomst->AantalVerververst)
                     .arg(uitkomst->AantalNieuw));
    return true;
}

/// The two boxes of every import, then one for all that nobody would see otherwise. `gedaan` says
/// what was done.
void frmImportNBB::MeldUitkomst(const Tekst& naam, const Ledenlezing& lezing,
                                const Samenvoeging& uitkomst, const QString& gedaan)
{
    if (!uitkomst.ZonderNBBnr.empty())
        MeldLijst(this, QMessageBox::Warning,
                  u"Niet verwerkte spelers ivm ontbrekend NBBnummer!\r\n"_s +
                      Toonbaar(Regels(uitkomst.ZonderNBBnr)));
    Meld(this, QMessageBox::Information, gedaan);
    QStringList delen;
    if (!uitkomst.overgeslagen.empty())
        delen << u"%1 overgeslagen, omdat het NBB-nummer al voorkomt: eerder in dit bestand, of "
                 "anders geschreven in groep '%2':\r\n"_s.arg(
                     Aantal(uitkomst.overgeslagen.size(), u"lid"_s, u"leden"_s),
                     NaarQString(administratie_.mappen.DFIMPG)) +
                     Toonbaar(uitkomst.overgeslagen);
    if (!lezing.metIsTeken.empty())
        delen << u"%1 overgeslagen, omdat er een '=' in staat, zoals in een kopregel:\r\n"_s.arg(
                     Aantal(lezing.metIsTeken.size(), u"regel"_s, u"regels"_s)) +
                     Toonbaar(lezing.metIsTeken);
    if (lezing.vervangenTekens > 0)
        delen
            << u"Aantal tekens dat het spelerbestand niet kent en dat is vervangen door een teken "
               "dat erop lijkt, of is weggelaten: %1\r\n"_s.arg(lezing.vervangenTekens);
    if (!delen.isEmpty())
        MeldLijst(this, QMessageBox::Information,
                  u"Niet alles uit '%1' is zo overgenomen als het er staat; de rest wel. "
                  "Verander het zo nodig in het rekenprogramma en importeer opnieuw.\r\n\r\n"_s.arg(
                      NaarQString(naam)) +
                      delen.join(u"\r\n"_s));
}

void frmImportNBB::MeldAfgebroken(const Tekst& naam, Samenvoegfout fout)
{
    if (fout == Samenvoegfout::Gestopt)
        Meld(this, QMessageBox::Information,
             u"Het importeren is gestopt. Uit '%1' is niets geïmporteerd; wat eerder is "
             "geïmporteerd, blijft. Importeer '%1' opnieuw als u die leden nog nodig hebt."_s.arg(
                 NaarQString(naam)));
    else if (fout == Samenvoegfout::TeGroot)
        Meld(this, QMessageBox::Critical,
             u"Uit '%1' is niets geïmporteerd: wat er als NBB-nummer staat, is te lang om een "
             "nummer te zijn. Wat eerder is geïmporteerd, blijft. Exporteer het ledenbestand "
             "opnieuw."_s.arg(NaarQString(naam)));
    else
        MeldSleutelsOp(this, u"Uit '%1' is niets geïmporteerd"_s.arg(NaarQString(naam)),
                       RegelVanHKEY(administratie_.schijf, administratie_.mappen));
}

} // namespace plexoran
