#include "dialogs/spelerkeus.h"

#include <QVBoxLayout>

#include "dialogs/keuslijst.h"
#include "platform/scherm/bouwstenen.h"

namespace plexoran {

Spelerkeus::Spelerkeus(QPushButton* cmdOK, QWidget* ouder)
    : QWidget(ouder), lstKeus(new Meerkeuzelijst(this)),
      cmdSelAll(
          MaakKnop(QStringLiteral("cmdSelAll"), QStringLiteral("Selecteer alles"), u'S', this)),
      cmdSelNone(
          MaakKnop(QStringLiteral("cmdSelNone"), QStringLiteral("Selecteer niets"), u'n', this))
{
    Noem(lstKeus, QStringLiteral("lstKeus"), QStringLiteral("Spelers"));
    auto* lagen = new QVBoxLayout(this);
    lagen->setContentsMargins(0, 0, 0, 0);
    lagen->addWidget(
        MaakLabel(QStringLiteral("Label1"), QStringLiteral("Selecteer de spelers(s) "), this));
    lagen->addWidget(lstKeus, 1);
    lagen->addLayout(Knoppenrij({cmdSelAll, cmdSelNone}));

    connect(cmdSelAll, &QPushButton::clicked, lstKeus, [this] { lstKeus->KiesAlles(true); });
    connect(cmdSelNone, &QPushButton::clicked, lstKeus, [this] { lstKeus->KiesAlles(false); });
    connect(lstKeus, &Meerkeuzelijst::keuzeVeranderd, cmdOK,
            [this, cmdOK] { cmdOK->setEnabled(lstKeus->IetsGekozen()); });
    cmdOK->setEnabled(false);
}

void Spelerkeus::Vul(std::vector<int> rijen, std::function<Tekst(int)> regel)
{
    rijen_ = std::move(rijen);
    regel_ = std::move(regel);
    lstKeus->Vul(static_cast<int>(rijen_.size()),
                 [this](int plaats) { return NaarQString(Regel(plaats)); });
    lstKeus->ZetHuidige(0);
}

Tekst Spelerkeus::Regel(int plaats) const
{
    return regel_(rijen_[static_cast<std::size_t>(plaats)]);
}

std::vector<Tekst> Spelerkeus::GekozenKeys() const
{
    std::vector<Tekst> keys;
    for (const int plaats : lstKeus->GekozenPlaatsen())
        keys.emplace_back(KeyVan(Regel(plaats)));
    return keys;
}

} // namespace plexoran
