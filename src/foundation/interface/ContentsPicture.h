#pragma once

#include <QPixmap>

class QWidget;

namespace barquell {

/// What lies on a view, without what the view paints itself and clear elsewhere, for a place that shows it on
/// a plate of the system's own. Of the view's size, with `scale` pixels a point. The view need never have
/// been shown.
QPixmap contentsPicture(QWidget &view, qreal scale);

} // namespace barquell
