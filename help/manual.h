#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Tallymere {

struct ManualTopic
{
    QString name; // of its page: "receive"
    QString title;
    int level = 0; // in the contents
};

// The topics of the user's manual, in the order of the contents.
const QList<ManualTopic> &manualTopics();

// A topic as plain text, for a terminal. Empty where there is no topic of the name.
QString manualText(const QString &name);

// Names of topics that somebody who wrote this may have meant, the likeliest first.
QStringList similarTopics(const QString &name);

} // namespace Tallymere
