#include "controls/listbuttons.h"

#include "controls/listscreen.h"
#include "controls/screenmetrics.h"

#include <QAbstractButton>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace Tallymere {

void showListAt(ScreenContext &context, const ListJump &jump, int key)
{
    if (!context.allows(jump.rights.section(u'/', 0, 0), jump.rights.section(u'/', -1)))
        return;
    const WaitCursor hourglass;
    auto *list = qobject_cast<ListScreen *>(jump.another ? context.openAnotherScreen(jump.screen)
                                                         : context.openScreen(jump.screen));
    if (!list)
        return;
    list->resetFilter();
    if (!list->moveToKey(key))
        list->dataSet().first();
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
        QObject::connect(button, &QAbstractButton::clicked, &form,
                         [=, &context, &guard] { guard.run([&] { showListAt(context, jump, keyOf(field)); }); });
    }
}

} // namespace Tallymere
