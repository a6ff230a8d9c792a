#include "phonecount/phoneservice.h"

#include "base/formats.h"
#include "base/regionalsettings.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "phonecount/pagetexts.h"
#include "phonecount/texts.h"

#include <exception>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr double requestsAtOnce = 120;
constexpr double requestsASecond = 40;
constexpr qsizetype longestBody = 4096;
constexpr qsizetype longestPath = 64;
constexpr qsizetype longestName = 40;
constexpr qsizetype longestId = 64;

enum Status { Ok = 200, BadRequest = 400, NotFound = 404, TooManyRequests = 429 };

QString timeText(const QDateTime &at)
{
    const QLocale locale = QLocale::system();
    return at.isValid() ? locale.toString(at.time(), QLocale::ShortFormat) : QString();
}

// What a count looked like to whoever counts the same item. Empty while nobody has counted it.
QString tokenOf(const CountRow &row)
{
    if (!row.typed)
        return {};
    return row.mark.at.toString(Qt::ISODateWithMs) + u' '
        + QString::number(*row.typed, 'g', QLocale::FloatingPointShortest) + u' ' + row.mark.by;
}

// Phones have one key for the decimals, whatever the desk's are: neither point nor comma groups digits here.
double numberOf(const QString &text)
{
    static const QRegularExpression number(u"^-?([0-9]+[.,]?[0-9]*|[.,][0-9]+)$"_s);
    if (!number.match(text).hasMatch())
        throw RuleError(PhoneCountTexts::tr("'%1' is not a number.").arg(text), Fields::Quantity);
    return QLocale::c().toDouble(QString(text).replace(u',', u'.'));
}

QString nameOf(QString sent)
{
    sent.removeIf([](QChar letter) {
        return letter.category() == QChar::Other_Control || letter.category() == QChar::Other_Format;
    });
    return sent.simplified().left(longestName);
}

PhoneAnswer jsonAnswer(const QJsonObject &object)
{
    return {.status = Ok, .type = "application/json", .body = QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

} // namespace

PhoneService::PhoneService(CountDesk &desk, QByteArray host, Clock clock)
    : m_desk(desk)
    , m_host(std::move(host))
    , m_cookie("__Host-count-" + m_host.mid(m_host.lastIndexOf(':') + 1))
    , m_clock(std::move(clock))
    , m_rate(requestsAtOnce, requestsASecond)
{
}

PhoneAnswer PhoneService::answer(const PhoneRequest &request)
{
    PhoneAnswer answer = answerTo(request);
    answer.headers.append({{"Cache-Control", "no-store"},
                           {"X-Content-Type-Options", "nosniff"},
                           {"Referrer-Policy", "no-referrer"},
                           {"Cross-Origin-Resource-Policy", "same-origin"}});
    return answer;
}

PhoneAnswer PhoneService::answerTo(const PhoneRequest &request)
{
    if (!m_rate.allows(request.from, m_clock()))
        return {.status = TooManyRequests};
    if (request.host != m_host || request.path.size() > longestPath || request.body.size() > longestBody)
        return {};
    if (!request.origin.isEmpty() && request.origin != "https://" + m_host)
        return {};
    Phone *phone = m_access.phoneOf(keyOf(request.cookies));
    if (!phone)
        return open(request);
    phone->seen = m_clock();
    return answerTo(request, *phone);
}

PhoneAnswer PhoneService::answerTo(const PhoneRequest &request, Phone &phone)
{
    if (request.method == PhoneRequest::Method::Post) {
        if (request.contentType != "application/json")
            return {};
        if (request.path == "/name")
            return takeName(request.body, phone);
        return request.path == "/row" ? takeRow(request.body, phone) : PhoneAnswer{};
    }
    if (request.method != PhoneRequest::Method::Get)
        return {};
    if (request.path == "/list")
        return list(phone);
    if (request.path.startsWith("/news/"))
        return news(request.path.mid(6));
    const bool isPage = request.path == "/" || m_access.opens(request.path.mid(1), phone);
    return isPage ? countingPage() : PhoneAnswer{};
}

// The link itself answers with the page: a browser that was sent on to it by another program would not show its key there.
PhoneAnswer PhoneService::open(const PhoneRequest &request)
{
    if (request.method != PhoneRequest::Method::Get)
        return {};
    const QByteArray key = m_access.use(request.path.mid(1));
    if (key.isEmpty())
        return {};
    m_access.phoneOf(key)->seen = m_clock();
    changed();
    PhoneAnswer page = countingPage();
    page.headers.append({"Set-Cookie", m_cookie + '=' + key + "; Path=/; Secure; HttpOnly; SameSite=Strict"});
    return page;
}

QByteArray PhoneService::keyOf(const QByteArray &cookies) const
{
    const QList<QByteArray> all = cookies.split(';');
    for (const QByteArray &one : all) {
        const QByteArray cookie = one.trimmed();
        if (cookie.startsWith(m_cookie + '='))
            return cookie.mid(m_cookie.size() + 1);
    }
    return {};
}

// --- what there is to count -------------------------------------------------------------------------------------

// Rows are compared with what they were, so that whatever is typed at the desk comes to the phones as well.
void PhoneService::look()
{
    const CountList &counted = m_desk.list();
    for (int i = 0; i < counted.size(); ++i) {
        const QString token = tokenOf(counted.row(i));
        Known &known = m_known[counted.row(i).itemId];
        if (known.token != token)
            known = {token, ++m_revision, nullptr};
    }
}

QJsonObject PhoneService::head() const
{
    return {{u"count"_s, m_desk.countId()},
            {u"list"_s, m_listNumber},
            {u"blind"_s, m_desk.isBlind()},
            {u"revision"_s, m_revision}};
}

QJsonObject PhoneService::stateOf(const CountRow &row) const
{
    QJsonObject state{{u"i"_s, row.itemId}, {u"k"_s, tokenOf(row)}};
    if (row.typed) {
        state.insert(u"q"_s, quantityText(*row.typed));
        state.insert(u"by"_s, row.mark.by);
        state.insert(u"at"_s, timeText(row.mark.at));
    }
    if (!m_desk.isBlind())
        state.insert(u"r"_s, quantityText(row.prior()));
    return state;
}

PhoneAnswer PhoneService::list(const Phone &phone)
{
    look();
    QJsonArray items;
    const CountList &counted = m_desk.list();
    for (int i = 0; i < counted.size(); ++i) {
        const CountRow &row = counted.row(i);
        QJsonObject item = stateOf(row);
        item.insert(u"n"_s, row.itemNo);
        item.insert(u"d"_s, row.description);
        item.insert(u"c"_s, row.typeName);
        item.insert(u"b"_s, QJsonArray::fromStringList(m_desk.barcodesOf(row.itemId)));
        items.append(item);
    }
    QJsonObject all = head();
    all.insert(u"place"_s, m_desk.place());
    all.insert(u"name"_s, phone.name);
    all.insert(u"point"_s, QString(RegionalSettings::system().decimalPoint));
    all.insert(u"items"_s, items);
    return jsonAnswer(all);
}

PhoneAnswer PhoneService::news(const QByteArray &since)
{
    bool isNumber = false;
    const qint64 revision = since.toLongLong(&isNumber);
    if (!isNumber)
        return {};
    look();
    QJsonArray rows;
    const CountList &counted = m_desk.list();
    for (int i = 0; i < counted.size(); ++i) {
        if (m_known.value(counted.row(i).itemId).revision > revision)
            rows.append(stateOf(counted.row(i)));
    }
    QJsonObject news = head();
    news.insert(u"rows"_s, rows);
    return jsonAnswer(news);
}

// --- what comes in ----------------------------------------------------------------------------------------------

PhoneAnswer PhoneService::takeName(const QByteArray &body, Phone &phone)
{
    const QString name = nameOf(QJsonDocument::fromJson(body).object()[u"name"_s].toString());
    if (name.isEmpty())
        return {.status = BadRequest};
    phone.name = name;
    changed();
    return jsonAnswer({{u"name"_s, name}});
}

PhoneAnswer PhoneService::takeRow(const QByteArray &body, Phone &phone)
{
    const QJsonObject sent = QJsonDocument::fromJson(body).object();
    const QString id = sent[u"id"_s].toString();
    if (id.isEmpty() || id.size() > longestId || phone.name.isEmpty())
        return {.status = BadRequest};
    if (const QByteArray *before = phone.answered(id))
        return {.status = Ok, .type = "application/json", .body = *before};
    look();
    QJsonObject outcome;
    const CountList &counted = m_desk.list();
    const int row = counted.rowOfItem(sent[u"item"_s].toInteger(-1));
    if (m_desk.isBusy())
        outcome = {{u"is"_s, u"wait"_s}};
    else if (sent[u"count"_s].toString() != m_desk.countId())
        outcome = {{u"is"_s, u"closed"_s}};
    else if (row < 0 || counted.row(row).itemNo != sent[u"number"_s].toString())
        outcome = {{u"is"_s, u"refused"_s},
                   {u"text"_s, PhoneCountTexts::tr("This item is not in the list any more.")}};
    else
        outcome = outcomeOf(sent, row, phone);
    const PhoneAnswer answer = jsonAnswer(outcome);
    if (outcome[u"is"_s] == u"taken"_s)
        phone.remember(id, answer.body);
    return answer;
}

QJsonObject PhoneService::outcomeOf(const QJsonObject &sent, int row, Phone &phone)
{
    QJsonObject outcome;
    try {
        outcome = outcomeOf(row, numberOf(sent[u"quantity"_s].toString().left(longestName)), sent, phone);
    } catch (const RuleError &error) {
        outcome = {{u"is"_s, u"refused"_s}, {u"text"_s, error.message()}};
    } catch (const std::exception &) { // of the desk's, who is told there; the number stays on the phone
        outcome = {{u"is"_s, u"wait"_s}};
    }
    outcome.insert(u"row"_s, stateOf(m_desk.list().row(row)));
    return outcome;
}

QJsonObject PhoneService::outcomeOf(int row, double quantity, const QJsonObject &sent, Phone &phone)
{
    const CountRow before = m_desk.list().row(row);
    if (isOvertaken(row, sent[u"seen"_s].toString(), quantity, phone))
        return {{u"is"_s, u"other"_s}};
    if (before.typed != quantity) {
        const std::optional<QString> question =
            m_desk.take(row, quantity, phone.name, sent[u"confirmed"_s].toBool());
        if (question)
            return {{u"is"_s, u"asks"_s}, {u"text"_s, *question}};
        m_known[before.itemId] = {tokenOf(m_desk.list().row(row)), ++m_revision, &phone};
    }
    ++phone.rows;
    ++m_rows;
    changed();
    return {{u"is"_s, u"taken"_s}};
}

// Somebody else has come to another number since the phone has seen the item last.
bool PhoneService::isOvertaken(int row, const QString &seen, double quantity, const Phone &phone) const
{
    const CountRow &now = m_desk.list().row(row);
    return tokenOf(now) != seen && now.typed != quantity && m_known.value(now.itemId).from != &phone;
}

} // namespace Tallymere
