#pragma once

#include "controls/screens/recordlistscreen.h"
#include "transactions/documents/documentlist.h"

namespace Tallymere {

class DocumentPostScreen;

// The list of the documents of one kind: they are entered, deleted, filtered, found and posted from it.
//
// A list without anything of its own is DocumentListOf<kind>; others derive and call buildList() with what they add.
class DocumentListScreen : public RecordListScreen
{
    Q_OBJECT

public:
    void showWaiting() override { filterByMark(ListFilter::Marked::No); }
    void mnuReverseClick();
    void mnuPostClick() override; // works on a screen that is not shown as well

protected:
    DocumentListScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent);

    // Called once by the constructor of a screen. The description may be added to before the list is built from it.
    void buildList(const std::function<void(ListDescription &)> &add = {});
    void post(DocumentPostScreen &dialog);
    void showStep() override;

    DocumentList &list() { return m_list; }

private:
    ListDescription description();

    DocumentList m_list;
};

template <const DocumentKind &(*kind)()> class DocumentListOf final : public DocumentListScreen
{
public:
    DocumentListOf(ScreenContext &context, QWidget *parent)
        : DocumentListScreen(context, kind(), parent)
    {
        buildList();
    }
};

} // namespace Tallymere
