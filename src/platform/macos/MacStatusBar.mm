#include "platform/macos/MacStatusBar.h"

#include "platform/macos/MacImage.h"

#include <QMenu>

using barquell::StatusItemClick;

/// Lies over the item's button and sees its clicks first. What the handler leaves goes on to the button.
@interface BarquellStatusItemView : NSView
@property(nonatomic) std::function<bool(const StatusItemClick &)> handler;
@end

@implementation BarquellStatusItemView

- (BOOL)handles:(NSEvent *)event right:(BOOL)right {
    return self.handler && self.handler({[event modifierFlags], static_cast<bool>(right)});
}

- (void)mouseDown:(NSEvent *)event {
    if (![self handles:event right:NO]) {
        [super mouseDown:event];
    }
}

- (void)rightMouseDown:(NSEvent *)event {
    if (![self handles:event right:YES]) {
        [super rightMouseDown:event];
    }
}

@end

/// Follows "visible", which changes when the user drags the item out of the bar.
@interface BarquellVisibilityObserver : NSObject
@property(nonatomic) std::function<void(bool)> changed;
@end

@implementation BarquellVisibilityObserver

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    if (self.changed) {
        self.changed([[change objectForKey:NSKeyValueChangeNewKey] boolValue]);
    }
}

@end

namespace barquell {

namespace {

constexpr QSize kImageSize{18, 18}; // points; what the menu bar's own items use

class MacStatusBarItem final : public StatusBarItem {
public:
    MacStatusBarItem();
    ~MacStatusBarItem() override;
    MacStatusBarItem(const MacStatusBarItem &) = delete;
    MacStatusBarItem &operator=(const MacStatusBarItem &) = delete;

    void setAutosaveName(const QString &name) override { [_item setAutosaveName:name.toNSString()]; }
    void setRemovalAllowed(bool allowed) override {
        [_item setBehavior:allowed ? NSStatusItemBehaviorRemovalAllowed : 0];
    }
    bool isVisible() const override { return [_item isVisible]; }
    void setVisible(bool visible) override { [_item setVisible:visible]; }
    void watchVisibility(std::function<void(bool)> changed) override {
        _observer.changed = std::move(changed);
    }
    void setImage(const QIcon &image) override;
    void setToolTip(const QString &text) override {
        [[_item button] setToolTip:text.isEmpty() ? nil : text.toNSString()];
    }
    void setOpacity(double opacity) override;
    void setMenu(QMenu *menu) override { [_item setMenu:menu ? menu->toNSMenu() : nil]; }
    void performClick() override { [[_item button] performClick:nil]; }
    void setClickHandler(std::function<bool(const StatusItemClick &)> handler) override {
        _view.handler = std::move(handler);
    }

private:
    NSStatusItem *_item = [[NSStatusBar systemStatusBar] statusItemWithLength:NSVariableStatusItemLength];
    BarquellVisibilityObserver *_observer = [[BarquellVisibilityObserver alloc] init];
    BarquellStatusItemView *_view = [[BarquellStatusItemView alloc] init];
};

MacStatusBarItem::MacStatusBarItem() {
    [_item addObserver:_observer forKeyPath:@"visible" options:NSKeyValueObservingOptionNew context:nil];
    [[_item button] addSubview:_view];
}

MacStatusBarItem::~MacStatusBarItem() {
    [_item removeObserver:_observer forKeyPath:@"visible"];
    [[NSStatusBar systemStatusBar] removeStatusItem:_item];
}

void MacStatusBarItem::setImage(const QIcon &image) {
    NSImage *native = nativeImage(image, kImageSize);
    [native setTemplate:YES];
    [[_item button] setImage:native];
}

/// The last thing that drawing the item sets; its button has its final size now, which the view must cover.
void MacStatusBarItem::setOpacity(double opacity) {
    [[[_item button] animator] setAlphaValue:opacity];
    [_view setFrame:[[_item button] bounds]];
}

} // namespace

std::unique_ptr<StatusBarItem> MacStatusBar::createItem() {
    return std::make_unique<MacStatusBarItem>();
}

} // namespace barquell
