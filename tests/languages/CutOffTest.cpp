#include "CutOff.h"

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "foundation/interface/ControlStyle.h"
#include "foundation/interface/InterfaceFile.h"
#include "menubar/AuthWindowController.h"
#include "menubar/LikeTheAppTracker.h"
#include "menubar/MenuBarClasses.h"
#include "menubar/PermissionPage.h"
#include "menubar/hud/HUDClasses.h"
#include "platform/simulated/bar/SimulatedBarWindow.h"
#include "preferences/PreferencesClasses.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/Sheet.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "process/AnotherCopyAlert.h"
#include "shortcuts/controls/ShortcutControls.h"
#include "support/HUDOwner.h"
#include "support/Place.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleFactory>
#include <QTimer>

#include <gmock/gmock.h>

namespace barquell::test {

const std::string nothing;

/// The program's windows in one of its languages, with every control shown that a user may ever see.
class CutOffTest : public testing::TestWithParam<const char *> {
protected:
    CutOffTest() {
        QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
        const bool isEnglish = QByteArray(GetParam()) == "en";
        EXPECT_EQ(Bundle::localizedString(QStringLiteral("Cancel")) == QLatin1String("Cancel"), isEnglish);
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        here.platform.lifecycle.policy = ActivationPolicy::Regular;
        installControlStyle();
        registerPreferencesClasses();
        registerMenuBarClasses();
        registerShortcutControls();
        registerPreferencesTabs();
        registerHUDClasses();
    }

    /// The window on a tab. It may grow with its texts, but not without end.
    static QWidget &preferencesWith(const char *tab) {
        PreferencesWindowController::cls().showWindow(nullptr, QString::fromLatin1(tab));
        QWidget &window = settled(*PreferencesWindowController::cls().window());
        EXPECT_LE(window.width(), 640) << tab;
        return window;
    }

    static QWidget &settled(QWidget &window) {
        place().loop.advanceBy(std::chrono::seconds(1));
        QCoreApplication::processEvents();
        return window;
    }

    /// The question that is being asked. It may grow with its texts, but not beyond a small screen.
    static QMessageBox *question() {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *box = qobject_cast<QMessageBox *>(window);
            if (box && box->isVisible()) {
                EXPECT_LE(settled(*box).width(), 960);
                return box;
            }
        }
        return nullptr;
    }

    static PreferencesWindowController &controller() {
        return *qobject_cast<PreferencesWindowController *>(
            PreferencesWindowController::cls().window()->delegateObject());
    }

    Place &here = place();
};

TEST_P(CutOffTest, TheGeneralTab) {
    LikeTheAppTracker::displayTimerDidFire();
    QWidget &window = preferencesWith("General");
    ASSERT_TRUE(window.findChild<QPushButton *>(QStringLiteral("likeTheAppButton"))->isVisible());
    EXPECT_EQ(cutOff(window), nothing);
}

TEST_P(CutOffTest, TheTouchBarTab) {
    EXPECT_EQ(cutOff(preferencesWith("TouchBar")), nothing);
}

TEST_P(CutOffTest, TheShortcutsTab) {
    EXPECT_EQ(cutOff(preferencesWith("Shortcuts")), nothing);
}

TEST_P(CutOffTest, TheAppsTab) {
    UserDefaults::standard().setObject(QStringList{QStringLiteral("org.example.Gone")},
                                       QStringLiteral("BypassApps"));
    preferencesWith("TouchBar");
    auto *touchBar =
        qobject_cast<PreferencesTabTouchBar *>(controller().tabs().value(QStringLiteral("TouchBar")));
    controller().preferencesTabWantsToAppear(touchBar->appsTab());
    EXPECT_EQ(cutOff(settled(*PreferencesWindowController::cls().window())), nothing);
}

TEST_P(CutOffTest, TheExpertTab) {
    preferencesWith("General");
    controller().handleKeyDown(
        {KeyEvent::Type::KeyDown, 0, kFlagOption | kFlagCommand, QStringLiteral("0"), false});
    EXPECT_EQ(cutOff(settled(*PreferencesWindowController::cls().window())), nothing);
}

TEST_P(CutOffTest, BothPagesOfTheAuthorizationWindow) {
    here.platform.trust.trusted = false;
    AuthWindowController::cls().showWindow(nullptr);
    EXPECT_EQ(cutOff(settled(*AuthWindowController::cls().window())), nothing);
    here.platform.trust.trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_EQ(cutOff(settled(*AuthWindowController::cls().window())), nothing);
}

TEST_P(CutOffTest, ThePermissionPage) {
    Permission::State state;
    Permission::Outcome outcome{};
    const auto fails = [&outcome](const Permission::Answer &answer) { answer(outcome); };
    const Permission permission{.userName = QStringLiteral("somebody-with-a-long-name"),
                                .state = [&state] { return state; },
                                .request = fails,
                                .withdraw = fails};
    for (const bool given : {false, true}) {
        state = {.given = given, .since = QDateTime(QDate(2026, 9, 30), QTime(12, 0))};
        PermissionPage::show(permission);
        QWidget &window = *PermissionPage::openWindow();
        EXPECT_EQ(cutOff(settled(window)), nothing);
        for (const auto why :
             {Permission::Outcome::Denied, Permission::Outcome::Silent, Permission::Outcome::Failed}) {
            outcome = why;
            window.findChild<QPushButton *>(QStringLiteral("button"))->click(); // in vain, which is said
            EXPECT_EQ(cutOff(settled(window)), nothing);
        }
        EXPECT_LE(window.width(), 640);
    }
    PermissionPage::openWindow()->close();
}

TEST_P(CutOffTest, TheQuestionsOfThePreferences) {
    QWidget &window = preferencesWith("General");
    for (const char *text :
         {"Are you sure?", "Are you sure you want to remove selected apps from bypass list?"}) {
        confirmInSheet(&window, Bundle::localizedString(QString::fromLatin1(text)), &window, [] {});
        QMessageBox *sheet = question();
        ASSERT_TRUE(sheet);
        EXPECT_EQ(cutOff(*sheet), nothing);
        sheet->reject();
    }
}

TEST_P(CutOffTest, TheQuestionWhetherTheUserLikesIt) {
    LikeTheAppTracker::showDialogModalForWindow(nullptr);
    QMessageBox *dialog = question();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(cutOff(*dialog), nothing);
    dialog->reject();
}

TEST_P(CutOffTest, TheQuestionOfASecondCopy) {
    bool wasAsked = false;
    QTimer::singleShot(0, qApp, [&] {
        if (QMessageBox *alert = question()) {
            wasAsked = true;
            EXPECT_EQ(alert->buttons().size(), 4);
            EXPECT_EQ(cutOff(*alert), nothing);
            alert->reject();
        }
    });
    EXPECT_EQ(askAboutAnotherCopy(), CopyChoice::QuitThis);
    EXPECT_TRUE(wasAsked);
}

TEST_P(CutOffTest, BothLooksOfTheHUD) {
    HUDOwner owner;
    const TopLevelObjects objects = TouchBarHUDController::loadFromNib(&owner);
    ASSERT_TRUE(owner.hud());
    for (const TouchBarHUDVariant *look : {owner.hud()->onVariant(), owner.hud()->offVariant()}) {
        ASSERT_TRUE(look->largeView()->findChild<QLabel *>());
        EXPECT_EQ(cutOff(*look->largeView()), nothing);
    }
}

TEST_P(CutOffTest, TheSimulatedBar) {
    const BarControls controls;
    SimulatedBarWindow window(controls);
    window.showCounts(12345, 12345);
    window.ask();
    window.show();
    EXPECT_EQ(cutOff(settled(window)), nothing);
    QFont font = window.font();
    font.setPixelSize(13);
    for (const BarControl &control : barControls()) {
        constexpr int kMargins = 8;
        const QString name = Bundle::localizedString(control.name);
        EXPECT_LE(QFontMetrics(font).horizontalAdvance(name) + kMargins, control.width)
            << qUtf8Printable(name);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, CutOffTest, testing::Values("en", "de", "fr", "es", "ja", "zh_CN"),
                         [](const auto &language) { return std::string(language.param); });

TEST(CutOffOnPurposeTest, IsFound) {
    const QString text = QStringLiteral("A text of some length");
    QWidget window;
    window.resize(100, 100);
    QLabel narrow(text, &window);
    QLabel low(text, &window);
    QPushButton flat(text, &window);
    QLabel outside(QStringLiteral("x"), &window);
    QLabel good(QStringLiteral("x"), &window);
    low.setWordWrap(true);
    narrow.setGeometry(0, 0, 20, 40);
    low.setGeometry(0, 0, 50, 10);
    flat.setGeometry(0, 0, 400, 5);
    outside.setGeometry(95, 0, 30, 40);
    good.setGeometry(0, 0, 30, 40);
    narrow.setObjectName(QStringLiteral("narrow"));
    low.setObjectName(QStringLiteral("low"));
    flat.setObjectName(QStringLiteral("flat"));
    outside.setObjectName(QStringLiteral("outside"));
    const std::string found = cutOff(window);
    EXPECT_EQ(std::count(found.begin(), found.end(), '\n'), 4);
    for (const char *name : {"narrow ", "low ", "flat ", "outside "}) {
        EXPECT_THAT(found, testing::HasSubstr(name));
    }
}

} // namespace barquell::test
