#pragma once

#include <QPainterPath>

class QIODevice;

namespace Tallymere {

// The strokes of a drawing: the paths of an SVG file, whose "d" may hold the absolute commands M, L, H, V, C and Z. Empty
// where the file holds anything else.
QPainterPath glyphPath(QIODevice &svg);

} // namespace Tallymere
