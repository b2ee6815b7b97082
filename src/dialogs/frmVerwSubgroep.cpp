#include "dialogs/frmVerwSubgroep.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include <algorithm>

#include "dialogs/subgroep.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

QString NoemSpelers(const Spelertabel& tabel, const std::vector<int>& rijen, const QWidget& venster)
{
    constexpr std::size_t meeste = 10;
    const int breedste = Maten().Twips(6000);
    const auto spelers = [](std::size_t aantal) {
        return Aantal(aantal, QStringLiteral("speler"), QStringLiteral("spelers"));
    };
    QStringList regels{spelers(rijen.size()) + QLatin1String(rijen.empty() ? "" : ":")};
    for (std::size_t i = 0; i < std::min(meeste, rijen.size()); ++i)
        regels << Ingekort(venster.fontMetrics(), NaarQString(VolleNaam(tabel, rijen[i])),
                           breedste);
    if (rijen.size() > meeste)
        regels << QStringLiteral("en nog %1").arg(spelers(rijen.size() - meeste));
    return regels.join(QLatin1Char('\n'));
}

frmVerwSubgroep::frmVerwSubgroep(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    Bouw();
    VulKeus(*cmbRVDgr, administratie_.groepen.Toonteksten());
    KiesGroep();
    // Also when what is shown is picked again.
    connect(cmbRVDgr, &QComboBox::activated, this, &frmVerwSubgroep::KiesGroep);
    connect(cmdVerwijder, &QPushButton::clicked, this, &frmVerwSubgroep::Verwijder);
    connect(cmdEinde, &QPushButton::clicked, this, &QDialog::close);
}

void frmVerwSubgroep::Bouw()
{
    setObjectName(QStringLiteral("frmVerwSubgroep"));
    setWindowTitle(QStringLiteral("Verwijderen van een subgroep"));
    auto* frame1 = new QGroupBox(this);
    Noem(frame1, QStringLiteral("frame1"));
    const auto label = [&](const QString& naam, const QString& tekst) {
        return MaakLabel(naam, tekst, frame1);
    };
    Label3 = label(QStringLiteral("Label3"), QStringLiteral("met deze Subgroep:"));
    auto* Label4 = label(QStringLiteral("Label4"), QStringLiteral("uit deze Spelergroep:"));
    cmbRVDgr = MaakKeus(QStringLiteral("cmbRVDgr"), Label4, frame1);
    cmbSubGr = MaakKeus(QStringLiteral("cmbSubGr"), Label3, frame1);
    cmdVerwijder =
        MaakKnop(QStringLiteral("cmdVerwijder"), QStringLiteral("Verwijderen ..."), u'V', this);
    cmdEinde = MaakKnop(QStringLiteral("cmdEinde"), QStringLiteral("Terug"), u'T', this);

    auto* vakken = new QGridLayout(frame1);
    vakken->addWidget(label(QStringLiteral("Label1"), QStringLiteral("Verwijder ALLE spelers ")), 0,
                      0, 1, 2);
    vakken->addWidget(Label4, 1, 0);
    vakken->addWidget(cmbRVDgr, 1, 1);
    vakken->addWidget(Label3, 2, 0);
    vakken->addWidget(cmbSubGr, 2, 1);
    vakken->setColumnStretch(1, 1);
    auto* lagen = new QVBoxLayout(this);
    lagen->addWidget(MaakLabel(
        QStringLiteral("Label2"),
        QStringLiteral("Verwijdert ALLE spelers van een geselecteerde Subgroep cq NBBgroep."),
        this));
    lagen->addWidget(frame1);
    lagen->addStretch();
    lagen->addLayout(Knoppenrij({cmdVerwijder, cmdEinde}));
    const Maten maten;
    ZetOpSchuifblad(this);
    PasInScherm(this, {maten.Twips(7200), sizeHint().height()});
    cmbRVDgr->setFocus();
}

void frmVerwSubgroep::KiesGroep()
{
    Label3->setText(Code() == administratie_.mappen.DFIMPG ? QStringLiteral("met deze NBBgroep:")
                                                           : QStringLiteral("met deze SUBgroep:"));
    subgroepen_ = SubgroepenVan(administratie_.spelers.tabel, Code());
    VulKeus(*cmbSubGr, subgroepen_);
    cmdVerwijder->setEnabled(!subgroepen_.empty());
}

void frmVerwSubgroep::Verwijder()
{
    const Tekst subgroep = subgroepen_.at(static_cast<std::size_t>(cmbSubGr->currentIndex()));
    const QString vraag = QStringLiteral("U gaat alle spelers van Subgroep '%1'\r\nuit RVDgroep "
                                         "'%2' verwijderen!\r\n\r\nWeet u het zeker?")
                              .arg(NaarQString(subgroep), cmbRVDgr->currentText());
    Spelertabel& tabel = administratie_.spelers.tabel;
    if (!Vraag(this, QMessageBox::Information, vraag, QStringLiteral("Verwijderen?"),
               NoemSpelers(tabel, RijenVanSubgroep(tabel, Code(), subgroep), *this)))
        return;
    const int aantal = VerwijderSubgroep(tabel, Code(), subgroep);
    ietsVerwijderd_ = ietsVerwijderd_ || aantal > 0;
    emit rijenVerwijderd();
    Meld(this, QMessageBox::Information,
         QStringLiteral("Klaar! \r\nEr zijn %1 speler(s) verwijderd.").arg(aantal));
    KiesGroep();
}

} // namespace plexoran
