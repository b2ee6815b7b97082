#include "mainwindow/venstergeheugen.h"

#include <QEvent>
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

} // namespace

QString Venstergeheugen::Opstelling()
{
    QStringList schermen;
    for (const QScreen* scherm : QGuiApplication::screens()) {
        const QRect vlak = scherm->geometry();
        schermen
            << u"%1x%2.%3.%4"_s.arg(vlak.width()).arg(vlak.height()).arg(vlak.x()).arg(vlak.y());
    }
    return u"Plaats/"_s + schermen.join(u'_');
}

Venstergeheugen::Venstergeheugen(const Pad& bestand, std::function<QString()> opstelling)
    : stand_(std::move(opstelling))
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

std::optional<Kolom> Venstergeheugen::Volgorde() const
{
    const int kolom = Lees(u"Beeld/Volgorde"_s).toInt();
    return kolom < 1 || kolom > AantalKolommen ? std::nullopt
                                               : std::optional(static_cast<Kolom>(kolom));
}

void Venstergeheugen::Bewaar(std::optional<Kolom> volgorde)
{
    Zet(u"Beeld/Volgorde"_s, static_cast<int>(volgorde.value_or(Kolom())), volgorde.has_value());
}

void Venstergeheugen::Volg(QWidget& venster)
{
    constexpr int tot = 500; // milliseconds
    venster_ = &venster;
    opstelling_ = stand_();
    venster.restoreGeometry(Lees(opstelling_).toByteArray());
    venster.installEventFilter(this);
    rust_.setSingleShot(true);
    rust_.setInterval(tot);
    connect(&rust_, &QTimer::timeout, this, &Venstergeheugen::Verhuis);
    for (const auto signaal : {&QGuiApplication::screenAdded, &QGuiApplication::screenRemoved,
                               &QGuiApplication::primaryScreenChanged})
        connect(qGuiApp, signaal, &rust_, qOverload<>(&QTimer::start));
}

bool Venstergeheugen::eventFilter(QObject* /*object*/, QEvent* gebeurtenis)
{
    if (gebeurtenis->type() == QEvent::Move || gebeurtenis->type() == QEvent::Resize)
        rust_.start();
    return false;
}

/// A system that takes a screen away moves the window before it tells so: that is no place of its.
void Venstergeheugen::Verhuis()
{
    const QString nu = stand_();
    if (nu == opstelling_) {
        plek_ = venster_->saveGeometry();
        return;
    }
    if (!plek_.isEmpty())
        Zet(opstelling_, plek_, true);
    opstelling_ = nu;
    const QByteArray hier = Lees(nu).toByteArray();
    venster_->restoreGeometry(hier.isEmpty() ? venster_->saveGeometry() : hier);
}

void Venstergeheugen::BewaarPlaats(const QWidget& venster)
{
    Zet(stand_(), venster.saveGeometry(), true);
}

} // namespace plexoran
