#pragma once

#include "platform/linux/tapd/service/Options.h"

namespace barquell::tapd {

/// The grants are of whom the server runs as: root, unless in tests.
grant::GrantFolder grantsOf(const Options &options);

/// Gives or withdraws the grant that the options name, which takes who may write it. Returns the exit status;
/// where it fails a line on standard error has said why.
int changeGrant(const Options &options);

} // namespace barquell::tapd
