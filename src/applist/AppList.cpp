#include "applist/AppList.h"

#include "foundation/NotificationCenter.h"

#include <algorithm>

namespace barquell {

namespace {

bool isIdentifier(const QVariant &entry) {
    return entry.typeId() == QMetaType::QString;
}

IndexSet range(std::size_t start, std::size_t length) {
    IndexSet indexes;
    for (std::size_t index = start; index < start + length; ++index) {
        indexes.insert(indexes.end(), index);
    }
    return indexes;
}

void insertAll(QVariantList &array, std::size_t start, const QVariantList &entries) {
    const auto at = static_cast<qsizetype>(start);
    array.insert(at, entries.size(), QVariant());
    std::copy(entries.begin(), entries.end(), array.begin() + at);
}

} // namespace

QString appListChangedNotification() {
    return QStringLiteral("com.vexolith.barquell.app-list.change");
}

QString newSelectionKey() {
    return QStringLiteral("NewSelection");
}

AppList &AppList::bypassAppList() {
    static AppList list(QStringLiteral("BypassApps"));
    return list;
}

AppList::AppList(QString key) : _key(std::move(key)) {
    subscribeToUserDefaultsKeyPath(_key, "observeStorage:init:", true);
}

void AppList::observeStorage(const QVariant &value, bool init) {
    replaceArray(value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList());
    if (!init) {
        notify({});
    }
}

QString AppList::objectAtIndex(std::size_t index) const {
    if (index >= count()) {
        return {};
    }
    const QVariant &entry = _array.at(static_cast<qsizetype>(index));
    return isIdentifier(entry) ? entry.toString() : QString();
}

void AppList::removeObjectAtIndex(std::size_t index) {
    removeObjectsAtIndexes({index});
}

void AppList::removeObjectsAtIndexes(const IndexSet &indexes) {
    const QVariantList rest = without(indexes);
    if (rest.size() != _array.size()) {
        replaceArray(rest);
        saveAndNotify();
    }
}

void AppList::addBundleIdentifier(const QString &identifier) {
    addBundleIdentifiers({identifier});
}

void AppList::addBundleIdentifiers(const QStringList &identifiers) {
    insertBundleIdentifiers(identifiers, count());
}

void AppList::insertBundleIdentifiers(const QStringList &identifiers, std::size_t atIndex) {
    const std::size_t start = std::min(atIndex, count());
    QVariantList added;
    for (const QString &identifier : identifiers) {
        if (!containsBundleIdentifier(identifier)) {
            _identifiers.insert(identifier);
            added.append(identifier);
        }
    }
    if (!added.isEmpty()) {
        insertAll(_array, start, added);
        saveAndNotify(range(start, static_cast<std::size_t>(added.size())));
    }
}

void AppList::removeBundleIdentifier(const QString &identifier) {
    if (containsBundleIdentifier(identifier)) {
        _identifiers.remove(identifier);
        _array.removeIf(
            [&](const QVariant &entry) { return isIdentifier(entry) && entry.toString() == identifier; });
        saveAndNotify();
    }
}

void AppList::toggleBundleIdentifier(const QString &identifier) {
    if (containsBundleIdentifier(identifier)) {
        removeBundleIdentifier(identifier);
    } else {
        addBundleIdentifier(identifier);
    }
}

std::size_t AppList::moveObjectsAtIndexes(const IndexSet &indexes, std::size_t toIndex) {
    const QVariantList moved = entriesAt(indexes);
    const auto before =
        static_cast<std::size_t>(std::distance(indexes.begin(), indexes.lower_bound(toIndex)));
    QVariantList array = without(indexes);
    const std::size_t start = std::min(toIndex - before, static_cast<std::size_t>(array.size()));
    if (!moved.isEmpty()) {
        insertAll(array, start, moved);
        _array = array;
        saveAndNotify(range(start, static_cast<std::size_t>(moved.size())));
    }
    return start;
}

QVariantList AppList::entriesAt(const IndexSet &indexes) const {
    QVariantList entries;
    for (auto index = indexes.begin(); index != indexes.lower_bound(count()); ++index) {
        entries.append(_array.at(static_cast<qsizetype>(*index)));
    }
    return entries;
}

QVariantList AppList::without(const IndexSet &indexes) const {
    QVariantList rest;
    auto next = indexes.begin();
    for (std::size_t index = 0; index < count(); ++index) {
        if (next != indexes.end() && *next == index) {
            ++next;
        } else {
            rest.append(_array.at(static_cast<qsizetype>(index)));
        }
    }
    return rest;
}

void AppList::replaceArray(const QVariantList &array) {
    _array = array;
    _identifiers.clear();
    for (const QVariant &entry : _array) {
        if (isIdentifier(entry)) {
            _identifiers.insert(entry.toString());
        }
    }
}

void AppList::saveAndNotify() {
    save();
    notify({});
}

void AppList::saveAndNotify(const IndexSet &withIndexSet) {
    save();
    notify({{newSelectionKey(), QVariant::fromValue(withIndexSet)}});
}

void AppList::save() {
    setUserDefaultsValue(_array, _key);
}

void AppList::notify(const QVariantMap &userInfo) {
    NotificationCenter::defaultCenter().post({appListChangedNotification(), this, userInfo});
}

} // namespace barquell
