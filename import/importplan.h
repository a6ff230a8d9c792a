#pragma once

#include "base/prompts.h"
#include "import/importkind.h"
#include "import/importrows.h"

#include <QHash>

namespace Tallymere {

// How a file is to be brought in: its sheet, the row with the headings, and what each column stands for. What fits by its
// heading, or has been chosen for it before, is proposed. RuleError for a file that cannot be read.
class ImportPlan
{
public:
    // What headings stood for when a file of the kind was brought in last, by their words.
    using Memory = QHash<QString, QString>;

    ImportPlan(const ImportKind &kind, QString fileName, Memory memory = {}, Progress *progress = nullptr);

    const ImportKind &kind() const { return *m_kind; }
    const QString &fileName() const { return m_fileName; }
    const QStringList &sheets() const { return m_sheets; } // empty for files that have none
    const QString &sheet() const { return m_sheet; }
    void setSheet(const QString &sheet, Progress *progress = nullptr);
    int headRow() const { return m_headRow; }
    void setHeadRow(int row, Progress *progress = nullptr); // from 1; the first one below in which something stands

    int columnCount() const { return static_cast<int>(m_columns.size()); }
    const QString &heading(int column) const { return m_columns[static_cast<size_t>(column)].heading; }
    QString sample(int column) const
    {
        return m_columns[static_cast<size_t>(column)].samples.join(QStringLiteral(", "));
    }
    const QString &field(int column) const { return m_columns[static_cast<size_t>(column)].field; }
    void setField(int column,
                  const QString &field); // empty: not taken; another one that stood for the same is not either
    QStringList fields() const; // that there are to choose from
    QString title(const QString &field) const; // as users call it

    ImportChoice choice() const;
    Memory memory() const; // with what has been chosen

    struct Row
    {
        int line = 0;
        QStringList texts; // of the columns that are taken
        QString fault;
    };
    QList<int> takenColumns() const;
    // The first rows of the file, and further ones with an error, with what is wrong with each.
    std::vector<Row> preview(const ImportErrors &errors, Progress &progress) const;

    static constexpr size_t shownRows = 500;
    static constexpr size_t shownFaults = 500;

private:
    struct Column
    {
        QString heading;
        QStringList samples;
        QString field;
    };

    void readColumns(Progress *progress);
    void readFirstRows(ImportRows &rows, Progress *progress);
    void propose();
    QString proposal(const QString &heading) const;
    QString fieldCalled(const QString &wanted) const; // by a word that is known for it, in other letters
    QString fieldTitled(const std::function<bool(const QString &)> &fits) const;
    bool isTaken(const QString &field) const; // by a column, or another field with the same meaning is

    const ImportKind *m_kind;
    QString m_fileName;
    Memory m_memory;
    QStringList m_sheets;
    QString m_sheet;
    int m_headRow = 1;
    std::vector<Column> m_columns;
};

} // namespace Tallymere
