// A text box that holds only what the register can keep: characters of the code page, no line ends
// and no other control characters. Typed, pasted or dropped alike.
#pragma once

#include <QLineEdit>

#include <functional>
#include <optional>

#include "platform/tekst/tekst.h"

namespace plexoran {

class Tekstvak : public QLineEdit {
    Q_OBJECT

  public:
    explicit Tekstvak(QWidget* ouder);

    /// Fills the box; bytes that the user leaves alone come back as they were, control characters
    /// and texts of any length included.
    void ZetTekst(Tekstblik tekst);
    [[nodiscard]] Tekst GeefTekst() const;
    /// Replaces the text on the program's account; the caret stays as far from the end as it was.
    void Vervang(Tekstblik tekst);

    /// What becomes of a character that is put into the box when it holds `lengte` characters:
    /// itself, another one, or nothing. Asked for every key and for every pasted character.
    using Toetsregel = std::function<std::optional<char>(char teken, std::size_t lengte)>;
    void ZetToetsregel(Toetsregel regel) { toetsregel_ = std::move(regel); }

  signals:
    /// The user is done with the box: it lost the focus, other than to a menu or another program.
    void verlaten();

  protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;
    void focusOutEvent(QFocusEvent* gebeurtenis) override;

  private:
    void Zuiver();
    void ZetSchoon(const QString& tekst);
    [[nodiscard]] QString VolgensToetsregel(const QString& ingevoegd, qsizetype lengte) const;

    Toetsregel toetsregel_;
    QString begintekst_;
    Tekst beginbytes_;
    QString vorige_; ///< the text before the edit that is being looked at
};

} // namespace plexoran
