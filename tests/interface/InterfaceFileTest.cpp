#include "interface/Forms.h"

#include <QFile>

namespace barquell::test {
namespace {

using InterfaceFileTest = FormTest;

const QByteArray kController = says("objectClass", "Controller");

/// A file with one of everything.
QByteArray rich() {
    return form(widget("QWidget", "controller", kController + says("outlet_field", "line")) +
                widget("QWidget", "page",
                       widget("QLineEdit", "line", says("settingsKey", "Text")) +
                           widget("QPushButton", "push",
                                  says("action", "owner.press:") + says("ownerOutlet", "button"))) +
                action("item", says("settingsKey", "Truth")));
}

TEST_F(InterfaceFileTest, TheChildrenOfTheRootHaveNoParentAfterwards) {
    ASSERT_TRUE(load(widget("QWidget", "page", widget("QLineEdit", "line")) +
                     widget("QWidget", "c", kController) + action("item")));
    QStringList names;
    for (const auto &object : *objects) {
        EXPECT_EQ(object->parent(), nullptr);
        names.append(object->objectName());
    }
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("c"), QStringLiteral("item"), QStringLiteral("page")}));
}

TEST_F(InterfaceFileTest, EachWakesOnceWhenAllOutletsAreSet) {
    Controller::woken.clear();
    ASSERT_TRUE(load(widget("QWidget", "first", kController + says("outlet_field", "line")) +
                     widget("QLineEdit", "line") + widget("QWidget", "second", kController)));
    EXPECT_EQ(Controller::woken, QStringList({QStringLiteral("first"), QStringLiteral("second")}));
    EXPECT_EQ(find<Controller>("first")->fieldWhenWoken, find<QLineEdit>("line"));
}

TEST_F(InterfaceFileTest, OneThatGotAParentGoesOnce) {
    ASSERT_TRUE(load(widget("QWidget", "page")));
    auto window = std::make_unique<QWidget>();
    find<QWidget>("page")->setParent(window.get());
    window.reset(); // takes the page along; letting the list go must not do it again
    objects.reset();
}

TEST_F(InterfaceFileTest, TextsAreKeysOfTheStrings) {
    // The key stands for itself where there is no text; "notr" and dynamic properties are no keys at all.
    ASSERT_TRUE(
        load(widget("QPushButton", "push", "<property name=\"text\"><string>A &amp; B</string></property>")));
    EXPECT_EQ(find<QPushButton>("push")->text(), QStringLiteral("A & B"));
}

TEST_F(InterfaceFileTest, AMissingFileIsRefusedWithItsReason) {
    EXPECT_FALSE(loadInterfaceFile(QStringLiteral("NoSuchFile"), &owner));
    EXPECT_FALSE(loadInterfaceFile(QStringLiteral("NoSuchFile"), &owner, &complaint));
    EXPECT_EQ(complaint, QStringLiteral("it is missing"));
    EXPECT_TRUE(logged.lines.isEmpty()); // that is for who wanted it
}

TEST_F(InterfaceFileTest, AFileCutAnywhereIsRefusedAndWiresNothing) {
    const QByteArray whole = rich();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        complaint.clear();
        Controller::woken.clear();
        EXPECT_FALSE(loadInterface(whole.left(length), &owner, &complaint)) << length;
        EXPECT_FALSE(complaint.isEmpty()) << length;
        EXPECT_EQ(owner.button, nullptr);
        EXPECT_TRUE(Controller::woken.isEmpty());
    }
    EXPECT_TRUE(loadInterface(whole, &owner, &complaint));
}

TEST_F(InterfaceFileTest, AFileWithAPieceMissingNeverCrashes) {
    const QByteArray whole = rich();
    for (qsizetype start = 0; start < whole.size(); start += 7) {
        for (const qsizetype length : {1, 8, 60}) {
            QByteArray damaged = whole;
            damaged.remove(start, length);
            complaint.clear();
            owner.button = nullptr;
            const auto loaded = loadInterface(damaged, &owner, &complaint);
            EXPECT_EQ(complaint.isEmpty(), loaded.has_value()) << damaged.constData();
        }
    }
}

TEST_F(InterfaceFileTest, AnUnknownClassIsRefused) {
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

TEST_F(InterfaceFileTest, WhatIsNoFormIsRefused) {
    for (const char *wrong : {"<html/>", "<ui/>", "<ui version=\"4.0\"/>", "words", ""}) {
        complaint.clear();
        EXPECT_FALSE(loadInterface(wrong, &owner, &complaint)) << wrong;
        EXPECT_FALSE(complaint.isEmpty());
    }
}

TEST_F(InterfaceFileTest, PluginsForDesignerStayOut) {
    ASSERT_TRUE(load(widget("QWidget", "page")));
    QFile maps(QStringLiteral("/proc/self/maps"));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QByteArray libraries = maps.readAll();
    EXPECT_TRUE(libraries.contains("libQt6Core"));
    EXPECT_FALSE(libraries.contains("/designer/"));
    EXPECT_FALSE(QCoreApplication::libraryPaths().isEmpty());
}

class View final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    Q_INVOKABLE void awakeFromNib() { ++awakened; }

    int awakened = 0;
};

class Item final : public QAction {
    Q_OBJECT

public:
    using QAction::QAction;
};

TEST_F(InterfaceFileTest, OurOwnViewsAndItemsAreMadeByName) {
    InterfaceClasses::add<View>("View");
    InterfaceClasses::addObject(QStringLiteral("Item"), [] { return std::make_unique<Item>(nullptr); });
    ASSERT_TRUE(load(widget("QWidget", "page", widget("View", "view")) +
                     action("item", says("objectClass", "Item"))));
    ASSERT_NE(find<View>("view"), nullptr);
    EXPECT_EQ(find<View>("view")->awakened, 1);
    EXPECT_NE(find<Item>("item"), nullptr);
}

} // namespace
} // namespace barquell::test

#include "InterfaceFileTest.moc"
