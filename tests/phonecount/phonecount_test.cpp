#include "phonecount/phoneserver.h"
#include "phonecount/stockcountdesk.h"
#include "tests/support/countingphone.h"
#include "tests/support/kitchen.h"
#include "transactions/counting/stockcount.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSslSocket>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Reply
{
    int status = 0; // 0: the connection ended without an answer
    QByteArray head;
    QByteArray body;
};

// What comes back for the bytes of a request. A server that neither answers nor hangs up fails the test.
Reply exchange(quint16 port, const QByteArray &request)
{
    QSslSocket socket;
    socket.setPeerVerifyMode(QSslSocket::VerifyNone);
    QByteArray come;
    QEventLoop loop;
    const auto isWhole = [&come] {
        const qsizetype head = come.indexOf("\r\n\r\n");
        const qsizetype length = come.indexOf("Content-Length: ");
        return head > 0 && length > 0
            && come.size() >= head + 4 + come.mid(length + 16, come.indexOf('\r', length) - length - 16).toInt();
    };
    QObject::connect(&socket, &QSslSocket::encrypted, &socket, [&] { socket.write(request); });
    QObject::connect(&socket, &QSslSocket::readyRead, &loop, [&] {
        come += socket.readAll();
        if (isWhole())
            loop.quit();
    });
    QObject::connect(&socket, &QSslSocket::disconnected, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QSslSocket::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(60'000, &loop, [&] {
        ADD_FAILURE() << "no answer to " << request.left(60).constData();
        loop.quit();
    });
    socket.connectToHostEncrypted(u"127.0.0.1"_s, port);
    loop.exec();
    socket.abort();
    const qsizetype end = come.indexOf("\r\n\r\n");
    return {come.mid(9, 3).toInt(), come.left(end), come.mid(end + 4)};
}

// Apples 10, Bread 5 and apricots 2.5 at the Office, counted at a desk.
struct PhoneCountTest : KitchenTest
{
    PhoneCountTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = 1; "
                        "UPDATE Item SET Suspended = false WHERE ItemID = 2; "
                        "INSERT INTO IBarcode (BarcodeID, ItemID, Barcode) VALUES (1, 2, '4006381333931')"_s);
        for (const auto &[item, onHand] : {std::pair{1, 10.0}, {2, 5.0}, {3, 2.5}})
            kitchen.setStock(item, 1, onHand, 1.5);
        EXPECT_TRUE(count.open(1, ZeroCounts::Excluded));
        desk.emplace(kitchen.database(), count, u"Office"_s,
                     StockCountDesk::Screen{.isBlind = [this] { return blind; },
                                            .isBusy = [this] { return busy; },
                                            .taken = [](int) {}});
        service.emplace(*desk, "10.0.0.1:21000", [this] { return now; });
    }

    QString counted() const // "A10 8 Ana, A11"
    {
        QStringList rows;
        for (int i = 0; i < count.list().size(); ++i) {
            const CountRow &row = count.list().row(i);
            rows << (row.itemNo + (row.typed ? u' ' + QString::number(*row.typed) + u' ' + row.mark.by : u""_s))
                        .trimmed();
        }
        return rows.join(u", "_s);
    }
    QString books()
    {
        return kitchen.balances()
            + kitchen.found(u"SELECT ItemID, ItemNo, ItemDescription FROM Item ORDER BY ItemID"_s)
            + kitchen.found(u"SELECT count(*) FROM IUsage"_s) + kitchen.found(u"SELECT count(*) FROM IBarcode"_s);
    }

    CountingPhone join(const QString &name) { return {*service, "10.0.0.1:21000", '/' + service->newLink(), name}; }
    QJsonObject row(const char *id, int item, const QString &number, const QString &quantity) const
    {
        return {
            {u"id"_s, QString::fromLatin1(id)}, {u"count"_s, count.id()}, {u"item"_s, item}, {u"number"_s, number},
            {u"quantity"_s, quantity},          {u"seen"_s, u""_s}};
    }
    static QString is(const CountingPhone &phone, const QJsonObject &sent) // "refused: why"
    {
        const QJsonObject outcome = phone.post("/row", sent);
        const QString text = outcome[u"text"_s].toString();
        return outcome[u"is"_s].toString() + (text.isEmpty() ? text : u": "_s + text);
    }

    bool blind = false;
    bool busy = false;
    qint64 now = 0;
    QTemporaryDir folder;
    StockCount count{kitchen.database(), prompts, CountDrafts(u"kitchen"_s, u"anna"_s, folder.path())};
    std::optional<StockCountDesk> desk;
    std::optional<PhoneService> service;
};
ON_BOTH_STORES(PhoneCountTest);

TEST_P(PhoneCountTest, NothingButThePageIsReachable)
{
    std::optional<PhoneServer> server(std::in_place, *desk, QHostAddress(QHostAddress::LocalHost), u"Office"_s);
    EXPECT_EQ(server->certificate().subjectAlternativeNames().value(QSsl::IpAddressEntry), u"127.0.0.1"_s);
    const quint16 port = server->port();
    const QByteArray host = "127.0.0.1:" + QByteArray::number(port);
    const QByteArray link = server->newLink().section(u'/', 3).toLatin1();
    const QString before = counted() + books();
    const auto send = [&](const QByteArray &line, const QByteArray &headers = {}, const QByteArray &body = {},
                          const QByteArray &to = {}) {
        return exchange(
            port,
            line + " HTTP/1.1\r\nHost: " + (to.isEmpty() ? host : to) + "\r\n" + headers
                + (body.isEmpty() ? QByteArray() : "Content-Length: " + QByteArray::number(body.size()) + "\r\n")
                + "\r\n" + body);
    };
    const auto expectNothing = [](const Reply &reply, const QByteArray &what) {
        EXPECT_TRUE(reply.status == 404 && reply.body.isEmpty()) << what.constData() << ": " << reply.status;
    };
    const auto nearly = [](QByteArray random) { // never the random text itself
        random.back() = random.endsWith('A') ? 'B' : 'A';
        return random;
    };
    const QByteArray guess = nearly(link);
    for (const QByteArray &line :
         {QByteArray("GET /"), QByteArray("GET /list"), QByteArray("GET /news/0"),
          QByteArray("GET /../../etc/passwd"), QByteArray("GET /page.html"), "GET /" + guess, "GET /" + link + "/",
          "HEAD /" + link, "POST /" + link, "OPTIONS /" + link, "PUT /" + link})
        expectNothing(send(line), line);
    expectNothing(send("GET /" + link, {}, {}, "count.example"), "a name that somebody else gives this machine");

    const Reply page = send("GET /" + link);
    ASSERT_EQ(page.status, 200);
    EXPECT_TRUE(page.body.contains("<!doctype html>")
                && !QString::fromUtf8(page.body).contains(QRegularExpression(u"@[A-Z]+@"_s)));
    EXPECT_TRUE(page.head.contains("default-src 'none'"));
    const qsizetype at = page.head.indexOf("__Host-");
    const QByteArray set = page.head.mid(at, page.head.indexOf('\r', at) - at);
    EXPECT_TRUE(at > 0 && set.endsWith("; Path=/; Secure; HttpOnly; SameSite=Strict")) << set.constData();
    const QByteArray key = set.left(set.indexOf(';'));
    const QByteArray cookie = "Cookie: " + key + "\r\n";
    expectNothing(send("GET /" + link), "a link used twice");
    EXPECT_EQ(send("GET /" + link, cookie).status, 200) << "by the device that has used it";
    expectNothing(send("GET /" + guess, cookie), "a guess of that device");
    expectNothing(send("GET /list", "Cookie: " + nearly(key) + "\r\n"), "a cookie that is nearly right");
    expectNothing(send("GET /list", cookie + "Origin: https://evil.example\r\n"), "a page of somebody else");
    expectNothing(send("GET /list", cookie, {}, "count.example"), "another name with the cookie");
    for (const QByteArray &line :
         {QByteArray("DELETE /row"), QByteArray("GET /row"), QByteArray("PUT /row"),
          QByteArray("GET /list/../books"), QByteArray("GET /news/x"), QByteArray("HEAD /list")})
        expectNothing(send(line, cookie), line);
    const QByteArray sent = QJsonDocument(row("1", 1, u"A10"_s, u"3"_s)).toJson(QJsonDocument::Compact);
    const QByteArray json = cookie + "Content-Type: application/json\r\n";
    expectNothing(send("POST /row", cookie + "Content-Type: text/plain\r\n", sent), "what a form can send");
    EXPECT_EQ(send("POST /row", json, sent).status, 400) << "nobody has told his name";
    EXPECT_EQ(send("POST /name", json, "{\"name\":7}").status, 400);
    expectNothing(send("POST /row", json, sent + QByteArray(5000, ' ')), "a body that is too long");
    EXPECT_EQ(send("POST /row", json, QByteArray(1'000'000, ' ')).status, 0) << "one that is put together for long";
    EXPECT_EQ(send("GET /list", cookie + "X: " + QByteArray(100'000, 'x') + "\r\n").status, 0);
    EXPECT_NE(send("GET /list",
                   cookie
                       + "Connection: Upgrade\r\nUpgrade: websocket\r\nSec-WebSocket-Version: 13\r\n"
                         "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n")
                  .status,
              101);
    EXPECT_EQ(exchange(port, "\x16\x03\x01 nonsense\r\n\r\n").status, 0);
    EXPECT_EQ(counted() + books(), before);

    EXPECT_EQ(send("POST /name", json, "{\"name\":\"Ana\"}").status, 200);
    EXPECT_EQ(send("POST /row", json, sent).status, 200);
    EXPECT_EQ(counted(), u"A10 3 Ana, A11, B1"_s);
    count.forgetCount(0);
    EXPECT_EQ(counted() + books(), before) << "nothing but the count has changed";
    server.reset();
    EXPECT_EQ(send("GET /list", cookie).status, 0);
}

TEST_P(PhoneCountTest, OneConnectionTooManyIsRefused)
{
    const PhoneServer server(*desk, QHostAddress(QHostAddress::LocalHost), u"Office"_s);
    const QByteArray asked = "GET / HTTP/1.1\r\nHost: x\r\n\r\n";
    std::vector<std::unique_ptr<QTcpSocket>> idle;
    for (int i = 0; i < 50; ++i) {
        idle.push_back(std::make_unique<QTcpSocket>());
        idle.back()->connectToHost(u"127.0.0.1"_s, server.port());
    }
    EXPECT_EQ(exchange(server.port(), asked).status, 0);
    idle.clear();
    while (exchange(server.port(), asked).status == 0) // until they are gone there as well
        ;
}

TEST_P(PhoneCountTest, TwoPhonesCountOneLocation)
{
    const CountingPhone ana = join(u" Ana "_s), ben = join(u"Ben"_s);
    const QJsonObject list = ana.get("/list");
    EXPECT_EQ(list[u"place"_s], u"Office"_s);
    EXPECT_EQ(list[u"items"_s][1][u"b"_s][0], u"4006381333931"_s);
    EXPECT_EQ(list[u"items"_s][1][u"r"_s], u"5"_s);
    const QByteArray news = "/news/" + QByteArray::number(list[u"revision"_s].toInt());

    const QJsonObject first = row("a1", 1, u"A10"_s, u"8,5"_s);
    EXPECT_EQ(is(ana, first), u"taken"_s);
    EXPECT_EQ(counted(), u"A10 8.5 Ana, A11, B1"_s);
    const QJsonObject conflict = ben.post("/row", row("b1", 1, u"A10"_s, u"7"_s));
    EXPECT_EQ(conflict[u"is"_s], u"other"_s);
    EXPECT_EQ(conflict[u"row"_s][u"by"_s], u"Ana"_s);
    EXPECT_EQ(counted(), u"A10 8.5 Ana, A11, B1"_s) << "not before he has seen it";
    QJsonObject informed = row("b2", 1, u"A10"_s, u"7"_s);
    informed[u"seen"_s] = conflict[u"row"_s][u"k"_s];
    EXPECT_EQ(is(ben, informed), u"taken"_s);
    EXPECT_EQ(is(ben, row("b3", 1, u"A10"_s, u"6"_s)), u"taken"_s) << "his own is nothing to ask about";
    EXPECT_EQ(is(ana, first), u"taken"_s);
    EXPECT_EQ(counted(), u"A10 6 Ben, A11, B1"_s) << "a row that is sent again changes nothing";

    count.count(1, 4); // at the desk
    EXPECT_EQ(is(ana, row("a2", 2, u"A11"_s, u"3"_s)), u"other"_s);
    EXPECT_EQ(is(ana, row("a3", 2, u"A11"_s, u"4"_s)), u"taken"_s) << "both have come to the same";
    EXPECT_EQ(counted(), u"A10 6 Ben, A11 4, B1"_s);
    const QJsonArray changed = ana.get(news)[u"rows"_s].toArray();
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(changed[1][u"q"_s], u"4"_s);

    const auto kept = count.draft();
    ASSERT_TRUE(kept);
    const QString id = count.id();
    ASSERT_TRUE(count.open(1, ZeroCounts::Excluded));
    EXPECT_NE(count.id(), id);
    count.resume(*kept);
    EXPECT_EQ(count.id(), id);
    EXPECT_EQ(counted(), u"A10 6 Ben, A11 4, B1"_s);
}

TEST_P(PhoneCountTest, TheRulesOfTheDeskHold)
{
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 15000000 WHERE ItemID = 1"_s);
    ASSERT_TRUE(count.open(1, ZeroCounts::Excluded));
    const CountingPhone ana = join(u"Ana"_s);
    QJsonObject large = row("1", 1, u"A10"_s, u"1500000"_s);
    EXPECT_TRUE(is(ana, large).startsWith(u"asks: The quantity is 1,500,000."_s));
    large[u"confirmed"_s] = true;
    EXPECT_EQ(is(ana, row("2", 2, u"A11"_s, u"5.5"_s)),
              u"refused: 'Current Quantity' must not be greater than 5"_s);
    blind = true;
    EXPECT_TRUE(is(ana, row("3", 2, u"A11"_s, u"5.5"_s)).startsWith(u"refused: This is more than is recorded."_s));
    const QString amount = is(ana, row("4", 1, u"A10"_s, u"2"_s));
    EXPECT_TRUE(begins(amount, u"asks: What is recorded is worth very much more"_s));
    EXPECT_FALSE(ana.get("/list")[u"items"_s][0].toObject().contains(u"r"_s));
    for (const char *wrong : {"-1", "1.2.3", "1e9", "nan", "", "1 000"})
        EXPECT_TRUE(is(ana, row(wrong[0] ? wrong : "none", 2, u"A11"_s, QString::fromLatin1(wrong)))
                        .startsWith(u"refused"_s))
            << wrong;
    EXPECT_TRUE(is(ana, row("5", 2, u"B1"_s, u"1"_s)).startsWith(u"refused"_s)) << "the number is of another item";
    EXPECT_TRUE(is(ana, row("6", 4, u"X9"_s, u"1"_s)).startsWith(u"refused"_s)) << "not in the list";
    QJsonObject old = row("7", 2, u"A11"_s, u"1"_s);
    old[u"count"_s] = u"the one before"_s;
    EXPECT_EQ(is(ana, old), u"closed"_s);
    busy = true;
    EXPECT_EQ(is(ana, large), u"wait"_s);
    EXPECT_EQ(counted(), u"A10, A11, B1"_s);
    busy = false;
    EXPECT_EQ(is(ana, large), u"taken"_s) << "what was only put off or asked about can still be taken";
    EXPECT_EQ(counted(), u"A10 1.5e+06 Ana, A11, B1"_s);

    int answered = 0;
    while (ana.ask(CountingPhone::Method::Get, "/").status == 200 && answered < 1000)
        ++answered;
    EXPECT_LT(answered, 1000) << "so many at once are no phone";
    now += 10'000;
    EXPECT_EQ(ana.ask(CountingPhone::Method::Get, "/").status, 200);
}

} // namespace
