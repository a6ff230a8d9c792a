#pragma once

#include "base/booksplace.h"
#include "controls/windows/guard.h"
#include "engine/store/session.h"

#include <memory>
#include <QDialog>

class QLineEdit;

namespace Ui {
class TfrmRestore;
}

namespace Tallymere {

class SettingsStore;

// "Restore": a backup back into a folder or a server that holds no database. It needs no books that are open, as these may
// be what is gone.
class TfrmRestore final : public QDialog
{
    Q_OBJECT

public:
    // With settings it offers to work with what has been restored from then on, and has them name that.
    TfrmRestore(Prompts &prompts, QString user, QWidget *parent, SettingsStore *settings = nullptr);
    ~TfrmRestore() override;

    const Guard &guard() const { return m_guard; }

private:
    void showTarget();
    void chooseFile();
    void chooseFolder();
    void btnRestoreClick();
    void tellOf(const QString &target, const QStringList &older);
    BooksPlace place() const; // what has been restored into
    QStringList restoreInFolder(const QString &file);
    QStringList restoreOnServer(const QString &file);
    QString required(const QLineEdit &field, QStringView column, const QString &refusal) const;

    const std::unique_ptr<::Ui::TfrmRestore> m_ui;
    const QString m_user;
    SettingsStore *const m_settings;
    Guard m_guard;
};

} // namespace Tallymere
