#include "interface/Forms.h"

namespace barquell::test {
namespace {

using OutletsTest = FormTest;

TEST_F(OutletsTest, ThePropertyOfThatNameReceivesTheObject) {
    ASSERT_TRUE(load(
        widget("QWidget", "controller", says("objectClass", "Controller") + says("outlet_field", "line")) +
        widget("QWidget", "page", widget("QLineEdit", "line"))));
    auto *controller = find<Controller>("controller");
    ASSERT_NE(controller, nullptr);
    EXPECT_EQ(controller->field, find<QLineEdit>("line"));
    EXPECT_NE(controller->field, nullptr);
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(OutletsTest, PlaceholdersPointAtEachOther) {
    ASSERT_TRUE(load(widget("QWidget", "a", says("objectClass", "Controller") + says("outlet_next", "b")) +
                     widget("QWidget", "b", says("objectClass", "Controller") + says("outlet_next", "a"))));
    EXPECT_EQ(find<Controller>("a")->next, find<Controller>("b"));
    EXPECT_EQ(find<Controller>("b")->next, find<Controller>("a"));
}

TEST_F(OutletsTest, TheOwnersPropertyReceivesTheObject) {
    ASSERT_TRUE(load(widget("QPushButton", "push", says("ownerOutlet", "button"))));
    EXPECT_EQ(owner.button, find<QPushButton>("push"));
}

TEST_F(OutletsTest, TheOwnerIsATargetToo) {
    InterfaceClasses::add<Owner>("Owner");
    ASSERT_TRUE(
        load(widget("QWidget", "o", says("objectClass", "Owner") + says("outlet_anything", "owner"))));
    EXPECT_EQ(find<Owner>("o")->anything, &owner);
}

TEST_F(OutletsTest, OtherPropertiesOfAPlaceholderReachTheObject) {
    ASSERT_TRUE(load(widget("QWidget", "c", says("objectClass", "Controller") + says("title", "Expert"))));
    EXPECT_EQ(find<Controller>("c")->title, QStringLiteral("Expert"));
}

TEST_F(OutletsTest, WhatDoesNotFitIsSaidAndNothingIsWired) {
    const QByteArray good = widget("QPushButton", "push", says("ownerOutlet", "button"));
    const QByteArray controller = says("objectClass", "Controller");
    const QByteArrayList bad{
        widget("QWidget", "c", controller + says("outlet_missing", "push")), // no such outlet
        widget("QWidget", "c", controller + says("outlet_field", "nobody")), // no such object
        widget("QWidget", "c", controller + says("outlet_field", "push")),   // of another class
        widget("QWidget", "c", controller + says("outlet_title", "push")),   // no outlet but a text
        widget("QWidget", "c", controller + says("outlet_fixed", "push")),   // cannot be set
        widget("QWidget", "c", controller + says("ownerOutlet", "nothing")), // the owner has none
    };
    for (const QByteArray &wrong : bad) {
        complaint.clear();
        EXPECT_FALSE(load(good + wrong)) << wrong.constData();
        EXPECT_EQ(owner.button, nullptr);
        EXPECT_FALSE(complaint.isEmpty());
    }
}

TEST_F(OutletsTest, AFileWithoutOwnerLoads) {
    EXPECT_TRUE(loadInterface(form(widget("QPushButton", "push")), nullptr));
    EXPECT_FALSE(loadInterface(form(widget("QPushButton", "push", says("ownerOutlet", "button"))), nullptr));
}

} // namespace
} // namespace barquell::test
