#include "platform/linux/session/LinuxWorkspace.h"

#include "foundation/RunLoop.h"

namespace barquell {

LinuxWorkspace::LinuxWorkspace(std::unique_ptr<XDesktop> connection, DesktopEntries &entries,
                               RunningCopies &copies, UrlOpener urlOpener)
    : _entries(entries), _copies(copies), _urlOpener(std::move(urlOpener)),
      _frontWindow(std::move(connection), [this] { tell(); }) {
    look();
}

std::unique_ptr<Observation> LinuxWorkspace::observeActivation(std::function<void()> handler) {
    class Held final : public Observation {
    public:
        explicit Held(std::shared_ptr<std::function<void()>> handler) : _handler(std::move(handler)) {}

    private:
        std::shared_ptr<std::function<void()>> _handler;
    };
    std::erase_if(_observers, [](const auto &each) { return each.expired(); });
    auto held = std::make_shared<std::function<void()>>(std::move(handler));
    _observers.push_back(held);
    return std::make_unique<Held>(std::move(held));
}

void LinuxWorkspace::look() {
    const auto &facts = _frontWindow.facts();
    _frontmost = facts ? std::optional(applicationOfWindow(*facts, _entries)) : std::nullopt;
}

void LinuxWorkspace::tell() {
    const auto before = _frontmost;
    look();
    if (before == _frontmost) {
        return; // another window of the same application
    }
    for (const auto &each : _observers) {
        RunLoop::main().performAsync([each] {
            if (const auto handler = each.lock()) {
                (*handler)();
            }
        });
    }
}

} // namespace barquell
