#include "PrivateBus.h"

#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/ScreenShield.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

namespace barquell::test {

namespace {

constexpr const char *kFreedesktop = "org.freedesktop.ScreenSaver";
constexpr const char *kGnome = "org.gnome.ScreenSaver";

/// A screen saver on the bus.
class Saver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    Saver(const PrivateBus &bus, const char *name, bool active = false)
        : _name(QString::fromLatin1(name)), _active(active), _program(bus) {
        QString path = QLatin1Char('/') + _name;
        path.replace(QLatin1Char('.'), QLatin1Char('/'));
        EXPECT_TRUE(_program.connection().registerService(_name));
        EXPECT_TRUE(_program.connection().registerObject(path, this, QDBusConnection::ExportAllSlots));
    }

    void become(bool active, const QString &path = QStringLiteral("/org/freedesktop/ScreenSaver")) {
        _program.emitSignal(path, _name, QStringLiteral("ActiveChanged"), {active});
    }

public Q_SLOTS:
    bool GetActive() const { return _active; } // NOLINT: the protocol's name

private:
    const QString _name;
    const bool _active;
    OtherProgram _program;
};

class LockedSession : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint MEMBER locked)
public:
    bool locked = false;
};

/// The login manager with one session.
class LoginManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    explicit LoginManager(const PrivateBus &bus, bool locked = false) : _program(bus) {
        _session.locked = locked;
        EXPECT_TRUE(
            _program.connection().registerObject(kPath, &_session, QDBusConnection::ExportAllProperties));
        EXPECT_TRUE(_program.connection().registerService(QStringLiteral("org.freedesktop.login1")));
        EXPECT_TRUE(_program.connection().registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                                                         QDBusConnection::ExportAllSlots));
    }

    void change(const QVariantMap &changed, const QStringList &invalidated = {},
                const QString &interface = QStringLiteral("org.freedesktop.login1.Session")) {
        _program.emitSignal(kPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                            QStringLiteral("PropertiesChanged"), {interface, changed, invalidated});
    }

    void lock(bool locked) { change({{QStringLiteral("LockedHint"), locked}}); }

public Q_SLOTS:
    QDBusObjectPath GetSession(const QString &id) { // NOLINT: the protocol's name
        const bool known = id == QStringLiteral("c1") || id == QStringLiteral("auto");
        return QDBusObjectPath(known ? kPath : QStringLiteral("/none"));
    }

private:
    inline static const QString kPath = QStringLiteral("/org/freedesktop/login1/session/c1");

    LockedSession _session;
    OtherProgram _program;
};

class ScreenShieldTest : public testing::Test {
protected:
    ScreenShieldTest() { qputenv("XDG_SESSION_ID", "c1"); }

    void watch() {
        for (const char *name : {"com.apple.shieldWindowRaised", "com.apple.shieldWindowLowered"}) {
            observations.push_back(
                notifications.observe(QString::fromLatin1(name), [this](const QString &heard) {
                    edges.append(heard.mid(QStringLiteral("com.apple.shieldWindow").size()));
                }));
        }
        shield = std::make_unique<ScreenShield>(session, system, notifications);
        settle();
    }

    /// Until all that was said so far has been answered, and the answers heard.
    void settle() {
        for (int round = 0; round < 3; ++round) {
            system.call(MessageBus::question(QStringLiteral("GetId")));
            session.call(MessageBus::question(QStringLiteral("GetId")));
            runFor(std::chrono::milliseconds(30));
        }
    }

    bool hasEdges(const QStringList &wanted) {
        const bool came = waitFor([&] { return edges.size() >= wanted.size(); }, std::chrono::seconds(5));
        settle();
        return came && edges == wanted;
    }

    LogCapture lines;
    PrivateBus bus;
    SessionBus session;
    MessageBus system{QStringLiteral("system bus"), MessageBus::systemAddress()};
    BusNotifications notifications{session};
    std::vector<std::unique_ptr<Observation>> observations;
    std::unique_ptr<ScreenShield> shield;
    QStringList edges;
};

const QString kRaised = QStringLiteral("Raised");
const QString kLowered = QStringLiteral("Lowered");

} // namespace

TEST_F(ScreenShieldTest, EverySaverIsHeard) {
    watch();
    QStringList wanted;
    for (const char *name :
         {kFreedesktop, kGnome, "org.xfce.ScreenSaver", "org.mate.ScreenSaver", "org.cinnamon.ScreenSaver"}) {
        Saver saver(bus, name);
        settle();
        saver.become(true);
        wanted.append(kRaised);
        EXPECT_TRUE(hasEdges(wanted)) << name;
        saver.become(false);
        wanted.append(kLowered);
        EXPECT_TRUE(hasEdges(wanted)) << name;
    }
}

TEST_F(ScreenShieldTest, OnlyEdgesArePosted) {
    Saver saver(bus, kFreedesktop);
    watch();
    saver.become(false);
    saver.become(true);
    saver.become(true, QStringLiteral("/ScreenSaver"));
    saver.become(true);
    saver.become(false);
    saver.become(false, QStringLiteral("/ScreenSaver"));
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
}

TEST_F(ScreenShieldTest, TwoSourcesLowerOnlyTogether) {
    Saver one(bus, kFreedesktop);
    LoginManager login(bus);
    watch();
    one.become(true);
    EXPECT_TRUE(hasEdges({kRaised}));
    login.lock(true);
    settle();
    one.become(false);
    settle();
    EXPECT_EQ(edges, QStringList{kRaised});
    login.lock(false);
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
}

TEST_F(ScreenShieldTest, ASaverThatDiesWhileRaisedLowers) {
    auto saver = std::make_unique<Saver>(bus, kGnome);
    watch();
    saver->become(true);
    EXPECT_TRUE(hasEdges({kRaised}));
    saver.reset();
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
}

TEST_F(ScreenShieldTest, ABusThatDiesWhileRaisedLowers) {
    Saver saver(bus, kGnome);
    watch();
    saver.become(true);
    EXPECT_TRUE(hasEdges({kRaised}));
    bus.kill();
    EXPECT_TRUE(waitFor([this] { return edges == QStringList{kRaised, kLowered}; }));
    bus.start();
    ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    Saver next(bus, kGnome);
    settle();
    next.become(true);
    EXPECT_TRUE(hasEdges({kRaised, kLowered, kRaised}));
}

TEST_F(ScreenShieldTest, AScreenThatIsCoveredAlreadyIsPosted) {
    Saver saver(bus, kFreedesktop, true);
    watch();
    EXPECT_TRUE(hasEdges({kRaised}));
    saver.become(false);
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
}

TEST_F(ScreenShieldTest, TheLoginManagersLockIsHeard) {
    LoginManager login(bus);
    watch();
    login.lock(true);
    EXPECT_TRUE(hasEdges({kRaised}));
    login.lock(false);
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
}

TEST_F(ScreenShieldTest, ASessionThatIsLockedAlreadyIsPosted) {
    LoginManager login(bus, true);
    watch();
    EXPECT_TRUE(hasEdges({kRaised}));
}

TEST_F(ScreenShieldTest, WithoutASessionOfItsOwnTheUsersIsAskedFor) {
    qunsetenv("XDG_SESSION_ID");
    LoginManager login(bus);
    watch();
    login.lock(true);
    EXPECT_TRUE(hasEdges({kRaised}));
}

TEST_F(ScreenShieldTest, AChangeWithoutItsValueIsAskedFor) {
    LoginManager login(bus, true);
    watch();
    login.lock(false);
    EXPECT_TRUE(hasEdges({kRaised, kLowered}));
    login.change({}, {QStringLiteral("LockedHint")});
    EXPECT_TRUE(hasEdges({kRaised, kLowered, kRaised}));
}

TEST_F(ScreenShieldTest, OtherChangesOfTheSessionAreNone) {
    LoginManager login(bus);
    watch();
    login.change({{QStringLiteral("IdleHint"), true}});
    login.change({{QStringLiteral("LockedHint"), QStringLiteral("true")}});
    login.change({{QStringLiteral("LockedHint"), true}}, {}, QStringLiteral("org.freedesktop.login1.Seat"));
    settle();
    EXPECT_TRUE(edges.isEmpty());
}

TEST_F(ScreenShieldTest, WhoDoesNotOwnASaversNameIsNotBelieved) {
    Saver saver(bus, kFreedesktop);
    watch();
    OtherProgram hostile(bus);
    hostile.emitSignal(QStringLiteral("/org/freedesktop/ScreenSaver"), QString::fromLatin1(kFreedesktop),
                       QStringLiteral("ActiveChanged"), {true});
    hostile.emitSignal(QStringLiteral("/org/gnome/ScreenSaver"), QString::fromLatin1(kGnome),
                       QStringLiteral("ActiveChanged"), {true});
    settle();
    EXPECT_TRUE(edges.isEmpty());
}

TEST_F(ScreenShieldTest, ASaversSignalOfAnotherSignatureIsNone) {
    OtherProgram saver(bus);
    ASSERT_TRUE(saver.connection().registerService(QString::fromLatin1(kFreedesktop)));
    watch();
    for (const QVariantList &arguments :
         {QVariantList{}, QVariantList{1}, QVariantList{QStringLiteral("true")}, QVariantList{true, true}}) {
        saver.emitSignal(QStringLiteral("/org/freedesktop/ScreenSaver"), QString::fromLatin1(kFreedesktop),
                         QStringLiteral("ActiveChanged"), arguments);
    }
    settle();
    EXPECT_TRUE(edges.isEmpty());
}

} // namespace barquell::test

#include "ScreenShieldTest.moc"
