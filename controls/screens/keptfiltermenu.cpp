#include "controls/screens/keptfiltermenu.h"

#include "base/ruleerror.h"
#include "controls/screens/filterdialog.h"
#include "controls/screens/keptfiltersdialog.h"
#include "controls/texts.h"
#include "controls/windows/icons.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

void applyKept(const FilteredList &list, const KeptFilter &filter)
{
    if (!list.dialog().choose(filter.choices))
        throw RuleError(ControlsTexts::tr("The filter '%1' no longer fits this list: something that it asks for is "
                                          "gone (%2). You can delete it.")
                            .arg(filter.name, filter.words));
    list.apply();
}

KeptFilterMenu::KeptFilterMenu(ScreenContext &context, const Guard &guard, FilteredList list, QWidget *parent)
    : QMenu(tr("&Kept Filters"), parent)
    , m_context(context)
    , m_guard(guard)
    , m_list(std::move(list))
    , m_kept(m_list.list, context.data, context.settings)
    , m_manage(new QAction(tr("Keep, Rename or Delete..."), this))
{
    menuAction()->setObjectName(u"mnuKeptFilters"_s);
    setGlyph(*menuAction(), Glyph::Filter);
    m_manage->setObjectName(u"mnuKeepFilter"_s);
    m_manage->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    setGlyph(*m_manage, Glyph::Save);
    setToolTipsVisible(true);
    addAction(m_manage);
    connect(m_manage, &QAction::triggered, this, [this] { m_guard.runWhenFree([this] { openDialog(); }); });
    connect(this, &QMenu::aboutToShow, this, &KeptFilterMenu::fill);
}

QToolButton *KeptFilterMenu::makeButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(u"btnKeptFilters"_s);
    button->setAccessibleName(tr("Kept filters"));
    button->setToolTip(tr("Filters that you have kept"));
    button->setArrowType(Qt::DownArrow);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this,
            [this, button] { popup(button->mapToGlobal(QPoint(0, button->height()))); });
    return button;
}

void KeptFilterMenu::fill()
{
    const QList<QAction *> before = actions();
    for (QAction *entry : before) {
        if (entry != m_manage)
            delete entry;
    }
    const QList<KeptFilter> filters = m_kept.all();
    for (const KeptFilter &filter : filters)
        addFilter(filter);
    if (!filters.isEmpty())
        insertSeparator(m_manage);
}

void KeptFilterMenu::addFilter(const KeptFilter &filter)
{
    auto *entry = new QAction(QString(filter.name).replace(u'&', "&&"_L1), this);
    entry->setToolTip(filter.words);
    entry->setCheckable(true);
    entry->setChecked(!m_list.words().isEmpty() && m_list.dialog().choices() == filter.choices);
    connect(entry, &QAction::triggered, this,
            [this, filter] { m_guard.runWhenFree([this, filter] { applyKept(m_list, filter); }); });
    insertAction(m_manage, entry);
}

void KeptFilterMenu::openDialog() { KeptFiltersDialog(m_context, m_list, parentWidget()).exec(); }

} // namespace Tallymere
