#pragma once

#include "printing/pagesearch.h"

#include <QAbstractScrollArea>
#include <QCache>

namespace Tallymere {

// The pages of a report below each other, painted as they come into sight. Holds no more pages than are near those.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PageView(QWidget *parent = nullptr);

    void setRun(const Printing::ReportRun *run); // outlives what is shown
    void pagesAdded(); // the run has more pages than before

    // From 1: the page that was gone to, and after scrolling the one in the middle of the view; 1 while there is none.
    int currentPage() const;
    void goToPage(int page);
    QString currentText() const; // of that page, line by line

    // In percent of the real size. The place in sight stays.
    void setZoom(int percent);
    int zoomToWidth() const;
    int zoomToPage() const;
    static constexpr int leastZoom = 10;
    static constexpr int mostZoom = 400;

    // Marks a text wherever it stands, and one of its places in particular.
    void setSearched(const QString &text);
    void goToHit(const Printing::Hit &hit);
    // Where a search for it begins: at the place gone to last, otherwise at the current page.
    Printing::Hit searchedFrom() const;

Q_SIGNALS:
    void pageShown(int page);
    void zoomWanted(int percent); // by wheel or key

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int pageCount() const { return m_run ? m_run->pageCount() : 0; }
    double scale() const; // pixels for a unit of the page
    QSize pageSize() const; // in pixels
    int pageTop(int index) const; // within all pages
    int pageAt(int y) const;
    QRect pageRect(int index) const; // in the viewport
    const Printing::Page &page(int index) const;
    void paintHits(QPainter &painter, int index) const;
    void stayOn(int page);
    void updateBars();

    const Printing::ReportRun *m_run = nullptr;
    mutable QCache<int, Printing::Page> m_near;
    int m_zoom = 100;
    int m_goneTo = 1; // which need not be in the middle, where several pages are in sight
    int m_goneToAt = 0; // where the scroll bar stood then
    QString m_searched;
    Printing::Hit m_hit; // that is gone to
};

} // namespace Tallymere
