#pragma once

#include "care/booksite.h"
#include "controls/windows/guard.h"

#include <memory>
#include <QDialog>

namespace Ui {
class TfrmCopyBooks;
}

namespace Tallymere {

// "Copy Books": the books of a folder onto a server or back, or into another folder. It needs no books that are open.
class TfrmCopyBooks final : public QDialog
{
    Q_OBJECT

public:
    TfrmCopyBooks(const SettingsStore &settings, Prompts &prompts, QString user, BookAddress from, QWidget *parent);
    ~TfrmCopyBooks() override;

    const Guard &guard() const { return m_guard; }
    // Where the copy is, once it is there, and how that is reached.
    const BookAddress &copied() const { return m_copied; }
    QString link() const;

private:
    void showTarget();
    void chooseFolder();
    void btnCopyClick();
    BookAddress target() const;

    const std::unique_ptr<::Ui::TfrmCopyBooks> m_ui;
    const SettingsStore &m_settings;
    const QString m_user;
    const BookAddress m_from;
    BookAddress m_copied;
    Guard m_guard;
};

} // namespace Tallymere
