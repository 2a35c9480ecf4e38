#pragma once

#include "platform/AppLifecycle.h"

#include <string>
#include <vector>

namespace barquell {

/// An application whose life a script tells. It runs no loop: run() returns at once.
class ScriptedAppLifecycle final : public AppLifecycle {
public:
    void setDelegate(AppLifecycleDelegate *delegate) override { _delegate = delegate; }
    AppLifecycleDelegate *delegate() const override { return _delegate; }

    int run() override {
        journal.emplace_back("run");
        return 0;
    }

    void terminate() override {
        journal.emplace_back("terminate");
        if (_delegate) {
            _delegate->applicationWillTerminate();
        }
    }

    ActivationPolicy activationPolicy() const override { return policy; }

    void setActivationPolicy(ActivationPolicy wanted) override {
        journal.emplace_back(wanted == ActivationPolicy::Regular ? "become regular" : "become accessory");
        policy = wanted;
    }

    void activate() override { journal.emplace_back("activate"); }
    void bringFirstProcessToFront() override { journal.emplace_back("bring first process to front"); }

    ActivationPolicy policy = ActivationPolicy::Accessory;

    /// The calls that were made, in their order.
    std::vector<std::string> journal;

private:
    AppLifecycleDelegate *_delegate = nullptr;
};

} // namespace barquell
