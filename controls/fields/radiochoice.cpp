#include "controls/fields/radiochoice.h"

#include <algorithm>
#include <QHash>
#include <QRadioButton>

namespace Tallymere {

namespace {

using Group = QList<QRadioButton *>;

// Before one is chosen, Tab comes to any of them.
void leadTab(const Group &group)
{
    const bool open =
        std::none_of(group.begin(), group.end(), [](const auto *button) { return button->isChecked(); });
    for (QRadioButton *button : group)
        button->setFocusPolicy(open || button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void leadTabToChosen(const QWidget &form)
{
    QHash<QWidget *, Group> groups;
    const Group buttons = form.findChildren<QRadioButton *>();
    for (QRadioButton *button : buttons)
        groups[button->parentWidget()].append(button);
    for (const Group &group : std::as_const(groups)) {
        leadTab(group);
        for (QRadioButton *button : group)
            QObject::connect(button, &QRadioButton::toggled, button, [group] { leadTab(group); });
    }
}

} // namespace Tallymere
