#pragma once

#include "observing/KeyValueObserver.h"

#include <QSet>
#include <QStringList>
#include <QVariantList>

#include <cstddef>
#include <set>

namespace barquell {

/// Positions in a list, in ascending order.
using IndexSet = std::set<std::size_t>;

/// What an AppList posts after each change, itself as the object. The user info is empty or holds an IndexSet
/// under newSelectionKey(): where the entries just added, inserted or moved are now.
QString appListChangedNotification(); ///< "com.vexolith.barquell.app-list.change"
QString newSelectionKey();            ///< "NewSelection"

/// A list of bundle identifiers in the user's order, stored whole in the user defaults on every change. It
/// takes in no identifier twice. What is stored is taken as it is, though: repeats stay, and so does what is
/// no identifier, which keeps its place and is written back. Positions behind the end are ignored. Main
/// thread only.
class AppList final : public KeyValueObserver {
    Q_OBJECT

public:
    /// The applications for which blocking is paused while they are in front ("BypassApps"), made on first
    /// use.
    static AppList &bypassAppList();

    explicit AppList(QString key);

    const QString &key() const { return _key; }

    std::size_t count() const { return static_cast<std::size_t>(_array.size()); }

    /// The entries as they are stored.
    QVariantList::const_iterator begin() const { return _array.cbegin(); }
    QVariantList::const_iterator end() const { return _array.cend(); }

    /// nil where the entry is no identifier.
    QString objectAtIndex(std::size_t index) const;
    QString operator[](std::size_t index) const { return objectAtIndex(index); }

    bool containsBundleIdentifier(const QString &identifier) const {
        return _identifiers.contains(identifier);
    }

    void removeObjectAtIndex(std::size_t index);
    void removeObjectsAtIndexes(const IndexSet &indexes);

    /// Those that are in the list already stay where they are.
    void addBundleIdentifier(const QString &identifier);
    void addBundleIdentifiers(const QStringList &identifiers);
    void insertBundleIdentifiers(const QStringList &identifiers, std::size_t atIndex);

    /// Every occurrence of it.
    void removeBundleIdentifier(const QString &identifier);

    void toggleBundleIdentifier(const QString &identifier);

    /// Moves entries to a place between two rows of the list as it is before (a drop row). Gives the position
    /// that the first of them has then.
    std::size_t moveObjectsAtIndexes(const IndexSet &indexes, std::size_t toIndex);

    void saveAndNotify();
    void saveAndNotify(const IndexSet &withIndexSet);

    /// The stored value, at the start and after each change from outside.
    Q_INVOKABLE void observeStorage(const QVariant &value, bool init);

private:
    QVariantList entriesAt(const IndexSet &indexes) const;
    QVariantList without(const IndexSet &indexes) const;
    void replaceArray(const QVariantList &array);
    void save();
    void notify(const QVariantMap &userInfo);

    QVariantList _array;
    const QString _key;
    QSet<QString> _identifiers; ///< those in _array
};

} // namespace barquell
