#pragma once

namespace barquell {

/// What is to become of two copies that met.
enum class CopyChoice { QuitThis, ShowAnother, QuitAnother, KeepAll };

/// Asks the user, and waits for the answer. Where there are no windows to ask with, says so in one line and
/// answers as the first button does. Main thread only.
CopyChoice askAboutAnotherCopy();

} // namespace barquell
