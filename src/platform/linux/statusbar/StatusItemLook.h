#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace barquell {

/// How a status item is to be shown, on whichever kind of panel.
struct StatusItemLook {
    QString name;    ///< under which panels remember its place
    QIcon image;     ///< a template: only its shape counts
    QColor color;    ///< of the shape
    QString toolTip; ///< empty for none
    double opacity = 1;
    bool visible = true;
};

} // namespace barquell
