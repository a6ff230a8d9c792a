#include "printing/pagesearch.h"
#include "tests/support/maderows.h"

#include <gtest/gtest.h>

// A search against the list of all places, in a report that is made while it is searched.

using namespace Qt::StringLiterals;
using namespace Tallymere::Printing;

namespace {

constexpr int rowCount = 600;

// Three rows a page or so hold the text, one of them twice; the first pages and the last ones hold none.
std::unique_ptr<ReportRun> newRun()
{
    auto rows = std::make_unique<MadeRows>(QStringList{u"Text"_s}, [number = 0](ReportRow &row) mutable {
        const bool holds = number > 130 && number < 480 && number % 17 == 0;
        row.values = {Engine::Value(u"Row %1%2"_s.arg(number).arg(!holds                ? u""_s
                                                                      : number % 2 == 0 ? u" Salt, salt"_s
                                                                                        : u" SALT"_s))};
        return number++ < rowCount;
    });
    ReportLayout layout{.title = u"Rows"_s, .columns = {{.field = u"Text"_s, .title = u"Text"_s}}};
    return std::make_unique<ReportRun>(Report{std::move(layout), std::move(rows)}, QPageSize::Letter, PageTexts{});
}

QList<Hit> placesOf(const ReportRun &run, const QString &text)
{
    QList<Hit> places;
    for (int page = 0; page < run.pageCount(); ++page)
        for (int i = 0; i < findText(run.page(page), text).size(); ++i)
            places.append({page, i});
    return places;
}

bool operator<(const Hit &left, const Hit &right)
{
    return std::pair(left.page, left.index) < std::pair(right.page, right.index);
}

// The next place, or the one before; past the end the other end.
Hit expected(const QList<Hit> &places, const Hit &from, bool forward)
{
    if (forward) {
        const auto next = std::ranges::find_if(places, [&](const Hit &hit) { return from < hit; });
        return next == places.end() ? places.first() : *next;
    }
    const Hit end{from.page, from.index < 0 ? INT_MAX : from.index};
    const auto behind = std::ranges::find_if(places, [&](const Hit &hit) { return !(hit < end); });
    return behind == places.begin() ? places.last() : *std::prev(behind);
}

const QDeadlineTimer atOnce(0);

// Page by page, with a few lines made in between where the report is to be made meanwhile.
PageSearch::State searchToTheEnd(PageSearch &search, ReportRun &run)
{
    while (true) {
        const int searched = search.pagesSearched();
        const PageSearch::State state = search.search(atOnce);
        EXPECT_LE(search.pagesSearched(), searched + 1) << "more than asked for";
        if (state != PageSearch::State::Searching)
            return state;
        if (run.isComplete() && search.isWaiting())
            throw std::logic_error("waits for pages that do not come");
        if (search.isWaiting())
            run.makePages(atOnce);
    }
}

TEST(PageSearches, GoFromPlaceToPlaceInBothDirectionsWhilePagesAreMade)
{
    const auto complete = newRun();
    complete->makePages();
    const QList<Hit> places = placesOf(*complete, u"salt"_s);
    ASSERT_GT(places.size(), 20);
    QList<Hit> starts = places.mid(0, 4) + places.last(3);
    for (int page = 0; page < complete->pageCount(); ++page)
        starts.append({page, -1});
    for (const bool forward : {true, false}) {
        for (const Hit &from : std::as_const(starts)) {
            SCOPED_TRACE(u"%1 from %2/%3"_s.arg(forward).arg(from.page).arg(from.index).toStdString());
            const auto growing = newRun();
            while (growing->pageCount() <= from.page && !growing->hasEnded())
                growing->makePages(atOnce);
            for (ReportRun *run : {complete.get(), growing.get()}) {
                PageSearch search(*run, u"salt"_s, forward, from);
                ASSERT_EQ(searchToTheEnd(search, *run), PageSearch::State::Found);
                const Hit next = expected(places, from, forward);
                EXPECT_EQ(search.hit().page, next.page);
                EXPECT_EQ(search.hit().index, next.index);
            }
        }
    }
}

TEST(PageSearches, FindNothingOnlyWhereAllPagesHaveBeenSearched)
{
    for (const bool forward : {true, false}) {
        const auto run = newRun();
        while (run->pageCount() < 3)
            run->makePages(atOnce);
        PageSearch search(*run, u"pepper"_s, forward, {.page = 1});
        EXPECT_EQ(search.search(QDeadlineTimer::Forever), PageSearch::State::Searching);
        EXPECT_TRUE(search.isWaiting());
        EXPECT_EQ(searchToTheEnd(search, *run), PageSearch::State::NotFound);
        EXPECT_TRUE(run->isComplete());
        EXPECT_EQ(search.pagesSearched(), run->pageCount());
    }
    // The only place there is, gone to already, is found again.
    const auto run = newRun();
    run->makePages();
    const QList<Hit> only = placesOf(*run, u"row 271"_s);
    ASSERT_EQ(only.size(), 1);
    PageSearch again(*run, u"row 271"_s, true, only.first());
    EXPECT_EQ(searchToTheEnd(again, *run), PageSearch::State::Found);
}

} // namespace
