#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace barquell {

/// What was announced, by whom, with what.
struct Notification {
    QString name;
    QObject *object = nullptr;
    QVariantMap userInfo;
};

/// Announcements inside the process, told synchronously in the order of registration. Main thread only.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification &)>;

    /// The centre that everything in the program shares.
    static NotificationCenter &defaultCenter();

    /// The handler is called while the observer lives, for the name, from any sender or from the given one
    /// alone.
    void addObserver(QObject &observer, const QString &name, Handler handler,
                     const QObject *sender = nullptr);

    /// Ends everything that the observer registered, also while a notification is being told.
    void removeObserver(const QObject &observer);

    void post(const Notification &notification);

private:
    struct Entry {
        QPointer<QObject> observer;
        QString name;
        const QObject *sender; // compared, never followed
        Handler handler;
    };

    std::vector<std::shared_ptr<Entry>> _entries;
};

} // namespace barquell
