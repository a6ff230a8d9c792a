#include "base/settingsstore.h"
#include "frame/mainoptionsinv.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct SettingsScreenTest : testing::Test
{
    void store(const QString &setting, const QString &value) { settings.write(setting, u"Corvane"_s, value); }
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
    // What is stored; the link that is shown, and saved, and the mode that is saved.
    const std::tuple<QString, QString, QString, QString> cases[] = {
        {{}, {}, u"LAN"_s, u"F"_s},
        {u"C"_s, u"Internet"_s, u"Internet"_s, u"C"_s},
        {u"c"_s, u"internet"_s, u"LAN"_s, u"F"_s}, // only the exact letter and word count
    };
    for (const auto &[mode, link, shownLink, savedMode] : cases) {
        SCOPED_TRACE(qPrintable(mode));
        store(u"Mode"_s, mode);
        store(u"Connection"_s, link);
        store(u"Alias"_s, u"/srv/kitchen"_s);
        store(u"Server IP"_s, u"10.0.0.7"_s);
        screen.show();
        EXPECT_EQ(child<QRadioButton>(u"radioClientServer"_s)->isChecked(), savedMode == "C"_L1);
        EXPECT_EQ(child<QComboBox>(u"RzComboBoxConnectionType"_s)->currentText(), shownLink);
        press(u"BitBtnOK"_s);
        QStringList saved;
        for (const QString &setting : {u"Mode"_s, u"Connection"_s, u"Alias"_s, u"Server IP"_s})
            saved << stored(setting);
        EXPECT_EQ(saved, (QStringList{savedMode, shownLink, u"/srv/kitchen"_s, u"10.0.0.7"_s}));
    }
    screen.show();
    child<QComboBox>(u"cboLanguage"_s)->setCurrentText(u"Deutsch"_s);
    press(u"BitBtnOK"_s);
    EXPECT_EQ(settings.value(Settings::languageSection, Settings::ChosenLanguage), u"de"_s);
    screen.show();
    EXPECT_EQ(child<QComboBox>(u"cboLanguage"_s)->currentText(), u"Deutsch"_s);
}

TEST_F(SettingsScreenTest, NothingIsWrittenBeforeOkAndAFailureIsSaid)
{
    store(u"Mode"_s, u"x"_s);
    store(u"Alias"_s, u"/srv/kitchen"_s);
    screen.show();
    child<QRadioButton>(u"radioClientServer"_s)->click();
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
