#include "preferences/FittingSize.h"

#include <QLayout>
#include <QWidget>

namespace barquell {

void growToContents(QWidget &view) {
    QLayout *layout = view.layout();
    if (!layout) {
        return;
    }
    const QSize size = layout->totalSizeHint().expandedTo(view.size());
    const int height =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(size.width()) : size.height();
    view.resize(size.width(), std::max(height, view.height()));
}

} // namespace barquell
