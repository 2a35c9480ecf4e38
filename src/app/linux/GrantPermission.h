#pragma once

#include "menubar/PermissionPage.h"
#include "platform/linux/client/GrantClient.h"
#include "platform/linux/client/GrantTrust.h"

namespace barquell {

/// This user's grant as the permission page knows it. Both must outlive what is returned.
Permission permissionOf(const GrantTrust &trust, GrantClient &grant);

} // namespace barquell
