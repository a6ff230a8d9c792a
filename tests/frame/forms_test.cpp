#include "base/rights.h"
#include "controls/screens/datedialog.h"
#include "controls/windows/mnemonics.h"
#include "controls/windows/windowrules.h"
#include "frame/frmtallymeresystem.h"
#include "frame/mainoptionsinv.h"
#include "insight/screens/costtrailscreen.h"
#include "insight/screens/itemcard.h"
#include "insight/screens/stocktimedialog.h"
#include "master/masterkinds.h"
#include "master/screens/masterlistscreen.h"
#include "tests/frame/testcompany.h"
#include "tests/support/screendriver.h"
#include "transactions/documentkinds.h"
#include "transactions/screens/countdifferencesscreen.h"

#include <QAccessible>
#include <QDirIterator>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QStackedWidget>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// A widget of a form as its file describes it.
struct Described
{
    QString type, name;
    QHash<QString, QString> properties;

    bool is(const QString &types) const { return type.contains(QRegularExpression(u'(' + types + u")$"_s)); }
    bool isField() const { return is(u"Edit|SpinBox|ComboBox|DatePicker|Grid|ListWidget|CalendarWidget"_s); }
    bool takesTab() const
    {
        const QString policy = properties.value(u"focusPolicy"_s).remove(u"Qt::"_s);
        return (isField() || is(u"CheckBox|Button|PageView"_s)) && policy != "NoFocus"_L1
            && policy != "ClickFocus"_L1;
    }
};

struct Form
{
    explicit Form(const QString &path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QXmlStreamReader xml(&file);
        QList<qsizetype> open; // the widgets that are being read, from the outermost on
        while (xml.readNext() != QXmlStreamReader::Invalid && !xml.atEnd()) {
            const bool isWidget = xml.name() == "widget"_L1;
            if (xml.isEndElement() && isWidget)
                open.removeLast();
            if (!xml.isStartElement())
                continue;
            const QString name = xml.attributes().value("name"_L1).toString();
            if (isWidget) {
                open << widgets.size();
                widgets << Described{xml.attributes().value("class"_L1).toString(), name, {}};
            } else if (xml.name() == "property"_L1 && !open.isEmpty()) {
                values[name] << xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
                widgets[open.last()].properties[name] = values[name].constLast();
            } else if (xml.name() == "tabstop"_L1) {
                tabStops << xml.readElementText();
            }
        }
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    }

    QList<Described> widgets;
    QHash<QString, QStringList> values; // of each property
    QStringList tabStops;
};

void expectFits(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    if (!label && !button)
        return;
    QSize wanted = widget.sizeHint();
    if (label && label->wordWrap())
        wanted = {0, label->heightForWidth(label->width())};
    if (button) // styles want a button wider than a short text needs
        wanted.setWidth(std::min(wanted.width(), button->fontMetrics().horizontalAdvance(button->text()) + 8));
    EXPECT_TRUE(wanted.expandedTo(widget.size()) == widget.size()
                && widget.parentWidget()->rect().contains(widget.geometry()))
        << qPrintable(widget.objectName());
}

// What is underlined in menus, or in a window.
class Letters
{
public:
    void add(const QString &caption, bool needed)
    {
        static const QRegularExpression hasLetter(u"[A-Za-z0-9]"_s);
        const QChar letter = letterOf(caption);
        EXPECT_TRUE(!needed || !letter.isNull() || !caption.contains(hasLetter)) << qPrintable(caption);
        EXPECT_FALSE(!letter.isNull() && m_captions.contains(letter))
            << qPrintable(caption) << " and " << qPrintable(m_captions.value(letter));
        m_captions.insert(letter, caption);
    }

private:
    QHash<QChar, QString> m_captions;
};

void expectLetters(QMenu &menu)
{
    SCOPED_TRACE(qPrintable(menu.title()));
    menu.ensurePolished(); // as when it opens
    Letters letters;
    for (const QAction *entry : menu.actions()) {
        if (!entry->isSeparator())
            letters.add(entry->text(), true);
        if (entry->menu())
            expectLetters(*entry->menu());
    }
}

void expectLettersOnPage(const QWidget &window)
{
    Letters letters;
    if (const auto *bar = window.findChild<QMenuBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        for (const QAction *title : bar->actions()) {
            letters.add(title->text(), true);
            expectLetters(*title->menu());
        }
    }
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<QAbstractButton *>(widget))
            letters.add(button->text(), qobject_cast<const QPushButton *>(button));
        if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
            letters.add(label->text(), false);
        if (const auto *button = qobject_cast<QPushButton *>(widget); button && button->menu())
            expectLetters(*button->menu());
        const bool lists = qobject_cast<QAbstractItemView *>(widget) && !qobject_cast<QHeaderView *>(widget);
        EXPECT_FALSE(lists && widget->accessibleName().isEmpty()) << qPrintable(widget->objectName());
        if (widget->contextMenuPolicy() == Qt::ActionsContextMenu && !widget->actions().isEmpty()) {
            QMenu popup(widget);
            popup.addActions(widget->actions());
            expectLetters(popup);
        }
    }
}

// Shows the window, and each of its pages.
void onEachPage(QWidget &window, const std::function<void()> &step)
{
    window.show();
    auto *book = window.findChild<QStackedWidget *>(); // which a tabbed one has inside
    for (int page = 0; page < (book ? book->count() : 1); ++page) {
        if (book)
            book->setCurrentIndex(page);
        QCoreApplication::processEvents();
        step();
    }
}

struct FormsTest : testing::Test
{
    FormsTest() { new WindowRules(mainWindow); }

    void expectExists(const Described &widget, const Form &form)
    {
        const auto given = [&](const char *name) { return widget.properties.value(QString::fromLatin1(name)); };
        if (const QString list = given("opensList"); !list.isEmpty()) {
            EXPECT_TRUE(screens.contains(list)) << qPrintable(list);
            QString rights;
            for (const MasterKind *kind : MasterKinds::all())
                rights += kind->list.screen == list ? rightsOf(kind->command.rights).name : QString();
            EXPECT_EQ(rightsOf(given("rights")).name, rights);
        }
        const QStringList fields = form.values.value(u"dataField"_s);
        for (const QString &field : {given("listField"), given("dials"), given("mails"), given("browses")})
            EXPECT_TRUE(field.isEmpty() || fields.contains(field)) << qPrintable(field);
        if (const QString lookup = given("lookupList"); !lookup.isEmpty()) {
            EXPECT_EQ(over.lookups.list(lookup).table.name(), lookup);
        }
        if (widget.isField()) {
            EXPECT_TRUE(form.values.value(u"buddy"_s).contains(widget.name) || !given("accessibleName").isEmpty());
        }
    }

    // Every text fits into its widget, on each page of the window, and the window onto the screen.
    void expectFit(QWidget &window)
    {
        SCOPED_TRACE(qPrintable(window.objectName()));
        onEachPage(window, [&window] {
            for (const QWidget *widget : window.findChildren<QWidget *>()) {
                if (widget->isVisible() && !widget->objectName().isEmpty())
                    expectFits(*widget);
            }
        });
        EXPECT_LE(window.width(), window.screen()->availableSize().width());
        ++shown;
    }

    // All windows of the product.
    void visitAll(const std::function<void(QWidget &window)> &visit)
    {
        forEachScreen(over.context, mainWindow, visit);
        TFormRegistryEditor settings(over.company.settings, over.company.prompts);
        TFormTallymereSystem system(FrameServices{over.company.settings, over.company.prompts, screens});
        DateDialog date(over.context, QDate(2026, 3, 31), &mainWindow);
        StockTimeDialog time(over.context, {.day = QDate(2026, 3, 31)}, &mainWindow);
        TfrmCountDifferences differences(over.context, CountList(), &mainWindow);
        ItemCard known;
        known.waiting.push_back({DocumentKinds::all().first(), 2, -3});
        TfrmItemCard card(over.context, known, &mainWindow);
        TfrmCostTrail trail(over.context, known, &mainWindow);
        for (QWidget *window : QWidgetList{&settings, &system, &date, &time, &differences, &card, &trail})
            visit(*window);
    }

    TestContext over;
    const ScreenRegistry screens = productScreens();
    QWidget mainWindow;
    int shown = 0;
};

} // namespace

TEST_F(FormsTest, WhatTheFormsNameExists)
{
    for (const char *room : {"controls", "frame", "host", "master", "reports", "transactions"}) {
        QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + QString::fromLatin1(room), {u"*.ui"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        EXPECT_TRUE(files.hasNext()) << room;
        while (files.hasNext()) {
            const Form form(files.next());
            SCOPED_TRACE(qPrintable(files.fileName()));
            QStringList stops;
            for (const Described &widget : form.widgets) {
                SCOPED_TRACE(qPrintable(widget.name));
                if (widget.takesTab())
                    stops << widget.name;
                expectExists(widget, form);
            }
            // Without tab stops of its own a form is gone through as it was laid out.
            EXPECT_TRUE(
                form.tabStops.isEmpty()
                || std::is_permutation(stops.begin(), stops.end(), form.tabStops.begin(), form.tabStops.end()))
                << qPrintable(form.tabStops.join(u' '));
        }
    }
}

// A screen also refuses to open when a widget names a field that its table does not have.
TEST_F(FormsTest, NothingIsClipped)
{
    visitAll([this](QWidget &window) { expectFit(window); });
    EXPECT_GT(shown, screens.names().size()) << "no dialogs came";
}

// For programs that tell it to whoever cannot see it.
TEST_F(FormsTest, WhateverTakesTheKeyboardHasAName)
{
    visitAll([](QWidget &window) {
        SCOPED_TRACE(qPrintable(window.objectName()));
        onEachPage(window, [&window] {
            for (QWidget *widget : window.findChildren<QWidget *>()) {
                const bool takesKeys = widget->isVisible() && widget->focusPolicy() & Qt::TabFocus;
                const QAccessibleInterface *known =
                    takesKeys && !widget->focusProxy() ? QAccessible::queryAccessibleInterface(widget) : nullptr;
                EXPECT_FALSE(known && known->text(QAccessible::Name).isEmpty())
                    << widget->metaObject()->className() << ' ' << qPrintable(widget->objectName()) << " in "
                    << qPrintable(widget->parentWidget()->objectName());
            }
        });
    });
}

TEST_F(FormsTest, EveryCommandHasALetterOfItsOwnAndEveryListAName)
{
    visitAll([](QWidget &window) {
        SCOPED_TRACE(qPrintable(window.objectName()));
        onEachPage(window, [&window] { expectLettersOnPage(window); });
    });
}
