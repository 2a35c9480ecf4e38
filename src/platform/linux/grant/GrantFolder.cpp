#include "platform/linux/grant/GrantFolder.h"

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/grant/GrantFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <vector>

namespace barquell::grant {

namespace {

constexpr mode_t kFolderMode = 0755;
constexpr mode_t kFileMode = 0644;
constexpr mode_t kOthersMayWrite = 0022;

std::string systemError() {
    return std::strerror(errno);
}

/// The account that the lookup finds, handed to `use`.
template <typename Lookup, typename Use>
auto lookUp(const Lookup &lookup, const Use &use) -> std::optional<decltype(use(passwd{}))> {
    passwd account{};
    passwd *found = nullptr;
    std::vector<char> text(1024);
    constexpr std::size_t kEnough = 1U << 20U;
    while (lookup(account, text, found) == ERANGE && text.size() < kEnough) {
        text.resize(2 * text.size());
    }
    return found ? std::optional(use(account)) : std::nullopt;
}

std::optional<std::string> nameOf(uid_t user) {
    return lookUp(
        [user](passwd &account, std::vector<char> &text, passwd *&found) {
            return ::getpwuid_r(user, &account, text.data(), text.size(), &found);
        },
        [](const passwd &account) { return std::string(account.pw_name); });
}

constexpr Reading invalid(std::string_view problem) {
    return {State::Invalid, problem};
}

/// What is wrong with the file, by what the kernel says of it; empty where nothing is.
std::string_view complaintOf(const struct stat &status, uid_t owner) {
    if (!S_ISREG(status.st_mode)) {
        return "its grant is no regular file";
    }
    if (status.st_uid != owner) {
        return "its grant is not root's";
    }
    if ((status.st_mode & kOthersMayWrite) != 0) {
        return "its grant can be written by others";
    }
    return status.st_size > static_cast<off_t>(kMaximumSize) ? "its grant is too large" : std::string_view();
}

std::optional<std::string> contentOf(int file) {
    std::array<char, kMaximumSize + 1> text; // one more shows one that grows
    std::size_t size = 0;
    while (size < text.size()) {
        const ssize_t count = ::read(file, text.data() + size, text.size() - size);
        if (count == 0) {
            break;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return std::string(text.data(), size);
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(file, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        text.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

/// So that a power cut does not bring back what was there before.
void sync(const std::string &folder) {
    const FileDescriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::fsync(open.get());
}

bool writeAndRename(const std::string &path, const std::string &temporary, std::string_view text) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const FileDescriptor file(::open(temporary.c_str(), kFlags, 0600));
    return file.isValid() && writeAll(file.get(), text) && ::fchmod(file.get(), kFileMode) == 0 &&
           ::fsync(file.get()) == 0 && std::rename(temporary.c_str(), path.c_str()) == 0;
}

} // namespace

Reading GrantFolder::read(uid_t user) const {
    const std::string path = fileOf(user);
    // Looked at before it is opened, since opening a device may already do something.
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? Reading() : invalid("its grant cannot be read");
    }
    if (const auto complaint = complaintOf(status, _owner); !complaint.empty()) {
        return invalid(complaint);
    }
    const FileDescriptor file(
        ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isValid() || ::fstat(file.get(), &status) != 0) {
        return errno == ENOENT ? Reading() : invalid("its grant cannot be read");
    }
    if (const auto complaint = complaintOf(status, _owner); !complaint.empty()) {
        return invalid(complaint);
    }
    const auto text = contentOf(file.get());
    const auto granted = text ? grantedName(*text) : std::nullopt;
    if (!granted) {
        return invalid("its grant means nothing");
    }
    return nameOf(user) == *granted ? Reading{State::Held, {}} : invalid("its grant names somebody else");
}

std::string GrantFolder::make() const {
    std::string made;
    for (const auto &part : std::filesystem::path(_path)) {
        made += made.empty() || made.ends_with('/') ? part.string() : '/' + part.string();
        if (::mkdir(made.c_str(), 0700) == 0) {
            ::chmod(made.c_str(), kFolderMode); // whatever the umask
        } else if (errno != EEXIST) {
            return made + ": " + systemError();
        }
    }
    return {};
}

std::optional<std::string> GrantFolder::textFor(uid_t user) {
    const auto name = nameOf(user);
    return name ? grantText(*name) : std::nullopt;
}

std::string GrantFolder::give(uid_t user) const {
    const auto text = textFor(user);
    if (!text) {
        return "user " + std::to_string(user) + " has no name";
    }
    if (std::string problem = make(); !problem.empty()) {
        return problem;
    }
    const std::string path = fileOf(user);
    // One fixed name, so that a writer that was killed leaves one file behind at most, and the next clears
    // it.
    const std::string temporary = path + ".new";
    ::unlink(temporary.c_str());
    if (!writeAndRename(path, temporary, *text)) {
        std::string problem = path + ": " + systemError();
        ::unlink(temporary.c_str());
        return problem;
    }
    sync(_path);
    return {};
}

std::string GrantFolder::withdraw(uid_t user) const {
    const std::string path = fileOf(user);
    if (::unlink(path.c_str()) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? std::string() : path + ": " + systemError();
    }
    sync(_path);
    return {};
}

std::optional<uid_t> userNamed(const std::string &name) {
    return lookUp(
        [&name](passwd &account, std::vector<char> &text, passwd *&found) {
            return ::getpwnam_r(name.c_str(), &account, text.data(), text.size(), &found);
        },
        [](const passwd &account) { return account.pw_uid; });
}

} // namespace barquell::grant
