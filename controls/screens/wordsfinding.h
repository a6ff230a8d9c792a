#pragma once

#include <functional>
#include <QObject>
#include <QString>

class QBoxLayout;
class QLabel;
class QLineEdit;

namespace Tallymere {

class DialogScreen;
class ListScreen;

// What a find dialog looks for where nothing has the number that was typed: rows of its list that have the words, in any
// shown column and whatever case, as typing in the list finds them. A line of the dialog says what was found and how. Enter
// goes on from there, and so does F3 from wherever the list is.
class WordsFinding final : public QObject
{
    Q_OBJECT

public:
    // The rows of the dialog end with its buttons; the box is the one in which it is typed.
    WordsFinding(DialogScreen &dialog, QBoxLayout &rows, QLineEdit &box, ListScreen &list);

    // Runs the search by number. Where that refuses, the list goes to the first row with the words, and it refuses all the
    // same.
    void runOrFind(const std::function<void()> &byNumber);
    bool goesOn() const; // the words have been found, and nothing else has been typed since
    void findNext(); // below the row of the list, and round

private:
    void findFrom(int row);
    void say(const QString &text);

    DialogScreen &m_dialog;
    QLineEdit &m_box;
    ListScreen &m_list;
    QLabel *m_told;
    QString m_found; // the words; empty where no row has them
};

} // namespace Tallymere
