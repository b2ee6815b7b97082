#include "federation/frmVoorbeeld_model.h"

#include <algorithm>
#include <numeric>

#include "platform/scherm/bouwstenen.h"

namespace plexoran {
namespace {

/// Of a line itself; its fields have the place of their line, from 1.
constexpr quintptr IsRegel = 0;

QString Naam(Kolom kolom, const Regelvoorbeeld& voorbeeld)
{
    const bool subgroep = kolom == Kolom::NBBgr && voorbeeld.IsLijst();
    return NaarQString(subgroep ? Subgroepnaam : Kolomnamen[Index(kolom)]);
}

} // namespace

QString Soorttekst(Voorbeeldsoort soort)
{
    static const std::array<QString, AantalVoorbeeldsoorten> teksten{
        u"Nieuw"_s, u"Gewijzigd"_s, u"Ongewijzigd"_s, u"Geweigerd"_s,
        u"Niet meer in het ledenbestand"_s};
    return teksten.at(static_cast<std::size_t>(soort));
}

Voorbeeldmodel::Voorbeeldmodel(Regelvoorbeeld& voorbeeld, QObject* ouder)
    : QAbstractItemModel(ouder), voorbeeld_(voorbeeld), volgorde_(voorbeeld.Regels().size())
{
    std::iota(volgorde_.begin(), volgorde_.end(), std::size_t{0});
    getoond_ = volgorde_;
}

void Voorbeeldmodel::Toon(Zeef zeef)
{
    zeef.zoek = Gewichten(zeef.zoek);
    zeef_ = std::move(zeef);
    Pas();
}

void Voorbeeldmodel::Pas()
{
    beginResetModel();
    getoond_.clear();
    std::ranges::copy_if(volgorde_, std::back_inserter(getoond_), [this](std::size_t regel) {
        const Voorbeeldregel& wat = voorbeeld_.Regels()[regel];
        return (!zeef_.soort || wat.soort == *zeef_.soort) &&
               (!zeef_.twijfelachtig || wat.IsTwijfelachtig()) &&
               (zeef_.zoek.empty() ||
                Gewichten(voorbeeld_.Naam(regel).append(" ").append(voorbeeld_.Nummer(regel)))
                        .find(zeef_.zoek) != Tekst::npos);
    });
    endResetModel();
}

void Voorbeeldmodel::ZetGetoonde()
{
    const bool aan = std::ranges::none_of(
        getoond_, [this](std::size_t regel) { return voorbeeld_.IsAan(regel); });
    for (const std::size_t regel : getoond_)
        voorbeeld_.Zet(regel, aan);
    if (!getoond_.empty())
        emit dataChanged(index(0, 0, {}), index(rowCount({}) - 1, 0, {}));
}

/// Without a column in the order of the file.
void Voorbeeldmodel::sort(int kolom, Qt::SortOrder volgorde)
{
    std::ranges::sort(volgorde_);
    if (kolom >= 0) {
        std::vector<Tekst> sleutels(volgorde_.size());
        for (std::size_t regel = 0; regel < sleutels.size(); ++regel)
            sleutels[regel] =
                kolom == Soort   ? Tekst(1, static_cast<char>(voorbeeld_.Regels()[regel].soort))
                : kolom == NBBnr ? OpgemaaktNBBnr(voorbeeld_.Nummer(regel))
                                 : Sorteersleutel(NaarTekst(Regeltekst(regel, kolom)));
        std::ranges::stable_sort(volgorde_, [&](std::size_t een, std::size_t ander) {
            return volgorde == Qt::AscendingOrder ? sleutels[een] < sleutels[ander]
                                                  : sleutels[ander] < sleutels[een];
        });
    }
    Pas();
}

QModelIndex Voorbeeldmodel::index(int rij, int kolom, const QModelIndex& onder) const
{
    if (!hasIndex(rij, kolom, onder))
        return {};
    return createIndex(rij, kolom,
                       onder.isValid() ? static_cast<quintptr>(onder.row()) + 1 : IsRegel);
}

QModelIndex Voorbeeldmodel::parent(const QModelIndex& plek) const
{
    if (!plek.isValid() || plek.internalId() == IsRegel)
        return {};
    return createIndex(static_cast<int>(plek.internalId()) - 1, 0, IsRegel);
}

int Voorbeeldmodel::rowCount(const QModelIndex& onder) const
{
    if (!onder.isValid())
        return static_cast<int>(getoond_.size());
    if (onder.internalId() != IsRegel || onder.column() != 0)
        return 0;
    return static_cast<int>(voorbeeld_.Regels()[Regel(onder)].anders.count());
}

int Voorbeeldmodel::columnCount(const QModelIndex& /*onder*/) const
{
    return AantalKoppen;
}

/// Also of a field.
std::size_t Voorbeeldmodel::Regel(const QModelIndex& plek) const
{
    const auto rij =
        plek.internalId() == IsRegel ? static_cast<quintptr>(plek.row()) : plek.internalId() - 1;
    return getoond_[static_cast<std::size_t>(rij)];
}

Veldwijziging Voorbeeldmodel::Veld(const QModelIndex& plek) const
{
    return voorbeeld_.Velden(Regel(plek))[static_cast<std::size_t>(plek.row())];
}

/// The fields of a line that is off cannot be ticked.
Qt::ItemFlags Voorbeeldmodel::flags(const QModelIndex& plek) const
{
    Qt::ItemFlags uit = QAbstractItemModel::flags(plek);
    if (!plek.isValid() || plek.column() != 0)
        return uit;
    const std::size_t regel = Regel(plek);
    const bool mag = plek.internalId() == IsRegel
                         ? voorbeeld_.MagUit(regel)
                         : voorbeeld_.IsAan(regel) && voorbeeld_.MagUit(regel, Veld(plek).kolom);
    return mag ? uit | Qt::ItemIsUserCheckable : uit;
}

QVariant Voorbeeldmodel::headerData(int kolom, Qt::Orientation richting, int rol) const
{
    static const QStringList koppen{u"Soort / gegeven"_s, u"NBB-nr"_s, u"Naam / was"_s,
                                    u"Wat er verandert / wordt"_s};
    return richting == Qt::Horizontal && rol == Qt::DisplayRole ? koppen.value(kolom) : QVariant();
}

QVariant Voorbeeldmodel::data(const QModelIndex& plek, int rol) const
{
    if (!plek.isValid())
        return {};
    const std::size_t regel = Regel(plek);
    const bool isRegel = plek.internalId() == IsRegel;
    if (rol == Qt::CheckStateRole && plek.column() == 0) {
        if (isRegel ? !voorbeeld_.MagUit(regel) : !voorbeeld_.MagUit(regel, Veld(plek).kolom))
            return {};
        const bool aan =
            voorbeeld_.IsAan(regel) && (isRegel || voorbeeld_.IsAan(regel, Veld(plek).kolom));
        return aan ? Qt::Checked : Qt::Unchecked;
    }
    if (rol == Qt::AccessibleTextRole && plek.column() == 0 && !isRegel) {
        const auto tekst = [](Tekstblik cel) { return cel.empty() ? u"leeg"_s : NaarQString(cel); };
        const Veldwijziging veld = Veld(plek);
        return u"%1: %2 wordt %3"_s.arg(Naam(veld.kolom, voorbeeld_), tekst(veld.oud),
                                        tekst(veld.nieuw));
    }
    if (rol != Qt::DisplayRole && rol != Qt::ToolTipRole)
        return {};
    const QString tekst = isRegel ? Regeltekst(regel, plek.column()) : Veldtekst(plek);
    return rol == Qt::ToolTipRole ? Wenk(tekst) : tekst;
}

bool Voorbeeldmodel::setData(const QModelIndex& plek, const QVariant& waarde, int rol)
{
    if (rol != Qt::CheckStateRole || !flags(plek).testFlag(Qt::ItemIsUserCheckable))
        return false;
    const bool aan = waarde.toInt() == Qt::Checked;
    if (plek.internalId() == IsRegel)
        voorbeeld_.Zet(Regel(plek), aan);
    else
        voorbeeld_.Zet(Regel(plek), Veld(plek).kolom, aan);
    emit dataChanged(plek, plek);
    if (const int velden = rowCount(plek); velden > 0)
        emit dataChanged(index(0, 0, plek), index(velden - 1, 0, plek));
    return true;
}

QString Voorbeeldmodel::Veldtekst(const QModelIndex& plek) const
{
    const Veldwijziging veld = Veld(plek);
    switch (plek.column()) {
    case Soort:
        return Naam(veld.kolom, voorbeeld_);
    case Wie:
        return NaarQString(veld.oud);
    case Wat:
        return NaarQString(veld.nieuw);
    default:
        return {};
    }
}

QString Voorbeeldmodel::Regeltekst(std::size_t regel, int kolom) const
{
    const Voorbeeldregel& wat = voorbeeld_.Regels()[regel];
    switch (kolom) {
    case Soort:
        return Soorttekst(wat.soort) + (wat.IsTwijfelachtig() ? u", twijfelachtig"_s : QString());
    case NBBnr:
        return NaarQString(voorbeeld_.Nummer(regel));
    case Wie:
        return NaarQString(voorbeeld_.Naam(regel));
    default:
        return Wijziging(regel) + Twijfel(wat);
    }
}

/// What the import does with a line, or why it does nothing.
QString Voorbeeldmodel::Wijziging(std::size_t regel) const
{
    const Voorbeeldregel& wat = voorbeeld_.Regels()[regel];
    switch (wat.soort) {
    case Voorbeeldsoort::Nieuw:
        return u"komt erbij"_s;
    case Voorbeeldsoort::Gewijzigd: {
        QStringList velden;
        for (int i = 1; i <= AantalKolommen; ++i) {
            const auto kolom = static_cast<Kolom>(i);
            if (wat.anders[Index(kolom)])
                velden << Naam(kolom, voorbeeld_);
        }
        return velden.join(u", "_s);
    }
    case Voorbeeldsoort::Ongewijzigd:
        return u"niets"_s;
    case Voorbeeldsoort::Verdwenen:
        return u"niets: wie geen lid meer is, blijft staan"_s;
    case Voorbeeldsoort::Geweigerd:
        break;
    }
    return voorbeeld_.IsLijst()
               ? u"regel %1: "_s.arg(voorbeeld_.Bestandsregel(regel)) + Weigertekst(regel)
               : Weigertekst(regel);
}

QString Voorbeeldmodel::Weigertekst(std::size_t regel) const
{
    switch (voorbeeld_.Regels()[regel].weigering) {
    case Weigering::ZonderNBBnr:
        return u"niet verwerkt: het NBB-nummer ontbreekt"_s;
    case Weigering::KomtVoor:
        return u"overgeslagen: het NBB-nummer komt al voor, eerder in dit bestand, of anders "
               "geschreven in groep '%1'"_s.arg(NaarQString(voorbeeld_.Groep()));
    case Weigering::MetIsTeken:
        return u"overgeslagen: er staat een '=' in, zoals in een kopregel"_s;
    case Weigering::TeKort:
        return u"heeft te weinig kolommen: deze regel en wat erachter staat, is niet gelezen"_s;
    case Weigering::Cellen:
        return u"overgeslagen: er staan niet evenveel gegevens op als op de eerste regel"_s;
    case Weigering::GeenNaam:
        return u"overgeslagen: de achternaam ontbreekt"_s;
    case Weigering::Nummer:
        return u"overgeslagen: het NBB-nummer is geen getal van ten hoogste 8 cijfers"_s;
    }
    return {};
}

/// Somebody else of that name is known.
QString Voorbeeldmodel::Naamgenoot(int rij) const
{
    const auto cel = [&](Kolom kolom) { return voorbeeld_.Tabel().Cel(rij, kolom); };
    const auto met = [&](const QString& wat, Kolom kolom) {
        return IsBlanco(cel(kolom)) ? u"zonder "_s + wat
                                    : u"met %1 %2"_s.arg(wat, NaarQString(cel(kolom)));
    };
    const QString nummer = u"deze naam staat er al "_s + met(u"NBB-nummer"_s, Kolom::NBBnr);
    return voorbeeld_.IsLijst() ? nummer + u" en "_s + met(u"postcode"_s, Kolom::Postc) : nummer;
}

QString Voorbeeldmodel::Twijfel(const Voorbeeldregel& regel) const
{
    QStringList redenen;
    if (regel.naamgenoot > 0)
        redenen << Naamgenoot(regel.naamgenoot);
    if (regel.andereNaam)
        redenen << u"bij dit nummer stond een heel andere naam"_s;
    if (regel.dubbel)
        redenen << (voorbeeld_.IsLijst() ? u"deze naam staat meer dan eens in de lijst"_s
                                         : u"deze naam staat meer dan eens in het ledenbestand"_s);
    if (regel.zonderAchternaam)
        redenen << u"zonder achternaam wordt deze speler na het opslaan niet meer ingelezen"_s;
    return redenen.isEmpty() ? QString() : u" (let op: "_s + redenen.join(u"; "_s) + u')';
}

} // namespace plexoran
