#include "preferences/tabs/AppRuleTable.h"

#include "preferences/NestedLoop.h"
#include "preferences/tabs/AppRuleTableSource.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QStyledItemDelegate>

#include <algorithm>

namespace barquell {

namespace {

constexpr int kLeastRowHeight = 34;
constexpr int kRoomAroundText = 14;

/// Paints what lies behind a row's view.
class RowBackground final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex & /*index*/) const override {
        return {0, std::max(kLeastRowHeight, option.fontMetrics.height() + kRoomAroundText)};
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.clear();
    }
};

} // namespace

AppRuleTable::AppRuleTable(QWidget *parent) : QListView(parent) {
    setModel(&_model);
    setItemDelegate(std::make_unique<RowBackground>(this).release()); // a child
    setUniformItemSizes(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
}

void AppRuleTable::setSource(AppRuleTableSource *source) {
    _model.setSource(source);
}

void AppRuleTable::reloadData() {
    const QList<int> selected = selectedRowIndexes();
    _model.reload();
    selectRowIndexes(selected);
}

QList<int> AppRuleTable::selectedRowIndexes() const {
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedIndexes()) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void AppRuleTable::selectRowIndexes(const QList<int> &rows) {
    QItemSelection selection;
    int last = -1;
    for (const int row : rows) {
        const QModelIndex index = _model.index(row);
        if (index.isValid()) {
            selection.select(index, index);
            last = row;
        }
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (last >= 0) {
        selectionModel()->setCurrentIndex(_model.index(last), QItemSelectionModel::NoUpdate);
    }
}

void AppRuleTable::doItemsLayout() {
    QListView::doItemsLayout();
    placeRowViews();
}

void AppRuleTable::resizeEvent(QResizeEvent *event) {
    QListView::resizeEvent(event);
    placeRowViews();
}

void AppRuleTable::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    placeRowViews();
}

void AppRuleTable::changeEvent(QEvent *event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        placeRowViews();
    }
}

void AppRuleTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) {
    QListView::selectionChanged(selected, deselected);
    placeRowViews();
    if (_model.source()) {
        _model.source()->tableViewSelectionDidChange();
    }
}

void AppRuleTable::placeRowViews() {
    const QList<QPointer<QWidget>> before = std::exchange(_rowsInSight, {});
    QModelIndex index = indexAt(QPoint(0, 0));
    while (index.isValid() && visualRect(index).top() < viewport()->height()) {
        if (QWidget *view = _model.source()->viewForRow(index.row())) {
            placeRowView(*view, index);
            _rowsInSight.append(view);
        }
        index = index.siblingAtRow(index.row() + 1);
    }
    for (const QPointer<QWidget> &view : before) {
        if (view && !_rowsInSight.contains(view)) {
            view->hide();
        }
    }
}

void AppRuleTable::placeRowView(QWidget &view, const QModelIndex &index) {
    if (view.parentWidget() != viewport()) {
        view.setParent(viewport());
        view.setAttribute(Qt::WA_TransparentForMouseEvents); // a click is on the row
    }
    QPalette colors = palette();
    if (selectionModel()->isSelected(index)) {
        colors.setColor(QPalette::Text, colors.color(QPalette::HighlightedText)); // what lies on a base has
    }
    view.setPalette(colors);
    view.setGeometry(visualRect(index));
    view.show();
}

void AppRuleTable::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    Q_EMIT doubleAction();
}

void AppRuleTable::startDrag(Qt::DropActions supportedActions) {
    const QModelIndexList dragged = selectedIndexes();
    if (dragged.isEmpty()) {
        return;
    }
    QRect shown;
    for (const QModelIndex &index : dragged) {
        shown |= visualRect(index) & viewport()->rect();
    }
    auto *drag = new QDrag(this); // NOLINT(cppcoreguidelines-owning-memory): Qt's, which deletes it
    drag->setMimeData(_model.mimeData(dragged));
    drag->setPixmap(viewport()->grab(shown));
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - shown.topLeft());
    const NestedLoop loop; // in which the window may be closed
    drag->exec(supportedActions & Qt::CopyAction, Qt::CopyAction);
}

/// What proposes a move would be turned away, and whoever drags believes what was answered last.
void AppRuleTable::dragEnterEvent(QDragEnterEvent *event) {
    event->setDropAction(Qt::CopyAction);
    QListView::dragEnterEvent(event);
    event->setDropAction(Qt::CopyAction);
}

void AppRuleTable::dragMoveEvent(QDragMoveEvent *event) {
    event->setDropAction(Qt::CopyAction);
    QListView::dragMoveEvent(event);
    event->setDropAction(Qt::CopyAction);
}

void AppRuleTable::dropEvent(QDropEvent *event) {
    event->setDropAction(Qt::CopyAction); // whoever gives us a file keeps it
    QListView::dropEvent(event);
    if (event->isAccepted()) {
        event->setDropAction(Qt::CopyAction);
    }
}

} // namespace barquell
