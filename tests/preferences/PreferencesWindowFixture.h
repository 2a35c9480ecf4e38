#pragma once

#include "TestTab.h"

#include "foundation/UserDefaults.h"
#include "foundation/interface/InterfaceClasses.h"
#include "preferences/PreferencesClasses.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QToolBar>

#include <gmock/gmock.h>

namespace barquell::test {

/// A preferences window with eleven tabs, an expert tab and one aside, on a scripted place.
class PreferencesWindowFixture : public testing::Test {
protected:
    PreferencesWindowFixture() {
        here.loop.runPending();
        registerPreferencesClasses();
        InterfaceClasses::add<TestTab>("TestTab");
        UserDefaults::standard().registerDefaults({{QStringLiteral("AnimatedWindowSizing"), true}});
    }

    static void set(const char *key, const QVariant &value) {
        UserDefaults::standard().setObject(value, QString::fromLatin1(key));
    }
    static QVariant stored(const char *key) {
        return UserDefaults::standard().persistentDomain().value(QString::fromLatin1(key));
    }

    void open() {
        controller = PreferencesWindowController::create(QStringLiteral("ElevenTabs"));
        ASSERT_TRUE(controller);
    }

    void show() {
        open();
        controller->showWindow(nullptr);
        here.loop.runPending(); // the process comes to the foreground first
    }

    TestTab *tab(const char *identifier) {
        return qobject_cast<TestTab *>(controller->tabs().value(QString::fromLatin1(identifier)));
    }

    TestTab *current() { return qobject_cast<TestTab *>(controller->currentTab()); }
    QString currentIdentifier() { return controller->currentTab()->identifier(); }

    void select(const char *identifier) {
        if (controller->setCurrentTabIdentifier(QString::fromLatin1(identifier))) {
            controller->presentCurrentTabActivateWindow(false);
        }
    }

    /// Whatever is animated comes to its end.
    void settle() { here.loop.advanceBy(std::chrono::seconds(1)); }

    PreferencesWindow &window() { return *controller->window(); }
    QWidget &content() { return *window().contentView()->contentView(); }
    int toolbarHeight() { return window().findChild<QToolBar *>()->sizeHint().height(); }

    static KeyEvent key(const char *characters, ModifierFlags flags, bool isARepeat = false) {
        return {KeyEvent::Type::KeyDown, 0, flags, QString::fromLatin1(characters), isARepeat};
    }

    Place &here = place();
    LogCapture log;
    std::unique_ptr<PreferencesWindowController> controller;
};

} // namespace barquell::test
