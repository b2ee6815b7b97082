// A bar that shows how far long work is, as often as the eye can follow and no more: showing takes
// longer than most steps of the work.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

namespace plexoran {

class Voortgangsbalk : public QProgressBar {
  public:
    Voortgangsbalk(const QString& naam, QWidget* ouder);

    /// The work begins. The bar just moves until the whole is known.
    void Begin();
    /// What is done of the whole, 0 where the whole is not known. True when it was time to show it:
    /// then the window shows what else it has to show and lets the program paint and listen. That
    /// is every so often, or at once for a bar that comes into view now.
    [[nodiscard]] bool Zet(std::size_t gedaan, std::size_t geheel, bool meteen = false);
    /// Full, and at rest.
    void Rust();
    /// Milliseconds since the work began.
    [[nodiscard]] qint64 Duur() const { return sinds_.elapsed(); }

  private:
    QElapsedTimer sinds_;
    qint64 getoond_ = 0; ///< when the figures were last shown, as `Duur`
};

} // namespace plexoran
