#pragma once

#include <QAbstractListModel>

namespace barquell {

class AppRuleTableSource;

/// The format of rows dragged within the table: their numbers, as text, one in a line.
QString reorderFormat();
QByteArray encodedRows(const QList<QVariant> &rows);
QList<int> decodedRows(const QByteArray &encoded);

/// Lends Qt's list view the rows of a table of apps. Main thread only.
class AppRuleModel final : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Held, not owned; nullptr for none.
    void setSource(AppRuleTableSource *source);
    AppRuleTableSource *source() const { return _source; }

    void reload();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    AppRuleTableSource *_source = nullptr;
};

} // namespace barquell
