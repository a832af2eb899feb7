// Where libFuzzer hands its inputs over.
#include "fuzz/Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    fuzz::Target::only()(std::string(reinterpret_cast<const char*>(bytes), size));
    return 0;
}
