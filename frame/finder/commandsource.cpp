#include "frame/finder/commandsource.h"

#include "controls/windows/icons.h"
#include "controls/windows/mnemonics.h"
#include "frame/commands.h"
#include "frame/texts.h"

#include <algorithm>
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The entries that run something, with the menus that they stand in.
struct Entry
{
    QAction *action;
    QStringList menus;
};

QList<Entry> entriesOf(const QList<QAction *> &actions, const QStringList &menus)
{
    QList<Entry> entries;
    for (QAction *action : actions) {
        if (!action->isEnabled() || action->isSeparator() || action->text().isEmpty())
            continue;
        if (const QMenu *menu = action->menu())
            entries += entriesOf(menu->actions(), menus + QStringList(plainCaption(menu->title())));
        else
            entries.append({action, menus});
    }
    return entries;
}

// Those of the menus, and actions that a window has besides, as for its buttons.
QList<Entry> entriesOf(const QMenuBar &menus, const QObject &actions)
{
    QList<Entry> all = entriesOf(menus.actions(), {});
    QSet<QString> known;
    for (const Entry &entry : std::as_const(all))
        known.insert(entry.action->property("action").toString());
    const auto besides = actions.findChildren<QAction *>();
    for (QAction *action : besides) {
        if (action->isEnabled() && !known.contains(action->objectName()))
            all.append(Entry{action, {}});
    }
    return all;
}

// The command of the main window that an entry stands for, and may be short for.
const MainCommand *commandOf(const QAction &entry)
{
    const QString called = entry.property("action").toString();
    const QString name = called.isEmpty() ? entry.objectName() : called;
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&name](const MainCommand &one) { return one.action == name; });
    return command == commands().end() ? nullptr : &*command;
}

QString titleOf(const QAction &entry)
{
    const MainCommand *command = commandOf(entry);
    return plainCaption(command ? command->caption : entry.text());
}

// By the command, by the entry, which may be shorter, and by the window that it opens, else by all that is said of it.
TextMatch::Rank rankOf(const TextMatch &match, const QString &title, const Entry &entry)
{
    using enum TextMatch::Rank;
    const QString text = plainCaption(entry.action->text());
    const MainCommand *command = commandOf(*entry.action);
    const QString window = command ? command->window : QString();
    const TextMatch::Rank rank = std::min({match.rank({}, title), match.rank({}, text), match.rank({}, window)});
    const QStringList words = entry.menus + QStringList{title, text, window, entry.action->statusTip()};
    return rank == None && match.isIn(words.join(u' ')) ? Anywhere : rank;
}

QString idOf(const Entry &entry) { return u"command/"_s + entry.action->objectName(); }

Finding finding(const Entry &entry, const QString &title, TextMatch::Rank rank)
{
    const QString keys = entry.action->shortcut().toString(QKeySequence::NativeText);
    return {.id = idOf(entry),
            .title = title,
            .detail = keys.isEmpty() ? entry.menus.join(" > "_L1) : keys,
            .glyph = glyphOf(*entry.action),
            .rank = rank,
            .open = [action = QPointer(entry.action)] {
                if (action)
                    action->trigger();
            }};
}

} // namespace

CommandSource::CommandSource(const QMenuBar &menus, const QObject &actions)
    : m_menus(menus)
    , m_actions(actions)
{
}

QString CommandSource::caption() const { return FrameTexts::tr("Commands"); }

QList<Finding> CommandSource::find(const Wanted &wanted)
{
    QList<Finding> findings;
    for (const Entry &entry : entriesOf(m_menus, m_actions)) {
        const QString title = titleOf(*entry.action);
        const TextMatch::Rank rank = rankOf(wanted.match, title, entry);
        if (rank == TextMatch::Rank::None)
            continue;
        findings.append(finding(entry, title, rank));
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &one, const Finding &other) { return one.rank < other.rank; });
    return findings.mid(0, wanted.most);
}

std::optional<Finding> CommandSource::findById(const QString &id)
{
    for (const Entry &entry : entriesOf(m_menus, m_actions)) {
        if (idOf(entry) == id)
            return finding(entry, titleOf(*entry.action), TextMatch::Rank::None);
    }
    return std::nullopt;
}

} // namespace Tallymere
