#pragma once

#include <memory>
#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

class QHelpEngine;

namespace Tallymere {

// The compiled manual, which lies beside the module, opened for reading. What the help system keeps of it (its register
// and the words for the search) is made anew in a folder of its own, so that two programs never share it and a new
// manual never meets the words of the former one; that takes a moment for a manual of this size.
class ManualCollection
{
public:
    ManualCollection();
    ~ManualCollection();

    bool isOpen() const { return m_failure.isEmpty(); }
    const QString &failure() const { return m_failure; } // why it is not open
    QHelpEngine &engine() { return *m_engine; }

    // The page that a screen, named by its component name, is explained on; empty where there is none of its own.
    QUrl pageOf(const QString &screenName) const;
    QUrl firstPage() const;

    // What pages and their sections are called, and the words of the index. These come a moment after the collection has
    // been opened, while events are handled.
    struct Topic
    {
        QString title;
        QString page; // that it stands on
        QUrl place;
    };
    QList<Topic> topics() const;
    bool hasIndex() const;

private:
    QString open(const QString &file); // returns what keeps it from that

    QTemporaryDir m_folder;
    std::unique_ptr<QHelpEngine> m_engine;
    QString m_failure;
};

} // namespace Tallymere
