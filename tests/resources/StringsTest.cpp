#include "foundation/Bundle.h"
#include "foundation/interface/InterfaceFile.h"
#include "support/LogCapture.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

QString text(const char *key) {
    return Bundle::localizedString(QString::fromLatin1(key));
}

class StringsTest : public testing::Test {
protected:
    StringsTest() { QLocale::setDefault(QLocale(QLocale::Esperanto)); }

    LogCapture logged;
};

TEST_F(StringsTest, TheUsersLanguageComesFirst) {
    EXPECT_EQ(text("Cancel"), QStringLiteral("Nuligi"));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(StringsTest, EnglishLiesBeneathTheUsersLanguage) {
    EXPECT_EQ(text("LIKETHEAPP_LATER"), QStringLiteral("Ask me later"));
}

TEST_F(StringsTest, AKeyWithoutATextStandsForItself) {
    EXPECT_EQ(text("No such key"), QStringLiteral("No such key"));
    EXPECT_EQ(text(""), QString());
}

TEST_F(StringsTest, ALanguageThatWeDoNotHaveIsEnglish) {
    QLocale::setDefault(QLocale(QLocale::Icelandic));
    EXPECT_EQ(text("LIKETHEAPP_NO"), QStringLiteral("No, thanks"));
    EXPECT_EQ(text("Cancel"), QStringLiteral("Cancel"));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(StringsTest, EveryKeyThatIsNoEnglishHasAText) {
    for (const char *key :
         {"LIKETHEAPP_TITLE", "LIKETHEAPP_DESC", "LIKETHEAPP_YES", "LIKETHEAPP_LATER", "LIKETHEAPP_NO"}) {
        EXPECT_NE(text(key), QString::fromLatin1(key));
    }
    EXPECT_EQ(text("LIKETHEAPP_TITLE").count(QStringLiteral("%@")), 1);
}

TEST_F(StringsTest, AFormatIsFilledOnceAndLiterally) {
    const QString format = text("Another copy of %@ is already running");
    EXPECT_EQ(Bundle::format(format, QStringLiteral("%@ %1")),
              QStringLiteral("Another copy of %@ %1 is already running"));
    EXPECT_EQ(Bundle::format(QStringLiteral("none"), QStringLiteral("x")), QStringLiteral("none"));
    EXPECT_EQ(Bundle::format(QStringLiteral("%@ %@"), QStringLiteral("x")), QStringLiteral("x %@"));
}

TEST_F(StringsTest, InterfaceFilesSpeakTheUsersLanguage) {
    const auto button = [](const char *name, const char *string) {
        return QByteArrayLiteral("<widget class=\"QPushButton\" name=\"") + name +
               "\"><property name=\"text\">" + string + "</property></widget>";
    };
    const QByteArray form = "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Root\">" +
                            button("a", "<string>Cancel</string>") +
                            button("b", "<string notr=\"true\">Cancel</string>") + "</widget></ui>";
    const auto loaded = loadInterface(form, nullptr);
    ASSERT_TRUE(loaded && loaded->size() == 2);
    EXPECT_EQ(loaded->at(0)->property("text"), QVariant(QStringLiteral("Nuligi")));
    EXPECT_EQ(loaded->at(1)->property("text"), QVariant(QStringLiteral("Cancel")));
}

} // namespace
} // namespace barquell::test
