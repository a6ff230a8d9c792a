#include "reports/screens/preview.h"

#include "base/plural.h"
#include "base/savedfile.h"
#include "controls/windows/originlabel.h"
#include "controls/windows/progressbox.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "data/datamodule.h"
#include "engine/values/userlocale.h"
#include "printing/printout.h"
#include "printing/reportcsv.h"
#include "printing/reportoutput.h"
#include "reports/screens/reportfiles.h"
#include "ui_preview.h"

#include <algorithm>
#include <array>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QScopeGuard>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int sliceOfWork = 20; // ms, less than anybody would notice as a delay of a key

bool isModifier(int key)
{
    constexpr std::array modifiers{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta};
    return std::ranges::find(modifiers, key) != modifiers.end();
}

} // namespace

TfrmPreview::TfrmPreview(ScreenContext &context, std::unique_ptr<Printing::ReportRun> run, QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_context(context)
    , m_guard(context.prompts, {}, this)
    , m_ui(std::make_unique<Ui::TfrmPreview>())
    , m_run(std::move(run))
    , m_found(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    scaleForm(this);
    m_found->setObjectName(u"lblFound"_s);
    m_ui->statusBar->addWidget(m_found, 1);
    tellOrigin(*m_ui->statusBar, m_run->origin());
    m_ui->btnSave->setVisible(bool(context.chooseFileToSave));
    m_ui->QRPreview1->setRun(m_run.get());
    connectControls();
    resize(scaled(this, 900), scaled(this, 700));
    fitCommands();
    fitToScreen(this);
}

TfrmPreview::~TfrmPreview() = default;

// In two rows where one would be wider than the screen.
void TfrmPreview::fitCommands()
{
    const int spare = scaled(this, 100); // for numbers of many pages
    if (minimumSizeHint().width() + spare <= screen()->availableSize().width())
        return;
    m_ui->layoutPages->addStretch();
    m_ui->layoutTop->setDirection(QBoxLayout::TopToBottom);
}

void TfrmPreview::offerCsv(std::function<Printing::Report(Progress &)> makeReport)
{
    m_makeReport = std::move(makeReport);
    m_saveCsv->setVisible(bool(m_makeReport));
    m_saveXlsx->setVisible(bool(m_makeReport));
}

void TfrmPreview::connectControls()
{
    connectGuarded(m_ui->btnFirst, &QToolButton::clicked, this, &TfrmPreview::btnFirstClick);
    connectGuarded(m_ui->btnPrev, &QToolButton::clicked, this, &TfrmPreview::btnPrevClick);
    connectGuarded(m_ui->btnNext, &QToolButton::clicked, this, &TfrmPreview::btnNextClick);
    connectGuarded(m_ui->btnLast, &QToolButton::clicked, this, &TfrmPreview::btnLastClick);
    connectGuarded(m_ui->btnPrint, &QPushButton::clicked, this, &TfrmPreview::btnPrintClick);
    auto *saving = new QMenu(m_ui->btnSave);
    m_ui->btnSave->setMenu(saving);
    m_savePdf = saving->addAction(tr("&PDF..."));
    m_saveCsv = saving->addAction(tr("&CSV..."));
    m_saveCsv->setVisible(false);
    m_saveXlsx = saving->addAction(tr("&XLSX..."));
    m_saveXlsx->setVisible(false);
    connectGuarded(m_savePdf, &QAction::triggered, this, &TfrmPreview::savePdf);
    connectGuarded(m_saveCsv, &QAction::triggered, this, &TfrmPreview::saveCsv);
    connectGuarded(m_saveXlsx, &QAction::triggered, this, &TfrmPreview::saveXlsx);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QWidget::close);

    connect(m_ui->SpinEdit1, &QSpinBox::valueChanged, m_ui->QRPreview1, &PageView::setZoom);
    connect(m_ui->QRPreview1, &PageView::zoomWanted, m_ui->SpinEdit1, &QSpinBox::setValue);
    connect(m_ui->btnFitWidth, &QPushButton::clicked, this, [this] { setZoom(m_ui->QRPreview1->zoomToWidth()); });
    connect(m_ui->btnWholePage, &QPushButton::clicked, this, [this] {
        setZoom(m_ui->QRPreview1->zoomToPage());
        m_ui->QRPreview1->goToPage(m_ui->QRPreview1->currentPage());
    });
    connect(m_ui->QRPreview1, &PageView::pageShown, this, &TfrmPreview::showPageNumber);

    connect(m_ui->editFind, &QLineEdit::textChanged, this, [this](const QString &text) {
        endSearch({});
        m_ui->QRPreview1->setSearched(text);
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_ui->editFind->setFocus(Qt::ShortcutFocusReason);
        m_ui->editFind->selectAll();
    });
    m_ui->btnFindNext->setShortcut(Qt::Key_F3);
    m_ui->btnFindPrior->setShortcut(Qt::SHIFT | Qt::Key_F3);
    // A shortcut of the button itself would take the place of its underlined letter.
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_ui->btnPrint, &QPushButton::click);
    connectGuarded(m_ui->btnFindNext, &QToolButton::clicked, this, [](TfrmPreview *self) { self->find(true); });
    connectGuarded(m_ui->btnFindPrior, &QToolButton::clicked, this, [](TfrmPreview *self) { self->find(false); });

    m_making.setInterval(0);
    connect(&m_making, &QTimer::timeout, this, [this] { m_guard.run([this] { makePages(); }); });
    m_searching.setInterval(0);
    connect(&m_searching, &QTimer::timeout, this, [this] { m_guard.run([this] { goOnSearching(); }); });
}

// --- making pages -------------------------------------------------------------------------------------------------

void TfrmPreview::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous() || m_run->hasEnded() || m_making.isActive())
        return;
    setWindowState(windowState() | Qt::WindowMaximized);
    m_ui->QRPreview1->setFocus();
    m_making.start();
}

void TfrmPreview::makePages()
{
    const auto show = qScopeGuard([this] {
        if (m_run->hasEnded())
            m_making.stop();
        m_ui->QRPreview1->pagesAdded();
        if (m_toLast)
            m_ui->QRPreview1->goToPage(m_run->pageCount());
        showPageNumber();
        if (m_search && !m_searching.isActive()) // beginning anew, it would never have its turn
            m_searching.start();
    });
    m_run->makePages(QDeadlineTimer(sliceOfWork));
}

void TfrmPreview::showPageNumber()
{
    const int count = std::max(1, m_run->pageCount());
    const int page = m_ui->QRPreview1->currentPage();
    const bool complete = m_run->isComplete();
    const QString text = complete ? tr("Page %1 of %2")
        : m_run->hasEnded()       ? tr("Page %1 of %2, incomplete") // its reading has failed
                                  : tr("Page %1 of %2...");
    m_ui->panelPageNumber->setText(text.arg(page).arg(count));
    m_ui->btnFirst->setEnabled(page > 1);
    m_ui->btnPrev->setEnabled(page > 1);
    m_ui->btnNext->setEnabled(page < count);
    m_ui->btnLast->setEnabled(page < count || !m_run->hasEnded());
    m_ui->btnPrint->setEnabled(complete);
    m_savePdf->setEnabled(complete);
}

// --- looking around -----------------------------------------------------------------------------------------------

void TfrmPreview::goToPage(int page)
{
    m_toLast = false;
    stopSearch();
    m_ui->QRPreview1->goToPage(page);
    showPageNumber();
}

void TfrmPreview::btnFirstClick() { goToPage(1); }

void TfrmPreview::btnPrevClick()
{
    if (const int page = m_ui->QRPreview1->currentPage(); page > 1)
        goToPage(page - 1);
}

void TfrmPreview::btnNextClick()
{
    if (const int page = m_ui->QRPreview1->currentPage(); page < m_run->pageCount())
        goToPage(page + 1);
}

void TfrmPreview::btnLastClick()
{
    goToPage(m_run->pageCount());
    m_toLast = !m_run->hasEnded();
}

void TfrmPreview::setZoom(int percent) { m_ui->SpinEdit1->setValue(percent); }

// --- searching ----------------------------------------------------------------------------------------------------

void TfrmPreview::find(bool forward)
{
    if (m_search && m_search->isForward() == forward)
        return; // as it does already
    m_toLast = false;
    endSearch({});
    statusBar()->clearMessage(); // it would hide how far the search is
    const QString text = m_ui->editFind->text();
    if (text.isEmpty())
        return;
    m_search.emplace(*m_run, text, forward, m_ui->QRPreview1->searchedFrom());
    qApp->installEventFilter(this);
    goOnSearching();
}

void TfrmPreview::goOnSearching()
{
    using State = Printing::PageSearch::State;
    auto failed = qScopeGuard([this] { endSearch({}); });
    const State state = m_search->search(QDeadlineTimer(sliceOfWork));
    if (state == State::Searching) {
        failed.dismiss();
        m_found->setText(searchedSoFar(tr("Searched %1 of %2 pages")));
        if (m_search->isWaiting())
            m_searching.stop(); // until there are more
        else if (!m_searching.isActive())
            m_searching.start();
        return;
    }
    const Printing::Hit hit = m_search->hit();
    failed.dismiss();
    endSearch(state == State::Found     ? QString()
                  : m_run->isComplete() ? tr("Not found")
                                        : tr("Not found in the pages that could be made"));
    if (state == State::Found)
        m_ui->QRPreview1->goToHit(hit);
    showPageNumber();
}

QString TfrmPreview::searchedSoFar(const QString &text) const
{
    const QLocale locale = Engine::userLocale().locale;
    return text.arg(locale.toString(m_search->pagesSearched()), locale.toString(m_run->pageCount()))
        + (m_run->hasEnded() ? QString() : u"..."_s);
}

void TfrmPreview::endSearch(const QString &outcome)
{
    m_searching.stop();
    m_search.reset();
    qApp->removeEventFilter(this);
    m_found->setText(outcome);
}

void TfrmPreview::stopSearch()
{
    if (m_search)
        endSearch(searchedSoFar(tr("Stopped after %1 of %2 pages")));
}

// While a search goes on: a key stops it, be it for what it does otherwise. Escape does no more than that, and Enter and
// F3 ask for what is being done.
bool TfrmPreview::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!m_search || event->type() != QEvent::KeyPress || !widget || widget->window() != this)
        return QMainWindow::eventFilter(watched, event);
    const auto &pressed = *static_cast<QKeyEvent *>(event);
    const int key = pressed.key();
    if (isModifier(key) || (m_ui->editFind->hasFocus() && isEnter(pressed)))
        return QMainWindow::eventFilter(watched, event);
    stopSearch();
    return key == Qt::Key_Escape || QMainWindow::eventFilter(watched, event);
}

// --- keys ---------------------------------------------------------------------------------------------------------

void TfrmPreview::keyPressEvent(QKeyEvent *event)
{
    const bool searching = m_ui->editFind->hasFocus();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (searching)
            m_guard.run([&] { find(!event->modifiers().testFlag(Qt::ShiftModifier)); });
        else if (auto *button = qobject_cast<QAbstractButton *>(focusWidget()))
            button->click();
        return;
    case Qt::Key_Escape:
        if (!searching) {
            close();
            return;
        }
        m_ui->editFind->clear();
        m_ui->QRPreview1->setFocus();
        return;
    default:
        QMainWindow::keyPressEvent(event);
    }
}

// --- giving it away -----------------------------------------------------------------------------------------------

QString TfrmPreview::pagesText(int count) const { return plural(count, tr("%n page"), tr("%n pages")); }

void TfrmPreview::say(const QString &text) { m_ui->statusBar->showMessage(text); }

void TfrmPreview::btnPrintClick()
{
    stopSearch();
    statusBar()->clearMessage(); // of the last time
    QPrinter printer(QPrinter::HighResolution);
    Printing::preparePrinter(*m_run, printer);
    proposeFile(printer);
    for (;;) {
        QPrintDialog dialog(&printer, this);
        dialog.setMinMax(1, m_run->pageCount());
        dialog.setFromTo(1, m_run->pageCount());
        dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange
                          | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
        if (dialog.exec() != QDialog::Accepted)
            return;
        try {
            return print(printer);
        } catch (const SaveError &error) { // asked again, with the name that was typed
            m_context.prompts.error(error.message());
        }
    }
}

// For the choice to print to a file, which is not made yet.
void TfrmPreview::proposeFile(QPrinter &printer) const
{
    const QString folder = lastFolder(m_context);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        printer.setOutputFileName(folder + u'/' + pdfFile(m_run->title()).name);
    printer.setOutputFormat(QPrinter::NativeFormat);
}

void TfrmPreview::print(QPrinter &printer)
{
    const bool toFile = Printing::printsToFile(printer);
    const QString file = QDir::toNativeSeparators(printer.outputFileName());
    ProgressBox progress(this,
                         toFile ? tr("Saving %1").arg(file) : tr("Printing on %1").arg(printer.printerName()));
    const QString pages = pagesText(Printing::printReport(*m_run, printer, progress));
    if (toFile)
        rememberFolder(m_context, file);
    say(toFile ? tr("%1 saved as %2").arg(pages, file)
               : tr("%1 sent to the printer %2").arg(pages, printer.printerName()));
    Q_EMIT given();
}

void TfrmPreview::save(const QString &what, const FileChoice &choice,
                       const std::function<void(const QString &file, Progress &progress)> &write)
{
    stopSearch();
    statusBar()->clearMessage(); // of the last time
    const QString saved = saveReportFile(m_context, this, choice, write);
    if (saved.isEmpty())
        return;
    say(tr("%1 saved as %2").arg(what, saved));
    Q_EMIT given();
}

void TfrmPreview::savePdf()
{
    save(pagesText(m_run->pageCount()), pdfFile(m_run->title()), [&](const QString &file, Progress &progress) {
        Printing::savePdf(*m_run, file, Printing::allPages(*m_run), progress);
    });
}

void TfrmPreview::saveCsv()
{
    // Its rows are read anew, however many pages have been made.
    save(m_run->title(), csvFile(m_run->title()), [&](const QString &file, Progress &progress) {
        const Printing::Report report = m_makeReport(progress);
        Printing::saveReportCsv(report.layout, *report.rows, file, progress,
                                m_run->isComplete() ? m_run->lineCount() : 0, csvTexts(m_context.settings));
    });
}

void TfrmPreview::saveXlsx()
{
    save(m_run->title(), xlsxFile(m_run->title()), [&](const QString &file, Progress &progress) {
        const Printing::Report report = m_makeReport(progress);
        Printing::saveReportXlsx(report.layout, *report.rows, file, progress,
                                 m_run->isComplete() ? m_run->lineCount() : 0);
    });
}

} // namespace Tallymere
