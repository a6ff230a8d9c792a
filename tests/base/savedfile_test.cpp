#include "base/savedfile.h"
#include "tests/support/failures.h"
#include "tests/support/files.h"
#include "tests/support/smallfiles.h"

#include <fcntl.h>
#include <QFileInfo>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct SavedFile : testing::Test
{
    QString path(const QString &name) const { return folder.filePath(name); }
    QByteArray system(const QString &name) const { return QFile::encodeName(path(name)); }
    static QString save(const QString &file, const QByteArray &text, int times = 1)
    {
        return refusalOf([&] {
            saveFile(file, [&](QIODevice &device) {
                for (int i = 0; i < times; ++i)
                    device.write(text);
            });
        });
    }

    QTemporaryDir folder;
};

TEST_F(SavedFile, ReplacesWhatLinksLeadToAndKeepsTheLinks)
{
    save(path(u"file"_s), "old");
    ASSERT_TRUE(QFile::link(u"file"_s, path(u"near"_s)));
    ASSERT_TRUE(QFile::link(u"near"_s, path(u"far"_s)));
    EXPECT_EQ(save(path(u"far"_s), "new"), QString());
    EXPECT_EQ(contentOf(path(u"file"_s)), "new");
    for (const QString &link : {u"near"_s, u"far"_s})
        EXPECT_TRUE(QFileInfo(path(link)).isSymLink()) << link.toStdString();
}

TEST_F(SavedFile, IsWrittenIntoAPipeAsLongAsSomebodyReads)
{
    ASSERT_EQ(::mkfifo(system(u"pipe"_s).constData(), 0600), 0);
    const QString pipe = path(u"pipe"_s);
    const QString refused = u"Unable to save '"_s + pipe + "'...\n"_L1;
    EXPECT_EQ(save(pipe, "lost"), refused + u"Nobody reads from this pipe. -> "_s);

    const int reader = ::open(system(u"pipe"_s).constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(save(pipe, "through"), QString());
    QByteArray read(16, '\0');
    read.truncate(::read(reader, read.data(), static_cast<size_t>(read.size())));
    EXPECT_EQ(read, "through");

    // More than a pipe holds: the writer waits, and then there is nobody any more.
    std::thread leaving([reader] {
        char first = 0;
        while (::read(reader, &first, 1) != 1)
            std::this_thread::yield();
        ::close(reader);
    });
    EXPECT_EQ(save(pipe, QByteArray(100'000, 'x'), 10), refused + u"Broken pipe -> "_s);
    leaving.join();
    struct stat kind = {};
    ASSERT_EQ(::stat(system(u"pipe"_s).constData(), &kind), 0);
    EXPECT_TRUE(S_ISFIFO(kind.st_mode));
}

TEST_F(SavedFile, TellsWhyADiskThatBecomesFullTakesNoMore)
{
    save(path(u"file"_s), "old");
    const SmallFiles full(100); // takes a part of the text
    const QString refused = save(path(u"file"_s), QByteArray(150, 'x'));
    EXPECT_EQ(refused, u"Unable to save '%1'...\nFile too large -> "_s.arg(path(u"file"_s)));
    EXPECT_EQ(contentOf(path(u"file"_s)), "old");
}

} // namespace
