#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "printing/pagesearch.h"

#include <memory>
#include <optional>
#include <QMainWindow>
#include <QTimer>

class QAction;
class QLabel;
class QPrinter;

namespace Ui {
class TfrmPreview;
}

namespace Tallymere {

class PageView;

// The pages of a report as they will be printed. The first is shown as soon as it is made; the others follow while the
// user looks, and a search goes on with them until a key stops it. Not modal; the report is freed with it when it is
// closed.
class TfrmPreview : public QMainWindow
{
    Q_OBJECT

public:
    TfrmPreview(ScreenContext &context, std::unique_ptr<Printing::ReportRun> run, QWidget *parent);
    ~TfrmPreview() override;

    // Lets the report be saved as CSV, from rows that are read anew.
    void offerCsv(std::function<Printing::Report(Progress &)> makeReport);

    const Guard &guard() const { return m_guard; }
    void btnFirstClick();
    void btnPrevClick();
    void btnNextClick();
    void btnLastClick();
    void btnPrintClick();
    void savePdf();
    void saveCsv();
    void saveXlsx();

Q_SIGNALS:
    void given(); // it has been printed or saved

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitCommands();
    void connectControls();
    void makePages();
    void showPageNumber();
    void setZoom(int percent);
    void goToPage(int page);
    void find(bool forward);
    void goOnSearching();
    void endSearch(const QString &outcome);
    void stopSearch();
    QString searchedSoFar(const QString &text) const;
    void proposeFile(QPrinter &printer) const;
    void print(QPrinter &printer);
    // Into a file that the user names; says what has been written then.
    void save(const QString &what, const FileChoice &choice,
              const std::function<void(const QString &file, Progress &progress)> &write);
    QString pagesText(int count) const;
    void say(const QString &text);

    ScreenContext &m_context;
    Guard m_guard;
    std::unique_ptr<Ui::TfrmPreview> m_ui;
    std::unique_ptr<Printing::ReportRun> m_run;
    QLabel *m_found; // what a search has come to
    std::function<Printing::Report(Progress &)> m_makeReport;
    QAction *m_savePdf = nullptr;
    QAction *m_saveCsv = nullptr;
    QAction *m_saveXlsx = nullptr;
    QTimer m_making; // goes on with the pages whenever there is nothing else to do
    bool m_toLast = false; // the last page was asked for before it was made
    std::optional<Printing::PageSearch> m_search; // that is going on
    QTimer m_searching; // goes on with it likewise, while there are pages to look at
};

} // namespace Tallymere
