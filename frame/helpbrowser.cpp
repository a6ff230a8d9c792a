#include "frame/helpbrowser.h"

#include "controls/windows/screenmetrics.h"

#include <QHelpEngineCore>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace Tallymere {

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (!m_engine || name.scheme() != "qthelp"_L1)
        return {}; // the manual leads nowhere else
    const QByteArray content = m_engine->fileData(name);
    return type == QTextDocument::ImageResource ? QVariant(fitting(content)) : QVariant(content);
}

// Pictures grow with the text, but not beyond the window.
QPixmap HelpBrowser::fitting(const QByteArray &picture) const
{
    QPixmap pixmap;
    pixmap.loadFromData(picture);
    const int room = viewport()->width() - scaled(this, 40);
    const int width = qMin(scaled(this, pixmap.width()), qMax(room, pixmap.width() / 2));
    return width == pixmap.width() || pixmap.isNull() ? pixmap
                                                      : pixmap.scaledToWidth(width, Qt::SmoothTransformation);
}

void HelpBrowser::doSetSource(const QUrl &page, QTextDocument::ResourceType type)
{
    setExtraSelections({});
    QTextBrowser::doSetSource(page, type);
}

void HelpBrowser::markWords(const QString &words)
{
    QList<ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(palette().highlight());
    format.setForeground(palette().highlightedText());
    for (const QString &word : words.split(u' ', Qt::SkipEmptyParts)) {
        QTextCursor found = document()->find(word, 0, QTextDocument::FindWholeWords);
        for (; !found.isNull(); found = document()->find(word, found, QTextDocument::FindWholeWords))
            marks.append({found, format});
    }
    setExtraSelections(marks);
}

} // namespace Tallymere
