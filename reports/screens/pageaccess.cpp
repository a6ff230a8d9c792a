#include "reports/screens/pageaccess.h"

#include "controls/windows/showntext.h"
#include "reports/screens/pageview.h"

#include <QAccessibleWidget>
#include <utility>

namespace Tallymere {

namespace {

class ReadablePages final : public QAccessibleWidget
{
public:
    explicit ReadablePages(PageView *view)
        : QAccessibleWidget(view, QAccessible::Document)
        , m_text([view] { return view->currentText(); })
    {
        QObject::connect(view, &PageView::pageShown, view, [view, last = 0](int page) mutable {
            if (std::exchange(last, page) == page)
                return; // scrolled
            QAccessibleTextInsertEvent come(view, 0, view->currentText());
            QAccessible::updateAccessibility(&come);
        });
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(&m_text)
                                                  : QAccessibleWidget::interface_cast(type);
    }

private:
    ShownText m_text;
};

QAccessibleInterface *makeReadable(const QString &, QObject *object)
{
    auto *view = qobject_cast<PageView *>(object);
    return view ? new ReadablePages(view) : nullptr;
}

} // namespace

void letPagesBeRead()
{
    QAccessible::installFactory(makeReadable); // Qt takes it once
}

} // namespace Tallymere
