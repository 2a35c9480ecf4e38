#include "foundation/Bundle.h"

#include <QCoreApplication>
#include <QLocale>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

QString qtsCancelIn(const char *language) {
    QLocale::setDefault(QLocale(QString::fromLatin1(language)));
    Bundle::localizeToolkit();
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

TEST(ToolkitTest, QtSpeaksOurLanguage) {
    EXPECT_EQ(qtsCancelIn("de_AT"), QStringLiteral("Abbrechen"));
}

TEST(ToolkitTest, QtSpeaksSimplifiedChineseWhereWeDo) {
    EXPECT_EQ(qtsCancelIn("zh_SG"), QStringLiteral("取消"));
}

TEST(ToolkitTest, QtSpeaksNoLanguageThatWeDoNot) {
    EXPECT_EQ(qtsCancelIn("it_IT"), QStringLiteral("Cancel"));
}

} // namespace
} // namespace barquell::test
