// Every setting has a control with a name, and every control a setting.

#include "AppsFixture.h"

#include "shortcuts/controls/ShortcutCaptureButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSet>

namespace barquell::test {

namespace {

/// All settings, but for those that the program alone writes: the date of the rating prompt, the tab and the
/// sizes of this window, the folders of panels, and "Active", which other programs set.
const QSet<QString> kSettings{"Enabled",
                              "PauseKeyAllowed",
                              "PauseKeyFn",
                              "PauseKeyCommand",
                              "PauseKeyOption",
                              "PauseKeyControl",
                              "PauseKeyShift",
                              "PauseKeyCommandType",
                              "PauseKeyOptionType",
                              "PauseKeyControlType",
                              "PauseKeyShiftType",
                              "ClearPauseKeys",
                              "ShowStatusItem",
                              "ShowHUD",
                              "HUDLocation",
                              "ShowHUDPauseKeys",
                              "ShowHUDFrontApp",
                              "SilentStart",
                              "AnimatedWindowSizing",
                              "BypassApps",
                              "ToggleShortcut",
                              "BypassShortcut",
                              "RevealShortcut",
                              "ToggleShortcutEnabled",
                              "BypassShortcutEnabled",
                              "RevealShortcutEnabled",
                              "OptionalDockIcon",
                              "LaunchAtStart",
                              "LazyQuit",
                              "RemoveWithoutConfirmation"};

class SettingsControlsTest : public AppsFixture {
protected:
    void openAll() {
        openWith({});
        for (const auto &tab : controller->tabs()) {
            views.append(tab->view());
        }
        views.append(apps().view());
        views.append(controller->expertTab()->view());
    }

    QList<QWidget *> controls() const {
        QList<QWidget *> all;
        for (QWidget *view : views) {
            all += view->findChildren<QWidget *>();
        }
        return all;
    }

    template <typename Control>
    QList<Control *> controlsOfKind() const {
        QList<Control *> all;
        for (QWidget *view : views) {
            all += view->findChildren<Control *>();
        }
        return all;
    }

    static QString keyOf(const QObject &control) { return control.property("settingsKey").toString(); }

    QSet<QString> keysWithControls() {
        QSet<QString> keys;
        for (const QWidget *control : controls()) {
            if (!keyOf(*control).isEmpty()) {
                keys.insert(keyOf(*control));
            }
            if (const auto *recorder = qobject_cast<const ShortcutCaptureButton *>(control)) {
                keys.insert(recorder->shortcutName());
                if (recorder->enabledCheckbox()) {
                    keys.insert(recorder->shortcutName() + QStringLiteral("Enabled"));
                }
            }
            if (control == &table()) {
                keys.insert(AppList::bypassAppList().key());
            }
        }
        return keys;
    }

    QList<QWidget *> views;
};

/// What a screen reader says of it. The text of a recorder is its shortcut, which names nothing.
QString nameOf(const QWidget &control) {
    if (!control.accessibleName().isEmpty() || qobject_cast<const ShortcutCaptureButton *>(&control)) {
        return control.accessibleName();
    }
    const auto *button = qobject_cast<const QAbstractButton *>(&control);
    return button ? button->text() : QString();
}

} // namespace

TEST_F(SettingsControlsTest, EverySettingHasAControlAndEveryControlASetting) {
    openAll();
    const QSet<QString> found = keysWithControls();
    EXPECT_TRUE((kSettings - found).isEmpty()) << (kSettings - found).values().join(u' ').toStdString();
    EXPECT_TRUE((found - kSettings).isEmpty()) << (found - kSettings).values().join(u' ').toStdString();
}

TEST_F(SettingsControlsTest, EveryControlHasAName) {
    openAll();
    int named = 0;
    for (const QWidget *control : controls()) {
        const bool isControl = control->focusPolicy() != Qt::NoFocus &&
                               !control->objectName().startsWith(u"qt_") &&
                               control->parentWidget() != &table();
        if (isControl) {
            ++named;
            EXPECT_FALSE(nameOf(*control).isEmpty()) << control->objectName().toStdString();
            EXPECT_FALSE(control->objectName().isEmpty());
        }
    }
    EXPECT_GT(named, 40);
}

TEST_F(SettingsControlsTest, ACheckBoxEditsItsSettingInBothDirections) {
    openAll();
    set("ShowHUD", true);
    set("PauseKeyAllowed", true);
    int edited = 0;
    for (QCheckBox *box : controlsOfKind<QCheckBox>()) {
        const QString key = keyOf(*box);
        if (key.isEmpty()) {
            continue;
        }
        ++edited;
        for (const bool wanted : {true, false, true}) {
            if (box->isChecked() != wanted) {
                box->click();
            }
            EXPECT_EQ(UserDefaults::standard().boolForKey(key), wanted) << key.toStdString();
        }
        set(key.toLatin1().constData(), false);
        EXPECT_FALSE(box->isChecked()) << key.toStdString();
        set(key.toLatin1().constData(), true);
        EXPECT_TRUE(box->isChecked()) << key.toStdString();
    }
    EXPECT_EQ(edited, 18);
}

TEST_F(SettingsControlsTest, TheSideOfAPauseKeyIsChosenWhileTheKeyIs) {
    openAll();
    int edited = 0;
    for (QComboBox *combo : controlsOfKind<QComboBox>()) {
        const QString key = keyOf(*combo);
        ++edited;
        EXPECT_FALSE(combo->isEnabled()) << key.toStdString();
        set(key.chopped(4).toLatin1().constData(), true); // without "Type"
        EXPECT_TRUE(combo->isEnabled()) << key.toStdString();
        for (const int side : {1, 2, 0}) {
            combo->setCurrentIndex(side);
            Q_EMIT combo->activated(side);
            EXPECT_EQ(UserDefaults::standard().integerForKey(key), side) << key.toStdString();
        }
        set(key.toLatin1().constData(), 2);
        EXPECT_EQ(combo->currentIndex(), 2) << key.toStdString();
    }
    EXPECT_EQ(edited, 4);
}

TEST_F(SettingsControlsTest, WhatDependsOnAnotherSettingIsOffWithIt) {
    openAll();
    set("ShowHUD", false);
    set("PauseKeyAllowed", false);
    for (const QRadioButton *place : controlsOfKind<QRadioButton>()) {
        EXPECT_FALSE(place->isEnabled());
    }
    for (const QCheckBox *box : controlsOfKind<QCheckBox>()) {
        const QString key = keyOf(*box);
        if (key.startsWith(u"ShowHUD") && key != u"ShowHUD") {
            EXPECT_FALSE(box->isEnabled()) << key.toStdString();
        }
        if (key.startsWith(u"PauseKey") && key != u"PauseKeyAllowed") {
            EXPECT_FALSE(box->isEnabled()) << key.toStdString();
        }
    }
}

TEST_F(SettingsControlsTest, SettingsOfAnyTypeOpenTheWindowAndStayAsTheyAre) {
    const QVariantList values{true,
                              qlonglong{-7},
                              1e300,
                              QStringLiteral("12abc"),
                              QByteArray("\xff\x00", 2),
                              QDateTime::currentDateTimeUtc(),
                              QVariantList{QVariantList()},
                              QVariantMap{{QStringLiteral("a"), 1}}};
    for (const QVariant &value : values) {
        for (const QString &key : kSettings) {
            set(key.toLatin1().constData(), value);
        }
        set("PreferencesWindowTabSize Apps", value);
        set("PreferencesWindowTabIdentifier", value);
        const QVariantMap before = UserDefaults::standard().persistentDomain();
        controller = PreferencesWindowController::create();
        ASSERT_TRUE(controller);
        controller->showWindow(nullptr);
        here.loop.runPending();
        for (const auto &tab : controller->tabs()) {
            controller->setCurrentTab(tab);
            controller->presentCurrentTabActivateWindow(false);
        }
        EXPECT_TRUE(window().isVisible());
        for (const QString &key : kSettings) {
            EXPECT_EQ(UserDefaults::standard().persistentDomain().value(key), before.value(key))
                << key.toStdString();
        }
        controller.reset();
    }
}

TEST_F(SettingsControlsTest, AValueThatNoControlKnowsIsShownAsNone) {
    set("HUDLocation", 7);
    set("PauseKeyShiftType", 9);
    openAll();
    for (const QRadioButton *place : controlsOfKind<QRadioButton>()) {
        EXPECT_FALSE(place->isChecked());
    }
    EXPECT_EQ(touchBar()->view()->findChild<QComboBox *>(QStringLiteral("pauseKeyShiftType"))->currentIndex(),
              -1);
    EXPECT_EQ(stored("HUDLocation"), QVariant(qlonglong(7)));
    EXPECT_EQ(stored("PauseKeyShiftType"), QVariant(qlonglong(9)));
}

} // namespace barquell::test
