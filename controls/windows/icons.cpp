#include "controls/windows/icons.h"

#include "controls/windows/glyphpath.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <array>
#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto glyphProperty = "glyph";
constexpr double design = 16; // pixels that a drawing is wide and high
constexpr double stroke = 1.4;

// In the order of the signs.
constexpr std::array files = {
    "",        "receive",  "use",      "post",        "count",    "adjust",       "report",   "totals",
    "history", "item",     "itemcard", "vendor",      "location", "organization", "records",  "new",
    "edit",    "delete",   "reverse",  "copy",        "find",     "filter",       "refresh",  "synchronize",
    "print",   "save",     "settings", "help",        "close",    "first",        "previous", "next",
    "last",    "calendar", "monthend", "information", "warning",  "error",
};
static_assert(files.size() == static_cast<size_t>(Glyph::Error) + 1);

const QPainterPath &pathOf(Glyph glyph)
{
    static QHash<Glyph, QPainterPath> paths;
    auto known = paths.find(glyph);
    if (known == paths.end()) {
        QFile file(u":/tallymere/glyphs/%1.svg"_s.arg(QLatin1StringView(files[static_cast<size_t>(glyph)])));
        known = paths.insert(glyph, file.open(QIODevice::ReadOnly) ? glyphPath(file) : QPainterPath());
    }
    return *known;
}

enum class Place { Button, Menu };

// Where the cursor is in a menu, these styles turn the ground into the highlight; others tint it a little.
bool highlightsEntries()
{
    const QStyle *style = QApplication::style();
    while (const auto *around = qobject_cast<const QProxyStyle *>(style))
        style = around->baseStyle();
    return style->inherits("QFusionStyle") || style->inherits("QWindowsStyle");
}

QColor colourOf(Place place, QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    const bool chosen = mode == QIcon::Selected || (mode == QIcon::Active && place == Place::Menu);
    if (chosen && highlightsEntries())
        return palette.color(QPalette::HighlightedText);
    return Look(palette).colour(Look::Role::Accent);
}

class GlyphEngine final : public QIconEngine
{
public:
    GlyphEngine(Glyph glyph, Place place)
        : m_glyph(glyph)
        , m_place(place)
    {
    }

    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State) override
    {
        paintGlyph(*painter, area, m_glyph, colourOf(m_place, mode));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new GlyphEngine(*this); }

private:
    Glyph m_glyph;
    Place m_place;
};

template <typename Shown> void show(Shown &shown, Glyph glyph, Place place)
{
    shown.setProperty(glyphProperty, static_cast<int>(glyph));
    shown.setIcon(glyph == Glyph::None ? QIcon() : QIcon(new GlyphEngine(glyph, place)));
}

// What forms call the buttons that do the same everywhere, and menus their entries.
const QHash<QString, Glyph> &glyphsOfNames()
{
    static const QHash<QString, Glyph> glyphs = {
        {u"btnNew"_s, Glyph::New},         {u"btnEdit"_s, Glyph::Edit},       {u"btnDelete"_s, Glyph::Delete},
        {u"btnPrint"_s, Glyph::Print},     {u"btnSave"_s, Glyph::Save},       {u"btnHelp"_s, Glyph::Help},
        {u"btnSetup"_s, Glyph::Settings},  {u"Exit1"_s, Glyph::Close},        {u"HelpTopics1"_s, Glyph::Help},
        {u"About1"_s, Glyph::Information}, {u"btnHistory"_s, Glyph::History}, {u"btnItems"_s, Glyph::Item},
        {u"btnReceipt"_s, Glyph::Receive}, {u"btnWhy"_s, Glyph::Report},
    };
    return glyphs;
}

// A wizard has its steps under these names, in words.
Glyph namedBy(const QToolButton &button)
{
    static const QHash<QString, Glyph> glyphs = {
        {u"btnFirst"_s, Glyph::First},
        {u"btnPrev"_s, Glyph::Previous},
        {u"btnNext"_s, Glyph::Next},
        {u"btnLast"_s, Glyph::Last},
    };
    return glyphs.value(button.objectName());
}

Glyph namedBy(const QObject &shown)
{
    const auto *tool = qobject_cast<const QToolButton *>(&shown);
    return tool ? namedBy(*tool) : glyphsOfNames().value(shown.objectName());
}

template <typename Shown> void giveGlyphs(const QList<Shown *> &all)
{
    for (Shown *shown : all) {
        if (const Glyph glyph = namedBy(static_cast<const QObject &>(*shown));
            shown->icon().isNull() && glyph != Glyph::None)
            setGlyph(*shown, glyph);
    }
}

} // namespace

void paintGlyph(QPainter &painter, const QRectF &area, Glyph glyph, const QColor &colour)
{
    if (glyph == Glyph::None)
        return;
    const double scale = std::min(area.width(), area.height()) / design;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center() - QPointF(design, design) * scale / 2);
    painter.scale(scale, scale);
    painter.strokePath(pathOf(glyph), QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void setGlyph(QAbstractButton &button, Glyph glyph) { show(button, glyph, Place::Button); }

void setGlyph(QAction &entry, Glyph glyph)
{
    show(entry, glyph, Place::Menu);
    if (entry.isCheckable())
        entry.setIcon({});
}

Glyph glyphOf(const QObject &shown) { return static_cast<Glyph>(shown.property(glyphProperty).toInt()); }

void giveGlyphs(const QWidget &window)
{
    giveGlyphs(window.findChildren<QAbstractButton *>());
    giveGlyphs(window.findChildren<QAction *>());
}

QPixmap glyphPixmap(const QWidget &window, Glyph glyph, int size)
{
    const double ratio = window.devicePixelRatioF();
    QPixmap pixmap(QSize(scaled(&window, size), scaled(&window, size)) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    using enum Look::Role;
    const Look::Role role = glyph == Glyph::Warning ? NoticeText : glyph == Glyph::Error ? Negative : Accent;
    const QPalette palette = window.palette();
    QPainter painter(&pixmap);
    paintGlyph(painter, QRectF(QPointF(), pixmap.deviceIndependentSize()), glyph,
               Look(palette).on(palette.color(QPalette::Window), role));
    return pixmap;
}

} // namespace Tallymere
