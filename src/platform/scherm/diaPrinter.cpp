#include "platform/scherm/diaPrinter.h"

#include <QFileDialog>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

QSpinBox* MaakBladnummer(const QString& naam, const QString& gesproken, int bladen, QWidget* ouder)
{
    auto* nummer = new QSpinBox(ouder);
    Noem(nummer, naam, gesproken);
    nummer->setRange(1, bladen);
    nummer->setEnabled(false);
    return nummer;
}

} // namespace

diaPrinter::diaPrinter(const Printvraag& vraag, const Printeraanbod& aanbod, QWidget* ouder)
    : QDialog(ouder), titel_(vraag.titel), cmbPrinter(new QComboBox(this))
{
    setObjectName(QStringLiteral("diaPrinter"));
    setWindowTitle(QStringLiteral("Printen"));
    Noem(cmbPrinter, QStringLiteral("cmbPrinter"), QStringLiteral("Printer"));
    auto* Label1 = new QLabel(MetSneltoets(QStringLiteral("Printer:"), u'P'), this);
    Noem(Label1, QStringLiteral("Label1"));
    Label1->setBuddy(cmbPrinter);
    Frame1 = BouwBladen(vraag);
    cmdOK = MaakKnop(QStringLiteral("cmdOK"), QString(), 0, this);
    cmdOK->setDefault(true);
    auto* cmdAnnuleren =
        MaakKnop(QStringLiteral("cmdAnnuleren"), QStringLiteral("Annuleren"), u'n', this);
    VulPrinters(aanbod);

    auto* kop = new QHBoxLayout;
    kop->addWidget(Label1);
    kop->addWidget(cmbPrinter, 1);
    auto* lagen = new QVBoxLayout(this);
    lagen->addLayout(kop);
    lagen->addWidget(Frame1);
    lagen->addLayout(Knoppenrij({cmdOK, cmdAnnuleren}));
    lagen->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmbPrinter, &QComboBox::currentIndexChanged, this, &diaPrinter::ToonPrinter);
    connect(cmdOK, &QPushButton::clicked, this, &diaPrinter::accept);
    connect(cmdAnnuleren, &QPushButton::clicked, this, &QDialog::reject);
    ToonPrinter();
}

void diaPrinter::VulPrinters(const Printeraanbod& aanbod)
{
    for (const QString& printer : aanbod.printers)
        cmbPrinter->addItem(printer, printer);
    cmbPrinter->addItem(QStringLiteral("Opslaan als PDF-bestand"), QString());
    const int standaard = aanbod.standaard.isEmpty() ? -1 : cmbPrinter->findData(aanbod.standaard);
    cmbPrinter->setCurrentIndex(standaard < 0 ? cmbPrinter->count() - 1 : standaard);
}

QGroupBox* diaPrinter::BouwBladen(const Printvraag& vraag)
{
    const int bladen = std::max(1, vraag.bladen);
    auto* frame = new QGroupBox(this);
    Noem(frame, QStringLiteral("Frame1"));
    optAlle = MaakOptie(QStringLiteral("optAlle"), QStringLiteral("Alle bladen (%1)").arg(bladen),
                        u'A', frame);
    optHuidig =
        MaakOptie(QStringLiteral("optHuidig"), QStringLiteral("Het blad in beeld"), u'b', frame);
    optReeks = MaakOptie(QStringLiteral("optReeks"), QStringLiteral("Van blad"), u'V', frame);
    numVan = MaakBladnummer(QStringLiteral("numVan"), QStringLiteral("Van blad"), bladen, frame);
    numTot =
        MaakBladnummer(QStringLiteral("numTot"), QStringLiteral("Tot en met blad"), bladen, frame);
    numTot->setValue(bladen);
    const bool huidig = vraag.voorstel == Bladkeus::Soort::Huidig;
    optHuidig->setVisible(huidig);
    (huidig ? optHuidig : optAlle)->setChecked(true);

    auto* reeks = new QHBoxLayout;
    reeks->addWidget(optReeks);
    reeks->addWidget(numVan);
    reeks->addWidget(MaakLabel(QStringLiteral("Label2"), QStringLiteral("tot en met"), frame));
    reeks->addWidget(numTot);
    reeks->addStretch();
    auto* lagen = new QVBoxLayout(frame);
    lagen->addWidget(optAlle);
    lagen->addWidget(optHuidig);
    lagen->addLayout(reeks);

    for (QSpinBox* nummer : {numVan, numTot})
        connect(optReeks, &QRadioButton::toggled, nummer, &QWidget::setEnabled);
    connect(numVan, &QSpinBox::valueChanged, numTot, &QSpinBox::setMinimum);
    return frame;
}

void diaPrinter::ToonPrinter()
{
    const bool pdf = Printernaam().isEmpty();
    Frame1->setEnabled(pdf);
    Frame1->setTitle(pdf ? QStringLiteral("Welke bladen")
                         : QStringLiteral("Welke bladen: dat vraagt de printer hierna"));
    cmdOK->setText(pdf ? MetSneltoets(QStringLiteral("Opslaan..."), u'O')
                       : MetSneltoets(QStringLiteral("Verder..."), u'd'));
}

QString diaPrinter::Printernaam() const
{
    return cmbPrinter->currentData().toString();
}

Bladkeus diaPrinter::Keus() const
{
    if (optReeks->isChecked())
        return {.soort = Bladkeus::Soort::Reeks, .van = numVan->value(), .tot = numTot->value()};
    return {.soort = optAlle->isChecked() ? Bladkeus::Soort::Alle : Bladkeus::Soort::Huidig};
}

QString diaPrinter::VraagBestand()
{
    QFileDialog kiezer(this, QStringLiteral("Opslaan als PDF-bestand"));
    Noem(&kiezer, QStringLiteral("CommonDialog1"));
    kiezer.setAcceptMode(QFileDialog::AcceptSave);
    kiezer.setNameFilter(QStringLiteral("PDF-bestanden (*.pdf)"));
    kiezer.setDefaultSuffix(QStringLiteral("pdf"));
    kiezer.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    kiezer.selectFile(titel_ + QStringLiteral(".pdf"));
    if (kiezer.exec() != QDialog::Accepted || kiezer.selectedFiles().isEmpty())
        return {};
    return kiezer.selectedFiles().first();
}

void diaPrinter::accept()
{
    if (Printernaam().isEmpty()) {
        pdfbestand_ = VraagBestand();
        if (pdfbestand_.isEmpty())
            return;
    }
    QDialog::accept();
}

} // namespace plexoran
