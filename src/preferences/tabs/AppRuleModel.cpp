#include "preferences/tabs/AppRuleModel.h"

#include "preferences/tabs/AppRuleTableSource.h"

#include <QMimeData>

namespace barquell {

QString reorderFormat() {
    return QStringLiteral("private.table-reoder"); // spelled so
}

QByteArray encodedRows(const QList<QVariant> &rows) {
    QByteArrayList lines;
    for (const QVariant &row : rows) {
        lines.append(QByteArray::number(row.toLongLong()));
    }
    return lines.join('\n');
}

QList<int> decodedRows(const QByteArray &encoded) {
    QList<int> rows;
    for (const QByteArray &line : encoded.split('\n')) {
        bool isNumber = false;
        const int row = line.toInt(&isNumber);
        if (isNumber) {
            rows.append(row);
        }
    }
    return rows;
}

void AppRuleModel::setSource(AppRuleTableSource *source) {
    beginResetModel();
    _source = source;
    endResetModel();
}

void AppRuleModel::reload() {
    beginResetModel();
    endResetModel();
}

int AppRuleModel::rowCount(const QModelIndex &parent) const {
    return _source && !parent.isValid() ? _source->numberOfRows() : 0;
}

QVariant AppRuleModel::data(const QModelIndex &index, int role) const {
    if (!_source || !index.isValid() || index.row() >= _source->numberOfRows()) {
        return {};
    }
    return role == Qt::DisplayRole || role == Qt::AccessibleTextRole ? _source->textForRow(index.row())
                                                                     : QVariant();
}

Qt::ItemFlags AppRuleModel::flags(const QModelIndex &index) const {
    return index.isValid()
               ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
               : Qt::ItemIsDropEnabled; // between rows, never on one
}

QStringList AppRuleModel::mimeTypes() const {
    return {reorderFormat(), QStringLiteral("text/uri-list")};
}

QMimeData *AppRuleModel::mimeData(const QModelIndexList &indexes) const {
    QList<QVariant> rows;
    for (const QModelIndex &index : indexes) {
        rows.append(_source->pasteboardWriterForRow(index.row()));
    }
    auto data = std::make_unique<QMimeData>();
    data->setData(reorderFormat(), encodedRows(rows));
    return data.release(); // the drag's
}

bool AppRuleModel::canDropMimeData(const QMimeData *data, Qt::DropAction /*action*/, int /*row*/,
                                   int /*column*/, const QModelIndex &parent) const {
    const bool isOurs = data->hasFormat(reorderFormat()) || data->hasUrls();
    return _source && isOurs &&
           _source->validateDrop(parent.isValid() ? DropOperation::On : DropOperation::Above);
}

bool AppRuleModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                const QModelIndex &parent) {
    const int end = rowCount();
    return canDropMimeData(data, action, row, column, parent) &&
           _source->acceptDrop(*data, row < 0 ? end : std::min(row, end)); // below the last row is no row
}

} // namespace barquell
