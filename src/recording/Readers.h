#pragma once

#include "recording/ByteSource.h"
#include "recording/Recording.h"

namespace barquell::recording {

Recording readEvemu(const ByteSource &source);
Recording readLibinputRecord(const ByteSource &source);

} // namespace barquell::recording
