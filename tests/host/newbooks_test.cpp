#include "host/books/newbooks.h"
#include "host/company.h"
#include "tests/support/bothstores.h"
#include "tests/support/files.h"
#include "tests/support/spokenprompts.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct NewBooksTest : testing::TestWithParam<Store>
{
    NewBooksTest()
    {
        if (GetParam() == Store::Local) {
            place.folder = m_folder.filePath(u"books/of the year"_s);
            return;
        }
        dropTestDatabase(u"corvane"_s);
        place.server = u"127.0.0.1"_s;
    }
    ~NewBooksTest() override
    {
        if (place.isOnServer())
            dropTestDatabase(u"corvane"_s);
    }
    void make(const QString &name) const { makeBooks({place, name, u"UK"_s, u"anna"_s}); }
    QStringList files() const { return entriesOf(place.folder); }
    QString currency() const
    {
        MemorySettings settings;
        useBooks(settings, place);
        QString name;
        withCompany(settings, [&name](Engine::Database &database) {
            name = rowsOf(database, u"SELECT CurrencyName FROM Currency"_s).join(u' ');
        });
        return name;
    }

    BooksPlace place;

private:
    QTemporaryDir m_folder;
};

} // namespace

ON_BOTH_STORES(NewBooksTest);

TEST_P(NewBooksTest, AreMadeWhereNoneAreAndLeaveOthersAsTheyStand)
{
    EXPECT_EQ(readCompany(place).books, Company::Books::None);
    EXPECT_THROW(make(u"  "_s), RuleError);
    EXPECT_EQ(readCompany(place).books, Company::Books::None);
    make(u"Green Spoon"_s);
    const Company made = readCompany(place);
    EXPECT_EQ(made.books, Company::Books::There);
    EXPECT_EQ(made.name, u"Green Spoon"_s);
    EXPECT_EQ(made.problem, QString());
    EXPECT_EQ(currency(), u"Pounds"_s);

    const QStringList before = files();
    const QString refusal = refusalOf([this] { make(u"Red Spoon"_s); });
    EXPECT_TRUE(has(refusal, u"books already"_s));
    EXPECT_TRUE(ends(refusal, place.isOnServer() ? u" -> Server"_s : u" -> Folder"_s));
    EXPECT_EQ(readCompany(place).name, u"Green Spoon"_s);
    EXPECT_EQ(files(), before);
}

TEST(SampleBooks, AreWholeOrNotThere)
{
    const QTemporaryDir documents;
    const QString folder = documents.filePath(u"Sample"_s);
    CountedProgress early(40, [] { throw SilentAbort(); });
    EXPECT_THROW(makeSampleBooks(folder, u"anna"_s, early), SilentAbort);
    EXPECT_FALSE(QDir(folder).exists());

    CountedProgress progress;
    makeSampleBooks(folder, u"anna"_s, progress);
    MemorySettings settings;
    useBooks(settings, {.folder = folder});
    EXPECT_EQ(readCompany(settings).name, u"Lakeside Meals"_s);
    withCompany(settings, [](Engine::Database &database) {
        EXPECT_EQ(rowsOf(database, u"SELECT COUNT(*) > 1000 FROM IHist"_s), QStringList{u"1"_s});
        EXPECT_EQ(rowsOf(database, u"SELECT COUNT(*) > 0 FROM IUsage WHERE Posted = 0"_s), QStringList{u"1"_s});
        EXPECT_EQ(rowsOf(database, u"SELECT NextInvoiceNo - MAX(CAST(UsageNo AS integer)) FROM ARInvCtl, IUsage"_s),
                  QStringList{u"1"_s});
        EXPECT_EQ(rowsOf(database, u"SELECT FiscalYear, TaxNo FROM Company"_s), QStringList{u"2026|16-0987453"_s});
    });
}

TEST(ProposedFolder, IsOneFolderBelowTheDocumentsWhateverTheName)
{
    const QString documents = QFileInfo(proposedFolder({})).path();
    for (const auto &[name, folder] :
         {std::pair(u"Green Spoon"_s, u"Green Spoon"_s), std::pair(u" ../.ssh/x "_s, u"sshx"_s),
          std::pair(u"A/B: \"C\"\n"_s, u"AB C"_s), std::pair(u"..."_s, u"Corvane"_s)})
        EXPECT_EQ(proposedFolder(name), documents + u'/' + folder);
}
