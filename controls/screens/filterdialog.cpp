#include "controls/screens/filterdialog.h"

#include "base/formats.h"
#include "base/foundin.h"
#include "controls/fields/lookupcombobox.h"
#include "controls/fields/optionaldate.h"
#include "controls/windows/mnemonics.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "ui_filterdialog.h"

#include <algorithm>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int boxWidth = 260; // design pixels
constexpr int listWidth = 240;
} // namespace

FilterDialog::FilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::FilterDialog>())
{
    m_ui->setupUi(this);
    setObjectName(kind.name);
    setWindowTitle(kind.caption);
    for (const FilterBox &box : kind.boxes)
        addBox(box);
    m_ui->grpMarked->setHidden(kind.mark.isEmpty());
    if (!kind.mark.isEmpty())
        addMark(kind.mark, kind.markLabel);

    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &FilterDialog::btnOKClick);
    connectGuarded(m_ui->btnReset, &QPushButton::clicked, this, &FilterDialog::btnResetClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

FilterDialog::~FilterDialog() = default;

// --- what can be chosen -----------------------------------------------------------------------------------------

void FilterDialog::addBox(const FilterBox &box)
{
    auto *shown = new LookupComboBox(this);
    shown->setObjectName(box.name);
    const LookupList list = context().lookups.list(box.list);
    shown->setList(list.table, {{list.nameField, list.title, listWidth}}, guard());
    addRow(box.label, shown);
    m_boxes.append(shown);
    addChoice({.name = box.name,
               .chosen = [shown] { return shown->chosenId(); },
               .choose = [shown](const QVariant &key) { shown->setChosenId(key.toInt()); },
               .none = 0,
               .words = [label = box.label, shown] { return labelled(label, shown->currentText()); },
               .settle = [shown] { shown->settle(); },
               .isThere = [shown, &table = list.table] { return isThereNow(table, shown->chosenId()); }});
}

void FilterDialog::addRow(const QString &label, QWidget *widget)
{
    auto *shown = new QLabel(label, this);
    shown->setBuddy(widget->focusProxy() ? widget->focusProxy() : widget); // the mnemonic passes over a proxy
    if (qobject_cast<QComboBox *>(widget)) {
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        widget->setMinimumWidth(boxWidth);
    }
    const int row = static_cast<int>(m_rows.size());
    m_ui->layoutFields->addWidget(shown, row, 0);
    m_ui->layoutFields->addWidget(widget, row, 1);
    m_rows.append(widget);
    orderTabs();
}

// --- what any list has ------------------------------------------------------------------------------------------

void FilterDialog::addColumns(const FilterColumns &columns)
{
    m_columns = columns;
    if (!columns.texts.isEmpty())
        addWords();
    if (columns.day.isEmpty())
        return;
    const QDate today = context().data.today();
    m_from = addDay(u"From"_s, tr("&From:"), QDate(today.year(), today.month(), 1));
    m_to = addDay(u"To"_s, tr("T&o:"), today);
}

void FilterDialog::addWords()
{
    m_words = new QLineEdit(this);
    m_words->setObjectName(u"editWords"_s);
    m_words->setAccessibleName(tr("Words"));
    m_words->setPlaceholderText(tr("anywhere in the row"));
    addRow(tr("&Words:"), m_words);
    addChoice({.name = m_words->objectName(),
               .chosen = [this] { return m_words->text().simplified(); },
               .choose = [this](const QVariant &words) { m_words->setText(words.toString()); },
               .none = QString(),
               .words = [this] { return labelled(tr("Words"), m_words->text().simplified()); }});
}

OptionalDate *FilterDialog::addDay(const QString &name, const QString &label, QDate start)
{
    auto *day = new OptionalDate({.date = u"editDay"_s + name,
                                  .all = u"chkDay"_s + name + u"All"_s,
                                  .name = plainCaption(label).chopped(1),
                                  .allName = tr("Any day"),
                                  .today = context().data.today(),
                                  .start = start},
                                 this);
    addRow(label, day);
    addChoice({.name = u"editDay"_s + name,
               .chosen = [day] { return day->date(); },
               .choose = [day](const QVariant &chosen) { day->choose(chosen.toDate()); },
               .none = QDate(),
               .words = [label, day] { return labelled(label, dateText(day->date())); }});
    return day;
}

QString FilterDialog::columnsExpression() const
{
    return joinConditions({m_words ? wordsCondition(m_columns.texts, m_words->text()) : QString(),
                           m_from ? daysCondition(m_columns.day, m_from->date(), m_to->date()) : QString()});
}

void FilterDialog::addChoice(Choice choice) { m_choices.append(std::move(choice)); }

void FilterDialog::addMark(const QString &mark, const QString &label)
{
    m_ui->grpMarked->setTitle(label);
    for (QRadioButton *button : {m_ui->optYes, m_ui->optNo, m_ui->optAll})
        button->setObjectName("opt"_L1 + mark + button->objectName().mid(3));
    addChoice(
        {.name = u"opt"_s + mark,
         .chosen = [this] { return static_cast<int>(marked()); },
         .choose = [this](const QVariant &chosen) { setMarked(static_cast<ListFilter::Marked>(chosen.toInt())); },
         .none = static_cast<int>(ListFilter::Marked::All),
         .words =
             [this, label] {
                 return labelled(label,
                                 plainCaption((m_ui->optYes->isChecked() ? m_ui->optYes : m_ui->optNo)->text()));
             }});
}

namespace {

// What the Tab key stops at in a row, which may be several widgets.
QList<QWidget *> stopsOf(QWidget *row)
{
    if (!row->focusProxy())
        return {row};
    QList<QWidget *> stops = row->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    stops.removeIf([](const QWidget *part) { return !(part->focusPolicy() & Qt::TabFocus); });
    return stops;
}

} // namespace

// The rows come after the form's own widgets by themselves.
void FilterDialog::orderTabs()
{
    QList<QWidget *> order;
    for (QWidget *row : std::as_const(m_rows))
        order += stopsOf(row);
    order += {m_ui->optYes, m_ui->optNo, m_ui->optAll, m_ui->btnReset, m_ui->btnOK, m_ui->btnCancel};
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

// --- what is chosen ---------------------------------------------------------------------------------------------

ListFilter::Marked FilterDialog::marked() const
{
    if (m_ui->optYes->isChecked())
        return ListFilter::Marked::Yes;
    return m_ui->optNo->isChecked() ? ListFilter::Marked::No : ListFilter::Marked::All;
}

void FilterDialog::setMarked(ListFilter::Marked marked)
{
    m_ui->optYes->setChecked(marked == ListFilter::Marked::Yes);
    m_ui->optNo->setChecked(marked == ListFilter::Marked::No);
    m_ui->optAll->setChecked(marked == ListFilter::Marked::All);
}

ListFilter FilterDialog::filter() const
{
    return {.key = m_boxes.isEmpty() ? 0 : m_boxes.constFirst()->chosenId(), .marked = marked()};
}

QString FilterDialog::labelled(const QString &label, const QString &text)
{
    QString name = plainCaption(label);
    if (name.endsWith(u':'))
        name.chop(1);
    return tr("%1: %2").arg(name, text);
}

QString FilterDialog::words() const
{
    QStringList words;
    for (const Choice &choice : m_choices) {
        if (choice.chosen() != choice.none)
            words << choice.words();
    }
    return words.join(", "_L1);
}

QJsonObject FilterDialog::choices() const
{
    QJsonObject chosen;
    for (const Choice &choice : m_choices) {
        if (choice.chosen() != choice.none)
            chosen.insert(choice.name, QJsonValue::fromVariant(choice.chosen()));
    }
    return chosen;
}

bool FilterDialog::choose(const QJsonObject &choices)
{
    const QJsonObject before = this->choices();
    if (take(choices))
        return true;
    take(before);
    return false;
}

bool FilterDialog::isThereNow(Engine::DataSet &list, int key)
{
    list.refresh(); // it may have been read long ago
    return list.holds({key});
}

bool FilterDialog::take(const QJsonObject &choices)
{
    for (const Choice &choice : std::as_const(m_choices)) {
        choice.choose(choices.contains(choice.name) ? choices[choice.name].toVariant() : choice.none);
        if (choice.chosen() != choice.none && choice.isThere && !choice.isThere())
            return false;
    }
    return this->choices() == choices;
}

bool FilterDialog::isOn() const
{
    return std::any_of(m_choices.begin(), m_choices.end(),
                       [](const Choice &choice) { return choice.chosen() != choice.none; });
}

LookupComboBox *FilterDialog::box(const QString &name) const
{
    return foundIn(m_boxes, name, [&](const LookupComboBox *shown) { return shown->objectName() == name; });
}

int FilterDialog::key(const QString &name) const { return box(name)->chosenId(); }

void FilterDialog::setKey(const QString &name, int key) { box(name)->setChosenId(key); }

// --- the dialog -------------------------------------------------------------------------------------------------

void FilterDialog::btnOKClick()
{
    for (const Choice &choice : std::as_const(m_choices)) {
        if (choice.settle)
            choice.settle();
    }
    accept();
}

void FilterDialog::btnResetClick()
{
    for (const Choice &choice : std::as_const(m_choices))
        choice.choose(choice.none);
}

void FilterDialog::showStep()
{
    m_inForce.clear();
    for (const Choice &choice : std::as_const(m_choices))
        m_inForce << choice.chosen();
    m_rows.constFirst()->setFocus();
}

void FilterDialog::reject()
{
    guard().runWhenFree([this] {
        for (int i = 0; i < m_inForce.size(); ++i)
            m_choices[i].choose(m_inForce[i]);
    });
    DialogScreen::reject();
}

} // namespace Tallymere
