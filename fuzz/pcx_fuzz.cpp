// Reads the input as a picture record of each form.
#include "fuzz/quiet_start.h"
#include "gamedata/pcx_image.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    // Exactly the record's bytes, so that a step past its end is seen.
    const std::unique_ptr<char[]> record(new char[size]);
    if (size > 0)
        std::memcpy(record.get(), data, size);
    const auto length = qint64(size);
    ReadFromArray(record.get(), length);
    ReadFromArray_P32(record.get(), length);
    ReadFromArray_16bit(record.get(), length);
    ReadFromArrayPalette_16bit(record.get(), length);
    ReadFromArrayPalette(record.get(), Qt::cyan, length);
    return 0;
}
