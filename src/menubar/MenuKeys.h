#pragma once

#include <QObject>

class QMenu;

namespace barquell {

/// Lets the keys that a menu shows beside its items choose them while it is open: a menu without a window
/// would else show keys that do nothing. Main thread only.
class MenuKeys final : public QObject {
public:
    explicit MenuKeys(QMenu &menu);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace barquell
