// The edges of the grid's header, by which columns are made wider and narrower.
#include <QContextMenuEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

#include "mainwindow/rooster.h"

namespace plexoran {

/// The column that ends near a place on the header; 0 when none does.
int Rooster::RandBij(double x) const
{
    const Kolomranden& randen = P1->Randen();
    for (std::size_t i = cmd.size(); i > 0; --i) {
        if (randen[i] > randen[i - 1] && std::abs(x - qRound(randen[i] * pixelsPerMm_)) <= Greep)
            return static_cast<int>(i);
    }
    return 0;
}

void Rooster::Versleep(double x)
{
    const auto kolom = static_cast<std::size_t>(sleept_) - 1;
    Kolomkeuzes keuzes = P1->Keuzes();
    keuzes[kolom].breedte = std::max(rooster::SmalsteKeuze, x / pixelsPerMm_ - P1->Randen()[kolom]);
    versleept_ = true;
    Kies(keuzes);
}

/// What was not dragged was clicked.
void Rooster::LaatLos()
{
    sleept_ = 0;
    if (versleept_)
        emit gekozen(P1->Keuzes());
    else
        P1->VerbergLijnen();
}

void Rooster::Pas(int kolom)
{
    const auto plaats = static_cast<std::size_t>(kolom) - 1;
    Kolomkeuzes keuzes = P1->Keuzes();
    keuzes[plaats].breedte = P1->Passend(plaats);
    Kies(keuzes);
    emit gekozen(keuzes);
}

bool Rooster::eventFilter(QObject* object, QEvent* gebeurtenis)
{
    if (gebeurtenis->type() == QEvent::ContextMenu) {
        const auto kolom = std::find(cmd.begin(), cmd.end(), object) - cmd.begin() + 1;
        emit kopmenuGevraagd(kolom > AantalKolommen ? 0 : static_cast<int>(kolom),
                             static_cast<QContextMenuEvent*>(gebeurtenis)->globalPos());
        return true;
    }
    auto* deel = static_cast<QWidget*>(object);
    const auto* muis = dynamic_cast<QMouseEvent*>(gebeurtenis);
    if (muis == nullptr)
        return Schuifkader::eventFilter(object, gebeurtenis);
    const double x = P2->mapFromGlobal(muis->globalPosition()).x();
    const int rand = RandBij(x);
    switch (gebeurtenis->type()) {
    case QEvent::MouseButtonPress:
        sleept_ = muis->button() == Qt::LeftButton ? rand : 0;
        versleept_ = false;
        return sleept_ > 0;
    case QEvent::MouseMove:
        deel->setCursor(rand > 0 || sleept_ > 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
        if (sleept_ > 0)
            Versleep(x);
        return sleept_ > 0;
    case QEvent::MouseButtonRelease:
        if (sleept_ == 0)
            return false;
        LaatLos();
        return true;
    case QEvent::MouseButtonDblClick:
        if (rand > 0)
            Pas(rand);
        return rand > 0;
    default:
        return false;
    }
}

} // namespace plexoran
