#include "controls/windows/wordwrapmenu.h"

#include "controls/texts.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void wrap(QPlainTextEdit &notes, bool wraps)
{
    notes.setLineWrapMode(wraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    notes.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    notes.setHorizontalScrollBarPolicy(wraps ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
}

void addMenu(QPlainTextEdit &notes)
{
    auto *item = new QAction(ControlsTexts::tr("Word Wrap"), &notes);
    item->setObjectName(u"mnuWordWrap"_s);
    item->setCheckable(true);
    item->setChecked(true);
    QObject::connect(item, &QAction::toggled, &notes, [&notes](bool wraps) { wrap(notes, wraps); });
    notes.addAction(item);
    notes.setContextMenuPolicy(Qt::ActionsContextMenu);
    wrap(notes, true);
}

} // namespace

void connectWordWrapMenus(const QWidget &form)
{
    const auto edits = form.findChildren<QPlainTextEdit *>();
    for (QPlainTextEdit *edit : edits) {
        if (edit->property("wordWrapMenu").toBool())
            addMenu(*edit);
    }
}

} // namespace Tallymere
