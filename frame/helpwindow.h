#pragma once

#include "controls/grids/windowmemory.h"
#include "frame/manualcollection.h"

#include <QWidget>

class QHelpIndexWidget;
class QHelpSearchEngine;
class QListWidgetItem;

namespace Tallymere {

namespace Ui {
class HelpWindow;
}

class SettingsStore;

// The manual: its contents, its index, a search in its whole text, and the page that is read. Not modal, and never kept
// from being used by a dialog that is: one reads while one works.
class HelpWindow final : public QWidget
{
    Q_OBJECT

public:
    // The collection is open.
    HelpWindow(std::unique_ptr<ManualCollection> manual, SettingsStore &settings, QWidget &owner);
    ~HelpWindow() override;

    const ManualCollection &manual() const { return *m_manual; }
    void showPage(const QUrl &page);
    void showContents(); // and the first page, where none is shown yet

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void buildContents();
    void focusTab();
    void buildIndex();
    void buildSearch();
    void search();
    void showFound();
    void openFound(const QListWidgetItem *item);
    void standOver(QWidget *window);
    void leave();

    std::unique_ptr<ManualCollection> m_manual;
    std::unique_ptr<Ui::HelpWindow> m_ui;
    QWidget &m_owner;
    QHelpIndexWidget *m_index;
    QHelpSearchEngine *m_search;
    bool m_indexed = false; // the words of the manual have been read
    bool m_searched = false; // something has been asked for
    bool m_shown = false;
    WindowMemory m_memory;
};

} // namespace Tallymere
