#include "foundation/Log.h"

#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell {
namespace {

QString character(char32_t code) {
    return QString::fromUcs4(&code, 1);
}

TEST(LogTest, GoesToTheSink) {
    const test::LogCapture logged;
    log(QStringLiteral("one"));
    log(QStringLiteral("two"));
    EXPECT_EQ(logged.lines, QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(LogTest, WithoutASinkGoesToStandardErrorInOneLine) {
    testing::internal::CaptureStderr();
    log(QStringLiteral("one\ntwo"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "barquell: one?two\n");
}

TEST(LogTest, StandardErrorGetsOneLineWhateverIsSaid) {
    testing::internal::CaptureStderr();
    logToStandardError(QStringLiteral("one\r\n\x1b[31mred"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "barquell: one???[31mred\n");
}

TEST(LogTest, TheSinkGetsOneShortLine) {
    const test::LogCapture logged;
    log(QStringLiteral("one\ntwo") + QString(5'000'000, QLatin1Char('x')));
    ASSERT_EQ(logged.lines.size(), 1);
    EXPECT_EQ(logged.lines.first().size(), kLongestLine);
    EXPECT_TRUE(logged.lines.first().startsWith(QStringLiteral("one?twox")));
    EXPECT_TRUE(logged.lines.first().endsWith(QChar(0x2026)));
}

TEST(LogTest, ASinkMayLogAndPutAnotherInItsPlace) {
    test::LogCapture logged;
    setLogSink([&logged](const QString &line) {
        setLogSink([&logged](const QString &inner) { logged.lines.append(inner); });
        log(QStringLiteral("about ") + line);
    });
    log(QStringLiteral("it"));
    EXPECT_EQ(logged.lines, QStringList{QStringLiteral("about it")});
}

TEST(CleanLineTest, KeepsWhatAPersonReads) {
    const QString text = QStringLiteral("Größe 🎹 “x” 日本 \\ % \t").chopped(1);
    EXPECT_EQ(cleanLine(text), text);
    EXPECT_EQ(cleanLine(QString()), QString());
}

TEST(CleanLineTest, MaskWhatWouldLeaveTheLine) {
    for (const char32_t code :
         {U'\0', U'\t', U'\n', U'\r', U'\x1b', U'\x7f', U'\x80', U'\x85', U'\x9b', U'\x9f', U'\u061c',
          U'\u200e', U'\u200f', U'\u2028', U'\u2029', U'\u202a', U'\u202e', U'\u2066', U'\u2069'}) {
        EXPECT_EQ(cleanLine(QLatin1Char('a') + character(code) + QLatin1Char('b')), QStringLiteral("a?b"))
            << static_cast<std::uint32_t>(code);
    }
    for (const char32_t code : {U' ', U'~', U'\u00a0', U'\u061d', U'\u2027', U'\u202f', U'\u206a'}) {
        const QString text = character(code);
        EXPECT_EQ(cleanLine(text), text) << static_cast<std::uint32_t>(code);
    }
}

TEST(CleanLineTest, MasksHalvesOfCharacters) {
    const QChar high(0xD83C);
    const QChar low(0xDFB9);
    EXPECT_EQ(cleanLine(QString(low) + high), QStringLiteral("??"));
    EXPECT_EQ(cleanLine(QString(high) + high + low), QStringLiteral("?🎹"));
}

TEST(CleanLineTest, CutsAtTheLimitButNoCharacterInTwo) {
    EXPECT_EQ(cleanLine(QStringLiteral("12345"), 5), QStringLiteral("12345"));
    EXPECT_EQ(cleanLine(QStringLiteral("123456"), 5), QStringLiteral("1234…"));
    EXPECT_EQ(cleanLine(QStringLiteral("123🎹56"), 5), QStringLiteral("123…"));
    EXPECT_EQ(cleanLine(QStringLiteral("12🎹56"), 5), QStringLiteral("12🎹…"));
}

TEST(CleanLineTest, LeavesWhatIsCleanAsItIs) {
    const QString once = cleanLine(QString(5000, QLatin1Char('\n')));
    EXPECT_EQ(cleanLine(once), once);
}

} // namespace
} // namespace barquell
