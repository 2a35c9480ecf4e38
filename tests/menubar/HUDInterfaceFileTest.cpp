#include "HUDFixture.h"

#include "foundation/interface/InterfaceClasses.h"
#include "menubar/hud/HUDPicture.h"
#include "support/HUDOwner.h"

#include <QFile>
#include <QLabel>

namespace barquell::test {

class HUDInterfaceFileTest : public HUDFixture {
protected:
    HUDInterfaceFileTest() {
        InterfaceClasses::add<HUDPlate>("HUDPlate");
        InterfaceClasses::add<HUDPicture>("HUDPicture");
        InterfaceClasses::add<TouchBarHUDVariant>("TouchBarHUDVariant");
        InterfaceClasses::add<TouchBarHUDController>("TouchBarHUDController");
        TouchBarInterceptor::subscribeToUserDefaults();
        objects = TouchBarHUDController::loadFromNib(&owner);
    }

    HUDOwner owner;
    TopLevelObjects objects;
};

TEST_F(HUDInterfaceFileTest, ItMakesAControllerWithTwoLooksInTwoSizes) {
    ASSERT_TRUE(owner.hud());
    for (const TouchBarHUDVariant *look : {owner.hud()->onVariant(), owner.hud()->offVariant()}) {
        ASSERT_TRUE(look);
        ASSERT_TRUE(look->largeView() && look->smallView());
        EXPECT_EQ(look->smallView()->size(), QSize(112, 80));
        EXPECT_EQ(look->largeView()->size(), QSize(240, 200));
        EXPECT_EQ(look->largeView()->cornerRadius(), 20);
    }
    EXPECT_NE(owner.hud()->onVariant(), owner.hud()->offVariant());
    EXPECT_EQ(panel.content, owner.hud()->offVariant()->smallView());
}

TEST_F(HUDInterfaceFileTest, EachViewHasAPictureThatExistsAndTheLargeOnesATextThatFits) {
    ASSERT_TRUE(owner.hud());
    QStringList texts;
    QStringList pictures;
    for (const TouchBarHUDVariant *look : {owner.hud()->onVariant(), owner.hud()->offVariant()}) {
        for (const HUDPlate *view : {look->largeView(), look->smallView()}) {
            const auto *picture = view->findChild<HUDPicture *>();
            ASSERT_TRUE(picture);
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/images/%1.svg").arg(picture->image())));
            EXPECT_TRUE(view->rect().contains(picture->geometry()));
            pictures.append(picture->image());
        }
        const auto *text = look->largeView()->findChild<QLabel *>();
        ASSERT_TRUE(text);
        EXPECT_LE(text->sizeHint().width(), text->width());
        EXPECT_LE(text->sizeHint().height(), text->height());
        texts.append(text->text());
    }
    EXPECT_EQ(texts.removeDuplicates(), 0);
    EXPECT_EQ(pictures.removeDuplicates(), 0);
}

TEST_F(HUDInterfaceFileTest, TheEndOfItsObjectsIsTheEndOfTheHUD) {
    ASSERT_TRUE(panel.visible);
    objects.clear();
    EXPECT_FALSE(panel.visible);
    EXPECT_EQ(owner.hud(), nullptr);
    set("Enabled", false);
    EXPECT_FALSE(panel.visible);
}

TEST_F(HUDInterfaceFileTest, AnOwnerWithoutTheOutletGetsNoHUD) {
    panels.journal.clear();
    log.lines.clear();
    QObject stranger;
    EXPECT_TRUE(TouchBarHUDController::loadFromNib(&stranger).empty());
    EXPECT_EQ(log.lines, QStringList{QStringLiteral("Failed to load nib named TouchBarHUD")});
    EXPECT_THAT(panels.journal, testing::IsEmpty());
}

} // namespace barquell::test

#include "HUDInterfaceFileTest.moc"
