#include "foundation/NotificationCenter.h"

namespace barquell {

NotificationCenter &NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(QObject &observer, const QString &name, Handler handler,
                                     const QObject *sender) {
    _entries.push_back(std::make_shared<Entry>(Entry{&observer, name, sender, std::move(handler)}));
}

void NotificationCenter::removeObserver(const QObject &observer) {
    std::erase_if(_entries, [&](const std::shared_ptr<Entry> &entry) {
        if (entry->observer != &observer) {
            return false;
        }
        entry->observer.clear(); // a notification that is being told right now skips it
        return true;
    });
}

void NotificationCenter::post(const Notification &notification) {
    std::erase_if(_entries, [](const std::shared_ptr<Entry> &entry) { return entry->observer.isNull(); });
    const auto entries = _entries;
    for (const auto &entry : entries) {
        if (entry->observer && entry->name == notification.name &&
            (!entry->sender || entry->sender == notification.object)) {
            entry->handler(notification);
        }
    }
}

} // namespace barquell
