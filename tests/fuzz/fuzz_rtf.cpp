#include "formats/rtf_reader.h"
#include "formats/rtf_writer.h"

#include <cstdlib>

/// Any bytes as an RTF file: it ends, small limits hold, and what was read is written and read again as the
/// same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = "{\\rtf1" + QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto text = formats::readRtf(bytes, {.bytes = 4000, .depth = 8, .tableRows = 20});
    if (!text || text->plain().size() > 4000)
        std::abort();
    const auto again = formats::readRtf(formats::writeRtf(*text));
    if (!again || *again != *text)
        std::abort();
    return 0;
}
