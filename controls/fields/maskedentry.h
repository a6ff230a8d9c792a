#pragma once

#include <QObject>
#include <QString>

class QFocusEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace Tallymere {

// Gives a line edit an input mask for the time it has the cursor. However the cursor has come, by Tab, mnemonic or a
// click, what is typed replaces what stands there, unless the mask has no place for it; an empty one is typed into from its first place. Left to itself a
// masked line edit drops the selection as the cursor comes, and puts it behind the last place, where nothing can be
// typed, on a click there.
class MaskedEntry : public QObject
{
    Q_OBJECT

public:
    MaskedEntry(QLineEdit *edit, QString mask); // "00/00/99;_", with the user's own separator in place of "/"

    void setActive(bool active); // drops the text; to be called before the line edit learns that the cursor comes
    QString typedText() const; // nothing for a mask in which no place is filled

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool refuses(const QKeyEvent &event) const;
    void focusIn(QFocusEvent *event);
    void clicked(QMouseEvent *event);

    QLineEdit *m_edit;
    QString m_mask;
    bool m_clickedInto = false; // the cursor has come by the click that is under way
};

} // namespace Tallymere
