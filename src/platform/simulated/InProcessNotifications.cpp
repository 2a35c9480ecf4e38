#include "platform/simulated/InProcessNotifications.h"

#include "foundation/RunLoop.h"

namespace barquell {

class InProcessNotifications::Entry {
public:
    Entry(QString name, Handler handler) : _name(std::move(name)), _handler(std::move(handler)) {}

    bool wants(const QString &name) const { return name == _name; }
    void deliver() const { _handler(_name); }

private:
    QString _name;
    Handler _handler;
};

void InProcessNotifications::post(const QString &name) {
    std::erase_if(_entries, [](const auto &entry) { return entry.expired(); });
    for (const std::weak_ptr<Entry> &each : _entries) {
        const auto entry = each.lock();
        if (entry && entry->wants(name)) {
            RunLoop::main().performAsync([each] {
                if (const auto living = each.lock()) {
                    living->deliver();
                }
            });
        }
    }
}

std::unique_ptr<Observation> InProcessNotifications::observe(const QString &name, Handler handler) {
    class Held final : public Observation {
    public:
        explicit Held(std::shared_ptr<Entry> entry) : _entry(std::move(entry)) {}

    private:
        std::shared_ptr<Entry> _entry;
    };
    auto entry = std::make_shared<Entry>(name, std::move(handler));
    _entries.push_back(entry);
    return std::make_unique<Held>(std::move(entry));
}

} // namespace barquell
