#pragma once

#include "applist/AppList.h"
#include "preferences/PreferencesTab.h"
#include "preferences/tabs/AppRuleItemViewController.h"
#include "preferences/tabs/AppRuleTable.h"
#include "preferences/tabs/AppRuleTableSource.h"

#include <QAbstractButton>
#include <QHash>

#include <memory>

class QFileDialog;

namespace barquell {

/// Edits the bypass list: one row an app, added by a panel or by dropping its file, moved by dragging,
/// removed after a question. Not in the toolbar: another tab opens it and stays highlighted meanwhile. Every
/// refresh and every new selection comes through the list's notification.
class PreferencesTabApps final : public PreferencesTab, public AppRuleTableSource {
    Q_OBJECT
    Q_PROPERTY(barquell::PreferencesTab *escapeTab READ escapeTab WRITE setEscapeTab)
    Q_PROPERTY(barquell::AppRuleTable *tableView READ tableView WRITE setTableView)
    Q_PROPERTY(QAbstractButton *addButton READ addButton WRITE setAddButton)
    Q_PROPERTY(QAbstractButton *removeButton READ removeButton WRITE setRemoveButton)

public:
    using PreferencesTab::PreferencesTab;
    ~PreferencesTabApps() override;
    Q_DISABLE_COPY_MOVE(PreferencesTabApps)

    QString selectedIdentifier() const override { return QStringLiteral("TouchBar"); }
    ResizeConfiguration resizeConfiguration() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;

    /// Rows whose apps stay keep their controllers.
    void updateListViews();
    void updateButtonsState();
    void appListDidChange(const QVariant &newSelection);

    Q_INVOKABLE void add(const QVariant &sender);
    Q_INVOKABLE void editSelected(const QVariant &sender);
    Q_INVOKABLE void removeSelected(const QVariant &sender);
    Q_INVOKABLE void closeTab(const QVariant &sender);

    int numberOfRows() const override;
    QString textForRow(int row) const override;
    QWidget *viewForRow(int row) override;
    void tableViewSelectionDidChange() override;
    QVariant pasteboardWriterForRow(int row) const override;
    bool validateDrop(DropOperation operation) const override;
    bool acceptDrop(const QMimeData &dropped, int row) override;

    PreferencesTab *escapeTab() const { return _escapeTab; }
    AppRuleTable *tableView() const { return _tableView; }
    QAbstractButton *addButton() const { return _addButton; }
    QAbstractButton *removeButton() const { return _removeButton; }
    void setEscapeTab(PreferencesTab *tab) { _escapeTab = tab; }
    void setTableView(AppRuleTable *table) { _tableView = table; }
    void setAddButton(QAbstractButton *button) { _addButton = button; }
    void setRemoveButton(QAbstractButton *button) { _removeButton = button; }

private:
    using Controllers = QHash<QString, std::shared_ptr<AppRuleItemViewController>>;

    AppRuleItemViewController *controllerForRow(int row) const;
    void addChosenApps(const QFileDialog &panel);
    static QStringList bundleIdentifiers(const QStringList &paths);

    QPointer<AppList> _apps;
    Controllers _itemViewControllers; ///< by bundle identifier; nil's under the empty one
    QPointer<PreferencesTab> _escapeTab;
    QPointer<AppRuleTable> _tableView;
    QPointer<QAbstractButton> _addButton;
    QPointer<QAbstractButton> _removeButton;
};

} // namespace barquell
