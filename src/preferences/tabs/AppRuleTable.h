#pragma once

#include "preferences/tabs/AppRuleModel.h"

#include <QListView>
#include <QPointer>

namespace barquell {

/// A list whose rows are views of their own, each asked for when it first comes into sight. Rows are dragged
/// and files dropped between rows. Main thread only.
class AppRuleTable : public QListView {
    Q_OBJECT

public:
    explicit AppRuleTable(QWidget *parent = nullptr);

    /// Data source and delegate in one; held, not owned.
    void setSource(AppRuleTableSource *source);

    /// Keeps the selection where the rows still exist.
    void reloadData();

    /// In ascending order.
    QList<int> selectedRowIndexes() const;

    /// Replaces the selection; rows that do not exist are left out.
    void selectRowIndexes(const QList<int> &rows);

    void doItemsLayout() override;

Q_SIGNALS:
    /// A double click, on a row or beside them.
    void doubleAction();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void placeRowViews();
    void placeRowView(QWidget &view, const QModelIndex &index);

    AppRuleModel _model;
    QList<QPointer<QWidget>> _rowsInSight;
};

} // namespace barquell
