#include "base/initfile.h"
#include "frame/hostinifile.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct InitFileTest : testing::Test
{
    void write(const QByteArray &text) { putContent(path(), text); }
    QByteArray read() const { return contentOf(path()); }
    QString path() const { return m_folder.filePath(u"HX1.ini"_s); }
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(InitFileTest, ReadsValuesAsOtherProgramsWriteThem)
{
    write("; settings of the host\r\n"
          "DialerPort=com9\r\n"
          "[ General ]\r\n"
          "dialerport = com2 \r\n"
          "\r\n"
          "[Companies]\r\n"
          "Sample Data=\"C:\\Corvane\\Data = old\"\r\n"
          "Sample Data=second\r\n"
          "K\xFC\x63he=Gr\xFCn\r\n");
    const InitFile file(path());
    EXPECT_EQ(file.value({u"general", u"DialerPort"}), u"com2"_s);
    EXPECT_EQ(file.value({u"Companies", u"sample data"}), u"C:\\Corvane\\Data = old"_s);
    EXPECT_EQ(file.value({u"Companies", u"DialerPort"}), QString());
    EXPECT_EQ(file.entries(u"Companies").size(), 3);
    EXPECT_EQ(file.value({u"Companies", u"küche"}), u"Grün"_s);
}

TEST_F(InitFileTest, WritingKeepsEveryOtherLine)
{
    const std::tuple<const char *, QByteArray, QByteArray> cases[] = {
        {"no file", "", "[Companies]\nSample Data=x\n"},
        {"other section only", "[General]\nDialerPort=com2\n",
         "[General]\nDialerPort=com2\n[Companies]\nSample Data=x\n"},
        {"section without the value", "[companies]\nOther=y\n[General]\nSample Data=z\n",
         "[companies]\nSample Data=x\nOther=y\n[General]\nSample Data=z\n"},
        {"value there", "; note\n[Companies]\nsample data=old\nOther=y\n",
         "; note\n[Companies]\nSample Data=x\nOther=y\n"},
        {"line ends and letters of old Windows programs", "; Gr\xFCn\r\n\r\n[Companies]\r\nSample Data=old\r\n",
         "; Gr\xFCn\r\n\r\n[Companies]\r\nSample Data=x\r\n"},
    };
    for (const auto &[name, before, after] : cases) {
        SCOPED_TRACE(name);
        QFile::remove(path());
        if (!before.isEmpty())
            write(before);
        ASSERT_TRUE(InitFile(path()).setValue({u"Companies", u"Sample Data"}, u"x"_s));
        EXPECT_EQ(read(), after);
    }
    EXPECT_FALSE(InitFile(folder() + "/none/HX1.ini"_L1).setValue({u"a", u"b"}, u"c"_s));
}

TEST_F(InitFileTest, SampleCompanyIsNamedOnlyWhereNoneIs)
{
    nameSampleCompany(folder());
    EXPECT_EQ(InitFile(path()).value({u"Companies", u"Sample Data"}), folder() + "/Data"_L1);

    write("[Companies]\nSample Data=/srv/kitchen\n");
    nameSampleCompany(folder());
    EXPECT_EQ(read(), "[Companies]\nSample Data=/srv/kitchen\n");
}
