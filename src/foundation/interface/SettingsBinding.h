#pragma once

#include "foundation/Observable.h"

#include <QPointer>

#include <functional>

class QAbstractButton;

namespace barquell {

/// Shows the value of a user defaults key in an object, whose child it is, now and after each change.
class SettingsBinding final : public QObject, public ChangeObserver {
    Q_OBJECT

public:
    using Show = std::function<void(const QVariant &value)>;

    SettingsBinding(QObject &object, QString key, Show show);
    ~SettingsBinding() override;
    Q_DISABLE_COPY_MOVE(SettingsBinding)

    /// What the user did; nothing while a value is being shown, which some controls announce alike.
    void write(const QVariant &value);

    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;

private:
    const QString _key;
    const Show _show;
    QPointer<Observable> _defaults;
    bool _showing = false;
};

/// The button is checked while the setting is true; a click writes what it becomes.
void bindButton(QAbstractButton &button, const QString &key);

/// A widget or an action is enabled while the setting is true.
void bindEnabled(QObject &object, const QString &key);

} // namespace barquell
