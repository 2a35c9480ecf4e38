#include "Promises.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace barquell;
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    fuzz::requirePromises(recording::readLibinputRecord(text));
    return 0;
}
