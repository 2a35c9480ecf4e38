#include "FakeApplications.h"

#include "preferences/tabs/AppRuleItemViewController.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

class AppRuleTest : public testing::Test {
protected:
    AppRuleTest() {
        place();
        applications.install();
    }

    static std::unique_ptr<AppRuleItemViewController> row(const char *identifier) {
        return AppRuleItemViewController::newWithNBundleIdentifier(QString::fromLatin1(identifier));
    }

    FakeApplications applications;
    LogCapture log;
};

} // namespace

TEST_F(AppRuleTest, AnAppIsShownAsTheSystemNamesIt) {
    applications.add("app.one", "Shown", "Own");
    const auto one = row("app.one");
    EXPECT_EQ(one->textField()->text(), QStringLiteral("Shown"));
    EXPECT_FALSE(one->imageView()->pixmap().isNull());
    EXPECT_NE(one->view(), nullptr);
    EXPECT_EQ(one->textField()->window(), one->view()->window());
}

TEST_F(AppRuleTest, WhereTheSystemNamesItNotTheAppNamesItself) {
    applications.add("app.one", "", "Own");
    EXPECT_EQ(row("app.one")->textField()->text(), QStringLiteral("Own"));
}

TEST_F(AppRuleTest, AnAppWithoutAnyNameIsItsIdentifier) {
    applications.add("app.one", "", "");
    EXPECT_EQ(row("app.one")->textField()->text(), QStringLiteral("app.one"));
}

TEST_F(AppRuleTest, AnAppThatIsNotInstalledIsItsIdentifierWithoutAnIcon) {
    const auto gone = row("app.gone");
    EXPECT_EQ(gone->textField()->text(), QStringLiteral("app.gone"));
    EXPECT_TRUE(gone->imageView()->pixmap().isNull());
}

TEST_F(AppRuleTest, WithoutAnIdentifierThereAreThreeQuestionMarksAndOurOwnIcon) {
    const auto unknown = AppRuleItemViewController::newWithNBundleIdentifier(std::nullopt);
    EXPECT_EQ(unknown->textField()->text(), QStringLiteral("???"));
    EXPECT_FALSE(unknown->imageView()->pixmap().isNull());
    EXPECT_EQ(applications.lookUps, 0);
}

TEST_F(AppRuleTest, AnIdentifierIsNoMarkup) {
    EXPECT_EQ(row("<b>app</b>")->textField()->textFormat(), Qt::PlainText);
}

TEST_F(AppRuleTest, TheViewIsMadeWhenItIsFirstAskedFor) {
    const auto one = row("app.one");
    const auto windows = QApplication::allWidgets().size();
    one->view();
    EXPECT_GT(QApplication::allWidgets().size(), windows);
    EXPECT_EQ(applications.lookUps, 1); // the data was there before
}

} // namespace barquell::test
