#pragma once

#include "base/listfilter.h"
#include "controls/screens/dialogscreen.h"

#include <memory>
#include <QJsonObject>
#include <QVariant>

class QLineEdit;
namespace Engine {
class DataSet;
}
namespace Ui {
class FilterDialog;
}

namespace Tallymere {

class LookupComboBox;
class OptionalDate;

// How the filter dialog of a list differs from those of the others.
struct FilterDialogKind
{
    QString name; // component name: "frmVendorsFilter"
    QString caption; // "Vendors Filter"
    QList<FilterBox> boxes = {}; // from top to bottom
    QString mark = {}; // names the three buttons: "Suspended" for "optSuspendedYes"; empty: rows have no mark
    QString markLabel = {};
};

// By what any list can be narrowed besides: words in its columns of text, and days.
struct FilterColumns
{
    QStringList texts;
    QString day; // empty: it shows none
};

// The filter dialog of a list: records that the rows refer to, and whether they have a mark. It is made once for its
// list and keeps its choices; OK accepts them, and the list makes its filter expression of them. Cancel takes back what
// has been chosen since it was opened. Other screens may choose in it before it is shown.
class FilterDialog : public DialogScreen
{
    Q_OBJECT

public:
    FilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent);
    ~FilterDialog() override;

    ListFilter filter() const; // the record of the first box, and the mark
    // The rows for words and days, behind all others; their conditions are what follows.
    void addColumns(const FilterColumns &columns);
    QString columnsExpression() const;
    QString words() const; // of all that is chosen; empty where nothing is
    QJsonObject choices() const; // what is chosen, by the names of its boxes, for another time
    // Chooses that and nothing else. False where it does not fit, as a box or a record is gone; all stays as it is then.
    bool choose(const QJsonObject &choices);
    bool isOn() const; // something is chosen, whether the list is narrowed by it or not
    int key(const QString &box) const; // 0: any
    void setKey(const QString &box, int key);
    void setMarked(ListFilter::Marked marked);
    void btnResetClick(); // nothing is chosen: all rows
    void reject() override;

protected:
    // One thing to choose, for dialogs with more than boxes of records.
    struct Choice
    {
        QString name; // component name of its box
        std::function<QVariant()> chosen;
        std::function<void(const QVariant &)> choose;
        QVariant none;
        std::function<QString()> words; // of what is chosen: "Location: Office"
        std::function<void()> settle = {}; // what is still being typed becomes the choice, before OK; may throw
        std::function<bool()> isThere = {}; // the record that is chosen; empty: what is chosen is no record
    };
    // Rows come in the order in which they are added; the first has the cursor when the dialog opens.
    void addBox(const FilterBox &box);
    void addRow(const QString &label, QWidget *widget);
    void addChoice(Choice choice);
    static bool isThereNow(Engine::DataSet &list, int key);
    static QString labelled(const QString &label,
                            const QString &text); // "&Location:" and "Office", as words of a choice

    void showStep() override;

private:
    void btnOKClick();
    bool take(const QJsonObject &choices);
    void addMark(const QString &mark, const QString &label);
    ListFilter::Marked marked() const;
    LookupComboBox *box(const QString &name) const;
    void orderTabs();
    void addWords();
    OptionalDate *addDay(const QString &name, const QString &label, QDate start);

    std::unique_ptr<::Ui::FilterDialog> m_ui;
    QList<QWidget *> m_rows;
    QList<LookupComboBox *> m_boxes;
    QList<Choice> m_choices;
    FilterColumns m_columns;
    QLineEdit *m_words = nullptr;
    OptionalDate *m_from = nullptr;
    OptionalDate *m_to = nullptr;
    QVariantList m_inForce; // what was chosen when it was opened
};

} // namespace Tallymere
