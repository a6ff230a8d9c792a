#pragma once

#include "base/booksplace.h"
#include "base/prompts.h"
#include "controls/windows/guard.h"
#include "host/company.h"

#include <memory>
#include <QDialog>

class QLineEdit;

namespace Tallymere {

namespace Ui {
class CompanyBox;
}

// Asks for a company: a new one, whose books it makes, or one whose books are there. Accepted when they are there; where a new
// company is to go in books that are there already, these are offered.
class CompanyBox final : public QDialog
{
    Q_OBJECT

public:
    enum class Purpose { New, Open };

    CompanyBox(Purpose purpose, Prompts &prompts, QString user, QWidget *parent);
    ~CompanyBox() override;

    const BooksPlace &place() const { return m_place; } // once it is accepted
    const Guard &guard() const { return m_guard; }

private:
    void fillFormats();
    void showPlace();
    void showProposal();
    void chooseFolder();
    void btnTryClick();
    void btnOKClick();
    QString required(const QLineEdit &field, QStringView column, const QString &refusal) const;
    BooksPlace enteredPlace() const;
    Company lookAt(const BooksPlace &place);
    void openBooks(const Company &found, const BooksPlace &place);
    void makeNew(const Company &found, const BooksPlace &place);

    const std::unique_ptr<Ui::CompanyBox> m_ui;
    const Purpose m_purpose;
    const QString m_user;
    BooksPlace m_place;
    Guard m_guard;
};

} // namespace Tallymere
