#pragma once

#include "base/regionalsettings.h"
#include "transactions/entry/documententry.h"
#include "transactions/entry/pastedcolumns.h"

#include <QHash>

namespace Tallymere {

// Rows of a spreadsheet that are to become lines of the document in hand, each as if it were typed: the same checks, and
// what an item brings along. All of them become lines, or none. From the first look at them on the document is locked, as
// it is from the first key on.
class PastedRows
{
public:
    // A row as the line that it would be.
    struct Line
    {
        int row = 0; // in the spreadsheet, from 1
        QStringList shown; // by the columns of the kind's lines; what cannot be read stands as it was given
        QString refusal; // why it cannot be taken; empty where it can
        QString refusedField;
        QString remark; // of a line that can be taken: where a value comes from, or a doubt about a figure
        QString question; // asked before it is taken
    };

    // Takes the text of the clipboard. RuleError where it holds no rows, or more than a document can be expected to have;
    // what keeps the document from being edited. The entry and the prompts outlive the object.
    PastedRows(DocumentEntry &entry, Prompts &prompts, const QString &text,
               const RegionalSettings &settings = RegionalSettings::system());
    void drop(); // the rows are not taken: a document that was not in edit before is so no longer

    static bool isSeveralCells(const QString &text);
    static constexpr int mostRows = 5000;
    static constexpr int mostColumns = 16;

    QString title(int column) const; // of a column as it was given; or its letter: "B"
    QString sample(int column) const; // of what it holds: "12, 5, 7..."
    int columnCount() const { return static_cast<int>(m_columns.fields.size()); }
    const QList<GridColumn> &choices() const { return m_choices; } // what a column may stand for
    const QString &field(int column) const { return m_columns.fields[column]; }
    void setField(int column, const QString &field); // another one that stood for the same is not used any more
    bool hasTitles() const { return m_columns.hasTitles; }
    void setHasTitles(bool has);

    const std::vector<Line> &lines() const { return m_lines; }
    int refusedLines() const;
    bool canBeTaken() const { return !m_lines.empty() && refusedLines() == 0; }
    void take(); // SilentAbort when figures are not meant; whatever stops it, no line has been added

private:
    struct Item
    {
        int id = 0;
        QString refusal;
        QString column;
    };
    const Item &itemBy(const QString &field, const QString &text);
    bool isNumber(const QString &cell) const;
    QString cell(size_t line, const QString &field) const;
    size_t firstLine() const { return m_columns.hasTitles ? 1 : 0; }

    bool hasLine(const CellRow &row) const;
    void judge();
    Line judged(size_t line);
    std::vector<std::function<void()>> steps(size_t line, Line &judgement); // that fill the line in hand
    void chooseItem(size_t line);
    void enter(const QString &field, const QString &text);
    void takeOffers(Line &judgement);
    QString shownText(size_t line, const QString &field) const;
    void askFigures() const;

    DocumentEntry &m_entry;
    Prompts &m_prompts;
    const RegionalSettings m_settings;
    const std::vector<CellRow> m_rows;
    QList<GridColumn> m_choices;
    PastedColumns m_columns;
    QHash<std::pair<QString, QString>, Item> m_items; // by field and text
    std::vector<size_t> m_lineRows; // which of the rows the lines are
    std::vector<Line> m_lines;
    bool m_wasInEdit = false;
};

} // namespace Tallymere
