#include "contract/ContractPlace.h"
#include "platform/simulated/ScriptedPlatform.h"

namespace barquell::test {

namespace {

class SimulatedPlace final : public ContractPlace {
public:
    Platform pieces() override {
        return {.eventTaps = &_scripted.taps,
                .modifierState = &_scripted.modifiers,
                .accessibilityTrust = &_scripted.trust,
                .distributedNotifications = &_scripted.notifications,
                .settingsStore = &_scripted.settings,
                .hotKeys = &_scripted.hotKeys,
                .keyboardLayout = &_scripted.keyboardLayout,
                .keyEvents = &_scripted.keyEvents,
                .workspace = &_scripted.workspace,
                .applications = &_scripted.applications,
                .loginItem = &_scripted.loginItem,
                .appLifecycle = &_scripted.lifecycle,
                .statusBar = &_scripted.statusBar,
                .overlayPanels = &_scripted.overlayPanels,
                .diagnostics = &_scripted.diagnostics};
    }
    void editFromOutside(const QString &key, const QVariant &value) override {
        _scripted.settings.editFromOutside(key, value);
    }
    bool setTrusted(bool trusted) override {
        _scripted.trust.trusted = trusted;
        return true;
    }
    bool holdModifiers(ModifierFlags flags) override {
        _scripted.modifiers.flags = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        _scripted.taps.deliver(event);
        return true;
    }
    bool touch() override {
        ScriptedEvent event(EventType::Gesture, _scripted.modifiers.flags);
        event.touch(kTouchBegan);
        _scripted.taps.deliver(event);
        return true;
    }

private:
    ScriptedPlatform _scripted;
};

} // namespace

PlaceKind simulatedPlace() {
    return {"Simulated",
            []() -> std::unique_ptr<ContractPlace> { return std::make_unique<SimulatedPlace>(); }};
}

} // namespace barquell::test
