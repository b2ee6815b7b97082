// The help of the import window: how members leave the scoring programs.
#include "federation/frmImportNBB.h"
#include "platform/scherm/berichten.h"

namespace plexoran {
namespace {

const QString Regeleinde = QStringLiteral("\r\n");

QString Hint()
{
    return QStringList{
        QStringLiteral(
            "Als u fictieve 'NBB-nrs' moet toekennen aan spelers die nog geen nummer hebben, bijv "
            "gasten, dan begint u gewoon te nummeren bij bijv 100."),
        QStringLiteral(
            "Blijf altijd onder 9999 om niet in conflict te komen met de echte NBB-nummers."),
        QStringLiteral("Op een gegeven moment weet u niet meer welke nummers al geweest zijn."),
        QStringLiteral("Om snel te weten wat het laatst toegekende nummer was kunt u het volgende "
                       "doen:"),
        QStringLiteral(" - Druk (rechtsonder) op de knop 'Sorteerlijst op' >> 'NBB-nr'."),
        QStringLiteral(
            " - Of: In het NBB-programma: klik in de ledenlijst op de titel 'Bondsnummer', er "
            "verschijnt dan een 'warrige' sorteerlijst."),
    }
        .join(Regeleinde);
}

/// The steps, and what all of them end with.
QString Stappenplan(QStringList regels)
{
    regels << QString()
           << QStringLiteral(
                  "Let op: Als u de naam van een ledenbestand zou willen wijzigen moet u de "
                  "ledenbestandsnaam voorop laten staan gevolgd door een spatie.")
           << QStringLiteral("Voorbeeld: 'Club 20170125' mag u wijzigen in 'Club Nijmegen'.");
    return regels.join(Regeleinde);
}

QString HulpNBBR28()
{
    return Stappenplan({
        QStringLiteral("Zo exporteert u een ledenbestand uit NBBR-2.8:"),
        QString(),
        QStringLiteral("1. Start NBBR-2.8 en open de ledenlijst."),
        QStringLiteral("2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."),
        QStringLiteral("3. Kies voor exporteren, en als soort een CSV-bestand."),
        QStringLiteral("4. Sla het bestand op in een map die u kunt terugvinden en onthoud die "
                       "map. De naam die NBBR voorstelt, is goed."),
        QStringLiteral("5. Herhaal dit voor elk ledenbestand dat u nodig hebt."),
        QStringLiteral("6. Kies hier 'uit een geexporteerd CSV-ledenbestand', druk op de knop om "
                       "een map te kiezen en kies in die map het bestand."),
        QString(),
        QStringLiteral("Staat NBBR-2.8 op deze computer en is 'direct uit NBBR 2.8' te kiezen, dan "
                       "hoeft u niets te exporteren."),
    });
}

QString HulpNBBR31()
{
    return Stappenplan({
        QStringLiteral("Zo exporteert u een ledenbestand uit NBBR-3.1:"),
        QString(),
        QStringLiteral("1. Start NBBR-3.1 en open de ledenlijst."),
        QStringLiteral("2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."),
        QStringLiteral("3. Kies voor exporteren, en als soort een XML-bestand."),
        QStringLiteral("4. Sla het bestand op in een map die u kunt terugvinden, bijvoorbeeld "
                       "'...Documenten\\NBB4-Leden', en onthoud die map."),
        QStringLiteral("5. Kies hier 'uit een geexporteerd XML-ledenbestand' met '(uit NBBR-3)' "
                       "erbij, druk op de knop om een map te kiezen en kies in die map het "
                       "bestand."),
    });
}

QString HulpNBBR4Xml()
{
    return Stappenplan({
        QStringLiteral("Zo exporteert u een XML-ledenbestand uit NBBR-4:"),
        QString(),
        QStringLiteral("1. Start NBBR-4 en open de ledenlijst."),
        QStringLiteral("2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."),
        QStringLiteral("3. Kies voor exporteren, en als soort een XML-bestand."),
        QStringLiteral("4. Sla het bestand op in de map '...Documenten\\NBB4-Leden'. Daar wordt "
                       "hier het eerst gekeken."),
        QStringLiteral("5. Kies hier onder 'Uit NBB-4:' de optie 'uit een geexporteerd "
                       "XML-ledenbestand', druk zo nodig op de knop om een andere map te kiezen en "
                       "klik het bestand aan in de lijst."),
    });
}

QString HulpNBBR4Csv()
{
    return Stappenplan({
        QStringLiteral("Zo exporteert u een CSV-ledenbestand uit NBBR-4:"),
        QString(),
        QStringLiteral("1. Start NBBR-4 en open de ledenlijst."),
        QStringLiteral("2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."),
        QStringLiteral("3. Kies voor exporteren, en als soort een CSV-bestand."),
        QStringLiteral("4. Sla het bestand op in de map '...Documenten\\NBB4-Leden'. Daar wordt "
                       "hier het eerst gekeken."),
        QStringLiteral("5. Kies hier 'uit een geexporteerd CSV-ledenbestand', druk zo nodig op de "
                       "knop om een andere map te kiezen en klik het bestand aan in de lijst."),
    });
}

} // namespace

void frmImportNBB::VerbindHulp()
{
    const auto verbind = [this](QPushButton* knop, QString (*tekst)(), const QString& titel = {}) {
        connect(knop, &QPushButton::clicked, this,
                [this, tekst, titel] { Meld(this, QMessageBox::Information, tekst(), titel); });
    };
    verbind(cmdHint, Hint, QStringLiteral("Hint"));
    verbind(cmdHelpImport28, HulpNBBR28);
    verbind(cmdHelpImport31, HulpNBBR31);
    verbind(cmdHelpImport4, HulpNBBR4Xml);
    verbind(cmbHelpCSV, HulpNBBR4Csv);
}

} // namespace plexoran
