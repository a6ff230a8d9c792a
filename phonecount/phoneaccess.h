#pragma once

#include <memory>
#include <QHash>
#include <QQueue>
#include <QString>
#include <vector>

namespace Tallymere {

// A device that counts: whoever has used a link.
struct Phone
{
    int number = 0; // in the order in which they came
    QString name; // of who counts, as soon as it has been told
    int rows = 0; // that have been taken from it
    qint64 seen = 0; // when it asked last, in milliseconds of the service's clock
    QByteArray link; // the sum of the one it has used

    // What has been answered to its rows, by their ids: a row that is sent again changes nothing. The oldest are forgotten.
    void remember(const QString &id, const QByteArray &answer);
    const QByteArray *answered(const QString &id) const;

private:
    QHash<QString, QByteArray> m_answers;
    QQueue<QString> m_ids;
};

// Who may see the page: a link opens it once, to the device that uses it first, and what that gets for it is known to it
// alone. Of both only sums are kept here.
class PhoneAccess
{
public:
    // A secret of 192 bits as text, good for one device; the one before that nobody has used is no longer.
    QByteArray newLink();
    bool hasLink() const { return !m_link.isEmpty(); } // that nobody has used yet

    // What the device is known by from now on; empty where the link is not good, or too many have come already.
    QByteArray use(const QByteArray &link);
    Phone *phoneOf(const QByteArray &key); // null for anything else
    // Whether it may come by the link again: its own, as browsers ask for it once more, or the one that nobody has used.
    bool opens(const QByteArray &link, const Phone &phone) const;

    const std::vector<std::unique_ptr<Phone>> &phones() const { return m_phones; }

private:
    QByteArray m_link; // its sum
    QHash<QByteArray, Phone *> m_keys; // by sum
    std::vector<std::unique_ptr<Phone>> m_phones;
};

} // namespace Tallymere
