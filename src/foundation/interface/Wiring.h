#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

class QObject;

namespace barquell {

/// What the objects of one interface file ask to be connected with. Everything is looked at before anything
/// is done: one mistake and nothing is.
class Wiring {
public:
    Wiring(QObject *owner, const std::vector<QObject *> &objects);

    QObject *owner() const { return _owner; }

    /// The owner for "owner"; nullptr where there is none of that name.
    QObject *objectNamed(const QString &name) const;

    /// To be done when the whole file has been found to be in order.
    void add(std::function<void()> step) { _steps.push_back(std::move(step)); }
    void perform() const;

    /// The first one counts.
    void complain(const QString &what);
    const QString &complaint() const { return _complaint; }

private:
    QObject *_owner;
    QHash<QString, QObject *> _objects;
    std::vector<std::function<void()>> _steps;
    QString _complaint;
};

/// `outlet_NAME` and `ownerOutlet`.
void planOutlets(Wiring &wiring, QObject &object);

/// `action`, and the question before a menu opens.
void planActions(Wiring &wiring, QObject &object);

/// `settingsKey` and `enabledKey`.
void planSettings(Wiring &wiring, QObject &object);

} // namespace barquell
