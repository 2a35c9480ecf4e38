#include "Fakes.h"

#include "platform/linux/tapd/service/Connection.h"
#include "platform/linux/tapd/service/GrantTasks.h"
#include "platform/linux/tapd/service/KeptGrants.h"
#include "platform/linux/tapd/service/Listener.h"
#include "platform/linux/tapd/service/Process.h"
#include "platform/linux/tapd/service/SeatWatch.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace barquell::test {

using namespace tapd;
using testing::HasSubstr;

namespace {

class KeptGrantsTest : public testing::Test {
protected:
    KeptGrantsTest() {
        std::string name = (std::filesystem::temp_directory_path() / "kept-XXXXXX").string();
        home = ::mkdtemp(name.data());
        options.grants = home / "grants";
    }
    void TearDown() override { std::filesystem::remove_all(home); }

    static bool hasChanged(const KeptGrants &grants) {
        pollfd waiting{grants.descriptor(), POLLIN, 0};
        return ::poll(&waiting, 1, 0) == 1;
    }

    int change(Task task, const std::string &user) {
        options.task = task;
        options.user = user;
        return changeGrant(options);
    }

    std::filesystem::path home;
    Options options;
    const std::uint32_t self = ::geteuid();
};

/// Has the number that the service manager hands things over at, for as long as this lives.
class HandedOver {
public:
    explicit HandedOver(int descriptor) : _before(::fcntl(kNumber, F_DUPFD_CLOEXEC, 10)) {
        ::dup2(descriptor, kNumber);
        ::setenv("LISTEN_PID", std::to_string(::getpid()).c_str(), 1);
        ::setenv("LISTEN_FDS", "1", 1);
    }
    ~HandedOver() {
        ::dup2(_before.get(), kNumber);
        ::unsetenv("LISTEN_PID");
        ::unsetenv("LISTEN_FDS");
    }
    HandedOver(const HandedOver &) = delete;
    HandedOver &operator=(const HandedOver &) = delete;

private:
    static constexpr int kNumber = 3; // sd_listen_fds(3)
    FileDescriptor _before;
};

} // namespace

TEST_F(KeptGrantsTest, WhatOthersChangeIsNoticed) {
    KeptGrants grants(grantsOf(options));
    EXPECT_FALSE(grants.follow()) << "there is no folder yet";
    EXPECT_EQ(change(Task::Grant, std::to_string(self)), 0);
    EXPECT_TRUE(grants.follow());
    EXPECT_FALSE(grants.follow()) << "once is enough";
    EXPECT_EQ(grants.read(self).state, grant::State::Held);
    EXPECT_FALSE(hasChanged(grants));
    EXPECT_EQ(change(Task::Withdraw, std::to_string(self)), 0);
    EXPECT_TRUE(hasChanged(grants));
    grants.forgetChanges();
    EXPECT_FALSE(hasChanged(grants));
    EXPECT_EQ(grants.read(self).state, grant::State::None);
    std::ofstream(home / "grants" / std::to_string(self)) << "edited in place";
    EXPECT_TRUE(hasChanged(grants));
}

TEST_F(KeptGrantsTest, AFolderThatGoesAndComesBackIsFollowedAgain) {
    KeptGrants grants(grantsOf(options));
    EXPECT_EQ(grants.give(self), "");
    for (const bool moved : {false, true}) {
        if (moved) {
            std::filesystem::rename(home / "grants", home / "old");
        } else {
            std::filesystem::remove_all(home / "grants");
        }
        EXPECT_TRUE(hasChanged(grants));
        grants.forgetChanges();
        grants.forgetChanges(); // a watch that was taken back is told of as well
        EXPECT_EQ(grants.read(self).state, grant::State::None);
        EXPECT_EQ(grants.give(self), "");
        grants.forgetChanges();
        EXPECT_EQ(grants.withdraw(self), "");
        EXPECT_TRUE(hasChanged(grants)) << (moved ? "after a move" : "after a removal");
        grants.forgetChanges();
    }
}

TEST_F(KeptGrantsTest, AnAdministratorNamesTheUserByNameOrNumber) {
    const grant::GrantFolder folder = grantsOf(options);
    EXPECT_EQ(change(Task::Grant, "root"), 0);
    EXPECT_EQ(folder.read(0).state, grant::State::Held);
    EXPECT_EQ(change(Task::Withdraw, "0"), 0);
    EXPECT_EQ(folder.read(0).state, grant::State::None);
    for (const char *nobody : {"", "no such user", "4123456789", "-1", "0x0", "99999999999999"}) {
        EXPECT_EQ(change(Task::Grant, nobody), 1) << nobody;
    }
    EXPECT_EQ(change(Task::Withdraw, "4123456789"), 0) << "a user who was deleted";
    std::ofstream(home / "file") << "in the way";
    options.grants = home / "file" / "grants";
    EXPECT_EQ(change(Task::Grant, "root"), 1);
}

TEST(StartOfProcess, IsThatOfTheProcessAndItsUser) {
    const auto start = startOf(::getpid(), ::geteuid());
    ASSERT_TRUE(start);
    std::ifstream stat("/proc/self/stat");
    std::string text((std::istreambuf_iterator<char>(stat)), {});
    EXPECT_THAT(text, HasSubstr(" " + std::to_string(*start) + " "));
    EXPECT_EQ(startOf(::getpid(), ::geteuid() + 1), std::nullopt);
    EXPECT_EQ(startOf(-1, ::geteuid()), std::nullopt);
}

/// What this machine has; tests/vm/grant_checks.py makes the other cases.
TEST(SeatWatchTest, EverybodyIsInFrontExactlyWhereSeat0HasNoFile) {
    SeatWatch seat;
    const bool hasFile = std::filesystem::exists("/run/systemd/seats/seat0");
    EXPECT_EQ(seat.front() == Front::everybody(), !hasFile);
    EXPECT_EQ(seat.follow(), std::filesystem::exists("/run/systemd/seats"));
    EXPECT_EQ(seat.front() == Front::everybody(), !hasFile) << "the folder alone is no login manager";
}

TEST(ConnectionTest, WhatWasSaidLastIsHeardAlsoByAClientThatTalksOn) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0, ends.data()), 0);
    const FileDescriptor far(ends[1]);
    {
        Connection connection{FileDescriptor(ends[0])};
        ::send(far.get(), "not read", 8, 0);
        protocol::ServerMessage last;
        last.type = protocol::ServerMessageType::Granted;
        EXPECT_TRUE(connection.send(last));
        connection.close();
        EXPECT_LT(::send(far.get(), "more", 4, MSG_NOSIGNAL), 0);
    }
    protocol::ServerMessage heard;
    EXPECT_EQ(::recv(far.get(), &heard, sizeof heard, 0), static_cast<ssize_t>(sizeof heard));
    EXPECT_EQ(::recv(far.get(), &heard, sizeof heard, 0), 0);
}

TEST_F(KeptGrantsTest, ASocketThatIsHandedOverIsServedAndStays) {
    SocketOptions socket;
    socket.path = home / "tap.sock";
    std::string problem;
    const auto manager = Listener::open(socket, problem);
    ASSERT_TRUE(manager) << problem;
    EXPECT_FALSE(Listener::isHandedOver());
    {
        const HandedOver handed(manager->descriptor());
        EXPECT_TRUE(Listener::isHandedOver());
        const auto taken = Listener::take(problem);
        ASSERT_TRUE(taken) << problem;
        EXPECT_EQ(taken->path(), socket.path);
        EXPECT_FALSE(taken->accept().isValid()) << "it does not wait";
        const FileDescriptor client(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        socket.path.copy(address.sun_path, sizeof address.sun_path - 1);
        ASSERT_EQ(::connect(client.get(), reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        EXPECT_TRUE(taken->accept().isValid());
        EXPECT_FALSE(Listener::isHandedOver()) << "a child is not to take it as well";
    }
    EXPECT_TRUE(std::filesystem::exists(socket.path));
}

TEST_F(KeptGrantsTest, AnythingElseThatIsHandedOverIsRefused) {
    const FileDescriptor file(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    const FileDescriptor stream(::socket(AF_UNIX, SOCK_STREAM, 0));
    const FileDescriptor deaf(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
    for (const int descriptor : {file.get(), stream.get(), deaf.get()}) {
        const HandedOver handed(descriptor);
        std::string problem;
        EXPECT_FALSE(Listener::take(problem));
        EXPECT_THAT(problem, HasSubstr("handed over"));
    }
}

} // namespace barquell::test
