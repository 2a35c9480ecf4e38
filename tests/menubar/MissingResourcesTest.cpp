#include "StatusItemFixture.h"

#include "menubar/MenuBarClasses.h"
#include "menubar/StatusItemController.h"

#include <QResource>

static void forgetResources() {
    Q_CLEANUP_RESOURCE(barquell_resources); // needs the global namespace
}

namespace barquell::test {

using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A program that brings no resources along.
class MissingResourcesTest : public StatusItemFixture {
protected:
    MissingResourcesTest() { forgetResources(); }
};

} // namespace

TEST_F(MissingResourcesTest, AMissingImageGivesAnItemWithoutOne) {
    const StatusItemController controller;
    EXPECT_TRUE(item().image().isNull());
    EXPECT_TRUE(item().isVisible());
    EXPECT_EQ(item().opacity(), 1.0);
}

TEST_F(MissingResourcesTest, AMissingInterfaceFileMakesNothingAndIsSaid) {
    registerMenuBarClasses();
    QObject owner;
    EXPECT_THAT(StatusItemController::loadFromNib(&owner), IsEmpty());
    EXPECT_EQ(bar.item(), nullptr);
    EXPECT_EQ(log.lines, QStringList{QStringLiteral("Failed to load nib named StatusItem")});
}

} // namespace barquell::test
