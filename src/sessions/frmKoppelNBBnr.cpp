// The linking window: what there is to choose from, and what is chosen.
#include "sessions/frmKoppelNBBnr.h"

#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include <algorithm>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/schijf/klok.h"
#include "register/spelerbestand.h"

namespace plexoran {

frmKoppelNBBnr::frmKoppelNBBnr(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    Option1->setChecked(true);
    Verbind();
    ToonKnoppen();
}

void frmKoppelNBBnr::Verbind()
{
    // Of the two that change together only one is listened to.
    connect(Option2, &QRadioButton::toggled, this, &frmKoppelNBBnr::KiesSoort);
    connect(cmbC, &QComboBox::currentIndexChanged, this, &frmKoppelNBBnr::VergeetGevonden);
    connect(cmdZoekNamen, &QPushButton::clicked, this, &frmKoppelNBBnr::ZoekNamen);
    connect(lstSpelers, &Regellijst::keuzeVeranderd, this, &frmKoppelNBBnr::ToonZwevende);
    connect(lstRVDsp, &Regellijst::keuzeVeranderd, this, &frmKoppelNBBnr::ToonSpeler);
    connect(lstSpelers, &Regellijst::activated, this, [this](const QModelIndex& regel) {
        lstSpelers->setCurrentIndex(regel);
        KiesUitRegister();
    });
    connect(lstRVDsp, &Regellijst::activated, this, [this](const QModelIndex& regel) {
        lstRVDsp->setCurrentIndex(regel);
        cmdStartKoppelen->setFocus();
    });
    connect(lstRVDsp->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &frmKoppelNBBnr::PlaatsKoppen);
    connect(cmdKiesRVDspeler, &QPushButton::clicked, this, &frmKoppelNBBnr::KiesUitRegister);
    connect(cmdStartKoppelen, &QPushButton::clicked, this, &frmKoppelNBBnr::StartKoppelen);
    connect(cmdEinde, &QPushButton::clicked, this, &QDialog::close);
}

/// Filled when the window is there, so that its messages stand before it.
void frmKoppelNBBnr::showEvent(QShowEvent* gebeurtenis)
{
    QDialog::showEvent(gebeurtenis);
    if (geladen_)
        return;
    geladen_ = true;
    QTimer::singleShot(0, this, &frmKoppelNBBnr::Laad);
}

void frmKoppelNBBnr::Laad()
{
    LeesRegister();
    KiesSoort();
}

void frmKoppelNBBnr::KiesSoort()
{
    const bool competities = InCompetities();
    Label4->setText(competities ? u"Kies een Competitie"_s : u"Kies een Zitting"_s);
    cmbC->setAccessibleName(Label4->text());
    cmdZoekNamen->setText(MetSneltoets(competities
                                           ? u"Zoek de zwevende spelers in deze Competitie"_s
                                           : u"Zoek de zwevende spelers in deze Zitting"_s,
                                       u'Z'));
    VulSessies();
}

void frmKoppelNBBnr::VulSessies()
{
    Schijf& schijf = administratie_.schijf;
    auto gelezen = InCompetities() ? LeesCompetities(schijf, administratie_.mappen)
                                   : LeesZittingen(schijf, administratie_.mappen);
    sessies_ = gelezen ? std::move(*gelezen) : std::vector<Sessiemap>();
    std::vector<Tekst> namen;
    for (const Sessiemap& sessie : sessies_)
        namen.push_back(sessie.naam);
    VulKeus(*cmbC, namen);
    for (int i = 0; i < cmbC->count(); ++i)
        cmbC->setItemData(i, NaarQString(Datum(sessies_[static_cast<std::size_t>(i)].tijd)),
                          Qt::ToolTipRole);
    cmbC->setToolTip(cmbC->currentData(Qt::ToolTipRole).toString());
    VergeetGevonden();
    MeldOvergeslagen(this, schijf,
                     InCompetities() ? administratie_.mappen.COMMAP : administratie_.mappen.ZITMAP);
    if (!gelezen)
        MeldLeesfout(InCompetities() ? u"Fout bij het lezen van de map met competities."_s
                                     : u"Fout bij het lezen van de map met zittingen."_s,
                     gelezen.error());
    else if (sessies_.empty())
        Meld(this, QMessageBox::Information,
             InCompetities()
                 ? u"Er zijn nog geen competities voorhanden.\r\nU dient dus eerst een Competitie "
                   "aan te maken."_s
                 : u"Er zijn nog geen Zittingen voorhanden.\r\nU dient dus eerst een Zitting aan "
                   "te maken."_s);
}

/// What was found belongs to the session in which it was searched.
void frmKoppelNBBnr::VergeetGevonden()
{
    zwevenden_.clear();
    VulZwevenden();
    Label11->clear();
}

/// From the file and not from the table: sessions may only hold keys that are saved.
void frmKoppelNBBnr::LeesRegister()
{
    const Pad pad = administratie_.mappen.Spelerbestand();
    auto inhoud = administratie_.schijf.LeesBestand(pad);
    const auto lezing = inhoud ? SpelersUit(std::move(*inhoud)) : Spelerlezing();
    spelers_ = lezing.tabel ? Koppelspelers(*lezing.tabel, administratie_.mappen.DFIMPG)
                            : std::vector<Koppelspeler>();
    constexpr std::size_t breedste = 40;
    naambreedte_ = 4;
    for (const Koppelspeler& speler : spelers_)
        naambreedte_ = std::max(naambreedte_, std::min(speler.naam.size(), breedste));
    lstRVDsp->Vul(static_cast<int>(spelers_.size()), [this](int plaats) {
        return Spelerregel(spelers_[static_cast<std::size_t>(plaats)], naambreedte_);
    });
    PlaatsKoppen();
    if (!inhoud)
        MeldLeesfout(
            u"Fout bij het lezen van het spelerbestand; er is nu niemand om te koppelen."_s,
            inhoud.error());
}

/// Over the columns of the list, also when it is scrolled sideways.
void frmKoppelNBBnr::PlaatsKoppen()
{
    const QFontMetrics maten(lstRVDsp->font());
    const int begin = lstRVDsp->frameWidth() + 1 +
                      lstRVDsp->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) -
                      lstRVDsp->horizontalScrollBar()->value();
    const int naam = static_cast<int>(naambreedte_);
    for (const auto& [kop, kolom] : {std::pair{Label7, 0}, std::pair{lblNaam, 8},
                                     std::pair{Label6, 10 + naam}, std::pair{Label8, 20 + naam}})
        kop->move(begin + maten.horizontalAdvance(QString(kolom, u'0')), 0);
}

const Zwevende* frmKoppelNBBnr::GekozenZwevende() const
{
    const int regel = lstSpelers->Gekozen();
    return regel < 0 ? nullptr : &zwevenden_.at(static_cast<std::size_t>(regel));
}

const Koppelspeler* frmKoppelNBBnr::GekozenSpeler() const
{
    const int regel = lstRVDsp->Gekozen();
    return regel < 0 ? nullptr : &spelers_.at(static_cast<std::size_t>(regel));
}

/// The file again, for who was imported meanwhile, and the player who bears the same name. Without
/// such a player nobody is chosen: whoever stands first is not the one who is meant.
void frmKoppelNBBnr::KiesUitRegister()
{
    LeesRegister();
    lstRVDsp->setFocus();
    const Zwevende* zwevende = GekozenZwevende();
    if (zwevende == nullptr)
        return;
    const Tekst naam = Hoofdletters(zwevende->vindplaats.naam);
    const auto zelfde =
        std::find_if(spelers_.begin(), spelers_.end(),
                     [&](const Koppelspeler& speler) { return Hoofdletters(speler.naam) == naam; });
    if (zelfde != spelers_.end())
        lstRVDsp->ZetHuidige(static_cast<int>(zelfde - spelers_.begin()));
}

/// A warning about the chosen name goes with that name; what was done comes back after it.
void frmKoppelNBBnr::ToonZwevende()
{
    const Zwevende* zwevende = GekozenZwevende();
    txtSpeler->setText(zwevende != nullptr ? NaarQString(Lijstregel(*zwevende)) : QString());
    const bool streepje = zwevende != nullptr && zwevende->vindplaats.naam.find('-') != Tekst::npos;
    lblResultaat->setText(
        streepje
            ? u"Let op: in deze naam staat een streepje. Het eerste streepje van een paar scheidt "
              "de twee spelers.\nNa het koppelen staat de sleutel in de plaats van alles wat "
              "hierboven als naam staat."_s
            : resultaat_);
    ToonKnoppen();
}

void frmKoppelNBBnr::ToonSpeler()
{
    const Koppelspeler* speler = GekozenSpeler();
    txtRVDspeler->setText(speler != nullptr ? NaarQString(speler->key + "    " + speler->naam)
                                            : QString());
    ToonKnoppen();
}

void frmKoppelNBBnr::ToonKnoppen()
{
    cmdZoekNamen->setEnabled(cmbC->currentIndex() >= 0);
    cmdStartKoppelen->setEnabled(!txtSpeler->text().isEmpty() && !txtRVDspeler->text().isEmpty());
}

void frmKoppelNBBnr::ToonResultaat(const QStringList& regels)
{
    resultaat_ = regels.join(u'\n');
    lblResultaat->setText(resultaat_);
}

void frmKoppelNBBnr::MeldLeesfout(const QString& wat, const Fout& fout)
{
    MeldFout(this, QMessageBox::Warning,
             wat + u" Er is niets veranderd. Verhelp de oorzaak en probeer het opnieuw."_s, fout);
}

} // namespace plexoran
