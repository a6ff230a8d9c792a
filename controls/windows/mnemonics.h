#pragma once

#include <QChar>

class QMenu;
class QString;
class QWidget;

namespace Tallymere {

// The letter that a caption underlines, as a capital; null where it underlines none.
QChar letterOf(const QString &caption);
// The caption as it is read: "Fil&ter" is "Filter".
QString plainCaption(QString caption);

// Gives each entry of a menu that underlines no letter one that no other entry has.
void giveLetters(const QMenu &menu);
// The same for the buttons of a window and the titles of its menu bar, beside the letters of its labels.
void giveLetters(const QWidget &window);

} // namespace Tallymere
