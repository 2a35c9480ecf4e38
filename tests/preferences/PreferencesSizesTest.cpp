#include "PreferencesWindowFixture.h"

#include <QScreen>

namespace barquell::test {

namespace {

const char *const kTwoSize = "PreferencesWindowTabSize Two"; // one space

/// "Two" is of a fixed width and may be 100 high and more; "Three" is free between two sizes.
class PreferencesSizesTest : public PreferencesWindowFixture {
protected:
    PreferencesSizesTest() {
        set("AnimatedWindowSizing", false);
        TestTab::configurations().insert(QStringLiteral("Two"), {.minimumHeight = 100});
        TestTab::configurations().insert(QStringLiteral("Three"), {100, 120, 500, 420});
    }

    /// What of the window is content may have that height.
    int contentHeight() { return window().contentView()->height(); }
    QSize contentSize() { return window().contentView()->size(); }

    void userResizesContentTo(int width, int height) { window().resize(width, height + toolbarHeight()); }
};

} // namespace

TEST_F(PreferencesSizesTest, AFixedTabHasAWindowOfItsSizeAndReadsAndWritesNoSize) {
    set("PreferencesWindowTabSize One", QStringLiteral("{700, 500}"));
    show();
    EXPECT_FALSE(window().isResizable());
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_EQ(contentSize(), QSize(400, 150));
    EXPECT_EQ(stored("PreferencesWindowTabSize One"), QStringLiteral("{700, 500}"));
    EXPECT_EQ(window().contentView()->contentLayoutMode(), ContainerLayoutTop);
}

TEST_F(PreferencesSizesTest, AResizableTabFillsTheWindowAndIsRememberedAsTheUserResizesIt) {
    show();
    select("Two");
    EXPECT_TRUE(window().isResizable());
    EXPECT_EQ(window().contentView()->contentLayoutMode(), ContainerLayoutFill);
    userResizesContentTo(400, 333);
    EXPECT_EQ(content().size(), QSize(400, 333));
    EXPECT_EQ(stored(kTwoSize), QStringLiteral("{400, 333}"));
}

TEST_F(PreferencesSizesTest, ATabComesBackInItsSizeInTheResizableDimensionOnly) {
    show();
    select("Two");
    userResizesContentTo(400, 333);
    select("One");
    EXPECT_EQ(contentSize(), QSize(400, 150));
    set(kTwoSize, QStringLiteral("{777, 333}"));
    select("Two");
    EXPECT_EQ(contentSize(), QSize(400, 333));
}

TEST_F(PreferencesSizesTest, TheStoredSizeIsReadWhenTheWindowOpensOnTheTab) {
    set("PreferencesWindowTabIdentifier", QStringLiteral("Three"));
    set("PreferencesWindowTabSize Three", QStringLiteral("{410, 222}"));
    show();
    EXPECT_EQ(contentSize(), QSize(410, 222));
}

TEST_F(PreferencesSizesTest, TheStoredSizeIsNotReadAgainWhileTheTabStays) {
    show();
    select("Two");
    set(kTwoSize, QStringLiteral("{400, 300}"));
    controller->showWindow(nullptr);
    EXPECT_EQ(contentSize(), QSize(400, 150));
}

TEST_F(PreferencesSizesTest, TheLimitsOfAResizableDimensionAreTheTabsOwn) {
    show();
    select("Three");
    EXPECT_EQ(window().contentMinSize(), QSizeF(100, 120));
    EXPECT_EQ(window().contentMaxSize(), QSizeF(500, 420));
    EXPECT_EQ(window().minimumHeight(), 120 + toolbarHeight());
    EXPECT_EQ(window().maximumSize(), QSize(500, 420 + toolbarHeight()));
}

TEST_F(PreferencesSizesTest, AMaximumBelowOneIsNoBound) {
    show();
    select("Two");
    EXPECT_EQ(window().contentMaxSize().height(), std::numeric_limits<double>::max());
    EXPECT_EQ(window().contentMinSize().height(), 100);
}

TEST_F(PreferencesSizesTest, AFixedDimensionIsHeldToTheFramesExtent) {
    TestTab::configurations().insert(QStringLiteral("Four"), {.minimumWidth = 300, .maximumWidth = 500});
    show();
    select("Two");
    EXPECT_EQ(window().contentMinSize().width(), 400); // the frame is as wide as its content
    EXPECT_EQ(window().contentMaxSize().width(), 400);
    select("Four");
    const int title = window().frameGeometry().height() - window().height();
    const double frameHeight = 150 + toolbarHeight() + title; // and higher by its toolbar and title
    EXPECT_EQ(window().contentMinSize().height(), frameHeight);
    EXPECT_EQ(window().contentMaxSize().height(), frameHeight);
}

TEST_F(PreferencesSizesTest, AFixedTabLeavesTheLimitsOfTheOneBefore) {
    show();
    select("Three");
    select("One");
    EXPECT_EQ(window().contentMinSize(), QSizeF(100, 120));
    EXPECT_FALSE(window().isResizable());
    EXPECT_EQ(contentSize(), QSize(400, 150));
}

TEST_F(PreferencesSizesTest, AnAnimationSettlesOnItsLastFrame) {
    show();
    set("AnimatedWindowSizing", true);
    set(kTwoSize, QStringLiteral("{400, 340}"));
    select("Two");
    here.loop.advanceBy(std::chrono::milliseconds(60));
    EXPECT_EQ(stored(kTwoSize), QStringLiteral("{400, 340}")); // nothing in between is stored
    settle();
    EXPECT_EQ(contentSize(), QSize(400, 340));
    EXPECT_EQ(stored(kTwoSize), QStringLiteral("{400, 340}"));
}

TEST_F(PreferencesSizesTest, AStoredSizeOfNothingOrLessIsHeldToTheTabsMinimum) {
    for (const char *size : {"{0, 0}", "{-400, -300}", "{-1e9, -1e9}", "", "{}", "large"}) {
        set(kTwoSize, QString::fromLatin1(size));
        set("PreferencesWindowTabIdentifier", QStringLiteral("Two"));
        show();
        EXPECT_EQ(contentSize(), QSize(400, 100)) << size;
        controller.reset();
    }
}

TEST_F(PreferencesSizesTest, AHugeStoredSizeIsHeldToTheScreen) {
    for (const char *size : {"{1e9, 1e9}", "{1000000000, 1000000000}", "{1e999, 1e999}"}) {
        set(kTwoSize, QString::fromLatin1(size));
        show();
        select("Two");
        const QSize screen = window().screen()->availableSize();
        EXPECT_LE(window().frameGeometry().height(), screen.height()) << size;
        EXPECT_GT(window().height(), 200) << size;
        EXPECT_EQ(window().width(), 400) << size;
        controller.reset();
    }
}

TEST_F(PreferencesSizesTest, AStoredSizeOfAnotherTypeReadsAsNoneOrAsItsText) {
    for (const QVariant &size : {QVariant(QVariantList{400, 300}), QVariant(QByteArray("{400, 300}"))}) {
        set(kTwoSize, size);
        show();
        select("Two");
        EXPECT_EQ(contentSize(), QSize(400, 150));
        controller.reset();
    }
    for (const QVariant &size : {QVariant(true), QVariant(12)}) {
        set(kTwoSize, size);
        show();
        select("Two");
        EXPECT_EQ(contentSize(), QSize(400, 100)); // a width, and no height
        controller.reset();
    }
}

} // namespace barquell::test
