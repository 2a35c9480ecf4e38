#include "interface/Forms.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QStyle>

namespace barquell::test {
namespace {

using InterfaceFileTest = FormTest;

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

TEST_F(InterfaceFileTest, AGridPutsItsItemsWhereTheFileSays) {
    ASSERT_TRUE(load(laidOut(
        "QGridLayout",
        "<property name=\"leftMargin\"><number>7</number></property>"
        "<property name=\"verticalSpacing\"><number>5</number></property>" +
            item("row=\"2\" column=\"1\" colspan=\"3\" alignment=\"Qt::AlignRight|Qt::AlignTop\"",
                 widget("QLineEdit", "line")) +
            item("row=\"0\" column=\"0\"", "<layout class=\"QHBoxLayout\" name=\"row\">" +
                                               item("", widget("QLineEdit", "inner")) + "</layout>"))))
        << complaint.toStdString();
    const auto *grid = qobject_cast<QGridLayout *>(find<QWidget>("page")->layout());
    ASSERT_NE(grid, nullptr);
    const auto usual = [this](QStyle::PixelMetric side) {
        return QApplication::style()->pixelMetric(side, nullptr, find<QWidget>("page"));
    };
    EXPECT_EQ(grid->contentsMargins(),
              QMargins(7, usual(QStyle::PM_LayoutTopMargin), usual(QStyle::PM_LayoutRightMargin),
                       usual(QStyle::PM_LayoutBottomMargin)));
    EXPECT_EQ(grid->verticalSpacing(), 5);
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(find<QLineEdit>("line")), &row, &column, &rows, &columns);
    EXPECT_EQ(std::vector({row, column, rows, columns}), std::vector({2, 1, 1, 3}));
    EXPECT_EQ(grid->itemAtPosition(2, 1)->alignment(), Qt::AlignRight | Qt::AlignTop);
    ASSERT_NE(grid->itemAtPosition(0, 0)->layout(), nullptr);
    EXPECT_EQ(grid->itemAtPosition(0, 0)->layout()->itemAt(0)->widget(), find<QLineEdit>("inner"));
    EXPECT_EQ(find<QLineEdit>("inner")->parent(), find<QWidget>("page"));
}

TEST_F(InterfaceFileTest, ASpacerIsOfItsSizeAndStretchesAsItSays) {
    const QByteArray hint = "<property name=\"sizeHint\" "
                            "stdset=\"0\"><size><width>20</width><height>9</height></size></property>";
    const auto spacer = [&](const QByteArray &orientation, const QByteArray &more) {
        return item("", "<spacer name=\"s\"><property name=\"orientation\"><enum>" + orientation +
                            "</enum></property>" + more + hint + "</spacer>");
    };
    ASSERT_TRUE(load(laidOut(
        "QVBoxLayout",
        spacer("Qt::Vertical", "<property name=\"sizeType\"><enum>QSizePolicy::Fixed</enum></property>") +
            spacer("Qt::Horizontal", ""))));
    const QLayout &column = *find<QWidget>("page")->layout();
    ASSERT_EQ(column.count(), 2);
    EXPECT_EQ(column.itemAt(0)->sizeHint(), QSize(20, 9));
    EXPECT_EQ(column.itemAt(0)->expandingDirections(), Qt::Orientations());
    EXPECT_EQ(column.itemAt(1)->expandingDirections(), Qt::Horizontal);
}

TEST_F(InterfaceFileTest, PropertiesAreOfTheirClassesTypes) {
    ASSERT_TRUE(load(widget(
        "QLineEdit", "line",
        property("focusPolicy", "<enum>Qt::ClickFocus</enum>") +
            property("alignment", "<set>Qt::AlignRight|Qt::AlignBottom</set>") +
            property("font", "<font><pointsize>21</pointsize><bold>true</bold></font>") +
            property("geometry", "<rect><x>1</x><y>2</y><width>30</width><height>40</height></rect>") +
            property("sizePolicy", "<sizepolicy hsizetype=\"Fixed\" vsizetype=\"Expanding\">"
                                   "<horstretch>3</horstretch><verstretch>0</verstretch></sizepolicy>"))));
    const auto *line = find<QLineEdit>("line");
    EXPECT_EQ(line->focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(line->alignment(), Qt::AlignRight | Qt::AlignBottom);
    EXPECT_TRUE(line->font().bold());
    EXPECT_EQ(line->font().pointSize(), 21);
    EXPECT_EQ(line->geometry(), QRect(1, 2, 30, 40));
    EXPECT_EQ(line->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    EXPECT_EQ(line->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(line->sizePolicy().horizontalStretch(), 3);
}

TEST_F(InterfaceFileTest, NamesMayStandBeforeWhatTheyName) {
    ASSERT_TRUE(
        load(widget("QMenu", "menu",
                    "<addaction name=\"first\"/><addaction name=\"separator\"/><addaction name=\"last\"/>") +
             widget("QWidget", "page",
                    widget("QLabel", "label", "<property name=\"buddy\"><cstring>line</cstring></property>") +
                        widget("QLineEdit", "line")) +
             action("last") + action("first")));
    const QList<QAction *> actions = find<QMenu>("menu")->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_EQ(actions[0], find<QAction>("first"));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2], find<QAction>("last"));
    EXPECT_EQ(find<QLabel>("label")->buddy(), find<QLineEdit>("line"));
}

/// Sends away what it is given.
class Remover final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QObject *victim READ victim WRITE remove)

public:
    static QObject *victim() { return nullptr; }
    static void remove(QObject *object) { const std::unique_ptr<QObject> goes(object); }
};

TEST_F(InterfaceFileTest, WhoWasSentAwayByAnOutletIsNotWoken) {
    InterfaceClasses::add<Remover>("Remover");
    Controller::woken.clear();
    ASSERT_TRUE(
        load(widget("QWidget", "last", kController) +
             widget("QWidget", "remover", says("objectClass", "Remover") + says("outlet_victim", "victim")) +
             widget("QWidget", "page", widget("QWidget", "victim", kController))));
    EXPECT_EQ(Controller::woken, QStringList(QStringLiteral("last")));
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
