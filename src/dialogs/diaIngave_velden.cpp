// The rules of the fields at work: typing, leaving a field, the check at the end.
#include <QTimer>

#include <utility>

#include "dialogs/diaIngave.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {

/// The text is mended at once; the messages follow when what took the focus away is done.
void diaIngave::Verlaat(int veld)
{
    const auto kolom = static_cast<Kolom>(veld);
    Tekstvak* vak = Vak(veld);
    const Tekst tekst = vak->GeefTekst();
    const Veldverlaten verlaten = VerlaatVeld(kolom, tekst);
    if (verlaten.tekst != tekst)
        vak->Vervang(verlaten.tekst);
    if (verlaten.reparaties.empty())
        return;
    teMelden_.insert(teMelden_.end(), verlaten.reparaties.begin(), verlaten.reparaties.end());
    QTimer::singleShot(0, this, &diaIngave::MeldReparaties);
}

void diaIngave::MeldReparaties()
{
    const auto reparaties = std::exchange(teMelden_, {});
    for (const Reparatie reparatie : reparaties)
        Meld(this, QMessageBox::Information,
             reparatie == Reparatie::Komma
                 ? u"Komma's worden veranderd in Underscores"_s
                 : u"Bij dummy-speler 'Partner...' worden spaties veranderd in Underscores"_s);
}

bool diaIngave::IngaveControle()
{
    if (ingave_.IngaveGeannuleerd)
        return true;
    for (int veld = static_cast<int>(Kolom::Voornaam); veld <= AantalKolommen; ++veld)
        Verlaat(veld);
    MeldReparaties();

    ingave_.IngaveFout = false;
    Rijvelden velden;
    for (int veld = 1; veld <= AantalKolommen; ++veld)
        velden[static_cast<std::size_t>(veld - 1)] = Vak(veld)->GeefTekst();
    if (!HeeftAchternaam(velden)) {
        Meld(this, QMessageBox::Warning, u"U moet minimaal de ACHTERNAAM invullen!"_s);
        ingave_.IngaveFout = true;
        Vak(Kolom::Achternaam)->setFocus(Qt::OtherFocusReason);
        return false;
    }
    ingave_.IngaveVelden = std::move(velden);
    return true;
}

} // namespace plexoran
