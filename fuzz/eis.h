// What every fuzz target uses: its input as text, and a demand that ends the program, so that the
// fuzzer keeps the input that broke it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "platform/tekst/tekst.h"

namespace plexoran {

inline void Eis(bool waar, const char* wat)
{
    if (waar)
        return;
    std::fprintf(stderr, "eis geschonden: %s\n", wat);
    std::abort();
}

inline Tekst AlsTekst(const std::uint8_t* data, std::size_t lengte)
{
    return {data, data + lengte};
}

} // namespace plexoran

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte);
