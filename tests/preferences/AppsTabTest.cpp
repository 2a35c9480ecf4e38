#include "AppsFixture.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::NotNull;

namespace {

class AppsTabTest : public AppsFixture {
protected:
    QFileDialog *panel() { return window().findChild<QFileDialog *>(); }
};

} // namespace

TEST_F(AppsTabTest, ItStandsForTheTouchBarTabAndIsResizableInHeightOnly) {
    openWith({});
    EXPECT_EQ(apps().identifier(), QStringLiteral("Apps"));
    EXPECT_EQ(apps().selectedIdentifier(), QStringLiteral("TouchBar"));
    const ResizeConfiguration configuration = apps().resizeConfiguration();
    EXPECT_EQ(configuration.minimumWidth, 0);
    EXPECT_EQ(configuration.minimumHeight, 184);
    EXPECT_EQ(configuration.maximumWidth, 0);
    EXPECT_EQ(configuration.maximumHeight, 0);
    EXPECT_TRUE(window().isResizable());
    EXPECT_EQ(window().minimumWidth(), window().maximumWidth());
}

TEST_F(AppsTabTest, TheTableHasTheFocusWhenTheTabAppears) {
    openWith({});
    EXPECT_EQ(window().focusWidget(), &table());
}

TEST_F(AppsTabTest, TheRemoveButtonFollowsTheSelectionAndTheAddButtonIsAlwaysOn) {
    openWith({"a", "b"});
    EXPECT_FALSE(apps().removeButton()->isEnabled());
    EXPECT_TRUE(apps().addButton()->isEnabled());
    table().selectRowIndexes({1});
    EXPECT_TRUE(apps().removeButton()->isEnabled());
    table().selectRowIndexes({});
    EXPECT_FALSE(apps().removeButton()->isEnabled());
    EXPECT_TRUE(apps().addButton()->isEnabled());
}

TEST_F(AppsTabTest, RemovingAsksInASheetAndCancelKeepsTheList) {
    openWith({"a", "b"});
    table().selectRowIndexes({0});
    apps().removeSelected({});
    ASSERT_THAT(sheet(), NotNull());
    EXPECT_EQ(sheet()->text(),
              QStringLiteral("Are you sure you want to remove selected apps from bypass list?"));
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet()->icon(), QMessageBox::Warning);
    EXPECT_EQ(list(), QStringList({"a", "b"}));
    answer("Cancel");
    EXPECT_EQ(list(), QStringList({"a", "b"}));
    EXPECT_EQ(announcements, 0);
}

TEST_F(AppsTabTest, OKRemovesWhatWasSelectedWhenItWasAsked) {
    openWith({"a", "b", "c"});
    table().selectRowIndexes({0, 2});
    apps().removeSelected({});
    table().selectRowIndexes({1});
    answer("OK");
    EXPECT_EQ(list(), QStringList({"b"}));
}

TEST_F(AppsTabTest, WithoutConfirmationTheRowsGoAtOnce) {
    openWith({"a", "b", "c"});
    set("RemoveWithoutConfirmation", true);
    table().selectRowIndexes({0, 1});
    apps().removeSelected({});
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(list(), QStringList({"c"}));
}

TEST_F(AppsTabTest, RemovingNothingAsksNothing) {
    openWith({"a"});
    apps().removeSelected({});
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(announcements, 0);
}

TEST_F(AppsTabTest, AfterARemovalTheButtonFollowsWhateverSelectionIsLeft) {
    openWith({"a", "b", "c"});
    set("RemoveWithoutConfirmation", true);
    table().selectRowIndexes({0});
    apps().removeSelected({});
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(0)); // the table keeps the row
    EXPECT_TRUE(apps().removeButton()->isEnabled());
    table().selectRowIndexes({0, 1});
    apps().removeSelected({});
    EXPECT_THAT(table().selectedRowIndexes(), IsEmpty());
    EXPECT_FALSE(apps().removeButton()->isEnabled());
}

TEST_F(AppsTabTest, TheCloseButtonLeadsBackToTheTabThatOpenedIt) {
    openWith({});
    apps().closeTab({});
    EXPECT_EQ(controller->currentTab(), touchBar());
}

TEST_F(AppsTabTest, TheAddPanelIsASheetForApplications) {
    openWith({});
    apps().add({});
    ASSERT_THAT(panel(), NotNull());
    EXPECT_EQ(panel()->property("identifier"), QStringLiteral("AddApps"));
    EXPECT_EQ(panel()->fileMode(), QFileDialog::ExistingFiles);
    EXPECT_EQ(panel()->nameFilters(), QStringList({"*.app"}));
    EXPECT_EQ(panel()->labelText(QFileDialog::Accept), QStringLiteral("Add"));
    EXPECT_EQ(panel()->windowModality(), Qt::WindowModal);
}

TEST_F(AppsTabTest, CancellingThePanelAddsNothingAndRemembersNoFolder) {
    openWith({});
    apps().add({});
    panel()->reject();
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_FALSE(stored("AddAppsLastPath").isValid());
}

TEST_F(AppsTabTest, EditingWithNothingSelectedOpensTheAddPanel) {
    openWith({"a"});
    apps().editSelected({});
    EXPECT_THAT(panel(), NotNull());
}

TEST_F(AppsTabTest, EditingARowDoesNothing) {
    openWith({"a"});
    table().selectRowIndexes({0});
    apps().editSelected({});
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(AppsTabTest, AnAppThatComesAgainIsLookedUpAfreshAndOneThatStaysIsNot) {
    openWith({"a", "b"});
    const int before = applications.lookUps;
    AppList::bypassAppList().removeBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(applications.lookUps, before);
    AppList::bypassAppList().addBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(applications.lookUps, before + 1);
}

TEST_F(AppsTabTest, AnOutsideEditOfTheListRefreshesTheRows) {
    openWith({"a"});
    here.platform.settings.editFromOutside(QStringLiteral("BypassApps"), QVariantList({"x", "y", "z"}));
    here.loop.runPending();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(apps().textForRow(2), QStringLiteral("z"));
}

TEST_F(AppsTabTest, ItsEndEndsItsSubscription) {
    openWith({"a"});
    controller.reset();
    AppList::bypassAppList().addBundleIdentifier(QStringLiteral("b"));
    EXPECT_EQ(list(), QStringList({"a", "b"}));
}

TEST_F(AppsTabTest, AListOfAnyTypeReadsAsARowForEachEntry) {
    for (const QVariant &value :
         {QVariant(3), QVariant(QStringLiteral("a")), QVariant(QVariantMap()), QVariant(true)}) {
        set("BypassApps", value);
        openWith({});
        EXPECT_EQ(apps().numberOfRows(), 0);
        controller.reset();
    }
    set("BypassApps", QVariantList{QStringLiteral("a"), 7, QVariantList()});
    controller = PreferencesWindowController::create();
    controller->showWindow(nullptr);
    touchBar()->showApps({});
    EXPECT_EQ(apps().numberOfRows(), 3);
    EXPECT_EQ(apps().textForRow(1), QStringLiteral("???"));
}

namespace {

/// Real files, since a panel only answers with those.
class AppsPanelTest : public AppsTabTest {
protected:
    QString file(const char *name) {
        QString path = folder.filePath(QString::fromLatin1(name));
        QFile made(path);
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        return path;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(AppsPanelTest, ThreeChosenAppsOfWhichOneIsListedAppendAndSelectTwo) {
    for (const char *identifier : {"a", "b", "c"}) {
        applications.addAt(file(identifier), identifier);
    }
    openWith({"x", "b"});
    apps().add({});
    panel()->setNameFilters({});
    panel()->setDirectory(folder.path());
    panel()->selectFile(QStringLiteral("a"));
    auto *name = panel()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    ASSERT_THAT(name, NotNull());
    name->setText(QStringLiteral("\"a\" \"b\" \"c\""));
    static_cast<QDialog *>(panel())->accept(); // protected in the panel alone
    EXPECT_EQ(list(), QStringList({"x", "b", "a", "c"}));
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(2, 3));
    EXPECT_EQ(announcements, 1); // one call
    EXPECT_EQ(stored("AddAppsLastPath").toString(), folder.path());
}

TEST_F(AppsPanelTest, AChosenFileThatIsNoAppIsSkippedSilently) {
    file("readme");
    openWith({"x"});
    log.lines.clear();
    apps().add({});
    panel()->setNameFilters({});
    panel()->setDirectory(folder.path());
    panel()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("readme"));
    static_cast<QDialog *>(panel())->accept(); // protected in the panel alone
    EXPECT_EQ(list(), QStringList({"x"}));
    EXPECT_THAT(log.lines, IsEmpty());
}

} // namespace barquell::test
