#include "frame/helpwindow.h"

#include "base/plural.h"
#include "controls/windows/screenmetrics.h"
#include "frame/helpbrowser.h"
#include "ui_helpwindow.h"

#include <QApplication>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QKeyEvent>
#include <QShortcut>
#include <QTabBar>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int pageRole = Qt::UserRole;
} // namespace

HelpWindow::HelpWindow(std::unique_ptr<ManualCollection> manual, SettingsStore &settings, QWidget &owner)
    : QWidget(&owner, Qt::Window)
    , m_manual(std::move(manual))
    , m_ui(std::make_unique<Ui::HelpWindow>())
    , m_owner(owner)
    , m_index(m_manual->engine().indexWidget())
    , m_search(m_manual->engine().searchEngine())
    , m_memory(*this, &settings)
{
    m_ui->setupUi(this);
    m_ui->browser->setEngine(&m_manual->engine());
    buildContents();
    buildIndex();
    buildSearch();

    HelpBrowser *browser = m_ui->browser;
    connect(m_ui->btnBack, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(m_ui->btnForward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(m_ui->btnFirst, &QPushButton::clicked, this, [this] { showPage(m_manual->firstPage()); });
    connect(m_ui->btnClose, &QPushButton::clicked, this, &HelpWindow::leave);
    // The browser knows these keys only while it has the focus.
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, browser, &QTextBrowser::backward);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, browser, &QTextBrowser::forward);
    connect(browser, &QTextBrowser::backwardAvailable, m_ui->btnBack, &QWidget::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, m_ui->btnForward, &QWidget::setEnabled);
    connect(m_ui->tabs, &QTabWidget::currentChanged, this, [this] {
        if (!m_ui->tabs->tabBar()->hasFocus()) // who goes along the tabs with the arrow keys stays on them
            focusTab();
    });
    m_ui->btnBack->setEnabled(false);
    m_ui->btnForward->setEnabled(false);

    resize(scaled(this, width()), scaled(this, height()));
    const int contents = scaled(this, 285);
    m_ui->splitter->setSizes({contents, width() - contents});
    m_ui->splitter->setStretchFactor(1, 1);
    qApp->installEventFilter(this);
}

HelpWindow::~HelpWindow()
{
    // The pages and lists read from the collection, which goes before the base class would take them.
    delete m_ui->splitter;
}

// To the list or the field that the current tab is for; what is typed there replaces what was.
void HelpWindow::focusTab()
{
    QWidget *tab = m_ui->tabs->currentWidget();
    if (tab == m_ui->pageContents) {
        m_manual->engine().contentWidget()->setFocus();
        return;
    }
    QLineEdit *words = tab == m_ui->pageIndex ? m_ui->editIndex : m_ui->editSearch;
    words->setFocus();
    words->selectAll();
}

void HelpWindow::buildContents()
{
    QHelpContentWidget *contents = m_manual->engine().contentWidget();
    contents->setObjectName(u"contents"_s);
    contents->setAccessibleName(tr("Contents"));
    m_ui->layoutContents->addWidget(contents);
    const auto choosePage = [contents](const QUrl &page) {
        const QModelIndex entry = contents->indexOf(page);
        if (entry.isValid())
            contents->setCurrentIndex(entry);
    };
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::showPage);
    connect(contents, &QAbstractItemView::clicked, contents, &QAbstractItemView::activated);
    connect(m_manual->engine().contentModel(), &QHelpContentModel::contentsCreated, contents,
            [this, contents, choosePage] {
                contents->expandAll();
                choosePage(m_ui->browser->source());
            });
    connect(m_ui->browser, &QTextBrowser::sourceChanged, contents, choosePage);
}

void HelpWindow::buildIndex()
{
    m_index->setObjectName(u"index"_s);
    m_index->setAccessibleName(tr("Index"));
    m_ui->layoutIndex->addWidget(m_index);
    connect(m_ui->editIndex, &QLineEdit::textChanged, m_index,
            [this](const QString &text) { m_index->filterIndices(text); });
    connect(m_ui->editIndex, &QLineEdit::returnPressed, m_index, &QHelpIndexWidget::activateCurrentItem);
    connect(m_index, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink &link) { showPage(link.url); });
    connect(m_index, &QAbstractItemView::clicked, m_index, &QHelpIndexWidget::activateCurrentItem);
}

void HelpWindow::buildSearch()
{
    connect(m_ui->editSearch, &QLineEdit::returnPressed, this, &HelpWindow::search);
    connect(m_ui->listFound, &QListWidget::itemActivated, this, &HelpWindow::openFound);
    connect(m_ui->listFound, &QListWidget::itemClicked, this, &HelpWindow::openFound);
    connect(m_search, &QHelpSearchEngine::searchingFinished, this, &HelpWindow::showFound);
    connect(m_search, &QHelpSearchEngine::indexingStarted, this, [this] { m_indexed = false; });
    connect(m_search, &QHelpSearchEngine::indexingFinished, this, [this] {
        m_indexed = true;
        if (m_searched)
            search(); // again, what was found before may have been half read
    });
    m_search->reindexDocumentation();
}

// --- pages ------------------------------------------------------------------------------------------------------

void HelpWindow::showPage(const QUrl &page)
{
    if (!page.isEmpty())
        m_ui->browser->setSource(page);
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog && dialog != &m_owner)
        winId(); // makes it, so that it can be told before it is shown what it stands over; else that would block it
    standOver(dialog);
    bringToFront(*this);
    m_ui->browser->setFocus();
}

void HelpWindow::showContents()
{
    showPage(m_ui->browser->source().isEmpty() ? m_manual->firstPage() : QUrl());
    m_ui->tabs->setCurrentWidget(m_ui->pageContents);
    focusTab();
}

void HelpWindow::search()
{
    const QString words = m_ui->editSearch->text().simplified();
    if (words.isEmpty())
        return;
    m_searched = true;
    if (m_indexed)
        m_search->search(words);
}

void HelpWindow::showFound()
{
    QListWidget *list = m_ui->listFound;
    list->clear();
    const QList<QHelpSearchResult> found = m_search->searchResults(0, m_search->searchResultCount());
    for (const QHelpSearchResult &result : found) {
        auto *item = new QListWidgetItem(result.title(), list);
        item->setData(pageRole, result.url());
    }
    m_ui->lblFound->setText(found.isEmpty() ? tr("No page has these words. Try fewer, or another form of a word.")
                                            : plural(found.size(), tr("%n page"), tr("%n pages")));
    if (!found.isEmpty()) {
        list->setCurrentRow(0);
        list->setFocus();
        openFound(list->currentItem());
    }
}

void HelpWindow::openFound(const QListWidgetItem *item)
{
    m_ui->browser->setSource(item->data(pageRole).toUrl());
    m_ui->browser->markWords(m_ui->editSearch->text());
}

// --- the window among others ------------------------------------------------------------------------------------

// A modal window leaves only those alone that stand over it.
void HelpWindow::standOver(QWidget *window)
{
    QWidget &under = window && window != this ? *window : m_owner;
    if (QWindow *handle = windowHandle(); handle && under.windowHandle())
        handle->setTransientParent(under.windowHandle());
}

bool HelpWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(
            this, [this] { standOver(QApplication::activeModalWidget()); }, Qt::QueuedConnection);
    return QWidget::event(event);
}

// When what it stands over is closed, it goes back to the one behind.
bool HelpWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && watched->isWidgetType() && windowHandle()
        && static_cast<QWidget *>(watched)->windowHandle() == windowHandle()->transientParent()
        && watched != &m_owner)
        QMetaObject::invokeMethod(
            this, [this] { standOver(QApplication::activeModalWidget()); }, Qt::QueuedConnection);
    return false;
}

// A dialog that has been opened since may block it, and Qt does not close what is blocked.
void HelpWindow::leave()
{
    if (!close())
        hide();
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        leave();
    } else if (event->matches(QKeySequence::Find)) {
        m_ui->tabs->setCurrentWidget(m_ui->pageSearch);
        focusTab();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void HelpWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous() || std::exchange(m_shown, true))
        return;
    fitToScreen(this);
    m_memory.restore();
}

} // namespace Tallymere
