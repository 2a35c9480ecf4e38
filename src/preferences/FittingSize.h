#pragma once

class QWidget;

namespace barquell {

/// Views are drawn in one language and one font; this one grows to what its texts need here.
void growToContents(QWidget &view);

} // namespace barquell
