#include "controls/windows/filechoice.h"
#include "controls/windows/openobject.h"
#include "tests/support/failures.h"
#include "tests/support/screendriver.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(OpenObjectTest, takesWhateverStandsInAnAddressAsTheAddress)
{
    const QList<std::pair<QString, QByteArray>> cases = {
        {u"mailto:mary@example.com"_s, "mailto:mary@example.com"},
        {u"mailto:o'neil+50%@example.com?bcc=x@y.z&body=1#2"_s,
         "mailto:o'neil+50%25@example.com%3Fbcc=x@y.z&body=1%232"},
        {u"mailto: \"J\u00f6rg\" <j@example.com> "_s, "mailto:%22J%C3%B6rg%22%20%3Cj@example.com%3E"},
        {u"http://example.com/price list?year=5%"_s, "http://example.com/price%20list?year=5%25"},
        {u"http://b\u00fccher.example"_s, "http://xn--bcher-kva.example"},
    };
    for (const auto &[object, url] : cases)
        EXPECT_EQ(urlOf(object).toEncoded(), url) << qPrintable(object);

    QTemporaryFile file(QDir::tempPath() + u"/100% #1 XXXXXX.pdf"_s);
    ASSERT_TRUE(file.open());
    EXPECT_EQ(urlOf(file.fileName()).toLocalFile(), file.fileName());
}

TEST(OpenObjectTest, handsOverToTheDesktopOrSaysThatItCannot)
{
    QTextBrowser mail; // stands for the desktop's program
    QDesktopServices::setUrlHandler(u"mailto"_s, &mail, "setSource");
    openObject(u"mailto:mary@example.com"_s);
    EXPECT_EQ(mail.source(), QUrl(u"mailto:mary@example.com"_s));
    QDesktopServices::unsetUrlHandler(u"mailto"_s);
    for (const QString &object : {u"http://not a host/"_s, u"no such file.pdf"_s, QString()})
        EXPECT_EQ(refusalOf([&] { openObject(object); }),
                  u"'%1' cannot be opened: this computer has no program for it. -> "_s.arg(object));
    for (const QString &object : {u"file:///etc/passwd"_s, u"unheardof:1"_s})
        EXPECT_EQ(refusalOf([&] { openObject(object); }),
                  u"'%1' is not opened: it is neither a web page nor a mail address. -> "_s.arg(object));
}

TEST(FileChoiceTest, TheDialogHasTheProposedNameAndAddsWhatIsMissing)
{
    const QTemporaryDir folder;
    QWidget window;
    QString chosen;
    const auto choose = [&] {
        chosen = chooseFileToSave(&window, {u"Save"_s, u"gone/list"_s, u"CSV files"_s, u"csv"_s, folder.path()});
    };
    EXPECT_TRUE(whileOpen<QFileDialog>(choose, [](QFileDialog &dialog) {
        EXPECT_EQ(child<QLineEdit>(dialog, "fileNameEdit")->text(), u"gone/list"_s);
    }));
    EXPECT_EQ(chosen, QString());
    EXPECT_TRUE(whileOpen<QFileDialog>(choose, [](QFileDialog &dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        child<QLineEdit>(dialog, "fileNameEdit")->setText(u"list"_s);
        static_cast<QDialog &>(dialog).accept();
    }));
    EXPECT_EQ(chosen, folder.filePath(u"list.csv"_s));
}
