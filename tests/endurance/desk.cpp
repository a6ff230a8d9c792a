#include "tests/endurance/desk.h"

#include "care/screens/backupscreen.h"
#include "care/screens/checkbooks.h"
#include "care/screens/restorescreen.h"
#include "controls/windows/filechoice.h"
#include "frame/commandrunner.h"
#include "frame/screenregistry.h"
#include "frame/synchronization.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentpostscreen.h"
#include "transactions/screens/enterinventory.h"
#include "transactions/screens/invreceipt.h"

#include <QAbstractItemView>
#include <QDir>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {
void enter(const QByteArray &keys) { type(keys.constData()); }
} // namespace

Desk::Desk(const DataModuleOptions &options)
    : data(settings, prompts, options)
{
    m_context.settings = &settings;
    m_context.chooseFileToSave = [this](QWidget *, const FileChoice &choice) {
        return folder + u'/' + choice.name;
    };
}

Desk::~Desk() { ScreenTest::settle(); }

void Desk::require(bool isSo)
{
    if (!isSo)
        throw Refusal(1, prompts.told());
}

void Desk::enterReceipt(const QByteArray &vendor, const QByteArray &quantity, const QByteArray &order)
{
    const QPointer<TfrmInvReceipt> screen(new TfrmInvReceipt(m_context, &m_mainWindow));
    const auto close = qScopeGuard([&] {
        prompts.answer = Answer::No; // nothing is kept
        if (screen)
            screen->close();
        ScreenTest::settle();
        delete screen;
    });
    prompts.take();
    screen->newRecord();
    showActive(*screen);
    const auto offers = prompts.take().size();
    offered += static_cast<int>(offers);
    if (prompts.answer != Answer::Yes || offers == 0)
        enter(vendor + "<Return>o<PgDown>" + quantity
              + "<Return>A1<Return><Return>3<Return>1<Return>B2<Return><Return>1.25");
    if (!order.isEmpty())
        typeOver(*screen, "editPurchaseOrderNo", order.constData());
    require(prompts.said.isEmpty()); // or some of it has gone elsewhere
    do {
        prompts.take();
        QTest::keyClick(screen, Qt::Key_O, Qt::AltModifier);
        require(comesTrue([&] { return !screen || !prompts.said.isEmpty(); }));
    } while (screen && has(prompts.last(), u"server"_s));
    require(!screen);
}

void Desk::post(const DocumentKind &kind)
{
    DocumentPostScreen dialog(m_context, kind, &m_mainWindow);
    showActive(dialog);
    press(Qt::Key_Return);
    require(dialog.result() == QDialog::Accepted);
}

void Desk::count(const QByteArray &keys)
{
    const QPointer<TFormEnterInventory> screen(new TFormEnterInventory(m_context, &m_mainWindow));
    const auto close = qScopeGuard([&] { delete screen; });
    showActive(*screen);
    auto &locations = *child<QComboBox>(*screen, "RzComboBoxLocation");
    locations.setFocus();
    type("o");
    QTest::keyClick(locations.view(), Qt::Key_Return);
    for (const QByteArray &item : keys.split(' ')) {
        press(Qt::Key_F, Qt::ControlModifier);
        enter(item);
    }
    prompts.answer = Answer::Yes; // to "Proceed?"
    prompts.take();
    click(*screen, "BitBtnOK");
    require(prompts.said.size() == 1 && has(child<QLabel>(*screen, "lblStatus")->text(), u"has been written"_s));
}

void Desk::checkAndRepair()
{
    const QPointer<TfrmCheckBooks> screen(new TfrmCheckBooks(m_context, &m_mainWindow));
    const auto close = qScopeGuard([&] { delete screen; });
    QSignalSpy checked(screen, &TfrmCheckBooks::checked);
    screen->show();
    require(comesTrue([&] { return checked.size() == 1; }));
    prompts.take();
    click(*screen, "btnRepair");
    require(has(prompts.last(), u"mended"_s));
}

void Desk::synchronize()
{
    const ScreenRegistry noLists;
    const CommandRunner screens(noLists, &m_mainWindow);
    QProgressBar bar;
    for (const auto work : {synchronizeLocations, synchronizeItems}) {
        work({m_context, screens, bar});
        require(has(prompts.last(), u"completed"_s));
    }
}

void Desk::backUpAndRestore()
{
    TfrmBackUp backup(m_context, &m_mainWindow);
    showActive(backup);
    click(backup, "btnBackUp");
    require(has(prompts.last(), u"has been verified"_s));
    backup.close();
    const QString restored = folder + u"/restored"_s;
    QDir(restored).removeRecursively();
    QDir().mkpath(restored);
    TfrmRestore restore(prompts, u"anna"_s, &m_mainWindow);
    showActive(restore);
    child<QLineEdit>(restore, "editFile")
        ->setText(QDir(folder).entryInfoList({u"backup*"_s}).constLast().filePath());
    child<QLineEdit>(restore, "editFolder")->setText(restored);
    click(restore, "btnRestore");
    require(has(prompts.last(), u"has been restored"_s));
}
