#pragma once

#include <QObject>
#include <QPointer>

class QUrl;
class QWidget;

namespace Tallymere {

class HelpWindow;
class Prompts;
class SettingsStore;

// The way to the manual from a window and from all windows that were opened from it: F1 in any of them opens its topic,
// or that of the window behind it where it has none of its own. The help window is made when it is first asked for.
class HelpDesk final : public QObject
{
    Q_OBJECT

public:
    HelpDesk(QWidget &owner, SettingsStore &settings, Prompts &prompts); // freed with the owner

    void showTopic(const QString &screenName);
    void showContents();
    void showPage(const QUrl &page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    HelpWindow *window(); // null where there is no manual; the user has been told
    bool serves(const QWidget *window) const;
    void showTopicOf(const QWidget *window);

    QWidget &m_owner;
    SettingsStore &m_settings;
    Prompts &m_prompts;
    QPointer<HelpWindow> m_window;
};

} // namespace Tallymere
