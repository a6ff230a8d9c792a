#include "controls/windows/lineentry.h"

#include "controls/texts.h"
#include "engine/values/linetext.h"
#include "engine/values/textsize.h"

#include <algorithm>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QToolTip>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int noLimit = 32767; // a line edit's own, which cuts without a word

class LineEntry final : public QValidator
{
public:
    LineEntry(QLineEdit &edit, int size, const QString &name, std::function<void(const QString &)> say)
        : QValidator(&edit)
        , m_edit(edit)
        , m_size(size)
        , m_name(name)
        , m_say(std::move(say))
        , m_last(edit.text())
    {
        connect(&edit, &QLineEdit::textChanged, this, [this](const QString &text) { m_last = text; });
    }

    // What has been put in ends at the cursor.
    State validate(QString &text, int &cursor) const override
    {
        const QString before = Engine::oneLine(text.left(cursor));
        const QString behind = Engine::oneLine(text.mid(cursor));
        const qsizetype room = std::max<qsizetype>(0, m_size - Engine::characterCount(behind));
        const QString kept = Engine::firstCharacters(before, room);
        const QString cut = before.mid(kept.size());
        if (Engine::characterCount(cut) == 1 && kept + behind == m_last) {
            tellOfKey();
            return Invalid;
        }
        if (!cut.isEmpty() && m_edit.hasFocus())
            tellOfText(cut);
        text = kept + behind;
        cursor = static_cast<int>(kept.size());
        return Acceptable;
    }

private:
    QString limit() const
    {
        QString name = QAccessible::queryAccessibleInterface(&m_edit)->text(QAccessible::Name);
        if (name.endsWith(u':'))
            name.chop(1);
        return ControlsTexts::tr("'%1' takes no more than %2 characters.")
            .arg(name.isEmpty() ? m_name : name, QString::number(m_size));
    }

    void tellOfKey() const
    {
        QApplication::beep();
        QToolTip::showText(m_edit.mapToGlobal(QPoint(0, m_edit.height())), limit(), &m_edit);
    }

    void tellOfText(const QString &cut) const
    {
        const QString text =
            limit() + u'\n' + ControlsTexts::tr("This has been cut off: \"%1\"").arg(Engine::excerpt(cut));
        QMetaObject::invokeMethod(
            &m_edit, [say = m_say, text] { say(text); }, Qt::QueuedConnection);
    }

    QLineEdit &m_edit;
    const int m_size;
    const QString m_name; // of a box without a label
    const std::function<void(const QString &)> m_say;
    QString m_last; // before the user's change
};

} // namespace

void takeOneLine(QLineEdit &edit, int size, const QString &name, const std::function<void(const QString &)> &say)
{
    edit.setMaxLength(noLimit);
    edit.setValidator(new LineEntry(edit, size, name, say));
}

} // namespace Tallymere
