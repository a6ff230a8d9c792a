#pragma once

#include <QString>
#include <QStringList>
#include <Qt>

namespace Tallymere {

// One column of a list or a line grid.
struct GridColumn
{
    QString field; // what it shows
    QString title;
    int width = 80; // design pixels
    Qt::Alignment alignment = Qt::AlignLeft;
    // Line grids: the field that an entry changes, where that is not the one shown (a looked-up name). Messages
    // that name either field lead to the column.
    QString dataField = {};
    bool takesSurplus = false; // the width that the others leave over; the last column does where none is named
    // A column of yes and no that shows a tick for yes, and for no this word, as what is still to be done.
    QString openWord = {};
    int letters = 12; // that a text keeps where the window is narrow
    QStringList words = {}; // all that it shows, where these are few: it has room for the longest in any language
    bool setOff = false; // tells something about the other columns: behind a line, in quieter letters
    bool warnsBelowZero = false; // a figure below zero wants attention there, and is no figure of the row's own

    bool shows(const QString &name) const
    {
        return field.compare(name, Qt::CaseInsensitive) == 0 || dataField.compare(name, Qt::CaseInsensitive) == 0;
    }
};

} // namespace Tallymere
