#include "tests/frame/windowfacts.h"

#include "controls/windows/icons.h"
#include "data/readaside.h"
#include "tests/support/screendriver.h"

#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

// Sizes and what follows from fonts, the moment, and what others of these say already.
const QList<QByteArray> &leftOut()
{
    static const QList<QByteArray> names =
        QByteArray(
            "objectName x y width height minimumWidth minimumHeight maximumWidth maximumHeight focus "
            "isActiveWindow fullScreen minimized maximized windowFilePath windowIconText frameWidth lineWidth "
            "cursorPosition html markdown documentTitle autoFillBackground length offset "
            "defaultSectionSize minimumSectionSize maximumSectionSize highlighted windowModified default down "
            "currentText displayText cleanText currentSection date dateTime acceptableInput undoAvailable "
            "redoAvailable hasSelectedText selectedText modified currentIndex value source iconText")
            .split(' ');
    return names;
}

template <typename... Classes> const QWidget *plainOne(const QWidget &widget)
{
    const QWidget *found = nullptr;
    ((!found && qobject_cast<const Classes *>(&widget) ? (void)[&found] {
        static const auto *const plain = new Classes; // of the nearest class of the toolkit; outlives the application
        found = plain;
    }()
                                                       : (void)0),
     ...);
    return found;
}

const QWidget &usual(const QWidget &widget)
{
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget)) {
        static const auto *const across = new QHeaderView(Qt::Horizontal);
        static const auto *const down = new QHeaderView(Qt::Vertical);
        return header->orientation() == Qt::Horizontal ? *across : *down;
    }
    return *plainOne<QMessageBox, QDialog, QPushButton, QToolButton, QCheckBox, QRadioButton, QDateEdit,
                     QDoubleSpinBox, QSpinBox, QFontComboBox, QComboBox, QTableWidget, QTableView, QTreeWidget,
                     QTreeView, QListWidget, QListView, QTextBrowser, QTextEdit, QPlainTextEdit, QScrollArea,
                     QTabWidget, QGroupBox, QProgressBar, QStackedWidget, QSplitter, QLineEdit, QLabel, QMenuBar,
                     QMenu, QStatusBar, QTabBar, QFrame, QWidget>(widget);
}

QString said(const QMetaProperty &property, const QVariant &value)
{
    const QByteArray name = property.name();
    if (property.isFlagType())
        return QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()));
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    if (value.typeId() == QMetaType::QFont) {
        const auto font = value.value<QFont>();
        return u"%1%2%3"_s.arg(font.bold() ? u"bold"_s : u"plain"_s,
                               font.pointSizeF() > QApplication::font().pointSizeF()       ? u" larger"_s
                                   : font.pointSizeF() < QApplication::font().pointSizeF() ? u" smaller"_s
                                                                                           : QString(),
                               font.capitalization() == QFont::AllUppercase ? u" capitals"_s : QString());
    }
    if (value.typeId() == QMetaType::QIcon || value.typeId() == QMetaType::QPixmap)
        return value.value<QIcon>().isNull() && value.value<QPixmap>().isNull() ? u"none"_s : u"an icon"_s;
    if (value.typeId() == QMetaType::QSizePolicy) {
        const auto policy = value.value<QSizePolicy>();
        return u"%1/%2"_s.arg(policy.horizontalPolicy()).arg(policy.verticalPolicy());
    }
    return name == "accessibleName" || value.typeId() != QMetaType::Int ? timeless(value.toString())
                                                                        : value.toString();
}

bool tells(const QMetaProperty &property)
{
    static const QSet<int> types{QMetaType::Bool,         QMetaType::Int,         QMetaType::QString,
                                 QMetaType::QKeySequence, QMetaType::QSizePolicy, QMetaType::QFont,
                                 QMetaType::QIcon,        QMetaType::QPixmap};
    return (types.contains(property.metaType().id()) || property.isEnumType() || property.isFlagType())
        && !leftOut().contains(property.name());
}

// What a plain one has, by the properties that tell something.
const QList<std::pair<QMetaProperty, QString>> &usualOf(const QObject &plain)
{
    static QHash<const QObject *, QList<std::pair<QMetaProperty, QString>>> known;
    QList<std::pair<QMetaProperty, QString>> &usual = known[&plain];
    const QMetaObject &meta = *plain.metaObject();
    for (int index = usual.isEmpty() ? 0 : meta.propertyCount(); index < meta.propertyCount(); ++index)
        if (const QMetaProperty property = meta.property(index); tells(property))
            usual.emplace_back(property, said(property, property.read(&plain)));
    return usual;
}

QString differences(const QObject &object, const QObject &plain)
{
    QString result;
    for (const auto &[property, usual] : usualOf(plain)) {
        const QString now = said(property, property.read(&object));
        const bool repeats = property.name() == QByteArray("toolTip")
            && now == said(property, object.property("iconText")) && plain.inherits("QAction");
        if (!repeats && now != usual && property.name() != QByteArray("visible"))
            result += u" %1=%2"_s.arg(QString::fromLatin1(property.name()), now);
    }
    return result;
}

// By its number; some widgets have an icon of their own without one.
QString signOf(const QObject &object)
{
    const int sign = static_cast<int>(Tallymere::glyphOf(object));
    return sign > 0 ? u" sign %1"_s.arg(sign) : QString();
}

QString said(const QMargins &margins)
{
    return u"%1 %2 %3 %4"_s.arg(margins.left()).arg(margins.top()).arg(margins.right()).arg(margins.bottom());
}

QString layoutOf(const QLayout &layout)
{
    QString inner;
    for (int i = 0; i < layout.count(); ++i)
        inner += layout.itemAt(i)->spacerItem() ? u" -"_s
            : layout.itemAt(i)->layout()        ? layoutOf(*layout.itemAt(i)->layout())
                                                : QString();
    return u" {%1 %2: %3, %4%5}"_s.arg(QString::fromLatin1(layout.metaObject()->className()))
        .arg(layout.count())
        .arg(said(layout.contentsMargins()))
        .arg(layout.spacing())
        .arg(inner);
}

QString layoutOf(const QWidget &widget)
{
    if (widget.layout())
        return layoutOf(*widget.layout());
    return widget.contentsMargins().isNull() ? QString() : u" margins "_s + said(widget.contentsMargins());
}

bool holds(const QLayout &layout, const QWidget &widget)
{
    bool held = layout.menuBar() == &widget;
    for (int i = 0; i < layout.count() && !held; ++i) {
        QLayoutItem *item = layout.itemAt(i);
        held = item->widget() == &widget || (item->layout() && holds(*item->layout(), widget));
    }
    return held;
}

// What the layout around it has not got lies somewhere on the others.
QString placeOf(const QWidget &widget)
{
    const QWidget *around = widget.isWindow() ? nullptr : widget.parentWidget();
    const bool isLeftOut = around && around->layout() && !holds(*around->layout(), widget);
    return isLeftOut ? u" outside of the layout"_s : QString();
}

QString columnsOf(const QHeaderView &header)
{
    QString result;
    for (int column = 0; header.model() && header.orientation() == Qt::Horizontal && column < header.count();
         ++column) {
        const QVariant caption = header.model()->headerData(column, Qt::Horizontal);
        const QVariant alignment = header.model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        result += u" |%1%2 %3 %4"_s
                      .arg(header.isSectionHidden(column) ? u"hidden "_s : QString(), timeless(caption.toString()))
                      .arg(alignment.toInt())
                      .arg(header.sectionResizeMode(column));
    }
    return result;
}

void addCommands(QStringList &facts, const QWidget &widget, const QString &indent)
{
    static const QAction plain;
    for (const QAction *action : widget.actions()) {
        facts << indent + u"> "_s + action->objectName()
                + (action->isSeparator() ? u"-"_s : differences(*action, plain) + signOf(*action))
                + (action->isVisible() ? u""_s : u" hidden"_s);
        if (action->menu())
            addCommands(facts, *action->menu(), indent + u"  "_s);
    }
}

// Takes down with what a widget paints: which colours and fonts, neither where nor how often, which follow from fonts, and
// whether one of ours goes across all of it or down all of it, is an upright line, or smooth at its edges (~).
class Ink final : public QPaintEngine, public QPaintDevice
{
public:
    explicit Ink(const QWidget &widget)
        : QPaintEngine(AllFeatures)
        , m_widget(widget)
    {
    }

    QStringList used;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &now) override { m_place = now.transform(); }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { add(u"picture"_s); }
    void drawTextItem(const QPointF &, const QTextItem &item) override
    {
        const double size = item.font().pointSizeF() - m_widget.font().pointSizeF();
        add(u"text %1%2%3"_s.arg(painter()->pen().color().name(), item.font().bold() ? u" bold"_s : QString(),
                                 size > 0       ? u" larger"_s
                                     : size < 0 ? u" smaller"_s
                                                : QString()));
    }
    void drawPath(const QPainterPath &path) override
    {
        addShape(path.boundingRect(), path.boundingRect().width() == 1 && !m_isEdit);
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode) override
    {
        addShape(QPolygonF(QList<QPointF>(points, points + count)).boundingRect(), false);
    }
    Type type() const override { return User; }
    QPaintEngine *paintEngine() const override { return const_cast<Ink *>(this); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_widget.width();
        case PdmHeight:
            return m_widget.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return m_widget.logicalDpiX();
        }
    }

private:
    void add(const QString &what)
    {
        if (!used.contains(what))
            used << what;
    }
    void addShape(const QRectF &shape, bool isUpright)
    {
        const QRectF covered = m_place.mapRect(shape);
        const bool goesAcross = m_isOurs && covered.left() <= 1 && covered.right() >= m_widget.width() - 1;
        const bool goesDown = m_isOurs && covered.top() <= 1 && covered.bottom() >= m_widget.height() - 1;
        const QPen pen = painter()->pen();
        const QBrush brush = painter()->brush();
        add(u"%1/%2%3%4%5%6"_s.arg(pen.style() == Qt::NoPen ? u"-"_s : pen.color().name(),
                                   brush.style() == Qt::NoBrush ? u"-"_s : brush.color().name(),
                                   goesAcross ? u" across"_s : QString(), goesDown ? u" down"_s : QString(),
                                   isUpright ? u" upright"_s : QString(),
                                   painter()->testRenderHint(QPainter::Antialiasing) ? u"~"_s : QString()));
    }

    const QWidget &m_widget;
    const bool m_isEdit = qobject_cast<const QLineEdit *>(&m_widget); // where upright lines are cursors
    const bool m_isOurs = !m_isEdit && QByteArray(m_widget.metaObject()->className()).startsWith("Tallymere::");
    QTransform m_place;
};

// Of what paints itself, or is painted by another style than the others.
QString paintedOf(QWidget &widget)
{
    if (widget.isWindow() || !widget.isVisible()
        || (!qobject_cast<QLineEdit *>(&widget) && !widget.style()->inherits("Tallymere::HostStyle")
            && !QByteArray(widget.metaObject()->className()).startsWith("Tallymere::")))
        return {};
    Ink ink(widget);
    const bool scrolls = qobject_cast<QAbstractScrollArea *>(&widget);
    widget.render(&ink, {}, {}, scrolls ? QWidget::DrawChildren : QWidget::RenderFlags());
    ink.used.sort();
    return ink.used.isEmpty() ? QString() : u" painted with "_s + ink.used.join(u", "_s);
}

// How many rows, where the cursor is and what stands there.
QString rowOf(const QWidget &widget)
{
    const auto *table = qobject_cast<const QTableView *>(&widget);
    if (!table || !table->model())
        return {};
    QStringList cells;
    const QModelIndex at = table->currentIndex();
    for (int column = 0; at.isValid() && column < table->model()->columnCount(); ++column)
        cells << at.siblingAtColumn(column).data().toString();
    return u" %1 rows, at %2,%3: %4"_s.arg(table->verticalHeader()->count())
        .arg(at.row())
        .arg(at.column())
        .arg(timeless(cells.join(u'|')));
}

// A chart's ticks among them, whether there is room for them or not.
QString textsOf(const QWidget &widget)
{
    const auto *view = qobject_cast<const QGraphicsView *>(&widget);
    const auto isText = [](const QGraphicsItem *item) { return item->type() == QGraphicsTextItem::Type; };
    return view ? u" %1 texts"_s.arg(std::ranges::count_if(view->scene()->items(), isText)) : QString();
}

// A window has its least size from its layout.
QString sizeLimitsOf(const QWidget &widget)
{
    if (widget.isWindow())
        return widget.testAttribute(Qt::WA_DeleteOnClose) ? u" goes when closed"_s : QString();
    const QSize least = widget.minimumSize(), most = widget.maximumSize();
    return (least.width() > 0 ? u" least width"_s : QString())
        + (least.height() > 0 ? u" least height"_s : QString())
        + (most.width() < QWIDGETSIZE_MAX ? u" most width"_s : QString())
        + (most.height() < QWIDGETSIZE_MAX ? u" most height"_s : QString());
}

QString limitsOf(const QWidget &widget)
{
    const auto *edit = qobject_cast<const QLineEdit *>(&widget);
    const bool isTransparent = widget.testAttribute(Qt::WA_TransparentForMouseEvents);
    return sizeLimitsOf(widget) + (edit && edit->validator() ? u" refuses what does not fit"_s : QString())
        + (isTransparent ? u" lets the mouse through"_s : QString());
}

// To whoever does not see it.
QString calledBy(QWidget &widget)
{
    if (!(widget.focusPolicy() & Qt::TabFocus) || qobject_cast<QAbstractButton *>(&widget))
        return {};
    const QAccessibleInterface *known = QAccessible::queryAccessibleInterface(&widget);
    return known ? u" called "_s + timeless(known->text(QAccessible::Name)) : QString();
}

void addFacts(QStringList &facts, QWidget &widget, const QString &indent)
{
    const QByteArray name = widget.metaObject()->className();
    if (name == "QTableCornerButton" || name == "QSizeGrip" || name == "QLineEditIconButton" // which comes slowly
        || name == "QScrollBar" || name == "QCalendarWidget")
        return;
    const bool isOfToolkit =
        widget.objectName().startsWith("qt_"_L1); // a part of its widget, as what holds the pages of a book
    if (!isOfToolkit) {
        const auto *header = qobject_cast<QHeaderView *>(&widget);
        facts << indent + QString::fromLatin1(name) + u' ' + widget.objectName()
                + (widget.isHidden() ? u" hidden"_s : QString()) + differences(widget, usual(widget))
                + signOf(widget) + limitsOf(widget) + rowOf(widget) + textsOf(widget) + paintedOf(widget)
                + calledBy(widget) + placeOf(widget) + layoutOf(widget) + (header ? columnsOf(*header) : QString());
        if (!qobject_cast<QMenu *>(&widget))
            addCommands(facts, widget, indent + u"  "_s);
        if (auto *box = qobject_cast<QComboBox *>(&widget))
            facts << indent + u"  list"_s + differences(*box->view(), usual(*box->view()));
    }
    for (QObject *child : widget.children()) {
        auto *inner = qobject_cast<QWidget *>(child);
        if (inner && !inner->isWindow())
            addFacts(facts, *inner, isOfToolkit ? indent : indent + u"  "_s);
    }
}

QString tabOrderOf(const QWidget &window)
{
    QString order = u"  Tab goes through"_s;
    for (const QWidget *at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
        if (at->focusPolicy() & Qt::TabFocus && at->window() == &window && at->isVisible()
            && !at->objectName().isEmpty())
            order += u' ' + at->objectName();
    return order;
}

} // namespace

void awaitIdle()
{
    const auto reads = [](const QWidget *window) {
        const auto asides = window->findChildren<Tallymere::ReadAside *>();
        return std::any_of(asides.begin(), asides.end(), [](const auto *aside) { return aside->isReading(); });
    };
    EXPECT_TRUE(comesTrue([&reads] {
        bool wasIdle = false;
        for (int rounds = 0; rounds < 10 && !wasIdle; ++rounds) { // before it waits
            wasIdle = !QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const QWidgetList windows = QApplication::topLevelWidgets();
        return wasIdle && std::none_of(windows.begin(), windows.end(), reads);
    }));
}

// Without what another machine or another day has otherwise: its folders, the day and the time there, versions, ports, secrets.
QString timeless(QString text)
{
    const auto depends = [](QChar letter) { return letter.isDigit() || letter == u'/'; };
    if (std::none_of(text.cbegin(), text.cend(), depends))
        return text.replace(u'\n', u'|').left(90); // most of them, and the rest takes its time
    static const QRegularExpression folder(QRegularExpression::escape(QDir::tempPath()) + u"[^\\s\"]*"_s);
    static const QRegularExpression version(u"\\d+\\.\\d+\\.\\d+"_s), time(u"\\b\\d\\d?:\\d\\d\\b"_s),
        port(u"(?<=:)\\d{4,5}\\b"_s), link(u"(?<=PORT/)\\S+"_s);
    static const QDate today = QDate::currentDate();
    text.replace(QDir::currentPath(), u"HERE"_s).replace(QDir::homePath(), u"HOME"_s).replace(folder, u"FOLDER"_s);
    for (const char *format : {"yyyy-MM-dd", "MM/dd/yyyy", "M/d/yyyy", "d MMM yy", "d MMM yyyy", "d MMMM yyyy"})
        text.replace(QLocale::c().toString(today, QLatin1StringView(format)), u"DAY"_s);
    for (const QDate &day : {today, today.addMonths(-1)}) // the periods that the calendar has
        text.replace(day.toString(u"M/yyyy"_s), u"PERIOD"_s);
    text.replace(version, u"VERSION"_s).replace(time, u"TIME"_s).replace(port, u"PORT"_s).replace(link, u"LINK"_s);
    return text.replace(u'\n', u'|').left(90); // of a longer one its beginning tells
}

QStringList factsOf(QWidget &window)
{
    QStringList facts;
    addFacts(facts, window, QString());
    return facts << tabOrderOf(window);
}
