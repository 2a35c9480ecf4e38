#include "Promises.h"

#include "foundation/Log.h"
#include "foundation/Values.h"
#include "platform/linux/SettingsFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace barquell;
    using fuzz::require;
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QString refusal;
    const auto values = decodeSettings(text, refusal);
    if (!values) {
        require(!refusal.isEmpty(), "a refusal has a reason");
        require(refusal.size() <= 2 * kLongestQuote && refusal == cleanLine(refusal),
                "a refusal is one short line");
        return 0;
    }
    require(sameValue(storableValue(*values).value_or(QVariant()), *values),
            "what is read can be stored as it is");
    const auto again = decodeSettings(encodeSettings(*values), refusal);
    require(again && sameValue(*again, *values), "what is written is what was read");
    return 0;
}
