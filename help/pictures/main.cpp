// Takes the pictures of the manual, and a larger one of several windows:
// tallymere-pictures DATABASE-FOLDER PICTURE-FOLDER DESKTOP-PICTURE
// Opens the product's screens over a sample kitchen and saves what they show. Needs no display; scripts/pictures calls it.

#include "base/settingsstore.h"
#include "controls/screens/recordlistscreen.h"
#include "controls/windows/messageboxes.h"
#include "controls/windows/screenmetrics.h"
#include "frame/frmtallymeresystem.h"
#include "frame/screenregistry.h"
#include "help/pictures/stage.h"

#include <cstdio>
#include <cstdlib>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Photographer
{
public:
    Photographer(TFormTallymereSystem &system, const QString &folder)
        : m_system(system)
        , m_folder(folder)
    {
    }

    void take(QWidget &window, const QString &name, int height = 0)
    {
        if (height > 0)
            window.resize(window.width(), height);
        settle();
        if (!framed(window).save(m_folder.filePath(name + ".png"_L1), nullptr, smallest))
            std::fprintf(stderr, "%s was not saved\n", qPrintable(name));
    }

    QWidget &open(const QString &action, const QString &screen)
    {
        m_system.findChild<QAction *>(action)->trigger();
        settle();
        return *findScreen(screen);
    }
    QWidget &openFirstRecord(const QString &action, const QString &list)
    {
        static_cast<RecordListScreen &>(open(action, list)).btnEditClick();
        settle();
        return *static_cast<QWidget *>(m_system.children().constLast());
    }
    void takeDialog(const QString &action, const QString &name)
    {
        QTimer::singleShot(0, [this, name] {
            QWidget *dialog = QApplication::activeModalWidget();
            take(*dialog, name);
            dialog->close();
        });
        m_system.findChild<QAction *>(action)->trigger();
    }

private:
    static constexpr int smallest = 0; // the file, not the quality

    TFormTallymereSystem &m_system;
    QDir m_folder;
};

// Counts some items of a location whose documents are all posted.
void count(QWidget &screen)
{
    auto *location = screen.findChild<QComboBox *>(u"RzComboBoxLocation"_s);
    location->setCurrentIndex(location->findText(u"Packaging Store"_s, Qt::MatchStartsWith));
    Q_EMIT location->activated(location->currentIndex());
    screen.activateWindow();
    screen.findChild<QWidget *>(u"wwIncrementalSearch1"_s)->setFocus();
    settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    for (const char *counted : {"2.5", "2", "1", "2.5"}) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(counted));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
}

// What somebody who receives goods has in front of him: the main window, the list and a receipt.
bool takeDesktop(Photographer &camera, TFormTallymereSystem &system, const QString &file)
{
    constexpr QSize desktop(1280, 890);
    QImage image(desktop, QImage::Format_RGB32);
    image.fill(QColor(0x50, 0x5c, 0x6a));
    QPainter painter(&image);
    const auto put = [&](QWidget &window, QPoint place, QSize size) {
        const QSize before = window.size();
        window.resize(size);
        settle();
        painter.drawImage(place, framed(window));
        window.resize(before);
    };
    put(system, {20, 20}, system.size());
    put(camera.open(u"ActionReceiveInventory"_s, u"frmInvReceipts"_s), {440, 40}, {810, 330});
    QWidget &receipt = camera.openFirstRecord(u"ActionReceiveInventory"_s, u"frmInvReceipts"_s);
    put(receipt, {300, 400}, {860, 450});
    receipt.close();
    settle();
    return image.save(file, nullptr, 0); // the smallest file; nothing is lost
}

void takeAll(TFormTallymereSystem &system, const QString &folder, const QString &desktopPicture)
{
    constexpr int documentHeight = 330;
    Photographer camera(system, folder);
    if (!takeDesktop(camera, system, desktopPicture))
        std::fprintf(stderr, "%s was not saved\n", qPrintable(desktopPicture));
    camera.take(system, u"mainwindow"_s);
    camera.take(camera.open(u"ActionReceiveInventory"_s, u"frmInvReceipts"_s), u"receipts"_s);
    camera.take(camera.openFirstRecord(u"ActionReceiveInventory"_s, u"frmInvReceipts"_s), u"receipt"_s,
                documentHeight);
    camera.take(camera.openFirstRecord(u"ActionEditUsage"_s, u"frmUsages"_s), u"usage"_s, documentHeight);
    camera.take(camera.openFirstRecord(u"ActionEnterAdjustments"_s, u"frmInvAdjustments"_s), u"adjustment"_s,
                documentHeight);
    camera.takeDialog(u"ActionPostUsage"_s, u"posting"_s);
    QWidget &counting = camera.open(u"ActionEditInventory"_s, u"FormEnterInventory"_s);
    count(counting);
    camera.take(counting, u"count"_s, 420);
    camera.take(camera.open(u"ActionViewTotals"_s, u"frmInvTotals"_s), u"totals"_s);
    camera.take(camera.open(u"ActionViewHistory"_s, u"frmInvHistory"_s), u"history"_s);
    camera.take(camera.open(u"ActionPrintReports"_s, u"frmInvReports"_s), u"reports"_s);
    camera.take(camera.openFirstRecord(u"ActionEditItems"_s, u"frmItemsInv"_s), u"item"_s);
    camera.take(camera.openFirstRecord(u"ActionEditVendors"_s, u"frmVendors"_s), u"vendor"_s);
    camera.take(camera.open(u"ActionEditOrganizationSetup"_s, u"frmCompany"_s), u"organization"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: tallymere-pictures DATABASE-FOLDER PICTURE-FOLDER DESKTOP-PICTURE\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    const QString desktopPicture = QString::fromLocal8Bit(argv[3]);
    MemorySettings settings;
    settings.setRegString(Settings::Mode, Engine::SessionType::Local);
    settings.setRegString(Settings::Alias, QString::fromLocal8Bit(argv[1]));
    MessageBoxes prompts;
    const ScreenRegistry screens = productScreens();
    Host host;
    TFormTallymereSystem system({settings, prompts, screens});
    system.init(&host);
    QTimer::singleShot(0, [&] {
        settle();
        takeAll(system, folder, desktopPicture);
        std::fflush(stdout);
        std::_Exit(0); // what is open has nothing to save
    });
    system.formTallymereSystemShowModal();
    return 1; // it did not open
}
