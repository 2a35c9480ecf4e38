#include "preferences/tabs/PreferencesTabApps.h"

#include "foundation/Bundle.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "platform/Applications.h"
#include "platform/Platform.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/Sheet.h"
#include "process/Helpers.h"

#include <QFileDialog>
#include <QMimeData>
#include <QUrl>

#include <optional>

namespace barquell {

namespace {

constexpr double kLeastHeight = 184;

QList<int> asRows(const IndexSet &indexes) {
    QList<int> rows;
    for (const std::size_t index : indexes) {
        rows.append(static_cast<int>(index));
    }
    return rows;
}

IndexSet asIndexes(const QList<int> &rows) {
    IndexSet indexes;
    for (const int row : rows) {
        if (row >= 0) {
            indexes.insert(static_cast<std::size_t>(row));
        }
    }
    return indexes;
}

QStringList localFiles(const QList<QUrl> &urls) {
    QStringList files;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

} // namespace

PreferencesTabApps::~PreferencesTabApps() {
    if (_tableView) {
        _tableView->setSource(nullptr);
    }
}

ResizeConfiguration PreferencesTabApps::resizeConfiguration() const {
    return {.minimumHeight = kLeastHeight};
}

void PreferencesTabApps::viewDidLoad() {
    if (_tableView) {
        _tableView->setSource(this);
        connect(_tableView, &AppRuleTable::doubleAction, this, [this] { editSelected({}); });
    }
    if (!_apps) {
        _apps = &AppList::bypassAppList();
        NotificationCenter::defaultCenter().addObserver(
            *this, appListChangedNotification(),
            [this](const Notification &notification) {
                appListDidChange(notification.userInfo.value(newSelectionKey()));
            },
            _apps);
    }
    updateListViews();
    updateButtonsState();
}

void PreferencesTabApps::viewWillAppear() {
    if (_tableView) {
        _tableView->setFocus();
    }
}

void PreferencesTabApps::updateListViews() {
    Controllers controllers;
    controllers.reserve(static_cast<qsizetype>(_apps->count()));
    for (std::size_t index = 0; index < _apps->count(); ++index) {
        const QString identifier = (*_apps)[index];
        auto &controller = controllers[identifier];
        if (!controller) {
            controller = _itemViewControllers.value(identifier);
        }
        if (!controller) {
            controller = AppRuleItemViewController::newWithNBundleIdentifier(
                identifier.isNull() ? std::nullopt : std::optional(identifier));
        }
    }
    _itemViewControllers = std::move(controllers);
    if (_tableView) {
        _tableView->reloadData();
    }
}

void PreferencesTabApps::updateButtonsState() {
    if (_removeButton) {
        _removeButton->setEnabled(_tableView && !_tableView->selectedRowIndexes().isEmpty());
    }
}

void PreferencesTabApps::appListDidChange(const QVariant &newSelection) {
    updateListViews();
    if (_tableView && newSelection.isValid()) {
        _tableView->selectRowIndexes(asRows(newSelection.value<IndexSet>()));
    }
    updateButtonsState();
}

void PreferencesTabApps::add(const QVariant & /*sender*/) {
    // The window's child, which ends with its answer.
    auto *panel = new QFileDialog(view()->window()); // NOLINT(cppcoreguidelines-owning-memory)
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setProperty("identifier", QStringLiteral("AddApps"));
    panel->setFileMode(QFileDialog::ExistingFiles);
    panel->setNameFilter(QStringLiteral("*.") + platform().applications->fileType());
    panel->setLabelText(QFileDialog::Accept, Bundle::localizedString(QStringLiteral("Add")));
    Helpers::loadLastPathForPanel(*panel, QStringLiteral("/Applications"));
    connect(panel, &QDialog::accepted, this, [this, panel] { addChosenApps(*panel); });
    panel->setWindowModality(Qt::WindowModal);
    panel->open();
}

void PreferencesTabApps::addChosenApps(const QFileDialog &panel) {
    Helpers::saveLastPathForPanel(panel);
    _apps->addBundleIdentifiers(bundleIdentifiers(panel.selectedFiles()));
}

QStringList PreferencesTabApps::bundleIdentifiers(const QStringList &paths) {
    QStringList identifiers;
    for (const QString &path : paths) {
        const QString identifier = platform().applications->bundleIdentifier(path);
        if (!identifier.isEmpty()) {
            identifiers.append(identifier);
        }
    }
    return identifiers;
}

void PreferencesTabApps::editSelected(const QVariant &sender) {
    if (_tableView && _tableView->selectedRowIndexes().isEmpty()) {
        add(sender);
    }
}

void PreferencesTabApps::removeSelected(const QVariant & /*sender*/) {
    const IndexSet indexes = asIndexes(_tableView ? _tableView->selectedRowIndexes() : QList<int>());
    if (indexes.empty()) {
        return;
    }
    if (UserDefaults::standard().boolForKey(QStringLiteral("RemoveWithoutConfirmation"))) {
        _apps->removeObjectsAtIndexes(indexes);
        return;
    }
    confirmInSheet(view()->window(),
                   Bundle::localizedString(
                       QStringLiteral("Are you sure you want to remove selected apps from bypass list?")),
                   this, [this, indexes] { _apps->removeObjectsAtIndexes(indexes); });
}

void PreferencesTabApps::closeTab(const QVariant & /*sender*/) {
    if (owner()) {
        owner()->preferencesTabWantsToAppear(_escapeTab);
    }
}

int PreferencesTabApps::numberOfRows() const {
    return _apps ? static_cast<int>(_apps->count()) : 0;
}

AppRuleItemViewController *PreferencesTabApps::controllerForRow(int row) const {
    return _itemViewControllers.value((*_apps)[static_cast<std::size_t>(row)]).get();
}

QString PreferencesTabApps::textForRow(int row) const {
    const AppRuleItemViewController *controller = controllerForRow(row);
    return controller ? controller->name() : QString();
}

QWidget *PreferencesTabApps::viewForRow(int row) {
    AppRuleItemViewController *controller = controllerForRow(row);
    return controller ? controller->view() : nullptr;
}

void PreferencesTabApps::tableViewSelectionDidChange() {
    updateButtonsState();
}

QVariant PreferencesTabApps::pasteboardWriterForRow(int row) const {
    return row;
}

bool PreferencesTabApps::validateDrop(DropOperation operation) const {
    return operation == DropOperation::Above;
}

bool PreferencesTabApps::acceptDrop(const QMimeData &dropped, int row) {
    const auto target = static_cast<std::size_t>(std::max(row, 0));
    const QStringList identifiers = bundleIdentifiers(localFiles(dropped.urls()));
    if (!identifiers.isEmpty()) {
        _apps->insertBundleIdentifiers(identifiers, target);
        return true;
    }
    const IndexSet moved = asIndexes(decodedRows(dropped.data(reorderFormat())));
    if (!moved.empty()) {
        _apps->moveObjectsAtIndexes(moved, target);
        return true;
    }
    return false;
}

} // namespace barquell
