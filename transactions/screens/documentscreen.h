#pragma once

#include "controls/grids/lineoptions.h"
#include "controls/grids/tablemodel.h"
#include "controls/screens/recordscreen.h"
#include "engine/store/tablelocks.h"
#include "transactions/entry/documententry.h"

#include <functional>

class QAction;
class QLabel;
class QToolButton;
class QPushButton;

namespace Tallymere {

class FiguresLine;
class LineGrid;
class RecordOpener;
class SumLabel;

// The screen of one document: header fields over a grid of lines. The rules are DocumentEntry's; the screens of the
// kinds give the form and what is special in their header.
class DocumentScreen : public RecordScreen
{
    Q_OBJECT

public:
    ~DocumentScreen() override;

    void newRecord() override;
    bool openRecord(int key) override;
    std::optional<int> storedKey() const override;
    // A new document that is begun otherwise than empty, to be looked over.
    void newFilled(const std::function<void(DocumentEntry &)> &begin);
    // One that takes back what a posted one has done (see beginReversal).
    void newReversal(int key);
    // Shows that in a screen of its own, which the opener makes.
    static void openReversal(RecordOpener &opener, int key);
    // Brings the cursor to the line of an item, of several to that with the quantity. A line being entered stays where
    // it is.
    void showLineOf(int itemId, double quantity);

protected:
    DocumentScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent);

    // Called once by the constructor of a screen, after its form has been set up: fills the lookup boxes that name
    // their lists, binds the header's widgets, the grid "DBGrid1", which shows the kind's columns, the label
    // "lblPosted", and the line that shows figures for which the grid has no room.
    void buildDocument(LineOptions options = {});

    DocumentEntry &entry() const { return *m_entry; }
    LineGrid *grid() const { return m_grid; }

    virtual void showHeader(); // the header has changed: caption, "POSTED"
    // Fits the window, beside what else is in it, to the first rows and columns of the grid.
    void sizeForLines();

    Pending pending() const override;
    void saveChanges() override;
    void dropChanges() override;
    std::optional<int> savedKey() const override;
    QString caption() const override;
    QString closingQuestion() const override;
    QString recordName() const override;
    bool focusColumn(const QString &column) override;
    bool takeKey(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QList<GridColumn> gridColumns(LineOptions &options) const;
    void addOpenMark();
    void addItemCard();
    void addLineButtons();
    QToolButton *addLineButton(const QString &name, const QString &text, const QString &toolTip, QAction *action);
    void addPopupCommands();
    void addPassesKnown();
    void addPasteRows();
    void addBottomRow();
    void showReadOnly(bool readOnly);
    QAction *addPopupCommand(const QString &name, const QString &caption, const QKeySequence &shortcut,
                             const std::function<void()> &run);
    void tellLater();
    void showTold();
    QString note() const;
    QString warning() const; // of the line with the cursor
    bool followsFromItem(const QString &column) const;
    std::optional<LineOffer> offerFor(const QString &column) const;
    void putLineBack();
    void pasteRows();
    void btnReverseClick();
    void enterCell(const QString &field, const QString &text);
    bool searchItem(const QString &typed); // false: none was chosen
    void takeScan(bool inItsColumn, const QString &code);
    QString completeDescription(const QString &field, const QString &typed) const;

    const Engine::OpenShares m_opening; // of its tables and lists
    Engine::Answer<QList<qint64>> m_askedBegun; // for a new document; it travels with the opening of the tables
    std::unique_ptr<DocumentEntry> m_entry;
    LineGrid *m_grid = nullptr;
    QLabel *m_posted = nullptr;
    QLabel *m_open = nullptr; // shown in its place
    SumLabel *m_total = nullptr; // of the lines
    FiguresLine *m_figures = nullptr; // may be missing
    bool m_tellsLater = false;
    bool m_wasActive = false;
    QPushButton *m_reverse = nullptr; // of a posted document
    RecordOpener *m_opener = nullptr; // of what that leads to, once it is needed
    QAction *m_undo = nullptr; // of the line taken out last
    QAction *m_passesKnown = nullptr;
    QList<QAction *> m_popup;
    QAction *m_paste = nullptr;
    QToolButton *m_newLine = nullptr;
    QToolButton *m_pasteButton = nullptr;
};

// The screen of a kind of document without anything of its own: the form names the fields.
template <const DocumentKind &(*kind)(), typename Form> class DocumentForm final : public DocumentScreen
{
public:
    DocumentForm(ScreenContext &context, QWidget *parent)
        : DocumentScreen(context, kind(), parent)
    {
        Form form;
        form.setupUi(this);
        buildDocument();
    }
};

} // namespace Tallymere
