#pragma once

#include "observing/KeyValueObserver.h"

#include <QList>

namespace barquell::test {

/// One call of a subscribed method.
struct Call {
    QString method;
    QVariant value;
    bool init = false;
    QString keyPath;

    bool operator==(const Call &other) const {
        return method == other.method && value.metaType() == other.value.metaType() && value == other.value &&
               init == other.init && keyPath == other.keyPath;
    }
};

/// Methods of every length, on an instance or on a class object.
template <typename Base>
class RecorderMethods : public Base {
public:
    using Base::Base;

    QList<Call> calls;

protected:
    void record(const char *method, const QVariant &value = {}, bool init = false,
                const QString &keyPath = {}) {
        calls.append({QString::fromLatin1(method), value, init, keyPath});
    }
};

class Recorder : public RecorderMethods<KeyValueObserver> {
    Q_OBJECT

public:
    using RecorderMethods::RecorderMethods;

    Q_INVOKABLE void observeNothing() { record("observeNothing"); }
    Q_INVOKABLE void observeValue(const QVariant &value) { record("observeValue", value); }
    Q_INVOKABLE void observeValue(const QVariant &value, bool init) {
        record("observeValue:init", value, init);
    }
    Q_INVOKABLE void observeAll(const QVariant &value, bool init, const QString &keyPath) {
        record("observeAll", value, init, keyPath);
    }
    Q_INVOKABLE void observeWrongly(int value) { record("observeWrongly", value); }
};

class ClassRecorder : public RecorderMethods<KeyValueObserverClass> {
    Q_OBJECT

public:
    using RecorderMethods::RecorderMethods;

    Q_INVOKABLE void observeAll(const QVariant &value, bool init, const QString &keyPath) {
        record("observeAll", value, init, keyPath);
    }
};

/// An observable whose setter can fail.
class FailingObject : public Observable {
    Q_OBJECT

public:
    void setValue(const QVariant &value, const QString &keyPath) override {
        Observable::setValue(value, keyPath);
        throw std::runtime_error("the setter failed");
    }
};

} // namespace barquell::test
