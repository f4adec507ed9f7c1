// The small square that shows a colour beside its name.
#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>
#include <QWidget>

namespace wheelwright {

// Sharp at every size, with an edge that stands out from light and dark backgrounds.
QIcon SwatchIcon(const QColor& color);

// The size for a list's rows: a little more than the letters beside it, so that the squares of two
// rows don't touch.
QSize SwatchIconSize(const QWidget& list);

}  // namespace wheelwright
