#pragma once

namespace barquell {

/// Lets interface files name ShortcutCaptureButton and ShortcutMenuItem.
void registerShortcutControls();

} // namespace barquell
