#include "controls/screens/listbuttons.h"

#include "base/rights.h"
#include "controls/screens/listscreen.h"
#include "controls/windows/screenmetrics.h"

#include <QAbstractButton>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isAllowed(const ScreenContext &context, const ListJump &jump)
{
    const Rights rights = rightsOf(jump.rights);
    return context.allows(rights.key, rights.name);
}

// The list, open and unfiltered; nullptr when the system does not have it.
ListScreen *openList(const ScreenContext &context, const ListJump &jump)
{
    auto *list = qobject_cast<ListScreen *>(jump.another ? context.openAnotherScreen(jump.screen)
                                                         : context.openScreen(jump.screen));
    if (list)
        list->resetFilter();
    return list;
}

} // namespace

void showListAt(ScreenContext &context, const ListJump &jump, int key)
{
    if (!isAllowed(context, jump))
        return;
    const WaitCursor hourglass;
    ListScreen *list = openList(context, jump);
    if (list && !list->moveToKey(key))
        list->dataSet().first();
}

void showListFiltered(ScreenContext &context, const ListJump &jump, const QList<KeyOfField> &keys)
{
    if (!isAllowed(context, jump))
        return;
    const WaitCursor hourglass;
    ListScreen *list = openList(context, jump);
    if (!list)
        return;
    list->filterBy(keys);
    list->refreshList();
}

void connectListButtons(QWidget &form, ScreenContext &context, const Guard &guard,
                        const std::function<int(const QString &field)> &keyOf)
{
    const auto buttons = form.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        const ListJump jump{button->property("opensList").toString(), button->property("rights").toString(),
                            button->property("opensAnother").toBool()};
        if (jump.screen.isEmpty())
            continue;
        button->setEnabled(context.knows(jump.screen) && (!jump.another || context.openAnotherScreen));
        const QString field = button->property("listField").toString();
        QObject::connect(button, &QAbstractButton::clicked, &form, [=, &context, &guard] {
            guard.runWhenFree([&] { showListAt(context, jump, keyOf(field)); });
        });
    }
}

} // namespace Tallymere
