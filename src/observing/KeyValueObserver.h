#pragma once

#include "foundation/Observable.h"
#include "foundation/Selector.h"

#include <QHash>
#include <QSet>

#include <optional>

namespace barquell {

/// The base of what follows settings and other observable values: subscribes an invokable method of its own
/// to a key path of another object, and forgets every registration when it goes away. A method takes up to
/// three arguments, (QVariant value, bool init, QString keyPath), and may leave the trailing ones away. Main
/// thread only.
class KeyValueObserver : public QObject, public ChangeObserver {
    Q_OBJECT

public:
    explicit KeyValueObserver(QObject *parent = nullptr);
    ~KeyValueObserver() override;
    Q_DISABLE_COPY_MOVE(KeyValueObserver)

    /// Calls the method with (new value, false, key path) after each change, where a value that is no more
    /// arrives as nil; with init also at once with (value, true, key path), where a null object stays a null
    /// object. A second subscription to the same key path of the same object takes the place of the first.
    /// The object is held weakly. False without an object or a selector, and, said in one line, where this
    /// object lacks the method.
    bool subscribeToKeyPath(const QString &keyPath, Observable *object, const Selector &selector, bool init);
    void unsubscribeFromKeyPath(const QString &keyPath, Observable *object);
    void unsubscribeFromObject(Observable *object);
    void unsubscribeFromAllObjects();

    /// Writes a value without the change coming back to any key-value observer of that object, whichever key
    /// path it follows; function observers still hear of it. Exceptions of the object's own setter pass
    /// through.
    void setValue(const QVariant &value, const QString &keyPath, Observable *object);

    /// The same with the standard user defaults as the object.
    bool subscribeToUserDefaultsKeyPath(const QString &keyPath, const Selector &selector, bool init);
    void unsubscribeFromUserDefaultsKeyPath(const QString &keyPath);
    void unsubscribeFromUserDefaults();
    void setUserDefaultsValue(const QVariant &value, const QString &keyPath);

    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;

private:
    struct Subscription {
        QSet<QString> keyPaths;
        QMetaObject::Connection forgetting; // of an object that goes away
    };
    using Subscriptions = QHash<Observable *, Subscription>;

    QSet<QString> &keyPathsOf(Observable *object);

    /// No table until the first subscription, and again after unsubscribeFromAllObjects(). An entry leaves
    /// with its object; a set that has become empty may stay.
    std::optional<Subscriptions> _subscriptions;
};

/// A class as an observer: what keeps its state in static members subscribes through the one object that
/// stands for the class. Its subscriptions last as long as the process, and none takes the place of another.
/// Main thread only.
class KeyValueObserverClass : public QObject, public ChangeObserver {
    Q_OBJECT

public:
    using QObject::QObject;

    bool subscribeToKeyPath(const QString &keyPath, Observable *object, const Selector &selector, bool init);
    bool subscribeToUserDefaultsKeyPath(const QString &keyPath, const Selector &selector, bool init);

    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;
};

} // namespace barquell
