#include "dialogs/frmVerwSubgroep.h"

#include <QGridLayout>

#include <algorithm>

#include "dialogs/groepswerk.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

QString NoemSpelers(const Spelertabel& tabel, const std::vector<int>& rijen, const QWidget& venster)
{
    constexpr std::size_t meeste = 10;
    const int breedste = Maten().Twips(6000);
    const auto spelers = [](std::size_t aantal) {
        return Aantal(aantal, u"speler"_s, u"spelers"_s);
    };
    QStringList regels{spelers(rijen.size()) + QLatin1String(rijen.empty() ? "" : ":")};
    for (std::size_t i = 0; i < std::min(meeste, rijen.size()); ++i)
        regels << Ingekort(venster.fontMetrics(), NaarQString(VolleNaam(tabel, rijen[i])),
                           breedste);
    if (rijen.size() > meeste)
        regels << u"en nog %1"_s.arg(spelers(rijen.size() - meeste));
    return regels.join(u'\n');
}

frmVerwSubgroep::frmVerwSubgroep(Administratie& administratie, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie)
{
    setObjectName(u"frmVerwSubgroep"_s);
    setWindowTitle(u"Verwijderen van een subgroep"_s);
    auto* frame1 = MaakKader(u"frame1"_s, QString(), this);
    Label3 = MaakLabel(u"Label3"_s, u"met deze Subgroep:"_s, frame1);
    auto* Label4 = MaakLabel(u"Label4"_s, u"uit deze Spelergroep:"_s, frame1);
    cmbRVDgr = MaakKeus(u"cmbRVDgr"_s, Label4, frame1);
    VulKeus(*cmbRVDgr, administratie_.groepen.Toonteksten());
    cmbSubGr = MaakKeus(u"cmbSubGr"_s, Label3, frame1);
    cmdVerwijder = MaakKnop(u"cmdVerwijder"_s, u"Verwijderen ..."_s, u'V', this,
                            &frmVerwSubgroep::VerwijderSubgroep);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this, &QDialog::close);
    // Also when what is shown is picked again.
    connect(cmbRVDgr, &QComboBox::activated, this, &frmVerwSubgroep::KiesGroep);

    auto* vakken = new QGridLayout(frame1);
    vakken->addWidget(MaakLabel(u"Label1"_s, u"Verwijder ALLE spelers "_s, frame1), 0, 0, 1, 2);
    vakken->addWidget(Label4, 1, 0);
    vakken->addWidget(cmbRVDgr, 1, 1);
    vakken->addWidget(Label3, 2, 0);
    vakken->addWidget(cmbSubGr, 2, 1);
    vakken->setColumnStretch(1, 1);
    auto* Label2 =
        MaakLabel(u"Label2"_s,
                  u"Verwijdert ALLE spelers van een geselecteerde Subgroep cq NBBgroep."_s, this);
    Onderelkaar({Label2, frame1, 0, Knoppenrij({cmdVerwijder, cmdEinde})}, this);
    ZetOpSchuifblad(this);
    PasInScherm(this, {Maten().Twips(7200), sizeHint().height()});
    cmbRVDgr->setFocus();
    KiesGroep();
}

void frmVerwSubgroep::KiesGroep()
{
    Label3->setText(Code() == administratie_.mappen.DFIMPG ? u"met deze NBBgroep:"_s
                                                           : u"met deze SUBgroep:"_s);
    subgroepen_ = SubgroepenVan(administratie_.spelers.tabel, Code());
    VulKeus(*cmbSubGr, subgroepen_);
    cmdVerwijder->setEnabled(!subgroepen_.empty());
}

void frmVerwSubgroep::VerwijderSubgroep()
{
    const Tekst subgroep = subgroepen_.at(static_cast<std::size_t>(cmbSubGr->currentIndex()));
    const QString vraag =
        u"U gaat alle spelers van Subgroep '%1'\r\nuit RVDgroep '%2' verwijderen!\r\n\r\nWeet u "
        "het zeker?"_s.arg(NaarQString(subgroep), cmbRVDgr->currentText());
    Spelertabel& tabel = administratie_.spelers.tabel;
    const std::vector<int> weg = RijenVanSubgroep(tabel, Code(), subgroep);
    if (!Vraag(this, vraag, u"Verwijderen?"_s, NoemSpelers(tabel, weg, *this)))
        return;
    tabel.VerwijderRijen(weg);
    administratie_.geschiedenis.Noem("Subgroep " + subgroep + " van " +
                                     NaarTekst(cmbRVDgr->currentText()) + " verwijderd");
    ietsVerwijderd_ = ietsVerwijderd_ || !weg.empty();
    emit rijenVerwijderd();
    Meld(this, QMessageBox::Information,
         u"Klaar! \r\nEr zijn %1 speler(s) verwijderd."_s.arg(weg.size()));
    KiesGroep();
}

} // namespace plexoran
