#include "reports/screens/pageview.h"

#include "base/ruleerror.h"
#include "printing/laidline.h"
#include "printing/pagepainter.h"
#include "printing/pagetext.h"
#include "reports/screens/pageaccess.h"

#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace Tallymere {

namespace {
constexpr int gap = 12; // around pages
constexpr int pagesHeld = 12;

// Painting must throw nothing, so what cannot be read any more says why in its place.
Printing::Page readPage(const Printing::ReportRun &run, int index)
{
    try {
        return run.page(index);
    } catch (const RuleError &error) {
        Printing::Page page;
        float y = Printing::unitsPerInch;
        for (const QString &line : error.message().split(u'\n')) {
            page.texts.append({.x = Printing::unitsPerInch, .y = y, .text = line});
            y += static_cast<float>(Printing::heightOf(Printing::TextStyle::Body));
        }
        return page;
    }
}
} // namespace

PageView::PageView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_near(pagesHeld)
{
    letPagesBeRead();
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
}

void PageView::setRun(const Printing::ReportRun *run)
{
    m_run = run;
    m_near.clear();
    updateBars();
}

void PageView::pagesAdded()
{
    updateBars();
    viewport()->update();
}

// --- places -------------------------------------------------------------------------------------------------------

double PageView::scale() const { return m_zoom / 100.0 * logicalDpiY() / Printing::unitsPerInch; }

QSize PageView::pageSize() const
{
    return m_run ? (m_run->paper().sheet().size() * scale()).toSize() : QSize(1, 1);
}

int PageView::pageTop(int index) const { return gap + index * (pageSize().height() + gap); }

int PageView::pageAt(int y) const
{
    return std::clamp((y - gap / 2) / (pageSize().height() + gap), 0, std::max(0, pageCount() - 1));
}

QRect PageView::pageRect(int index) const
{
    const QSize size = pageSize();
    const int spare = viewport()->width() - size.width();
    const int left = spare > 2 * gap ? spare / 2 : gap - horizontalScrollBar()->value();
    return {QPoint(left, pageTop(index) - verticalScrollBar()->value()), size};
}

int PageView::currentPage() const
{
    const int place = verticalScrollBar()->value();
    return place == m_goneToAt ? m_goneTo : pageAt(place + viewport()->height() / 2) + 1;
}

QString PageView::currentText() const
{
    return pageCount() > 0 ? Printing::textOf(page(currentPage() - 1)) : QString();
}

void PageView::goToPage(int page)
{
    const int wanted = std::clamp(page, 1, std::max(1, pageCount()));
    verticalScrollBar()->setValue(pageTop(wanted - 1) - gap);
    stayOn(wanted);
}

// The page is the current one for as long as nobody scrolls.
void PageView::stayOn(int page)
{
    m_goneTo = page;
    m_goneToAt = verticalScrollBar()->value();
    Q_EMIT pageShown(page);
}

void PageView::updateBars()
{
    const QSize size = pageSize();
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * gap - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setRange(0, std::max(0, pageTop(pageCount()) - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height() - 20);
    verticalScrollBar()->setSingleStep(40);
}

// --- zoom ---------------------------------------------------------------------------------------------------------

void PageView::setZoom(int percent)
{
    percent = std::clamp(percent, leastZoom, mostZoom);
    if (percent == m_zoom)
        return;
    const int page = currentPage();
    const auto top = [this, page] { return pageTop(page - 1) - gap; };
    const double within = static_cast<double>(verticalScrollBar()->value() - top()) / (pageSize().height() + gap);
    m_zoom = percent;
    updateBars();
    verticalScrollBar()->setValue(top() + qRound(within * (pageSize().height() + gap)));
    stayOn(page);
    viewport()->update();
}

int PageView::zoomToWidth() const
{
    const double room = viewport()->width() - 2 * gap;
    return m_run ? static_cast<int>(room * m_zoom / (m_run->paper().sheet().width() * scale())) : 100;
}

int PageView::zoomToPage() const
{
    const double room = viewport()->height() - 2 * gap;
    const int toHeight =
        m_run ? static_cast<int>(room * m_zoom / (m_run->paper().sheet().height() * scale())) : 100;
    return std::min(toHeight, zoomToWidth());
}

// --- searching ----------------------------------------------------------------------------------------------------

void PageView::setSearched(const QString &text)
{
    if (text == m_searched)
        return;
    m_searched = text;
    m_hit = {};
    viewport()->update();
}

Printing::Hit PageView::searchedFrom() const
{
    return m_hit.index >= 0 ? m_hit : Printing::Hit{.page = currentPage() - 1};
}

void PageView::goToHit(const Printing::Hit &hit)
{
    m_hit = hit;
    const QRectF place = Printing::findText(page(hit.page), m_searched).value(hit.index);
    const int y = pageTop(hit.page) + static_cast<int>(place.center().y() * scale());
    const int top = verticalScrollBar()->value();
    if (y < top + gap || y > top + viewport()->height() - gap)
        verticalScrollBar()->setValue(y - viewport()->height() / 3);
    const int x = gap + static_cast<int>(place.left() * scale());
    const int left = horizontalScrollBar()->value();
    if (x < left || x > left + viewport()->width() - gap)
        horizontalScrollBar()->setValue(x - viewport()->width() / 3);
    viewport()->update();
}

// --- painting -----------------------------------------------------------------------------------------------------

const Printing::Page &PageView::page(int index) const
{
    if (const Printing::Page *held = m_near.object(index))
        return *held;
    auto *read = new Printing::Page(readPage(*m_run, index));
    m_near.insert(index, read);
    return *read;
}

void PageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (pageCount() == 0)
        return;
    const int top = verticalScrollBar()->value();
    const int last = pageAt(top + event->rect().bottom());
    for (int index = pageAt(top + event->rect().top()); index <= last; ++index) {
        const QRect place = pageRect(index);
        painter.fillRect(place, Qt::white);
        painter.setPen(Qt::gray);
        painter.drawRect(place.adjusted(-1, -1, 0, 0));
        painter.save();
        painter.translate(place.topLeft());
        painter.scale(scale(), scale());
        paintHits(painter, index);
        Printing::paintPage(painter, page(index), m_run->paper(), index + 1, m_run->isComplete() ? pageCount() : 0);
        painter.restore();
    }
}

void PageView::paintHits(QPainter &painter, int index) const
{
    const QList<QRectF> hits = Printing::findText(page(index), m_searched);
    for (qsizetype i = 0; i < hits.size(); ++i)
        painter.fillRect(hits[i],
                         index == m_hit.page && i == m_hit.index ? QColor(255, 170, 60) : QColor(255, 240, 130));
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateBars();
}

void PageView::scrollContentsBy(int, int)
{
    viewport()->update();
    Q_EMIT pageShown(currentPage());
}

void PageView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    Q_EMIT zoomWanted(m_zoom + (event->angleDelta().y() > 0 ? 10 : -10));
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Home:
        return goToPage(1);
    case Qt::Key_End:
        return goToPage(pageCount());
    case Qt::Key_PageDown:
        if (withControl)
            return goToPage(currentPage() + 1);
        return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_PageUp:
        if (withControl)
            return goToPage(currentPage() - 1);
        return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_Plus:
        return Q_EMIT zoomWanted(m_zoom + 10);
    case Qt::Key_Minus:
        return Q_EMIT zoomWanted(m_zoom - 10);
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace Tallymere
