#include "controls/screens/wordsfinding.h"

#include "controls/grids/rowsearch.h"
#include "controls/screens/dialogscreen.h"
#include "controls/screens/listscreen.h"
#include "controls/windows/progressbox.h"
#include "engine/values/userlocale.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr qint64 stepLength = 20; // ms
constexpr int wholeWidth = 100; // percent
constexpr int mostColumns = 4; // that tell which row it is
constexpr int mostBoxText = 60;

QString rowText(const TableModel &rows, int row)
{
    QStringList texts;
    for (int column = 0; column < rows.columnCount() && texts.size() < mostColumns; ++column) {
        const QString text = rows.columns()[column].setOff ? QString() : rows.shownText(row, column);
        if (!text.isEmpty())
            texts << text;
    }
    return texts.join(", "_L1);
}

} // namespace

WordsFinding::WordsFinding(DialogScreen &dialog, QBoxLayout &rows, QLineEdit &box, ListScreen &list)
    : QObject(&dialog)
    , m_dialog(dialog)
    , m_box(box)
    , m_list(list)
    , m_told(new QLabel(&dialog))
{
    m_box.setMaxLength(mostBoxText);
    m_told->setObjectName(u"lblFound"_s);
    m_told->setTextFormat(Qt::PlainText);
    m_told->setWordWrap(true);
    m_told->hide();
    rows.insertWidget(rows.count() - 1, m_told); // over the buttons
    connectGuarded(new QShortcut(Qt::Key_F3, &dialog), &QShortcut::activated, &dialog,
                   [this](DialogScreen *) { findNext(); });
}

void WordsFinding::runOrFind(const std::function<void()> &byNumber)
{
    const std::exception_ptr failure = Guard::attempt(byNumber);
    if (!failure)
        return;
    if (Guard::isRefusal(failure))
        findFrom(0);
    std::rethrow_exception(failure);
}

bool WordsFinding::goesOn() const { return !m_found.isEmpty() && m_box.text() == m_found; }

void WordsFinding::findNext() { findFrom(m_list.dataSet().recordIndex() + 1); }

void WordsFinding::findFrom(int row)
{
    const TextMatch words(m_box.text());
    if (words.isEmpty())
        return;
    TableModel &rows = m_list.rows();
    rows.readRest();
    RowSearch search(rows);
    search.begin(words, row);
    ProgressBox progress(&m_dialog, tr("Searching"));
    progress.start(wholeWidth);
    std::optional<int> found;
    for (int done = 0; search.isOn() && !found;) {
        found = search.step(stepLength);
        for (; done < search.percent(); ++done)
            progress.step();
    }
    progress.finish();
    m_found = found ? m_box.text() : QString();
    if (!found)
        return say(tr("No row of the list has these words."));
    m_list.dataSet().moveTo(*found);
    m_box.selectAll();
    const QLocale locale = Engine::userLocale().locale;
    say(tr("These words are in row %1 of %2: %3. Enter goes to the next row that has them.")
            .arg(locale.toString(*found + 1), locale.toString(rows.rowCount()), rowText(rows, *found)));
}

void WordsFinding::say(const QString &text)
{
    m_told->setText(text);
    m_told->show();
    m_dialog.adjustSize();
}

} // namespace Tallymere
