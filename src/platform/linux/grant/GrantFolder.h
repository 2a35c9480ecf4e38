#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace barquell::grant {

inline constexpr const char *kFolder = "/var/lib/barquell/grants";

enum class State {
    None,    ///< nothing was granted
    Held,    ///< it holds
    Invalid, ///< there is something by its name, which is no grant to this user
};

struct Reading {
    State state = State::None;
    std::string_view problem; ///< where it is invalid: a literal, half a sentence for the log
};

/// Where the grants lie, a file each, named by the number of its user. A grant holds only where its file is
/// small, regular, whole, nobody's to write but its owner's, and names the user who has the number today.
/// What is asked is looked up each time. Does not wait, but for the disk and for where users are looked up.
/// Any thread, but the writing ones not at once.
class GrantFolder {
public:
    /// The owner is whom the files must belong to: root, unless in tests.
    explicit GrantFolder(std::string path = kFolder, uid_t owner = 0)
        : _path(std::move(path)), _owner(owner) {}

    const std::string &path() const { return _path; }

    Reading read(uid_t user) const;

    /// Creates the folder where it is missing. Returns why it failed; empty on success.
    std::string make() const;

    /// Has the user a name, and one that a grant can carry?
    static bool canGive(uid_t user) { return textFor(user).has_value(); }

    /// Writes the user's grant, all of it or none. Returns why it failed; empty on success.
    std::string give(uid_t user) const;

    /// Removes the user's grant, if there is one. Returns why it failed; empty on success.
    std::string withdraw(uid_t user) const;

private:
    static std::optional<std::string> textFor(uid_t user);
    std::string fileOf(uid_t user) const { return _path + '/' + std::to_string(user); }

    std::string _path;
    uid_t _owner;
};

/// Who has the name; nothing where nobody has.
std::optional<uid_t> userNamed(const std::string &name);

} // namespace barquell::grant
