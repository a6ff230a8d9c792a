#include "master/searchedlistform.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

SearchedListScreen::SearchedListScreen(ScreenContext &context, const MasterKind &kind,
                                       const RecordScreens::Make &makeRecord, QWidget *parent)
    : MasterListScreen(context, kind, makeRecord, parent)
{
}

void SearchedListScreen::buildSearchedList(const std::function<void(ListDescription &)> &add)
{
    buildList([&](ListDescription &list) {
        list.buttons +=
            {{u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s}, {u"btnFind"_s, tr("F&ind"), u"mnuFind"_s}};
        menu(list, tr("&Records")).commands.append(findCommand([this] { btnFindClick(); }));
        menu(list, tr("&View")).commands.prepend(filterCommand([this] { btnFilterClick(); }));
        if (add)
            add(list);
    });
}

void SearchedListScreen::btnFilterClick()
{
    if (!m_filter)
        m_filter = m_makeFilter();
    if (m_filter->exec() == QDialog::Accepted)
        applyFilter(list().kind().filterExpression(m_filter->filter()));
}

void SearchedListScreen::btnFindClick() { m_makeFind()->exec(); }

void SearchedListScreen::clearFilterDialog()
{
    if (m_filter)
        m_filter->btnResetClick();
}

} // namespace Tallymere
