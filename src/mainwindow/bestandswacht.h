// Notices that another program changed a file, also on a drive of the network, where the system
// tells nothing: it looks at the stamps once a second, while no other window asks for an answer.
#pragma once

#include <QObject>

#include <vector>

#include "platform/schijf/schijf.h"

namespace plexoran {

class Bestandswacht : public QObject {
    Q_OBJECT

  public:
    Bestandswacht(Schijf& schijf, QObject* ouder);

    /// These files as they are now are known.
    void Bewaak(std::vector<Pad> paden);
    /// What changed last could not be read: it is new at the next look too.
    void Vergeet() { stempels_.clear(); }
    /// Looks at once.
    void Kijk();
    /// The same, unless a command is under way.
    void KijkAlsHetMag();

  signals:
    /// A file is not what it was when it was looked at last.
    void veranderd();

  protected:
    void timerEvent(QTimerEvent* /*gebeurtenis*/) override { KijkAlsHetMag(); }

  private:
    [[nodiscard]] std::vector<std::optional<Stempel>> Stempels() const;

    Schijf& schijf_;
    std::vector<Pad> paden_;
    std::vector<std::optional<Stempel>> stempels_;
};

} // namespace plexoran
