#include "platform/simulated/ScriptedWorkspace.h"

#include "foundation/RunLoop.h"

namespace barquell {

std::unique_ptr<Observation> ScriptedWorkspace::observeActivation(std::function<void()> handler) {
    class Held final : public Observation {
    public:
        explicit Held(std::shared_ptr<Handler> handler) : _handler(std::move(handler)) {}

    private:
        std::shared_ptr<Handler> _handler;
    };
    auto held = std::make_shared<Handler>(std::move(handler));
    _handlers.push_back(held);
    return std::make_unique<Held>(std::move(held));
}

bool ScriptedWorkspace::openUrl(const QUrl &url) {
    openedUrls.append(url);
    return opensUrls;
}

void ScriptedWorkspace::bringToFront(const std::optional<RunningApplication> &application) {
    frontmost = application;
    std::erase_if(_handlers, [](const auto &handler) { return handler.expired(); });
    for (const std::weak_ptr<Handler> &each : _handlers) {
        RunLoop::main().performAsync([each] {
            if (const auto handler = each.lock()) {
                (*handler)();
            }
        });
    }
}

} // namespace barquell
