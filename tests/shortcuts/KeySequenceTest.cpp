#include "shortcuts/controls/KeySequence.h"

#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

TEST(KeySequenceTest, ModifiersAreThePhysicalOnes) {
    EXPECT_EQ(keySequence(QStringLiteral("u"), kFlagControl | kFlagOption | kFlagCommand),
              QKeySequence(Qt::CTRL | Qt::ALT | Qt::META | Qt::Key_U));
    EXPECT_EQ(keySequence(QStringLiteral("a"), kFlagShift | kFlagCommand),
              QKeySequence(Qt::SHIFT | Qt::META | Qt::Key_A));
}

TEST(KeySequenceTest, WhereTheToolkitExchangesControlAndCommandTheKeysStayTheSame) {
    place().platform.keyEvents.exchanges = true;
    EXPECT_EQ(keySequence(QStringLiteral("u"), kFlagControl | kFlagShift),
              QKeySequence(Qt::META | Qt::SHIFT | Qt::Key_U));
    EXPECT_EQ(keySequence(QStringLiteral("u"), kFlagCommand), QKeySequence(Qt::CTRL | Qt::Key_U));
}

TEST(KeySequenceTest, KeysThatTypeNothingHaveTheirNames) {
    EXPECT_EQ(keySequence(QString(QChar(0xF704)), 0), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(keySequence(QString(QChar(0xF717)), 0), QKeySequence(Qt::Key_F20));
    EXPECT_EQ(keySequence(QStringLiteral("\r"), kFlagControl), QKeySequence(Qt::CTRL | Qt::Key_Return));
    EXPECT_EQ(keySequence(QString(QChar(0xF72D)), 0), QKeySequence(Qt::Key_PageDown));
}

TEST(KeySequenceTest, NoKeyIsNoSequence) {
    EXPECT_TRUE(keySequence({}, kFlagCommand).isEmpty());
}

} // namespace barquell::test
