#include "foundation/interface/ContentsPicture.h"

#include <QLayout>
#include <QWidget>

namespace barquell {

namespace {

/// Parts that were never shown are hidden as well until their view is shown; those hidden on purpose stay so.
bool isLeftOut(const QWidget &part) {
    return part.isHidden() && part.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

QPixmap contentsPicture(QWidget &view, qreal scale) {
    view.ensurePolished();
    if (QLayout *layout = view.layout()) {
        layout->activate(); // else a view that was never shown has not laid them out
    }
    QPixmap picture(view.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    for (QWidget *part : view.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!isLeftOut(*part)) {
            part->render(&picture, part->pos(), QRegion(), QWidget::DrawChildren);
        }
    }
    return picture;
}

} // namespace barquell
