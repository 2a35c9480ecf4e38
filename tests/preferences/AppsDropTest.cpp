#include "AppsFixture.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AppsDropTest : public AppsFixture {
protected:
    AppsDropTest() {
        applications.add("app.one", "One");
        applications.add("app.two", "Two");
    }

    static std::unique_ptr<QMimeData> files(const QStringList &identifiers) {
        QList<QUrl> urls;
        for (const QString &each : identifiers) {
            urls.append(QUrl::fromLocalFile(FakeApplications::pathOf(each)));
        }
        auto data = std::make_unique<QMimeData>();
        data->setUrls(urls);
        return data;
    }

    static std::unique_ptr<QMimeData> rows(const QByteArray &text) {
        auto data = std::make_unique<QMimeData>();
        data->setData(reorderFormat(), text);
        return data;
    }

    /// As the list view hands a drop on, for a row that it comes before; -1 is below the last one.
    bool drop(const QMimeData &data, int row) {
        return table().model()->dropMimeData(&data, Qt::CopyAction, row, 0, {});
    }

    bool dragEnters(const QMimeData &data, Qt::DropActions actions, const QPoint &position) {
        QDragEnterEvent enter(position, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(table().viewport(), &enter);
        return enter.isAccepted();
    }
};

} // namespace

TEST_F(AppsDropTest, RowsDraggedDownBecomeTheRowsBeforeTheDropAndAreSelected) {
    openWith({"a", "b", "c", "d", "e"});
    EXPECT_TRUE(drop(*rows("0\n1"), 4));
    EXPECT_EQ(list(), QStringList({"c", "d", "a", "b", "e"}));
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(2, 3));
}

TEST_F(AppsDropTest, WhatTheTableDragsIsWhatItTakes) {
    openWith({"a", "b", "c"});
    QAbstractItemModel &model = *table().model();
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0), model.index(2, 0)}));
    EXPECT_EQ(data->formats(), QStringList({"private.table-reoder"}));
    EXPECT_TRUE(drop(*data, 3));
    EXPECT_EQ(list(), QStringList({"b", "a", "c"}));
}

TEST_F(AppsDropTest, ADropBelowTheLastRowIsAtTheEnd) {
    openWith({"a", "b", "c"});
    EXPECT_TRUE(drop(*rows("0"), -1));
    EXPECT_EQ(list(), QStringList({"b", "c", "a"}));
}

TEST_F(AppsDropTest, DroppedAppsAreInsertedThereAndSelected) {
    openWith({"a", "b"});
    EXPECT_TRUE(drop(*files({"app.one", "app.two"}), 1));
    EXPECT_EQ(list(), QStringList({"a", "app.one", "app.two", "b"}));
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(1, 2));
}

TEST_F(AppsDropTest, AnAppThatIsListedAlreadyChangesNothingNotEvenTheSelection) {
    openWith({"a", "app.one"});
    table().selectRowIndexes({0});
    EXPECT_TRUE(drop(*files({"app.one"}), 0));
    EXPECT_EQ(list(), QStringList({"a", "app.one"}));
    EXPECT_EQ(announcements, 0);
    EXPECT_THAT(table().selectedRowIndexes(), ElementsAre(0));
}

TEST_F(AppsDropTest, FilesThatAreNoAppsAreRefusedWithoutAWord) {
    openWith({"a"});
    log.lines.clear();
    EXPECT_FALSE(drop(*files({"nothing", "neither"}), 0));
    EXPECT_EQ(list(), QStringList({"a"}));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(AppsDropTest, FilesThatAreNoAppsAreLeftOut) {
    openWith({});
    EXPECT_TRUE(drop(*files({"nothing", "app.one"}), 0));
    EXPECT_EQ(list(), QStringList({"app.one"}));
}

TEST_F(AppsDropTest, AddressesThatAreNoFilesAreNoApps) {
    openWith({});
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/apps/app.one.app"))});
    EXPECT_FALSE(drop(data, 0));
}

TEST_F(AppsDropTest, RowsCountWhereTheFilesBesideThemAreNoApps) {
    openWith({"a", "b"});
    const auto data = files({"nothing"});
    data->setData(reorderFormat(), "1");
    EXPECT_TRUE(drop(*data, 0));
    EXPECT_EQ(list(), QStringList({"b", "a"}));
}

TEST_F(AppsDropTest, AppsComeBeforeRows) {
    openWith({"a", "b"});
    const auto data = files({"app.one"});
    data->setData(reorderFormat(), "1");
    EXPECT_TRUE(drop(*data, 0));
    EXPECT_EQ(list(), QStringList({"app.one", "a", "b"}));
}

TEST_F(AppsDropTest, RowsThatMakeNoSenseMoveNothing) {
    openWith({"a", "b"});
    for (const char *nonsense : {"", "x", "-1", "1.5", "99999999999999999999", "\n\n"}) {
        EXPECT_FALSE(drop(*rows(nonsense), 0)) << nonsense;
    }
    drop(*rows("7\n99"), 0); // not in this list
    EXPECT_EQ(list(), QStringList({"a", "b"}));
    EXPECT_EQ(announcements, 0);
}

TEST_F(AppsDropTest, ADropOnARowIsRefusedAtValidation) {
    openWith({"a", "b"});
    EXPECT_TRUE(apps().validateDrop(DropOperation::Above));
    EXPECT_FALSE(apps().validateDrop(DropOperation::On));
    const auto data = rows("0");
    QAbstractItemModel &model = *table().model();
    EXPECT_TRUE(model.canDropMimeData(data.get(), Qt::CopyAction, 1, 0, {}));
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::CopyAction, -1, -1, model.index(0, 0)));
    EXPECT_FALSE(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsDropEnabled));
}

TEST_F(AppsDropTest, OnlyFilesAndRowsMayEnter) {
    openWith({"a"});
    QMimeData text;
    text.setText(QStringLiteral("a"));
    EXPECT_FALSE(dragEnters(text, Qt::CopyAction, QPoint(5, 5)));
    EXPECT_TRUE(dragEnters(*files({"app.one"}), Qt::CopyAction, QPoint(5, 5)));
    EXPECT_TRUE(dragEnters(*rows("0"), Qt::CopyAction, QPoint(5, 5)));
}

TEST_F(AppsDropTest, WhatProposesAMoveMayHoverAsACopy) {
    openWith({"a"});
    const auto data = files({"app.one"});
    constexpr auto kBoth = Qt::MoveAction | Qt::CopyAction;
    const QPoint below(5, table().viewport()->height() - 2);
    QDragEnterEvent enter(below, kBoth, data.get(), Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(below, kBoth, data.get(), Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move)}) {
        event->setDropAction(Qt::MoveAction);
        QApplication::sendEvent(table().viewport(), event);
        EXPECT_TRUE(event->isAccepted());
        EXPECT_EQ(event->dropAction(), Qt::CopyAction);
    }
}

TEST_F(AppsDropTest, AFileThatIsDroppedIsCopiedWhateverIsProposed) {
    openWith({"a"});
    const auto data = files({"app.one"});
    ASSERT_TRUE(dragEnters(*data, Qt::MoveAction | Qt::CopyAction, QPoint(5, 5)));
    QDropEvent event(QPointF(5, table().viewport()->height() - 2), Qt::MoveAction | Qt::CopyAction,
                     data.get(), Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(table().viewport(), &event);
    EXPECT_EQ(list(), QStringList({"a", "app.one"}));
    EXPECT_EQ(event.dropAction(), Qt::CopyAction); // or its file would be deleted
    EXPECT_EQ(table().model()->supportedDragActions(), Qt::CopyAction);
}

} // namespace barquell::test
