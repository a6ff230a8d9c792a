#pragma once

#include "base/glyph.h"

#include <QIcon>

class QAbstractButton;
class QAction;
class QWidget;

namespace Tallymere {

// The icons of commands and of message boxes: line drawings in the accent of the palette in force when they are painted, at
// whatever size. Each is a file in glyphs/.

// What shows a command: its sign, as it is drawn on a button or in a menu.
void setGlyph(QAbstractButton &button, Glyph glyph);
void setGlyph(QAction &entry, Glyph glyph); // one that is checked keeps the place for its mark
// What was set; None where nothing was.
Glyph glyphOf(const QObject &shown);

// Buttons of a form and entries of menus have the sign of what their component name says that they do ("btnPrint"), unless
// they have one already.
void giveGlyphs(const QWidget &window);

// For message boxes.
QPixmap glyphPixmap(const QWidget &window, Glyph glyph, int size); // in design pixels

// In one colour. Nothing for None.
void paintGlyph(QPainter &painter, const QRectF &area, Glyph glyph, const QColor &colour);

} // namespace Tallymere
