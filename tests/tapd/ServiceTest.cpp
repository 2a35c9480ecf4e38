#include "platform/linux/tapd/kernel/EventReader.h"
#include "platform/linux/tapd/service/Connection.h"
#include "platform/linux/tapd/service/DeadlineTimer.h"
#include "platform/linux/tapd/service/LineLimit.h"
#include "platform/linux/tapd/service/Listener.h"
#include "platform/linux/tapd/service/Options.h"
#include "platform/linux/tapd/service/Poller.h"

#include <gmock/gmock.h>

#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace barquell::test {

using namespace tapd;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// Asked through a descriptor that is ready at the end of the line.
bool nothingReady(Poller &poller) {
    std::array<int, 2> ends{};
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), 0);
    const FileDescriptor near(ends[0]);
    const FileDescriptor far(ends[1]);
    EXPECT_TRUE(poller.add(Source::Devices, near.get()));
    ::send(far.get(), "x", 1, 0);
    const auto ready = poller.wait();
    return ready.size() == 1 && ready[0].source == Source::Devices;
}

struct Pair {
    FileDescriptor near;
    FileDescriptor far;
};

Pair socketPair() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0, ends.data()), 0);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

class ListenerTest : public testing::Test {
protected:
    ListenerTest() {
        std::string name = (std::filesystem::temp_directory_path() / "tapd-XXXXXX").string();
        folder = ::mkdtemp(name.data());
        options.path = folder / "run" / "tap.sock";
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    FileDescriptor connect() const {
        FileDescriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, options.path.c_str(), sizeof address.sun_path - 1);
        const auto *general = reinterpret_cast<const sockaddr *>(&address);
        return ::connect(socket.get(), general, sizeof address) == 0 ? std::move(socket) : FileDescriptor();
    }

    std::filesystem::path folder;
    SocketOptions options;
    std::string problem;
};

std::optional<Options> parse(std::vector<std::string> words) {
    words.insert(words.begin(), "barquell-tapd");
    std::vector<char *> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string &word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    optind = 0; // a new line of arguments
    return optionsFrom(static_cast<int>(words.size()), arguments.data());
}

} // namespace

TEST_F(ListenerTest, ItsFileHasTheModeThatWasAskedFor) {
    options.mode = 0640;
    const auto listener = Listener::open(options, problem);
    ASSERT_TRUE(listener) << problem;
    struct stat status {};
    ASSERT_EQ(::stat(options.path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(ListenerTest, ItAcceptsAndLeavesNothingBehind) {
    {
        const auto listener = Listener::open(options, problem);
        ASSERT_TRUE(listener) << problem;
        EXPECT_FALSE(listener->accept().isValid());
        const FileDescriptor client = connect();
        EXPECT_TRUE(client.isValid());
        EXPECT_TRUE(listener->accept().isValid());
    }
    EXPECT_FALSE(std::filesystem::exists(options.path));
}

TEST_F(ListenerTest, ASecondServerIsRefusedAndTheFirstStays) {
    const auto first = Listener::open(options, problem);
    EXPECT_FALSE(Listener::open(options, problem));
    EXPECT_THAT(problem, HasSubstr("another server"));
    EXPECT_TRUE(connect().isValid());
}

TEST_F(ListenerTest, WhatADeadServerLeftIsReplaced) {
    {
        auto first = Listener::open(options, problem);
        std::filesystem::rename(options.path, folder / "kept");
    }
    std::filesystem::rename(folder / "kept", options.path);
    EXPECT_FALSE(connect().isValid());
    const auto second = Listener::open(options, problem);
    ASSERT_TRUE(second) << problem;
    EXPECT_TRUE(connect().isValid());
}

TEST_F(ListenerTest, AFileThatIsNoSocketStays) {
    options.path = folder / "file";
    std::ofstream(options.path) << "precious";
    EXPECT_FALSE(Listener::open(options, problem));
    EXPECT_THAT(problem, HasSubstr("no socket"));
    EXPECT_EQ(std::filesystem::file_size(options.path), 8U);
}

TEST_F(ListenerTest, ALinkStaysAndSoDoesWhatItNames) {
    options.path = folder / "link";
    {
        auto dead =
            Listener::open({folder / "dead", 0600, {}}, problem); // leaves its socket under another name
        std::filesystem::rename(folder / "dead", folder / "left");
    }
    std::filesystem::create_symlink(folder / "left", options.path);
    EXPECT_FALSE(Listener::open(options, problem));
    EXPECT_TRUE(std::filesystem::is_symlink(options.path));
    EXPECT_TRUE(std::filesystem::is_socket(folder / "left"));
}

TEST_F(ListenerTest, ItLeavesTheSocketOfTheNextServerAlone) {
    std::optional<Listener> next;
    {
        const auto first = Listener::open(options, problem);
        ASSERT_TRUE(first) << problem;
        std::filesystem::remove(options.path);
        next.emplace(Listener::open(options, problem).value());
    }
    EXPECT_TRUE(connect().isValid());
}

TEST_F(ListenerTest, TheFolderItMakesIsOpenToAllWhateverTheCallersMask) {
    const mode_t before = ::umask(0077);
    const auto listener = Listener::open(options, problem);
    EXPECT_EQ(::umask(before), 0077U) << "the mask is the caller's again";
    ASSERT_TRUE(listener) << problem;
    struct stat status {};
    ASSERT_EQ(::stat((folder / "run").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0755U);
}

TEST_F(ListenerTest, AFolderThatIsThereKeepsItsMode) {
    std::filesystem::create_directory(folder / "run");
    std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
    const auto listener = Listener::open(options, problem);
    ASSERT_TRUE(listener) << problem;
    EXPECT_EQ(std::filesystem::status(folder / "run").permissions(), std::filesystem::perms::owner_all);
}

TEST_F(ListenerTest, AnUnknownGroupOpensItToNobody) {
    options.group = "no-such-group";
    EXPECT_FALSE(Listener::open(options, problem));
    EXPECT_FALSE(std::filesystem::exists(options.path));
}

TEST(Connection, ItTellsWhenThereIsNoRoomAndNeverWaits) {
    Pair pair = socketPair();
    Connection connection(std::move(pair.near));
    protocol::ServerMessage message;
    int sent = 0;
    while (sent < 100000 && connection.send(message)) {
        ++sent;
    }
    EXPECT_GT(sent, 128) << "or a healthy client would be taken for a dead one";
    EXPECT_LT(sent, 100000);
}

TEST(Connection, APacketThatIsTooLongShowsAsSuch) {
    const Pair pair = socketPair();
    Connection connection(FileDescriptor(::dup(pair.near.get())));
    const std::array<char, 1000> bytes{};
    ASSERT_EQ(::send(pair.far.get(), bytes.data(), bytes.size(), 0), 1000);
    Connection::Packet packet;
    std::size_t size = 0;
    EXPECT_EQ(connection.receive(packet, size), Connection::Received::Packet);
    EXPECT_EQ(size, sizeof(protocol::ClientMessage) + 1);
    EXPECT_EQ(connection.receive(packet, size), Connection::Received::Nothing);
}

TEST(Connection, ItsEndIsNoticed) {
    Pair pair = socketPair();
    Connection connection(std::move(pair.near));
    { const FileDescriptor closing(std::move(pair.far)); }
    Connection::Packet packet;
    std::size_t size = 0;
    EXPECT_EQ(connection.receive(packet, size), Connection::Received::End);
    EXPECT_TRUE(connection.send({})) << "nothing is owed to the dead";
}

TEST(Connection, ItClosesItsSocket) {
    Pair pair = socketPair();
    { const Connection connection(std::move(pair.near)); }
    std::array<char, 8> bytes{};
    EXPECT_EQ(::recv(pair.far.get(), bytes.data(), bytes.size(), 0), 0);
}

TEST(FileDescriptor, ItClosesWhatItOwns) {
    int number = -1;
    {
        const FileDescriptor file(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        number = file.get();
        ASSERT_GE(::fcntl(number, F_GETFD), 0);
    }
    EXPECT_LT(::fcntl(number, F_GETFD), 0);
}

TEST(EventReader, ADeviceThatNeverFallsSilentIsForgottenForNow) {
    const FileDescriptor endless(::open("/dev/zero", O_RDONLY | O_CLOEXEC));
    forgetEvents(endless.get());
    EventBatch batch;
    EXPECT_FALSE(readEvents(endless.get(), batch).events.empty()) << "or it was not tried";
}

TEST(Poller, KeyboardsGoBeforeClientsAndClientsBeforeBars) {
    Poller poller;
    std::vector<Pair> pairs;
    for (const Source source : {Source::Listener, Source::Bar, Source::Client, Source::Keyboard}) {
        pairs.push_back(socketPair());
        ASSERT_TRUE(poller.add(source, pairs.back().near.get()));
        ::send(pairs.back().far.get(), "x", 1, 0);
    }
    std::vector<Source> sources;
    for (const Ready &ready : poller.wait()) {
        sources.push_back(ready.source);
    }
    EXPECT_THAT(sources, ElementsAre(Source::Keyboard, Source::Client, Source::Bar, Source::Listener));
}

TEST(Poller, WhatIsNotWantedStillTellsItsEnd) {
    Poller poller;
    Pair pair = socketPair();
    ASSERT_TRUE(poller.add(Source::Bar, pair.near.get()));
    ::send(pair.far.get(), "x", 1, 0);
    poller.want(Source::Bar, pair.near.get(), false, false);
    EXPECT_TRUE(nothingReady(poller));
    { const FileDescriptor closing(std::move(pair.far)); }
    const auto ready = poller.wait();
    ASSERT_EQ(ready.size(), 1U);
    EXPECT_TRUE(ready[0].readable);
}

TEST(DeadlineTimer, ItRunsOutAtTheEarliestDeadline) {
    using namespace std::chrono_literals;
    Poller poller;
    DeadlineTimer timer;
    ASSERT_TRUE(poller.add(Source::Timer, timer.descriptor()));
    const Time start = std::chrono::steady_clock::now();
    timer.update(std::nullopt);
    timer.update(start + 1h);
    timer.update(start + 20ms);
    timer.update(start + 2h);
    ASSERT_EQ(poller.wait().size(), 1U);
    EXPECT_GE(std::chrono::steady_clock::now(), start + 20ms);
    timer.read();
    timer.update(start + 30ms);
    ASSERT_EQ(poller.wait().size(), 1U) << "and again";
    EXPECT_GE(std::chrono::steady_clock::now(), start + 30ms);
}

TEST(LineLimit, ABurstAndThenAFew) {
    LineLimit limit;
    LineLimit::Time now{std::chrono::hours(1)};
    int admitted = 0;
    for (int i = 0; i < 10000; ++i) {
        admitted += limit.admits(now) ? 1 : 0;
    }
    EXPECT_EQ(admitted, LineLimit::kBurst);
    EXPECT_EQ(limit.takeLeftOut(), 10000 - LineLimit::kBurst);
    EXPECT_EQ(limit.takeLeftOut(), 0);
    now += LineLimit::kOneMoreAfter;
    EXPECT_TRUE(limit.admits(now));
    EXPECT_FALSE(limit.admits(now));
}

TEST(Options, TheyAreReadOrRefused) {
    const auto options = parse({"--socket", "/x", "--mode", "600", "--group", "g"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->socket.path, "/x");
    EXPECT_EQ(options->socket.mode, 0600U);
    EXPECT_EQ(options->socket.group, "g");
    EXPECT_EQ(parse({})->socket.path, protocol::kDefaultSocket);
    EXPECT_EQ(parse({})->grants, grant::kFolder);
    EXPECT_EQ(parse({"--grants", "/g"})->grants, "/g");
    EXPECT_EQ(parse({"--grant", "jane"})->task, Task::Grant);
    EXPECT_EQ(parse({"--withdraw", "jane"})->task, Task::Withdraw);
    EXPECT_EQ(parse({"--withdraw", "jane"})->user, "jane");
    EXPECT_FALSE(parse({"--grant"}));
    EXPECT_EQ(parse({"--help"})->task, Task::Help);
    EXPECT_EQ(parse({"--version"})->task, Task::Version);
    EXPECT_FALSE(parse({"--mode", "9"}));
    EXPECT_FALSE(parse({"--mode", "1777"}));
    EXPECT_FALSE(parse({"--nonsense"}));
    EXPECT_FALSE(parse({"stray"}));
}

} // namespace barquell::test
