#pragma once

namespace barquell {

/// For a program that does little for a long time: all threads take their memory from one place, where each
/// else keeps a reserve of its own. To be called before there is a second thread.
void shareMemoryAmongThreads();

/// Gives memory that was freed back to the system; worth its time when much was, as at the end of a start.
void giveBackFreeMemory();

} // namespace barquell
