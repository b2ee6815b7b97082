#include "dialogs/spelerkeus.h"

#include <QVBoxLayout>

#include "dialogs/keuslijst.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {

Spelerkeus::Spelerkeus(QPushButton* cmdOK, QWidget* ouder)
    : QWidget(ouder), lstKeus(new Regellijst(QListView::MultiSelection, this)),
      cmdSelAll(MaakKnop(u"cmdSelAll"_s, u"Selecteer alles"_s, u'S', this)),
      cmdSelNone(MaakKnop(u"cmdSelNone"_s, u"Selecteer niets"_s, u'n', this))
{
    Noem(lstKeus, u"lstKeus"_s, u"Spelers"_s);
    auto* lagen = new QVBoxLayout(this);
    lagen->setContentsMargins(0, 0, 0, 0);
    auto* Label1 = MaakLabel(u"Label1"_s, u"Selecteer de spelers(s) "_s, this);
    Label1->setBuddy(lstKeus);
    lagen->addWidget(Label1);
    lagen->addWidget(lstKeus, 1);
    lagen->addLayout(Knoppenrij({cmdSelAll, cmdSelNone}));

    connect(cmdSelAll, &QPushButton::clicked, lstKeus, &Regellijst::selectAll);
    connect(cmdSelNone, &QPushButton::clicked, lstKeus, &Regellijst::clearSelection);
    connect(lstKeus, &Regellijst::keuzeVeranderd, cmdOK,
            [this, cmdOK] { cmdOK->setEnabled(lstKeus->IetsGekozen()); });
    cmdOK->setEnabled(false);
}

void Spelerkeus::Vul(std::vector<int> rijen, std::function<Tekst(int)> regel)
{
    const int aantal = static_cast<int>(rijen.size());
    lstKeus->Vul(aantal, [rijen = std::move(rijen), regel = std::move(regel)](int plaats) {
        return regel(rijen[static_cast<std::size_t>(plaats)]);
    });
}

std::vector<Tekst> Spelerkeus::GekozenKeys() const
{
    std::vector<Tekst> keys;
    for (const int plaats : lstKeus->GekozenPlaatsen())
        keys.emplace_back(KeyVan(lstKeus->Regel(plaats)));
    return keys;
}

} // namespace plexoran
