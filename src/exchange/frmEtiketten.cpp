#include "exchange/frmEtiketten.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QSignalBlocker>

#include <algorithm>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "printing/frmAfdrukken.h"

namespace plexoran {
namespace {

constexpr int Voorbeeldzoom = 33; // at which a whole sheet is seen
constexpr Kleur Vellijn{200, 200, 200};
constexpr std::size_t Aantallen = 2; // of the measures are no millimetres
constexpr int MeesteEtiketten = 50;  // beside each other, and below
constexpr std::array Maatnamen{u"Kolommen:",    u"Rijen:",      u"Breedte:",    u"Hoogte:",
                               u"Linkermarge:", u"Bovenmarge:", u"Stap opzij:", u"Stap omlaag:"};

QString Velnaam(const Etiketmaat& maat)
{
    const QLocale taal;
    return u"%1 x %2 (%3 x %4 mm)"_s.arg(maat.kolommen)
        .arg(maat.rijen)
        .arg(taal.toString(maat.breed), taal.toString(maat.hoog));
}

/// The name of the group that all of these are in, if any.
Tekst Groepsnaam(const Administratie& administratie, const std::vector<int>& rijen)
{
    const auto groep = [&](int rij) { return administratie.spelers.tabel.Cel(rij, Kolom::Groep); };
    const int nummer = rijen.empty() ? 0 : Groepnummer(groep(rijen.front()));
    const bool een =
        std::ranges::all_of(rijen, [&](int rij) { return groep(rij) == groep(rijen.front()); });
    return een && nummer > 0 ? administratie.groepen.Naam(nummer) : Tekst();
}

} // namespace

frmEtiketten::frmEtiketten(Administratie& administratie, std::vector<int> rijen, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), rijen_(std::move(rijen))
{
    LeesEigen(ouder);
    reeks_.teken = [this](Tekenvlak& vlak, int blad) {
        TekenEtiketten(vlak, werk_, blad, chkKader->isChecked() ? Lijnkleur : Vellijn);
    };
    Bouw();
    KiesVel();
    MaakEtiketten();
}

void frmEtiketten::LeesEigen(QWidget* ouder)
{
    Schijf& schijf = administratie_.schijf;
    const Pad& ini = administratie_.etikettenIni;
    const auto gelezen =
        ini.empty() ? Etiketmaat() : schijf.LeesBegrensd(ini).and_then(EtiketmaatUit);
    if (!gelezen && gelezen.error().soort != Foutsoort::Ontbreekt) {
        Fout fout = gelezen.error();
        fout.bestand = schijf.Toonpad(ini);
        MeldFout(ouder, QMessageBox::Warning,
                 u"Uw eigen etiketvel kan niet worden gelezen. De standaardmaten staan klaar; het "
                 "bestand blijft zoals het is tot u een nieuw eigen vel instelt."_s,
                 fout);
    }
    eigen_ = gelezen_ = gelezen.value_or(Etiketmaat());
}

/// Controls are made in the order in which the Tab key goes through them.
void frmEtiketten::Bouw()
{
    const Maten maten;
    setObjectName(u"frmEtiketten"_s);
    setWindowTitle(u"Etiketten en naamkaartjes"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* keuzes = BouwKeuzes();
    auto* Frame1 = BouwMaten();
    chkKader =
        MaakVink(u"chkKader"_s, u"Lijnen printen, om te proberen op gewoon papier"_s, u'L', this);
    connect(chkKader, &QCheckBox::toggled, this, &frmEtiketten::PasToe);
    lblAantal = MaakUitleg(u"lblAantal"_s, QString(), this);
    lstAandacht = new Regellijst(QListView::NoSelection, u"lstAandacht"_s,
                                 u"Wie er niet op komt of wordt ingekort"_s, this);
    lblAantal->setBuddy(lstAandacht);
    picP0 = new Bladbeeld(reeks_, kast_, this);
    picP0->setMinimumSize(maten.Twips(3000), maten.Twips(3000));
    picP0->ZetZoom(Voorbeeldzoom);
    cmdOK = MaakKnop(u"cmdOK"_s, u"Printen..."_s, u'P', this, &frmEtiketten::Print);
    cmdOK->setDefault(true);
    auto* cmdAnnuleren = MaakKnop(u"cmdAnnuleren"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    auto* links = Onderelkaar({keuzes, Frame1, chkKader, lblAantal, {lstAandacht, 1}});
    Onderelkaar({{Naastelkaar({{links, 1}, {picP0, 1}}), 1}, Knoppenrij({cmdOK, cmdAnnuleren})},
                this);
    ZetOpSchuifblad(this);
    PasInScherm(this, maten.Twips(10800, 8400));
}

QLayout* frmEtiketten::BouwKeuzes()
{
    auto* vorm = new QFormLayout;
    const auto keus = [&](const QString& naam, const QString& tekst, const QStringList& regels) {
        auto* label = MaakLabel(u"lbl"_s + naam, tekst, this);
        auto* uit = MaakKeus(u"cmb"_s + naam, label, this);
        uit->addItems(regels);
        uit->setMinimumContentsLength(22);
        vorm->addRow(label, uit);
        return uit;
    };
    cmbSoort = keus(u"Soort"_s, u"Maak:"_s,
                    {u"Een etiket per adres"_s, u"Een etiket per speler"_s, u"Naamkaartjes"_s});
    chkFamilie = MaakVink(u"chkFamilie"_s, u"Als 'Fam. Bos-de Vries'"_s, u'F', this);
    vorm->addRow(QString(), chkFamilie);
    lblOnderschrift = MaakLabel(u"lblOnderschrift"_s, u"Kleine regel:"_s, this);
    txtOnderschrift = new Tekstvak(this);
    Noem(txtOnderschrift, u"txtOnderschrift"_s);
    txtOnderschrift->ZetTekst(Groepsnaam(administratie_, rijen_));
    lblOnderschrift->setBuddy(txtOnderschrift);
    vorm->addRow(lblOnderschrift, txtOnderschrift);
    cmbVolgorde = keus(u"Volgorde"_s, u"Op volgorde van:"_s, {u"postcode"_s, u"naam"_s});
    QStringList vellen;
    for (const Etiketmaat& maat : Etiketvellen)
        vellen << Velnaam(maat);
    cmbVel = keus(u"Vel"_s, u"Op vellen van:"_s, vellen << u"eigen maat"_s);
    for (QComboBox* deel : {cmbSoort, cmbVolgorde})
        connect(deel, &QComboBox::currentIndexChanged, this, &frmEtiketten::MaakEtiketten);
    connect(chkFamilie, &QCheckBox::toggled, this, &frmEtiketten::MaakEtiketten);
    connect(txtOnderschrift, &QLineEdit::textChanged, this, &frmEtiketten::MaakEtiketten);
    connect(cmbVel, &QComboBox::currentIndexChanged, this, &frmEtiketten::KiesVel);
    return vorm;
}

QGroupBox* frmEtiketten::BouwMaten()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Het vel, in millimeters"_s, this);
    auto* rooster = new QGridLayout(Frame1);
    const auto maak = [&](const QString& naam, const QString& tekst, std::size_t plek,
                          bool geheel) {
        auto* label = MaakLabel(u"lbl"_s + naam, tekst, this);
        auto* vak = new QDoubleSpinBox(this);
        Noem(vak, u"spn"_s + naam, tekst.chopped(1));
        vak->setDecimals(geheel ? 0 : 2);
        vak->setRange(geheel ? 1 : 0, geheel ? MeesteEtiketten : A4Lang);
        label->setBuddy(vak);
        const auto rij = static_cast<int>(plek / 2);
        const auto kolom = static_cast<int>(plek % 2) * 2;
        rooster->addWidget(label, rij, kolom);
        rooster->addWidget(vak, rij, kolom + 1);
        connect(vak, &QDoubleSpinBox::valueChanged, this, &frmEtiketten::PasToe);
        return vak;
    };
    for (std::size_t i = 0; i < maten_.size(); ++i) {
        const QString tekst = QString::fromUtf16(Maatnamen[i]);
        maten_[i] = maak(tekst.chopped(1).remove(u' '), tekst, i, i < Aantallen);
    }
    spnEerste = maak(u"Eerste"_s, u"Eerste vrije etiket:"_s, maten_.size(), true);
    return Frame1;
}

/// The measures of the usual sheets can be read, not changed.
void frmEtiketten::KiesVel()
{
    const auto plaats = static_cast<std::size_t>(cmbVel->currentIndex());
    const bool eigen = plaats == Etiketvellen.size();
    const Etiketmaat maat = eigen ? eigen_ : Etiketvellen[plaats];
    for (std::size_t i = 0; i < maten_.size(); ++i) {
        const QSignalBlocker stil(maten_[i]);
        maten_[i]->setValue(maat.*Etiketmaten[i]);
        maten_[i]->setEnabled(eigen);
    }
    PasToe();
}

void frmEtiketten::MaakEtiketten()
{
    const auto soort = static_cast<Etiketsoort>(cmbSoort->currentIndex());
    werk_.naamkaarten = soort == Etiketsoort::Naamkaart;
    chkFamilie->setVisible(soort == Etiketsoort::PerAdres);
    lblOnderschrift->setVisible(werk_.naamkaarten);
    txtOnderschrift->setVisible(werk_.naamkaarten);
    auto reeks = plexoran::MaakEtiketten(administratie_.spelers.tabel, rijen_,
                                         {.soort = soort,
                                          .alsFamilie = chkFamilie->isChecked(),
                                          .opPostcode = cmbVolgorde->currentIndex() == 0,
                                          .onderschrift = txtOnderschrift->GeefTekst()});
    werk_.etiketten = std::move(reeks.etiketten);
    zonderAdres_ = std::move(reeks.zonderAdres);
    PasToe();
}

void frmEtiketten::PasToe()
{
    for (std::size_t i = 0; i < maten_.size(); ++i)
        werk_.maat.*Etiketmaten[i] = maten_[i]->value();
    if (maten_[0]->isEnabled())
        eigen_ = werk_.maat;
    const QSignalBlocker stil(spnEerste);
    spnEerste->setMaximum(werk_.maat.PerVel());
    werk_.eerste = static_cast<int>(spnEerste->value());
    reeks_.bladen = reeks_.totaal = werk_.Bladen();
    ToonAandacht();
    picP0->Toon(1);
}

void frmEtiketten::ToonAandacht()
{
    const bool goed = werk_.maat.IsGoed();
    std::vector<std::size_t> kort;
    for (std::size_t i = 0; goed && i < werk_.etiketten.size(); ++i) {
        if (std::ranges::any_of(PasEtiket(werk_, werk_.etiketten[i], kast_),
                                &Etiketregel::ingekort))
            kort.push_back(i);
    }
    const QString tekst =
        u"%1 op %2. Zonder adres en dus niet erbij: %3. Ingekort: %4."_s
            .arg(Aantal(werk_.etiketten.size(), u"etiket"_s, u"etiketten"_s),
                 Aantal(static_cast<std::size_t>(reeks_.bladen), u"vel"_s, u"vellen"_s))
            .arg(zonderAdres_.size())
            .arg(kort.size());
    lblAantal->setText(goed ? tekst
                            : u"Zo past het niet: het vel is groter dan A4 (210 x 297 mm), de "
                              "etiketten liggen over elkaar, of ze zijn te klein."_s);
    const std::size_t zonder = zonderAdres_.size();
    lstAandacht->Vul(static_cast<int>(zonder + kort.size()), [=, this](int plaats) {
        const auto i = static_cast<std::size_t>(plaats);
        if (i < zonder)
            return "Geen adres: " + VolleNaam(administratie_.spelers.tabel, zonderAdres_[i]);
        const Etiket& etiket = werk_.etiketten[kort[i - zonder]];
        return "Ingekort: " + VolleNaam(etiket[0], {}, werk_.naamkaarten ? etiket[1] : Tekst());
    });
    cmdOK->setEnabled(goed && !werk_.etiketten.empty());
}

void frmEtiketten::Print()
{
    Bladreeks reeks = reeks_;
    reeks.titel = werk_.naamkaarten ? u"Naamkaartjes"_s : u"Etiketten"_s;
    reeks.teken = [this](Tekenvlak& vlak, int blad) {
        TekenEtiketten(vlak, werk_, blad,
                       chkKader->isChecked() ? std::optional(Lijnkleur) : std::nullopt);
    };
    frmAfdrukken(administratie_, std::move(reeks), this).exec();
}

void frmEtiketten::done(int uitslag)
{
    const Pad& ini = administratie_.etikettenIni;
    if (eigen_ != gelezen_ && eigen_.IsGoed() && !ini.empty()) {
        Schijf& schijf = administratie_.schijf;
        const auto bewaard = schijf.MaakMap(ini.substr(0, ini.rfind('\\'))).and_then([&] {
            return SchrijfHeel(schijf, ini, EtiketmaatTekst(eigen_));
        });
        if (!StaatEr(this, bewaard))
            MeldFout(
                this, QMessageBox::Warning,
                u"Uw eigen etiketvel is niet opgeslagen. De spelers zijn niet veranderd. Stel het "
                "vel de volgende keer opnieuw in."_s,
                bewaard.error());
    }
    QDialog::done(uitslag);
}

} // namespace plexoran
