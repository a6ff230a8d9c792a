#pragma once

#include <QPlainTextEdit>

namespace Tallymere {

// A box for a text of several lines. Of what is pasted or dropped it takes no more than a field holds: a text of another
// size would take the program's memory before anybody could refuse it. It takes no line without an end either, as the box
// lays each line out anew with every key.
class MemoEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

    static constexpr qsizetype longestLine = 20'000;

Q_SIGNALS:
    void refused(); // what was put in is not there

protected:
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace Tallymere
