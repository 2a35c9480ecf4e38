#include "applist/AppListFixture.h"

namespace barquell::test {
namespace {

using AppListTest = AppListFixture;

TEST_F(AppListTest, TogglingTwiceReturnsToTheFormerContentsAndPostsTwice) {
    openWords("a b").toggleBundleIdentifier(QStringLiteral("c"));
    EXPECT_EQ(entries(), QStringLiteral("a b c"));
    EXPECT_EQ(selection(), IndexSet({2}));
    list->toggleBundleIdentifier(QStringLiteral("c"));
    EXPECT_EQ(entries(), QStringLiteral("a b"));
    EXPECT_EQ(selection(), std::nullopt);
    EXPECT_EQ(posted.size(), 2);
}

TEST_F(AppListTest, InsertingBehindTheEndAppends) {
    openWords("a b c").insertBundleIdentifiers(words("d e"), 99);
    EXPECT_EQ(entries(), QStringLiteral("a b c d e"));
    EXPECT_EQ(selection(), IndexSet({3, 4}));
}

TEST_F(AppListTest, MovingDownTakesTheEntriesAboveIntoAccount) {
    EXPECT_EQ(openWords("a b c d").moveObjectsAtIndexes({0, 1}, 3), 1U);
    EXPECT_EQ(entries(), QStringLiteral("c a b d"));
    EXPECT_EQ(selection(), IndexSet({1, 2}));
}

TEST_F(AppListTest, AddingWhatIsThereChangesAndPostsNothing) {
    openWords("a b").addBundleIdentifier(QStringLiteral("b"));
    EXPECT_EQ(entries(), QStringLiteral("a b"));
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(AppListTest, RemovingNoneOfTheIndexesPostsNothing) {
    openWords("a b").removeObjectsAtIndexes({});
    EXPECT_EQ(entries(), QStringLiteral("a b"));
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(AppListTest, AddingAppendsAndSelectsTheNewEntry) {
    openWords("a").addBundleIdentifier(QStringLiteral("b"));
    EXPECT_EQ(entries(), QStringLiteral("a b"));
    EXPECT_EQ(selection(), IndexSet({1}));
}

TEST_F(AppListTest, AddingSeveralTakesEachNewOneOnce) {
    openWords("a b").addBundleIdentifiers(words("c a c d"));
    EXPECT_EQ(entries(), QStringLiteral("a b c d"));
    EXPECT_EQ(selection(), IndexSet({2, 3}));
    EXPECT_EQ(posted.size(), 1);
    list->addBundleIdentifiers(words("a d"));
    list->addBundleIdentifiers({});
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListTest, InsertingKeepsTheOrderAndSelectsWhatIsNew) {
    openWords("a b").insertBundleIdentifiers(words("c b d c"), 1);
    EXPECT_EQ(entries(), QStringLiteral("a c d b"));
    EXPECT_EQ(selection(), IndexSet({1, 2}));
    list->insertBundleIdentifiers(words("a"), 0);
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListTest, RemovingAnIndexSavesWithoutSelection) {
    openWords("a b c").removeObjectAtIndex(1);
    EXPECT_EQ(entries(), QStringLiteral("a c"));
    EXPECT_EQ(selection(), std::nullopt);
    list->removeObjectAtIndex(2);
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListTest, RemovingIndexesRemovesThemAll) {
    openWords("a b c d").removeObjectsAtIndexes({0, 3, 17});
    EXPECT_EQ(entries(), QStringLiteral("b c"));
    EXPECT_EQ(selection(), std::nullopt);
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListTest, RemovingAnIdentifierPostsOnlyWhereItWasThere) {
    openWords("a b").removeBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(entries(), QStringLiteral("b"));
    EXPECT_FALSE(list->containsBundleIdentifier(QStringLiteral("a")));
    list->removeBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListTest, IdentifiersDifferInCase) {
    openWords("com.a").addBundleIdentifier(QStringLiteral("com.A"));
    EXPECT_EQ(entries(), QStringLiteral("com.a com.A"));
}

TEST_F(AppListTest, BehindTheEndThereIsNothing) {
    openWords("a b");
    EXPECT_EQ(list->objectAtIndex(1), QStringLiteral("b"));
    EXPECT_TRUE(list->objectAtIndex(2).isNull());
    EXPECT_TRUE((*list)[99].isNull());
}

TEST_F(AppListTest, ItCanBeWalked) {
    openWords("a b");
    QVariantList walked;
    for (const QVariant &entry : *list) {
        walked.append(entry);
    }
    EXPECT_TRUE(sameValue(walked, stored()));
    EXPECT_EQ(walked.size(), 2);
}

TEST_F(AppListTest, MovingUp) {
    EXPECT_EQ(openWords("a b c d").moveObjectsAtIndexes({1, 3}, 0), 0U);
    EXPECT_EQ(entries(), QStringLiteral("b d a c"));
    EXPECT_EQ(selection(), IndexSet({0, 1}));
}

TEST_F(AppListTest, MovingFromAboveAndBelow) {
    EXPECT_EQ(openWords("a b c d e").moveObjectsAtIndexes({0, 4}, 2), 1U);
    EXPECT_EQ(entries(), QStringLiteral("b a e c d"));
}

TEST_F(AppListTest, MovingToTheEndAndBeyond) {
    EXPECT_EQ(openWords("a b c").moveObjectsAtIndexes({0}, 3), 2U);
    EXPECT_EQ(entries(), QStringLiteral("b c a"));
    EXPECT_EQ(list->moveObjectsAtIndexes({0}, 99), 2U);
    EXPECT_EQ(entries(), QStringLiteral("c a b"));
}

TEST_F(AppListTest, MovingNothingPostsNothingAndStillGivesThePlace) {
    EXPECT_EQ(openWords("a b c").moveObjectsAtIndexes({}, 2), 2U);
    EXPECT_EQ(list->moveObjectsAtIndexes({}, 99), 3U);
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(AppListTest, ItIsStoredBeforeItIsTold) {
    openWords("").addBundleIdentifier(QStringLiteral("a"));
    EXPECT_TRUE(sameValue(storedWhenPosted, QVariantList{QStringLiteral("a")}));
}

TEST_F(AppListTest, SavingWithASetTellsTheSet) {
    openWords("a b").saveAndNotify(IndexSet{1});
    EXPECT_EQ(selection(), IndexSet({1}));
    list->saveAndNotify();
    EXPECT_EQ(selection(), std::nullopt);
}

TEST_F(AppListTest, TheSharedListIsOfTheBypassedApplications) {
    EXPECT_EQ(AppList::bypassAppList().key(), QStringLiteral("BypassApps"));
    EXPECT_EQ(&AppList::bypassAppList(), &AppList::bypassAppList());
}

} // namespace
} // namespace barquell::test
