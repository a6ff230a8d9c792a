#pragma once

#include <QLocale>
#include <QString>

namespace Engine {

// How the user of this program writes and reads figures and dates: the desktop's ways, unless a language has been chosen
// that is not the desktop's. What is read from files and settings, and what is stored, knows nothing of it.
struct UserLocale
{
    QLocale locale = QLocale::system();
    bool spellsMonths = true; // "24 Nov 26", as in English; otherwise as dates are typed: "24.11.26"
    bool groupsCounts = false; // as windows do; scripts that read what a command says find plain digits
};

UserLocale userLocale();
void setUserLocale(const UserLocale &locale); // before the first text is shown, and before there is a second thread

// A large round number in a sentence: "1,000,000" in English, wherever that is spoken.
QString groupedCount(qint64 number);

// How many there are of something, in a sentence: "12,345" in windows.
QString countText(qint64 count);

} // namespace Engine
