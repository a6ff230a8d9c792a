#include "insight/screens/monthend.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/settings.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/statelabel.h"
#include "controls/windows/windowplaces.h"
#include "data/datamodule.h"
#include "engine/store/session.h"
#include "reports/reportlist.h"
#include "reports/screens/preview.h"
#include "reports/screens/showreport.h"
#include "ui_monthend.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
enum Column { Title, Figure, State, More };
} // namespace

TfrmMonthEnd::TfrmMonthEnd(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmMonthEnd>())
    , m_last(Settings::monthEndScreen, context.data, context.settings)
    , m_memory(*this, context.settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setModal(false);
    m_ui->lblPeriod->setFont(headFont(m_ui->lblPeriod->font()));
    for (const MonthEndLine &line : monthEndLines())
        addLine(line);
    m_ui->editCountedSince->setToday(context.data.today());
    connect(m_ui->editCountedSince, &DatePicker::dateChanged, this, [this] {
        guard().run([this] {
            keep();
            read();
        });
    });
    connectGuarded(m_ui->btnOpenPeriod, &QPushButton::clicked, this, &TfrmMonthEnd::btnOpenPeriodClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    takePeriod();
    read();
}

TfrmMonthEnd::~TfrmMonthEnd() = default;

void TfrmMonthEnd::addLine(const MonthEndLine &line)
{
    const int row = m_ui->layoutLines->rowCount();
    auto *title = new QLabel(line.title, this);
    Shown shown{.line = line,
                .figure = new QLabel(this),
                .detail = new QLabel(this),
                .done = new StateLabel(this, StateLabel::State::Done),
                .open = new StateLabel(this, StateLabel::State::Notice)};
    shown.figure->setObjectName(line.name);
    shown.figure->setAccessibleName(line.title);
    QFont bold = shown.figure->font();
    bold.setBold(true);
    shown.figure->setFont(bold);
    shown.figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    shown.detail->setFont(secondFont(font()));
    shown.detail->setTextFormat(Qt::PlainText);
    shown.detail->setWordWrap(true);
    shown.done->setText(tr("Done"));
    shown.open->setText(tr("Open"));
    auto *more = new QPushButton(line.command, this);
    more->setObjectName(line.name + u"More"_s);
    more->setAccessibleName(tr("%1: %2").arg(more->text(), line.title));
    more->setAutoDefault(false);
    more->setEnabled(!line.report.isEmpty() || context().knows(line.screen));
    m_ui->layoutLines->addWidget(title, row, Title);
    m_ui->layoutLines->addWidget(shown.figure, row, Figure);
    m_ui->layoutLines->addWidget(shown.done, row, State);
    m_ui->layoutLines->addWidget(shown.open, row, State);
    m_ui->layoutLines->addWidget(more, row, More);
    m_ui->layoutLines->addWidget(shown.detail, row + 1, Title, 1, More);
    setTabOrder(m_shown.isEmpty() ? static_cast<QWidget *>(m_ui->editCountedSince)
                                  : findChild<QPushButton *>(m_shown.constLast().line.name + u"More"_s),
                more);
    const qsizetype place = m_shown.size();
    m_shown.append(shown);
    connect(more, &QPushButton::clicked, this,
            [this, place] { guard().runWhenFree([this, place] { showMore(m_shown[place]); }); });
}

void TfrmMonthEnd::showStep()
{
    placeByOpener(*this);
    m_memory.restore();
}

bool TfrmMonthEnd::event(QEvent *event)
{
    const bool used = DialogScreen::event(event);
    if (event->type() == QEvent::WindowActivate)
        lookAgain();
    return used;
}

// --- the list ---------------------------------------------------------------------------------------------------

// What is kept of another period says nothing about this one.
void TfrmMonthEnd::takePeriod()
{
    Engine::Database &database = context().data.databaseTallymere();
    m_ending = EndingPeriod::readFrom(database, context().data.today());
    const Choices last = m_last.read();
    const bool isKept = last.value(Settings::ClosedPeriod) == shownPeriod(m_ending.period);
    const QDate since = QDate::fromString(last.value(Settings::CountedSince), Qt::ISODate);
    m_valuePrinted = isKept ? QDateTime::fromString(last.value(Settings::ValuePrinted), Qt::ISODate) : QDateTime();
    const QSignalBlocker quiet(m_ui->editCountedSince);
    m_ui->editCountedSince->setDate(
        isKept && since.isValid() ? since : beginOf(database, m_ending.period, context().data.today()));
    m_ui->lblPeriod->setText(m_ending.followsCalendar
                                 ? tr("Period %1, by the calendar").arg(shownPeriod(m_ending.period))
                                 : tr("Period %1").arg(shownPeriod(m_ending.period)));
    m_ui->btnOpenPeriod->setText(tr("Open &Period %1").arg(shownPeriod(m_ending.next())));
    m_ui->btnOpenPeriod->setEnabled(!m_ending.followsCalendar);
}

MonthEndSource TfrmMonthEnd::source() const
{
    TDataModuleTallymere &books = context().data;
    return {.books = {.database = books.databaseTallymere(), .user = books.currentUser()},
            .countedSince = m_ui->editCountedSince->date(),
            .valuePrinted = m_valuePrinted};
}

// Others may have moved the period on.
void TfrmMonthEnd::read()
{
    TDataModuleTallymere &books = context().data;
    const Engine::Answer<EndingPeriod> ending = EndingPeriod::ask(books.databaseTallymere(), books.today());
    const MonthEndSource before = source();
    QList<MonthEndFigure> figures = Engine::answersOf(monthEndLines(), before);
    if (ending().period != m_ending.period) {
        takePeriod();
        const MonthEndSource now = source();
        figures = Engine::answersOf(monthEndLines(), now);
    }
    for (qsizetype line = 0; line < m_shown.size(); ++line)
        show(m_shown[line], figures[line]);
}

// By itself: a box about what cannot be read would bring the window to the front again when it is closed.
void TfrmMonthEnd::lookAgain()
{
    const std::exception_ptr failure = Guard::attempt([this] { read(); });
    if (!failure)
        return;
    Guard::trace(failure);
    for (Shown &shown : m_shown)
        show(shown, {.text = u"-"_s, .isMet = false, .detail = tr("This could not be read.")});
}

void TfrmMonthEnd::show(Shown &shown, const MonthEndFigure &figure)
{
    shown.isMet = figure.isMet;
    shown.figure->setText(figure.text);
    shown.detail->setText(figure.detail);
    shown.detail->setVisible(!figure.detail.isEmpty());
    shown.done->setVisible(figure.isMet);
    shown.open->setVisible(!figure.isMet);
    shown.figure->setAccessibleDescription((figure.isMet ? shown.done : shown.open)->text()
                                           + (figure.detail.isEmpty() ? QString() : u". "_s + figure.detail));
}

void TfrmMonthEnd::keep()
{
    Choices kept;
    kept.set(Settings::ClosedPeriod, shownPeriod(m_ending.period));
    kept.set(Settings::CountedSince, m_ui->editCountedSince->date().toString(Qt::ISODate));
    kept.set(Settings::ValuePrinted, m_valuePrinted.toString(Qt::ISODate));
    m_last.keep(kept);
}

// --- what is done from it ---------------------------------------------------------------------------------------

void TfrmMonthEnd::showMore(const Shown &shown)
{
    if (!shown.line.report.isEmpty())
        return print(shown.line.report);
    QWidget *screen = context().openScreen(shown.line.screen);
    if (auto *list = dynamic_cast<CommandScreen *>(screen); list && !shown.isMet)
        list->showWaiting();
}

void TfrmMonthEnd::print(const QString &report)
{
    TfrmPreview &preview = showReport(context(), ReportList::require(report), {}, parentWidget());
    connect(&preview, &TfrmPreview::given, this, [this, period = m_ending.period] {
        if (period != m_ending.period)
            return; // what was shown was not this one's
        m_valuePrinted = context().data.databaseTallymere().session().now();
        keep();
        guard().run([this] { read(); });
    });
}

void TfrmMonthEnd::btnOpenPeriodClick()
{
    const Period meant = m_ending.period;
    read();
    if (m_ending.period != meant)
        throw RuleError(tr("Somebody has opened period %1 meanwhile.").arg(shownPeriod(m_ending.period)));
    requireNextPeriod(context().data.databaseTallymere(), m_ending.period); // before anything is asked
    const QString next = shownPeriod(m_ending.next());
    QStringList open;
    for (const Shown &shown : std::as_const(m_shown))
        if (!shown.isMet)
            open.append(u"%1: %2"_s.arg(shown.line.title, shown.figure->text()));
    const QString question = tr("Open period %1? New documents take it from now on.").arg(next);
    const bool confirmed = open.isEmpty()
        ? context().prompts.confirm(Question::Confirm, question)
        : context().prompts.confirm(Question::Warning,
                                    tr("Not everything of period %1 is done:\n\n%2\n\n%3")
                                        .arg(shownPeriod(m_ending.period), open.join(u'\n'), question));
    if (!confirmed)
        return;
    openNextPeriod(context().data.databaseTallymere(), m_ending.period, context().data.currentUser());
    context().data.tblCompany().refresh(); // which all screens read the organization from
    read();
    context().prompts.inform(tr("Period %1 is open.").arg(next));
}

} // namespace Tallymere
