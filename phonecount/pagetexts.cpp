#include "phonecount/pagetexts.h"

#include "phonecount/texts.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// What the page says, by the names it has there.
QJsonObject pageTexts()
{
    return {
        {u"title"_s, PhoneCountTexts::tr("Count")},
        {u"who"_s, PhoneCountTexts::tr("Who is counting?")},
        {u"begin"_s, PhoneCountTexts::tr("Begin")},
        {u"search"_s, PhoneCountTexts::tr("Number, description or barcode")},
        {u"camera"_s, PhoneCountTexts::tr("Scan")},
        {u"close"_s, PhoneCountTexts::tr("Close")},
        {u"counted"_s, PhoneCountTexts::tr("%1 of %2 counted")},
        {u"sent"_s, PhoneCountTexts::tr("All sent")},
        {u"waiting"_s, PhoneCountTexts::tr("Waiting: %1")},
        {u"answer"_s, PhoneCountTexts::tr("To be answered: %1")},
        {u"away"_s, PhoneCountTexts::tr("No connection. What you type is kept on this phone and sent later.")},
        {u"ended"_s,
         PhoneCountTexts::tr(
             "The count has been closed at the computer. What has not been sent is kept on this phone: ask "
             "for a new link there.")},
        {u"unkept"_s,
         PhoneCountTexts::tr("This browser keeps nothing. Do not close the page before all has been sent.")},
        {u"recorded"_s, PhoneCountTexts::tr("Recorded: %1")},
        {u"by"_s, PhoneCountTexts::tr("%1, %2")},
        {u"desk"_s, PhoneCountTexts::tr("At the computer")},
        {u"kept"_s, PhoneCountTexts::tr("Not sent yet")},
        {u"busy"_s, PhoneCountTexts::tr("The computer takes it in a moment")},
        {u"other"_s, PhoneCountTexts::tr("%1 has counted %2. You have typed %3.")},
        {u"othernone"_s, PhoneCountTexts::tr("The count of this item has been taken back. You have typed %1.")},
        {u"mine"_s, PhoneCountTexts::tr("Use %1")},
        {u"theirs"_s, PhoneCountTexts::tr("Leave it")},
        {u"yes"_s, PhoneCountTexts::tr("Yes")},
        {u"no"_s, PhoneCountTexts::tr("No")},
        {u"drop"_s, PhoneCountTexts::tr("Take back")},
        {u"none"_s, PhoneCountTexts::tr("'%1' is not in the list")},
        {u"quantity"_s, PhoneCountTexts::tr("Quantity of %1")},
        {u"old"_s, PhoneCountTexts::tr("Not sent of another count of %1: %2")},
        {u"take"_s, PhoneCountTexts::tr("Send to this count")},
        {u"delete"_s, PhoneCountTexts::tr("Delete")},
        {u"nocamera"_s, PhoneCountTexts::tr("The camera cannot be used.")},
    };
}

QByteArray pageFile()
{
    QFile file(u":/tallymere/phone/page.html"_s);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

// Nothing in it ends the script that it stands in.
QByteArray scriptJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).replace('<', "\\u003c");
}

} // namespace

PhoneAnswer countingPage()
{
    const QByteArray nonce = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    QByteArray page = pageFile();
    page.replace("@NONCE@", nonce);
    page.replace("@LANGUAGE@", QLocale().name().section(u'_', 0, 0).toLatin1());
    page.replace("@TEXTS@", scriptJson(pageTexts()));
    return {.status = 200,
            .type = "text/html; charset=utf-8",
            .body = page,
            .headers = {{"Content-Security-Policy",
                         "default-src 'none'; script-src 'nonce-" + nonce + "'; style-src 'nonce-" + nonce
                             + "'; connect-src 'self'; img-src data:; media-src mediastream: blob:; base-uri "
                               "'none'; form-action 'none'; "
                               "frame-ancestors 'none'"},
                        {"Permissions-Policy", "camera=(self), microphone=(), geolocation=()"},
                        {"Cross-Origin-Opener-Policy", "same-origin"}}};
}

} // namespace Tallymere
