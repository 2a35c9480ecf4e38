#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>
#include <variant>
#include <vector>

namespace barquell {

class Observable;

/// A plain function that follows a key.
using ChangeFunction = void (*)(const QVariant &newValue);

/// What a registration carries for its observer: the method (see Selector) or the function to call.
using ObservingContext = std::variant<std::monostate, QMetaMethod, ChangeFunction>;

/// Who can be registered with an Observable.
class ChangeObserver {
public:
    virtual ~ChangeObserver() = default;

    /// The key path's value was written. The new value is the null object (std::nullptr_t in the variant)
    /// where there is none any more.
    virtual void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                        const ObservingContext &context) = 0;

protected:
    ChangeObserver() = default;
    ChangeObserver(const ChangeObserver &) = default;
    ChangeObserver &operator=(const ChangeObserver &) = default;
};

/// An object whose values can be read, written and followed by key path. Changes are told synchronously, on
/// the thread that makes them. The default keeps the values in QObject properties. Main thread only.
class Observable : public QObject {
    Q_OBJECT

public:
    explicit Observable(QObject *parent = nullptr);
    ~Observable() override;
    Q_DISABLE_COPY_MOVE(Observable)

    /// An invalid variant is nil; a stored null object comes back as it is.
    virtual QVariant valueForKeyPath(const QString &keyPath) const;

    /// Writes and tells, whether or not the value differs from the one before.
    virtual void setValue(const QVariant &value, const QString &keyPath);

    /// Registers once more for each call, also where the pair is registered already.
    void addObserver(ChangeObserver &observer, const QString &keyPath, const ObservingContext &context);

    /// Ends the newest registration of the pair; none is no error. Safe while a change is being told.
    void removeObserver(ChangeObserver &observer, const QString &keyPath);

protected:
    /// To be called after the value has changed.
    void didChangeValue(const QString &keyPath);

private:
    struct Registration;

    std::vector<std::shared_ptr<Registration>> _registrations;
};

/// The variant that stands for the null object.
QVariant nullObject();
bool isNullObject(const QVariant &value);

/// The null object turned into nil.
QVariant nilForNullObject(const QVariant &value);

} // namespace barquell
