#include "federation/frmVoorbeeld.h"

#include <QHeaderView>
#include <QShortcut>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/kopieren.h"

namespace plexoran {

frmVoorbeeld::frmVoorbeeld(Regelvoorbeeld& voorbeeld, const QString& bestand, QWidget* ouder)
    : QDialog(ouder), voorbeeld_(voorbeeld), model_(new Voorbeeldmodel(voorbeeld, this))
{
    setObjectName(u"frmVoorbeeld"_s);
    setWindowTitle(u"Vooraf bekijken: "_s + bestand);
    Bouw();
    VulSoorten();
    ToonTotalen();
}

QString frmVoorbeeld::Nietstekst()
{
    return u"Er verandert niets: niemand komt erbij, en bij wie er al staat, blijft elk gegeven "
           "zoals het is."_s;
}

/// The controls are made in the order in which Tab goes through them.
void frmVoorbeeld::Bouw()
{
    lblTotalen = MaakUitleg(u"lblTotalen"_s, QString(), this);
    auto* Label1 = MaakLabel(u"Label1"_s, MetSneltoets(u"Toon:"_s, u'T'), this);
    cmbSoort = MaakKeus(u"cmbSoort"_s, Label1, this);
    auto* Label2 = MaakLabel(u"Label2"_s, MetSneltoets(u"Zoek naam of nummer:"_s, u'Z'), this);
    txtFilter = new Tekstvak(this);
    Noem(txtFilter, u"txtFilter"_s);
    Label2->setBuddy(txtFilter);
    lstVoorbeeld = new QTreeView(this);
    Noem(lstVoorbeeld, u"lstVoorbeeld"_s, u"Wat er met elke regel gebeurt"_s);
    lstVoorbeeld->setModel(model_);
    lstVoorbeeld->setUniformRowHeights(true);
    lstVoorbeeld->header()->setSortIndicator(-1, Qt::AscendingOrder);
    lstVoorbeeld->setSortingEnabled(true);
    for (int kolom = 0; kolom < model_->columnCount({}); ++kolom)
        connect(new QShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + kolom), this),
                &QShortcut::activated, this, [this, kolom] {
                    const auto* kop = lstVoorbeeld->header();
                    const bool weer = kop->sortIndicatorSection() == kolom &&
                                      kop->sortIndicatorOrder() == Qt::AscendingOrder;
                    lstVoorbeeld->sortByColumn(kolom,
                                               weer ? Qt::DescendingOrder : Qt::AscendingOrder);
                });
    lstVoorbeeld->setToolTip(
        u"Zonder vinkje gaat een regel of een gegeven niet mee; de spatiebalk zet het vinkje"_s);
    const Maten maten;
    for (const auto& [kolom, twips] : {std::pair(Voorbeeldmodel::Soort, 3600),
                                       {Voorbeeldmodel::NBBnr, 1500},
                                       {Voorbeeldmodel::Wie, 3600}})
        lstVoorbeeld->setColumnWidth(kolom, maten.Twips(twips));
    LaatKopieren(lstVoorbeeld);
    // What does not fit on the line.
    auto* lblRegel = MaakUitleg(u"lblRegel"_s, QString(), this);
    lblRegel->setAlignment(Qt::AlignTop);
    lblRegel->setFixedHeight(2 * fontMetrics().lineSpacing());
    connect(lstVoorbeeld->selectionModel(), &QItemSelectionModel::currentChanged, lblRegel,
            [lblRegel](const QModelIndex& plek) {
                lblRegel->setText(plek.siblingAtColumn(Voorbeeldmodel::Wat).data().toString());
            });
    auto* cmdGetoonde = MaakKnop(u"cmdGetoonde"_s, u"Getoonde regels aan of uit"_s, u'G', this);
    auto* cmdImporteerDeze =
        MaakKnop(u"cmdImporteerDeze"_s, u"Importeer deze"_s, u'I', this, &QDialog::accept);
    cmdImporteerDeze->setDefault(true);
    auto* cmdSluiten = MaakKnop(u"cmdSluiten"_s, u"Sluiten"_s, u'S', this, &QDialog::reject);
    connect(cmbSoort, &QComboBox::currentIndexChanged, this, &frmVoorbeeld::Toon);
    connect(txtFilter, &QLineEdit::textChanged, this, &frmVoorbeeld::Toon);
    connect(cmdGetoonde, &QPushButton::clicked, model_, &Voorbeeldmodel::ZetGetoonde);
    connect(model_, &QAbstractItemModel::dataChanged, this, &frmVoorbeeld::ToonTotalen);

    Onderelkaar({lblTotalen,
                 Naastelkaar({Label1, {cmbSoort, 1}, Label2, {txtFilter, 1}}),
                 {lstVoorbeeld, 1},
                 lblRegel,
                 Knoppenrij({cmdGetoonde, cmdImporteerDeze, cmdSluiten})},
                this);
    PasInScherm(this, maten.Twips(15000, 8400));
    lstVoorbeeld->setFocus();
    lstVoorbeeld->setCurrentIndex(model_->index(0, 0, {}));
}

/// With each its `Zeef` and how many lines there are of it.
void frmVoorbeeld::VulSoorten()
{
    const auto voegToe = [this](const QString& naam, std::size_t aantal, int soort) {
        cmbSoort->addItem(u"%1 (%2)"_s.arg(naam).arg(aantal), soort);
    };
    const QSignalBlocker stil(cmbSoort);
    voegToe(u"Alles"_s, voorbeeld_.Regels().size(), Alles);
    for (int i = 0; i < static_cast<int>(AantalVoorbeeldsoorten); ++i) {
        const auto soort = static_cast<Voorbeeldsoort>(i);
        if (soort == Voorbeeldsoort::Verdwenen && voorbeeld_.IsLijst())
            continue; // a list says nothing of who is not in it
        voegToe(Soorttekst(soort), voorbeeld_.Aantal(soort), i);
    }
    voegToe(u"Twijfelachtig"_s, voorbeeld_.AantalTwijfelachtig(), Twijfelachtig);
}

void frmVoorbeeld::Toon()
{
    const int keus = cmbSoort->currentData().toInt();
    model_->Toon(
        {.soort = keus >= 0 ? std::optional(static_cast<Voorbeeldsoort>(keus)) : std::nullopt,
         .twijfelachtig = keus == Twijfelachtig,
         .zoek = txtFilter->GeefTekst()});
    lstVoorbeeld->setCurrentIndex(model_->index(0, 0, {}));
}

void frmVoorbeeld::ToonTotalen()
{
    const auto aantal = [this](Voorbeeldsoort soort) {
        return QString::number(voorbeeld_.Aantal(soort));
    };
    QString tekst = u"%1 gelezen: %2 nieuw, %3 gewijzigd, %4 ongewijzigd, %5 geweigerd. Daarvan "
                    "%6 twijfelachtig."_s.arg(
                        plexoran::Aantal(voorbeeld_.AantalGelezen(), u"regel"_s, u"regels"_s),
                        aantal(Voorbeeldsoort::Nieuw), aantal(Voorbeeldsoort::Gewijzigd),
                        aantal(Voorbeeldsoort::Ongewijzigd), aantal(Voorbeeldsoort::Geweigerd),
                        QString::number(voorbeeld_.AantalTwijfelachtig()));
    if (!voorbeeld_.IsLijst())
        tekst +=
            voorbeeld_.IsHeel()
                ? u" Niet meer in het ledenbestand: %1."_s.arg(aantal(Voorbeeldsoort::Verdwenen))
                : u" Wie niet meer in het ledenbestand staat, is niet te zeggen: het is niet heel "
                  "gelezen."_s;
    const std::size_t regels = voorbeeld_.RegelsUit();
    const std::size_t velden = voorbeeld_.VeldenUit();
    if (regels + velden > 0)
        tekst +=
            u"\nUitgezet: %1 en %2."_s.arg(plexoran::Aantal(regels, u"regel"_s, u"regels"_s),
                                           plexoran::Aantal(velden, u"gegeven"_s, u"gegevens"_s));
    if (!voorbeeld_.VerandertIets())
        tekst += u'\n' + Nietstekst();
    lblTotalen->setText(tekst);
}

} // namespace plexoran
