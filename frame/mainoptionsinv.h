#pragma once

#include "base/prompts.h"
#include "base/settings.h"
#include "care/booksite.h"
#include "controls/windows/guard.h"

#include <functional>
#include <memory>
#include <QDialog>

namespace Tallymere {

namespace Ui {
class TFormRegistryEditor;
}

class SettingsStore;

// Edits where the database is and how it is reached. Nothing is checked when it is saved: the settings say what a
// later start finds or does not find.
class TFormRegistryEditor final : public QDialog
{
    Q_OBJECT

public:
    // Asks for a folder, beginning at the given one; an empty answer means that none was chosen.
    using FolderChooser = std::function<QString(QWidget *parent, const QString &current)>;
    QString user; // who copies books

    TFormRegistryEditor(SettingsStore &settings, Prompts &prompts, QWidget *parent = nullptr,
                        FolderChooser chooser = {});
    ~TFormRegistryEditor() override;

    // Shows what is stored; done each time the screen is shown.
    void formShow();
    void actionModeChange();
    void actionOK(); // saves all settings and closes

    const Guard &guard() const { return m_guard; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void chooseFolder();
    BookAddress shownPlace() const; // throws RuleError where none is
    void btnCopyBooksClick();
    void btnTakeUpClick();
    bool clientServerChosen() const;
    void saveLanguage(const QString &code);
    template <typename T> void save(const DatabaseSetting<T> &setting, const std::type_identity_t<T> &value);

    SettingsStore &m_settings;
    Prompts &m_prompts;
    const Guard m_guard;
    FolderChooser m_chooser;
    std::unique_ptr<Ui::TFormRegistryEditor> m_ui;
};

} // namespace Tallymere
