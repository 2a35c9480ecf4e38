#include "platform/linux/tapd/service/GrantTasks.h"

#include <charconv>
#include <cstdio>
#include <unistd.h>

namespace barquell::tapd {

namespace {

/// A number may be a user's who has no name any more.
std::optional<uid_t> userOf(const std::string &word) {
    if (const auto user = grant::userNamed(word)) {
        return user;
    }
    uid_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    return whole ? std::optional(number) : std::nullopt;
}

int fail(const std::string &why) {
    std::fprintf(stderr, "barquell-tapd: %s\n", why.c_str());
    return 1;
}

} // namespace

grant::GrantFolder grantsOf(const Options &options) {
    return grant::GrantFolder(options.grants, ::geteuid());
}

int changeGrant(const Options &options) {
    const auto user = userOf(options.user);
    if (!user) {
        return fail("there is no user '" + options.user + "'");
    }
    const grant::GrantFolder folder = grantsOf(options);
    const std::string problem = options.task == Task::Grant ? folder.give(*user) : folder.withdraw(*user);
    return problem.empty() ? 0 : fail(problem);
}

} // namespace barquell::tapd
