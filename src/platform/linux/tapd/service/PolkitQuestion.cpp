#include "platform/linux/tapd/service/PolkitQuestion.h"

#include "platform/linux/tapd/service/Process.h"

#include <poll.h>
#include <systemd/sd-bus.h>

namespace barquell::tapd {

namespace {

constexpr std::uint32_t kAllowPrompt = 1;

/// Of a reply of type (bba{ss}): authorized, and if not, whether a prompt could change that.
Answer answerIn(sd_bus_message *reply) {
    int authorized = 0;
    int challenge = 0;
    if (::sd_bus_message_enter_container(reply, 'r', "bba{ss}") < 0 ||
        ::sd_bus_message_read(reply, "bb", &authorized, &challenge) < 0) {
        return Answer::None;
    }
    if (authorized != 0) {
        return Answer::Yes;
    }
    return challenge != 0 ? Answer::None : Answer::No; // none: it could, but nothing shows prompts here
}

int onReply(sd_bus_message *reply, void *question, sd_bus_error * /*error*/) {
    auto &self = *static_cast<PolkitQuestion *>(question);
    const sd_bus_error *error = ::sd_bus_message_get_error(reply);
    if (error) {
        self.log().line(std::string("polkit was not asked: ") +
                        (error->message ? error->message : error->name));
    }
    self.hear(error ? Answer::None : answerIn(reply));
    return 0;
}

} // namespace

void PolkitQuestion::Close::operator()(sd_bus *bus) const {
    ::sd_bus_close_unref(bus);
}

std::unique_ptr<PolkitQuestion> PolkitQuestion::ask(const ClientLink &link, Log &log) {
    const auto start = startOf(link.process(), link.user());
    sd_bus *bus = nullptr;
    if (!start || ::sd_bus_open_system(&bus) < 0) {
        return nullptr;
    }
    std::unique_ptr<PolkitQuestion> question(new PolkitQuestion(bus, log));
    return question->send(link, *start) ? std::move(question) : nullptr;
}

bool PolkitQuestion::send(const ClientLink &link, std::uint64_t start) {
    // The rules take the question back long before this.
    ::sd_bus_set_method_call_timeout(_bus.get(), 2 * protocol::kQuestionLimit);
    // org.freedesktop.PolicyKit1.Authority(8): subject, action, details, flags, cancellation
    return ::sd_bus_call_method_async(
               _bus.get(), nullptr, "org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
               "org.freedesktop.PolicyKit1.Authority", "CheckAuthorization", onReply, this,
               "(sa{sv})sa{ss}us", "unix-process", 3, "pid", "u", static_cast<std::uint32_t>(link.process()),
               "start-time", "t", start, "uid", "i", static_cast<std::int32_t>(link.user()), kAction, 0,
               kAllowPrompt, "") >= 0;
}

int PolkitQuestion::descriptor() const {
    return ::sd_bus_get_fd(_bus.get());
}

bool PolkitQuestion::wantsToWrite() const {
    const int events = ::sd_bus_get_events(_bus.get());
    return events > 0 && (events & POLLOUT) != 0;
}

std::optional<Answer> PolkitQuestion::proceed() {
    int more = 1;
    while (more > 0 && !_answer) {
        more = ::sd_bus_process(_bus.get(), nullptr);
    }
    return more < 0 && !_answer ? Answer::None : _answer; // the bus has gone
}

} // namespace barquell::tapd
