#include "Fakes.h"

#include "platform/linux/tapd/service/PolkitAuthority.h"
#include "platform/linux/tapd/service/Process.h"
#include "session/PrivateBus.h"

#include <poll.h>
#include <sys/wait.h>
#include <systemd/sd-bus.h>

namespace barquell::test {

using namespace tapd;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// polkit's place on the bus. It keeps the last question and answers when it is told to.
class FakePolkit {
public:
    FakePolkit() {
        EXPECT_GE(::sd_bus_open_system(&_bus), 0);
        EXPECT_GE(::sd_bus_add_object(_bus, nullptr, "/org/freedesktop/PolicyKit1/Authority", onCall, this),
                  0);
        EXPECT_GE(::sd_bus_request_name(_bus, "org.freedesktop.PolicyKit1", 0), 0);
    }
    ~FakePolkit() {
        ::sd_bus_message_unref(_question);
        ::sd_bus_flush_close_unref(_bus);
    }
    FakePolkit(const FakePolkit &) = delete;
    FakePolkit &operator=(const FakePolkit &) = delete;

    void process() const {
        while (::sd_bus_process(_bus, nullptr) > 0) {
        }
    }
    int descriptor() const { return ::sd_bus_get_fd(_bus); }
    bool isAsked() const { return _question != nullptr; }

    void reply(bool authorized, bool challenge) const {
        EXPECT_GE(::sd_bus_reply_method_return(_question, "(bba{ss})", authorized, challenge, 0), 0);
        ::sd_bus_flush(_bus);
    }
    void fail() const {
        EXPECT_GE(
            ::sd_bus_reply_method_errorf(_question, "org.freedesktop.PolicyKit1.Error.Failed", "%s", "no"),
            0);
        ::sd_bus_flush(_bus);
    }
    void sendNonsense() const {
        EXPECT_GE(::sd_bus_reply_method_return(_question, "s", "yes"), 0);
        ::sd_bus_flush(_bus);
    }

    std::uint32_t process_id = 0;
    std::uint64_t start = 0;
    std::int32_t user = -1;
    std::string action;
    std::uint32_t flags = 0;

private:
    static int onCall(sd_bus_message *message, void *self, sd_bus_error * /*error*/) {
        return static_cast<FakePolkit *>(self)->hear(message);
    }

    int hear(sd_bus_message *message) {
        if (::sd_bus_message_is_method_call(message, "org.freedesktop.PolicyKit1.Authority",
                                            "CheckAuthorization") <= 0) {
            return 0;
        }
        const char *kind = nullptr;
        const char *asked = nullptr;
        const char *cancellation = nullptr;
        std::array<const char *, 3> keys{};
        EXPECT_GE(::sd_bus_message_read(message, "(sa{sv})sa{ss}us", &kind, 3, &keys[0], "u", &process_id,
                                        &keys[1], "t", &start, &keys[2], "i", &user, &asked, 0, &flags,
                                        &cancellation),
                  0);
        EXPECT_THAT(keys,
                    ElementsAre(testing::StrEq("pid"), testing::StrEq("start-time"), testing::StrEq("uid")));
        EXPECT_STREQ(kind, "unix-process");
        action = asked ? asked : "";
        ::sd_bus_message_unref(_question);
        _question = ::sd_bus_message_ref(message);
        return 1;
    }

    sd_bus *_bus = nullptr;
    sd_bus_message *_question = nullptr;
};

class PolkitTest : public testing::Test {
protected:
    PolkitTest() {
        link.pid = ::getpid();
        link.uid = ::geteuid();
    }

    /// Until polkit is asked.
    void letItBeAsked() {
        const auto limit = std::chrono::steady_clock::now() + 20s;
        while (!polkit->isAsked() && std::chrono::steady_clock::now() < limit) {
            EXPECT_FALSE(turn());
            polkit->process();
        }
        ASSERT_TRUE(polkit->isAsked());
    }

    /// What is there within a moment; the answer if that was it.
    std::optional<Answer> turn() {
        pollfd waiting{question->descriptor(),
                       static_cast<short>(POLLIN | (question->wantsToWrite() ? POLLOUT : 0)), 0};
        ::poll(&waiting, 1, 10);
        return question->proceed();
    }

    std::optional<Answer> answer() {
        const auto limit = std::chrono::steady_clock::now() + 20s;
        std::optional<Answer> answer;
        while (!answer && std::chrono::steady_clock::now() < limit) {
            answer = turn();
        }
        return answer;
    }

    void ask() {
        question = PolkitQuestion::ask(link, log);
        ASSERT_NE(question, nullptr);
    }

    void askPolkit() {
        polkit.emplace();
        ask();
        letItBeAsked();
    }

    PrivateBus bus;
    FakeLink link;
    RecordingLog log;
    std::optional<FakePolkit> polkit;
    std::unique_ptr<PolkitQuestion> question;
};

} // namespace

TEST_F(PolkitTest, ItIsAskedAboutTheClientsProcess) {
    askPolkit();
    EXPECT_EQ(polkit->process_id, static_cast<std::uint32_t>(::getpid()));
    EXPECT_EQ(polkit->start, startOf(::getpid(), ::geteuid()));
    EXPECT_EQ(polkit->user, static_cast<std::int32_t>(::geteuid()));
    EXPECT_EQ(polkit->action, "com.vexolith.barquell.filter-touch-bar");
    EXPECT_EQ(polkit->flags, 1U) << "it may prompt";
    EXPECT_EQ(turn(), std::nullopt) << "nobody has answered";
    polkit->reply(true, false);
    EXPECT_EQ(answer(), Answer::Yes);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(PolkitTest, ANoIsANo) {
    askPolkit();
    polkit->reply(false, false);
    EXPECT_EQ(answer(), Answer::No);
}

TEST_F(PolkitTest, WhereNothingShowsPromptsThereIsNoAnswer) {
    askPolkit();
    polkit->reply(false, true);
    EXPECT_EQ(answer(), Answer::None);
}

TEST_F(PolkitTest, AnErrorIsNoAnswerAndSaid) {
    askPolkit();
    polkit->fail();
    EXPECT_EQ(answer(), Answer::None);
    EXPECT_THAT(log.lines, ElementsAre("polkit was not asked: no"));
}

TEST_F(PolkitTest, NonsenseIsNoAnswer) {
    askPolkit();
    polkit->sendNonsense();
    EXPECT_EQ(answer(), Answer::None);
}

TEST_F(PolkitTest, WithoutPolkitThereIsNoAnswer) {
    ask();
    EXPECT_EQ(answer(), Answer::None);
    EXPECT_EQ(log.lines.size(), 1U);
}

TEST_F(PolkitTest, WithoutABusNothingIsAsked) {
    bus.kill();
    EXPECT_EQ(PolkitQuestion::ask(link, log), nullptr);
}

TEST_F(PolkitTest, ABusThatGoesIsNoAnswer) {
    askPolkit();
    bus.kill();
    EXPECT_EQ(answer(), Answer::None);
}

TEST_F(PolkitTest, AProcessThatHasGoneOrIsAnothersIsNotAskedAbout) {
    link.uid = ::geteuid() + 1;
    EXPECT_EQ(PolkitQuestion::ask(link, log), nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    link.uid = ::geteuid();
    link.pid = child;
    EXPECT_EQ(PolkitQuestion::ask(link, log), nullptr);
}

TEST_F(PolkitTest, TheAuthorityKnowsTheClientOfAnAnswer) {
    polkit.emplace();
    Poller poller;
    PolkitAuthority authority(poller, log);
    ASSERT_TRUE(authority.ask(link));
    ASSERT_TRUE(poller.add(Source::Devices, polkit->descriptor()));
    std::optional<PolkitAuthority::Answered> answered;
    bool replied = false;
    while (!answered) { // each wait ends: one of the two connections has something to say until then
        polkit->process();
        if (polkit->isAsked() && !std::exchange(replied, true)) {
            polkit->reply(true, false);
        }
        for (const Ready &ready : poller.wait()) {
            answered = ready.source == Source::Authority ? authority.proceed(ready.descriptor) : answered;
        }
    }
    ASSERT_TRUE(answered);
    EXPECT_EQ(answered->link, &link);
    EXPECT_EQ(answered->answer, Answer::Yes);
    authority.forget(link);
    authority.forget(link);
    EXPECT_EQ(authority.proceed(0), std::nullopt);
}

TEST_F(PolkitTest, AnAuthorityWithoutABusCannotBeAsked) {
    bus.kill();
    Poller poller;
    PolkitAuthority authority(poller, log);
    EXPECT_FALSE(authority.ask(link));
}

} // namespace barquell::test
