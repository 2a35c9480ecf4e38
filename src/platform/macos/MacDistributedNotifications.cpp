#include "platform/macos/MacDistributedNotifications.h"

#include "platform/macos/CFOwner.h"

#include "foundation/RunLoop.h"

namespace barquell {

namespace {

class Registration final : public Observation {
public:
    Registration(const QString &name, DistributedNotifications::Handler handler)
        : _handler(std::make_shared<DistributedNotifications::Handler>(std::move(handler))),
          _name(name.toCFString()) {
        CFNotificationCenterAddObserver(CFNotificationCenterGetDistributedCenter(), this, &arrived,
                                        _name.get(), nullptr,
                                        CFNotificationSuspensionBehaviorDeliverImmediately);
    }
    ~Registration() override {
        CFNotificationCenterRemoveObserver(CFNotificationCenterGetDistributedCenter(), this, _name.get(),
                                           nullptr);
    }
    Registration(const Registration &) = delete;
    Registration &operator=(const Registration &) = delete;

private:
    static void arrived(CFNotificationCenterRef /*center*/, void *observer, CFNotificationName name,
                        const void * /*object*/, CFDictionaryRef /*userInfo*/) {
        const std::weak_ptr<DistributedNotifications::Handler> handler =
            static_cast<Registration *>(observer)->_handler;
        RunLoop::main().performAsync([handler, text = QString::fromCFString(name)] {
            if (const auto held = handler.lock()) {
                (*held)(text);
            }
        });
    }

    std::shared_ptr<DistributedNotifications::Handler> _handler; // what is under way dies with it
    CFOwner<CFStringRef> _name;
};

} // namespace

void MacDistributedNotifications::post(const QString &name) {
    const CFOwner text(name.toCFString());
    CFNotificationCenterPostNotification(CFNotificationCenterGetDistributedCenter(), text.get(), nullptr,
                                         nullptr, true);
}

std::unique_ptr<Observation> MacDistributedNotifications::observe(const QString &name, Handler handler) {
    return std::make_unique<Registration>(name, std::move(handler));
}

} // namespace barquell
