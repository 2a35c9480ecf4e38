#pragma once

#include "menubar/hud/HUDPlate.h"
#include "observing/KeyValueObserver.h"

#include <QPointer>

namespace barquell {

/// One look of the HUD, in two sizes. Its views belong to the interface file and are in no window until they
/// are shown.
class TouchBarHUDVariant final : public KeyValueObserver {
    Q_OBJECT
    Q_PROPERTY(barquell::HUDPlate *largeView READ largeView WRITE setLargeView)
    Q_PROPERTY(barquell::HUDPlate *smallView READ smallView WRITE setSmallView)

public:
    using KeyValueObserver::KeyValueObserver;

    /// For the centre of the screen.
    HUDPlate *largeView() const { return _largeView; }
    void setLargeView(HUDPlate *view) { _largeView = view; }

    /// For its corners.
    HUDPlate *smallView() const { return _smallView; }
    void setSmallView(HUDPlate *view) { _smallView = view; }

    /// Prepares both views.
    Q_INVOKABLE void awakeFromNib();

private:
    QPointer<HUDPlate> _largeView;
    QPointer<HUDPlate> _smallView;
};

} // namespace barquell
