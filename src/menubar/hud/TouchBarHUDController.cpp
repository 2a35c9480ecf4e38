#include "menubar/hud/TouchBarHUDController.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Values.h"
#include "menubar/hud/HUDGeometry.h"
#include "platform/Platform.h"
#include "process/Helpers.h"

namespace barquell {

namespace {

constexpr std::chrono::milliseconds kFullyVisible{1000};
constexpr std::chrono::milliseconds kFade{500};

} // namespace

TopLevelObjects TouchBarHUDController::loadFromNib(QObject *owner) {
    TopLevelObjects objects;
    Helpers::loadNibNamed(QStringLiteral("TouchBarHUD"), owner, &objects);
    return objects;
}

TouchBarHUDController::TouchBarHUDController(QObject *parent) : KeyValueObserver(parent) {
    NotificationCenter::defaultCenter().addObserver(
        *this, touchBarStateChangedNotification(),
        [this](const Notification &notification) { touchBatStateDidChange(&notification); });
    subscribeToUserDefaultsKeyPath(QStringLiteral("HUDLocation"), "observeHUDLocation:", true);
    subscribeToUserDefaultsKeyPath(QStringLiteral("ShowHUDFrontApp"), "observeShowHUDFrontApp:", true);
    subscribeToUserDefaultsKeyPath(QStringLiteral("ShowHUDPauseKeys"), "observeShowHUDPauseKeys:", true);
}

TouchBarHUDController::~TouchBarHUDController() {
    NotificationCenter::defaultCenter().removeObserver(*this);
    closeWindow();
}

void TouchBarHUDController::awakeFromNib() {
    if (OverlayPanels *panels = platform().overlayPanels) {
        _window = panels->createPanel();
    }
    if (TouchBarInterceptor::effectivelyEnabled()) {
        displayVariant(_offVariant);
    }
}

void TouchBarHUDController::touchBatStateDidChange(const Notification *notification) {
    const QVariant source =
        notification ? notification->userInfo.value(QStringLiteral("source")) : QVariant();
    if (!sourceIsAllowed(static_cast<std::int32_t>(integerValue(source)))) {
        return;
    }
    // The state may have moved on since the notification was posted.
    displayVariant(TouchBarInterceptor::effectivelyEnabled() ? _offVariant : _onVariant);
}

bool TouchBarHUDController::sourceIsAllowed(std::int32_t source) const {
    // The low five bits choose the bit, so a source of 33 is allowed with source 1.
    const std::uint32_t bit = std::uint32_t{1} << (static_cast<std::uint32_t>(source) & 31U);
    return source == 0 || (_sourceAllowedFlags & bit) != 0;
}

void TouchBarHUDController::allowSource(int source, bool allowed) {
    const std::uint32_t bit = std::uint32_t{1} << source;
    _sourceAllowedFlags = allowed ? _sourceAllowedFlags | bit : _sourceAllowedFlags & ~bit;
}

void TouchBarHUDController::observeHUDLocation(const QVariant &value) {
    _hudLocation = static_cast<std::int32_t>(integerValue(value));
    if (_window) {
        touchBatStateDidChange(nullptr); // lets the user see the new place
    }
}

void TouchBarHUDController::observeShowHUDFrontApp(const QVariant &value) {
    allowSource(StateChangeSourcePauseFlags, boolValue(value));
}

void TouchBarHUDController::observeShowHUDPauseKeys(const QVariant &value) {
    allowSource(StateChangeSourcePauseKeys, boolValue(value));
}

void TouchBarHUDController::displayVariant(TouchBarHUDVariant *variant) {
    if (!_window) {
        return;
    }
    HUDPlate *view = nullptr;
    if (variant) {
        view = hudUsesLargeView(_hudLocation) ? variant->largeView() : variant->smallView();
    }
    const QSizeF size = view ? QSizeF(view->size()) : QSizeF(0, 0);
    const QRectF frame = hudFrame(_hudLocation, platform().overlayPanels->mainScreenFrame(), size);
    _window->setContent(view);
    _fadeOutTimer = RunLoop::main().scheduleOnce(kFullyVisible, [this] { fadeOutTimerDidFire(); });
    // After the new timer, since a fade that is stopped ends at once and must not take this display away.
    _window->stopAnimations();
    _window->setFrame(frame);
    _window->setOpacity(1);
    _window->orderFront();
}

void TouchBarHUDController::fadeOutTimerDidFire() {
    _fadeOutTimer.reset();
    _window->animateOpacity(0, kFade, [self = QPointer(this)] {
        if (self) {
            self->finishFadeOut();
        }
    });
}

void TouchBarHUDController::finishFadeOut() {
    if (!_fadeOutTimer) {
        _window->orderOut();
    }
}

void TouchBarHUDController::closeWindow() {
    _fadeOutTimer.reset();
    if (_window) {
        _window->close();
    }
}

} // namespace barquell
