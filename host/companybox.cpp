#include "host/companybox.h"

#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "controls/fields/comboboxname.h"
#include "controls/fields/radiochoice.h"
#include "controls/screens/besidework.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowrules.h"
#include "host/books/newbooks.h"
#include "ui_companybox.h"

#include <algorithm>
#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Tallymere {

CompanyBox::CompanyBox(Purpose purpose, Prompts &prompts, QString user, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::CompanyBox>())
    , m_purpose(purpose)
    , m_user(std::move(user))
    , m_guard(prompts, Guard::editsOf(*this), this)
{
    m_ui->setupUi(this);
    keepComboBoxNames(*this);
    fillFormats();
    const bool isNew = purpose == Purpose::New;
    m_ui->panelCompany->setVisible(isNew);
    setWindowTitle(isNew ? tr("New Company") : tr("Open Company"));
    m_ui->lblWhere->setText(isNew ? tr("Where are its books to be kept?")
                                  : tr("Where are the books of the company?"));
    m_ui->btnOK->setText(isNew ? tr("&Make Company") : tr("&Open"));
    scaleForm(this);
    leadTabToChosen(*this);
    for (const QRadioButton *place : {m_ui->radioFolder, m_ui->radioServer})
        connect(place, &QRadioButton::toggled, this, &CompanyBox::showPlace);
    if (isNew)
        connect(m_ui->editName, &QLineEdit::textChanged, this, &CompanyBox::showProposal);
    connectGuarded(m_ui->btnChooseFolder, &QPushButton::clicked, this, &CompanyBox::chooseFolder);
    connectGuarded(m_ui->btnTry, &QPushButton::clicked, this, &CompanyBox::btnTryClick);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &CompanyBox::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    new WindowRules(*this);
    showPlace();
    if (isNew)
        showProposal();
    (isNew ? m_ui->editName : m_ui->editFolder)->setFocus();
}

CompanyBox::~CompanyBox() = default;

// What the host's configuration calls them; the first currency follows.
void CompanyBox::fillFormats()
{
    const QLocale::Territory here = QLocale::system().territory();
    const std::tuple<QString, QString, QLocale::Territory> formats[] = {
        {tr("United States (US $)"), u"USA"_s, QLocale::UnitedStates},
        {tr("Canada (Canadian $)"), u"CAN"_s, QLocale::Canada},
        {tr("United Kingdom (Pounds)"), u"UK"_s, QLocale::UnitedKingdom}};
    for (const auto &[name, format, territory] : formats)
        m_ui->cboFormat->addItem(name, format);
    m_ui->cboFormat->addItem(tr("Another country (its own currency)"), u"INT"_s);
    if (here == QLocale::AnyTerritory)
        return; // the desktop does not tell
    const auto *known = std::find_if(std::begin(formats), std::end(formats),
                                     [here](const auto &format) { return std::get<2>(format) == here; });
    m_ui->cboFormat->setCurrentIndex(static_cast<int>(known - std::begin(formats)));
}

void CompanyBox::showPlace()
{
    const bool isFolder = m_ui->radioFolder->isChecked();
    m_ui->editFolder->setEnabled(isFolder);
    m_ui->btnChooseFolder->setEnabled(isFolder);
    m_ui->editServer->setEnabled(!isFolder);
    m_ui->cboLink->setEnabled(!isFolder);
    m_ui->lblTried->clear();
}

// As long as nobody has typed another one.
void CompanyBox::showProposal()
{
    if (!m_ui->editFolder->isModified())
        m_ui->editFolder->setText(QDir::toNativeSeparators(proposedFolder(m_ui->editName->text())));
}

void CompanyBox::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, m_purpose == Purpose::New ? tr("Folder for the Books") : tr("Folder with the Books"),
        m_ui->editFolder->text());
    if (folder.isEmpty())
        return;
    m_ui->editFolder->setText(QDir::toNativeSeparators(folder));
    m_ui->editFolder->setModified(true);
}

QString CompanyBox::required(const QLineEdit &field, QStringView column, const QString &refusal) const
{
    const QString text = field.text().trimmed();
    if (text.isEmpty())
        throw RuleError(refusal, column.toString());
    return text;
}

BooksPlace CompanyBox::enteredPlace() const
{
    if (m_ui->radioFolder->isChecked())
        return {.folder = QDir::fromNativeSeparators(
                    required(*m_ui->editFolder, NewBooksColumn::Folder, tr("Choose the folder of the books.")))};
    BooksPlace place;
    place.server = required(*m_ui->editServer, NewBooksColumn::Server, tr("Enter the address of the server."));
    takeSetting(m_ui->cboLink->currentText(), place.link);
    return place;
}

// A server may be long in answering.
Company CompanyBox::lookAt(const BooksPlace &place)
{
    Company found;
    workBeside(this, tr("Looking for books"), [&](Progress &) { found = readCompany(place); });
    return found;
}

void CompanyBox::btnTryClick()
{
    const Company found = lookAt(enteredPlace());
    if (found.books == Company::Books::Unknown)
        m_ui->lblTried->setText(found.problem);
    else if (found.books == Company::Books::None)
        m_ui->lblTried->setText(
            m_purpose == Purpose::New
                ? tr("There are no books yet in %1. They can be made there.").arg(found.location)
                : tr("There are no books of a company in %1.").arg(found.location));
    else
        m_ui->lblTried->setText(
            found.problem.isEmpty() ? tr("There are books already: those of %1.").arg(found.name) : found.problem);
    adjustSize();
}

void CompanyBox::btnOKClick()
{
    if (m_purpose == Purpose::New)
        required(*m_ui->editName, NewBooksColumn::Name, tr("Enter the name of the company."));
    const BooksPlace place = enteredPlace();
    const Company found = lookAt(place);
    const QStringView column = place.isOnServer() ? NewBooksColumn::Server : NewBooksColumn::Folder;
    if (found.books == Company::Books::Unknown
        || (found.books == Company::Books::There && !found.problem.isEmpty()))
        throw RuleError(found.problem, column.toString());
    if (m_purpose == Purpose::New)
        makeNew(found, place);
    else
        openBooks(found, place);
    m_place = place;
    accept();
}

void CompanyBox::openBooks(const Company &found, const BooksPlace &place)
{
    if (found.books == Company::Books::None)
        throw RuleError(
            tr("There are no books of a company in %1. New Company makes some there.").arg(found.location),
            (place.isOnServer() ? NewBooksColumn::Server : NewBooksColumn::Folder).toString());
}

void CompanyBox::makeNew(const Company &found, const BooksPlace &place)
{
    if (found.books == Company::Books::There) {
        if (!m_guard.prompts().confirm(
                Question::YesNo,
                tr("The books of %1 are in %2 already. Open these instead?").arg(found.name, found.location)))
            throw SilentAbort();
        return;
    }
    const NewBooks books{.place = place,
                         .organization = m_ui->editName->text().trimmed(),
                         .postalFormat = m_ui->cboFormat->currentData().toString(),
                         .user = m_user};
    workBeside(this, tr("Making the books of %1").arg(books.organization), [&](Progress &) { makeBooks(books); });
}

} // namespace Tallymere
