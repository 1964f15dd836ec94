// Fuzzes the text forms of test data. If any text is read and written, the result is a text that is read as the same
// data.

#include "fuzzing.h"

#include "testencoding.h"

namespace {

template <typename Value> void readAndWrite(const QString &text)
{
    Value value{};
    cabledoc::fromText(text, &value);
    const QString written = cabledoc::toText(value);
    cabledoc::fromText(written, &value);
    expect(cabledoc::toText(value) == written, "a text that was written is read as it stands");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(data), int(size));
    readAndWrite<cable_struct>(text);
    readAndWrite<TRUEPHY_PLOT_DATA>(text);
    cabledoc::PairFlags flags{};
    expect(!cabledoc::fromText(text, &flags) || text.startsWith(cabledoc::toText(flags)),
           "flags are read as they stand");
    return 0;
}
