#include "menubar/StatusItemView.h"

#include "blocking/TrustedProcessChecker.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

using testing::ElementsAre;

/// Notes what it is asked, and answers as the test wants.
class Delegate : public QObject, public StatusItemViewDelegate {
public:
    bool statusItemViewMouseDown(StatusItemView & /*view*/, const StatusItemClick & /*click*/) override {
        asked.emplace_back("left");
        return answer;
    }
    bool statusItemViewRightMouseDown(StatusItemView & /*view*/, const StatusItemClick & /*click*/) override {
        asked.emplace_back("right");
        return answer;
    }

    std::vector<std::string> asked;
    bool answer = false;
};

constexpr StatusItemClick kClick{};
constexpr StatusItemClick kControlClick{.modifierFlags = kFlagControl | kFlagLeftControl};
constexpr StatusItemClick kShiftClick{.modifierFlags = kFlagShift | kFlagOption | kFlagCommand | kFlagFn};

class StatusItemViewTest : public testing::Test {
protected:
    StatusItemViewTest() {
        place();
        TrustedProcessChecker::checkIsTrusted();
        view.setEventDelegate(&delegate);
    }

    /// Trust is lost without anybody having asked; true where the click asks.
    template <typename Click>
    bool asksForTrust(Click click) {
        place().platform.trust.trusted = false;
        click();
        const bool asked = !TrustedProcessChecker::isTrusted();
        place().platform.trust.trusted = true;
        TrustedProcessChecker::checkIsTrusted();
        return asked;
    }

    Delegate delegate;
    StatusItemView view;
};

} // namespace

TEST_F(StatusItemViewTest, PlainClicksAreWhatTheyAre) {
    view.mouseDown(kClick);
    view.rightMouseDown(kClick);
    EXPECT_THAT(delegate.asked, ElementsAre("left", "right"));
}

TEST_F(StatusItemViewTest, ControlMakesALeftClickARightOneAndARightClickALeftOne) {
    view.mouseDown(kControlClick);
    view.rightMouseDown(kControlClick);
    EXPECT_THAT(delegate.asked, ElementsAre("right", "left"));
}

TEST_F(StatusItemViewTest, OtherModifiersChangeNothing) {
    view.mouseDown(kShiftClick);
    view.rightMouseDown(kShiftClick);
    EXPECT_THAT(delegate.asked, ElementsAre("left", "right"));
}

TEST_F(StatusItemViewTest, AClickThatIsNotDealtWithAsksForTrustAndGoesOn) {
    EXPECT_TRUE(asksForTrust([this] { EXPECT_FALSE(view.mouseDown(kClick)); }));
    EXPECT_TRUE(asksForTrust([this] { EXPECT_FALSE(view.rightMouseDown(kClick)); }));
}

TEST_F(StatusItemViewTest, AClickThatIsDealtWithEndsThere) {
    delegate.answer = true;
    EXPECT_FALSE(asksForTrust([this] { EXPECT_TRUE(view.mouseDown(kClick)); }));
    EXPECT_FALSE(asksForTrust([this] { EXPECT_TRUE(view.rightMouseDown(kClick)); }));
}

TEST_F(StatusItemViewTest, WithoutADelegateClicksGoOn) {
    view.setEventDelegate(nullptr);
    EXPECT_TRUE(asksForTrust([this] { EXPECT_FALSE(view.mouseDown(kClick)); }));
}

TEST_F(StatusItemViewTest, TheDelegateIsHeldWeakly) {
    auto shortLived = std::make_unique<Delegate>();
    view.setEventDelegate(shortLived.get());
    shortLived.reset();
    EXPECT_FALSE(view.rightMouseDown(kClick));
    EXPECT_EQ(view.eventDelegate(), nullptr);
}

} // namespace barquell::test
