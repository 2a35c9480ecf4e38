#include "app/AppFixture.h"
#include "app/scripting/SetTouchBarActiveCommand.h"
#include "app/scripting/ToggleTouchBarCommand.h"
#include "foundation/Values.h"

namespace barquell::test {
namespace {

class ScriptCommandsTest : public AppFixture {
protected:
    static void setActive(const QVariant &argument) {
        SetTouchBarActiveCommand command;
        command.arguments.insert(QString(), argument);
        EXPECT_FALSE(command.performDefaultImplementation().isValid());
    }

    static void toggle() { EXPECT_FALSE(ToggleTouchBarCommand().performDefaultImplementation().isValid()); }
};

TEST_F(ScriptCommandsTest, AnActiveTouchBarStoresFalse) {
    setActive(true);
    EXPECT_TRUE(sameValue(stored("Active"), false));
}

TEST_F(ScriptCommandsTest, ATouchBarThatIsNotActiveStoresTrue) {
    setActive(false);
    EXPECT_TRUE(sameValue(stored("Active"), true));
}

TEST_F(ScriptCommandsTest, WithoutAnArgumentTrueIsStored) {
    SetTouchBarActiveCommand command;
    command.arguments.insert(QStringLiteral("other"), true);
    command.performDefaultImplementation();
    EXPECT_TRUE(sameValue(stored("Active"), true));
}

TEST_F(ScriptCommandsTest, AnArgumentOfAnotherTypeAnswersAsValuesDo) {
    setActive(QStringLiteral("YES"));
    EXPECT_TRUE(sameValue(stored("Active"), false));
    setActive(QVariantList{true});
    EXPECT_TRUE(sameValue(stored("Active"), true));
}

TEST_F(ScriptCommandsTest, TogglingStoresTheOppositeOfNothing) {
    toggle();
    EXPECT_TRUE(sameValue(stored("Active"), true));
}

TEST_F(ScriptCommandsTest, TogglingTwiceRestoresTheStoredValue) {
    for (const bool before : {true, false}) {
        set("Active", before);
        toggle();
        EXPECT_TRUE(sameValue(stored("Active"), !before));
        toggle();
        EXPECT_TRUE(sameValue(stored("Active"), before));
    }
}

TEST_F(ScriptCommandsTest, BlockingDoesNotChangeWhileTheProgramRuns) {
    launchSilently();
    setActive(true);
    EXPECT_FALSE(touchPasses());
    toggle();
    toggle();
    EXPECT_FALSE(touchPasses());
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
}

} // namespace
} // namespace barquell::test
