#include "exchange/frmMail.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

#include "platform/scherm/berichten.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/regellijst.h"
#include "platform/scherm/schuifblad.h"

namespace plexoran {

frmMail::frmMail(const Administratie& administratie, const std::vector<int>& rijen, QWidget* ouder)
    : QDialog(ouder), wie_(MailadressenVan(administratie.spelers.tabel, rijen))
{
    setObjectName(u"frmMail"_s);
    setWindowTitle(u"E-mail aan deze spelers"_s);
    auto* lblAantal = MaakLabel(
        u"lblAantal"_s,
        Aantal(wie_.adressen.size(), u"adres"_s, u"verschillende adressen"_s) + u" van "_s +
            Aantal(rijen.size() - wie_.zonder.size(), u"speler"_s, u"spelers"_s),
        this);
    auto* lblZonder = MaakLabel(
        u"lblZonder"_s, u"Zonder bruikbaar adres: "_s + QString::number(wie_.zonder.size()), this);
    auto* lstZonder =
        new Regellijst(QListView::NoSelection, u"lstZonder"_s, u"Zonder bruikbaar adres"_s, this);
    lblZonder->setBuddy(lstZonder);
    lstZonder->Vul(static_cast<int>(wie_.zonder.size()),
                   [this, &tabel = administratie.spelers.tabel](int plaats) {
                       const int rij = wie_.zonder[static_cast<std::size_t>(plaats)];
                       const Tekstblik adres = tabel.Cel(rij, Kolom::Email);
                       return VolleNaam(tabel, rij) + ": " +
                              (IsBlanco(adres) ? "(geen)" : Tekst(adres));
                   });
    auto* mail = BouwMail();
    auto* klembord = BouwKlembord();
    lblGedaan = MaakUitleg(u"lblGedaan"_s, QString(), this);
    auto* cmdEinde = MaakKnop(u"cmdEinde"_s, u"Terug"_s, u'T', this, &QDialog::reject);
    Onderelkaar(
        {lblAantal, lblZonder, {lstZonder, 1}, mail, klembord, lblGedaan, Knoppenrij({cmdEinde})},
        this);
    ZetOpSchuifblad(this);
    PasInScherm(this, Maten().Twips(7500, 6900));
    connect(cmbPortie, &QComboBox::currentIndexChanged, this, &frmMail::MaakMails);
    MaakMails();
    cmdMail->setFocus();
}

QGroupBox* frmMail::BouwMail()
{
    auto* Frame1 = MaakKader(u"Frame1"_s, u"Naar het mailprogramma"_s, this);
    auto* Label1 = MaakUitleg(
        u"Label1"_s,
        u"De adressen komen in de BCC: niemand ziet die van een ander. Sommige providers weigeren "
        "een mail aan te veel adressen tegelijk."_s,
        Frame1);
    auto* lblPortie = MaakLabel(u"lblPortie"_s, u"Adressen per mail, hoogstens:"_s, Frame1);
    cmbPortie = MaakKeus(u"cmbPortie"_s, lblPortie, Frame1);
    cmbPortie->setMinimumContentsLength(4);
    for (const int portie : {10, 25, 50, 100})
        cmbPortie->addItem(QString::number(portie), portie);
    cmbPortie->setCurrentText(u"50"_s);
    cmdMail = MaakKnop(u"cmdMail"_s, QString(), 0, this, &frmMail::OpenMail);
    cmdMail->setDefault(true);
    Onderelkaar({Label1, Naastelkaar({lblPortie, cmbPortie, 1, cmdMail})}, Frame1);
    return Frame1;
}

QGroupBox* frmMail::BouwKlembord()
{
    auto* Frame2 = MaakKader(u"Frame2"_s, u"Om in een mail te plakken"_s, this);
    auto* lblTeken = MaakLabel(u"lblTeken"_s, u"Ertussen:"_s, Frame2);
    cmbTeken = MaakKeus(u"cmbTeken"_s, lblTeken, Frame2);
    cmbTeken->setMinimumContentsLength(14);
    cmbTeken->addItem(u"een komma"_s, u", "_s);
    cmbTeken->addItem(u"een puntkomma"_s, u"; "_s);
    cmdKopieer = MaakKnop(u"cmdKopieer"_s, u"Alle adressen kopiëren"_s, u'k', this, [this] {
        QStringList adressen;
        for (const Tekst& adres : wie_.adressen)
            adressen << NaarQString(adres);
        QGuiApplication::clipboard()->setText(adressen.join(cmbTeken->currentData().toString()));
        Toon(u"De adressen zijn gekopieerd. Plak ze in het vak BCC."_s);
    });
    cmdKopieer->setEnabled(!wie_.adressen.empty());
    Naastelkaar({lblTeken, cmbTeken, 1, cmdKopieer}, Frame2);
    return Frame2;
}

void frmMail::MaakMails()
{
    mails_ = plexoran::MaakMails(wie_.adressen, cmbPortie->currentData().toULongLong());
    volgende_ = 0;
    cmdMail->setEnabled(!mails_.empty());
    Toon({});
}

/// The user sends one before he asks for the next; after the last he can begin again.
void frmMail::OpenMail()
{
    const Mail& mail = mails_[volgende_];
    if (!QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(mail.link)))) {
        Meld(this, QMessageBox::Warning,
             u"Het mailprogramma kon niet worden geopend. Er is niets verstuurd. Kopieer de "
             "adressen en plak ze in een nieuwe mail, in het vak BCC."_s);
        return;
    }
    const QString gedaan =
        u"Mail %1 van %2 is geopend, met %3. Verstuur die in het mailprogramma."_s
            .arg(volgende_ + 1)
            .arg(mails_.size())
            .arg(Aantal(mail.adressen, u"adres"_s, u"adressen"_s));
    volgende_ = (volgende_ + 1) % mails_.size();
    Toon(gedaan);
}

void frmMail::Toon(const QString& gedaan)
{
    cmdMail->setText(MetSneltoets(
        mails_.size() < 2 ? u"Open de mail"_s
                          : u"Open mail %1 van %2"_s.arg(volgende_ + 1).arg(mails_.size()),
        u'O'));
    lblGedaan->setText(gedaan);
    if (!gedaan.isEmpty())
        Spreek(lblGedaan, gedaan);
}

} // namespace plexoran
