#pragma once

#include "preferences/NestedLoop.h"

#include <QCoreApplication>

#include <memory>

namespace barquell {

/// The one controller of its class, which lives while its window is open. It may let itself go from inside
/// its window's closing: what has been let go is deleted from the event loop.
template <typename Controller>
class SharedController {
public:
    static Controller *get() { return instance().get(); }

    static void set(std::unique_ptr<Controller> controller) {
        static const bool endsWithTheApplication = [] {
            qAddPostRoutine([] { const std::unique_ptr<Controller> last(instance().release()); });
            return true;
        }();
        Q_UNUSED(endsWithTheApplication);
        instance().reset(controller.release());
    }

    /// Nothing where the shared one is another.
    static void letGo(const Controller *controller) {
        if (get() == controller) {
            instance().reset();
        }
    }

private:
    struct DeleteLater {
        void operator()(Controller *controller) const { NestedLoop::release(controller); }
    };

    static std::unique_ptr<Controller, DeleteLater> &instance() {
        static std::unique_ptr<Controller, DeleteLater> shared;
        return shared;
    }
};

} // namespace barquell
