#pragma once

#include <QString>

class QMimeData;
class QVariant;
class QWidget;

namespace barquell {

/// Where a drop is proposed: on a row, or between two. The numbers are NSTableViewDropOperation's.
enum class DropOperation { On = 0, Above = 1 };

/// What a table of apps shows and asks.
class AppRuleTableSource {
public:
    virtual ~AppRuleTableSource() = default;

    virtual int numberOfRows() const = 0;

    /// What a screen reader and the keyboard's search go by.
    virtual QString textForRow(int row) const = 0;

    /// Asked for when the row comes into sight; the source's. nullptr leaves the row empty.
    virtual QWidget *viewForRow(int row) = 0;

    virtual void tableViewSelectionDidChange() = 0;

    /// What a dragged row brings along.
    virtual QVariant pasteboardWriterForRow(int row) const = 0;

    virtual bool validateDrop(DropOperation operation) const = 0;

    /// The row is the one that the drop comes before; the number of rows at the end. False where the drop
    /// means nothing here.
    virtual bool acceptDrop(const QMimeData &dropped, int row) = 0;

protected:
    AppRuleTableSource() = default;
    AppRuleTableSource(const AppRuleTableSource &) = default;
    AppRuleTableSource &operator=(const AppRuleTableSource &) = default;
};

} // namespace barquell
