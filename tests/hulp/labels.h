// What a window tells those who do not look at it of its drop-downs and text fields.
#pragma once

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <string>
#include <vector>

namespace plexoran {

/// The drop-downs and text fields to which no label leads: on Linux a drop-down has no other name.
/// A field that only shows something may have a name of its own instead.
inline std::vector<std::string> ZonderLabel(const QWidget& venster)
{
    std::vector<std::string> zonder;
    for (QWidget* deel : venster.findChildren<QWidget*>()) {
        const auto* vak = qobject_cast<const QLineEdit*>(deel);
        const bool eigen = vak != nullptr && vak->isReadOnly() && !vak->accessibleName().isEmpty();
        if (eigen || (vak == nullptr && qobject_cast<const QComboBox*>(deel) == nullptr))
            continue;
        const auto relaties =
            QAccessible::queryAccessibleInterface(deel)->relations(QAccessible::Label);
        const bool heeft = std::any_of(relaties.begin(), relaties.end(), [](const auto& relatie) {
            const auto* label = qobject_cast<const QLabel*>(relatie.first->object());
            return label != nullptr && !label->text().isEmpty();
        });
        if (!heeft)
            zonder.push_back(deel->objectName().toStdString());
    }
    return zonder;
}

} // namespace plexoran
