// The steps of the launch, in one list.

#include "app/AppFixture.h"
#include "foundation/NotificationCenter.h"
#include "process/AppHelpers.h"
#include "shortcuts/ShortcutMonitor.h"

namespace barquell::test {
namespace {

using Steps = std::vector<std::string>;

class NotedWorkspace final : public Workspace {
public:
    NotedWorkspace(Workspace &real, Steps &steps) : _real(real), _steps(steps) {}

    std::optional<RunningApplication> frontmostApplication() const override {
        _steps.emplace_back("look what is in front");
        return _real.frontmostApplication();
    }
    bool canKnowFrontmostApplication() const override { return _real.canKnowFrontmostApplication(); }
    std::unique_ptr<Observation> observeActivation(std::function<void()> handler) override {
        _steps.emplace_back("follow what is in front");
        return _real.observeActivation(std::move(handler));
    }
    int runningCopies(const QString &bundleIdentifier) const override {
        _steps.emplace_back("count copies");
        return _real.runningCopies(bundleIdentifier);
    }
    bool openUrl(const QUrl &url) override { return _real.openUrl(url); }

private:
    Workspace &_real;
    Steps &_steps;
};

class NotedNotifications final : public DistributedNotifications {
public:
    NotedNotifications(DistributedNotifications &real, Steps &steps) : _real(real), _steps(steps) {}

    void post(const QString &name) override { _real.post(name); }
    std::unique_ptr<Observation> observe(const QString &name, Handler handler) override {
        int shortcuts = 0;
        for (const char *monitor : {"ToggleShortcut", "BypassShortcut", "RevealShortcut"}) {
            shortcuts += ShortcutMonitor::existingMonitorWithName(QString::fromLatin1(monitor)) ? 1 : 0;
        }
        _steps.push_back(name.toStdString() + " with " + std::to_string(shortcuts) + " shortcuts");
        return _real.observe(name, std::move(handler));
    }

private:
    DistributedNotifications &_real;
    Steps &_steps;
};

class NotedStatusBar final : public StatusBar {
public:
    NotedStatusBar(StatusBar &real, Steps &steps) : _real(real), _steps(steps) {}

    std::unique_ptr<StatusBarItem> createItem() override {
        _steps.emplace_back("status item");
        return _real.createItem();
    }
    bool hasHost() const override { return _real.hasHost(); }

private:
    StatusBar &_real;
    Steps &_steps;
};

class NotedPanels final : public OverlayPanels {
public:
    NotedPanels(OverlayPanels &real, Steps &steps) : _real(real), _steps(steps) {}

    std::unique_ptr<OverlayPanel> createPanel() override {
        _steps.emplace_back("HUD");
        return _real.createPanel();
    }
    QRectF mainScreenFrame() const override { return _real.mainScreenFrame(); }

private:
    OverlayPanels &_real;
    Steps &_steps;
};

class NotedChanges final : public ChangeObserver {
public:
    explicit NotedChanges(Steps &steps) : _steps(steps) {}

    void observeValueForKeyPath(const QString &keyPath, Observable * /*object*/, const QVariant & /*value*/,
                                const ObservingContext & /*context*/) override {
        _steps.push_back(keyPath.toStdString());
    }

private:
    Steps &_steps;
};

class LaunchOrderTest : public AppFixture {
protected:
    LaunchOrderTest() {
        UserDefaults::standard().addObserver(changes, QStringLiteral("LTADisplayDate"), {});
        NotificationCenter::defaultCenter().addObserver(
            observer, foregroundWindowNotification(),
            [this](const Notification &) { steps.emplace_back("first window"); });
        Platform noted = platform();
        noted.workspace = &workspace;
        noted.distributedNotifications = &notifications;
        noted.statusBar = &statusBar;
        noted.overlayPanels = &panels;
        installPlatform(noted);
    }
    ~LaunchOrderTest() override {
        here.platform.install();
        UserDefaults::standard().removeObserver(changes, QStringLiteral("LTADisplayDate"));
    }
    Q_DISABLE_COPY_MOVE(LaunchOrderTest)

    Steps steps;
    NotedChanges changes{steps};
    QObject observer;
    NotedWorkspace workspace{here.platform.workspace, steps};
    NotedNotifications notifications{here.platform.notifications, steps};
    NotedStatusBar statusBar{here.platform.statusBar, steps};
    NotedPanels panels{here.platform.overlayPanels, steps};
};

TEST_F(LaunchOrderTest, TheStepsFollowEachOther) {
    prepareSettings();
    set("ShowHUD", true);
    application.load();
    steps.clear();
    QObject::connect(&controller(), &AppController::launched, &controller(),
                     [this] { steps.emplace_back("launched"); });
    controller().applicationDidFinishLaunching();
    EXPECT_THAT(here.platform.taps.journal, testing::Not(testing::Contains("enable tap")));
    here.loop.runPending();
    EXPECT_THAT(steps, testing::ElementsAre("count copies", "com.vexolith.barquell.quit with 0 shortcuts",
                                            "com.vexolith.barquell.show with 0 shortcuts",
                                            "com.apple.shieldWindowRaised with 3 shortcuts",  //
                                            "com.apple.shieldWindowLowered with 3 shortcuts", //
                                            "com.vexolith.barquell.toggle with 3 shortcuts",  //
                                            "status item", "com.apple.accessibility.api with 3 shortcuts",
                                            "HUD", "LTADisplayDate", "first window", //
                                            "follow what is in front", "look what is in front", "launched"));
    EXPECT_THAT(here.platform.taps.journal, testing::Contains("enable tap"));
    EXPECT_TRUE(preferencesAreShown());
}

} // namespace
} // namespace barquell::test
