// The help of the import window: how members leave the scoring programs.
#include "federation/frmImportNBB.h"
#include "platform/scherm/berichten.h"
#include "platform/scherm/tekstbrug.h"

namespace plexoran {
namespace {

const QString Regeleinde = u"\r\n"_s;

QString Hint()
{
    return QStringList{
        u"Als u fictieve 'NBB-nrs' moet toekennen aan spelers die nog geen nummer hebben, bijv "
        "gasten, dan begint u gewoon te nummeren bij bijv 100."_s,
        u"Blijf altijd onder 9999 om niet in conflict te komen met de echte NBB-nummers."_s,
        u"Op een gegeven moment weet u niet meer welke nummers al geweest zijn."_s,
        u"Om snel te weten wat het laatst toegekende nummer was kunt u het volgende doen:"_s,
        u" - Druk (rechtsonder) op de knop 'Sorteerlijst op' >> 'NBB-nr'."_s,
        u" - Of: In het NBB-programma: klik in de ledenlijst op de titel 'Bondsnummer', er "
        "verschijnt dan een 'warrige' sorteerlijst."_s,
    }
        .join(Regeleinde);
}

/// The steps, and what all of them end with.
QString Stappenplan(QStringList regels)
{
    regels << QString()
           << u"Let op: Als u de naam van een ledenbestand zou willen wijzigen moet u de "
              "ledenbestandsnaam voorop laten staan gevolgd door een spatie."_s
           << u"Voorbeeld: 'Club 20170125' mag u wijzigen in 'Club Nijmegen'."_s;
    return regels.join(Regeleinde);
}

QString HulpNBBR28()
{
    return Stappenplan({
        u"Zo exporteert u een ledenbestand uit NBBR-2.8:"_s,
        QString(),
        u"1. Start NBBR-2.8 en open de ledenlijst."_s,
        u"2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."_s,
        u"3. Kies voor exporteren, en als soort een CSV-bestand."_s,
        u"4. Sla het bestand op in een map die u kunt terugvinden en onthoud die map. De naam die "
        "NBBR voorstelt, is goed."_s,
        u"5. Herhaal dit voor elk ledenbestand dat u nodig hebt."_s,
        u"6. Kies hier 'uit een geexporteerd CSV-ledenbestand', druk op de knop om een map te "
        "kiezen en kies in die map het bestand."_s,
        QString(),
        u"Staat NBBR-2.8 op deze computer en is 'direct uit NBBR 2.8' te kiezen, dan hoeft u "
        "niets te exporteren."_s,
    });
}

QString HulpNBBR31()
{
    return Stappenplan({
        u"Zo exporteert u een ledenbestand uit NBBR-3.1:"_s,
        QString(),
        u"1. Start NBBR-3.1 en open de ledenlijst."_s,
        u"2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."_s,
        u"3. Kies voor exporteren, en als soort een XML-bestand."_s,
        u"4. Sla het bestand op in een map die u kunt terugvinden, bijvoorbeeld "
        "'...Documenten\\NBB4-Leden', en onthoud die map."_s,
        u"5. Kies hier 'uit een geexporteerd XML-ledenbestand' met '(uit NBBR-3)' erbij, druk op "
        "de knop om een map te kiezen en kies in die map het bestand."_s,
    });
}

QString HulpNBBR4Xml()
{
    return Stappenplan({
        u"Zo exporteert u een XML-ledenbestand uit NBBR-4:"_s,
        QString(),
        u"1. Start NBBR-4 en open de ledenlijst."_s,
        u"2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."_s,
        u"3. Kies voor exporteren, en als soort een XML-bestand."_s,
        u"4. Sla het bestand op in de map '...Documenten\\NBB4-Leden'. Daar wordt hier het eerst "
        "gekeken."_s,
        u"5. Kies hier onder 'Uit NBB-4:' de optie 'uit een geexporteerd XML-ledenbestand', druk "
        "zo nodig op de knop om een andere map te kiezen en klik het bestand aan in de lijst."_s,
    });
}

QString HulpNBBR4Csv()
{
    return Stappenplan({
        u"Zo exporteert u een CSV-ledenbestand uit NBBR-4:"_s,
        QString(),
        u"1. Start NBBR-4 en open de ledenlijst."_s,
        u"2. Kies het ledenbestand dat u wilt exporteren, bijvoorbeeld 'Club'."_s,
        u"3. Kies voor exporteren, en als soort een CSV-bestand."_s,
        u"4. Sla het bestand op in de map '...Documenten\\NBB4-Leden'. Daar wordt hier het eerst "
        "gekeken."_s,
        u"5. Kies hier 'uit een geexporteerd CSV-ledenbestand', druk zo nodig op de knop om een "
        "andere map te kiezen en klik het bestand aan in de lijst."_s,
    });
}

} // namespace

void frmImportNBB::VerbindHulp()
{
    const auto verbind = [this](QPushButton* knop, QString (*tekst)(), const QString& titel = {}) {
        connect(knop, &QPushButton::clicked, this,
                [this, tekst, titel] { Meld(this, QMessageBox::Information, tekst(), titel); });
    };
    verbind(cmdHint, Hint, u"Hint"_s);
    verbind(cmdHelpImport28, HulpNBBR28);
    verbind(cmdHelpImport31, HulpNBBR31);
    verbind(cmdHelpImport4, HulpNBBR4Xml);
    verbind(cmbHelpCSV, HulpNBBR4Csv);
}

} // namespace plexoran
