#pragma once

#include "controls/screens/dialogscreen.h"

#include <memory>

namespace Ui {
class DocumentFindScreen;
}

namespace Tallymere {

class DocumentList;
class ListScreen;
class WordsFinding;

// Moves the list of a kind of document to one of them, by the number that users see; or to rows with the words that have been
// typed for it.
class DocumentFindScreen final : public DialogScreen
{
    Q_OBJECT

public:
    DocumentFindScreen(ScreenContext &context, DocumentList &list, ListScreen &screen);
    ~DocumentFindScreen() override;

    void btnOKClick();

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    std::unique_ptr<Ui::DocumentFindScreen> m_ui;
    DocumentList &m_list;
    WordsFinding *m_words;
};

} // namespace Tallymere
