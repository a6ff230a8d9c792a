#pragma once

#include "phonecount/countdesk.h"
#include "phonecount/phoneaccess.h"
#include "phonecount/requestrate.h"

#include <functional>
#include <QByteArray>
#include <QList>

class QJsonObject;

namespace Tallymere {

// What a browser asks, as far as it matters here.
struct PhoneRequest
{
    enum class Method { Get, Post, Other };

    Method method = Method::Other;
    QByteArray path; // with whatever follows it
    QByteArray host, origin, contentType, cookies;
    QByteArray body;
    QString from; // its address
};

struct PhoneAnswer
{
    int status = 404;
    QByteArray type = "text/plain";
    QByteArray body = {};
    QList<std::pair<QByteArray, QByteArray>> headers = {};
};

// The page on which a count is done by phone, and what it asks and sends. A request for anything else, from anywhere else or
// without the right key gets the answer that any address has where there is nothing.
class PhoneService
{
public:
    using Clock = std::function<qint64()>; // milliseconds
    // The host is the address and the port as browsers name them.
    PhoneService(CountDesk &desk, QByteArray host, Clock clock);

    PhoneAnswer answer(const PhoneRequest &request);

    QByteArray newLink() { return m_access.newLink(); } // the path to be asked for, without its slash
    bool hasLink() const { return m_access.hasLink(); }
    const std::vector<std::unique_ptr<Phone>> &phones() const { return m_access.phones(); }
    int rows() const { return m_rows; } // that have been taken
    void listChanged() { ++m_listNumber; } // other items

    std::function<void()> changed = [] {}; // a phone has come, has told a name or has sent a row

private:
    struct Known
    {
        QString token;
        qint64 revision = 0;
        const Phone *from = nullptr; // whose count it is, as long as it is the last one
    };

    PhoneAnswer answerTo(const PhoneRequest &request);
    PhoneAnswer answerTo(const PhoneRequest &request, Phone &phone);
    PhoneAnswer open(const PhoneRequest &request);
    PhoneAnswer list(const Phone &phone);
    PhoneAnswer news(const QByteArray &since);
    PhoneAnswer takeName(const QByteArray &body, Phone &phone);
    PhoneAnswer takeRow(const QByteArray &body, Phone &phone);
    QJsonObject outcomeOf(const QJsonObject &sent, int row, Phone &phone);
    QJsonObject outcomeOf(int row, double quantity, const QJsonObject &sent, Phone &phone);
    bool isOvertaken(int row, const QString &seen, double quantity, const Phone &phone) const;
    void look();
    QJsonObject head() const;
    QJsonObject stateOf(const CountRow &row) const;
    QByteArray keyOf(const QByteArray &cookies) const;

    CountDesk &m_desk;
    const QByteArray m_host;
    const QByteArray m_cookie;
    const Clock m_clock;
    PhoneAccess m_access;
    RequestRate m_rate;
    QHash<qint64, Known> m_known; // by item
    qint64 m_revision = 0;
    int m_listNumber = 1;
    int m_rows = 0;
};

} // namespace Tallymere
