#include "insight/screens/firststeps.h"

#include "base/settings.h"
#include "controls/screens/listscreen.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/statelabel.h"
#include "controls/windows/windowplaces.h"
#include "data/datamodule.h"
#include "data/lastchoices.h"
#include "master/masterkind.h"
#include "master/masterkinds.h"
#include "ui_firststeps.h"

#include <algorithm>
#include <QEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

enum Column { Words, State, Ways };
constexpr int wordsWidth = 290; // design pixels, so that no step takes more than two lines

LastChoices choicesOf(ScreenContext &context)
{
    return {Settings::firstStepsScreen, context.data, context.settings};
}

} // namespace

TfrmFirstSteps::TfrmFirstSteps(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<::Ui::TfrmFirstSteps>())
    , m_memory(*this, context.settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setModal(false);
    for (const FirstStep &step : firstSteps())
        addStep(step);
    m_ui->chkHide->setChecked(!isWantedAtStart(context));
    connect(m_ui->chkHide, &QCheckBox::clicked, this, &TfrmFirstSteps::keepChoice);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    // With the window, whose size follows; later beside it.
    if (const std::exception_ptr failure =
            Guard::attempt([&] { take(readFirstSteps(context.data.databaseTallymere())); }))
        showUnread(failure);
}

TfrmFirstSteps::~TfrmFirstSteps() = default;

bool TfrmFirstSteps::isWantedAtStart(ScreenContext &context)
{
    return !choicesOf(context).read().value(Settings::HidesFirstSteps);
}

void TfrmFirstSteps::keepChoice()
{
    Choices kept;
    kept.set(Settings::HidesFirstSteps, m_ui->chkHide->isChecked());
    choicesOf(context()).keep(kept);
}

void TfrmFirstSteps::addStep(const FirstStep &step)
{
    const int row = static_cast<int>(m_shown.size()) * 3; // title, purpose, some room
    auto *title = new QLabel(step.title, this);
    title->setFont(headFont(font()));
    Shown shown{.step = &step,
                .detail = new QLabel(step.purpose, this),
                .done = new StateLabel(this, StateLabel::State::Done),
                .open = new StateLabel(this, StateLabel::State::Notice),
                .ways = {},
                .state = {}};
    shown.detail->setObjectName(step.name);
    shown.detail->setAccessibleName(step.title);
    shown.detail->setFont(secondFont(font()));
    shown.detail->setTextFormat(Qt::PlainText);
    shown.detail->setWordWrap(true);
    shown.detail->setMinimumWidth(wordsWidth);
    shown.done->setText(tr("Done"));
    shown.open->setText(tr("Open"));
    auto *ways = new QHBoxLayout;
    ways->setSpacing(scaled(this, Space::cell));
    for (const FirstStepWay &way : step.ways) {
        QPushButton *button = addWay(step, way);
        ways->addWidget(button);
        setTabOrder(m_shown.isEmpty() && shown.ways.isEmpty() ? static_cast<QWidget *>(this)
                        : shown.ways.isEmpty()                ? m_shown.constLast().ways.constLast()
                                                              : shown.ways.constLast(),
                    button);
        shown.ways.append(button);
    }
    m_ui->layoutSteps->addWidget(title, row, Words);
    m_ui->layoutSteps->addWidget(shown.detail, row + 1, Words);
    m_ui->layoutSteps->addWidget(shown.done, row, State, 2, 1, Qt::AlignVCenter);
    m_ui->layoutSteps->addWidget(shown.open, row, State, 2, 1, Qt::AlignVCenter);
    m_ui->layoutSteps->addLayout(ways, row, Ways, 2, 1);
    m_ui->layoutSteps->setRowMinimumHeight(row + 2, scaled(this, Space::cell));
    m_shown.append(shown);
}

QPushButton *TfrmFirstSteps::addWay(const FirstStep &step, const FirstStepWay &way)
{
    auto *button = new QPushButton(way.command, this);
    button->setObjectName(way.name);
    button->setAccessibleName(tr("%1: %2").arg(step.title, way.command));
    button->setAutoDefault(true); // Enter does it
    button->setEnabled(way.screen.isEmpty() ? bool(context().importFile) : context().knows(way.screen));
    connect(button, &QPushButton::clicked, this,
            [this, &step, &way] { guard().runWhenFree([this, &step, &way] { go(step, way); }); });
    return button;
}

void TfrmFirstSteps::showStep()
{
    // Texts of several lines are as high as they are at the width that the others want.
    layout()->activate();
    const int wide = std::max(width(), layout()->totalMinimumSize().width());
    resize(wide, std::max(height(), layout()->totalHeightForWidth(wide)));
    placeByOpener(*this);
    m_memory.restore();
}

bool TfrmFirstSteps::event(QEvent *event)
{
    const bool used = DialogScreen::event(event);
    if (event->type() == QEvent::WindowActivate)
        read();
    return used;
}

// Whoever is done with what was opened from here goes on here.
bool TfrmFirstSteps::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous() && isVisible())
        QMetaObject::invokeMethod(
            this, [this] { activateWindow(); }, Qt::QueuedConnection);
    return DialogScreen::eventFilter(watched, event);
}

// --- the list ---------------------------------------------------------------------------------------------------

void TfrmFirstSteps::read()
{
    const auto look = [this](Engine::Database &database) {
        const QList<FirstStepState> states = readFirstSteps(database);
        return [this, states] { take(states); };
    };
    m_aside.start(context().data.databaseTallymere(), look,
                  [this](const std::exception_ptr &failure) { showUnread(failure); });
}

// What cannot be read is neither done nor open.
void TfrmFirstSteps::showUnread(const std::exception_ptr &failure)
{
    Guard::trace(failure);
    for (const Shown &shown : std::as_const(m_shown)) {
        shown.done->hide();
        shown.open->hide();
    }
    m_ui->lblLeft->setText(tr("This could not be read."));
}

void TfrmFirstSteps::take(const QList<FirstStepState> &states)
{
    for (qsizetype step = 0; step < m_shown.size(); ++step)
        show(m_shown[step], states[step]);
    const int open = openSteps(states);
    const auto steps = static_cast<int>(states.size());
    m_ui->lblLeft->setText(open == 0 ? tr("Everything is done.")
                                     : tr("%1 of %2 done").arg(steps - open).arg(steps));
    if (open == 0 && std::exchange(m_wasOpen, false)) {
        if (context().say)
            context().say(tr("The first steps are done."));
        close();
        return;
    }
    m_wasOpen = open > 0;
}

void TfrmFirstSteps::show(Shown &shown, const FirstStepState &state)
{
    shown.state = state;
    shown.done->setVisible(state.isDone);
    shown.open->setVisible(!state.isDone);
    shown.detail->setText(state.detail.isEmpty() ? shown.step->purpose : state.detail);
    shown.detail->setAccessibleDescription((state.isDone ? shown.done : shown.open)->text());
}

// --- what is done from it ---------------------------------------------------------------------------------------

void TfrmFirstSteps::go(const FirstStep &step, const FirstStepWay &way)
{
    if (!way.importKind.isEmpty())
        return importFile(way.importKind);
    const auto shown =
        std::find_if(m_shown.cbegin(), m_shown.cend(), [&step](const Shown &one) { return one.step == &step; });
    const bool goesOn = &way == &step.ways.constLast() && !shown->state.screen.isEmpty();
    openScreen(goesOn ? shown->state.screen : way.screen);
}

void TfrmFirstSteps::importFile(const QString &kind)
{
    if (context().importFile(kind, {}, this)) {
        const QList<const MasterKind *> &all = MasterKinds::all();
        const auto found =
            std::find_if(all.begin(), all.end(), [&kind](const MasterKind *one) { return one->name == kind; });
        if (found != all.end())
            refreshOpenList((*found)->list.screen);
    }
    activateWindow(); // the dialogs need not have left it so
    read();
}

void TfrmFirstSteps::openScreen(const QString &screen)
{
    if (QWidget *opened = context().openScreen(screen))
        opened->installEventFilter(this);
}

} // namespace Tallymere
