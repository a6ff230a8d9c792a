#pragma once

#include <QTextBrowser>

class QHelpEngineCore;

namespace Tallymere {

// Shows pages of the manual. Words that have been searched for are marked until another page is asked for.
class HelpBrowser final : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

    void setEngine(const QHelpEngineCore *engine) { m_engine = engine; }
    void markWords(const QString &words);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void doSetSource(const QUrl &page, QTextDocument::ResourceType type) override;

private:
    QPixmap fitting(const QByteArray &picture) const;

    const QHelpEngineCore *m_engine = nullptr;
};

} // namespace Tallymere
