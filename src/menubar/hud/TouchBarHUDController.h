#pragma once

#include "foundation/RunLoop.h"
#include "foundation/interface/InterfaceFile.h"
#include "menubar/hud/TouchBarHUDVariant.h"
#include "platform/OverlayPanel.h"

#include <QPointer>

#include <cstdint>
#include <memory>

namespace barquell {

struct Notification;

/// Flashes a picture on the screen whenever the effective blocking state changes and the settings want to see
/// that kind of change: fully visible for 1.0 s after the last change, then fading over 0.5 s. Made from the
/// interface file "TouchBarHUD". Where the place has no overlay panels it shows nothing. Main thread only.
class TouchBarHUDController final : public KeyValueObserver {
    Q_OBJECT
    Q_PROPERTY(barquell::TouchBarHUDVariant *onVariant READ onVariant WRITE setOnVariant)
    Q_PROPERTY(barquell::TouchBarHUDVariant *offVariant READ offVariant WRITE setOffVariant)

public:
    /// Loads the interface file, which sets the owner's `touchBarHUDController`. The HUD lives as long as the
    /// objects that are returned; there are none where the file could not be loaded.
    static TopLevelObjects loadFromNib(QObject *owner);

    explicit TouchBarHUDController(QObject *parent = nullptr);
    ~TouchBarHUDController() override;
    Q_DISABLE_COPY_MOVE(TouchBarHUDController)

    /// Null before the interface file is loaded, and where the place has no panels.
    OverlayPanel *window() const { return _window.get(); }

    /// The look while blocking is not in force: the Touch Bar works.
    TouchBarHUDVariant *onVariant() const { return _onVariant; }
    void setOnVariant(TouchBarHUDVariant *variant) { _onVariant = variant; }

    /// The look while blocking is in force: the Touch Bar is off.
    TouchBarHUDVariant *offVariant() const { return _offVariant; }
    void setOffVariant(TouchBarHUDVariant *variant) { _offVariant = variant; }

    /// Makes the panel; with blocking in force it is seen at once.
    Q_INVOKABLE void awakeFromNib();

    /// Shows the state as it is now, where the notification's "source" may be shown. None counts as source 0.
    void touchBatStateDidChange(const Notification *notification);

    Q_INVOKABLE void observeHUDLocation(const QVariant &value);
    Q_INVOKABLE void observeShowHUDFrontApp(const QVariant &value);
    Q_INVOKABLE void observeShowHUDPauseKeys(const QVariant &value);

    /// Shows a look now; nullptr an empty panel.
    void displayVariant(TouchBarHUDVariant *variant);

    /// Ends the display and its timer. A later change of state shows it again.
    void closeWindow();

private:
    bool sourceIsAllowed(std::int32_t source) const;
    void allowSource(int source, bool allowed);
    void fadeOutTimerDidFire();
    void finishFadeOut();

    /// None is also the mark that no new display began since the fade started.
    std::unique_ptr<RunLoop::Timer> _fadeOutTimer;
    std::int32_t _hudLocation = 0;
    std::uint32_t _sourceAllowedFlags = 0; ///< bit n: changes of source n are shown; source 0 needs none
    std::unique_ptr<OverlayPanel> _window;
    QPointer<TouchBarHUDVariant> _onVariant;
    QPointer<TouchBarHUDVariant> _offVariant;
};

} // namespace barquell
