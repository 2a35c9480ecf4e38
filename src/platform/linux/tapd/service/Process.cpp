#include "platform/linux/tapd/service/Process.h"

#include "platform/linux/FileDescriptor.h"

#include <array>
#include <charconv>
#include <fcntl.h>
#include <string>

namespace barquell::tapd {

namespace {

std::string contentOf(int folder, const char *name) {
    const FileDescriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC));
    std::array<char, 4096> text; // each is smaller
    const ssize_t size = ::read(file.get(), text.data(), text.size());
    return {text.data(), static_cast<std::size_t>(size > 0 ? size : 0)};
}

std::optional<std::uint64_t> numberAt(std::string_view text, std::size_t at) {
    std::uint64_t number = 0;
    const bool found = at < text.size() &&
                       std::from_chars(text.data() + at, text.data() + text.size(), number).ec == std::errc();
    return found ? std::optional(number) : std::nullopt;
}

/// Behind so many separators.
std::size_t skip(std::string_view text, std::size_t at, char separator, int count) {
    for (; count > 0 && at != std::string_view::npos; --count) {
        at = text.find(separator, at);
        at += at == std::string_view::npos ? 0 : 1;
    }
    return at;
}

/// proc_pid_status(5): the real user comes first, and the effective one, whom the kernel tells of a peer,
/// behind it.
std::optional<std::uint64_t> userIn(std::string_view status) {
    const std::size_t line = status.find("\nUid:\t");
    return line == std::string_view::npos ? std::nullopt : numberAt(status, skip(status, line, '\t', 2));
}

/// proc_pid_stat(5): field 22; the second one is in parentheses and may hold anything.
std::optional<std::uint64_t> startIn(std::string_view stat) {
    const std::size_t name = stat.rfind(')');
    return name == std::string_view::npos ? std::nullopt : numberAt(stat, skip(stat, name, ' ', 20));
}

} // namespace

std::optional<std::uint64_t> startOf(pid_t process, uid_t user) {
    // What is read below an open folder is of the same process, or of none.
    const FileDescriptor folder(
        ::open(("/proc/" + std::to_string(process)).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return userIn(contentOf(folder.get(), "status")) == user ? startIn(contentOf(folder.get(), "stat"))
                                                             : std::nullopt;
}

} // namespace barquell::tapd
