#pragma once

#include "phonecount/phoneservice.h"

#include <gtest/gtest.h>
#include <QJsonDocument>
#include <QJsonObject>

// A phone that counts: it has opened a link and told a name, and asks by the cookie that it has got.
class CountingPhone
{
public:
    using Method = Tallymere::PhoneRequest::Method;

    CountingPhone(Tallymere::PhoneService &service, QByteArray host, const QByteArray &link, const QString &name)
        : m_service(service)
        , m_host(std::move(host))
    {
        for (const auto &[header, value] : ask(Method::Get, link).headers)
            if (header == "Set-Cookie")
                m_cookie = value.left(value.indexOf(';'));
        EXPECT_EQ(post("/name", {{QStringLiteral("name"), name}}).value(QStringLiteral("name")), name.trimmed());
    }

    QJsonObject get(const QByteArray &path) const { return objectOf(ask(Method::Get, path)); }
    QJsonObject post(const QByteArray &path, const QJsonObject &sent) const
    {
        return objectOf(ask(Method::Post, path, QJsonDocument(sent).toJson()));
    }
    Tallymere::PhoneAnswer ask(Method method, const QByteArray &path, const QByteArray &body = {}) const
    {
        return m_service.answer({.method = method,
                                 .path = path,
                                 .host = m_host,
                                 .origin = {},
                                 .contentType = "application/json",
                                 .cookies = m_cookie,
                                 .body = body,
                                 .from = QStringLiteral("10.0.0.7")});
    }

private:
    static QJsonObject objectOf(const Tallymere::PhoneAnswer &answer)
    {
        return QJsonDocument::fromJson(answer.body).object();
    }

    Tallymere::PhoneService &m_service;
    QByteArray m_host, m_cookie;
};
