#include "controls/fields/memoedit.h"

#include "engine/values/textsize.h"

#include <QMimeData>

namespace Tallymere {

namespace {

bool hasEndlessLine(const QString &text)
{
    qsizetype begin = 0;
    while (text.size() - begin > MemoEdit::longestLine) {
        const qsizetype end = text.indexOf(u'\n', begin);
        if (end < 0 || end - begin > MemoEdit::longestLine)
            return true;
        begin = end + 1;
    }
    return false;
}

} // namespace

void MemoEdit::insertFromMimeData(const QMimeData *source)
{
    const QTextCursor cursor = textCursor();
    const qsizetype replaced = cursor.selectionEnd() - cursor.selectionStart();
    const qsizetype before = document()->characterCount() - 1; // it counts an end of its own
    const QString text = source->text();
    if (before - replaced + text.size() > Engine::longestText || hasEndlessLine(text))
        Q_EMIT refused();
    else
        QPlainTextEdit::insertFromMimeData(source);
}

} // namespace Tallymere
