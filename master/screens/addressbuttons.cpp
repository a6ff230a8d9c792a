#include "master/screens/addressbuttons.h"

#include "base/ruleerror.h"
#include "controls/fields/fieldbinder.h"
#include "controls/windows/guard.h"
#include "master/masterrecord.h"
#include "master/screens/dialerinv.h"

#include <QAbstractButton>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Pages are kept without "http://". One that names another way to reach it is opened that way.
void browse(const ScreenContext &context, const QString &page)
{
    context.openObject(page.contains("://"_L1) ? page : "http://"_L1 + page);
}

void connectButton(QAbstractButton &button, const Guard &guard, const std::function<void()> &handler)
{
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [&guard, handler] { guard.runWhenFree(handler); });
}

} // namespace

void mailTo(const ScreenContext &context, const QString &address) { context.openObject("mailto:"_L1 + address); }

void connectAddressButtons(QWidget &form, FieldBinder &binder, const MasterRecord &record, ScreenContext &context,
                           const Guard &guard)
{
    const auto enteredIn = [&binder, &record](const QString &field) {
        binder.commit();
        return record.table().text(field);
    };
    const auto connectOpening = [&](QAbstractButton &button, const QString &field, auto open) {
        button.setEnabled(context.openObject != nullptr);
        connectButton(button, guard, [=, &context] {
            const QString address = enteredIn(field);
            if (address.isEmpty())
                throw SilentAbort(field);
            open(context, address);
        });
    };

    const auto buttons = form.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (const QString field = button->property("mails").toString(); !field.isEmpty())
            connectOpening(*button, field, mailTo);
        if (const QString field = button->property("browses").toString(); !field.isEmpty())
            connectOpening(*button, field, browse);
        if (const QString field = button->property("dials").toString(); !field.isEmpty()) {
            connectButton(*button, guard, [=, &form, &record, &context] {
                const QString number = enteredIn(field);
                dialPhone(context, record.table().text(record.kind().nameField()), number, &form);
            });
        }
    }
}

} // namespace Tallymere
