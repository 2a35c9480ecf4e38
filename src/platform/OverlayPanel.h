#pragma once

#include <QRectF>

#include <chrono>
#include <functional>
#include <memory>

class QWidget;

namespace barquell {

/// A window above all others and on every workspace, borderless, without shadow, clear behind its content. It
/// takes neither clicks nor the focus. Its destruction closes it. Coordinates are points with y growing
/// upward from the lower edge of the primary screen. Main thread only.
/// macOS: a borderless NSWindow of level 1500 that can join all spaces and ignores mouse events.
class OverlayPanel {
public:
    virtual ~OverlayPanel() = default;

    /// Shows this view alone, at its own size; nullptr shows nothing. The view stays its owner's.
    /// macOS: removes the content view's first subview, adds the other.
    virtual void setContent(QWidget *view) = 0;

    /// macOS: setFrame:display:YES.
    virtual void setFrame(const QRectF &frame) = 0;

    /// 0 to 1, at once. macOS: setAlphaValue:.
    virtual void setOpacity(double opacity) = 0;

    /// Goes to the opacity over the duration and calls `finished` then; also where it was stopped.
    /// macOS: NSAnimationContext runAnimationGroup:completionHandler: and the window's animator.
    virtual void animateOpacity(double opacity, std::chrono::milliseconds duration,
                                std::function<void()> finished) = 0;

    /// macOS: stopAnimation to each of the window's animations.
    virtual void stopAnimations() = 0;

    /// Without activating the application. macOS: orderFront:.
    virtual void orderFront() = 0;

    /// macOS: orderOut:.
    virtual void orderOut() = 0;

    /// The panel can be shown again. A fade ends with it, and its `finished` need not come.
    /// macOS: close, with releasedWhenClosed off.
    virtual void close() = 0;

protected:
    OverlayPanel() = default;
    OverlayPanel(const OverlayPanel &) = default;
    OverlayPanel &operator=(const OverlayPanel &) = default;
};

class OverlayPanels {
public:
    virtual ~OverlayPanels() = default;

    virtual std::unique_ptr<OverlayPanel> createPanel() = 0;

    /// The whole screen that has the keyboard's focus, panels and menu bar included, in the coordinates of
    /// panels; the zero rectangle where there is none. macOS: [[NSScreen mainScreen] frame].
    virtual QRectF mainScreenFrame() const = 0;

protected:
    OverlayPanels() = default;
    OverlayPanels(const OverlayPanels &) = default;
    OverlayPanels &operator=(const OverlayPanels &) = default;
};

} // namespace barquell
