#include "printing/reportoutput.h"
#include "printing/reportrun.h"
#include "tests/support/failures.h"
#include "tests/support/maderows.h"
#include "tests/support/smallfiles.h"
#include "tests/support/spokenprompts.h"

#include <map>
#include <numeric>
#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using namespace Tallymere::Printing;

namespace {

struct Pages : testing::Test
{
    ReportLayout layout{.title = u"Stock"_s,
                        .columns = {{.field = u"Name"_s, .title = u"Name"_s, .wraps = true},
                                    {.field = u"Value"_s, .title = u"Value"_s, .align = Align::Decimal}},
                        .groups = {{u"Group"_s, {u"Group"_s}, true, u"Total %1"_s}},
                        .totals = {{u"Value"_s, TotalOf::Quantities}},
                        .reportTotalText = u"Total"_s};
    std::vector<ReportRow> rows;
    QList<Page> pages;

    void add(const QString &group, const QString &name, double value)
    {
        rows.push_back({RowKind::Detail, {Engine::Value(group), Engine::Value(name), Engine::Value(value)}});
    }

    // Of the rows so far, and behind them of none, or of a failure.
    Report report(const QStringList &more = {}, bool failsAtEnd = false) const
    {
        const auto next = [rest = rows, at = size_t(0), failsAtEnd](ReportRow &row) mutable {
            if (at < rest.size())
                row = rest[at];
            else if (failsAtEnd)
                throw RuleError(u"The store is gone"_s);
            return at++ < rest.size();
        };
        return {layout, std::make_unique<MadeRows>(QStringList{u"Group"_s, u"Name"_s, u"Value"_s} + more, next)};
    }

    void make()
    {
        ReportRun run(report(), QPageSize::Letter, {u"Kitchen"_s, u"Printed at noon"_s});
        run.makePages();
        for (int i = 0; i < run.pageCount(); ++i)
            pages.append(run.page(i));
    }

    // The lines of a page from top to bottom, the texts of each from left to right.
    static QStringList linesOf(const Page &page)
    {
        std::map<float, std::map<float, QString>> places;
        for (const TextItem &item : page.texts)
            places[item.y][item.x] = item.text;
        QStringList lines;
        for (const auto &[y, texts] : places) {
            QStringList line;
            for (const auto &[x, text] : texts)
                line += text;
            lines += line.join(u'|');
        }
        return lines;
    }

    const TextItem &find(const QString &text) const
    {
        for (const Page &page : pages)
            for (const TextItem &item : page.texts)
                if (item.text == text)
                    return item;
        throw std::runtime_error("not on the pages: " + text.toStdString());
    }
};

TEST_F(Pages, RepeatTitlesSayWhatTheyGoOnWithAndHoldEachRowOnce)
{
    layout.headings = {QString(), u"Period: 03/2026"_s};
    QStringList all{u"Food"_s};
    for (int i = 1; i <= 150; ++i) {
        add(u"Food"_s, u"Item %1"_s.arg(i), i);
        all += u"Item %1|%1"_s.arg(i);
    }
    all << u"Total Food|11325"_s << u"Total|11325"_s;
    make();
    ASSERT_EQ(pages.size(), 3);
    QStringList held;
    for (const Page &page : pages) {
        const bool first = &page == &pages.first();
        QStringList lines = linesOf(page);
        const QStringList top = first
            ? QStringList{u"Stock|Kitchen"_s, u"Period: 03/2026"_s, u"Name|Value"_s}
            : QStringList{u"Stock · Period: 03/2026"_s, u"Name|Value"_s, u"Food (continued)"_s};
        EXPECT_EQ(lines.mid(0, 3), top);
        EXPECT_EQ(lines.takeLast(), u"Printed at noon");
        held += lines.mid(3);
    }
    EXPECT_EQ(held, all);
}

// Groups in groups, of all sizes, at all places of a page.
TEST_F(Pages, PartGroupsOfMoreThanFiveRowsOnlyAndKeepHeadingsAndTotalsWithARow)
{
    layout.groups.append({u"Name"_s, {u"Name"_s}, true, u"Total %1"_s});
    layout.columns[0].field = u"Row"_s;
    const int sizes[] = {3, 1, 5, 7, 2, 5, 1, 4, 6, 5, 3};
    int parted = 0;
    for (int before = 1; before < 60; ++before) {
        SCOPED_TRACE(before);
        rows.clear();
        pages.clear();
        const auto addRows = [&](const QString &outer, const QString &inner, int count) {
            for (int i = 0; i < count; ++i)
                rows.push_back({RowKind::Detail,
                                {Engine::Value(outer), Engine::Value(inner), Engine::Value(1.0),
                                 Engine::Value(inner + u"-row"_s)}});
        };
        addRows(u"first"_s, u"long"_s, before);
        QMap<QString, int> sizeOf;
        for (int i = 0; i < 33; ++i) {
            const QString outer = u"outer%1"_s.arg(i / 2); // of two
            const QString inner = u"inner%1"_s.arg(i);
            sizeOf[inner] = sizes[i % 11];
            sizeOf[outer] += sizes[i % 11];
            addRows(outer, inner, sizes[i % 11]);
        }
        ReportRun run(report({u"Row"_s}), QPageSize::Letter, {});
        run.makePages();
        QMap<QString, QList<int>> pagesOf; // of the lines that name a group: heading, rows, total
        int lines = 0;
        for (int page = 0; page < run.pageCount(); ++page)
            for (const TextItem &item : run.page(page).texts) {
                const QString name = item.text.section(u' ', -1).remove(u"-row"_s);
                if (!sizeOf.contains(name))
                    continue;
                pagesOf[name].append(page);
                lines += item.text.endsWith("-row"_L1) ? 1 : 0;
            }
        EXPECT_EQ(lines, std::accumulate(sizeOf.begin(), sizeOf.end(), 0) / 2);
        for (auto group = sizeOf.cbegin(); group != sizeOf.cend(); ++group) {
            const QList<int> &on = pagesOf[group.key()];
            const int ownRows = group.key().startsWith("inner"_L1) ? *group : 0;
            EXPECT_EQ(on.size(), 1 + ownRows + (*group > 1 ? 1 : 0)) << qPrintable(group.key());
            if (*group <= 5) {
                EXPECT_EQ(on.first(), on.last()) << qPrintable(group.key());
            }
            if (ownRows > 1) {
                EXPECT_EQ(on[0], on[1]) << "the heading with its first row";
                EXPECT_EQ(on[ownRows], on.last()) << "the total with its last one";
            }
            parted += on.first() != on.last() ? 1 : 0;
        }
    }
    EXPECT_GT(parted, 0);
}

TEST_F(Pages, BreakALongRowOnlyWhereItIsLongerThanAPage)
{
    QStringList words;
    for (int i = 1; i <= 150; ++i)
        words += u"word%1"_s.arg(i);
    add(u"A"_s, u"short"_s, 1);
    add(u"A"_s, words.join(u'\n'), 2);
    make();
    ASSERT_EQ(pages.size(), 4);
    QStringList held;
    const Paper paper{QPageSize::Letter};
    for (const Page &page : pages)
        for (const TextItem &item : page.texts) {
            EXPECT_LE(item.y, paper.area().bottom());
            if (item.text.startsWith("word"_L1))
                held += item.text;
        }
    EXPECT_EQ(held, words);
    EXPECT_FALSE(linesOf(pages[0]).join(u' ').contains(u"word"_s));
}

TEST_F(Pages, CutWhatDoesNotFitNarrowNumbersAndAlignDecimals)
{
    layout.columns[0].wraps = false;
    layout.columns[0].width = 3;
    const QString longText = u"Wide and "_s.repeated(40);
    add(longText, longText, 12);
    add(longText, u"b"_s, 3.125);
    add(longText, u"c"_s, 1.0 / 3e9);
    layout.columns[1].width = 0.3;
    make();
    const double right = Paper{QPageSize::Letter}.area().right();
    int cut = 0;
    for (const TextItem &item : pages[0].texts) {
        const double end = item.x + TextMeasure::of(item.style).width(item.text) * item.squeeze;
        EXPECT_LE(end, right + 1) << item.text.toStdString();
        cut += item.text.endsWith(u'…') ? 1 : 0;
    }
    EXPECT_EQ(cut, 3); // the name of the group in its heading and in its total, and that of the first row
    EXPECT_LT(find(Engine::Value(1.0 / 3e9).toText()).squeeze, 1);
    const TextMeasure &body = TextMeasure::of(TextStyle::Body);
    EXPECT_NEAR(find(u"12"_s).x + body.width(u"12"_s), find(u"3.125"_s).x + body.width(u"3"_s), 0.1);
}

TEST_F(Pages, TotalByTheNumberAloneWhereTheDescriptionWouldBeCut)
{
    layout.groups[0].fields = {u"Group"_s, u"Name"_s};
    for (const QString &name : {u"Salt"_s, u"Salt and more "_s.repeated(20)})
        for (int i = 0; i < 2; ++i)
            add(name.left(4) + QString::number(name.size()), name, 1);
    make();
    EXPECT_TRUE(linesOf(pages[0]).contains(u"Total Salt4  Salt|2"_s));
    EXPECT_TRUE(linesOf(pages[0]).contains(u"Total Salt280|2"_s));
}

TEST_F(Pages, SayThatThereIsNothingToShow)
{
    layout.reportTotalText.clear();
    make();
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(linesOf(pages[0]).contains(u"There is nothing to show."_s));
}

TEST_F(Pages, BeginGroupsOnNewPagesAndNameThoseWithoutAName)
{
    layout.groups[0].onNewPage = true;
    add(u"A"_s, u"a"_s, 1);
    add(QString(), u"b"_s, 1);
    make();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(linesOf(pages[1]).mid(2, 3), QStringList({u"(none)"_s, u"b|1"_s, u"Total|2"_s}));
}

TEST_F(Pages, NameTheReportWhoseTotalIsNoAmountAnyMore)
{
    layout.totals = {{u"Value"_s, TotalOf::Amounts}};
    add(u"A"_s, u"a"_s, 9e14);
    add(u"A"_s, u"b"_s, 9e14);
    EXPECT_THROW(make(), RuleError);
}

TEST_F(Pages, ThatAFullDiskDoesNotTakeSaySo)
{
    for (int i = 0; i < 200; ++i)
        add(u"A"_s, u"Name"_s, i);
    ReportRun run(report(), QPageSize::Letter, {});
    const SmallFiles full(5000);
    EXPECT_EQ(refusalOf([&] { run.makePages(); }),
              u"The pages of the report cannot be kept in '%1'...\nFile too large -> "_s.arg(QDir::tempPath()));
}

// Nor would one that is killed.
TEST_F(Pages, LeaveNoFileBehind)
{
    const QTemporaryDir folder;
    const QByteArray temporary = qgetenv("TMPDIR");
    qputenv("TMPDIR", folder.path().toUtf8());
    add(u"A"_s, u"a"_s, 1);
    ReportRun run(report(), QPageSize::Letter, {});
    run.makePages();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
}

TEST_F(Pages, OfAReportThatFailedAreNotGivenAwayAsIfTheyWereAll)
{
    for (const int rowsBefore : {0, 200}) {
        ReportRun run(report({}, true), QPageSize::Letter, {});
        EXPECT_THROW(run.makePages(), RuleError);
        EXPECT_TRUE(run.hasEnded());
        EXPECT_EQ(run.pageCount() > 0, rowsBefore > 0);
        QTemporaryDir folder;
        CountedProgress progress;
        EXPECT_THROW(savePdf(run, folder.filePath(u"report.pdf"_s), allPages(run), progress), RuleError);
        EXPECT_FALSE(QFile::exists(folder.filePath(u"report.pdf"_s)));
        for (int i = 0; i < 200; ++i)
            add(u"A"_s, u"Name"_s, i);
    }
}

} // namespace
