#include "platform/scherm/leesvak.h"

#include "platform/scherm/maten.h"

namespace plexoran {

QPlainTextEdit* MaakLeesvak(const QString& naam, const QString& gesproken, const QString& tekst,
                            QWidget* ouder)
{
    auto* vak = new QPlainTextEdit(tekst, ouder);
    Noem(vak, naam, gesproken);
    vak->setReadOnly(true);
    vak->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    vak->setTabChangesFocus(true);
    return vak;
}

} // namespace plexoran
