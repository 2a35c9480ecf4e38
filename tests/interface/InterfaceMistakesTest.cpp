// What files may not say.

#include "interface/Forms.h"

#include <QGridLayout>

namespace barquell::test {
namespace {

using InterfaceMistakesTest = FormTest;

TEST_F(InterfaceMistakesTest, AnUnknownClassIsRefused) {
    const QByteArrayList bad{
        widget("NoSuchView", "view"),
        widget("QWidget", "c", says("objectClass", "NoSuchController")),
        action("item", says("objectClass", "NoSuchItem")),
        action("item", says("objectClass", "Plain")), // an object, but no menu item
        widget("QWidget", "c", kController + widget("QLineEdit", "lost")),
    };
    for (const QByteArray &wrong : bad) {
        complaint.clear();
        EXPECT_FALSE(load(wrong)) << wrong.constData();
        EXPECT_FALSE(complaint.isEmpty());
    }
}

TEST_F(InterfaceMistakesTest, WhatIsNoFormIsRefused) {
    for (const char *wrong : {"<html/>", "<ui/>", "<ui version=\"4.0\"/>", "words", ""}) {
        complaint.clear();
        EXPECT_FALSE(loadInterface(wrong, &owner, &complaint)) << wrong;
        EXPECT_FALSE(complaint.isEmpty());
    }
}

TEST_F(InterfaceMistakesTest, AMistakeWithinAnObjectIsRefused) {
    const QByteArrayList bad{
        widget("QLineEdit", "line", "<property name=\"colour\"><string>red</string></property>"),
        widget("QLineEdit", "line", "<property name=\"maxLength\"><number>many</number></property>"),
        widget("QLineEdit", "line", "<property name=\"focusPolicy\"><enum>Qt::Unheard</enum></property>"),
        widget("QLineEdit", "line", "<property name=\"maxLength\"><brush/></property>"),
        widget("QLineEdit", "line", "<property name=\"maxLength\"/>"),
        widget("QLabel", "label", "<property name=\"buddy\"><cstring>nobody</cstring></property>"),
        widget("QMenu", "menu", "<addaction name=\"nobody\"/>"),
        widget("QWidget", "page", "<item><property name=\"text\"><string>x</string></property></item>"),
        laidOut("QRoundLayout", ""),
        laidOut("QVBoxLayout", "<item/>"),
        action("item", widget("QWidget", "within")),
    };
    for (const QByteArray &wrong : bad) {
        complaint.clear();
        EXPECT_FALSE(load(wrong)) << wrong.constData();
        EXPECT_TRUE(complaint.startsWith(QStringLiteral("line "))) << complaint.toStdString();
    }
}

TEST_F(InterfaceMistakesTest, AValueThatMakesNoSenseIsRefused) {
    const QByteArray size = "<width>1</width><height>2</height>";
    const QByteArrayList bad{
        property("enabled", "<bool>yes</bool>"),
        property("enabled", "<bool>true</bool><bool>false</bool>"),
        property("focusPolicy", "<enum>Qt::Unheard</enum>"),
        property("minimumSize", "<size><width>one</width><height>2</height></size>"),
        property("minimumSize", "<size><width>1</width></size>"),
        property("minimumSize", "<size>" + size + "<depth>3</depth></size>"),
        property("geometry", "<rect><x>1</x><y>2.5</y>" + size + "</rect>"),
        property("geometry", "<rect>" + size + "</rect>"),
        property("font", "<font><pointsize>large</pointsize></font>"),
        property("font", "<font><bold>1</bold></font>"),
        property("font", "<font><italic>true</italic></font>"),
        property("sizePolicy", "<sizepolicy hsizetype=\"Wide\" vsizetype=\"Fixed\">"
                               "<horstretch>0</horstretch><verstretch>0</verstretch></sizepolicy>"),
        property("sizePolicy", "<sizepolicy hsizetype=\"Fixed\" vsizetype=\"Fixed\">"
                               "<horstretch>much</horstretch><verstretch>0</verstretch></sizepolicy>"),
    };
    for (const QByteArray &wrong : bad) {
        complaint.clear();
        EXPECT_FALSE(load(widget("QLineEdit", "line", wrong))) << wrong.constData();
        EXPECT_TRUE(complaint.startsWith(QStringLiteral("line "))) << complaint.toStdString();
    }
}

QByteArray spacer(const QByteArray &content) {
    return item("", "<spacer name=\"s\">" + content + "</spacer>");
}

TEST_F(InterfaceMistakesTest, AMistakeWithinALayoutIsRefused) {
    const QByteArray line = widget("QLineEdit", "line");
    const QByteArrayList bad{
        item("row=\"2000000000\"", line),
        item("row=\"-1\"", line),
        item("column=\"100\"", line),
        item("column=\"second\"", line),
        item("rowspan=\"0\"", line),
        item("colspan=\"100\"", line),
        item("alignment=\"Qt::AlignSomewhere\"", line),
        item("", line + widget("QLineEdit", "second")),
        item("", "<gap/>"),
        "<gap/>",
        property("leftMargin", "<number>wide</number>"),
        property("leftMargin", "<string>wide</string>"),
        property("verticalSpacing", "<bool>true</bool>"),
        spacer("<gap/>"),
        spacer(widget("QLineEdit", "within")),
        spacer(property("colour", "<string>red</string>")),
        spacer(property("orientation", "<enum>Qt::Diagonal</enum>")),
        spacer(property("orientation", "<enum>Qt::Horizontal|Qt::Vertical</enum>")),
        spacer(property("sizeType", "<enum>QSizePolicy::Wide</enum>")),
        spacer(property("sizeHint", "<number>3</number>")),
    };
    for (const QByteArray &wrong : bad) {
        complaint.clear();
        EXPECT_FALSE(load(laidOut("QGridLayout", wrong))) << wrong.constData();
        EXPECT_TRUE(complaint.startsWith(QStringLiteral("line "))) << complaint.toStdString();
    }
    for (const char *stretches : {"1,much", "1,,2", ","}) {
        EXPECT_FALSE(load(widget("QWidget", "page",
                                 QByteArray("<layout class=\"QGridLayout\" name=\"l\" columnstretch=\"") +
                                     stretches + "\"/>")))
            << stretches;
    }
    EXPECT_TRUE(load(laidOut("QGridLayout", item("row=\"99\" column=\"99\"", line))));
}

TEST_F(InterfaceMistakesTest, AnElementOutOfPlaceIsRefused) {
    EXPECT_FALSE(load(widget("QWidget", "page", "<gap/>")));
    EXPECT_FALSE(load(widget("QWidget", "page", "<attribute name=\"title\"><string>x</string></attribute>")));
    const QByteArray begin = "<ui version=\"4.0\"><class>Root</class>" + widget("QWidget", "Root");
    EXPECT_FALSE(loadInterface(begin + widget("QWidget", "Second") + "</ui>", &owner));
    EXPECT_FALSE(loadInterface(begin + "<connections><connection/></connections></ui>", &owner));
    EXPECT_TRUE(loadInterface(begin + "<resources/><connections/></ui>", &owner)); // as Designer ends them
}

TEST_F(InterfaceMistakesTest, PartsWithinPartsHaveAnEnd) {
    QByteArray widgets;
    QByteArray layouts;
    for (int depth = 0; depth < 100000; ++depth) {
        widgets += "<widget class=\"QWidget\" name=\"\">";
        layouts += "<layout class=\"QVBoxLayout\"><item>";
    }
    EXPECT_FALSE(loadInterface("<ui><widget>" + widgets, &owner, &complaint));
    EXPECT_TRUE(complaint.contains(QStringLiteral("64 deep"))) << complaint.toStdString();
    EXPECT_FALSE(loadInterface("<ui><widget>" + layouts, &owner, &complaint));
    EXPECT_TRUE(complaint.contains(QStringLiteral("64 deep"))) << complaint.toStdString();
}

TEST_F(InterfaceMistakesTest, ANameIsOfOneObjectAndTheEmptyOneOfNone) {
    EXPECT_FALSE(load(widget("QLineEdit", "twin") + action("twin")));
    EXPECT_TRUE(complaint.contains(QStringLiteral("twin"))) << complaint.toStdString();
    EXPECT_TRUE(load(widget("QWidget", "page", widget("QLineEdit", "") + widget("QLineEdit", ""))));
    EXPECT_FALSE(load(widget("QMenu", "menu", "<addaction name=\"\"/>") + action("")));
    EXPECT_FALSE(
        load(widget("QLineEdit", "") + widget("QWidget", "c", kController + says("outlet_field", ""))));
}

} // namespace
} // namespace barquell::test
