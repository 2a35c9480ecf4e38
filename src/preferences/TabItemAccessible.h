#pragma once

namespace barquell {

/// A toolbar's items that choose a tab are buttons that stay down, which a screen reader would call check
/// boxes. From the first call on they are told as what they are: radio buttons, of which one is chosen. Main
/// thread only.
void tellTabItemsAsChoices();

} // namespace barquell
