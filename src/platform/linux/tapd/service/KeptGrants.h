#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

/// The folder of the grants, and word of what others change in it. One thread.
class KeptGrants final : public GrantPort {
public:
    explicit KeptGrants(grant::GrantFolder folder);

    /// Becomes readable when something has changed.
    int descriptor() const { return _changes.get(); }
    void forgetChanges();

    /// Follows the folder, where it is there and not followed yet. True where that has just begun.
    bool follow();

    grant::Reading read(std::uint32_t user) override { return _folder.read(user); }
    bool canGive(std::uint32_t user) override { return grant::GrantFolder::canGive(user); }
    std::string give(std::uint32_t user) override;
    std::string withdraw(std::uint32_t user) override { return _folder.withdraw(user); }

private:
    grant::GrantFolder _folder;
    FileDescriptor _changes;
    int _watch = -1;
};

} // namespace barquell::tapd
