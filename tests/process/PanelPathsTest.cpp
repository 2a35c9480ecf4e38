#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "process/Helpers.h"
#include "support/Place.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <pwd.h>
#include <unistd.h>

namespace barquell::test {
namespace {

const QString kKey = QStringLiteral("AddAppsLastPath");

/// The real file dialog, drawn by Qt.
class PanelPathsTest : public testing::Test {
protected:
    PanelPathsTest() {
        place();
        UserDefaults::standard().removePersistentDomain();
        panel.setOption(QFileDialog::DontUseNativeDialog);
        panel.setProperty("identifier", QStringLiteral("AddApps"));
        panel.setDirectory(start.path());
    }

    QString shown() const { return panel.directory().path(); }
    static QVariant stored() { return UserDefaults::standard().objectForKey(kKey); }
    static void store(const QVariant &value) { UserDefaults::standard().setObject(value, kKey); }

    QTemporaryDir start;
    QTemporaryDir other;
    QFileDialog panel;
};

TEST_F(PanelPathsTest, WithoutAnIdentifierNoSettingIsReadOrWritten) {
    panel.setProperty("identifier", QVariant());
    UserDefaults::standard().setObject(other.path(), QStringLiteral("LastPath"));
    UserDefaults::standard().setObject(other.path(), panel.objectName() + QStringLiteral("LastPath"));
    const QVariantMap before = UserDefaults::standard().persistentDomain();
    EXPECT_FALSE(Helpers::loadLastPathForPanel(panel, other.path()));
    EXPECT_EQ(shown(), start.path());
    EXPECT_FALSE(Helpers::saveLastPathForPanel(panel));
    EXPECT_TRUE(sameValue(UserDefaults::standard().persistentDomain(), before));
}

TEST_F(PanelPathsTest, TheFallbackIsWhereApplicationsAre) {
    place().platform.applications.where = other.path();
    EXPECT_TRUE(Helpers::loadLastPathForPanel(panel, QStringLiteral("/Applications")));
    EXPECT_EQ(shown(), other.path());
}

TEST_F(PanelPathsTest, AFallbackWithATildeIsInTheUsersHome) {
    ASSERT_TRUE(QDir(other.path()).mkdir(QStringLiteral("sub")));
    qputenv("HOME", QFile::encodeName(other.path()));
    EXPECT_TRUE(Helpers::loadLastPathForPanel(panel, QStringLiteral("~/sub")));
    EXPECT_EQ(shown(), other.path() + QStringLiteral("/sub"));
    EXPECT_TRUE(Helpers::loadLastPathForPanel(panel, QStringLiteral("~")));
    EXPECT_EQ(shown(), other.path());
}

TEST_F(PanelPathsTest, AFallbackInAnotherUsersHomeIsFound) {
    const passwd *user = ::getpwuid(::getuid());
    ASSERT_NE(user, nullptr);
    qputenv("HOME", QFile::encodeName(other.path())); // which is not what the system knows
    EXPECT_TRUE(
        Helpers::loadLastPathForPanel(panel, QLatin1Char('~') + QString::fromLocal8Bit(user->pw_name)));
    EXPECT_EQ(shown(), QFile::decodeName(user->pw_dir));
}

TEST_F(PanelPathsTest, TheLastFolderComesBeforeTheFallback) {
    store(other.path());
    EXPECT_TRUE(Helpers::loadLastPathForPanel(panel, QStringLiteral("~")));
    EXPECT_EQ(shown(), other.path());
}

TEST_F(PanelPathsTest, WithNeitherNothingHappens) {
    EXPECT_FALSE(Helpers::loadLastPathForPanel(panel, QString()));
    EXPECT_EQ(shown(), start.path());
}

TEST_F(PanelPathsTest, AStoredValueThatIsNoPathCountsAsNone) {
    store(7);
    EXPECT_TRUE(Helpers::loadLastPathForPanel(panel, other.path()));
    EXPECT_EQ(shown(), other.path());
    EXPECT_TRUE(sameValue(stored(), 7LL));
}

TEST_F(PanelPathsTest, TheFolderIsRememberedAsAPath) {
    panel.setDirectory(other.path());
    EXPECT_TRUE(Helpers::saveLastPathForPanel(panel));
    EXPECT_TRUE(sameValue(stored(), other.path()));
    QFileDialog next;
    next.setOption(QFileDialog::DontUseNativeDialog);
    next.setProperty("identifier", QStringLiteral("AddApps"));
    EXPECT_TRUE(Helpers::loadLastPathForPanel(next, start.path()));
    EXPECT_EQ(next.directory().path(), other.path());
}

} // namespace
} // namespace barquell::test
