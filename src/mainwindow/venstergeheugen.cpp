#include "mainwindow/venstergeheugen.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/scherm/tekstbrug.h"
#include "platform/schijf/systeempad.h"

namespace plexoran {
namespace {

constexpr double BreedsteKeuze = 1000; // millimetres; more is no choice of a user

QString Sleutel(const QString& groep, std::size_t kolom)
{
    return groep + u'/' + NaarQString(Kolomnamen[kolom]).remove(u'/');
}

/// The screens as they stand beside each other.
QString Opstelling()
{
    QStringList schermen;
    for (const QScreen* scherm : QGuiApplication::screens()) {
        const QRect vlak = scherm->geometry();
        schermen
            << u"%1x%2.%3.%4"_s.arg(vlak.width()).arg(vlak.height()).arg(vlak.x()).arg(vlak.y());
    }
    return u"Plaats/"_s + schermen.join(u'_');
}

} // namespace

Venstergeheugen::Venstergeheugen(const Pad& bestand)
{
    if (!bestand.empty())
        bestand_.emplace(QString::fromStdU16String(Systeempad(bestand).u16string()),
                         QSettings::IniFormat);
}

QVariant Venstergeheugen::Lees(const QString& naam) const
{
    return bestand_ ? bestand_->value(naam) : QVariant();
}

/// What is as it was stated is not kept, so that the file says what the user chose.
void Venstergeheugen::Zet(const QString& naam, const QVariant& waarde, bool gekozen)
{
    if (bestand_ && gekozen)
        bestand_->setValue(naam, waarde);
    else if (bestand_)
        bestand_->remove(naam);
}

Kolomkeuzes Venstergeheugen::Kolommen() const
{
    Kolomkeuzes uit;
    bool ietsTeZien = false;
    for (std::size_t i = 0; i < uit.size(); ++i) {
        const double breedte = Lees(Sleutel(u"Breedte"_s, i)).toDouble();
        if (breedte >= rooster::SmalsteKeuze && breedte <= BreedsteKeuze)
            uit[i].breedte = breedte;
        uit[i].verborgen = Lees(Sleutel(u"Verborgen"_s, i)).toBool();
        ietsTeZien = ietsTeZien || !uit[i].verborgen;
    }
    return ietsTeZien ? uit : Kolomkeuzes();
}

void Venstergeheugen::Bewaar(const Kolomkeuzes& keuzes)
{
    for (std::size_t i = 0; i < keuzes.size(); ++i) {
        const auto& [breedte, verborgen] = keuzes[i];
        Zet(Sleutel(u"Breedte"_s, i), breedte, breedte > 0);
        Zet(Sleutel(u"Verborgen"_s, i), verborgen, verborgen);
    }
}

void Venstergeheugen::ZetAan(const QString& naam, bool aan)
{
    Zet(u"Beeld/"_s + naam, aan, !aan);
}

bool Venstergeheugen::IsAan(const QString& naam) const
{
    const QVariant waarde = Lees(u"Beeld/"_s + naam);
    return !waarde.isValid() || waarde.toBool();
}

void Venstergeheugen::Plaats(QWidget& venster) const
{
    venster.restoreGeometry(Lees(Opstelling()).toByteArray());
}

void Venstergeheugen::BewaarPlaats(const QWidget& venster)
{
    Zet(Opstelling(), venster.saveGeometry(), true);
}

} // namespace plexoran
