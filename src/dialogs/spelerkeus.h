// The part that the windows for moving and for copying share: the list of players with its label
// and its two buttons.
#pragma once

#include <utility>

#include "dialogs/groepswerk.h"
#include "platform/scherm/bouwstenen.h"
#include "platform/scherm/regellijst.h"

namespace plexoran {

class Spelerkeus : public QWidget {
  public:
    /// `cmdOK` can be pressed while at least one line is chosen.
    Spelerkeus(const Spelertabel& tabel, QPushButton* cmdOK, QWidget* ouder)
        : QWidget(ouder),
          lstKeus(new Regellijst(QListView::MultiSelection, u"lstKeus"_s, u"Spelers"_s, this)),
          cmdSelAll(MaakKnop(u"cmdSelAll"_s, u"Selecteer alles"_s, u'S', this)),
          cmdSelNone(MaakKnop(u"cmdSelNone"_s, u"Selecteer niets"_s, u'n', this)), tabel_(tabel)
    {
        auto* Label1 = MaakLabel(u"Label1"_s, u"Selecteer de spelers(s) "_s, this);
        Label1->setBuddy(lstKeus);
        Onderelkaar({Label1, {lstKeus, 1}, Knoppenrij({cmdSelAll, cmdSelNone})}, this)
            ->setContentsMargins(0, 0, 0, 0);

        connect(cmdSelAll, &QPushButton::clicked, lstKeus, &Regellijst::selectAll);
        connect(cmdSelNone, &QPushButton::clicked, lstKeus, &Regellijst::clearSelection);
        connect(lstKeus, &Regellijst::keuzeVeranderd, cmdOK,
                [this, cmdOK] { cmdOK->setEnabled(lstKeus->IetsGekozen()); });
        cmdOK->setEnabled(false);
    }

    /// Fills the list anew; `regel` gives the line of a row.
    void VulKeuslijst(std::vector<int> rijen, Tekst (*regel)(const Spelertabel&, int rij))
    {
        rijen_ = std::move(rijen);
        lstKeus->Vul(static_cast<int>(rijen_.size()),
                     [this, regel](int plek) { return regel(tabel_, Rij(plek)); });
    }
    /// Of the chosen lines, in list order.
    [[nodiscard]] std::vector<Tekst> GekozenKeys() const
    {
        std::vector<Tekst> keys;
        for (const int plek : lstKeus->GekozenPlaatsen())
            keys.push_back(Regelkey(tabel_, Rij(plek)));
        return keys;
    }

    Regellijst* const lstKeus;
    QPushButton* const cmdSelAll;
    QPushButton* const cmdSelNone;

  private:
    [[nodiscard]] int Rij(int plek) const { return rijen_[static_cast<std::size_t>(plek)]; }

    const Spelertabel& tabel_;
    std::vector<int> rijen_; ///< of the lines
};

} // namespace plexoran
