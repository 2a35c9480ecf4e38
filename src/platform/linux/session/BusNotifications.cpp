#include "platform/linux/session/BusNotifications.h"

#include <QDBusMessage>

#include <algorithm>

namespace barquell {

namespace {

constexpr int kLongestName = 255; // of an interface, says the bus's protocol

struct SignalName {
    QString interface;
    QString member;
};

/// Between the dots of a name. (A regular expression would load a library of half a megabyte for this alone.)
bool isElement(const QString &text) {
    const auto isAllowed = [](QChar one) {
        return one == QLatin1Char('_') || (one.unicode() < 0x80 && one.isLetterOrNumber());
    };
    return !text.isEmpty() && !text.front().isDigit() && std::all_of(text.begin(), text.end(), isAllowed);
}

/// Nothing where the bus's rules for names do not allow it.
std::optional<SignalName> signalName(const QString &name) {
    const QStringList elements = name.split(QLatin1Char('.'));
    if (name.size() > kLongestName || elements.size() < 3 ||
        !std::all_of(elements.begin(), elements.end(), isElement)) {
        return std::nullopt;
    }
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return SignalName{name.left(dot), name.mid(dot + 1)};
}

} // namespace

struct BusNotifications::Listener {
    QString name;
    Handler handler;
};

class BusNotifications::Listening final : public Observation {
public:
    Listening(std::shared_ptr<Listener> listener, BusNotifications &owner)
        : _listener(std::move(listener)), _owner(&owner) {}
    ~Listening() override {
        const QString name = _listener->name;
        _listener.reset();
        if (_owner && !_owner->listensFor(name)) {
            _owner->unmatch(name);
        }
    }
    Q_DISABLE_COPY_MOVE(Listening)

private:
    std::shared_ptr<Listener> _listener;
    QPointer<BusNotifications> _owner;
};

BusNotifications::BusNotifications(MessageBus &bus) : _bus(bus) {
    connect(&bus, &MessageBus::connected, this, &BusNotifications::matchAll);
}

BusNotifications::~BusNotifications() = default;

void BusNotifications::post(const QString &name) {
    const auto signal = signalName(name);
    const bool sent = signal && _bus.isConnected() &&
                      _bus.connection().send(
                          QDBusMessage::createSignal(QStringLiteral("/"), signal->interface, signal->member));
    if (!sent) {
        deliverLater(name);
    }
}

std::unique_ptr<Observation> BusNotifications::observe(const QString &name, Handler handler) {
    std::erase_if(_listeners, [](const auto &each) { return each.expired(); });
    const bool isFirst = !listensFor(name);
    auto listener = std::make_shared<Listener>(Listener{name, std::move(handler)});
    _listeners.push_back(listener);
    if (isFirst) {
        match(name);
    }
    return std::make_unique<Listening>(std::move(listener), *this);
}

bool BusNotifications::listensFor(const QString &name) const {
    return std::any_of(_listeners.begin(), _listeners.end(), [&name](const auto &each) {
        const auto listener = each.lock();
        return listener && listener->name == name;
    });
}

void BusNotifications::match(const QString &name) {
    if (const auto signal = signalName(name)) {
        _bus.connection().connect(QString(), QStringLiteral("/"), signal->interface, signal->member, this,
                                  SLOT(receive(QDBusMessage)));
    }
}

void BusNotifications::unmatch(const QString &name) {
    if (const auto signal = signalName(name)) {
        _bus.connection().disconnect(QString(), QStringLiteral("/"), signal->interface, signal->member, this,
                                     SLOT(receive(QDBusMessage)));
    }
}

void BusNotifications::matchAll() {
    QStringList names;
    for (const auto &each : _listeners) {
        if (const auto listener = each.lock(); listener && !names.contains(listener->name)) {
            names.append(listener->name);
            match(listener->name);
        }
    }
}

void BusNotifications::receive(const QDBusMessage &signal) {
    if (signal.signature().isEmpty()) { // what carries arguments is somebody else's
        deliverLater(signal.interface() + QLatin1Char('.') + signal.member());
    }
}

void BusNotifications::deliverLater(const QString &name) {
    for (const std::weak_ptr<Listener> &each : _listeners) {
        const auto listener = each.lock();
        if (!listener || listener->name != name) {
            continue;
        }
        const bool queued = _pending.add(name, [each] {
            if (const auto heard = each.lock()) {
                heard->handler(heard->name);
            }
        });
        if (!queued) {
            return;
        }
    }
}

} // namespace barquell
