#include "platform/macos/MacOverlayPanels.h"

#include "platform/macos/MacImage.h"

#include "foundation/interface/ContentsPicture.h"

#include <QWidget>

#include <utility>

#import <AppKit/AppKit.h>
#import <QuartzCore/QuartzCore.h>

namespace barquell {

namespace {

constexpr NSInteger kPanelLevel = 1500; // above the menu bar, the Dock and full-screen windows
constexpr CGFloat kCornerRadius = 20.0;

/// A plate that blurs what is behind it, of the view's size and with its picture.
NSVisualEffectView *plateWith(QWidget &view) {
    const NSRect frame = NSMakeRect(0, 0, view.width(), view.height());
    NSVisualEffectView *plate = [[NSVisualEffectView alloc] initWithFrame:frame];
    [plate setBlendingMode:NSVisualEffectBlendingModeBehindWindow];
    [plate setState:NSVisualEffectStateActive];
    [plate setMaterial:NSVisualEffectMaterialPopover];
    [plate setWantsLayer:YES];
    [[plate layer] setFrame:frame];
    plate.layer.cornerRadius = kCornerRadius;
    plate.layer.masksToBounds = YES;
    NSImageView *picture = [[NSImageView alloc] initWithFrame:frame];
    [picture setImage:nativeImage(QIcon(contentsPicture(view, screenScale())), view.size())];
    [plate addSubview:picture];
    return plate;
}

/// Who wants to hear of a fade's end.
struct Fade {
    std::function<void()> finished;

    void tell() {
        if (const auto telling = std::exchange(finished, nullptr)) {
            telling();
        }
    }
};

class MacOverlayPanel final : public OverlayPanel {
public:
    MacOverlayPanel();
    ~MacOverlayPanel() override { [_window close]; }
    MacOverlayPanel(const MacOverlayPanel &) = delete;
    MacOverlayPanel &operator=(const MacOverlayPanel &) = delete;

    void setContent(QWidget *view) override;
    void setFrame(const QRectF &frame) override { [_window setFrame:frame.toCGRect() display:YES]; }
    void setOpacity(double opacity) override { [_window setAlphaValue:opacity]; }
    void animateOpacity(double opacity, std::chrono::milliseconds duration,
                        std::function<void()> finished) override;
    void stopAnimations() override;
    void orderFront() override { [_window orderFront:nil]; }
    void orderOut() override { [_window orderOut:nil]; }
    void close() override {
        _fade.reset();
        [_window close];
    }

private:
    std::shared_ptr<Fade> _fade; // the one that runs, if any does; the window's animation knows it weakly
    NSWindow *_window = [[NSWindow alloc] initWithContentRect:NSZeroRect
                                                    styleMask:NSWindowStyleMaskBorderless
                                                      backing:NSBackingStoreBuffered
                                                        defer:YES];
};

MacOverlayPanel::MacOverlayPanel() {
    [_window setOpaque:NO];
    [_window setBackgroundColor:[NSColor clearColor]];
    [_window setIgnoresMouseEvents:YES];
    [_window setReleasedWhenClosed:NO];
    [_window setLevel:kPanelLevel];
    [_window setCollectionBehavior:NSWindowCollectionBehaviorCanJoinAllSpaces];
    [_window setHasShadow:NO];
    [[_window contentView] setAutoresizesSubviews:NO];
}

void MacOverlayPanel::setContent(QWidget *view) {
    NSView *content = [_window contentView];
    [[[content subviews] firstObject] removeFromSuperview];
    if (view) {
        [content addSubview:plateWith(*view)];
    }
}

void MacOverlayPanel::animateOpacity(double opacity, std::chrono::milliseconds duration,
                                     std::function<void()> finished) {
    stopAnimations();
    _fade = std::make_shared<Fade>(Fade{std::move(finished)});
    const std::weak_ptr<Fade> fade = _fade;
    NSWindow *window = _window;
    const double seconds = std::chrono::duration<double>(duration).count();
    [NSAnimationContext
        runAnimationGroup:^(NSAnimationContext *context) {
          [context setDuration:seconds];
          [[window animator] setAlphaValue:opacity];
        }
        completionHandler:^{
          if (const auto running = fade.lock()) {
              running->tell();
          }
        }];
}

void MacOverlayPanel::stopAnimations() {
    for (id animation in [[_window animations] allValues]) {
        if ([animation respondsToSelector:@selector(stopAnimation)]) {
            [animation stopAnimation];
        }
    }
    if (const auto stopped = std::exchange(_fade, nullptr)) {
        // What the animator runs is in no list; a step to where it is, which takes no time, takes its place.
        NSWindow *window = _window;
        [NSAnimationContext
            runAnimationGroup:^(NSAnimationContext *context) {
              [context setDuration:0];
              [[window animator] setAlphaValue:[window alphaValue]];
            }
            completionHandler:nil];
        stopped->tell();
    }
}

} // namespace

std::unique_ptr<OverlayPanel> MacOverlayPanels::createPanel() {
    return std::make_unique<MacOverlayPanel>();
}

QRectF MacOverlayPanels::mainScreenFrame() const {
    NSScreen *screen = [NSScreen mainScreen];
    return screen ? QRectF::fromCGRect([screen frame]) : QRectF();
}

} // namespace barquell
