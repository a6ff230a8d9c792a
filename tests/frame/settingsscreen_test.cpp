#include "base/settingsstore.h"
#include "frame/mainoptionsinv.h"
#include "tests/support/spokenprompts.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class SettingsScreenTest : public testing::Test
{
protected:
    void store(const QString &setting, const QString &value) { setRegString(settings, setting, value); }
    QString stored(const QString &setting) const { return settings.read(setting, u"Corvane"_s); }
    template <typename Widget> Widget *child(const QString &name) { return screen.findChild<Widget *>(name); }
    void press(const QString &button) { QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton); }

    MemorySettings settings;
    SpokenPrompts prompts;
    QString chosenFolder;
    QString offeredFolder;
    TFormRegistryEditor screen{settings, prompts, nullptr, [this](QWidget *, const QString &current) {
                                   offeredFolder = current;
                                   return chosenFolder;
                               }};
};

} // namespace

TEST_F(SettingsScreenTest, ShowsAndSavesWhatIsStored)
{
    struct Case
    {
        const char *name;
        QString mode, link;
        bool remote;
        QString pathLabel, shownLink, savedMode;
    };
    const Case cases[] = {
        {"nothing stored", {}, {}, false, u"Data Location:"_s, u"LAN"_s, u"F"_s},
        {"client/server", u"C"_s, u"Internet"_s, true, u"Shared Ini Directory:"_s, u"Internet"_s, u"C"_s},
        {"only the exact letter and word count", u"c"_s, u"internet"_s, false, u"Data Location:"_s, u"LAN"_s,
         u"F"_s},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        store(u"Mode"_s, c.mode);
        store(u"Connection"_s, c.link);
        store(u"Alias"_s, u"/srv/kitchen"_s);
        store(u"Server IP"_s, u"10.0.0.7"_s);
        screen.show();
        EXPECT_EQ(child<QRadioButton>(u"radioClientServer"_s)->isChecked(), c.remote);
        child<QPushButton>(u"BitBtnCancel"_s)->setFocus();
        QTest::keyClick(child<QPushButton>(u"BitBtnCancel"_s), Qt::Key_Tab);
        EXPECT_EQ(screen.focusWidget(),
                  child<QRadioButton>(c.remote ? u"radioClientServer"_s : u"radioFileServer"_s));
        EXPECT_EQ(child<QLabel>(u"LabelDataPath"_s)->text(), c.pathLabel);
        EXPECT_EQ(child<QComboBox>(u"RzComboBoxConnectionType"_s)->currentText(), c.shownLink);
        press(u"BitBtnOK"_s);
        EXPECT_FALSE(screen.isVisible());
        EXPECT_EQ(stored(u"Mode"_s), c.savedMode);
        EXPECT_EQ(stored(u"Connection"_s), c.shownLink);
        EXPECT_EQ(stored(u"Alias"_s), u"/srv/kitchen"_s);
        EXPECT_EQ(stored(u"Server IP"_s), u"10.0.0.7"_s);
    }
}

TEST_F(SettingsScreenTest, NothingIsWrittenBeforeOkAndAFailureIsSaid)
{
    store(u"Mode"_s, u"x"_s);
    store(u"Alias"_s, u"/srv/kitchen"_s);
    screen.show();
    child<QRadioButton>(u"radioClientServer"_s)->click();
    EXPECT_EQ(child<QLabel>(u"LabelDataPath"_s)->text(), u"Shared Ini Directory:"_s);
    press(u"buttonChooseFolder"_s); // and cancelled
    EXPECT_EQ(offeredFolder, u"/srv/kitchen"_s);
    EXPECT_EQ(child<QLineEdit>(u"RzButtonEditDataPath"_s)->text(), u"/srv/kitchen"_s);
    chosenFolder = u"/srv/new"_s;
    press(u"buttonChooseFolder"_s);
    EXPECT_EQ(child<QLineEdit>(u"RzButtonEditDataPath"_s)->text(), u"/srv/new"_s);
    press(u"BitBtnCancel"_s);
    EXPECT_EQ(stored(u"Mode"_s), u"x"_s);
    screen.show(); // shows what is stored again
    EXPECT_TRUE(child<QRadioButton>(u"radioFileServer"_s)->isChecked());
    settings.writable = false;
    press(u"BitBtnOK"_s);
    EXPECT_EQ(prompts.said.value(0), u"error: Error in Opening Corvane Key"_s);
}
