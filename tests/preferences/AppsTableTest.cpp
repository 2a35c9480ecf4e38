#include "AppsFixture.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>

namespace barquell::test {

using testing::ElementsAre;

namespace {

constexpr int kMany = 5000;

class AppsTableTest : public AppsFixture {
protected:
    static QStringList many() {
        QStringList identifiers;
        for (int index = 0; index < kMany; ++index) {
            identifiers.append(QStringLiteral("app.%1").arg(index));
        }
        return identifiers;
    }

    QStringList namesInSight() {
        QStringList names;
        const auto labels = table().viewport()->findChildren<QLabel *>(QStringLiteral("textField"));
        for (const QLabel *label : labels) {
            if (label->isVisible()) {
                names.append(label->text());
            }
        }
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(AppsTableTest, EachRowShowsItsNameAtItsPlace) {
    applications.add("app.one", "One");
    openWith({"app.one", "app.gone"});
    QApplication::processEvents();
    EXPECT_EQ(namesInSight(), QStringList({"One", "app.gone"}));
    const QWidget *second = apps().viewForRow(1);
    EXPECT_EQ(second->geometry(), table().visualRect(table().model()->index(1, 0)));
}

TEST_F(AppsTableTest, AMovedRowKeepsItsView) {
    openWith({"a", "b"});
    QApplication::processEvents();
    const QWidget *view = apps().viewForRow(0);
    AppList::bypassAppList().moveObjectsAtIndexes({0}, 2);
    QApplication::processEvents();
    EXPECT_EQ(apps().viewForRow(1), view);
    EXPECT_EQ(view->geometry(), table().visualRect(table().model()->index(1, 0)));
}

TEST_F(AppsTableTest, ARemovedRowsViewGoes) {
    openWith({"a", "b"});
    QApplication::processEvents();
    AppList::bypassAppList().removeObjectAtIndex(0);
    QApplication::processEvents();
    EXPECT_EQ(namesInSight(), QStringList({"b"}));
}

TEST_F(AppsTableTest, ASelectedRowHasTheColourOfTheSelection) {
    openWith({"a", "b"});
    QApplication::processEvents();
    table().selectRowIndexes({1});
    const auto colour = [this](int row) {
        const auto *label = apps().viewForRow(row)->findChild<QLabel *>(QStringLiteral("textField"));
        return label->palette().color(label->foregroundRole());
    };
    EXPECT_EQ(colour(1), table().palette().color(QPalette::HighlightedText));
    EXPECT_EQ(colour(0), table().palette().color(QPalette::Text));
}

TEST_F(AppsTableTest, SelectingRowsThatDoNotExistLeavesThemOut) {
    openWith({"a", "b"});
    table().selectRowIndexes({-1, 1, 5});
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(1));
}

TEST_F(AppsTableTest, OfALongListOnlyTheRowsInSightHaveViews) {
    QElapsedTimer watch;
    watch.start();
    openWith(many());
    QApplication::processEvents();
    EXPECT_EQ(table().model()->rowCount(), kMany);
    EXPECT_LT(table().viewport()->findChildren<QLabel *>(QStringLiteral("textField")).size(), 40);
    EXPECT_EQ(table().model()->index(kMany - 1, 0).data().toString(), QStringLiteral("app.4999"));
    RecordProperty("milliseconds", QString::number(watch.elapsed()).toStdString());
}

TEST_F(AppsTableTest, ALongListScrollsToItsEndAndIsEdited) {
    openWith(many());
    QApplication::processEvents();
    table().verticalScrollBar()->setValue(table().verticalScrollBar()->maximum());
    QApplication::processEvents();
    EXPECT_TRUE(namesInSight().contains(QStringLiteral("app.4999")));
    EXPECT_FALSE(namesInSight().contains(QStringLiteral("app.0")));
    set("RemoveWithoutConfirmation", true);
    table().selectAll();
    apps().removeSelected({});
    EXPECT_EQ(apps().numberOfRows(), 0);
}

TEST_F(AppsTableTest, ADoubleClickBesideTheRowsOpensTheAddPanel) {
    openWith({"a"});
    table().selectRowIndexes({});
    QMouseEvent click(QEvent::MouseButtonDblClick, QPointF(5, table().viewport()->height() - 2),
                      table().viewport()->mapToGlobal(QPointF(5, 5)), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(table().viewport(), &click);
    EXPECT_EQ(window().findChildren<QDialog *>().size(), 1);
}

} // namespace barquell::test
