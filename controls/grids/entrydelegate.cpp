#include "controls/grids/entrydelegate.h"

#include "controls/grids/entrygrid.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace Tallymere {

EntryDelegate::EntryDelegate(EntryGrid *grid)
    : CellDelegate(grid)
    , m_grid(grid)
{
}

QWidget *EntryDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    return m_grid->openEditor(parent, index);
}

// Inside the frame that the cell has meanwhile.
void EntryDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                         const QModelIndex &) const
{
    const int frame = frameWidth();
    editor->setGeometry(option.rect.adjusted(frame, frame, -frame, -frame));
}

void EntryDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    m_grid->editorGone();
    CellDelegate::destroyEditor(editor, index);
}

bool EntryDelegate::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        // Keys with a meaning in the grid must not be taken by menus or by the editor's own short cuts.
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Escape || key->modifiers().testFlag(Qt::ControlModifier))
            event->accept();
        return false;
    }
    case QEvent::KeyPress:
        return m_grid->takeEditorKey(static_cast<QKeyEvent *>(event));
    case QEvent::FocusOut:
        m_grid->editorLeft(static_cast<QFocusEvent *>(event)->reason());
        return false;
    default:
        return false;
    }
}

} // namespace Tallymere
